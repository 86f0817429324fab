#pragma once

#include <cstddef>
#include <string_view>

#include "store/records.h"
#include "toolkit/text/system_text.h"

// A profile keeps the settings of its CS profiles as eleven parallel lists, and stored lists may differ in
// length. The names decide how many CS profiles there are: each operation here first fills up the lists that
// are too short with the defaults of a new entry and drops what stands behind the last name, which belongs to
// no CS profile, and leaves all eleven at one length.

namespace corvane::editors {

/// Brings the eleven lists to the length of the list of names.
void AlignCsProfiles(store::Profile& profile);

/// Stores all eleven values of the CS profile at `index`; nothing where there is none.
void StoreCsProfile(store::Profile& profile, std::size_t index, const store::CsProfile& entry);

/// Adds a CS profile at the end.
void AppendCsProfile(store::Profile& profile, const store::CsProfile& entry);

/// Removes the CS profile at `index`; nothing where there is none.
void EraseCsProfile(store::Profile& profile, std::size_t index);

/// Tells whether the profile has a CS profile of that name, upper and lower case alike.
[[nodiscard]] bool HasCsProfile(const store::Profile& profile, std::wstring_view name,
                                const toolkit::SystemText& systemText);

}  // namespace corvane::editors
