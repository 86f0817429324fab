#include "editors/rule/rule_validation.h"

#include "reporting/message_styles.h"
#include "store/system_codes.h"

namespace corvane::editors {

namespace {

using Refusal = std::optional<RuleRefusal>;

RuleRefusal Message(const wchar_t* text, RuleField field) {
    return {.kind = RefusalKind::kMessage, .text = text, .icon = {}, .folder = {}, .code = 0, .field = field};
}

RuleRefusal ErrorBox(const wchar_t* text, RuleIcon icon, RuleField field) {
    return {
        .kind = RefusalKind::kErrorBox, .text = text, .icon = icon, .folder = {}, .code = 0, .field = field};
}

/// A folder of the form, where it is entered, and what is said of a bad one.
struct FolderToCheck {
    const std::wstring& path;
    const wchar_t* detail;
    RuleField field;
};

RuleRefusal FileReport(const FolderToCheck& folder, std::uint32_t code) {
    return {.kind = RefusalKind::kFileReport,
            .text = folder.detail,
            .icon = {},
            .folder = folder.path,
            .code = code,
            .field = folder.field};
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
        return RuleRefusal{.kind = RefusalKind::kSilent,
                           .text = {},
                           .icon = {},
                           .folder = folder.path,
                           .code = code,
                           .field = folder.field};
    }
    return FileReport(folder, code);
}

Refusal CheckFoldersAreSet(const RuleForm& form, const OperationRow& layout) {
    if (IsNotSet(form.inputFolder.text)) {
        return ErrorBox(L"No Input folder selected.", RuleIcon::kInputFolder, RuleField::kInputFolder);
    }
    if (layout.usesOutputFolder && IsNotSet(form.outputFolder.text)) {
        return ErrorBox(L"No Output folder selected.", RuleIcon::kOutputFolder, RuleField::kOutputFolder);
    }
    if (IsNotSet(form.errorFolder.text)) {
        return ErrorBox(L"No Error folder selected.", RuleIcon::kErrorFolder, RuleField::kErrorFolder);
    }
    return std::nullopt;
}

Refusal CheckFolders(const RuleForm& form, const OperationRow& layout, toolkit::FileCalls& files) {
    Refusal refusal =
        CheckFolder({form.inputFolder.text, L"Bad Input folder.", RuleField::kInputFolder}, files);
    if (!refusal && layout.usesOutputFolder) {
        refusal =
            CheckFolder({form.outputFolder.text, L"Bad Output folder.", RuleField::kOutputFolder}, files);
    }
    return refusal
               ? refusal
               : CheckFolder({form.errorFolder.text, L"Bad Error folder.", RuleField::kErrorFolder}, files);
}

Refusal CheckCert(const RuleForm& form, CertUse use, toolkit::FileCalls& files) {
    const std::wstring& path = form.cert.text;
    switch (use) {
        case CertUse::kRecipients:
            if (form.recipients.empty()) {
                return ErrorBox(L"No certificate is selected for operation.", RuleIcon::kCertificates,
                                RuleField::kCertificates);
            }
            break;
        case CertUse::kSecondOutputFolder:
            if (!IsNotSet(path)) {
                return CheckFolder({path, L"Bad Second Output folder.", RuleField::kCertPath}, files);
            }
            break;
        case CertUse::kExecutable:
            if (IsNotSet(path)) {
                return ErrorBox(L"Executable file is not set.", RuleIcon::kExecutable, RuleField::kCertPath);
            }
            break;
        case CertUse::kNone:
        case CertUse::kSigners:  // Deliberate: a verifying rule may do without signer lists.
            break;
    }
    return std::nullopt;
}

}  // namespace

std::optional<RuleRefusal> CheckRule(const RuleForm& form, toolkit::FileCalls& files) {
    const std::optional<Operation> operation = SelectedOperation(form);
    if (!operation) {
        return Message(L"No operation selected.", RuleField::kOperation);
    }
    const OperationRow& layout = RowOf(*operation);
    Refusal refusal = CheckFoldersAreSet(form, layout);
    if (!refusal) {
        refusal = CheckFolders(form, layout, files);
    }
    if (!refusal && form.result.masks.empty()) {
        refusal = Message(L"No Mask selected.", RuleField::kMasks);
    }
    return refusal ? refusal : CheckCert(form, layout.cert, files);
}

void ShowRefusal(const RuleRefusal& refusal, reporting::ErrorReporter& reporter, toolkit::WindowHandle dialog,
                 const ShowErrorBox& showErrorBox) {
    switch (refusal.kind) {
        case RefusalKind::kMessage:
            reporter.ShowMessage(dialog, refusal.text, reporting::kRefusalStyle);
            break;
        case RefusalKind::kErrorBox:
            showErrorBox(refusal.text, refusal.icon);
            break;
        case RefusalKind::kFileReport: {
            std::wstring detail = refusal.text;
            reporter.ReportError(dialog, 0, reporting::kShowReport, refusal.code, "Opening file %s", &detail,
                                 reporter.Text().Narrow(refusal.folder).c_str());
            break;
        }
        case RefusalKind::kSilent:
            break;
    }
}

}  // namespace corvane::editors
