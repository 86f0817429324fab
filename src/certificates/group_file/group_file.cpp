#include "certificates/group_file/group_file.h"

#include <optional>

#include "res/ids.h"
#include "store/whole_file.h"
#include "toolkit/text/format_text.h"

namespace corvane::certificates {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

}  // namespace

store::TextList ParseGroupFile(std::string_view bytes, const toolkit::SystemText& systemText) {
    store::TextList owners;
    // The marks that are looked for are never the second byte of a character in a Windows code page.
    bytes = bytes.substr(0, bytes.find('\0'));
    for (std::size_t end = bytes.find(kLineEnd); end != std::string_view::npos; end = bytes.find(kLineEnd)) {
        const std::string_view line = bytes.substr(0, end);
        if (line.find('=') != std::string_view::npos) {
            owners.push_back(systemText.Widen(line));
        }
        bytes.remove_prefix(end + kLineEnd.size());
    }
    return owners;
}

std::string FormatGroupFile(const store::TextList& owners, const toolkit::SystemText& systemText) {
    std::string bytes;
    for (const std::wstring& owner : owners) {
        bytes += systemText.Narrow(owner);
        bytes += kLineEnd;
    }
    return bytes;
}

namespace {

std::wstring GroupFileFilter() {
    return toolkit::FormatText(L"%s (*.%s)|*.%s|All files (*.*)|*.*||",
                               {L"User groups files", kGroupFileExtension, kGroupFileExtension});
}

std::wstring NewGroupPath(std::wstring folder) {
    folder.erase(folder.find_last_not_of(L"\\/") + 1);
    if (!folder.empty()) {
        folder += L'\\';
    }
    return folder + toolkit::FormatText(L"New group.%s", {kGroupFileExtension});
}

}  // namespace

GroupFileOffer OfferToOpenGroup(const RecipientSelectionForm& form) {
    GroupFileOffer offer{form.lastGroupPath, {}, GroupFileFilter()};
    if (form.lastGroupPath.empty()) {
        offer.folder = form.Settings().groupFolder;
    }
    return offer;
}

GroupFileOffer OfferToSaveGroup(const RecipientSelectionForm& form) {
    return {form.lastGroupPath.empty() ? NewGroupPath(form.Settings().groupFolder) : form.lastGroupPath,
            {},
            GroupFileFilter()};
}

std::optional<reporting::Refusal> CheckGroupToSave(const RecipientSelectionForm& form) {
    if (!form.CheckedFoundOwners().empty()) {
        return std::nullopt;
    }
    return reporting::Refuse(form.IsForSigners() ? L"No signers selected." : L"No users selected.",
                             IDC_SELECTION_FOUND_LIST);
}

bool LoadGroupFile(RecipientSelectionForm& form, const std::wstring& path, toolkit::FileCalls& files,
                   reporting::ErrorReporter& reporter, toolkit::WindowHandle dialog) {
    form.lastGroupPath = path;
    const std::optional<std::string> bytes = store::WholeFile(path, files, reporter, dialog).Read();
    if (!bytes) {
        return false;
    }
    form.AddFound(ParseGroupFile(*bytes, reporter.Text()));
    return true;
}

bool SaveGroupFile(RecipientSelectionForm& form, const std::wstring& path, toolkit::FileCalls& files,
                   reporting::ErrorReporter& reporter, toolkit::WindowHandle dialog) {
    form.lastGroupPath = path;
    return store::WholeFile(path, files, reporter, dialog)
        .Write(FormatGroupFile(form.CheckedFoundOwners(), reporter.Text()));
}

}  // namespace corvane::certificates
