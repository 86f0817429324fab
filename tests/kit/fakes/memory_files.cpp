#include "tests/kit/fakes/memory_files.h"

#include <algorithm>

namespace corvane::test {

namespace {

constexpr std::uint32_t kCodeFileNotFound = 2;
constexpr std::uint32_t kCodeFileNotOpen = 6;

}  // namespace

std::uint32_t MemoryFiles::Create(const std::wstring& path, Handle& file) {
    const std::uint32_t code = Enter(FileOperation::kCreate, path);
    if (code == 0) {
        contents[path].clear();
        file = Remember(path, true);
    }
    return code;
}

std::uint32_t MemoryFiles::Open(const std::wstring& path, Handle& file) {
    if (const std::uint32_t code = Enter(FileOperation::kOpen, path); code != 0) {
        return code;
    }
    if (!contents.contains(path)) {
        return Fail(kCodeFileNotFound);
    }
    file = Remember(path, false);
    return 0;
}

std::uint32_t MemoryFiles::Size(Handle file, std::uint64_t& sizeBytes) {
    std::uint32_t code = 0;
    if (const OpenedFile* opened = EnterWith(file, FileOperation::kSize, code); opened != nullptr) {
        sizeBytes = pretendsSize_ ? pretendedSizeBytes_ : contents[opened->path].size();
    }
    return code;
}

std::uint32_t MemoryFiles::Read(Handle file, char* data, std::size_t sizeBytes, std::size_t& readBytes) {
    std::uint32_t code = 0;
    OpenedFile* opened = EnterWith(file, FileOperation::kRead, code);
    if (opened == nullptr) {
        return code;
    }
    const std::string& content = contents[opened->path];
    const std::size_t position = std::min(opened->position, content.size());
    readBytes = std::min({sizeBytes, readLimitBytes_, content.size() - position});
    std::copy_n(content.data() + position, readBytes, data);
    opened->position = position + readBytes;
    return 0;
}

std::uint32_t MemoryFiles::Write(Handle file, const char* data, std::size_t sizeBytes,
                                 std::size_t& writtenBytes) {
    std::uint32_t code = 0;
    const OpenedFile* opened = EnterWith(file, FileOperation::kWrite, code);
    if (opened == nullptr) {
        return code;
    }
    writtenBytes = std::min(sizeBytes, writeLimitBytes_);
    contents[opened->path].append(data, writtenBytes);
    return 0;
}

std::uint32_t MemoryFiles::Close(Handle file) {
    std::uint32_t code = 0;
    EnterWith(file, FileOperation::kClose, code);
    openFiles_.erase(file);
    return code;
}

std::uint32_t MemoryFiles::CheckExists(const std::wstring& path) {
    if (const std::uint32_t code = Enter(FileOperation::kCheckExists, path); code != 0) {
        return code;
    }
    return contents.contains(path) ? 0 : Fail(kCodeFileNotFound);
}

std::uint32_t MemoryFiles::Enter(FileOperation operation, const std::wstring& path) {
    const auto failure = failures_.find(calls_.size());
    calls_.push_back({operation, path, failure == failures_.end() ? 0 : failure->second});
    return calls_.back().code;
}

std::uint32_t MemoryFiles::Fail(std::uint32_t code) {
    calls_.back().code = code;
    return code;
}

toolkit::FileCalls::Handle MemoryFiles::Remember(const std::wstring& path, bool isForWriting) {
    // A handle is a number that is never used twice and never dereferenced.
    const Handle file = reinterpret_cast<Handle>(++lastHandle_);  // NOLINT(performance-no-int-to-ptr)
    openFiles_[file] = {path, isForWriting, 0};
    return file;
}

MemoryFiles::OpenedFile* MemoryFiles::Find(Handle file) {
    const auto found = openFiles_.find(file);
    return found == openFiles_.end() ? nullptr : &found->second;
}

MemoryFiles::OpenedFile* MemoryFiles::EnterWith(Handle file, FileOperation operation, std::uint32_t& code) {
    OpenedFile* opened = Find(file);
    code = Enter(operation, opened == nullptr ? std::wstring() : opened->path);
    const bool isWrongWay =
        opened != nullptr && ((operation == FileOperation::kRead && opened->isForWriting) ||
                              (operation == FileOperation::kWrite && !opened->isForWriting));
    if (opened == nullptr || isWrongWay) {
        ++misuses_;
        code = Fail(kCodeFileNotOpen);
    }
    return code == 0 ? opened : nullptr;
}

}  // namespace corvane::test
