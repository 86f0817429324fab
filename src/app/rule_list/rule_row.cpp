#include "app/rule_list/rule_row.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>
#include <variant>

#include "app/rule_list/rule_description.h"
#include "editors/rule/operation_table.h"
#include "store/records.h"

namespace corvane::app {

namespace {

constexpr wchar_t kPartSeparator[] = L"; ";

std::wstring Joined(const store::TextList& parts) {
    std::wstring text;
    for (const std::wstring& part : parts) {
        text += (&part == &parts.front() ? L"" : kPartSeparator) + part;
    }
    return text;
}

void AddUnlessEmpty(store::TextList& parts, std::wstring part) {
    if (!part.empty()) {
        parts.push_back(std::move(part));
    }
}

std::wstring CountText(std::size_t count) {
    return count == 0 ? std::wstring() : std::to_wstring(count);
}

/// Deliberate: the archive format is shown whatever the operation, and its separator also stands where
/// recipients or signer lists exist whose number this operation does not show; users read such rows so.
std::wstring CertificatesAndArchiveFormat(const store::Rule& rule, const editors::OperationRow* operation) {
    const bool countsRecipients =
        operation != nullptr && operation->operation == editors::Operation::kDecryptAndVerify;
    std::wstring text = CountText(countsRecipients ? rule.recipients.size() : rule.signerGroups.size());
    if (rule.archiveFormat != 0) {
        if (!rule.recipients.empty() || !rule.signerGroups.empty()) {
            text += kPartSeparator;
        }
        text += ArchiveFormatText(rule);
    }
    return text;
}

/// What of a rule stands in the certificate field as a path. Deliberate: of an executing rule it stands there
/// even if it is empty.
void AddPath(store::TextList& parts, const store::Rule& rule, editors::CertUse use) {
    if (const auto path = editors::CertFieldOf(use).path) {
        if (use == editors::CertUse::kExecutable || !(rule.*path).empty()) {
            parts.push_back(rule.*path);
        }
    }
}

void AddOption(store::TextList& parts, const store::Rule& rule, const editors::Option& option) {
    if (const auto* const text = std::get_if<editors::TextOption>(&option)) {
        AddUnlessEmpty(parts, rule.*text->field);
    } else if (const auto* const number = std::get_if<editors::NumberOption>(&option)) {
        if (rule.*number->field > 0) {
            parts.push_back(std::to_wstring(rule.*number->field));
        }
    }
}

/// Resigning shows what it does, not what else the rule carries; its profile comes before the formats.
std::wstring ResignText(const store::Rule& rule) {
    store::TextList parts;
    AddUnlessEmpty(parts, CountText(rule.signerGroups.size()));
    parts.push_back(rule.resignProfile);
    parts.push_back(SignatureFormatsText(rule));
    return Joined(parts);
}

std::wstring NumberText(const store::Rule& /*rule*/, std::size_t position) {
    return std::to_wstring(position + 1);
}

/// The text of a field of the rule as it is.
template <store::FieldOf<store::Rule, std::wstring> field>
std::wstring FieldText(const store::Rule& rule, std::size_t /*position*/) {
    return rule.*field;
}

std::wstring OperationText(const store::Rule& rule, std::size_t /*position*/) {
    // Deliberate: an output folder that is not set blanks the operation, not the folder. Users know such
    // rules by it.
    if (rule.outputFolder == store::kNotSetText) {
        return {};
    }
    return std::wstring(editors::OperationDisplayName(rule.operation));
}

std::wstring ErrorFolderText(const store::Rule& rule, std::size_t /*position*/) {
    // Deliberate: a CS profile that is not set blanks the error folder, not the profile. Users know such
    // rules by it.
    return rule.csProfile == store::kNotSetText ? std::wstring() : rule.errorFolder;
}

std::wstring MasksText(const store::Rule& rule, std::size_t /*position*/) {
    return rule.masks.size() == 1 ? rule.masks.front() : std::to_wstring(rule.masks.size());
}

std::wstring ExtraCellText(const store::Rule& rule, std::size_t /*position*/) {
    return ExtraText(rule);
}

constexpr std::array kColumns{
    RuleColumn{L"", NumberText, 3},
    RuleColumn{L"Description", FieldText<&store::Rule::description>},
    RuleColumn{L"Rules", OperationText},
    RuleColumn{L"Input folder", FieldText<&store::Rule::inputFolder>},
    RuleColumn{L"Output folder", FieldText<&store::Rule::outputFolder>},
    RuleColumn{L"Error folder", ErrorFolderText},
    RuleColumn{L"Masks", MasksText, 0, CellDetail::kMasks},
    RuleColumn{L"CS profile", FieldText<&store::Rule::csProfile>},
    RuleColumn{L"Extra", ExtraCellText, 0, CellDetail::kDescription},
};
static_assert(kColumns[kNumberColumn].text == &NumberText);

constexpr auto kSharingColumns = static_cast<int>(std::count_if(
    kColumns.begin(), kColumns.end(), [](const RuleColumn& column) { return column.scrollBarWidths == 0; }));
static_assert(kSharingColumns > 0);

}  // namespace

std::span<const RuleColumn> RuleColumns() {
    return kColumns;
}

const RuleColumn& RuleColumnAt(std::size_t column) {
    if (column >= kColumns.size()) {
        throw std::invalid_argument("The rule list has no such column.");
    }
    return kColumns[column];
}

std::wstring ExtraText(const store::Rule& rule) {
    const editors::OperationRow* const operation = editors::FindOperation(rule.operation);
    if (operation == nullptr) {
        return CertificatesAndArchiveFormat(rule, operation);
    }
    if (operation->operation == editors::Operation::kResign) {
        return ResignText(rule);
    }
    store::TextList parts;
    // Deliberate: a moving rule shows nothing of what it carries from another operation.
    if (operation->operation != editors::Operation::kMove) {
        AddUnlessEmpty(parts, CertificatesAndArchiveFormat(rule, operation));
    }
    AddPath(parts, rule, operation->cert);
    for (const editors::OptionRow& row : operation->rows) {
        AddOption(parts, rule, row.option);
    }
    return Joined(parts);
}

std::vector<int> RuleColumnWidths(int listClientWidth, int scrollBarWidth, bool isFirstTime) {
    int shared = isFirstTime ? listClientWidth - scrollBarWidth : listClientWidth;
    for (const RuleColumn& column : kColumns) {
        shared -= column.scrollBarWidths * scrollBarWidth;
    }
    // A list narrower than the number column has no room for the others; a negative width would not hide
    // them, but ask the list to fit them to their texts.
    const int share = std::max(0, shared / kSharingColumns);
    std::vector<int> widths(kColumns.size());
    std::transform(kColumns.begin(), kColumns.end(), widths.begin(),
                   [share, scrollBarWidth](const RuleColumn& column) {
                       return column.scrollBarWidths == 0 ? share : column.scrollBarWidths * scrollBarWidth;
                   });
    return widths;
}

int LayOutProfileColumn(int listClientWidth, int scrollBarWidth, bool isFirstTime) {
    return std::max(0, isFirstTime ? listClientWidth - scrollBarWidth : listClientWidth);
}

namespace {

/// `wanted` is in upper case already.
bool Contains(const std::wstring& description, const std::wstring& wanted, const toolkit::SystemText& text) {
    // Upper-casing keeps the length, so a shorter description need not be upper-cased to be ruled out.
    return description.size() >= wanted.size() &&
           text.UpperCase(description).find(wanted) != std::wstring::npos;
}

}  // namespace

std::vector<std::size_t> ListedRules(const std::vector<store::Rule>& rules, const std::wstring& searchText,
                                     const toolkit::SystemText& text) {
    std::vector<std::size_t> listed;
    listed.reserve(rules.size());
    const std::wstring wanted = searchText.empty() ? std::wstring() : text.UpperCase(searchText);
    for (std::size_t position = 0; position < rules.size(); ++position) {
        const store::Rule& rule = rules[position];
        if (!rule.operation.empty() && (wanted.empty() || Contains(rule.description, wanted, text))) {
            listed.push_back(position);
        }
    }
    return listed;
}

}  // namespace corvane::app
