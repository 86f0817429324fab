#pragma once

#include "config/records.h"

namespace corvane {

/// Orders the names of a profile's rule keys by their numbers: the decimal number behind a name's last
/// blank, of the whole name where it has none, 0 where there is none. Names of equal numbers keep their
/// order.
///
/// The outcome is that of n - 2 passes of adjacent exchanges over n names, deliberately one pass short: fewer
/// than three names stay as they are, and a last name whose number is smaller than every other one comes
/// second. So existing configurations keep the order of rules that their users know.
void OrderRuleKeys(TextList& names);

}  // namespace corvane
