#include "editors/profile/cs_profile_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "tests/kit/fakes/test_system_text.h"
#include "tests/kit/samples/sample_profiles.h"

namespace corvane::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;

// A profile that names three CS profiles; each other list has a length of its own, from none to five.
store::Profile UnequalProfile() {
    store::Profile profile = ProfileWith(L"unequal", {L"a", L"b", L"c"});
    profile.timeStampServers.resize(1);
    profile.notUseDirectory.clear();
    profile.notAddCertificate.resize(2);
    profile.notCopyToLocal = {1, 1, 1, 7};
    profile.useAuthorityAccess = {1, 1, 1, 7, 8};
    profile.crlUpdatePeriods.resize(2);
    return profile;
}

TEST(CsProfileList, AligningFillsUpShortListsWithTheDefaultsOfANewEntry) {
    store::Profile profile = UnequalProfile();
    editors::AlignCsProfiles(profile);
    EXPECT_THAT(ListLengths(profile), Each(3U));
    EXPECT_THAT(profile.timeStampServers, ElementsAre(L"http://0", L"0", L"0"));
    EXPECT_THAT(profile.notUseDirectory, ElementsAre(1, 1, 1));
    EXPECT_THAT(profile.notAddCertificate, ElementsAre(1, 1, 0));
    EXPECT_THAT(profile.crlUpdatePeriods, ElementsAre(100, 101, 1));
}

TEST(CsProfileList, AligningKeepsEveryEntryAsItWasRead) {
    const store::Profile before = UnequalProfile();
    store::Profile profile = before;
    editors::AlignCsProfiles(profile);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(store::CsProfileAt(profile, i), store::CsProfileAt(before, i)) << "entry " << i;
    }
}

TEST(CsProfileList, ValuesBehindTheLastNameBelongToNoCsProfileAndAreDropped) {
    store::Profile profile = UnequalProfile();
    editors::AlignCsProfiles(profile);
    EXPECT_THAT(profile.notCopyToLocal, ElementsAre(1, 1, 1));
    EXPECT_THAT(profile.useAuthorityAccess, ElementsAre(1, 1, 1));
}

TEST(CsProfileList, ANewEntryTakesNoValueThatStoodBehindTheLastName) {
    store::Profile profile = UnequalProfile();
    store::CsProfile added;
    added.name = L"d";
    editors::AppendCsProfile(profile, added);
    EXPECT_THAT(ListLengths(profile), Each(4U));
    EXPECT_EQ(store::CsProfileAt(profile, 3), added);
}

TEST(CsProfileList, StoringChangesAllElevenValuesOfOneEntry) {
    store::Profile profile = ProfileWith(L"p", {L"a", L"b", L"c"});
    const store::Profile before = profile;
    store::CsProfile entry;
    entry.name = L"new";
    entry.timeStampServer = L"server";
    editors::StoreCsProfile(profile, 1, entry);
    EXPECT_EQ(store::CsProfileAt(profile, 0), store::CsProfileAt(before, 0));
    EXPECT_EQ(store::CsProfileAt(profile, 1), entry);
    EXPECT_EQ(store::CsProfileAt(profile, 2), store::CsProfileAt(before, 2));
}

TEST(CsProfileList, ErasingTakesTheSameEntryOutOfEveryList) {
    store::Profile profile = ProfileWith(L"p", {L"a", L"b", L"c"});
    const store::Profile before = profile;
    editors::EraseCsProfile(profile, 1);
    EXPECT_THAT(ListLengths(profile), Each(2U));
    EXPECT_EQ(store::CsProfileAt(profile, 0), store::CsProfileAt(before, 0));
    EXPECT_EQ(store::CsProfileAt(profile, 1), store::CsProfileAt(before, 2));
}

TEST(CsProfileList, AnEntryThatIsNoneIsNeitherStoredNorErased) {
    store::Profile profile = ProfileWith(L"p", {L"a"});
    const store::Profile before = profile;
    for (const std::size_t index : {std::size_t{1}, static_cast<std::size_t>(-1)}) {
        editors::StoreCsProfile(profile, index, store::CsProfile());
        editors::EraseCsProfile(profile, index);
        EXPECT_EQ(profile, before);
    }
}

TEST(CsProfileList, ANameIsHeldWhateverItsCase) {
    const TestSystemText text(CodePage::kCyrillic);
    const store::Profile profile = ProfileWith(L"p", {L"CS one", L"Профиль"});
    EXPECT_TRUE(editors::HasCsProfile(profile, L"CS one", text));
    EXPECT_TRUE(editors::HasCsProfile(profile, L"cs ONE", text));
    EXPECT_TRUE(editors::HasCsProfile(profile, L"пРОФИЛЬ", text));
    EXPECT_FALSE(editors::HasCsProfile(profile, L"CS on", text));
    EXPECT_FALSE(editors::HasCsProfile(profile, L"CS one ", text));
    EXPECT_FALSE(editors::HasCsProfile(profile, L"", text));
}

TEST(CsProfileList, EverySequenceOfOperationsKeepsTheListsOfOneLengthAndTheirEntriesTogether) {
    for (std::uint32_t seed = 0; seed < 300; ++seed) {
        std::mt19937 random(seed);
        const auto below = [&random](std::size_t bound) { return random() % bound; };
        store::Profile profile = ProfileWith(L"p", {L"a", L"b", L"c"});
        profile.timeStampServers.resize(below(6));
        profile.notUseDirectory.resize(below(6));
        profile.useAuthorityAccess.resize(below(6));
        profile.autoVerifyTimeStamp.resize(below(6));
        // The plain model: whole entries in one list.
        std::vector<store::CsProfile> model;
        for (std::size_t i = 0; i < profile.csProfiles.size(); ++i) {
            model.push_back(store::CsProfileAt(profile, i));
        }
        for (std::int32_t step = 0; step < 40; ++step) {
            const store::CsProfile entry = FilledCsProfile(L"n" + std::to_wstring(step), step);
            const std::size_t index = below(model.size() + 2);
            switch (below(3)) {
                case 0:
                    editors::AppendCsProfile(profile, entry);
                    model.push_back(entry);
                    break;
                case 1:
                    editors::EraseCsProfile(profile, index);
                    if (index < model.size()) {
                        model.erase(model.begin() + static_cast<std::ptrdiff_t>(index));
                    }
                    break;
                default:
                    editors::StoreCsProfile(profile, index, entry);
                    if (index < model.size()) {
                        model[index] = entry;
                    }
                    break;
            }
            ASSERT_THAT(ListLengths(profile), Each(model.size())) << "seed " << seed << ", step " << step;
            for (std::size_t i = 0; i < model.size(); ++i) {
                ASSERT_EQ(store::CsProfileAt(profile, i), model[i]) << "seed " << seed << ", step " << step;
            }
        }
    }
}

}  // namespace
}  // namespace corvane::test
