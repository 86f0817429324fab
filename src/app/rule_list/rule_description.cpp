#include "app/rule_list/rule_description.h"

#include <string_view>
#include <variant>

#include "editors/rule/operation_table.h"
#include "toolkit/text/format_text.h"

namespace corvane::app {

namespace {

const wchar_t* SignatureFormatText(std::int32_t isDetached) {
    return editors::kSignatureFormatNames[isDetached != 0 ? 1 : 0];
}

}  // namespace

std::wstring SignatureFormatsText(const store::Rule& rule) {
    std::wstring text = SignatureFormatText(rule.inputDetached);
    text += L"->";
    text += SignatureFormatText(rule.outputDetached);
    return text;
}

std::wstring ArchiveFormatText(const store::Rule& rule) {
    const auto format = static_cast<std::size_t>(rule.archiveFormat);
    return rule.archiveFormat > 0 && format < editors::kArchiverNames.size() ? editors::kArchiverNames[format]
                                                                             : std::wstring();
}

namespace {

constexpr wchar_t kLineBreak[] = L"\r\n";
constexpr wchar_t kBlankLine[] = L"\r\n\r\n";

std::wstring ResignItem(const store::Rule& rule) {
    if (rule.resignProfile.empty()) {
        return {};
    }
    return L"Resign to CS profile: " + rule.resignProfile + kLineBreak + SignatureFormatsText(rule) +
           kBlankLine;
}

/// A certificate owner under its kind and its number, which counts from 1.
std::wstring OwnerLines(const wchar_t* kind, std::size_t number, const std::wstring& owner) {
    return kind + toolkit::FormatText(L" %d:", {static_cast<std::int64_t>(number)}) + kLineBreak + owner;
}

std::wstring RecipientItems(const store::Rule& rule) {
    std::wstring text;
    std::size_t number = 0;
    for (const std::wstring& recipient : rule.recipients) {
        text += OwnerLines(L"Recipient", ++number, recipient) + kBlankLine;
    }
    return text;
}

std::wstring SignerGroupItems(const store::Rule& rule) {
    std::wstring text;
    for (const store::SignerGroup& group : rule.signerGroups) {
        text += L"List name: " + group.name;
        std::size_t number = 0;
        for (const std::wstring& signer : group.signers) {
            text += kLineBreak + OwnerLines(L"Signer", ++number, signer);
        }
        text += kBlankLine;
    }
    return text;
}

std::wstring ArchiveFormatItem(const store::Rule& rule) {
    return rule.archiveFormat == 0 ? std::wstring() : ArchiveFormatText(rule) + kBlankLine;
}

std::wstring TextItem(std::wstring_view label, const std::wstring& value) {
    return value.empty() ? std::wstring() : std::wstring(label) + L" " + value + kBlankLine;
}

std::wstring NumberItemUnlessZero(std::wstring_view label, std::int32_t number) {
    return number == 0 ? std::wstring() : TextItem(label, std::to_wstring(number));
}

std::wstring OptionItems(const store::Rule& rule, const editors::OperationRow& operation) {
    std::wstring items;
    for (const editors::OptionRow& row : operation.rows) {
        if (const auto* const text = std::get_if<editors::TextOption>(&row.option)) {
            items += TextItem(row.label, rule.*text->field);
        } else if (const auto* const number = std::get_if<editors::NumberOption>(&row.option)) {
            items += NumberItemUnlessZero(row.label, rule.*number->field);
        }
    }
    return items;
}

/// Deliberate: the timeout is shown only above zero and only with a program.
std::wstring ExecutionItems(const store::Rule& rule, const editors::OperationRow& operation) {
    std::wstring text = TextItem(editors::CertFieldOf(operation.cert).label, rule.executable);
    if (!text.empty() && rule.executionTimeout > 0) {
        text += OptionItems(rule, operation);
    }
    return text;
}

}  // namespace

std::wstring DescribeRule(const store::Rule& rule) {
    std::wstring text;
    if (rule.secondOutput.empty()) {
        text = ResignItem(rule) + RecipientItems(rule) + SignerGroupItems(rule) + ArchiveFormatItem(rule);
    } else {
        // Deliberate: a second output folder takes the place of all items before it, and a blank stands
        // before its colon. Users know the description of moving rules so.
        text = L"Second Output folder : " + rule.secondOutput + kBlankLine;
    }
    // What another operation left in the rule is described too.
    for (const editors::OperationRow& operation : editors::kOperations) {
        text += operation.operation == editors::Operation::kExecute ? ExecutionItems(rule, operation)
                                                                    : OptionItems(rule, operation);
    }
    return text;
}

std::wstring DescribeMasks(const store::Rule& rule) {
    std::wstring text;
    for (const std::wstring& mask : rule.masks) {
        text += kLineBreak + mask;
    }
    return text;
}

std::optional<std::size_t> RulePositionFromNumberCell(const std::wstring& numberCell, std::size_t ruleCount) {
    const std::int32_t number = toolkit::ParseDecimal(numberCell);
    if (number < 1) {
        return std::nullopt;
    }
    const std::size_t position = static_cast<std::size_t>(number) - 1;
    return position < ruleCount ? std::optional(position) : std::nullopt;
}

}  // namespace corvane::app
