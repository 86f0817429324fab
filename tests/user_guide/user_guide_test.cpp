// Follows docs/user_guide.md through the program and keeps the pictures that it shows.

#include <windows.h>

#include <algorithm>

#include "res/ids.h"
#include "tests/kit/audit/picture.h"
#include "tests/kit/driver/failure.h"
#include "tests/kit/driver/waiting.h"
#include "tests/kit/fixtures/journey_fixture.h"
#include "tests/kit/samples/worked_example.h"

namespace corvane::test {
namespace {

constexpr int kBlueness = 40;
constexpr wchar_t kInvoicesIn[] = L"C:\\Exchange\\Out\\Invoices";
constexpr wchar_t kInvoicesOut[] = L"C:\\Exchange\\Sent\\Invoices";
constexpr wchar_t kInvoicesError[] = L"C:\\Exchange\\Error\\Invoices";

class UserGuide : public RuleEditorTest {
  protected:
    void StartWithExample(const std::wstring& profile) {
        ImportWorkedExample();
        Start();
        OpenProfile(profile);
    }

    /// The window manager of the tests makes the caption bar of the active window blue, in its own time. A
    /// picture of an inactive window would be a blemish and no fault, so the wait is a short one.
    static void WaitUntilActive(const Window& dialog) {
        constexpr unsigned kLimitMilliseconds = 5000;
        constexpr int kHeightOfMenuAndMore = 30;
        static_cast<void>(WaitUntil(
            [&] {
                const RECT client = dialog.ClientBounds();
                const LONG x = client.left + (client.right - client.left) / 8;
                for (LONG y = client.top - 1; y > client.top - kHeightOfMenuAndMore; --y) {
                    const COLORREF colour = ScreenColour({x, y});
                    if (GetBValue(colour) > GetRValue(colour) + kBlueness) {
                        return true;
                    }
                }
                return false;
            },
            kLimitMilliseconds));
    }

    /// Keeps a picture of a dialog as it stands, once it has handled all that it was sent.
    static void Show(const Window& dialog, const std::string& name) {
        SettleDialog(dialog);
        WaitUntilActive(dialog);
        KeepPicture(dialog, name);
    }

    /// Opens the first rule of this operation, keeps a picture of it and leaves it as it is.
    void ShowRule(const std::wstring& operation, const std::string& name) {
        const Window dialog = OpenRuleOf(operation);
        Show(dialog, name);
        Close(dialog, IDCANCEL);
    }
    [[nodiscard]] Window OpenRuleOf(const std::wstring& operation) const {
        const Texts operations = Rules().Column(kOperationColumn);
        const auto found = std::find(operations.begin(), operations.end(), operation);
        if (found == operations.end()) {
            throw Failure(L"The example was expected to have a rule for \"" + operation + L"\".");
        }
        return OpenStored(static_cast<int>(found - operations.begin()));
    }
    /// Searches the network store and keeps a picture of the search.
    void SearchNetworkStoreShown(const Window& selection, const std::wstring& field,
                                 const std::wstring& sample) const {
        const Window filter = OpenFilter(Editor(), selection, field, sample);
        Show(filter, "filter");
        EndDialog(filter, IDOK);
    }
    /// Runs a command of the main window and waits for the dialog with this control.
    [[nodiscard]] Window OpenByMenu(int command, int controlId) const {
        Main().PostMenuCommand(command);
        return WaitForDialogWith(Editor(), Main(), controlId);
    }

  private:
    FoldersOfTest folders_{{kInvoicesIn, kInvoicesOut, kInvoicesError}};
};

TEST_F(UserGuide, TheMainWindow) {
    StartWithExample(L"Outgoing");
    SetWindowPos(Main().Handle(), nullptr, 0, 0, 1120, 470, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    Settle();
    Rules().Select({0});
    Settle();
    Show(Main(), "main_window");

    Rules().PostRightClick(Rules().CellCentre(0, kExtraColumn));
    const Window description = WaitForDialogWith(Editor(), Main(), IDC_WARNING_BOX_EDIT);
    Show(description, "rule_description");
    EndDialog(description, IDCANCEL);
}

TEST_F(UserGuide, ARuleThatEncrypts) {
    StartWithExample(L"Outgoing");
    const int before = Rules().RowCount();
    const Window dialog = OpenNew();
    Show(dialog, "rule_editor_add");
    dialog.Control(IDC_RULE_DESCRIPTION_EDIT).SetText(L"Invoices to the clearing house");
    dialog.Control(IDC_RULE_INPUT_EDIT).SetText(kInvoicesIn);
    dialog.Control(IDC_RULE_OUTPUT_EDIT).SetText(kInvoicesOut);
    dialog.Control(IDC_RULE_ERROR_EDIT).SetText(kInvoicesError);

    AddMaskByDialog(dialog, L"*.pdf");
    dialog.Control(IDC_RULE_ADD_MASK_BUTTON).PostClick();
    const Window mask = WaitForDialogWith(Editor(), dialog, IDC_MASK_COMBO);
    ChooseEntry(mask, IDC_MASK_COMBO, L"*.xml");
    Show(mask, "mask");
    EndDialog(mask, IDOK);

    dialog.Control(IDC_RULE_CERT_BUTTON).PostClick();
    const Window selection = WaitForDialogWith(Editor(), dialog, IDC_SELECTION_CHOSEN_LIST);
    SearchLocalStore(selection);
    SearchNetworkStoreShown(selection, L"Organization (O)", L"Northgate*");
    // Sorted, so that the pictures do not depend on the order in which the store is searched.
    ChooseEntry(selection, IDC_SELECTION_SORT_COMBO, L"Common name (CN)");
    TakeOwners(selection, {kHelenMarsh, kOliverTrent});
    CheckOwners(selection, {kDanielOkafor, kAstridLindholm});
    Show(selection, "recipient_selection");
    EndDialog(selection, IDOK);

    Show(dialog, "rule_editor_encrypt");
    Close(dialog, IDOK);
    EXPECT_EQ(Rules().RowCount(), before + 1);
    Press(IDC_SAVE_BUTTON);
    ExpectNothingToSave();
}

TEST_F(UserGuide, SignerLists) {
    StartWithExample(L"Incoming");
    const Window dialog = OpenRuleOf(L"Verify attached signature");
    dialog.Control(IDC_RULE_CERT_BUTTON).PostClick();
    const Window lists = WaitForDialogWith(Editor(), dialog, IDC_SIGNER_LISTS_EDIT_BUTTON);
    AddSignerListByDialog(Editor(), lists, {L"Dispatchers", {kErikSandberg, kAstridLindholm}});
    const ListView names(lists.Control(IDC_SIGNER_LISTS_LIST));
    names.Select({RowOf(names, L"Dispatchers")});
    Show(lists, "signer_lists");

    lists.Control(IDC_SIGNER_LISTS_EDIT_BUTTON).PostClick();
    const Window selection = WaitForDialogWith(Editor(), lists, IDC_SELECTION_CHOSEN_LIST);
    SearchLocalStore(selection);
    ChooseEntry(selection, IDC_SELECTION_SORT_COMBO, L"Common name (CN)");
    CheckOwners(selection, {kOliverTrent});
    Show(selection, "signer_selection");
    EndDialog(selection, IDCANCEL);
    EndDialog(lists, IDOK);
    Close(dialog, IDCANCEL);
}

TEST_F(UserGuide, TheOtherOperations) {
    StartWithExample(L"Archive");
    ShowRule(L"Move", "rule_editor_move");
    ShowRule(L"Pack files", "rule_editor_pack");
    OpenProfile(L"Outgoing");
    ShowRule(L"Resign", "rule_editor_resign");
    ShowRule(L"Execute", "rule_editor_execute");
}

TEST_F(UserGuide, ProfilesAndTheirCsProfiles) {
    StartWithExample(L"Outgoing");
    const Window dialog = OpenByMenu(IDM_EDIT_PROFILE, IDC_PROFILE_CS_PROFILE_LIST);
    Show(dialog, "profile_editor");
    dialog.Control(IDC_PROFILE_ADD_CS_PROFILE_BUTTON).PostClick();
    const Window choice = WaitForDialogWith(Editor(), dialog, IDC_CS_PROFILE_CHOICE_COMBO);
    ChooseEntry(choice, IDC_CS_PROFILE_CHOICE_COMBO, L"Archive");
    Show(choice, "cs_profile_choice");
    EndDialog(choice, IDOK);
    EndDialog(dialog, IDCANCEL);
}

TEST_F(UserGuide, ExtensionsAndLog) {
    StartWithExample(L"Outgoing");
    const Window configurations = OpenByMenu(IDM_CONFIGURATIONS, IDC_CONFIG_ADDITIONAL_LIST);
    Show(configurations, "configurations");
    EndDialog(configurations, IDCANCEL);
    const Window logSettings = OpenByMenu(IDM_LOG_PATH, IDC_LOG_SIZE_EDIT);
    Show(logSettings, "log_settings");
    EndDialog(logSettings, IDCANCEL);
}

}  // namespace
}  // namespace corvane::test
