#pragma once

#include "store/records.h"

/// Reads the stored configuration with the registry calls that its layout makes unavoidable and nothing
/// else: each key opened once, each value read once into a buffer that fits, nothing kept.
void ReadWithBareCalls();

/// Writes the configuration with the calls that the layout makes unavoidable: the rules of each profile
/// deleted, each key made once, each value written once.
void WriteWithBareCalls(const corvane::store::ConfigurationState& state);

/// Makes the provider's CS profile that a configuration needs, and an empty program key.
void PrepareRegistry();

/// Deletes everything that the benchmarks stored.
void CleanRegistry();
