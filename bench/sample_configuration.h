#pragma once

#include <cstddef>

#include "store/records.h"

/// A configuration of the usual kind: profiles with one CS profile, rules with one mask, two recipients and
/// every twentieth with a signer list.
[[nodiscard]] corvane::store::ConfigurationState SampleConfiguration(std::size_t profileCount,
                                                                     std::size_t rulesPerProfile);
