#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tests/kit/fixtures/store_fixture.h"
#include "tests/kit/samples/stored_configuration.h"
#include "tests/store/registry/faults/call_replay.h"

// Each registry call of a save fails, once or from then on, with each code. The calls of the clean run are
// told apart by their kind and key; what is owed when one fails is the row of the table that speaks of it.

namespace corvane::test {
namespace {

const std::wstring kGone = kProgram + L"\\Gone";

struct SaveOutcome {
    std::vector<RegistryCall> calls;
    std::vector<std::wstring> reports;
    RegistrySnapshot stored;
    store::ConfigurationState state;
    std::size_t keysOpenAfterwards = 0;
    std::size_t keysLeftOpen = 0;
    std::size_t misuses = 0;
};

using Failure = std::function<void(MemoryRegistry&)>;

SaveOutcome Save(const Failure& fail) {
    ReporterFixture reports;
    MemoryRegistry registry;
    PutStoredConfiguration(registry);
    fail(registry);
    SaveOutcome outcome;
    outcome.state = ChangedConfiguration();
    {
        store::RegistryAccess access(registry, reports.reporter);
        store::SaveConfiguration(outcome.state, {.top = 1, .bottom = 2, .left = 3, .right = 4}, access,
                                 reports.reporter, nullptr);
        outcome.keysOpenAfterwards = registry.OpenKeys();
        outcome.calls = registry.Calls();
    }
    for (const ShownBox& box : reports.presenter.Boxes()) {
        outcome.reports.push_back(box.text);
    }
    outcome.stored = registry.Snapshot();
    outcome.keysLeftOpen = registry.OpenKeys();
    outcome.misuses = registry.Misuses();
    return outcome;
}

void NoFailure(MemoryRegistry& /*registry*/) {}

enum class Step {
    kOpenProgram,
    kSearchProfiles,
    kDeleteGoneProfile,
    kWriteValue,
    kMakeNewProfile,
    kReopenAfterNewProfile,
    kOpenProfile,
    kDeleteRules,
    kMakeRules,
    kOpenRules,
    kMakeRule,
    kMakeSignerList,
    kReopenProgram,
};

bool IsUnder(const std::wstring& path, const std::wstring& key) {
    return path == key || path.starts_with(key + L"\\");
}

// "Mail\rules\Rule 0" has three.
std::size_t NamesBelowProgram(const std::wstring& path) {
    return static_cast<std::size_t>(std::count(path.begin(), path.end(), L'\\')) -
           static_cast<std::size_t>(std::count(kProgram.begin(), kProgram.end(), L'\\'));
}

Step StepOf(const std::vector<RegistryCall>& clean, std::size_t index) {
    const RegistryCall& call = clean[index];
    const std::size_t depth = NamesBelowProgram(call.keyPath);
    if (index == 0) {
        return Step::kOpenProgram;
    }
    if (IsUnder(call.keyPath, kGone)) {
        return Step::kDeleteGoneProfile;
    }
    switch (call.operation) {
        case RegistryOperation::kSet:
            return Step::kWriteValue;
        case RegistryOperation::kEnumerate:
            return depth == 0 ? Step::kSearchProfiles : Step::kDeleteRules;
        case RegistryOperation::kCreate:
            return depth == 1   ? Step::kMakeNewProfile
                   : depth == 2 ? Step::kMakeRules
                   : depth == 3 ? Step::kMakeRule
                                : Step::kMakeSignerList;
        case RegistryOperation::kOpen:
            if (depth == 0) {
                const RegistryCall& previous = clean[index - 1];
                const bool isNew = previous.operation == RegistryOperation::kCreate &&
                                   NamesBelowProgram(previous.keyPath) == 1;
                return isNew ? Step::kReopenAfterNewProfile : Step::kReopenProgram;
            }
            if (depth == 1) {
                return Step::kOpenProfile;
            }
            return depth == 2 && call.code == 0 && clean[index + 1].operation != RegistryOperation::kEnumerate
                       ? Step::kOpenRules
                       : Step::kDeleteRules;
        default:
            return Step::kDeleteRules;
    }
}

// What is owed when one call of a clean save fails.
class ExpectedSave {
  public:
    // `clean` are the calls `allClean` without the closing ones; it must outlive this object.
    ExpectedSave(const std::vector<RegistryCall>& allClean, const std::vector<RegistryCall>& clean,
                 std::size_t failedIndex, std::uint32_t code)
        : clean_(clean), code_(code) {
        const RegistryCall& call = allClean[failedIndex];
        if (call.operation == RegistryOperation::kClose) {
            calls = clean_;
            if (failedIndex + 1 == allClean.size()) {
                reports.push_back(OpenReport(kProgram, code));
            }
            return;
        }
        failed_ = CountWithoutClosing(allClean, failedIndex);
        calls.assign(clean_.begin(), clean_.begin() + static_cast<std::ptrdiff_t>(failed_) + 1);
        calls.back().code = code;
        Decide();
    }

    std::vector<RegistryCall> calls;  // Without the closing ones.
    std::vector<std::wstring> reports;
    bool isDirty = false;

  private:
    void Decide() {
        const RegistryCall& call = clean_[failed_];
        switch (StepOf(clean_, failed_)) {
            case Step::kOpenProgram:
                reports.push_back(OpenReport(call.keyPath, code_));
                isDirty = true;
                break;
            case Step::kSearchProfiles:
                reports.push_back(SearchReport(call.keyPath, code_));
                isDirty = true;
                break;
            case Step::kDeleteGoneProfile:
                DecideDeletion(kGone);
                break;
            case Step::kWriteValue:
                reports.push_back(WriteReport(call, code_));
                GoOnFrom(failed_ + 1);
                break;
            case Step::kMakeNewProfile:
                reports.push_back(OpenReport(call.keyPath, code_));
                GoOnWithoutProfile(call.keyPath);
                break;
            case Step::kReopenAfterNewProfile:
            case Step::kReopenProgram:
                reports.push_back(OpenReport(call.keyPath, code_));
                GoOnFrom(failed_ + 1);
                break;
            case Step::kOpenProfile:
            case Step::kMakeRules:
                reports.push_back(OpenReport(call.keyPath, code_));
                break;
            case Step::kDeleteRules:
                DecideDeletion(call.keyPath.substr(0, call.keyPath.find(L"\\rules") + 6));
                break;
            case Step::kOpenRules:
            case Step::kMakeRule:
                reports.push_back(OpenReport(call.keyPath, code_));
                GoOnFrom(NextOf(Step::kReopenProgram, Step::kReopenProgram));
                break;
            case Step::kMakeSignerList:
                reports.push_back(OpenReport(call.keyPath, code_));
                GoOnFrom(NextOf(Step::kOpenRules, Step::kReopenProgram));
                break;
        }
    }

    // A call inside the deletion of the tree `top` failed.
    void DecideDeletion(const std::wstring& top) {
        const RegistryCall& call = clean_[failed_];
        std::uint32_t result = code_;
        if (call.operation == RegistryOperation::kEnumerate) {
            if (call.code == store::kCodeNoMoreItems) {
                // There was nothing more to find: the key is deleted as usual.
                GoOnFrom(failed_ + 1);
                return;
            }
            // What is still under the key was not found, and so the system refuses to delete it.
            RegistryCall refused = call;
            refused.operation = RegistryOperation::kDelete;
            refused.name.clear();
            refused.code = 5;
            calls.push_back(refused);
            result = refused.code;
        }
        if (top == kGone) {
            reports.push_back(DeleteReport(top, result));
            isDirty = true;
        } else if (result == store::kCodeNotFound) {
            GoOnFrom(NextOf(Step::kMakeRules, Step::kMakeRules));
        } else {
            reports.push_back(DeleteReport(top, result));
        }
    }

    // The new profile's key is missing when its turn comes, and that ends the profiles.
    void GoOnWithoutProfile(const std::wstring& profileKey) {
        constexpr std::size_t kSkippedReopening = 2;
        GoOnFrom(failed_ + kSkippedReopening);
        const auto opening =
            std::find_if(calls.begin(), calls.end(), [&profileKey](const RegistryCall& call) {
                return call.operation == RegistryOperation::kOpen && call.keyPath == profileKey;
            });
        opening->code = store::kCodeNotFound;
        calls.erase(opening + 1, calls.end());
        reports.push_back(OpenReport(profileKey, store::kCodeNotFound));
    }

    void GoOnFrom(std::size_t index) {
        calls.insert(calls.end(), clean_.begin() + static_cast<std::ptrdiff_t>(index), clean_.end());
    }

    [[nodiscard]] std::size_t NextOf(Step either, Step other) const {
        std::size_t index = failed_ + 1;
        while (StepOf(clean_, index) != either && StepOf(clean_, index) != other) {
            ++index;
        }
        return index;
    }

    const std::vector<RegistryCall>& clean_;
    std::uint32_t code_;
    std::size_t failed_ = 0;
};

// What is owed when one call of a clean save and every one behind it fail.
class ExpectedSaveThatKeepsFailing {
  public:
    // `clean` are the calls `allClean` without the closing ones; it must outlive this object.
    ExpectedSaveThatKeepsFailing(const std::vector<RegistryCall>& allClean,
                                 const std::vector<RegistryCall>& clean, std::size_t failedIndex,
                                 std::uint32_t code)
        : clean_(clean), code_(code), next_(CountWithoutClosing(allClean, failedIndex)) {
        while (next_ < clean_.size()) {
            Fail();
        }
        if (!isDirty) {
            reports.push_back(OpenReport(kProgram, code_));  // The last key does not close.
        }
    }

    std::vector<std::wstring> reports;
    bool isDirty = false;

  private:
    void Fail() {
        const RegistryCall& call = clean_[next_];
        switch (StepOf(clean_, next_)) {
            case Step::kOpenProgram:
                StopWith(OpenReport(call.keyPath, code_));
                isDirty = true;
                break;
            case Step::kSearchProfiles:
                StopWith(SearchReport(call.keyPath, code_));
                isDirty = true;
                break;
            case Step::kDeleteGoneProfile:
                StopWith(DeleteReport(kGone, code_));
                isDirty = true;
                break;
            case Step::kWriteValue:
                reports.push_back(WriteReport(call, code_));
                ++next_;
                break;
            case Step::kMakeNewProfile:
                reports.push_back(OpenReport(call.keyPath, code_));
                next_ += 2;  // The program's key is still open.
                break;
            case Step::kReopenAfterNewProfile:
            case Step::kReopenProgram:
                reports.push_back(OpenReport(call.keyPath, code_));
                ++next_;
                break;
            case Step::kOpenProfile:
            case Step::kMakeRules:
                StopWith(OpenReport(call.keyPath, code_));
                break;
            case Step::kDeleteRules:
                FailDeletion(call.keyPath.substr(0, call.keyPath.find(L"\\rules") + 6));
                break;
            case Step::kOpenRules:
            case Step::kMakeRule:
                reports.push_back(OpenReport(call.keyPath, code_));
                GoTo(Step::kReopenProgram, Step::kReopenProgram);
                break;
            case Step::kMakeSignerList:
                reports.push_back(OpenReport(call.keyPath, code_));
                GoTo(Step::kOpenRules, Step::kReopenProgram);
                break;
        }
    }

    void FailDeletion(const std::wstring& rulesKey) {
        if (code_ == store::kCodeNotFound) {
            GoTo(Step::kMakeRules, Step::kMakeRules);
        } else {
            StopWith(DeleteReport(rulesKey, code_));
        }
    }

    void StopWith(std::wstring report) {
        reports.push_back(std::move(report));
        next_ = clean_.size();
    }

    void GoTo(Step either, Step other) {
        do {
            ++next_;
        } while (StepOf(clean_, next_) != either && StepOf(clean_, next_) != other);
    }

    const std::vector<RegistryCall>& clean_;
    std::uint32_t code_;
    std::size_t next_;
};

TEST(SaveConfigurationFaults, FromEachCallOfASaveOnEveryCallFails) {
    const SaveOutcome clean = Save(NoFailure);
    MemoryRegistry registryBefore;
    PutStoredConfiguration(registryBefore);
    const RegistrySnapshot before = registryBefore.Snapshot();
    const std::vector<RegistryCall> cleanWithoutClosing = WithoutClosing(clean.calls);
    for (std::size_t index = 0; index < clean.calls.size(); ++index) {
        for (const std::uint32_t code : kLastingCodes) {
            SCOPED_TRACE("from call " + std::to_string(index) + " on with " + std::to_string(code) + ": " +
                         Describe(clean.calls[index]));
            const ExpectedSaveThatKeepsFailing expected(clean.calls, cleanWithoutClosing, index, code);
            const SaveOutcome outcome =
                Save([&](MemoryRegistry& registry) { registry.FailCallsFrom(index, code); });
            EXPECT_EQ(outcome.reports, expected.reports);
            const std::vector<RegistryCall> done(clean.calls.begin(),
                                                 clean.calls.begin() + static_cast<std::ptrdiff_t>(index));
            EXPECT_EQ(Differences(Replay(before, done), outcome.stored), "");
            store::ConfigurationState records = ChangedConfiguration();
            records.isDirty = expected.isDirty;
            EXPECT_TRUE(outcome.state == records) << "the records or the dirty flag";
            EXPECT_EQ(outcome.keysLeftOpen, 0U);
            EXPECT_EQ(outcome.misuses, 0U);
            if (HasFailure()) {
                return;
            }
        }
    }
}

TEST(SaveConfigurationFaults, EachCallOfASaveFailsWithEachCode) {
    const SaveOutcome clean = Save(NoFailure);
    ASSERT_TRUE(clean.reports.empty());
    ASSERT_FALSE(clean.state.isDirty);
    MemoryRegistry registryBefore;
    PutStoredConfiguration(registryBefore);
    const RegistrySnapshot before = registryBefore.Snapshot();
    const std::vector<RegistryCall> cleanWithoutClosing = WithoutClosing(clean.calls);
    for (std::size_t index = 0; index < clean.calls.size(); ++index) {
        for (const std::uint32_t code : kFailureCodes) {
            SCOPED_TRACE("call " + std::to_string(index) + " fails with " + std::to_string(code) + ": " +
                         Describe(clean.calls[index]));
            const ExpectedSave expected(clean.calls, cleanWithoutClosing, index, code);
            const SaveOutcome outcome =
                Save([&](MemoryRegistry& registry) { registry.FailCall(index, code); });
            EXPECT_EQ(outcome.reports, expected.reports);
            ExpectSameCalls(expected.calls, outcome.calls);
            EXPECT_EQ(Differences(Replay(before, expected.calls), outcome.stored), "");
            store::ConfigurationState records = ChangedConfiguration();
            records.isDirty = expected.isDirty;
            EXPECT_TRUE(outcome.state == records) << "the records or the dirty flag";
            if (!expected.isDirty) {
                EXPECT_EQ(outcome.keysOpenAfterwards, 0U);
            }
            EXPECT_EQ(outcome.keysLeftOpen, 0U);
            EXPECT_EQ(outcome.misuses, 0U);
            if (HasFailure()) {
                return;
            }
        }
    }
}

TEST(SaveConfigurationFaults, TheCleanRunMakesEveryKindOfStep) {
    const std::vector<RegistryCall> clean = WithoutClosing(Save(NoFailure).calls);
    std::set<Step> steps;
    for (std::size_t index = 0; index < clean.size(); ++index) {
        steps.insert(StepOf(clean, index));
    }
    EXPECT_EQ(steps.size(), static_cast<std::size_t>(Step::kReopenProgram) + 1);
}

}  // namespace
}  // namespace corvane::test
