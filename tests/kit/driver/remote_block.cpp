#include "tests/kit/driver/remote_block.h"

#include "tests/kit/driver/failure.h"

namespace corvane::test {

RemoteBlock::RemoteBlock(HWND window, std::size_t sizeBytes) {
    DWORD processId = 0;
    GetWindowThreadProcessId(window, &processId);
    process_ = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, processId);
    if (process_ == nullptr) {
        throw Failure(L"The process of a window cannot be opened; the window is probably gone.");
    }
    address_ = VirtualAllocEx(process_, nullptr, sizeBytes, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    if (address_ == nullptr) {
        CloseHandle(process_);
        throw Failure(L"No memory could be reserved in the driven process.");
    }
}

RemoteBlock::~RemoteBlock() {
    VirtualFreeEx(process_, address_, 0, MEM_RELEASE);
    CloseHandle(process_);
}

void* RemoteBlock::Address(std::size_t offset) const {
    return static_cast<char*>(address_) + offset;
}

LPARAM RemoteBlock::Parameter(std::size_t offset) const {
    return reinterpret_cast<LPARAM>(Address(offset));
}

void RemoteBlock::Write(const void* data, std::size_t sizeBytes, std::size_t offset) {
    if (!WriteProcessMemory(process_, Address(offset), data, sizeBytes, nullptr)) {
        throw Failure(L"The memory of the driven process could not be written.");
    }
}

void RemoteBlock::Read(void* data, std::size_t sizeBytes, std::size_t offset) const {
    if (!ReadProcessMemory(process_, Address(offset), data, sizeBytes, nullptr)) {
        throw Failure(L"The memory of the driven process could not be read.");
    }
}

std::wstring RemoteBlock::Text(std::size_t offset, std::size_t roomChars) const {
    std::wstring text(roomChars, L'\0');
    Read(text.data(), roomChars * sizeof(wchar_t), offset);
    return text.substr(0, text.find(L'\0'));
}

}  // namespace corvane::test
