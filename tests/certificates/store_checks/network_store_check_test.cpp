#include "certificates/store_checks/network_store_check.h"

#include <gmock/gmock.h>

#include "reporting/message_styles.h"
#include "tests/certificates/provider_fixture.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class NetworkStore : public CertsFixture {
  protected:
    certificates::NetworkStoreCheck Check() {
        const certificates::Cryptocontext context = OpenContext();
        const certificates::NetworkStoreCheck check =
            certificates::CheckNetworkStore(owner_, context, Reporter(), warnings_);
        sessions_.log.emplace_back("checked");
        return check;
    }
};

TEST_F(NetworkStore, IsAskedForANameThatNeedNotExist) {
    EXPECT_EQ(Check(), certificates::NetworkStoreCheck::kAvailable);
    EXPECT_THAT(sessions_.Searches(),
                ElementsAre(FindCall{ScriptedSessions::kFirstContext, 0xE04, 0, "CN=QQQ,C=RU", 4, true}));
    EXPECT_THAT(sessions_.log, ElementsAre("initialize", "find", "free result", "checked", "uninitialize"));
}

TEST_F(NetworkStore, ThatFindsNothingAnswers) {
    sessions_.findStatus = 0xE0700046;
    EXPECT_EQ(Check(), certificates::NetworkStoreCheck::kAvailable);
    EXPECT_THAT(Boxes(), IsEmpty());
    EXPECT_THAT(warnings_.warnings, IsEmpty());
}

TEST_F(NetworkStore, WhateverTheProbeFindsIsGivenBack) {
    sessions_.certificates = {Certificate("CN=QQQ,C=RU")};
    EXPECT_EQ(Check(), certificates::NetworkStoreCheck::kAvailable);
    EXPECT_EQ(sessions_.ResultsHandedOut(), 1U);
}

TEST_F(NetworkStore, AFailedProbeGivesItsResultBackBeforeAnythingIsShown) {
    sessions_.findStatus = 0xE0700001;
    sessions_.failedSearchesHandOut = true;
    sessions_.certificates = {Certificate("CN=QQQ,C=RU")};
    EXPECT_EQ(Check(), certificates::NetworkStoreCheck::kGoOnWithout);
    EXPECT_EQ(sessions_.ResultsHandedOut(), 1U);
    EXPECT_THAT(sessions_.log,
                ElementsAre("initialize", "find", "free result", "warning", "checked", "uninitialize"));
}

TEST_F(NetworkStore, ThatDoesNotAnswerIsExplainedAndTheUserGoesOnWithoutIt) {
    sessions_.findStatus = 0xE0700001;
    Reports().provider.SetErrorText(0xE0700001, "No answer.\r\n");
    Reports().provider.PushError(ScriptedSessions::kFirstContext, {"Timeout", "net.c", 3, "ldap"});
    Reports().presenter.AnswerNext(reporting::kAnswerOk);
    EXPECT_EQ(Check(), certificates::NetworkStoreCheck::kGoOnWithout);
    EXPECT_THAT(warnings_.warnings,
                ElementsAre(ShownWarning{nullptr,
                                         L"Conneting to network store (NCS).\r\n"
                                         L"XSIG error 0xE0700001 - No answer.\r\n\r\n"
                                         L"XSIG stek, error number 1\r\nError: Timeout\r\nFile: net.c\r\n"
                                         L"Data: ldap\r\n",
                                         L"", certificates::WarningMode::kWarning}));
    EXPECT_THAT(Boxes(), ElementsAre(ShownBox{owner_, L"No answer (0xE0700001).\r\nContinue without NCS?",
                                              reporting::AppTitle, reporting::kContinueStyle}));
}

TEST_F(NetworkStore, CancelStops) {
    sessions_.findStatus = 0x80070005;
    Reports().presenter.AnswerNext(reporting::kAnswerCancel);
    EXPECT_EQ(Check(), certificates::NetworkStoreCheck::kStop);
}

TEST_F(NetworkStore, StatusesOfEveryFamilyAreNamedRight) {
    const std::pair<std::uint32_t, std::wstring> cases[] = {
        {0xFFFFFFFF, L"Error 0xFFFFFFFF - Bad parameter."},
        {0xFFFFFFF7, L"XSIG error 0xFFFFFFF7 - Bad parameter."},
        {0x80070005, L"Error 0x80070005 - System text 2147942405."},
        {0xE0000005, L"XSIG error 0xE0000005 - Error description not found."},
        {1, L"Error 0x1 - System text 1."},
    };
    for (const auto& [status, text] : cases) {
        warnings_.warnings.clear();
        sessions_.findStatus = status;
        EXPECT_EQ(Check(), certificates::NetworkStoreCheck::kGoOnWithout);
        ASSERT_EQ(warnings_.warnings.size(), 1U);
        EXPECT_EQ(warnings_.warnings[0].text, L"Conneting to network store (NCS).\r\n" + text + L"\r\n\r\n");
    }
}

}  // namespace
}  // namespace corvane::test
