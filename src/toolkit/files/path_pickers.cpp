#include "toolkit/files/path_pickers.h"

#include <objbase.h>
#include <shobjidl.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

#include "toolkit/dialog/modal_state.h"
#include "toolkit/files/paths.h"
#include "toolkit/system/libraries.h"

namespace corvane::toolkit {

namespace {

// The longest path that the system takes, in characters with the closing NUL.
constexpr std::size_t kLongestPath = 32768;

constexpr wchar_t kLibraryFile[] = L"comdlg32.dll";

// Shows the dialog once with a file name, which may be empty.
PathChoice ShowWithName(const FileDialogFunctions& functions, HWND owner, const FileDialogOffer& offer,
                        DWORD flags, std::wstring path) {
    std::wstring filter = offer.filter;
    std::replace(filter.begin(), filter.end(), L'|', L'\0');
    path.resize(kLongestPath);

    OPENFILENAMEW request = {};
    request.lStructSize = sizeof request;
    request.hwndOwner = owner;
    request.lpstrFilter = filter.c_str();
    request.nFilterIndex = 1;
    request.lpstrFile = path.data();
    request.nMaxFile = static_cast<DWORD>(path.size());
    request.lpstrInitialDir = offer.folder.empty() ? nullptr : offer.folder.c_str();
    request.lpstrDefExt = offer.defaultExtension.c_str();
    // The current folder is not this dialog's to change, and not all of them keep to the flag.
    request.Flags = flags | OFN_EXPLORER | OFN_ENABLESIZING | OFN_NOCHANGEDIR;
    const ModalState others(owner);
    const KeptCurrentFolder currentFolder;
    if (functions.ask(&request) != FALSE) {
        path.resize(path.find(L'\0'));
        return {std::move(path), {}};
    }
    const DWORD error = functions.lastError();
    return error == 0 ? PathChoice{} : PathChoice{{}, CommonDialogFailure(error)};
}

PathChoice Ask(const char* functionName, HWND owner, const FileDialogOffer& offer, DWORD flags) {
    static const LateLibrary kLibrary(kLibraryFile);
    const FileDialogFunctions functions = {
        .ask = kLibrary.Find<decltype(&::GetOpenFileNameW)>(functionName),
        .lastError = kLibrary.Find<decltype(&::CommDlgExtendedError)>("CommDlgExtendedError")};
    if (functions.ask == nullptr || functions.lastError == nullptr) {
        return {{}, DialogFailure{kShowFileDialogOperation, "comdlg32.dll", kLibrary.FailureCode()}};
    }
    return ShowFileDialog(functions, owner, offer, flags);
}

}  // namespace

PathChoice AskWhereToSave(HWND owner, const FileDialogOffer& offer) {
    return Ask("GetSaveFileNameW", owner, offer, OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST);
}

PathChoice AskWhatToOpen(HWND owner, const FileDialogOffer& offer) {
    return Ask("GetOpenFileNameW", owner, offer, OFN_HIDEREADONLY | OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST);
}

PathChoice ShowFileDialog(const FileDialogFunctions& functions, HWND owner, const FileDialogOffer& offer,
                          DWORD flags) {
    const std::wstring name = offer.path.empty() ? ProposedFileName(offer.fileName) : offer.path;
    PathChoice choice = ShowWithName(functions, owner, offer, flags, name);
    if (!name.empty() && choice.failure == CommonDialogFailure(kCommonDialogInvalidFileName)) {
        return ShowWithName(functions, owner, offer, flags, {});
    }
    return choice;
}

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

PathChoice Failed(const char* step, HRESULT result) {
    // What came from a call of the system is told with that call's own code.
    const int code = HRESULT_FACILITY(result) == FACILITY_WIN32 ? HRESULT_CODE(result) : result;
    return {{}, DialogFailure{kShowFolderPickerOperation, step, static_cast<std::uint32_t>(code)}};
}

HRESULT CreateFileOpenDialog(UniqueInterface<IFileOpenDialog>& dialog) {
    const auto create = ComLibrary().Find<decltype(&::CoCreateInstance)>("CoCreateInstance");
    if (create == nullptr) {
        return HRESULT_FROM_WIN32(ComLibrary().FailureCode());
    }
    void* object = nullptr;
    const HRESULT result =
        create(kFileOpenDialogClass, nullptr, CLSCTX_INPROC_SERVER, kFileOpenDialogInterface, &object);
    dialog.reset(static_cast<IFileOpenDialog*>(object));
    return result;
}

HRESULT AskForFolders(IFileOpenDialog& dialog) {
    FILEOPENDIALOGOPTIONS options = 0;
    const HRESULT result = dialog.GetOptions(&options);
    return FAILED(result)
               ? result
               : dialog.SetOptions(options | FOS_PICKFOLDERS | FOS_FORCEFILESYSTEM | FOS_NOCHANGEDIR);
}

HRESULT ShowDialog(IFileOpenDialog& dialog, HWND owner) {
    const KeptCurrentFolder currentFolder;
    return dialog.Show(owner);
}

HRESULT ChosenPath(IFileOpenDialog& dialog, std::wstring& path) {
    IShellItem* found = nullptr;
    HRESULT result = dialog.GetResult(&found);
    if (FAILED(result)) {
        return result;
    }
    const UniqueInterface<IShellItem> item(found);
    PWSTR name = nullptr;
    result = item->GetDisplayName(SIGDN_FILESYSPATH, &name);
    if (SUCCEEDED(result)) {
        const std::unique_ptr<wchar_t, TaskMemoryReleaser> owned(name);
        path = name;
    }
    return result;
}

}  // namespace

ShellManager::ShellManager() : apartment_(E_FAIL) {
    const auto open = ComLibrary().Find<decltype(&::CoInitializeEx)>("CoInitializeEx");
    if (open != nullptr) {
        apartment_ = open(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
    }
}

ShellManager::~ShellManager() {
    const auto close =
        SUCCEEDED(apartment_) ? ComLibrary().Find<decltype(&::CoUninitialize)>("CoUninitialize") : nullptr;
    if (close != nullptr) {
        close();
    }
}

PathChoice ShellManager::PickFolder(HWND owner) {
    // An apartment that could not be opened shows in what follows: without one nothing can be created.
    UniqueInterface<IFileOpenDialog> dialog;
    if (const HRESULT result = CreateFileOpenDialog(dialog); FAILED(result)) {
        return Failed("CoCreateInstance", result);
    }
    if (const HRESULT result = AskForFolders(*dialog); FAILED(result)) {
        return Failed("IFileDialog::SetOptions", result);
    }
    const ModalState others(owner);
    if (const HRESULT result = ShowDialog(*dialog, owner); FAILED(result)) {
        return result == HRESULT_FROM_WIN32(ERROR_CANCELLED) ? PathChoice{}
                                                             : Failed("IModalWindow::Show", result);
    }
    std::wstring path;
    if (const HRESULT result = ChosenPath(*dialog, path); FAILED(result)) {
        return Failed("IFileDialog::GetResult", result);
    }
    return {std::move(path), {}};
}

}  // namespace corvane::toolkit
