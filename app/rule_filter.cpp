#include "app/rule_filter.h"

namespace corvane {

namespace {

/// `wanted` is in upper case already.
bool Contains(const std::wstring& description, const std::wstring& wanted, const toolkit::SystemText& text) {
    // Upper-casing keeps the length, so a shorter description need not be upper-cased to be ruled out.
    return description.size() >= wanted.size() &&
           text.UpperCase(description).find(wanted) != std::wstring::npos;
}

}  // namespace

std::vector<std::size_t> ListedRules(const std::vector<Rule>& rules, const std::wstring& searchText,
                                     const toolkit::SystemText& text) {
    std::vector<std::size_t> listed;
    listed.reserve(rules.size());
    const std::wstring wanted = searchText.empty() ? std::wstring() : text.UpperCase(searchText);
    for (std::size_t position = 0; position < rules.size(); ++position) {
        const Rule& rule = rules[position];
        if (!rule.operation.empty() && (wanted.empty() || Contains(rule.description, wanted, text))) {
            listed.push_back(position);
        }
    }
    return listed;
}

}  // namespace corvane
