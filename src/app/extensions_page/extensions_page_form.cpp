#include "app/extensions_page/extensions_page_form.h"

#include <utility>

#include "res/ids.h"
#include "toolkit/text/format_text.h"

namespace corvane::app {

namespace {

struct WantedExtension {
    ExtensionField field;
    int controlId;
    const wchar_t* refusal;
};

// Deliberate: the extensions of archives may be empty.
constexpr WantedExtension kWantedExtensions[] = {
    {&store::AppSettings::signedExtension, IDC_CONFIG_SIGNED_EDIT,
     L"Please, choose extension for files with attached signature."},
    {&store::AppSettings::detachedSignatureExtension, IDC_CONFIG_DETACHED_EDIT,
     L"Please, choose extension for files with detached signature."},
    {&store::AppSettings::encryptedExtension, IDC_CONFIG_ENCRYPTED_EDIT,
     L"Please, choose extension for encrypted files."},
    {&store::AppSettings::base64Extension, IDC_CONFIG_BASE64_EDIT,
     L"Please, choose extension for b64 files."},
    {&store::AppSettings::hashExtension, IDC_CONFIG_HASH_EDIT, L"Please, choose extension for hash files."},
    {&store::AppSettings::verificationExtension, IDC_CONFIG_VERIFICATION_EDIT,
     L"Please, choose extension for files with signature verification report."},
};

}  // namespace

ConfigPageForm::ConfigPageForm(store::AppSettings settingsInForce) : settings(std::move(settingsInForce)) {}

bool ConfigPageForm::AddExtension(bool isListed) {
    isModified_ = isModified_ || !isListed;
    return !isListed;
}

reporting::Refusal ConfigPageForm::NothingToDelete() {
    return reporting::Refuse(L"Select list item to delete.", IDC_CONFIG_ADDITIONAL_LIST);
}

reporting::Question ConfigPageForm::DeletionQuestion(const std::wstring& extension) {
    return {toolkit::FormatText(L"Delete additional extension '%s'?", {extension})};
}

std::optional<reporting::Refusal> ConfigPageForm::Apply(const store::TextList& listed) {
    if (!isModified_) {
        return std::nullopt;
    }
    for (const WantedExtension& wanted : kWantedExtensions) {
        if ((settings.*wanted.field).empty()) {
            return reporting::Refuse(wanted.refusal, wanted.controlId);
        }
    }
    // Copied first, for a lack of memory may not leave some of the old ones among the new.
    store::TextList applied = listed;
    settings.additionalExtensions = std::move(applied);
    isModified_ = false;
    return std::nullopt;
}

}  // namespace corvane::app
