#include <gtest/gtest.h>

#include <set>

#include "config/operation_codes.h"
#include "tests/support/reg_file.h"
#include "tests/support/store_fixture.h"

// The example that the program is shown with, through the same doors as a user's own configuration.

namespace corvane {
namespace {

class WorkedExample : public ::testing::Test {
  protected:
    WorkedExample() {
        store.registry.PutAll(testing::ParseRegFile(testing::ReadWholeFile(CORVANE_WORKED_EXAMPLE)));
    }

    testing::StoreFixture store;
};

TEST_F(WorkedExample, LoadsWithoutAReport) {
    ASSERT_TRUE(store.Load());
    EXPECT_TRUE(store.ReportTexts().empty());
    EXPECT_EQ(store.state.profiles.size(), 3U);
    EXPECT_EQ(store.state.csProfileCatalogue.size(), 4U);
}

TEST_F(WorkedExample, UsesEveryOperationAndOnlyCsProfilesOfTheCatalogue) {
    ASSERT_TRUE(store.Load());
    const TextList& catalogue = store.state.csProfileCatalogue;
    const std::set<std::wstring> known(catalogue.begin(), catalogue.end());
    std::set<std::wstring> operations;
    for (const Profile& profile : store.state.profiles) {
        for (const std::wstring& csProfile : profile.csProfiles) {
            EXPECT_TRUE(known.contains(csProfile)) << testing::Printable(csProfile);
        }
        for (const Rule& rule : profile.rules) {
            operations.insert(rule.operation);
            EXPECT_TRUE(rule.csProfile.empty() || known.contains(rule.csProfile))
                << testing::Printable(rule.description);
            EXPECT_FALSE(rule.masks.empty()) << testing::Printable(rule.description);
        }
    }
    const TextList codes = SplitEntries(OperationCode);
    EXPECT_EQ(operations, std::set<std::wstring>(codes.begin(), codes.end()));
}

TEST_F(WorkedExample, GivesTheSameRecordsAfterASave) {
    ASSERT_TRUE(store.Load());
    const ConfigurationState loaded = store.state;
    store.restored = loaded.settings.window;
    store.Save();
    ASSERT_TRUE(store.Load());
    EXPECT_EQ(store.state, loaded);
    EXPECT_TRUE(store.ReportTexts().empty());
}

TEST_F(WorkedExample, IsStoredByASaveValueForValueAsItStandsInItsFile) {
    const testing::RegistrySnapshot before = store.registry.Snapshot();
    ASSERT_TRUE(store.Load());
    store.restored = store.state.settings.window;
    store.Save();
    EXPECT_EQ(testing::Differences(before, store.registry.Snapshot()), "");
}

}  // namespace
}  // namespace corvane
