#include "tests/kit/fixtures/session_fixture.h"

namespace corvane::test {
namespace {

constexpr char kAnna[] = "CN=Anna,C=GB";

class ClosingTest : public SessionTest {
  protected:
    ClosingTest() {
        CheckNothing();
        script.ErrorText(0xE0700050, "Still in use");
        script.CertificateFor(kAnna, kAnna);
    }

    /// Opens the signer lists dialog, and its "Edit" for the one list.
    void OpenFirstList(Window& lists, Window& selection) {
        setup.dialog = HostSetup::Dialog::kSignerLists;
        setup.lists = {{L"first", {L"CN=Anna,C=GB"}}};
        StartHost();
        lists = OpenDialog();
        ListView(lists.Control(IDC_SIGNER_LISTS_LIST)).Select({0});
        Settle(lists);
        lists.Control(IDC_SIGNER_LISTS_EDIT_BUTTON).PostClick();
        selection = WaitForDialogOf(lists);
    }
};

TEST_F(ClosingTest, FollowsAConfirmedChoiceOfRecipients) {
    setup.recipients = {L"CN=Anna,C=GB"};
    StartHost();
    EXPECT_EQ(Leave(OpenDialog(), IDOK), HostResult(1, setup.recipients));
    EXPECT_EQ(Calls().back(), "Uninitialize context=1 -> 0");
    ExpectNothingOut();
}

// Deliberate: the rule editor lets go of the context, so nothing is asked of the provider on the way back.
TEST_F(ClosingTest, DoesNotFollowACancelledChoiceOfRecipients) {
    StartHost();
    OpenAndCancel();
    EXPECT_TRUE(Calls("Uninitialize").empty());
    EXPECT_EQ(Out(), "contexts=1 results=0 texts=0 wrong=0");
}

// Contexts that were let go are open in it as long as it is loaded.
TEST_F(ClosingTest, LeavesTheLibraryLoadedUntilTheProgramIsGone) {
    StartHost();
    OpenAndCancel();
    Main().Post(WM_CLOSE);
    EXPECT_EQ(Program().WaitForEnd(), 0U);
    EXPECT_EQ(Calls("Initialize").size(), 1U);
    EXPECT_TRUE(Calls("Unload").empty());
}

TEST_F(ClosingTest, FailsAndIsReportedAfterAConfirmedChoice) {
    setup.recipients = {L"CN=Anna,C=GB"};
    script.Status("Uninitialize", 1, 0xE0700050);
    script.Error(1, "not shown", "not shown", 1, "not shown");
    StartHost();
    OpenDialog().Control(IDOK).PostClick();
    ExpectMessageBox(Main(), ProviderReport(kClosingOperation, L"0xE0700050", L"Still in use"), kBoxReport,
                     IDOK);
    EXPECT_EQ(Result(), HostResult(1, setup.recipients)) << "the choice is made all the same";
    EXPECT_EQ(Calls("Uninitialize").size(), 1U);
}

TEST_F(ClosingTest, FollowsAConfirmedSignerList) {
    Window lists;
    Window selection;
    OpenFirstList(lists, selection);
    selection.Control(IDOK).PostClick();
    lists.WaitUntilEnabled();
    Settle(lists);
    EXPECT_EQ(Calls().back(), "Uninitialize context=1 -> 0");
    ExpectNothingOut();
}

TEST_F(ClosingTest, FollowsACancelledSignerListToo) {
    Window lists;
    Window selection;
    OpenFirstList(lists, selection);
    selection.Control(IDCANCEL).PostClick();
    lists.WaitUntilEnabled();
    Settle(lists);
    EXPECT_EQ(Calls().back(), "Uninitialize context=1 -> 0");
    ExpectNothingOut();
}

TEST_F(ClosingTest, FailsAndIsReportedToTheSignerListsDialog) {
    script.Status("Uninitialize", 1, 0xE0700050);
    Window lists;
    Window selection;
    OpenFirstList(lists, selection);
    selection.Control(IDCANCEL).PostClick();
    ExpectMessageBox(lists, ProviderReport(kClosingOperation, L"0xE0700050", L"Still in use"), kBoxReport,
                     IDOK);
    lists.WaitUntilEnabled();
    EXPECT_EQ(Leave(lists, IDOK), HostResult(1, setup.lists));
}

TEST_F(ClosingTest, OpensANewContextForEachDialog) {
    StartHost();
    EXPECT_EQ(Leave(OpenDialog(), IDOK), HostResult(1, store::TextList{}));
    EXPECT_EQ(Leave(OpenDialog(), IDOK), HostResult(2, store::TextList{}));
    EXPECT_EQ(MainCalls(Calls()),
              (std::vector<std::string>{
                  "Initialize name=\"Clearing\" flags=80000045 -> 0", "Uninitialize context=1 -> 0",
                  "Initialize name=\"Clearing\" flags=80000045 -> 0", "Uninitialize context=2 -> 0"}));
}

}  // namespace
}  // namespace corvane::test
