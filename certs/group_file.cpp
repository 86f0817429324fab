#include "certs/group_file.h"

#include <optional>

#include "app/reporting/message_styles.h"
#include "certs/group_file_text.h"
#include "config/whole_file.h"
#include "toolkit/format_text.h"

namespace corvane {

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

bool MaySaveGroup(const RecipientSelectionForm& form, ErrorReporter& reporter, toolkit::WindowHandle dialog) {
    if (!form.CheckedFoundOwners().empty()) {
        return true;
    }
    reporter.ShowMessage(dialog, form.IsForSigners() ? L"No signers selected." : L"No users selected.",
                         kRefusalStyle);
    return false;
}

bool LoadGroupFile(RecipientSelectionForm& form, const std::wstring& path, toolkit::FileCalls& files,
                   ErrorReporter& reporter, toolkit::WindowHandle dialog) {
    form.lastGroupPath = path;
    const std::optional<std::string> bytes = WholeFile(path, files, reporter, dialog).Read();
    if (!bytes) {
        return false;
    }
    form.AddFound(ParseGroupFile(*bytes, reporter.Text()));
    return true;
}

bool SaveGroupFile(RecipientSelectionForm& form, const std::wstring& path, toolkit::FileCalls& files,
                   ErrorReporter& reporter, toolkit::WindowHandle dialog) {
    form.lastGroupPath = path;
    return WholeFile(path, files, reporter, dialog)
        .Write(FormatGroupFile(form.CheckedFoundOwners(), reporter.Text()));
}

}  // namespace corvane
