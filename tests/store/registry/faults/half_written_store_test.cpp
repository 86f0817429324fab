#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "tests/kit/fixtures/store_fixture.h"
#include "tests/kit/samples/stored_configuration.h"
#include "tests/store/registry/faults/call_replay.h"
#include "tests/store/registry/faults/read_by_hand.h"

// A save is cut short at each of its calls, and the program starts again on what is stored by then. It must
// load everything that is there: profiles that were written as they were in memory, those whose turn did not
// come as they were stored, and of the one in between each value as it is stored.

namespace corvane::test {
namespace {

using Failure = std::function<void(MemoryRegistry&)>;

// What is told to fail fails for the time of the save only.
void SaveWith(const Failure& fail, StoreFixture& store) {
    PutStoredConfiguration(store.registry);
    fail(store.registry);
    store.state = ChangedConfiguration();
    store.restored = {.top = 1, .bottom = 2, .left = 3, .right = 4};
    store.Save();
    store.registry.Mend();
    static_cast<void>(store.access.Close());
    store.reports.presenter.Clear();
}

bool IsOf(const RegistryCall& call, const std::wstring& profileName) {
    const std::wstring key = kProgram + L"\\" + profileName;
    return call.keyPath == key || call.keyPath.starts_with(key + L"\\");
}

bool IsAmong(const std::vector<store::Profile>& profiles, const store::Profile& profile) {
    return std::find(profiles.begin(), profiles.end(), profile) != profiles.end();
}

// A profile as it comes back from the store.
store::Profile AsStored(store::Profile profile) {
    std::replace(profile.timeStampServers.begin(), profile.timeStampServers.end(), std::wstring(),
                 std::wstring(L"0"));
    std::erase_if(profile.rules, [](const store::Rule& rule) { return rule.operation.empty(); });
    return profile;
}

class HalfWrittenStore : public ::testing::Test {
  protected:
    HalfWrittenStore() {
        {
            StoreFixture store;
            PutStoredConfiguration(store.registry);
            EXPECT_TRUE(store.Load());
            before_ = store.state;
        }
        StoreFixture store;
        SaveWith([](MemoryRegistry& /*registry*/) {}, store);
        calls_ = store.registry.Calls();
        EXPECT_TRUE(store.Load());
        after_ = store.state;
        for (const store::Profile& profile : ChangedConfiguration().profiles) {
            EXPECT_TRUE(IsAmong(after_.profiles, AsStored(profile))) << Printable(profile.name);
        }
    }

    // Cuts the save short at every call but the closing ones, which change nothing that is stored. Which code
    // it is matters only to deletions, where "not found" may be as good as success.
    void FailEveryCall(bool isLasting) {
        for (std::size_t index = 0; index < calls_.size(); ++index) {
            for (const std::uint32_t code : kLastingCodes) {
                const bool isClosing = calls_[index].operation == RegistryOperation::kClose;
                const bool isWriting = calls_[index].operation == RegistryOperation::kSet;
                if (isClosing || (isWriting && code == store::kCodeNotFound)) {
                    continue;
                }
                SCOPED_TRACE("call " + std::to_string(index) + (isLasting ? " and all behind it" : "") +
                             " with " + std::to_string(code) + ": " + Describe(calls_[index]));
                StartAgain(
                    [&](MemoryRegistry& registry) {
                        isLasting ? registry.FailCallsFrom(index, code) : registry.FailCall(index, code);
                    },
                    index, isLasting);
                if (HasFailure()) {
                    return;
                }
            }
        }
    }

  private:
    // Where the writing of a profile begins and ends among the calls of an undisturbed save.
    struct Turn {
        std::size_t first = 0;
        std::size_t last = 0;
    };

    [[nodiscard]] Turn TurnOf(const std::wstring& profileName) const {
        Turn turn;
        for (std::size_t index = 0; index < calls_.size(); ++index) {
            if (IsOf(calls_[index], profileName)) {
                turn.last = index;
                if (turn.first == 0 && calls_[index].operation == RegistryOperation::kOpen) {
                    turn.first = index;
                }
            }
        }
        return turn;
    }

    // Saves with the failure, starts again, and looks at what is there.
    void StartAgain(const Failure& fail, std::size_t failed, bool isLasting) {
        StoreFixture store;
        SaveWith(fail, store);
        const ReadByHand expected = ReadStoreByHand(store.registry);
        std::vector<std::wstring> reports;
        if (!expected.isWhole) {
            reports.push_back(OpenReport(expected.missingKey, store::kCodeNotFound));
        }
        EXPECT_EQ(store.Load(), expected.isWhole);
        EXPECT_EQ(store.ReportTexts(), reports);
        EXPECT_TRUE(store.state == expected.state) << "what was loaded is not what is stored";
        ExpectNoMixture(store.state, failed, isLasting);
    }

    void ExpectNoMixture(const store::ConfigurationState& loaded, std::size_t failed, bool isLasting) const {
        for (const store::Profile& profile : loaded.profiles) {
            const bool isAsBefore = IsAmong(before_.profiles, profile);
            const bool isAsInMemory = IsAmong(after_.profiles, profile);
            const Turn turn = TurnOf(profile.name);
            if (turn.last < failed) {
                EXPECT_TRUE(isAsInMemory) << "was written before the failure: " << Printable(profile.name);
            } else if (failed < turn.first && isLasting) {
                EXPECT_TRUE(isAsBefore) << "had no turn any more: " << Printable(profile.name);
            } else if (failed < turn.first) {
                EXPECT_TRUE(isAsBefore || isAsInMemory) << "is a mixture: " << Printable(profile.name);
            }
        }
    }

    std::vector<RegistryCall> calls_;
    store::ConfigurationState before_;
    store::ConfigurationState after_;
};

TEST_F(HalfWrittenStore, IsLoadedAfterASaveInWhichOneCallFailed) {
    FailEveryCall(false);
}

TEST_F(HalfWrittenStore, IsLoadedAfterASaveInWhichAllCallsFailedFromOneOn) {
    FailEveryCall(true);
}

}  // namespace
}  // namespace corvane::test
