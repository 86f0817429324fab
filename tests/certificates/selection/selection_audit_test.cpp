#include "tests/kit/audit/dialog_audit.h"
#include "tests/kit/audit/picture.h"
#include "tests/kit/fixtures/selection_fixture.h"

namespace corvane::test {
namespace {

class SelectionAudit : public SelectionTest {
  protected:
    static void ExpectSound(const Window& dialog, const std::string& name) {
        dialog.Send(WM_NULL);
        KeepPicture(dialog, name);
        for (const std::wstring& fault : AllFaults(dialog)) {
            ADD_FAILURE() << Utf8(fault);
        }
    }
    /// Escape must do what the button that leaves does.
    static void LeaveByEscape(const Window& dialog) {
        dialog.FocusOfThread().PostKey(VK_ESCAPE);
        dialog.WaitUntilGone();
    }
};

TEST_F(SelectionAudit, Recipients) {
    OpenRecipients({L"CN=Helen Marsh,OU=Settlement,O=Northgate Clearing,C=GB",
                    L"CN=Astrid Lindholm,O=Lindholm Freight,C=SE"},
                   Library::kStandIn);
    Press(IDC_SELECTION_FROM_STORE_BUTTON);
    ClickHeader(Found());
    Check(Found(), {0, 2});
    ExpectSound(Dialog(), "recipients");
    LeaveByEscape(Dialog());
}

TEST_F(SelectionAudit, RecipientsWithoutANetworkStore) {
    setup.csProfile.notUseDirectory = 1;
    OpenRecipients();
    ExpectSound(Dialog(), "recipients_empty");
}

TEST_F(SelectionAudit, RecipientsInALargerWindow) {
    OpenRecipients({L"CN=Helen Marsh,OU=Settlement,O=Northgate Clearing,C=GB"}, Library::kStandIn);
    Press(IDC_SELECTION_FROM_STORE_BUTTON);
    const RECT bounds = Dialog().Bounds();
    SetWindowPos(Dialog().Handle(), nullptr, 0, 0, (bounds.right - bounds.left) * 5 / 4,
                 (bounds.bottom - bounds.top) * 5 / 4, SWP_NOZORDER | SWP_NOACTIVATE);
    SettleDialog();
    ExpectSound(Dialog(), "recipients_larger");
}

TEST_F(SelectionAudit, SignersOfAList) {
    OpenFirstList({{L"Board", {L"CN=Erik Sandberg,O=Lindholm Freight,C=SE"}}}, Library::kStandIn);
    Press(IDC_SELECTION_FROM_STORE_BUTTON);
    ExpectSound(Dialog(), "signers");
    LeaveByEscape(Dialog());
}

TEST_F(SelectionAudit, ALongListHasNoScrollBarBelow) {
    for (int i = 0; i < 60; ++i) {
        script.Certificate(LibraryScriptWriter::kEvery,
                           "CN=Owner " + std::to_string(100 + i) +
                               ",OU=A department with a long name,O=An organisation with a long name,C=GB");
    }
    OpenRecipients();
    Press(IDC_SELECTION_FROM_STORE_BUTTON);
    ExpectSound(Dialog(), "recipients_many");
    EXPECT_EQ(Found().Style() & WS_HSCROLL, 0U);
    EXPECT_NE(Found().Style() & WS_VSCROLL, 0U);
}

TEST_F(SelectionAudit, ExclusionReport) {
    script.Certificate(LibraryScriptWriter::kEvery, "CN=Ann,C=GB");
    OpenNewList({{L"Board", {L"CN=Ann,C=GB"}}});
    Press(IDC_SELECTION_FROM_STORE_BUTTON);
    Press(IDC_SELECTION_SELECT_ALL_BUTTON);
    Control(IDC_SELECTION_ADD_BUTTON).PostClick();
    const Window box = WaitForWarningBox(Dialog());
    ExpectSound(box, "excluded_signers");
    LeaveByEscape(box);
}

TEST_F(SelectionAudit, Filter) {
    OpenRecipients();
    Control(IDC_SELECTION_FROM_NCS_BUTTON).PostClick();
    const Window filter = Program().WaitForDialog(Dialog());
    ExpectSound(filter, "filter_empty");
    filter.Control(IDC_FILTER_FIELD_COMBO).Send(CB_SETCURSEL, 9);
    filter.Control(IDC_FILTER_SAMPLE_EDIT).SetText(L"*O=Northgate*");
    ExpectSound(filter, "filter");
    LeaveByEscape(filter);
}

}  // namespace
}  // namespace corvane::test
