#include "store/whole_file.h"

#include <cstddef>
#include <cstdint>
#include <new>
#include <utility>

#include "store/system_codes.h"

namespace corvane::store {

namespace {

constexpr std::uint32_t kCodeWriteFault = 29;

// The owner of an open file. Whoever wants to know how closing went calls Close; otherwise the file is
// closed at the end of the scope, where a failure is not told: another one came first.
class OpenFile {
  public:
    OpenFile(toolkit::FileCalls& files, toolkit::FileCalls::Handle handle) : files_(files), handle_(handle) {}
    ~OpenFile() {
        if (isOpen_) {
            static_cast<void>(files_.Close(handle_));
        }
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    OpenFile(OpenFile&&) = delete;
    OpenFile& operator=(OpenFile&&) = delete;

    [[nodiscard]] toolkit::FileCalls::Handle Get() const { return handle_; }

    [[nodiscard]] std::uint32_t Close() {
        isOpen_ = false;
        return files_.Close(handle_);
    }

  private:
    toolkit::FileCalls& files_;
    toolkit::FileCalls::Handle handle_;
    bool isOpen_ = true;
};

std::uint32_t MakeRoom(std::uint64_t sizeBytes, std::string& bytes) {
    if (sizeBytes > bytes.max_size()) {
        return kCodeNotEnoughMemory;
    }
    try {
        bytes.resize(static_cast<std::size_t>(sizeBytes));
    } catch (const std::bad_alloc&) {
        return kCodeNotEnoughMemory;
    }
    return 0;
}

// Reads until `bytes` is full or the file ends; `bytes` is then cut to what came.
std::uint32_t ReadAll(toolkit::FileCalls& files, toolkit::FileCalls::Handle file, std::string& bytes) {
    std::size_t filledBytes = 0;
    while (filledBytes < bytes.size()) {
        std::size_t readBytes = 0;
        const std::uint32_t code =
            files.Read(file, bytes.data() + filledBytes, bytes.size() - filledBytes, readBytes);
        if (code != 0) {
            return code;
        }
        if (readBytes == 0) {
            bytes.resize(filledBytes);
        }
        filledBytes += readBytes;
    }
    return 0;
}

std::uint32_t WriteAll(toolkit::FileCalls& files, toolkit::FileCalls::Handle file, std::string_view bytes) {
    while (!bytes.empty()) {
        std::size_t writtenBytes = 0;
        const std::uint32_t code = files.Write(file, bytes.data(), bytes.size(), writtenBytes);
        if (code != 0) {
            return code;
        }
        if (writtenBytes == 0) {
            return kCodeWriteFault;
        }
        bytes.remove_prefix(writtenBytes);
    }
    return 0;
}

}  // namespace

WholeFile::WholeFile(std::wstring path, toolkit::FileCalls& files, reporting::ErrorReporter& reporter,
                     toolkit::WindowHandle owner)
    : path_(std::move(path)), files_(files), reporter_(reporter), owner_(owner) {}

std::optional<std::string> WholeFile::Read() {
    std::string bytes;
    if (const Outcome outcome = TryRead(bytes); outcome.code != 0) {
        ReportFailure(outcome);
        return std::nullopt;
    }
    return bytes;
}

bool WholeFile::Write(std::string_view bytes) {
    const Outcome outcome = TryWrite(bytes);
    if (outcome.code != 0) {
        ReportFailure(outcome);
    }
    return outcome.code == 0;
}

WholeFile::Outcome WholeFile::TryRead(std::string& bytes) {
    toolkit::FileCalls::Handle handle = nullptr;
    if (const std::uint32_t code = files_.Open(path_, handle); code != 0) {
        return {"Opening file %s", code};
    }
    OpenFile file(files_, handle);
    std::uint64_t sizeBytes = 0;
    if (const std::uint32_t code = files_.Size(file.Get(), sizeBytes); code != 0) {
        return {"Getting size of file %s", code};
    }
    if (const std::uint32_t code = MakeRoom(sizeBytes, bytes); code != 0) {
        return {"Reading file %s", code};
    }
    if (const std::uint32_t code = ReadAll(files_, file.Get(), bytes); code != 0) {
        return {"Reading file %s", code};
    }
    return {"Closing file %s", file.Close()};
}

WholeFile::Outcome WholeFile::TryWrite(std::string_view bytes) {
    toolkit::FileCalls::Handle handle = nullptr;
    if (const std::uint32_t code = files_.Create(path_, handle); code != 0) {
        return {"Creating file %s", code};
    }
    OpenFile file(files_, handle);
    if (const std::uint32_t code = WriteAll(files_, file.Get(), bytes); code != 0) {
        return {"Writing file %s", code};
    }
    return {"Closing file %s", file.Close()};
}

void WholeFile::ReportFailure(const Outcome& outcome) {
    reporter_.ReportError(owner_, 0, reporting::kShowReport, outcome.code, outcome.operationFormat, nullptr,
                          reporter_.Text().Narrow(path_).c_str());
}

}  // namespace corvane::store
