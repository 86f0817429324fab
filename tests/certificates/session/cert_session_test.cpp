#include "certificates/session/cert_session.h"

#include <gmock/gmock.h>

#include "reporting/message_styles.h"
#include "tests/certificates/provider_fixture.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CertSessionTest : public CertsFixture {
  protected:
    CertSessionTest() {
        registry_.PutKey(kProgramKeyPath);
        profile_.csProfiles = {L"first", L"\x0433\x043B\x0430\x0432\x043D\x044B\x0439"};
        profile_.notUseDirectory = {1, 1};
        profile_.notLoadCrl = {1, 1};
        profile_.crlUpdatePeriods = {24, 24};
    }

    std::optional<certificates::CertSession> Open(
        std::size_t index = 0, certificates::CertificateUse use = certificates::CertificateUse::kRecipients) {
        return certificates::OpenCertSession(owner_, profile_, index, use, waitWindow_, services_);
    }

    store::Profile profile_;
};

TEST_F(CertSessionTest, OpensBehindTheWaitWindow) {
    const std::optional<certificates::CertSession> session = Open();
    ASSERT_TRUE(session);
    EXPECT_EQ(session->context.Get(), ScriptedSessions::kFirstContext);
    EXPECT_THAT(sessions_.log, ElementsAre("show wait window", "initialize", "destroy wait window"));
    EXPECT_EQ(waitWindow_.lastParent, owner_);
    EXPECT_EQ(waitWindow_.lastText, L"Please, wait, cryptocontext initialization can take up to 30 seconds.");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(CertSessionTest, PassesTheNarrowNameAndTheFlagsOfTheSelectedCsProfile) {
    profile_.notCopyToLocal = {0, 1};
    profile_.useAuthorityAccess = {0, 1};
    ASSERT_TRUE(Open(1));
    EXPECT_THAT(sessions_.Initializations(),
                ElementsAre(InitializeCall{"\xE3\xEB\xE0\xE2\xED\xFB\xE9", 0x80000465}));
}

TEST_F(CertSessionTest, WithoutNetworkStoreAndCrlNothingElseIsCalled) {
    const std::optional<certificates::CertSession> session = Open();
    ASSERT_TRUE(session);
    EXPECT_THAT(sessions_.Initializations(), ElementsAre(InitializeCall{"first", 0x80000045}));
    EXPECT_EQ(sessions_.CallCount(), 1U);
    EXPECT_THAT(registry_.Calls(), IsEmpty());
    EXPECT_FALSE(session->isNetworkStoreAvailable);
}

TEST_F(CertSessionTest, TheSettingsAreThoseOfTheCsProfileAndTheUse) {
    profile_.timeStampServers = {L"tsp"};
    EXPECT_EQ(Open()->settings, certificates::SearchSettingsOf(store::CsProfileAt(profile_, 0),
                                                               certificates::CertificateUse::kRecipients));
    EXPECT_EQ(Open(0, certificates::CertificateUse::kSigners)->settings,
              certificates::SearchSettingsOf(store::CsProfileAt(profile_, 0),
                                             certificates::CertificateUse::kSigners));
}

TEST_F(CertSessionTest, IsClosedWithItsEnd) {
    static_cast<void>(Open());
    EXPECT_THAT(sessions_.Closed(), ElementsAre(ScriptedSessions::kFirstContext));
}

TEST_F(CertSessionTest, AFailedInitializationIsShownInAnErrorBoxWithTheStackOfContextZero) {
    sessions_.initializeStatus = 0xE0000005;
    Reports().provider.SetErrorText(0xE0000005, "No such profile.");
    Reports().provider.PushError(0, {"Bad name", "init.c", 4, "first"});
    EXPECT_FALSE(Open());
    EXPECT_THAT(warnings_.warnings,
                ElementsAre(ShownWarning{owner_,
                                         L"Cryptocontext initialization.\r\n"
                                         L"XSIG error 0xE0000005 - No such profile.\r\n\r\n"
                                         L"XSIG stek, error number 1\r\nError: Bad name\r\nFile: init.c\r\n"
                                         L"Data: first\r\n",
                                         L"", certificates::WarningMode::kError}));
    EXPECT_THAT(sessions_.log,
                ElementsAre("show wait window", "initialize", "destroy wait window", "warning"));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(CertSessionTest, AnEmptyErrorStackAddsNothing) {
    sessions_.initializeStatus = 0xFFFFFFFF;
    EXPECT_FALSE(Open());
    ASSERT_EQ(warnings_.warnings.size(), 1U);
    EXPECT_EQ(warnings_.warnings[0].text,
              L"Cryptocontext initialization.\r\nError 0xFFFFFFFF - Bad parameter.\r\n\r\n");
}

TEST_F(CertSessionTest, AMissingLibraryIsReportedOnceWithTheSystemsCodeAndNoWindowIsShown) {
    Reports().provider.MakeMissing();
    EXPECT_FALSE(Open());
    EXPECT_THAT(Boxes(), ElementsAre(ShownBox{owner_,
                                              L"Loading crypto provider library (tarn1.dll).\r\n"
                                              L"Error 0x7E - System text 126.",
                                              reporting::AppTitle, reporting::kErrorStyle}));
    EXPECT_THAT(sessions_.log, IsEmpty());
    EXPECT_FALSE(Open());
    EXPECT_EQ(Boxes().size(), 2U);
}

TEST_F(CertSessionTest, AnAnsweringNetworkStoreMayBeSearched) {
    profile_.notUseDirectory = {0};
    const std::optional<certificates::CertSession> session = Open();
    ASSERT_TRUE(session);
    EXPECT_TRUE(session->isNetworkStoreAvailable);
    EXPECT_THAT(sessions_.log,
                ElementsAre("show wait window", "initialize", "destroy wait window", "find", "free result"));
}

TEST_F(CertSessionTest, GoesOnWithoutANetworkStoreIfTheUserWants) {
    profile_.notUseDirectory = {0};
    sessions_.findStatus = 0xE0700001;
    Reports().presenter.AnswerNext(reporting::kAnswerOk);
    const std::optional<certificates::CertSession> session = Open();
    ASSERT_TRUE(session);
    EXPECT_FALSE(session->isNetworkStoreAvailable);
}

TEST_F(CertSessionTest, IsClosedWhenTheUserStopsAtTheNetworkStore) {
    profile_.notUseDirectory = {0};
    profile_.notLoadCrl = {0};
    sessions_.findStatus = 0xE0700001;
    Reports().presenter.AnswerNext(reporting::kAnswerCancel);
    EXPECT_FALSE(Open());
    EXPECT_THAT(sessions_.Closed(), ElementsAre(ScriptedSessions::kFirstContext));
    EXPECT_THAT(sessions_.Controls(), IsEmpty());
}

TEST_F(CertSessionTest, AFailureToCloseAfterAStopIsReported) {
    profile_.notUseDirectory = {0};
    sessions_.findStatus = 0xE0700001;
    sessions_.uninitializeStatus = 6;
    Reports().presenter.AnswerNext(reporting::kAnswerCancel);
    EXPECT_FALSE(Open());
    ASSERT_EQ(Boxes().size(), 2U);
    EXPECT_EQ(Boxes()[1].text, L"Cryptocontext uninitialization.\r\nError 0x6 - System text 6.");
}

TEST_F(CertSessionTest, TheRevocationListsAreRefreshedAfterTheNetworkStoreCheck) {
    profile_.notUseDirectory = {0};
    profile_.notLoadCrl = {0};
    ASSERT_TRUE(Open());
    EXPECT_THAT(sessions_.log, ElementsAre("show wait window", "initialize", "destroy wait window", "find",
                                           "free result", "control", "uninitialize"));
}

TEST_F(CertSessionTest, WithAPeriodBelowOneNoRevocationListIsLoaded) {
    profile_.notLoadCrl = {0};
    for (const std::int32_t period : {0, -1}) {
        profile_.crlUpdatePeriods = {period};
        ASSERT_TRUE(Open());
    }
    EXPECT_THAT(sessions_.Controls(), IsEmpty());
    EXPECT_THAT(registry_.Calls(), IsEmpty());
    profile_.crlUpdatePeriods = {1};
    ASSERT_TRUE(Open());
    EXPECT_EQ(sessions_.Controls().size(), 1U);
}

TEST_F(CertSessionTest, IsClosedWhenTheUserStopsAtTheRevocationLists) {
    profile_.notLoadCrl = {0};
    sessions_.controlStatus = 0xE0700001;
    sessions_.controlText = "no route";
    Reports().presenter.AnswerNext(reporting::kAnswerCancel);
    EXPECT_FALSE(Open());
    EXPECT_THAT(sessions_.Closed(), ElementsAre(ScriptedSessions::kFirstContext));
}

TEST_F(CertSessionTest, TheUserIsKeptOutOfEveryCallOfTheProvider) {
    profile_.notUseDirectory = {0};
    profile_.notLoadCrl = {0};
    std::vector<std::string> shut;
    sessions_.during = [&](const std::string& name) {
        if (input_.IsShut()) {
            shut.push_back(name);
        }
    };
    static_cast<void>(Open());
    EXPECT_THAT(shut, ElementsAre("initialize", "find", "control", "uninitialize"));
}

TEST_F(CertSessionTest, TheUserIsKeptOutAsLongAsTheWaitWindowStands) {
    class Watcher : public certificates::WaitWindow {
      public:
        explicit Watcher(const RecordingInputGate& input) : input_(input) {}
        void Show(toolkit::WindowHandle /*parent*/, const std::wstring& /*text*/) override {
            wasShutAtShow = input_.IsShut();
        }
        void Destroy() override { wasShutAtDestroy = input_.IsShut(); }
        bool wasShutAtShow = false;
        bool wasShutAtDestroy = false;

      private:
        const RecordingInputGate& input_;
    } watcher(input_);
    ASSERT_TRUE(certificates::OpenCertSession(owner_, profile_, 0, certificates::CertificateUse::kSigners,
                                              watcher, services_));
    EXPECT_TRUE(watcher.wasShutAtShow);
    EXPECT_TRUE(watcher.wasShutAtDestroy);
}

TEST_F(CertSessionTest, WhatTheUserHasToAnswerFindsTheGateOpen) {
    profile_.notUseDirectory = {0};
    sessions_.findStatus = 0xE0700001;
    bool wasShut = true;
    warnings_.onShow = [&] { wasShut = input_.IsShut(); };
    Reports().presenter.AnswerNext(reporting::kAnswerOk);
    ASSERT_TRUE(Open());
    EXPECT_FALSE(wasShut);
}

TEST_F(CertSessionTest, ASecondOneIsNotBegunInTheMiddleOfAnOpening) {
    profile_.notUseDirectory = {0};
    profile_.notLoadCrl = {0};
    std::size_t second = 0;
    sessions_.during = [&](const std::string& name) {
        if (name != "uninitialize") {
            second += Open() ? 1U : 0U;
        }
    };
    ASSERT_TRUE(Open());
    EXPECT_EQ(second, 0U);
    EXPECT_EQ(sessions_.Initializations().size(), 1U);
    sessions_.during = nullptr;
    EXPECT_TRUE(Open()) << "Afterwards one is opened as ever.";
}

TEST_F(CertSessionTest, ASecondOneIsNotBegunBehindAWarning) {
    profile_.notUseDirectory = {0};
    sessions_.findStatus = 0xE0700001;
    warnings_.onShow = [&] { EXPECT_FALSE(Open()); };
    Reports().presenter.AnswerNext(reporting::kAnswerCancel);
    EXPECT_FALSE(Open());
    EXPECT_EQ(sessions_.Initializations().size(), 1U);
    EXPECT_EQ(warnings_.warnings.size(), 1U);
}

TEST_F(CertSessionTest, AfterAFailureTheNextOneIsBegun) {
    sessions_.initializeStatus = 5;
    EXPECT_FALSE(Open());
    sessions_.initializeStatus = 0;
    EXPECT_TRUE(Open());
}

TEST_F(CertSessionTest, ListsThatAreTooShortGiveTheirDefaults) {
    profile_ = store::Profile();
    const std::optional<certificates::CertSession> session = Open(5);
    ASSERT_TRUE(session);
    EXPECT_THAT(sessions_.Initializations(), ElementsAre(InitializeCall{"", 0x80000044}));
    EXPECT_FALSE(session->isNetworkStoreAvailable);
}

}  // namespace
}  // namespace corvane::test
