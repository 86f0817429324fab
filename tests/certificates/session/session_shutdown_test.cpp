// Windows that shuts down while a certificate dialog is open.

#include <windows.h>

#include "tests/kit/fixtures/session_fixture.h"

namespace corvane::test {
namespace {

class ShutdownTest : public SessionTest {
  protected:
    ShutdownTest() {
        CheckNothing();
        script.Certificate(LibraryScriptWriter::kEvery, "CN=Emma,C=GB");
        setup.lists = {{L"Clerks", {L"CN=Clara,C=GB"}}};
        setup.recipients = {L"CN=Anna,C=GB"};
    }

    [[nodiscard]] static bool MayEnd(const Window& window) {
        return window.Send(WM_QUERYENDSESSION) != FALSE;
    }

    [[nodiscard]] Window OpenSelection(const Window& lists, int button) const {
        ListView(lists.Control(IDC_SIGNER_LISTS_LIST)).Select({0});
        Settle(lists);
        lists.Control(button).PostClick();
        return WaitForDialogOf(lists);
    }
    static void Press(const Window& dialog, int button) {
        dialog.Control(button).Click();
        Settle(dialog);
    }
};

TEST_F(ShutdownTest, AsksForRecipientsThatWereAdded) {
    StartHost();
    const Window dialog = OpenDialog();
    EXPECT_TRUE(MayEnd(dialog));
    Press(dialog, IDC_SELECTION_FROM_STORE_BUTTON);
    Press(dialog, IDC_SELECTION_SELECT_ALL_BUTTON);
    EXPECT_TRUE(MayEnd(dialog)) << "Nothing is chosen yet.";
    Press(dialog, IDC_SELECTION_ADD_BUTTON);
    EXPECT_FALSE(MayEnd(dialog));
    dialog.Send(WM_ENDSESSION, FALSE);
    EXPECT_EQ(Leave(dialog, IDCANCEL), HostCancelled(1));
}

TEST_F(ShutdownTest, AsksForTheNameOfASignerList) {
    setup.dialog = HostSetup::Dialog::kSignerLists;
    StartHost();
    const Window lists = OpenDialog();
    const Window dialog = OpenSelection(lists, IDC_SIGNER_LISTS_EDIT_BUTTON);
    EXPECT_TRUE(MayEnd(dialog));
    dialog.Control(IDC_SELECTION_LIST_NAME_EDIT).SetText(L"Others");
    EXPECT_FALSE(MayEnd(dialog));
    EXPECT_TRUE(MayEnd(lists)) << "The lists themselves are as they were.";
    dialog.Control(IDC_SELECTION_LIST_NAME_EDIT).SetText(L"Clerks");
    EXPECT_TRUE(MayEnd(dialog));
}

TEST_F(ShutdownTest, AsksForSignerListsThatWereChanged) {
    setup.dialog = HostSetup::Dialog::kSignerLists;
    StartHost();
    const Window lists = OpenDialog();
    EXPECT_TRUE(MayEnd(lists));
    ListView(lists.Control(IDC_SIGNER_LISTS_LIST)).Select({0});
    Settle(lists);
    lists.Control(IDC_SIGNER_LISTS_DELETE_BUTTON).PostClick();
    WaitForMessageBox(lists).Answer(IDYES);
    lists.WaitUntilEnabled();
    Settle(lists);
    EXPECT_FALSE(MayEnd(lists));
}

}  // namespace
}  // namespace corvane::test
