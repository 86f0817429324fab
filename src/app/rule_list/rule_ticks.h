#pragma once

#include <cstddef>
#include <functional>

#include "store/records.h"

namespace corvane::app {

/// Copies the check boxes of the rule list back into the rules of the current profile, when the list has
/// lost the keyboard focus, and sets the dirty flag where that changes a rule.
///
/// `checkState` gives the list's answer for a row: its state image index minus 1, that is 0 for an empty
/// box, 1 for a checked one, -1 for a row that the list does not have. Row i is taken as rule i of the
/// profile; a rule without an operation is left alone.
void SyncCheckBoxes(store::ConfigurationState& state, const std::function<int(std::size_t row)>& checkState);

/// Takes what the user has ticked into the rules of the profile at `profilePosition`, before a command works
/// on them, and sets the dirty flag where that changes a rule. Only for a list that shows every rule of the
/// profile at its row; `checkState` is as above. A rule whose box shows what it is stays as it is, to the
/// last bit. A position that there is not throws std::out_of_range.
void TakeTicks(store::ConfigurationState& state, std::size_t profilePosition,
               const std::function<int(std::size_t row)>& checkState);

}  // namespace corvane::app
