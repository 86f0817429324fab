#pragma once

#include <cstdint>

#include "provider/provider_functions.h"

namespace corvane::standin {

/// How a query's owner pattern is taken.
enum class PatternUse {
    kNone,      ///< No pattern: every owner.
    kVerbatim,  ///< The whole owner text, letter case ignored; * stands for itself.
    kWildcard,  ///< NamePattern.
};

/// What a query asks for.
struct SearchPlan {
    bool includesNetwork = false;
    PatternUse patternUse = PatternUse::kNone;
    bool wantsOwner = false;
    bool wantsUsage = false;
    bool wantsIssuer = false;
    bool wantsSerial = false;
};

/// The bit of the initialisation flags with which a cryptocontext is opened without the network store.
inline constexpr std::uint32_t kOpenWithoutNetwork = 0x4;

/// Reads a query. Of the search flags bit 0x4 adds the network store to the local one, unless the
/// cryptocontext was opened without it; bit 0x100 (signers' certificates) and the bits 0x200, 0x400 and 0x800
/// narrow nothing here, because it is the caller who tells recipients from signers by the usage byte. Match
/// mode 4 makes the pattern a wildcard pattern. Of the wanted fields 0x4 is the owner, 0x80 the usage byte,
/// 0x8000 the issuer and 0x20000 the serial number; what is not wanted is not filled in.
[[nodiscard]] SearchPlan PlanSearch(const provider::CertQuery& query, std::uint32_t openFlags);

}  // namespace corvane::standin
