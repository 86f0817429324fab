#include "app/rule_list/rule_row.h"

#include <algorithm>
#include <initializer_list>
#include <stdexcept>

#include "app/rule_list/rule_description.h"
#include "store/records.h"
#include "toolkit/text/format_text.h"

namespace corvane::app {

namespace {

constexpr wchar_t kPartSeparator[] = L"; ";

/// Appends a part, with the separator before it unless it is the first one.
void AppendPart(std::wstring& text, const std::wstring& part) {
    if (!text.empty()) {
        text += kPartSeparator;
    }
    text += part;
}

std::wstring MovePartsText(const store::Rule& rule) {
    std::wstring text;
    for (const std::wstring* part :
         {&rule.secondOutput, &rule.deleteExtension, &rule.addExtension, &rule.folders, &rule.copyFolders}) {
        if (!part->empty()) {
            AppendPart(text, *part);
        }
    }
    return text;
}

std::wstring ResignPartsText(const store::Rule& rule) {
    std::wstring text;
    if (!rule.signerGroups.empty()) {
        text += std::to_wstring(rule.signerGroups.size());
        text += kPartSeparator;
    }
    text += rule.resignProfile;
    text += kPartSeparator;
    text += SignatureFormatsText(rule);
    return text;
}

void AppendArchiveFormat(std::wstring& text, const store::Rule& rule) {
    if (rule.archiveFormat == 0) {
        return;
    }
    // Deliberate: the separator also stands where recipients or signer lists exist whose number this
    // operation does not show; users read such rows so.
    if (!rule.recipients.empty() || !rule.signerGroups.empty()) {
        text += kPartSeparator;
    }
    text += ArchiveFormatText(rule);
}

void AppendPackParts(std::wstring& text, const store::Rule& rule) {
    for (const std::int32_t number : {rule.archiveFileCount, rule.archiveSize, rule.archiveTimeout}) {
        if (number > 0) {
            AppendPart(text, std::to_wstring(number));
        }
    }
    if (!rule.archiveName.empty()) {
        AppendPart(text, rule.archiveName);
    }
}

void AppendExecutionParts(std::wstring& text, const store::Rule& rule) {
    AppendPart(text, rule.executable);
    if (rule.executionTimeout > 0) {
        text += kPartSeparator;
        text += std::to_wstring(rule.executionTimeout);
    }
}

std::wstring OperationText(const store::Rule& rule) {
    // Deliberate: an output folder that is not set blanks the operation, not the folder. Users know such
    // rules by it.
    if (rule.outputFolder == store::kNotSetText) {
        return {};
    }
    return std::wstring(store::OperationDisplayName(rule.operation));
}

std::wstring ErrorFolderText(const store::Rule& rule) {
    // Deliberate: a CS profile that is not set blanks the error folder, not the profile. Users know such
    // rules by it.
    return rule.csProfile == store::kNotSetText ? std::wstring() : rule.errorFolder;
}

std::wstring MasksText(const store::Rule& rule) {
    return rule.masks.size() == 1 ? rule.masks.front() : std::to_wstring(rule.masks.size());
}

}  // namespace

std::wstring RuleCellText(const store::Rule& rule, std::size_t position, std::size_t column) {
    switch (column) {
        case kNumberColumn:
            return std::to_wstring(position + 1);
        case kDescriptionColumn:
            return rule.description;
        case kOperationColumn:
            return OperationText(rule);
        case kInputFolderColumn:
            return rule.inputFolder;
        case kOutputFolderColumn:
            return rule.outputFolder;
        case kErrorFolderColumn:
            return ErrorFolderText(rule);
        case kMasksColumn:
            return MasksText(rule);
        case kCsProfileColumn:
            return rule.csProfile;
        case kExtraColumn:
            return ExtraText(rule);
        default:
            throw std::invalid_argument("The rule list has no such column.");
    }
}

std::wstring ExtraText(const store::Rule& rule) {
    if (rule.operation == L"MOVE") {
        return MovePartsText(rule);
    }
    if (rule.operation == L"RESG") {
        return ResignPartsText(rule);
    }
    const std::size_t certificateCount =
        rule.operation == L"DCCX" ? rule.recipients.size() : rule.signerGroups.size();
    std::wstring text = certificateCount != 0 ? std::to_wstring(certificateCount) : std::wstring();
    AppendArchiveFormat(text, rule);
    if (rule.operation == L"PACK") {
        AppendPackParts(text, rule);
    } else if (rule.operation == L"EXEC") {
        AppendExecutionParts(text, rule);
    }
    return text;
}

store::TextList RuleColumnInsertionOrder() {
    return {L"Extra", L"CS profile",  L"Masks", L"Error folder", L"Output folder", L"Input folder",
            L"Rules", L"Description", L""};
}

std::wstring ColumnTitle(const store::TextList& columnNames, std::size_t column) {
    if (column >= kRuleColumnCount || columnNames.size() != kRuleColumnCount) {
        throw std::invalid_argument("The rule list has no such column.");
    }
    return columnNames[kRuleColumnCount - 1 - column];
}

RuleColumnWidths LayOutRuleColumns(int listClientWidth, int scrollBarWidth, bool isFirstTime) {
    constexpr int kOtherColumns = static_cast<int>(kRuleColumnCount) - 1;
    const int width = isFirstTime ? listClientWidth - scrollBarWidth : listClientWidth;
    const int numberWidth = 3 * scrollBarWidth;
    // A list narrower than the number column has no room for the others; a negative width would not hide
    // them, but ask the list to fit them to their texts.
    return {.number = numberWidth, .other = std::max(0, (width - numberWidth) / kOtherColumns)};
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
