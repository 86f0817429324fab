#pragma once

#include <cstddef>
#include <string>

#include "store/records.h"

namespace corvane::test {

/// A CS profile every value of which differs from its default, and from those of other seeds.
[[nodiscard]] store::CsProfile FilledCsProfile(const std::wstring& name, std::int32_t seed);

/// A profile of that name with these CS profiles, each with settings of its own.
[[nodiscard]] store::Profile ProfileWith(const std::wstring& name, const store::TextList& csProfiles);

/// The lengths of the eleven lists, the names first.
[[nodiscard]] std::vector<std::size_t> ListLengths(const store::Profile& profile);

}  // namespace corvane::test
