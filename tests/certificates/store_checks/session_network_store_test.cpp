#include "tests/kit/fixtures/session_fixture.h"

namespace corvane::test {
namespace {

constexpr wchar_t kStoreQuestion[] = L"The store does not answer (0xE0700041).\r\nContinue without NCS?";

class NetworkStoreTest : public SessionTest {
  protected:
    NetworkStoreTest() {
        CheckNetworkStoreOnly();
        script.ErrorText(0xE0700041, "The store does not answer");
        script.Error(1, "no answer", "ldap.c", 77, "10.0.0.1");
    }

    void ExpectWarning() const {
        ExpectWarningBox(
            Window(), L"Warning:",
            ProviderReport(L"Conneting to network store (NCS)", L"0xE0700041", L"The store does not answer",
                           L"\r\n\r\nXSIG stek, error number 1\r\nError: no answer\r\n"
                           L"File: ldap.c\r\nData: 10.0.0.1\r\n"));
    }
};

TEST_F(NetworkStoreTest, IsAskedForACertificateThatNeedNotExist) {
    StartHost();
    const Window dialog = OpenDialog();
    EXPECT_TRUE(dialog.Control(IDC_SELECTION_FROM_NCS_BUTTON).IsEnabled());
    EXPECT_EQ(MainCalls(Calls()),
              (std::vector<std::string>{"Initialize name=\"Clearing\" flags=80000041 -> 0",
                                        kLastSearchOfCheck + std::string("0"),
                                        "FreeFindResult context=1 count=0 -> 0"}));
}

TEST_F(NetworkStoreTest, AnswersByFindingNothing) {
    script.Status("FindCert", 1, 0xE0700046);
    StartHost();
    const Window dialog = OpenDialog();
    EXPECT_TRUE(dialog.Control(IDC_SELECTION_FROM_NCS_BUTTON).IsEnabled());
    EXPECT_EQ(Calls("FreeFindResult").size(), 1U);
}

TEST_F(NetworkStoreTest, GivesBackWhatItFoundAfterAll) {
    script.Certificate(1, "CN=QQQ,C=RU");
    StartHost();
    EXPECT_TRUE(OpenDialog().Control(IDC_SELECTION_FROM_NCS_BUTTON).IsEnabled());
    EXPECT_EQ(Out(), "contexts=1 results=0 texts=0 wrong=0");
}

TEST_F(NetworkStoreTest, DoesNotAnswerAndIsDoneWithout) {
    script.Status("FindCert", 1, 0xE0700041);
    StartHost();
    PressOpen();
    ExpectWarning();
    ExpectMessageBox(Main(), kStoreQuestion, kBoxContinue, IDOK);
    const Window dialog = WaitForDialogOf(Main());
    EXPECT_FALSE(dialog.Control(IDC_SELECTION_FROM_NCS_BUTTON).IsEnabled());
    EXPECT_EQ(Calls("FreeFindResult").size(), 1U);
    EXPECT_EQ(Calls("GetErrorLineEx").front(), "GetErrorLineEx context=1 -> 0");
    EXPECT_EQ(Calls("FreeMem"), std::vector<std::string>(3, "FreeMem context=0 -> 0"));
    EXPECT_EQ(Out(), "contexts=1 results=0 texts=0 wrong=0");
}

TEST_F(NetworkStoreTest, DoesNotAnswerAndTheUserStops) {
    script.Status("FindCert", 1, 0xE0700041);
    StartHost();
    PressOpen();
    ExpectWarning();
    ExpectMessageBox(Main(), kStoreQuestion, kBoxContinue, IDCANCEL);
    EXPECT_EQ(Result(), HostCancelled(1));
    EXPECT_EQ(Calls("Uninitialize"), std::vector<std::string>{"Uninitialize context=1 -> 0"});
    ExpectNothingOut();
}

TEST_F(NetworkStoreTest, IsNotSearchedWhenTheUserClosesTheQuestion) {
    script.Status("FindCert", 1, 0xE0700041);
    StartHost();
    PressOpen();
    ExpectWarning();
    WaitForMessageBox(Main()).Dismiss();
    EXPECT_EQ(Result(), HostCancelled(1));
    ExpectNothingOut();
}

TEST_F(NetworkStoreTest, IsStoppedByAUserWhoIsToldThatClosingFailed) {
    script.Status("FindCert", 1, 0xE0700041);
    script.Status("Uninitialize", 1, 0xE0700050);
    script.ErrorText(0xE0700050, "Still in use.");
    StartHost();
    PressOpen();
    ExpectWarning();
    ExpectMessageBox(Main(), kStoreQuestion, kBoxContinue, IDCANCEL);
    ExpectMessageBox(Main(), ProviderReport(kClosingOperation, L"0xE0700050", L"Still in use"), kBoxReport,
                     IDOK);
    EXPECT_EQ(Result(), HostCancelled(1));
    EXPECT_EQ(Calls("Uninitialize").size(), 1U);
}

TEST_F(NetworkStoreTest, IsNotAskedWhereTheCsProfileDoesWithout) {
    CheckNothing();
    StartHost();
    const Window dialog = OpenDialog();
    EXPECT_FALSE(dialog.Control(IDC_SELECTION_FROM_NCS_BUTTON).IsEnabled());
    EXPECT_EQ(MainCalls(Calls()),
              std::vector<std::string>{"Initialize name=\"Clearing\" flags=80000045 -> 0"});
}

TEST_F(NetworkStoreTest, ShowsASystemCodeWithTheStack) {
    script.Status("FindCert", 1, 0x80070005);
    StartHost();
    PressOpen();
    ExpectWarningBox(Window(), L"Warning:",
                     ReportText(L"Conneting to network store (NCS)", 0x80070005,
                                L"\r\n\r\nXSIG stek, error number 1\r\nError: no answer\r\nFile: ldap.c\r\n"
                                L"Data: 10.0.0.1\r\n"));
    const std::wstring report = ReportText(L"", 0x80070005);
    const std::wstring description = report.substr(report.find(L" - ") + 3);
    ExpectMessageBox(
        Main(), description.substr(0, description.size() - 1) + L" (0x80070005).\r\nContinue without NCS?",
        kBoxContinue, IDCANCEL);
    EXPECT_EQ(Result(), HostCancelled(1));
}

TEST_F(NetworkStoreTest, IsCheckedForSignerListsToo) {
    setup.dialog = HostSetup::Dialog::kSignerLists;
    script.Status("FindCert", 1, 0xE0700041);
    StartHost();
    const Window lists = OpenDialog();
    lists.Control(IDC_SIGNER_LISTS_ADD_BUTTON).PostClick();
    ExpectWarning();
    ExpectMessageBox(lists, kStoreQuestion, kBoxContinue, IDOK);
    const Window dialog = WaitForDialogOf(lists);
    EXPECT_FALSE(dialog.Control(IDC_SELECTION_FROM_NCS_BUTTON).IsEnabled());
}

}  // namespace
}  // namespace corvane::test
