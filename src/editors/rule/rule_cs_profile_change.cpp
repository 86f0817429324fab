#include "editors/rule/rule_cs_profile_change.h"

#include "reporting/message_styles.h"

namespace corvane::editors {

namespace {

constexpr wchar_t kNoCertificates[] = L"0";

bool IsEntry(const ChoiceField& choice, int index) {
    return index >= 0 && static_cast<std::size_t>(index) < choice.entries.size();
}

void RestoreSelection(RuleForm& form, const AcceptedCsProfile& accepted) {
    // The accepted index can come from a rule of a profile with more CS profiles than this one has; what was
    // selected before serves the user better than nothing at all.
    form.csProfile.index = IsEntry(form.csProfile, accepted.index) ? accepted.index : form.settledCsProfile;
    form.settledCsProfile = form.csProfile.index;
}

}  // namespace

void ChangeCsProfile(RuleForm& form, AcceptedCsProfile& accepted, reporting::ErrorReporter& reporter,
                     toolkit::WindowHandle dialog) {
    const auto isAllowed = [&reporter, dialog](const wchar_t* question) {
        return reporter.ShowMessage(dialog, std::wstring(question), reporting::kConfirmationStyle) ==
               reporting::kAnswerYes;
    };
    if (form.csProfile.index == accepted.index) {
        form.settledCsProfile = form.csProfile.index;
        return;
    }
    if (!form.recipients.empty()) {
        if (!isAllowed(L"Recipients field must be clean to change CS profile.\r\n"
                       L"Delete all recipients from rule?")) {
            RestoreSelection(form, accepted);
            return;
        }
        form.recipients.clear();
        form.cert.text = kNoCertificates;
    }
    if (!form.result.signerGroups.empty()) {
        if (!isAllowed(L"Signers field must be clean to change CS profile.\r\n"
                       L"Delete all signer lists from rule?")) {
            RestoreSelection(form, accepted);
            return;
        }
        form.result.signerGroups.clear();
        form.cert.text = kNoCertificates;
    }
    accepted.index = form.csProfile.index;
    form.settledCsProfile = form.csProfile.index;
}

}  // namespace corvane::editors
