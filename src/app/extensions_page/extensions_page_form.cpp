#include "app/extensions_page/extensions_page_form.h"

#include <utility>

#include "reporting/message_styles.h"
#include "reporting/unsaved_changes.h"
#include "toolkit/text/format_text.h"

namespace corvane::app {

namespace {

struct WantedExtension {
    ExtensionField field;
    const wchar_t* refusal;
};

// Deliberate: the extensions of archives may be empty.
constexpr WantedExtension kWantedExtensions[] = {
    {&store::AppSettings::signedExtension, L"Please, choose extension for files with attached signature."},
    {&store::AppSettings::detachedSignatureExtension,
     L"Please, choose extension for files with detached signature."},
    {&store::AppSettings::encryptedExtension, L"Please, choose extension for encrypted files."},
    {&store::AppSettings::base64Extension, L"Please, choose extension for b64 files."},
    {&store::AppSettings::hashExtension, L"Please, choose extension for hash files."},
    {&store::AppSettings::verificationExtension,
     L"Please, choose extension for files with signature verification report."},
};

}  // namespace

ConfigPageForm::ConfigPageForm(store::AppSettings settingsInForce) : settings(std::move(settingsInForce)) {}

bool ConfigPageForm::AddExtension(bool isListed) {
    isModified_ = isModified_ || !isListed;
    return !isListed;
}

bool ConfigPageForm::DeleteExtension(const std::optional<std::wstring>& selected,
                                     reporting::ErrorReporter& reporter, toolkit::WindowHandle dialog) {
    if (!selected) {
        reporter.ShowMessage(dialog, std::wstring(L"Select list item to delete."), reporting::kRefusalStyle);
        return false;
    }
    if (reporter.ShowMessage(dialog, toolkit::FormatText(L"Delete additional extension '%s'?", {*selected}),
                             reporting::kConfirmationStyle) != reporting::kAnswerYes) {
        return false;
    }
    isModified_ = true;
    return true;
}

std::optional<ExtensionField> ConfigPageForm::Apply(const store::TextList& listed,
                                                    reporting::ErrorReporter& reporter,
                                                    toolkit::WindowHandle dialog) {
    if (!isModified_) {
        return std::nullopt;
    }
    for (const WantedExtension& wanted : kWantedExtensions) {
        if ((settings.*wanted.field).empty()) {
            reporter.ShowMessage(dialog, std::wstring(wanted.refusal), reporting::kRefusalStyle);
            return wanted.field;
        }
    }
    // Copied first, for a lack of memory may not leave some of the old ones among the new.
    store::TextList applied = listed;
    settings.additionalExtensions = std::move(applied);
    isModified_ = false;
    return std::nullopt;
}

bool ConfigPageForm::Confirm(reporting::ErrorReporter& reporter, toolkit::WindowHandle dialog) const {
    // Deliberate: after Yes the basic extensions are taken as they stand, while the changes made to the list
    // since the last Apply are lost.
    return reporting::MayLeave(isModified_, reporter, dialog);
}

}  // namespace corvane::app
