#include "toolkit/file_dialogs.h"

#include <algorithm>
#include <utility>

#include "toolkit/file_name_proposal.h"
#include "toolkit/kept_current_folder.h"
#include "toolkit/late_library.h"
#include "toolkit/modal_state.h"

namespace toolkit {

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

}  // namespace toolkit
