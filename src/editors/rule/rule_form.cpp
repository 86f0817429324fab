#include "editors/rule/rule_form.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "toolkit/text/format_text.h"

namespace corvane::editors {

namespace {

constexpr wchar_t kNoArchiver[] = L"No";
constexpr wchar_t kZip[] = L"ZIP archivation";
constexpr wchar_t kGzip[] = L"GZIP archivation";

std::wstring_view CertToolTip(CertUse use) {
    switch (use) {
        case CertUse::kSigners:
            return L"Add signers";
        case CertUse::kSecondOutputFolder:
            // Deliberate: the blank at the end. Programs that drive this one find the button by this text.
            return L"Second Output folder ";
        case CertUse::kExecutable:
            return L"Executable file:";
        case CertUse::kNone:
        case CertUse::kRecipients:
            break;
    }
    return L"Add recipients";
}

RuleIcon CertIcon(CertUse use) {
    switch (use) {
        case CertUse::kSecondOutputFolder:
            return RuleIcon::kSecondOutputFolder;
        case CertUse::kExecutable:
            return RuleIcon::kExecutable;
        case CertUse::kNone:
        case CertUse::kRecipients:
        case CertUse::kSigners:
            break;
    }
    return RuleIcon::kCertificates;
}

void ShowCert(RuleForm& form, CertUse use) {
    form.certButton.toolTip = CertToolTip(use);
    form.certButton.icon = CertIcon(use);
    form.certButton.isEnabled = use != CertUse::kNone;
    form.cert.isReadOnly = use != CertUse::kSecondOutputFolder && use != CertUse::kExecutable;
}

void ShowRow(RuleForm& form, std::size_t row, const RowLayout& layout) {
    const bool isText = layout.use == RowUse::kText;
    const bool isNumber = layout.use == RowUse::kNumber;
    form.rowLabels[row] = layout.label;
    form.texts[row].isShown = isText;
    form.texts[row].isEnabled = isText;
    if (row < form.choices.size()) {
        form.choices[row].isShown = layout.use != RowUse::kNone && !isText && !isNumber;
        form.numbers[row].isShown = isNumber;
    }
}

}  // namespace

std::optional<Operation> SelectedOperation(const RuleForm& form) {
    const int index = form.operation.index;
    if (index < 0 || static_cast<std::size_t>(index) >= kOperationLayouts.size()) {
        return std::nullopt;
    }
    return static_cast<Operation>(index);
}

std::wstring SelectedEntry(const ChoiceField& choice) {
    if (choice.index < 0 || static_cast<std::size_t>(choice.index) >= choice.entries.size()) {
        return {};
    }
    return choice.entries[static_cast<std::size_t>(choice.index)];
}

void ShowLayout(RuleForm& form, Operation operation) {
    const OperationLayout& layout = LayoutOf(operation);
    form.csProfileLabel = layout.usesCsProfile ? L"CS profile: " : L"";
    form.csProfile.isShown = layout.usesCsProfile;
    form.outputButton.isEnabled = layout.usesOutputFolder;
    form.outputFolder.isEnabled = layout.usesOutputFolder;
    ShowCert(form, layout.cert);
    for (std::size_t row = 0; row < kRowCount; ++row) {
        ShowRow(form, row, layout.rows[row]);
    }
    form.laidOutOperation = operation;
}

void FillArchivers(ChoiceField& choice, const OperationLayout& layout) {
    switch (ArchiverUse(layout)) {
        case RowUse::kArchiverOrNone:
            choice.entries = {kNoArchiver, kZip, kGzip};
            break;
        case RowUse::kArchiver:
            choice.entries = {kZip, kGzip};
            break;
        default:
            break;
    }
}

bool HoldsArchivers(const ChoiceField& choice) {
    return !choice.entries.empty() && choice.entries.back() == kGzip;
}

bool HoldsNoArchiver(const ChoiceField& choice) {
    return HoldsArchivers(choice) && choice.entries.front() == kNoArchiver;
}

void FillSignatureFormats(ChoiceField& choice) {
    choice.entries = {L"Attached signature", L"Detached signature"};
}

std::wstring CertLabel(Operation operation) {
    switch (LayoutOf(operation).cert) {
        case CertUse::kRecipients:
            return L"Recipients:";
        case CertUse::kSigners:
            return L"Signer lists:";
        case CertUse::kSecondOutputFolder:
            return L"Second output folder:";
        case CertUse::kExecutable:
            return L"Executable file:";
        case CertUse::kNone:
            break;
    }
    return L"Certificates:";
}

void ShowCertCount(RuleForm& form, Operation operation) {
    const CertUse use = LayoutOf(operation).cert;
    if (use == CertUse::kRecipients) {
        form.cert.text = std::to_wstring(form.recipients.size());
    } else if (use == CertUse::kSigners) {
        form.cert.text = std::to_wstring(form.result.signerGroups.size());
    }
}

bool IsNotSet(const std::wstring& text) {
    return text.empty() || text == store::kNotSetText;
}

std::optional<std::wstring> OnNumberTextChanged(NumberField& field, const std::wstring& text) {
    constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
    field.number = std::max(toolkit::ParseDecimal(text), 0);
    const bool isDigits =
        std::all_of(text.begin(), text.end(), [](wchar_t unit) { return unit >= L'0' && unit <= L'9'; });
    std::wstring shown = std::to_wstring(field.number);
    // The largest number may stand for one that is larger still; the field must not show what is not kept.
    const bool isTooLarge = field.number == kLargest && text != shown;
    return isDigits && !isTooLarge ? std::nullopt : std::optional(std::move(shown));
}

}  // namespace corvane::editors
