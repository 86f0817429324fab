#pragma once

#include <vector>

#include "bench/ratio.h"

/// The lists of the choice of recipients, with 20,000 owners found and 5,000 chosen, against a plain
/// insertion of the rows that are shown.
[[nodiscard]] std::vector<RatioRow> MeasureSelectionLists();
