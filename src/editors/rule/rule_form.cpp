#include "editors/rule/rule_form.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "toolkit/text/format_text.h"

namespace corvane::editors {

namespace {

constexpr wchar_t kNoCertificates[] = L"0";

void ShowRow(RuleForm& form, std::size_t row, const OptionRow& layout) {
    const bool isText = std::holds_alternative<TextOption>(layout.option);
    const bool isNumber = std::holds_alternative<NumberOption>(layout.option);
    const bool isEmpty = std::holds_alternative<std::monostate>(layout.option);
    form.rowLabels[row] = layout.label;
    form.texts[row].isShown = isText;
    form.texts[row].isEnabled = isText;
    if (row < form.choices.size()) {
        form.choices[row].isShown = !isEmpty && !isText && !isNumber;
        form.numbers[row].isShown = isNumber;
    }
}

/// Shows, enables and labels every field as the operation wants it. The values stay.
void ShowOperation(RuleForm& form, const OperationRow& operation) {
    form.csProfileLabel = operation.usesCsProfile ? L"CS profile: " : L"";
    form.csProfile.isShown = operation.usesCsProfile;
    form.outputButton.isEnabled = operation.usesOutputFolder;
    form.outputFolder.isEnabled = operation.usesOutputFolder;
    const CertField& cert = CertFieldOf(operation.cert);
    form.certButton.toolTip = cert.toolTip;
    form.certButton.icon = cert.icon;
    form.certButton.isEnabled = operation.cert != CertUse::kNone;
    form.cert.isReadOnly = cert.path == nullptr;
    for (std::size_t row = 0; row < kRowCount; ++row) {
        ShowRow(form, row, operation.rows[row]);
    }
    form.laidOutOperation = operation.operation;
}

/// The stored archive format that the first entry of an archiver choice stands for.
std::int32_t FirstArchiveFormat(const ArchiverOption& archiver) {
    return archiver.hasNo ? 0 : 1;
}

/// The entries of a choice; none for an option that is no choice.
store::TextList EntriesOf(const Option& option, const store::Profile& profile) {
    if (std::holds_alternative<SignatureFormatOption>(option)) {
        return {kSignatureFormatNames.begin(), kSignatureFormatNames.end()};
    }
    if (std::holds_alternative<CsProfileOption>(option)) {
        return profile.csProfiles;
    }
    if (const auto* const archiver = std::get_if<ArchiverOption>(&option)) {
        return {kArchiverNames.begin() + FirstArchiveFormat(*archiver), kArchiverNames.end()};
    }
    return {};
}

/// Fills the choices that the operation has. The indexes stay.
void FillChoices(RuleForm& form, const OperationRow& operation) {
    for (std::size_t row = 0; row < form.choices.size(); ++row) {
        store::TextList entries = EntriesOf(operation.rows[row].option, form.profile);
        if (!entries.empty()) {
            form.choices[row].entries = std::move(entries);
        }
    }
}

}  // namespace

std::optional<Operation> SelectedOperation(const RuleForm& form) {
    const int index = form.operation.index;
    if (index < 0 || static_cast<std::size_t>(index) >= kOperations.size()) {
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

std::wstring CertLabel(Operation operation) {
    return std::wstring(CertFieldOf(RowOf(operation).cert).label);
}

void ShowCertCount(RuleForm& form, Operation operation) {
    const CertUse use = RowOf(operation).cert;
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

// Opening.

namespace {

/// The index of the entry that equals `text`, or 0 where none does.
int IndexOf(const store::TextList& entries, const std::wstring& text) {
    const auto found = std::find(entries.begin(), entries.end(), text);
    return found == entries.end() ? 0 : static_cast<int>(found - entries.begin());
}

/// The index of a stored archive format in the choice; a format that the choice does not hold shows as its
/// first entry.
int ArchiverIndex(const ChoiceField& choice, std::int32_t first, std::int32_t archiveFormat) {
    // Compared before anything is taken away: a stored number can be the smallest there is.
    const auto last = first + static_cast<std::int32_t>(choice.entries.size()) - 1;
    return archiveFormat < first || archiveFormat > last ? 0 : archiveFormat - first;
}

/// The index of a stored signature format. Deliberate: only 1 counts as detached here, although the client
/// takes every number but 0 for it; users see such a rule as attached until they set it right.
int SignatureFormatIndex(std::int32_t isDetached) {
    return isDetached == 1 ? 1 : 0;
}

void LoadOption(RuleForm& form, std::size_t row, const Option& option, const store::Rule& rule) {
    std::visit(
        OptionVisitor{
            [](std::monostate /*none*/) {},
            [&](const TextOption& text) { form.texts[row].text = rule.*text.field; },
            [&](const NumberOption& number) { form.numbers[row].number = std::max(rule.*number.field, 0); },
            [&](const SignatureFormatOption& format) {
                form.choices[row].index = SignatureFormatIndex(rule.*format.field);
            },
            [&](const CsProfileOption& csProfile) {
                form.choices[row].index = IndexOf(form.choices[row].entries, rule.*csProfile.field);
            },
            [&](const ArchiverOption& archiver) {
                form.choices[row].index =
                    ArchiverIndex(form.choices[row], FirstArchiveFormat(archiver), rule.*archiver.field);
            },
        },
        option);
}

void LoadRule(RuleForm& form, const OperationRow& operation, const store::Rule& rule) {
    form.inputFolder.text = rule.inputFolder;
    if (operation.usesOutputFolder) {
        form.outputFolder.text = rule.outputFolder;
    }
    form.errorFolder.text = rule.errorFolder;
    form.description.text = rule.description;
    form.result.masks = rule.masks;
    if (operation.cert == CertUse::kRecipients) {
        form.recipients = rule.recipients;
    } else if (operation.cert == CertUse::kSigners) {
        form.result.signerGroups = rule.signerGroups;
    }
    ShowCertCount(form, operation.operation);
    if (const auto path = CertFieldOf(operation.cert).path) {
        form.cert.text = IsNotSet(rule.*path) ? std::wstring() : rule.*path;
    }
    for (std::size_t row = 0; row < kRowCount; ++row) {
        LoadOption(form, row, operation.rows[row].option, rule);
    }
    form.csProfile.index = IndexOf(form.csProfile.entries, rule.csProfile);
}

void SetUpButtons(RuleForm& form) {
    form.inputButton = {RuleIcon::kInputFolder, L"Input folder"};
    form.outputButton = {RuleIcon::kOutputFolder, L"Output folder"};
    form.errorButton = {RuleIcon::kErrorFolder, L"Error folder"};
    form.addMaskButton = {RuleIcon::kAddMask, L"Add"};
    form.editMaskButton = {RuleIcon::kEditMask, L"Edit"};
    form.deleteMaskButton = {RuleIcon::kDeleteMask, L"Delete"};
}

void FillLists(RuleForm& form, const OperationRow& operation) {
    for (const OperationRow& entry : kOperations) {
        form.operation.entries.emplace_back(entry.name);
    }
    form.csProfile.entries = form.profile.csProfiles;
    // What resigning chooses from stands in the hidden choices from the beginning.
    FillChoices(form, RowOf(Operation::kResign));
    FillChoices(form, operation);
}

}  // namespace

RuleForm OpenRule(const store::Profile& profile, const store::Rule& rule, AcceptedCsProfile& accepted) {
    RuleForm form;
    form.isNew = rule.operation.empty();
    form.profile = profile;
    form.title = form.isNew ? L"Add rule" : L"Edit rule";
    form.exitText = L"Exit";
    form.descriptionLabel = L"Descrip\ntion";
    form.cert.text = kNoCertificates;
    SetUpButtons(form);

    const OperationRow* const known = FindOperation(rule.operation);
    // A text that is no code opens as the first operation.
    const OperationRow& operation = known == nullptr ? kOperations.front() : *known;
    form.operation.index = static_cast<int>(operation.operation);
    FillLists(form, operation);
    ShowOperation(form, operation);
    if (!form.isNew) {
        LoadRule(form, operation, rule);
        // Deliberate: a new rule does not set it. There it is still that of the last rule that was opened,
        // so users are asked about a new rule's certificates only when they go beyond that one.
        accepted.index = form.csProfile.index;
    }
    form.settledCsProfile = form.csProfile.index;
    return form;
}

// Changing the operation.

namespace {

/// Deliberate: executing counts as verifying when certificates are dropped, so signer lists outlive it. Users
/// who come back from it to a verifying operation find them again.
CertUse LastingUse(CertUse use) {
    return use == CertUse::kExecutable ? CertUse::kSigners : use;
}

void DropCertificates(RuleForm& form, CertUse previous, CertUse next) {
    const CertUse left = LastingUse(previous);
    if (left != CertUse::kNone && left != LastingUse(next)) {
        form.cert.text = kNoCertificates;
        form.recipients.clear();
        if (left == CertUse::kSigners) {
            form.result.signerGroups.clear();
        }
    }
    const auto path = CertFieldOf(next).path;
    if (path != nullptr && path != CertFieldOf(previous).path) {
        form.cert.text.clear();
    }
}

/// Deliberate: the text of the last row stays, unseen, until an operation is entered that has one of its own
/// there; those of the other rows go as soon as an operation comes without them.
bool EmptiesText(std::size_t row, const Option& previous, const Option& next) {
    const bool hadText = std::holds_alternative<TextOption>(previous);
    const bool hasText = std::holds_alternative<TextOption>(next);
    if (row == kRowCount - 1) {
        return hasText && next != previous;
    }
    return !hasText || (hadText && next != previous);
}

/// Refills the archiver choice for the next operation so that the chosen archiver survives. What counts is
/// what the choice holds, not where the user comes from: between two archiving operations there may have
/// been one without the row. Signature formats are no archivers, so their index is left as it is.
void CarryArchiver(ChoiceField& choice, const ArchiverOption& next, const store::Profile& profile) {
    const ArchiverOption other{next.field, !next.hasNo};
    const bool heldOther = choice.entries == EntriesOf(other, profile);
    // Entries and index change together, so that a change that fails for lack of memory can be made good.
    choice.entries = EntriesOf(next, profile);
    if (heldOther) {
        const int last = static_cast<int>(choice.entries.size()) - 1;
        choice.index = next.hasNo ? std::min(choice.index + 1, last) : std::max(choice.index - 1, 0);
    }
}

void ChangeOption(RuleForm& form, std::size_t row, const Option& previous, const Option& next) {
    if (EmptiesText(row, previous, next)) {
        form.texts[row].text.clear();
    }
    if (const auto* const archiver = std::get_if<ArchiverOption>(&next)) {
        CarryArchiver(form.choices[row], *archiver, form.profile);
    } else if (next != previous && std::holds_alternative<NumberOption>(next)) {
        form.numbers[row].number = 0;
    } else if (next != previous && std::holds_alternative<SignatureFormatOption>(next)) {
        form.choices[row].entries = EntriesOf(next, form.profile);
        form.choices[row].index = 0;
    } else if (next != previous && std::holds_alternative<CsProfileOption>(next)) {
        // The CS profile that was chosen outlives operations without the choice.
        form.choices[row].entries = EntriesOf(next, form.profile);
    }
}

/// Deliberate: on the way from a choice of archivers, moving resets the archiver. From one with "No", moving
/// and whatever has no "No" reset the choice in the first row as well, which neither of them shows. After any
/// other operation users find both again.
void ResetChoicesLeft(RuleForm& form, const OperationRow& previous, const OperationRow& next) {
    const bool isMove = next.operation == Operation::kMove;
    const bool needsArchiver = std::any_of(next.rows.begin(), next.rows.end(), [](const OptionRow& row) {
        const auto* const archiver = std::get_if<ArchiverOption>(&row.option);
        return archiver != nullptr && !archiver->hasNo;
    });
    for (std::size_t row = 0; row < form.choices.size(); ++row) {
        const auto* const left = std::get_if<ArchiverOption>(&previous.rows[row].option);
        if (left == nullptr) {
            continue;
        }
        if (left->hasNo && (isMove || needsArchiver)) {
            form.choices.front().index = 0;
        }
        if (isMove) {
            form.choices[row].index = 0;
        }
    }
}

}  // namespace

void ChangeOperation(RuleForm& form) {
    const std::optional<Operation> selected = SelectedOperation(form);
    if (!selected) {
        return;
    }
    const OperationRow& previous = RowOf(form.laidOutOperation);
    const OperationRow& next = RowOf(*selected);
    DropCertificates(form, previous.cert, next.cert);
    if (!previous.usesOutputFolder || !next.usesOutputFolder) {
        form.outputFolder.text.clear();
    }
    for (std::size_t row = 0; row < kRowCount; ++row) {
        ChangeOption(form, row, previous.rows[row].option, next.rows[row].option);
    }
    ResetChoicesLeft(form, previous, next);
    ShowCertCount(form, *selected);
    ShowOperation(form, next);
}

// Committing.

namespace {

void CommitOption(const RuleForm& form, std::size_t row, const Option& option, store::Rule& rule) {
    std::visit(OptionVisitor{
                   [](std::monostate /*none*/) {},
                   [&](const TextOption& text) { rule.*text.field = form.texts[row].text; },
                   [&](const NumberOption& number) { rule.*number.field = form.numbers[row].number; },
                   [&](const SignatureFormatOption& format) { rule.*format.field = form.choices[row].index; },
                   [&](const CsProfileOption& csProfile) {
                       rule.*csProfile.field = SelectedEntry(form.choices[row]);
                   },
                   [&](const ArchiverOption& archiver) {
                       rule.*archiver.field =
                           std::max(form.choices[row].index, 0) + FirstArchiveFormat(archiver);
                   },
               },
               option);
}

}  // namespace

store::Rule CommitRule(const RuleForm& form) {
    store::Rule rule;
    const std::optional<Operation> selected = SelectedOperation(form);
    if (!selected) {
        return rule;
    }
    const OperationRow& operation = RowOf(*selected);
    rule.operation = operation.code;
    rule.inputFolder = form.inputFolder.text;
    rule.errorFolder = form.errorFolder.text;
    rule.description = form.description.text;
    rule.masks = form.result.masks;
    rule.isOn = 1;
    if (operation.usesOutputFolder) {
        rule.outputFolder = form.outputFolder.text;
    }
    if (operation.usesCsProfile) {
        rule.csProfile = SelectedEntry(form.csProfile);
    }
    if (operation.cert == CertUse::kRecipients) {
        rule.recipients = form.recipients;
    } else if (operation.cert == CertUse::kSigners) {
        rule.signerGroups = form.result.signerGroups;
    }
    if (const auto path = CertFieldOf(operation.cert).path) {
        rule.*path = form.cert.text;
    }
    for (std::size_t row = 0; row < kRowCount; ++row) {
        CommitOption(form, row, operation.rows[row].option, rule);
    }
    return rule;
}

}  // namespace corvane::editors
