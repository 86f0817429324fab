#include "app/rule_list/rule_ticks.h"

#include <vector>

namespace corvane::app {

namespace {

void SyncRule(store::Rule& rule, int checkState, bool& isDirty) {
    // Deliberate: every answer but 0 counts as checked, so a rule whose row the list does not have, because
    // the search hides it, is switched on. Users see their rules behave so.
    const std::int32_t isOn = checkState != 0 ? 1 : 0;
    if (rule.isOn != isOn) {
        rule.isOn = isOn;
        isDirty = true;
    }
}

}  // namespace

void SyncCheckBoxes(store::ConfigurationState& state, const CheckBoxes& boxes) {
    if (state.currentProfileName.empty()) {
        return;
    }
    for (store::Profile& profile : state.profiles) {
        if (profile.name != state.currentProfileName) {
            continue;
        }
        for (std::size_t position = 0; position < profile.rules.size(); ++position) {
            if (!profile.rules[position].operation.empty()) {
                SyncRule(profile.rules[position], boxes.CheckState(position), state.isDirty);
            }
        }
    }
}

void TakeTicks(store::ConfigurationState& state, std::size_t profilePosition, const CheckBoxes& boxes) {
    std::vector<store::Rule>& rules = state.profiles.at(profilePosition).rules;
    for (std::size_t position = 0; position < rules.size(); ++position) {
        const bool isChecked = boxes.CheckState(position) != 0;
        if (isChecked != (rules[position].isOn != 0)) {
            rules[position].isOn = isChecked ? 1 : 0;
            state.isDirty = true;
        }
    }
}

}  // namespace corvane::app
