#include "app/rule_list/rule_commands.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <stdexcept>
#include <utility>

namespace corvane::app {

namespace {

using RuleIterator = std::vector<store::Rule>::iterator;

void RequireRule(const std::vector<store::Rule>& rules, std::size_t position) {
    if (position >= rules.size()) {
        throw std::invalid_argument("The current profile has no rule for this row.");
    }
}

/// The rules of the current profile, or null without one.
template <typename State>
auto CurrentRules(State& state) -> decltype(&state.profiles.front().rules) {
    if (state.currentProfileName.empty()) {
        return nullptr;
    }
    auto* const profile = store::FindCurrentProfile(state);
    return profile == nullptr ? nullptr : &profile->rules;
}

/// The rules of the current profile, where the row names one of them; null where nothing is to happen.
template <typename State>
auto RulesForRow(State& state, int row) -> decltype(CurrentRules(state)) {
    auto* const rules = CurrentRules(state);
    if (rules == nullptr || row < 0) {
        return nullptr;
    }
    RequireRule(*rules, static_cast<std::size_t>(row));
    return rules;
}

RuleIterator At(std::vector<store::Rule>& rules, std::size_t position) {
    return rules.begin() + static_cast<std::ptrdiff_t>(position);
}

}  // namespace

const store::Rule* RuleAtRow(const store::ConfigurationState& state, int row) {
    const std::vector<store::Rule>* const rules = RulesForRow(state, row);
    return rules == nullptr ? nullptr : &(*rules)[static_cast<std::size_t>(row)];
}

std::optional<std::size_t> MakeRuleFirst(store::ConfigurationState& state, int row) {
    std::vector<store::Rule>* const rules = RulesForRow(state, row);
    if (rules == nullptr) {
        return std::nullopt;
    }
    const RuleIterator rule = At(*rules, static_cast<std::size_t>(row));
    std::rotate(rules->begin(), rule, std::next(rule));
    state.isDirty = true;
    return 0;
}

std::optional<std::size_t> MoveRuleUp(store::ConfigurationState& state, int row) {
    std::vector<store::Rule>* const rules = RulesForRow(state, row);
    if (rules == nullptr) {
        return std::nullopt;
    }
    state.isDirty = true;
    if (row == 0) {
        return 0;
    }
    const auto position = static_cast<std::size_t>(row);
    std::swap((*rules)[position], (*rules)[position - 1]);
    return position - 1;
}

std::optional<std::size_t> MoveRuleDown(store::ConfigurationState& state, int row, std::size_t rowCount) {
    std::vector<store::Rule>* const rules = RulesForRow(state, row);
    if (rules == nullptr) {
        return std::nullopt;
    }
    const auto position = static_cast<std::size_t>(row);
    if (position + 1 >= rowCount) {
        return std::nullopt;
    }
    RequireRule(*rules, position + 1);
    std::swap((*rules)[position], (*rules)[position + 1]);
    state.isDirty = true;
    return position + 1;
}

std::optional<std::size_t> MakeRuleLast(store::ConfigurationState& state, int row) {
    std::vector<store::Rule>* const rules = RulesForRow(state, row);
    if (rules == nullptr) {
        return std::nullopt;
    }
    const RuleIterator rule = At(*rules, static_cast<std::size_t>(row));
    std::rotate(rule, std::next(rule), rules->end());
    state.isDirty = true;
    return rules->size() - 1;
}

std::optional<std::size_t> CopyRule(store::ConfigurationState& state, int row) {
    std::vector<store::Rule>* const rules = RulesForRow(state, row);
    if (rules == nullptr) {
        return std::nullopt;
    }
    const std::size_t copyPosition = static_cast<std::size_t>(row) + 1;
    store::Rule copy = (*rules)[static_cast<std::size_t>(row)];
    rules->insert(At(*rules, copyPosition), std::move(copy));
    state.isDirty = true;
    return copyPosition;
}

bool DeleteRules(store::ConfigurationState& state, const std::vector<std::size_t>& ascendingRows) {
    std::vector<store::Rule>* const rules = CurrentRules(state);
    if (rules == nullptr || ascendingRows.empty()) {
        return false;
    }
    if (std::adjacent_find(ascendingRows.begin(), ascendingRows.end(), std::greater_equal<>()) !=
        ascendingRows.end()) {
        throw std::invalid_argument("The rows to delete are not in ascending order.");
    }
    RequireRule(*rules, ascendingRows.back());
    // One pass that closes up over the gaps: erasing rule by rule would move the rest once for each.
    auto nextRow = ascendingRows.begin();
    RuleIterator kept = At(*rules, *nextRow);
    for (std::size_t position = *nextRow; position < rules->size(); ++position) {
        if (nextRow != ascendingRows.end() && *nextRow == position) {
            ++nextRow;
        } else {
            *kept = std::move((*rules)[position]);
            ++kept;
        }
    }
    rules->erase(kept, rules->end());
    state.isDirty = true;
    return true;
}

void AppendRule(store::ConfigurationState& state, store::Rule rule) {
    std::vector<store::Rule>* const rules = CurrentRules(state);
    if (rules != nullptr) {
        rules->push_back(std::move(rule));
        state.isDirty = true;
    }
}

void ReplaceRule(store::ConfigurationState& state, int row, store::Rule rule) {
    std::vector<store::Rule>* const rules = RulesForRow(state, row);
    if (rules != nullptr) {
        (*rules)[static_cast<std::size_t>(row)] = std::move(rule);
        state.isDirty = true;
    }
}

}  // namespace corvane::app
