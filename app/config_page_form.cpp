#include "app/config_page_form.h"

#include <utility>

#include "app/leave_decision.h"
#include "app/reporting/message_styles.h"
#include "toolkit/format_text.h"

namespace corvane {

namespace {

struct WantedExtension {
    ExtensionField field;
    const wchar_t* refusal;
};

// Deliberate: the extensions of archives may be empty.
constexpr WantedExtension kWantedExtensions[] = {
    {&AppSettings::signedExtension, L"Please, choose extension for files with attached signature."},
    {&AppSettings::detachedSignatureExtension,
     L"Please, choose extension for files with detached signature."},
    {&AppSettings::encryptedExtension, L"Please, choose extension for encrypted files."},
    {&AppSettings::base64Extension, L"Please, choose extension for b64 files."},
    {&AppSettings::hashExtension, L"Please, choose extension for hash files."},
    {&AppSettings::verificationExtension,
     L"Please, choose extension for files with signature verification report."},
};

}  // namespace

ConfigPageForm::ConfigPageForm(AppSettings settingsInForce) : settings(std::move(settingsInForce)) {}

bool ConfigPageForm::AddExtension(bool isListed) {
    isModified_ = isModified_ || !isListed;
    return !isListed;
}

bool ConfigPageForm::DeleteExtension(const std::optional<std::wstring>& selected, ErrorReporter& reporter,
                                     toolkit::WindowHandle dialog) {
    if (!selected) {
        reporter.ShowMessage(dialog, std::wstring(L"Select list item to delete."), kRefusalStyle);
        return false;
    }
    if (reporter.ShowMessage(dialog, toolkit::FormatText(L"Delete additional extension '%s'?", {*selected}),
                             kConfirmationStyle) != kAnswerYes) {
        return false;
    }
    isModified_ = true;
    return true;
}

std::optional<ExtensionField> ConfigPageForm::Apply(const TextList& listed, ErrorReporter& reporter,
                                                    toolkit::WindowHandle dialog) {
    if (!isModified_) {
        return std::nullopt;
    }
    for (const WantedExtension& wanted : kWantedExtensions) {
        if ((settings.*wanted.field).empty()) {
            reporter.ShowMessage(dialog, std::wstring(wanted.refusal), kRefusalStyle);
            return wanted.field;
        }
    }
    // Copied first, for a lack of memory may not leave some of the old ones among the new.
    TextList applied = listed;
    settings.additionalExtensions = std::move(applied);
    isModified_ = false;
    return std::nullopt;
}

bool ConfigPageForm::Confirm(ErrorReporter& reporter, toolkit::WindowHandle dialog) const {
    // Deliberate: after Yes the basic extensions are taken as they stand, while the changes made to the list
    // since the last Apply are lost.
    return MayLeave(isModified_, reporter, dialog);
}

}  // namespace corvane
