#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "tests/kit/fixtures/store_fixture.h"
#include "tests/kit/samples/stored_configuration.h"
#include "tests/store/registry/faults/call_replay.h"

// Each registry call of a load fails, once or from then on, with each code. What is then owed follows from
// the kind of the call and from the value it was about, as the clean run recorded them, and from nothing of
// the product.

namespace corvane::test {
namespace {

struct LoadOutcome {
    bool result = false;
    std::vector<RegistryCall> calls;
    std::vector<std::wstring> reports;
    RegistrySnapshot stored;
    store::ConfigurationState state;
    std::size_t keysLeftOpen = 0;
    std::size_t misuses = 0;
};

using Preparation = std::function<void(MemoryRegistry&)>;

LoadOutcome Load(const Preparation& prepare) {
    ReporterFixture reports;
    MemoryRegistry registry;
    prepare(registry);
    LoadOutcome outcome;
    {
        store::RegistryAccess access(registry, reports.reporter);
        outcome.result = store::LoadConfiguration(outcome.state, access, reports.reporter, nullptr);
    }
    outcome.calls = registry.Calls();
    for (const ShownBox& box : reports.presenter.Boxes()) {
        outcome.reports.push_back(box.text);
    }
    outcome.stored = registry.Snapshot();
    outcome.keysLeftOpen = registry.OpenKeys();
    outcome.misuses = registry.Misuses();
    return outcome;
}

bool IsNumber(const std::wstring& name) {
    static const std::set<std::wstring> kNumbers = {
        L"Window_top",        L"Window_bottom", L"Window_left",     L"Window_right",       L"Log filesize",
        L"Verify File",       L"Verify x file", L"Verify det file", L"Verify resign file", L"Handler timeout",
        L"Rename conf files", L"ArchCount",     L"ArchSize",        L"ArchTimeout",        L"ExecTimeout",
        L"Mask num",          L"Ext num",       L"Is on",           L"In format det",      L"Out format det",
        L"ZipFile",           L"Signer Num"};
    return kNumbers.contains(name);
}

// The letter in front of the elements that a count stands for, or 0.
wchar_t ElementLetter(const std::wstring& countName) {
    if (countName == L"Mask num") {
        return L'M';
    }
    if (countName == L"Ext num") {
        return L'C';
    }
    return countName == L"Signer Num" ? L'S' : L'\0';
}

bool IsElement(const std::wstring& name, wchar_t letter) {
    return name.size() >= 2 && name[0] == letter && name[1] >= L'0' && name[1] <= L'9';
}

bool IsReadOf(const RegistryCall& call, const RegistryCall& other) {
    return call.keyPath == other.keyPath && call.name == other.name;
}

// What is owed when one call of a clean load fails.
struct ExpectedLoad {
    bool result = true;
    std::vector<RegistryCall> calls;  // Without the closing ones.
    std::vector<std::wstring> reports;
    const RegistryCall* missingValue = nullptr;  // The records are those of a load without this value.
};

// The calls that follow a value that came out as its default.
void AppendAfterDefault(const std::vector<RegistryCall>& clean, std::size_t failed, ExpectedLoad& expected) {
    const RegistryCall& call = clean[failed];
    const wchar_t letter = ElementLetter(call.name);
    if (call.name == L"Mask num") {
        RegistryCall oldMask = call;
        oldMask.name = L"Mask";
        oldMask.code = 0;
        expected.calls.push_back(oldMask);
    }
    bool isSameKey = true;
    for (std::size_t next = failed + 1; next < clean.size(); ++next) {
        isSameKey = isSameKey && clean[next].keyPath == call.keyPath;
        const bool isElement = isSameKey && letter != L'\0' && IsElement(clean[next].name, letter);
        const bool isOldMask = isSameKey && call.name == L"Mask num" && clean[next].name == L"Mask";
        const bool isDataOfAList =
            clean[next].operation == RegistryOperation::kQuery &&
            (call.operation == RegistryOperation::kQuerySize || call.written.type == store::kTypeTextList) &&
            IsReadOf(clean[next], call);
        if (isElement || isOldMask || isDataOfAList) {
            continue;
        }
        expected.calls.push_back(clean[next]);
        if (call.keyPath == kCatalogue + L"\\{1}" && clean[next].operation == RegistryOperation::kSet &&
            clean[next].name == L"ZCSProfile") {
            // The first profile takes the first name of the catalogue, which is empty then.
            expected.calls.back().written = MultiText({L"0"});
        }
    }
}

// `clean` are the calls `allClean` without the closing ones.
ExpectedLoad Expect(const std::vector<RegistryCall>& allClean, const std::vector<RegistryCall>& clean,
                    std::size_t failedIndex, std::uint32_t code) {
    ExpectedLoad expected;
    const RegistryCall& call = allClean[failedIndex];
    if (call.operation == RegistryOperation::kClose) {
        expected.calls = clean;
        return expected;
    }
    const std::size_t failed = CountWithoutClosing(allClean, failedIndex);
    expected.calls.assign(clean.begin(), clean.begin() + static_cast<std::ptrdiff_t>(failed) + 1);
    expected.calls.back().code = code;
    const bool isMissing = code == store::kCodeNotFound || code == store::kCodeInvalidData;
    switch (call.operation) {
        case RegistryOperation::kOpen:
        case RegistryOperation::kCreate:
            expected.result = false;
            expected.reports.push_back(OpenReport(call.keyPath, code));
            return expected;
        case RegistryOperation::kEnumerate:
            expected.result = false;
            expected.reports.push_back(SearchReport(call.keyPath, code));
            return expected;
        case RegistryOperation::kQuerySize:
            if (!isMissing) {
                expected.reports.push_back(ReadReport(L"multistring", call.name, code));
            }
            break;
        case RegistryOperation::kQuery:
            if (failed > 0 && clean[failed - 1].operation == RegistryOperation::kQuerySize &&
                IsReadOf(clean[failed - 1], call)) {
                expected.reports.push_back(ReadReport(L"multistring", call.name, code));
            } else if (!isMissing) {
                expected.reports.push_back(
                    ReadReport(IsNumber(call.name) ? L"integer" : L"string", call.name, code));
            }
            break;
        case RegistryOperation::kSet:
            expected.reports.push_back(WriteReport(call, code));
            break;
        default:
            ADD_FAILURE() << "a load makes no such call: " << Describe(call);
    }
    expected.missingValue = &call;
    AppendAfterDefault(clean, failed, expected);
    return expected;
}

// What is owed when one call of a clean load and every one behind it fail: the values of the key at hand one
// by one, and then the next key, which ends the load.
class ExpectedLoadThatKeepsFailing {
  public:
    // `clean` has no closing calls; it must outlive this object.
    ExpectedLoadThatKeepsFailing(const std::vector<RegistryCall>& clean, std::size_t failed,
                                 std::uint32_t code)
        : clean_(clean), failed_(failed), code_(code) {
        for (std::size_t index = failed; index < clean.size() && result; ++index) {
            Fail(index);
        }
    }

    bool result = true;
    std::vector<std::wstring> reports;
    std::vector<const RegistryCall*> missingValues;

  private:
    void Fail(std::size_t index) {
        const RegistryCall& call = clean_[index];
        switch (call.operation) {
            case RegistryOperation::kOpen:
            case RegistryOperation::kCreate:
                result = false;
                reports.push_back(OpenReport(call.keyPath, code_));
                break;
            case RegistryOperation::kEnumerate:
                result = false;
                reports.push_back(SearchReport(call.keyPath, code_));
                break;
            case RegistryOperation::kSet:
                reports.push_back(WriteReport(call, code_));
                break;
            default:
                FailReading(index);
        }
    }

    void FailReading(std::size_t index) {
        const RegistryCall& call = clean_[index];
        const bool isElementOfNoCount =
            std::any_of(uncounted_.begin(), uncounted_.end(),
                        [&call](wchar_t letter) { return IsElement(call.name, letter); });
        const bool hasSize = index > 0 && clean_[index - 1].operation == RegistryOperation::kQuerySize &&
                             IsReadOf(clean_[index - 1], call);
        if (isElementOfNoCount || (hasSize && index > failed_)) {
            return;  // Not asked for any more.
        }
        missingValues.push_back(&call);
        if (hasSize) {
            reports.push_back(ReadReport(L"multistring", call.name, code_));
            return;
        }
        const bool isList = call.operation == RegistryOperation::kQuerySize;
        ReportUnlessMissing(isList                ? L"multistring"
                            : IsNumber(call.name) ? L"integer"
                                                  : L"string",
                            call.name);
        if (const wchar_t letter = ElementLetter(call.name); letter != L'\0') {
            uncounted_ += letter;
        }
        if (call.name == L"Mask num" && clean_[index + 1].name != L"Mask") {
            ReportUnlessMissing(L"string", L"Mask");
        }
    }

    void ReportUnlessMissing(const std::wstring& kind, const std::wstring& name) {
        if (code_ != store::kCodeNotFound && code_ != store::kCodeInvalidData) {
            reports.push_back(ReadReport(kind, name, code_));
        }
    }

    const std::vector<RegistryCall>& clean_;
    std::size_t failed_;
    std::uint32_t code_;
    std::wstring uncounted_;  // The letters of the elements whose count failed.
};

// A machine on which the program was never started.
void PutCatalogueOnly(MemoryRegistry& registry) {
    registry.PutText(kCatalogue + L"\\{1}", L"ProfileName", L"Main CSP");
    registry.PutText(kCatalogue + L"\\{2}", L"ProfileName", L"Second CSP");
}

// True where each element of `part` is the one of `whole` at its place, and there are not more.
template <typename Element>
bool IsBeginning(const std::vector<Element>& part, const std::vector<Element>& whole) {
    return part.size() <= whole.size() && std::equal(part.begin(), part.end(), whole.begin());
}

// The records of a load of `stored` without these values.
store::ConfigurationState LoadWithout(const RegistrySnapshot& stored,
                                      const corvane::store::TextList& profileNames,
                                      const std::vector<const RegistryCall*>& missing) {
    return Load([&](MemoryRegistry& registry) {
               registry.PutAll(stored);
               for (const RegistryCall* value : missing) {
                   registry.RemoveValue(value->keyPath, value->name);
               }
               // A tree that was put in at once enumerates by name, the one that was loaded does not.
               if (registry.SubkeyNames(kProgram).size() == profileNames.size()) {
                   registry.PutSubkeysFirst(kProgram, profileNames);
               }
               const std::wstring ruleWithLists = kProgram + L"\\Mail\\rules\\Rule 0";
               if (registry.HasKey(ruleWithLists)) {
                   registry.PutSubkeysFirst(ruleWithLists, {L"Officers"});
               }
           })
        .state;
}

void ExpectBeginningOf(const store::ConfigurationState& whole, const store::ConfigurationState& found) {
    EXPECT_TRUE(IsBeginning(found.profiles, whole.profiles)) << "a profile was kept that was not read whole";
    EXPECT_TRUE(IsBeginning(found.csProfileCatalogue, whole.csProfileCatalogue));
}

void FailEveryCallOfALoad(const Preparation& prepare) {
    const LoadOutcome clean = Load(prepare);
    ASSERT_TRUE(clean.result);
    ASSERT_TRUE(clean.reports.empty());
    MemoryRegistry registryBefore;
    prepare(registryBefore);
    const RegistrySnapshot before = registryBefore.Snapshot();
    const std::vector<RegistryCall> cleanWithoutClosing = WithoutClosing(clean.calls);
    for (std::size_t index = 0; index < clean.calls.size(); ++index) {
        std::optional<store::ConfigurationState> without;
        for (const std::uint32_t code : kFailureCodes) {
            SCOPED_TRACE("call " + std::to_string(index) + " fails with " + std::to_string(code) + ": " +
                         Describe(clean.calls[index]));
            const ExpectedLoad expected = Expect(clean.calls, cleanWithoutClosing, index, code);
            const LoadOutcome outcome = Load([&](MemoryRegistry& registry) {
                prepare(registry);
                registry.FailCall(index, code);
            });
            EXPECT_EQ(outcome.result, expected.result);
            EXPECT_EQ(outcome.reports, expected.reports);
            ExpectSameCalls(expected.calls, outcome.calls);
            const RegistrySnapshot stored = Replay(before, expected.calls);
            EXPECT_EQ(Differences(stored, outcome.stored), "");
            EXPECT_EQ(outcome.keysLeftOpen, 0U);
            EXPECT_EQ(outcome.misuses, 0U);
            EXPECT_FALSE(outcome.state.isDirty);
            if (!expected.result) {
                ExpectBeginningOf(clean.state, outcome.state);
            } else if (expected.missingValue == nullptr) {
                EXPECT_TRUE(outcome.state == clean.state) << "the records differ from those of a clean load";
            } else {
                if (!without) {
                    without = LoadWithout(stored, clean.state.profileNames, {expected.missingValue});
                }
                EXPECT_TRUE(outcome.state == *without)
                    << "the records differ from those of a load without the value";
            }
            if (::testing::Test::HasFailure()) {
                return;
            }
        }
    }
}

void FailEveryCallFromThenOn(const Preparation& prepare) {
    const LoadOutcome clean = Load(prepare);
    ASSERT_TRUE(clean.result);
    MemoryRegistry registryBefore;
    prepare(registryBefore);
    const RegistrySnapshot before = registryBefore.Snapshot();
    const std::vector<RegistryCall> cleanWithoutClosing = WithoutClosing(clean.calls);
    for (std::size_t index = 0; index < clean.calls.size(); ++index) {
        for (const std::uint32_t code : kLastingCodes) {
            SCOPED_TRACE("from call " + std::to_string(index) + " on with " + std::to_string(code) + ": " +
                         Describe(clean.calls[index]));
            const ExpectedLoadThatKeepsFailing expected(cleanWithoutClosing,
                                                        CountWithoutClosing(clean.calls, index), code);
            const LoadOutcome outcome = Load([&](MemoryRegistry& registry) {
                prepare(registry);
                registry.FailCallsFrom(index, code);
            });
            EXPECT_EQ(outcome.result, expected.result);
            EXPECT_EQ(outcome.reports, expected.reports);
            const std::vector<RegistryCall> done(clean.calls.begin(),
                                                 clean.calls.begin() + static_cast<std::ptrdiff_t>(index));
            const RegistrySnapshot stored = Replay(before, done);
            EXPECT_EQ(Differences(stored, outcome.stored), "");
            EXPECT_EQ(outcome.keysLeftOpen, 0U);
            EXPECT_EQ(outcome.misuses, 0U);
            EXPECT_FALSE(outcome.state.isDirty);
            const store::ConfigurationState without =
                LoadWithout(stored, clean.state.profileNames, expected.missingValues);
            if (expected.result) {
                EXPECT_TRUE(outcome.state == without)
                    << "the records differ from those of a load without the values";
            } else {
                ExpectBeginningOf(without, outcome.state);
            }
            if (::testing::Test::HasFailure()) {
                return;
            }
        }
    }
}

TEST(LoadConfigurationFaults, EachCallOfALoadFailsWithEachCode) {
    FailEveryCallOfALoad(PutStoredConfiguration);
}

TEST(LoadConfigurationFaults, EachCallOfAFirstStartFailsWithEachCode) {
    FailEveryCallOfALoad(PutCatalogueOnly);
}

TEST(LoadConfigurationFaults, FromEachCallOfALoadOnEveryCallFails) {
    FailEveryCallFromThenOn(PutStoredConfiguration);
}

TEST(LoadConfigurationFaults, FromEachCallOfAFirstStartOnEveryCallFails) {
    FailEveryCallFromThenOn(PutCatalogueOnly);
}

}  // namespace
}  // namespace corvane::test
