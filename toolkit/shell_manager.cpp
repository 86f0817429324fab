#include "toolkit/shell_manager.h"

#include <objbase.h>
#include <shobjidl.h>

#include <memory>

#include "toolkit/late_library.h"
#include "toolkit/modal_state.h"

namespace toolkit {

namespace {

const LateLibrary& ComLibrary() {
    static const LateLibrary kLibrary(L"ole32.dll");
    return kLibrary;
}

struct InterfaceReleaser {
    void operator()(IUnknown* object) const { object->Release(); }
};

template <typename Interface>
using UniqueInterface = std::unique_ptr<Interface, InterfaceReleaser>;

struct TaskMemoryReleaser {
    void operator()(void* memory) const {
        const auto release = ComLibrary().Find<decltype(&::CoTaskMemFree)>("CoTaskMemFree");
        if (release != nullptr) {
            release(memory);
        }
    }
};

// Written out here, so that nothing but the headers is needed of the shell.
constexpr GUID kFileOpenDialogClass = {
    0xDC1C5A9C, 0xE88A, 0x4DDE, {0xA5, 0xA1, 0x60, 0xF8, 0x2A, 0x20, 0xAE, 0xF7}};
constexpr GUID kFileOpenDialogInterface = {
    0xD57C7288, 0xD4AD, 0x4768, {0xBE, 0x02, 0x9D, 0x96, 0x95, 0x32, 0xD9, 0x60}};

UniqueInterface<IFileOpenDialog> CreateFileOpenDialog() {
    const auto create = ComLibrary().Find<decltype(&::CoCreateInstance)>("CoCreateInstance");
    void* object = nullptr;
    if (create == nullptr || FAILED(create(kFileOpenDialogClass, nullptr, CLSCTX_INPROC_SERVER,
                                           kFileOpenDialogInterface, &object))) {
        return nullptr;
    }
    return UniqueInterface<IFileOpenDialog>(static_cast<IFileOpenDialog*>(object));
}

}  // namespace

ShellManager::~ShellManager() {
    const auto close =
        hasApartment_ ? ComLibrary().Find<decltype(&::CoUninitialize)>("CoUninitialize") : nullptr;
    if (close != nullptr) {
        close();
    }
}

bool ShellManager::OpenApartment() {
    if (!hasApartment_) {
        const auto open = ComLibrary().Find<decltype(&::CoInitializeEx)>("CoInitializeEx");
        hasApartment_ =
            open != nullptr && SUCCEEDED(open(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE));
    }
    return hasApartment_;
}

std::optional<std::wstring> ShellManager::PickFolder(HWND owner) {
    if (!OpenApartment()) {
        return std::nullopt;
    }
    const ModalState others(owner);
    const UniqueInterface<IFileOpenDialog> dialog = CreateFileOpenDialog();
    FILEOPENDIALOGOPTIONS options = 0;
    if (dialog == nullptr || FAILED(dialog->GetOptions(&options)) ||
        FAILED(dialog->SetOptions(options | FOS_PICKFOLDERS | FOS_FORCEFILESYSTEM | FOS_NOCHANGEDIR)) ||
        FAILED(dialog->Show(owner))) {
        return std::nullopt;
    }
    IShellItem* found = nullptr;
    if (FAILED(dialog->GetResult(&found))) {
        return std::nullopt;
    }
    const UniqueInterface<IShellItem> item(found);
    PWSTR path = nullptr;
    if (FAILED(item->GetDisplayName(SIGDN_FILESYSPATH, &path))) {
        return std::nullopt;
    }
    const std::unique_ptr<wchar_t, TaskMemoryReleaser> owned(path);
    return std::wstring(path);
}

}  // namespace toolkit
