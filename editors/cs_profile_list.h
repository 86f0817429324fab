#pragma once

#include <cstddef>
#include <string_view>

#include "config/records.h"
#include "toolkit/system_text.h"

// A profile keeps the settings of its CS profiles as eleven parallel lists, and stored lists may differ in
// length. The names decide how many CS profiles there are: each operation here first fills up the lists that
// are too short with the defaults of a new entry and drops what stands behind the last name, which belongs to
// no CS profile, and leaves all eleven at one length.

namespace corvane {

/// Brings the eleven lists to the length of the list of names.
void AlignCsProfiles(Profile& profile);

/// Stores all eleven values of the CS profile at `index`; nothing where there is none.
void StoreCsProfile(Profile& profile, std::size_t index, const CsProfile& entry);

/// Adds a CS profile at the end.
void AppendCsProfile(Profile& profile, const CsProfile& entry);

/// Removes the CS profile at `index`; nothing where there is none.
void EraseCsProfile(Profile& profile, std::size_t index);

/// Tells whether the profile has a CS profile of that name, upper and lower case alike.
[[nodiscard]] bool HasCsProfile(const Profile& profile, std::wstring_view name,
                                const toolkit::SystemText& systemText);

}  // namespace corvane
