// What is typed into the selection dialog is kept, whatever button is pressed.

#include <windows.h>

#include "tests/kit/driver/file_dialog.h"
#include "tests/kit/fixtures/selection_fixture.h"

namespace corvane::test {
namespace {

class SelectionTyping : public SelectionTest {
  protected:
    void OpenAndType() {
        script.Certificate(LibraryScriptWriter::kEvery, "CN=Ann,C=GB");
        OpenNewList();
        Control(IDC_SELECTION_LIST_NAME_EDIT).Type(L"Half a name");
        Control(IDC_SELECTION_FILTER_EDIT).Type(L"ann");
        ExpectTyped("typing");
    }
    void ExpectTyped(const std::string& after) const {
        SettleDialog();
        EXPECT_EQ(Control(IDC_SELECTION_LIST_NAME_EDIT).Text(), L"Half a name") << "after " << after;
        EXPECT_EQ(Control(IDC_SELECTION_FILTER_EDIT).Text(), L"ann") << "after " << after;
    }
};

TEST_F(SelectionTyping, SurvivesTheSearches) {
    OpenAndType();
    Press(IDC_SELECTION_FROM_STORE_BUTTON);
    ExpectTyped("a search of the local store");
    Control(IDC_SELECTION_FROM_NCS_BUTTON).PostClick();
    const Window filter = Program().WaitForDialog(Dialog());
    filter.Control(IDCANCEL).PostClick();
    filter.WaitUntilGone();
    Dialog().WaitUntilEnabled();
    ExpectTyped("giving up the filter of the network store");
}

TEST_F(SelectionTyping, SurvivesTheFileDialogsThatAreGivenUp) {
    OpenAndType();
    Press(IDC_SELECTION_FROM_STORE_BUTTON);
    Press(IDC_SELECTION_SELECT_ALL_BUTTON);
    for (const int button : {IDC_SELECTION_FROM_GROUP_BUTTON, IDC_SELECTION_SAVE_BUTTON}) {
        Control(button).PostClick();
        FileDialog(Program().WaitForDialog(Dialog())).GiveUp();
        Dialog().WaitUntilEnabled();
        ExpectTyped("button " + std::to_string(button));
    }
}

TEST_F(SelectionTyping, SurvivesTheButtonsOfTheLists) {
    OpenAndType();
    Press(IDC_SELECTION_FROM_STORE_BUTTON);
    for (const int button : {IDC_SELECTION_SELECT_ALL_BUTTON, IDC_SELECTION_ADD_BUTTON,
                             IDC_SELECTION_REMOVE_BUTTON, IDC_SELECTION_CLEAR_BUTTON}) {
        Press(button);
        ExpectTyped("button " + std::to_string(button));
    }
    Control(IDC_SELECTION_SAVE_BUTTON).PostClick();
    ExpectBox(L"No signers selected.", kBoxRefusal, IDOK);
    ExpectTyped("a refused save");
}

TEST_F(SelectionTyping, TheDeleteKeyDeletesACharacterInBothFields) {
    OpenAndType();
    for (const int id : {IDC_SELECTION_LIST_NAME_EDIT, IDC_SELECTION_FILTER_EDIT}) {
        const Window edit = Control(id);
        const std::wstring text = edit.Text();
        Dialog().Send(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(edit.Handle()), TRUE);
        edit.WaitForFocus();
        edit.Send(EM_SETSEL, 0, 0);
        edit.PostKey(VK_DELETE);
        edit.WaitForText(text.substr(1));
    }
}

}  // namespace
}  // namespace corvane::test
