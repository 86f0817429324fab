#include "editors/rule/rule_cert_command.h"

#include <utility>

namespace corvane::editors {

CertCommand CertButtonCommand(const RuleForm& form) {
    switch (RowOf(form.laidOutOperation).cert) {
        case CertUse::kSecondOutputFolder:
            return CertCommand::kPickFolder;
        case CertUse::kExecutable:
            return CertCommand::kPickExecutable;
        case CertUse::kSigners:
            return CertCommand::kEditSignerLists;
        case CertUse::kRecipients:
            return CertCommand::kChooseRecipients;
        case CertUse::kNone:
            break;
    }
    return CertCommand::kNone;
}

std::size_t SelectedCsProfileIndex(const RuleForm& form) {
    const int index = form.csProfile.index;
    return index < 0 ? form.profile.csProfiles.size() : static_cast<std::size_t>(index);
}

void TakeCertPath(RuleForm& form, const std::wstring& path) {
    form.cert.text = path;
}

void TakeRecipients(RuleForm& form, store::TextList recipients) {
    form.recipients = std::move(recipients);
    ShowCertCount(form, form.laidOutOperation);
}

void TakeSignerLists(RuleForm& form, std::vector<store::SignerGroup> signerLists) {
    form.result.signerGroups = std::move(signerLists);
    ShowCertCount(form, form.laidOutOperation);
}

}  // namespace corvane::editors
