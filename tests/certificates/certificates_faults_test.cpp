#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "certificates/group_file/group_file.h"
#include "certificates/selection/selection_form.h"
#include "tests/kit/fakes/memory_files.h"
#include "tests/kit/fakes/memory_registry.h"
#include "tests/kit/fakes/recording_input_gate.h"
#include "tests/kit/fakes/scripted_sessions.h"
#include "tests/kit/fixtures/reporter_fixture.h"

// A choice of recipients and a group file with each call to the provider, the registry and the file system
// failing in turn, with the codes of every family. Nothing that was handed out is kept, what the user had
// chosen stays, and no failure goes by unseen unless it may.

namespace corvane::test {
namespace {

constexpr std::array<std::uint32_t, 6> kStatuses = {1,          0x80070005, 0xE0000005,
                                                    0xE0700046, 0xFFFFFFF7, 0xFFFFFFFF};
constexpr std::array<std::uint32_t, 5> kCodes = {2, 5, 32, 112, 1117};
constexpr wchar_t kProgramKeyPath[] = L"SOFTWARE\\HOLVAN\\tarntray";
constexpr wchar_t kPath[] = L"C:\\groups\\friends.grx";

class CountedWarnings : public certificates::WarningPresenter {
  public:
    void Show(toolkit::WindowHandle /*owner*/, const std::wstring& /*text*/, const std::wstring& /*title*/,
              certificates::WarningMode /*mode*/) override {
        ++count;
    }
    std::size_t count = 0;
};

class CountedWaitWindow : public certificates::WaitWindow {
  public:
    void Show(toolkit::WindowHandle /*parent*/, const std::wstring& /*text*/) override { ++shown; }
    void Destroy() override { --shown; }
    int shown = 0;
};

class StandingClock : public certificates::Clock {
  public:
    [[nodiscard]] std::int64_t SecondsSince1970() const override { return 1'600'000'000; }
};

// One whole session, from the opening of the context to its closing: the user searches the local store, adds
// all that is found and confirms; every question is answered with `answer`.
class Session final : public certificates::SelectionRun {
  public:
    Session() {
        profile_.csProfiles = {L"main"};
        profile_.notUseDirectory = {0};
        profile_.notLoadCrl = {0};
        profile_.crlUpdatePeriods = {1};
        registry.PutKey(kProgramKeyPath);
        sessions.controlText = "diagnosis";
        sessions.failedSearchesHandOut = true;
        sessions.certificates = {{"CN=A", 0x1C, "CN=Issuer", std::vector<std::uint8_t>{1, 2}},
                                 {std::nullopt, 0x1C, std::nullopt, std::nullopt}};
        for (const provider::ProviderContext context :
             {provider::ProviderContext{0}, ScriptedSessions::kFirstContext}) {
            reports.provider.PushError(context, {"text", "file", 1, std::nullopt});
        }
    }

    // What the user does in the dialog.
    bool Run(certificates::RecipientSelectionForm& form,
             const certificates::Cryptocontext& context) override {
        wasDialogShown = true;
        if (!form.SearchLocalStore(context, reports.reporter, nullptr)) {
            return false;
        }
        form.CheckAllFound(true);
        static_cast<void>(form.AddChecked());
        return reports.IsAccepted(form.Confirm(context, reports.reporter, nullptr), nullptr);
    }

    std::optional<corvane::store::TextList> Choose() {
        const certificates::CertServices services{sessions, reports.reporter, warnings, registry, clock,
                                                  input,    opening};
        const std::optional<corvane::certificates::ChosenRecipients> chosen =
            certificates::ChooseRecipients({nullptr, profile_, 0, waitWindow, services, *this}, {});
        return chosen ? std::optional(chosen->owners) : std::nullopt;
    }

    // What must hold whatever failed.
    void ExpectNothingKept() const {
        EXPECT_EQ(sessions.ResultsOut(), 0U);
        EXPECT_EQ(sessions.Misuses(), 0U);
        EXPECT_EQ(reports.provider.TextsOut(), 0U);
        EXPECT_EQ(reports.provider.WrongReleases(), 0U);
        EXPECT_EQ(registry.OpenKeys(), 0U);
        EXPECT_EQ(registry.Misuses(), 0U);
        EXPECT_EQ(waitWindow.shown, 0);
        EXPECT_TRUE(input.IsBalanced());
        EXPECT_FALSE(opening.isUnderWay);
    }

    ReporterFixture reports;
    ScriptedSessions sessions{reports.provider};
    MemoryRegistry registry;
    CountedWarnings warnings;
    CountedWaitWindow waitWindow;
    StandingClock clock;
    RecordingInputGate input;
    certificates::SessionOpening opening;
    bool wasDialogShown = false;

  private:
    store::Profile profile_;
};

// The order of the provider calls of an undisturbed session.
enum Call : std::size_t { kInitialize, kProbe, kLoadCrl, kSearchLocal, kResolve, kClose, kCallCount };

TEST(SessionFaults, AnUndisturbedSessionMakesTheseCalls) {
    Session session;
    EXPECT_EQ(session.Choose(), corvane::store::TextList{L"CN=A"});
    EXPECT_EQ(session.sessions.log,
              (std::vector<std::string>{"initialize", "find", "free result", "control", "find", "free result",
                                        "find", "free result", "uninitialize"}));
    EXPECT_EQ(session.sessions.CallCount(), std::size_t{kCallCount});
    EXPECT_EQ(session.reports.presenter.Boxes().size(), 0U);
    session.ExpectNothingKept();
}

TEST(SessionFaults, EveryProviderCallThatFailsIsShownAndLeavesNothingBehind) {
    for (const std::uint32_t status : kStatuses) {
        for (std::size_t call = 0; call < kCallCount; ++call) {
            SCOPED_TRACE("call " + std::to_string(call) + " fails with " + std::to_string(status));
            Session session;
            session.sessions.FailCall(call, status);
            const std::optional<corvane::store::TextList> result = session.Choose();
            session.ExpectNothingKept();
            const bool isNothingFoundByProbe = call == kProbe && status == provider::kStatusNothingFound;
            const std::size_t shown = session.warnings.count + session.reports.presenter.Boxes().size();
            EXPECT_EQ(shown > 0, !isNothingFoundByProbe);
            EXPECT_EQ(session.wasDialogShown, call != kInitialize);
            const bool endsTheChoice = call == kInitialize || call == kSearchLocal || call == kResolve;
            EXPECT_EQ(result.has_value(), !endsTheChoice);
            const bool isDropped = call == kSearchLocal || call == kResolve;
            EXPECT_EQ(session.sessions.OpenContexts(), isDropped ? 1U : 0U);
        }
    }
}

TEST(SessionFaults, TheUserMayStopAtTheNetworkStoreAndAtTheRevocationLists) {
    for (const std::uint32_t status : kStatuses) {
        for (const std::size_t call : {std::size_t{kProbe}, std::size_t{kLoadCrl}}) {
            if (call == kProbe && status == provider::kStatusNothingFound) {
                continue;
            }
            SCOPED_TRACE("call " + std::to_string(call) + " fails with " + std::to_string(status));
            Session session;
            session.sessions.FailCall(call, status);
            session.reports.presenter.AnswerNext(2);
            EXPECT_EQ(session.Choose(), std::nullopt);
            EXPECT_FALSE(session.wasDialogShown);
            EXPECT_EQ(session.sessions.OpenContexts(), 0U);
            session.ExpectNothingKept();
        }
    }
}

TEST(SessionFaults, EveryRegistryCallThatFailsIsReportedAndOnlyTheMissingKeyStops) {
    std::size_t calls = 0;
    {
        Session session;
        EXPECT_TRUE(session.Choose());
        calls = session.registry.Calls().size();
        ASSERT_GE(calls, 4U);
    }
    for (const std::uint32_t code : kCodes) {
        for (std::size_t call = 0; call < calls; ++call) {
            SCOPED_TRACE("call " + std::to_string(call) + " fails with " + std::to_string(code));
            Session session;
            session.registry.FailCall(call, code);
            const std::optional<corvane::store::TextList> result = session.Choose();
            session.ExpectNothingKept();
            const RegistryCall& failed = session.registry.Calls()[call];
            const bool isOpen = failed.operation == RegistryOperation::kOpen;
            EXPECT_EQ(result.has_value(), !isOpen);
            EXPECT_EQ(session.sessions.OpenContexts(), 0U);
            // A value that is missing and a key that does not close are no failures.
            const bool isMissing = failed.operation == RegistryOperation::kQuerySize && code == 2;
            const bool isSilent = isMissing || failed.operation == RegistryOperation::kClose;
            EXPECT_EQ(session.reports.presenter.Boxes().size(), isSilent ? 0U : 1U);
        }
    }
}

TEST(SessionFaults, ProviderCallsThatFailFromOneOnAreShownOneByOneUntilTheChoiceEnds) {
    // What is shown for each call that is made and fails: warnings, and boxes with reports and questions.
    constexpr std::array<std::size_t, kCallCount> kWarnings = {1, 1, 1, 0, 0, 0};
    constexpr std::array<std::size_t, kCallCount> kBoxes = {0, 1, 1, 1, 1, 1};
    for (const std::uint32_t status : kStatuses) {
        for (std::size_t first = 0; first < kCallCount; ++first) {
            SCOPED_TRACE("from call " + std::to_string(first) + " on with " + std::to_string(status));
            Session session;
            session.sessions.FailCallsFrom(first, status);
            EXPECT_EQ(session.Choose().has_value(), first == kClose);
            session.ExpectNothingKept();
            EXPECT_EQ(session.wasDialogShown, first != kInitialize);
            std::size_t warnings = 0;
            std::size_t boxes = 0;
            for (std::size_t call = first; call < session.sessions.CallCount(); ++call) {
                const bool isNothingFoundByProbe = call == kProbe && status == provider::kStatusNothingFound;
                warnings += isNothingFoundByProbe ? 0 : kWarnings[call];
                boxes += isNothingFoundByProbe ? 0 : kBoxes[call];
            }
            EXPECT_EQ(session.warnings.count, warnings);
            EXPECT_EQ(session.reports.presenter.Boxes().size(), boxes);
            const std::size_t lastMade =
                first <= kInitialize ? kInitialize : std::max<std::size_t>(first, kSearchLocal);
            EXPECT_EQ(session.sessions.CallCount(), lastMade + 1);
            const bool isDropped = lastMade == kSearchLocal || lastMade == kResolve;
            EXPECT_EQ(session.sessions.OpenContexts(), isDropped ? 1U : 0U);
        }
    }
}

TEST(SessionFaults, RegistryCallsThatFailFromOneOnAreReportedOneByOne) {
    std::vector<RegistryCall> clean;
    {
        Session session;
        EXPECT_TRUE(session.Choose());
        clean = session.registry.Calls();
    }
    for (const std::uint32_t code : kCodes) {
        for (std::size_t first = 0; first < clean.size(); ++first) {
            SCOPED_TRACE("from call " + std::to_string(first) + " on with " + std::to_string(code));
            Session session;
            session.registry.FailCallsFrom(first, code);
            const std::optional<corvane::store::TextList> result = session.Choose();
            session.ExpectNothingKept();
            const bool isWithoutKey = clean[first].operation == RegistryOperation::kOpen;
            EXPECT_EQ(result.has_value(), !isWithoutKey);
            EXPECT_EQ(session.sessions.OpenContexts(), 0U);
            std::size_t reports = isWithoutKey ? 1 : 0;
            for (std::size_t call = first; call < clean.size() && !isWithoutKey; ++call) {
                const bool isRead = clean[call].operation == RegistryOperation::kQuerySize;
                const bool isWritten = clean[call].operation == RegistryOperation::kSet;
                reports += isWritten || (isRead && code != 2) ? 1 : 0;
            }
            EXPECT_EQ(session.reports.presenter.Boxes().size(), reports);
        }
    }
}

class GroupFileFaults : public ::testing::Test {
  protected:
    GroupFileFaults() {
        settings_.signerMode = 0;
        form_.AddFound({L"CN=A", L"CN=B"});
        form_.CheckFound(1, true);
        files_.contents[kPath] = "CN=C\r\nCN=D\r\n";
        files_.LimitReads(5);
        files_.LimitWrites(3);
    }

    void ExpectOnlyTheFailure(std::size_t call) {
        EXPECT_EQ(reports_.presenter.Boxes().size(), 1U);
        EXPECT_EQ(files_.OpenHandles(), 0U);
        EXPECT_EQ(files_.Misuses(), 0U);
        EXPECT_LE(files_.Calls().size(), call + 2) << "the rest is not tried, only closed";
        EXPECT_EQ(form_.FoundRowCount(), 2U);
        EXPECT_EQ(form_.CheckedFoundOwners(), corvane::store::TextList{L"CN=B"});
    }

    ReporterFixture reports_;
    MemoryFiles files_;
    certificates::CertSearchSettings settings_;
    certificates::RecipientSelectionForm form_{settings_, {}, reports_.text};
};

class GroupFileFault : public GroupFileFaults,
                       public ::testing::WithParamInterface<std::tuple<std::uint32_t, std::size_t>> {
  protected:
    [[nodiscard]] static std::size_t CallIndex() { return std::get<1>(GetParam()); }
    void FailOne() { files_.FailCall(CallIndex(), std::get<0>(GetParam())); }
};

TEST_F(GroupFileFaults, LoadingMakesSixCallsAndSavingFour) {
    EXPECT_TRUE(certificates::LoadGroupFile(form_, kPath, files_, reports_.reporter, nullptr));
    EXPECT_EQ(files_.Calls().size(), 6U);
    EXPECT_TRUE(certificates::SaveGroupFile(form_, kPath, files_, reports_.reporter, nullptr));
    EXPECT_EQ(files_.Calls().size(), 10U);
}

class LoadFault : public GroupFileFault {};
class SaveFault : public GroupFileFault {};

TEST_P(LoadFault, IsReportedOnceAndLeavesTheLists) {
    FailOne();
    EXPECT_FALSE(certificates::LoadGroupFile(form_, kPath, files_, reports_.reporter, nullptr));
    ExpectOnlyTheFailure(CallIndex());
}

TEST_P(SaveFault, IsReportedOnceAndLeavesTheLists) {
    FailOne();
    EXPECT_FALSE(certificates::SaveGroupFile(form_, kPath, files_, reports_.reporter, nullptr));
    ExpectOnlyTheFailure(CallIndex());
}

INSTANTIATE_TEST_SUITE_P(EveryCall, LoadFault,
                         ::testing::Combine(::testing::ValuesIn(kCodes),
                                            ::testing::Range(std::size_t{0}, std::size_t{6})));
INSTANTIATE_TEST_SUITE_P(EveryCall, SaveFault,
                         ::testing::Combine(::testing::ValuesIn(kCodes),
                                            ::testing::Range(std::size_t{0}, std::size_t{4})));

}  // namespace
}  // namespace corvane::test
