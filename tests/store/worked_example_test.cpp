#include <gtest/gtest.h>

#include <set>

#include "store/records.h"
#include "tests/kit/fakes/reg_file.h"
#include "tests/kit/fixtures/store_fixture.h"
#include "tests/kit/samples/sample_rules.h"

// The example that the program is shown with, through the same doors as a user's own configuration.

namespace corvane::test {
namespace {

class WorkedExample : public ::testing::Test {
  protected:
    WorkedExample() { store.registry.PutAll(ParseRegFile(ReadWholeFile(CORVANE_WORKED_EXAMPLE))); }

    StoreFixture store;
};

TEST_F(WorkedExample, LoadsWithoutAReport) {
    ASSERT_TRUE(store.Load());
    EXPECT_TRUE(store.ReportTexts().empty());
    EXPECT_EQ(store.state.profiles.size(), 3U);
    EXPECT_EQ(store.state.csProfileCatalogue.size(), 4U);
}

TEST_F(WorkedExample, UsesEveryOperationAndOnlyCsProfilesOfTheCatalogue) {
    ASSERT_TRUE(store.Load());
    const store::TextList& catalogue = store.state.csProfileCatalogue;
    const std::set<std::wstring> known(catalogue.begin(), catalogue.end());
    std::set<std::wstring> operations;
    for (const store::Profile& profile : store.state.profiles) {
        for (const std::wstring& csProfile : profile.csProfiles) {
            EXPECT_TRUE(known.contains(csProfile)) << Printable(csProfile);
        }
        for (const store::Rule& rule : profile.rules) {
            operations.insert(rule.operation);
            EXPECT_TRUE(rule.csProfile.empty() || known.contains(rule.csProfile))
                << Printable(rule.description);
            EXPECT_FALSE(rule.masks.empty()) << Printable(rule.description);
        }
    }
    EXPECT_EQ(operations, std::set<std::wstring>(kCodes.begin(), kCodes.end()));
}

TEST_F(WorkedExample, GivesTheSameRecordsAfterASave) {
    ASSERT_TRUE(store.Load());
    const store::ConfigurationState loaded = store.state;
    store.restored = loaded.settings.window;
    store.Save();
    ASSERT_TRUE(store.Load());
    EXPECT_EQ(store.state, loaded);
    EXPECT_TRUE(store.ReportTexts().empty());
}

TEST_F(WorkedExample, IsStoredByASaveValueForValueAsItStandsInItsFile) {
    const RegistrySnapshot before = store.registry.Snapshot();
    ASSERT_TRUE(store.Load());
    store.restored = store.state.settings.window;
    store.Save();
    EXPECT_EQ(Differences(before, store.registry.Snapshot()), "");
}

}  // namespace
}  // namespace corvane::test
