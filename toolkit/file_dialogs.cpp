#include "toolkit/file_dialogs.h"

#include <commdlg.h>

#include <algorithm>

#include "toolkit/file_name_proposal.h"
#include "toolkit/late_library.h"
#include "toolkit/modal_state.h"

namespace toolkit {

namespace {

// The longest path that the system takes, in characters with the closing NUL.
constexpr std::size_t kLongestPath = 32768;

using FileDialogFunction = BOOL(WINAPI*)(OPENFILENAMEW*);

std::optional<std::wstring> Ask(const char* functionName, HWND owner, const FileDialogOffer& offer,
                                DWORD flags) {
    static const LateLibrary kLibrary(L"comdlg32.dll");
    const auto function = kLibrary.Find<FileDialogFunction>(functionName);
    if (function == nullptr) {
        return std::nullopt;
    }
    std::wstring filter = offer.filter;
    std::replace(filter.begin(), filter.end(), L'|', L'\0');
    std::wstring path = offer.path.empty() ? ProposedFileName(offer.fileName) : offer.path;
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
    // The current folder is not this dialog's to change.
    request.Flags = flags | OFN_EXPLORER | OFN_ENABLESIZING | OFN_NOCHANGEDIR;
    const ModalState others(owner);
    if (function(&request) == FALSE) {
        return std::nullopt;
    }
    path.resize(path.find(L'\0'));
    return path;
}

}  // namespace

std::optional<std::wstring> AskWhereToSave(HWND owner, const FileDialogOffer& offer) {
    return Ask("GetSaveFileNameW", owner, offer, OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST);
}

std::optional<std::wstring> AskWhatToOpen(HWND owner, const FileDialogOffer& offer) {
    return Ask("GetOpenFileNameW", owner, offer, OFN_HIDEREADONLY | OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST);
}

}  // namespace toolkit
