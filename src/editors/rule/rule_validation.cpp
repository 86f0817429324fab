#include "editors/rule/rule_validation.h"

#include "res/ids.h"
#include "store/system_codes.h"

namespace corvane::editors {

namespace {

using Refusal = std::optional<reporting::Refusal>;

reporting::Refusal ErrorBox(const wchar_t* text, int iconId, int controlId) {
    return {.wording = reporting::RefusalPicture{.text = text, .iconId = iconId}, .controlId = controlId};
}

/// A folder of the form, where it is entered, and what is said of a bad one.
struct FolderToCheck {
    const std::wstring& path;
    const wchar_t* detail;
    int controlId;
};

reporting::Refusal FileReport(const FolderToCheck& folder, std::uint32_t code) {
    return {.wording = reporting::RefusedPath{.path = folder.path, .code = code, .detail = folder.detail},
            .controlId = folder.controlId};
}

Refusal CheckFolder(const FolderToCheck& folder, toolkit::FileCalls& files) {
    if (!store::IsDriveOrNetworkPath(folder.path)) {
        return FileReport(folder, store::kCodePathNotFound);
    }
    // A file of this name passes as well: the client tells the two apart itself.
    const std::uint32_t code = files.CheckExists(folder.path);
    if (code == 0) {
        return std::nullopt;
    }
    if (code == store::kCodeFileExists) {
        // Deliberate: "file exists" as the reason why a path does not exist is kept from users, who could
        // make nothing of it; the editor just stays open.
        return reporting::Refusal{.wording = reporting::SilentRefusal(), .controlId = folder.controlId};
    }
    return FileReport(folder, code);
}

Refusal CheckFoldersAreSet(const RuleForm& form, const OperationRow& layout) {
    if (IsNotSet(form.inputFolder.text)) {
        return ErrorBox(L"No Input folder selected.", IDI_INPUT_FOLDER, IDC_RULE_INPUT_EDIT);
    }
    if (layout.usesOutputFolder && IsNotSet(form.outputFolder.text)) {
        return ErrorBox(L"No Output folder selected.", IDI_OUTPUT_FOLDER, IDC_RULE_OUTPUT_EDIT);
    }
    if (IsNotSet(form.errorFolder.text)) {
        return ErrorBox(L"No Error folder selected.", IDI_ERROR_FOLDER, IDC_RULE_ERROR_EDIT);
    }
    return std::nullopt;
}

Refusal CheckFolders(const RuleForm& form, const OperationRow& layout, toolkit::FileCalls& files) {
    Refusal refusal = CheckFolder({form.inputFolder.text, L"Bad Input folder.", IDC_RULE_INPUT_EDIT}, files);
    if (!refusal && layout.usesOutputFolder) {
        refusal = CheckFolder({form.outputFolder.text, L"Bad Output folder.", IDC_RULE_OUTPUT_EDIT}, files);
    }
    return refusal ? refusal
                   : CheckFolder({form.errorFolder.text, L"Bad Error folder.", IDC_RULE_ERROR_EDIT}, files);
}

Refusal CheckCert(const RuleForm& form, CertUse use, toolkit::FileCalls& files) {
    const std::wstring& path = form.cert.text;
    switch (use) {
        case CertUse::kRecipients:
            if (form.recipients.empty()) {
                return ErrorBox(L"No certificate is selected for operation.", IDI_CERTIFICATES,
                                IDC_RULE_CERT_BUTTON);
            }
            break;
        case CertUse::kSecondOutputFolder:
            if (!IsNotSet(path)) {
                return CheckFolder({path, L"Bad Second Output folder.", IDC_RULE_CERT_EDIT}, files);
            }
            break;
        case CertUse::kExecutable:
            if (IsNotSet(path)) {
                return ErrorBox(L"Executable file is not set.", IDI_EXECUTABLE, IDC_RULE_CERT_EDIT);
            }
            break;
        case CertUse::kNone:
        case CertUse::kSigners:  // Deliberate: a verifying rule may do without signer lists.
            break;
    }
    return std::nullopt;
}

}  // namespace

std::optional<reporting::Refusal> CheckRule(const RuleForm& form, toolkit::FileCalls& files) {
    const std::optional<Operation> operation = SelectedOperation(form);
    if (!operation) {
        return reporting::Refuse(L"No operation selected.", IDC_RULE_OPERATION_COMBO);
    }
    const OperationRow& layout = RowOf(*operation);
    Refusal refusal = CheckFoldersAreSet(form, layout);
    if (!refusal) {
        refusal = CheckFolders(form, layout, files);
    }
    if (!refusal && form.result.masks.empty()) {
        refusal = reporting::Refuse(L"No Mask selected.", IDC_RULE_ADD_MASK_BUTTON);
    }
    return refusal ? refusal : CheckCert(form, layout.cert, files);
}

}  // namespace corvane::editors
