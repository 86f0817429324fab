#pragma once

#include <cstddef>

#include "store/records.h"

namespace corvane::app {

/// The check boxes of a list, read.
class CheckBoxes {
  public:
    virtual ~CheckBoxes() = default;

    /// The list's answer for a row: its state image index minus 1, that is 0 for an empty box, 1 for a
    /// checked one, -1 for a row that the list does not have.
    [[nodiscard]] virtual int CheckState(std::size_t row) const = 0;

  protected:
    CheckBoxes() = default;
    CheckBoxes(const CheckBoxes&) = default;
    CheckBoxes& operator=(const CheckBoxes&) = default;
    CheckBoxes(CheckBoxes&&) = default;
    CheckBoxes& operator=(CheckBoxes&&) = default;
};

/// Copies the check boxes of the rule list back into the rules of the current profile, when the list has
/// lost the keyboard focus, and sets the dirty flag where that changes a rule.
///
/// Row i is taken as rule i of the profile; a rule without an operation is left alone.
void SyncCheckBoxes(store::ConfigurationState& state, const CheckBoxes& boxes);

/// Takes what the user has ticked into the rules of the profile at `profilePosition`, before a command works
/// on them, and sets the dirty flag where that changes a rule. Only for a list that shows every rule of the
/// profile at its row. A rule whose box shows what it is stays as it is, to the
/// last bit. A position that there is not throws std::out_of_range.
void TakeTicks(store::ConfigurationState& state, std::size_t profilePosition, const CheckBoxes& boxes);

}  // namespace corvane::app
