#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/code_pages.h"
#include "fuzz/require.h"
#include "store/records.h"
#include "store/rules_file/rules_file.h"

// Any bytes may stand in a rules file. Whatever rules they give, writing and reading these gives them again,
// apart from the losses that the format is known for.

namespace corvane::fuzz {
namespace {

using fuzz::Require;

constexpr std::ptrdiff_t kFewestSeparators = 11;

bool BeginsWithCarriageReturn(const std::wstring& text) {
    return text.starts_with(L'\r');
}

// Whether a list with this first element is read back as what it is.
bool IsListKept(const store::TextList& list) {
    return list.empty() || (list != store::TextList{L"0"} && !BeginsWithCarriageReturn(list.front()));
}

// Whether the format promises that a rule that came from a file survives it unharmed. Known losses: "0" alone
// stands for an empty list, and a carriage return at the front of a field meets the line feed before it.
bool IsRuleKept(const store::Rule& rule) {
    const bool hasLostFormat = store::IsArchiveOperation(rule.operation) && rule.archiveFormat == 0;
    const bool areGroupsKept =
        rule.signerGroups.empty() || (rule.signerGroups != std::vector<store::SignerGroup>{{L"0", {}}} &&
                                      !BeginsWithCarriageReturn(rule.signerGroups.front().name));
    return !hasLostFormat && areGroupsKept && IsListKept(rule.masks) && IsListKept(rule.recipients);
}

void CheckRecords(const store::TextList& records, const std::vector<store::Rule>& rules) {
    std::size_t completeRecords = 0;
    for (const std::wstring& record : records) {
        const auto separators = std::count(record.begin(), record.end(), L'\n');
        Require(separators > 0, "a record that is kept has a line feed");
        Require(record.find(L'\0') == std::wstring::npos, "a zero byte ends the text");
        Require(record.find(L"\n\r") == std::wstring::npos,
                "a record ends at its first line feed and return");
        completeRecords += separators >= kFewestSeparators ? 1U : 0U;
    }
    Require(rules.size() == completeRecords, "every record of twelve fields gives a rule, no other does");
}

void CheckRule(const store::Rule& rule) {
    const auto isEmpty = [](const std::wstring& text) { return text.empty(); };
    Require(std::none_of(rule.masks.begin(), rule.masks.end(), isEmpty), "no mask is empty");
    Require(std::none_of(rule.recipients.begin(), rule.recipients.end(), isEmpty), "no recipient is empty");
    Require(std::find(rule.signerGroups.begin(), rule.signerGroups.end(), store::SignerGroup()) ==
                rule.signerGroups.end(),
            "no signer list is made of nothing");
    Require(rule.legacyMask.empty(), "no legacy mask comes from a file");
}

void CheckText(std::string_view bytes, const toolkit::SystemText& systemText) {
    const store::TextList records = store::SplitRecords(bytes, systemText);
    const std::vector<store::Rule> rules = store::ParseRecords(records);
    CheckRecords(records, rules);
    Require(store::ParseRulesFile(bytes, systemText) == rules, "both steps at once give the same");

    std::vector<store::Rule> keptRules;
    for (const store::Rule& rule : rules) {
        CheckRule(rule);
        if (IsRuleKept(rule)) {
            keptRules.push_back(rule);
        }
    }
    const std::string written = systemText.Narrow(store::FormatRulesFile(keptRules));
    Require(store::ParseRulesFile(written, systemText) == keptRules, "rules that were written are read back");
}

}  // namespace
}  // namespace corvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t sizeBytes) {
    const std::string bytes(data, data + sizeBytes);
    corvane::fuzz::CheckText(bytes, corvane::fuzz::SingleByteText());
    corvane::fuzz::CheckText(bytes, corvane::fuzz::DoubleByteText());
    return 0;
}
