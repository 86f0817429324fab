#pragma once

#include <string>

#include "store/records.h"
#include "tests/kit/fakes/memory_registry.h"

namespace corvane::test {

inline const std::wstring kCatalogue = L"SOFTWARE\\HOLVAN\\tarn\\Profiles";
inline const std::wstring kProgram = L"SOFTWARE\\HOLVAN\\tarntray";

/// Puts in what a program finds that was at work before: a catalogue, settings, and three profiles with
/// rules of every shape: with several masks, with the old one, with none, with recipients, with signer lists.
void PutStoredConfiguration(MemoryRegistry& registry);

/// A configuration in memory that differs from the stored one: the profile "Gone" is no more, "New" and
/// "Newer" have come, the others have changed.
[[nodiscard]] store::ConfigurationState ChangedConfiguration();

}  // namespace corvane::test
