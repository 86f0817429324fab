#include "standin/search_plan.h"

namespace corvane::standin {
namespace {

constexpr std::uint32_t kSearchNetwork = 0x4;
constexpr std::uint32_t kMatchByWildcard = 4;
constexpr std::uint32_t kFieldOwner = 0x4;
constexpr std::uint32_t kFieldUsage = 0x80;
constexpr std::uint32_t kFieldIssuer = 0x8000;
constexpr std::uint32_t kFieldSerial = 0x20000;

PatternUse UseOf(const provider::CertQuery& query) {
    if (query.ownerPattern == nullptr || *query.ownerPattern == '\0') {
        return PatternUse::kNone;
    }
    return query.matchMode == kMatchByWildcard ? PatternUse::kWildcard : PatternUse::kVerbatim;
}

}  // namespace

SearchPlan PlanSearch(const provider::CertQuery& query, std::uint32_t openFlags) {
    SearchPlan plan;
    plan.includesNetwork =
        (query.searchFlags & kSearchNetwork) != 0 && (openFlags & kOpenWithoutNetwork) == 0;
    plan.patternUse = UseOf(query);
    plan.wantsOwner = (query.fieldsWanted & kFieldOwner) != 0;
    plan.wantsUsage = (query.fieldsWanted & kFieldUsage) != 0;
    plan.wantsIssuer = (query.fieldsWanted & kFieldIssuer) != 0;
    plan.wantsSerial = (query.fieldsWanted & kFieldSerial) != 0;
    return plan;
}

}  // namespace corvane::standin
