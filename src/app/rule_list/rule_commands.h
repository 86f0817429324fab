#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "store/records.h"

namespace corvane::app {

// What the rule commands do to the current profile.
//
// Rules are addressed by the position of their row in the list, -1 standing for no selection. Row i is
// taken as rule i of the profile even while the search hides rules; this is deliberate, the programs that
// drive this one rely on it. With no selection or no current profile nothing happens, not even to the dirty
// flag; every other call sets it, unless said otherwise. A row beyond the profile's rules is a fault of the
// caller and throws std::invalid_argument, with nothing changed.

/// The rule of a row, or null where there is no selection or no current profile. It is the state's own and
/// stays valid until the rules change.
[[nodiscard]] const store::Rule* RuleAtRow(const store::ConfigurationState& state, int row);

/// Puts the rule before all others. Returns the rule's new position, or none where nothing happened.
std::optional<std::size_t> MakeRuleFirst(store::ConfigurationState& state, int row);

/// Lets the rule change places with the one before it; the first stays. Returns the rule's new position, or
/// none where nothing happened.
std::optional<std::size_t> MoveRuleUp(store::ConfigurationState& state, int row);

/// Lets the rule change places with the one after it. On the last of the list's `rowCount` rows nothing
/// happens at all. Returns the rule's new position, or none where nothing happened.
std::optional<std::size_t> MoveRuleDown(store::ConfigurationState& state, int row, std::size_t rowCount);

/// Puts the rule after all others. Returns the rule's new position in the profile, or none where nothing
/// happened.
std::optional<std::size_t> MakeRuleLast(store::ConfigurationState& state, int row);

/// Inserts a copy of the rule right after it. Returns the copy's position, or none where nothing happened.
std::optional<std::size_t> CopyRule(store::ConfigurationState& state, int row);

/// Removes the rules of the given rows, which stand in ascending order without repeats (anything else
/// throws std::invalid_argument). Returns whether anything was removed.
bool DeleteRules(store::ConfigurationState& state, const std::vector<std::size_t>& ascendingRows);

/// Appends a rule to the current profile.
void AppendRule(store::ConfigurationState& state, store::Rule rule);

/// Puts an edited rule in the place of the row's rule.
void ReplaceRule(store::ConfigurationState& state, int row, store::Rule rule);

}  // namespace corvane::app
