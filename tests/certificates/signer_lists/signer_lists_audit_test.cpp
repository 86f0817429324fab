#include "tests/kit/audit/dialog_audit.h"
#include "tests/kit/audit/picture.h"
#include "tests/kit/driver/waiting.h"
#include "tests/kit/fixtures/session_fixture.h"
#include "tests/kit/scriptable_library/held_call.h"

namespace corvane::test {
namespace {

/// Far fewer than those of a short text in the smallest letters, and more than a frame could lend.
constexpr std::ptrdiff_t kPointsOfAText = 100;

class SignerListsAudit : public SessionTest {
  protected:
    SignerListsAudit() { CheckNothing(); }

    static void ExpectSound(const Window& dialog, const std::string& name) {
        dialog.Send(WM_NULL);
        KeepPicture(dialog, name);
        for (const std::wstring& fault : AllFaults(dialog)) {
            ADD_FAILURE() << Utf8(fault);
        }
    }
    static void LeaveByEscape(const Window& dialog) {
        dialog.FocusOfThread().PostKey(VK_ESCAPE);
        dialog.WaitUntilGone();
    }

    void OpenLists() {
        setup.dialog = HostSetup::Dialog::kSignerLists;
        setup.lists = {{L"Directors",
                        {L"CN=Helen Marsh,OU=Settlement,O=Northgate Clearing,C=GB",
                         L"CN=Erik Sandberg,O=Nordbank,C=SE"}},
                       {L"Auditors", {L"CN=Astrid Lindholm,O=Nordbank,C=SE"}}};
        StartHost();
        dialog_ = OpenDialog();
    }
    [[nodiscard]] const Window& Dialog() const { return dialog_; }

  private:
    Window dialog_;
};

TEST_F(SignerListsAudit, SignerLists) {
    OpenLists();
    ListView(Dialog().Control(IDC_SIGNER_LISTS_LIST)).Select({1});
    Settle(Dialog());
    ExpectSound(Dialog(), "signer_lists");
    LeaveByEscape(Dialog());
}

TEST_F(SignerListsAudit, SignerListsMadeLarger) {
    OpenLists();
    const RECT bounds = Dialog().Bounds();
    SetWindowPos(Dialog().Handle(), nullptr, 0, 0, (bounds.right - bounds.left) * 3 / 2,
                 (bounds.bottom - bounds.top) * 3 / 2, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    Settle(Dialog());
    ExpectSound(Dialog(), "signer_lists_larger");
    LeaveByEscape(Dialog());
}

TEST_F(SignerListsAudit, OneListInFull) {
    OpenLists();
    const ListView list(Dialog().Control(IDC_SIGNER_LISTS_LIST));
    list.PostRightClick(list.CellCentre(0, 0));
    const Window box = WaitForWarningBox(Dialog());
    ExpectSound(box, "signer_list_box");
    LeaveByEscape(box);
}

TEST_F(SignerListsAudit, QuestionBeforeDeleting) {
    OpenLists();
    ListView(Dialog().Control(IDC_SIGNER_LISTS_LIST)).Select({0, 1});
    Settle(Dialog());
    Dialog().Control(IDC_SIGNER_LISTS_DELETE_BUTTON).PostClick();
    const MessageBoxWindow box = WaitForMessageBox(Dialog());
    ExpectSound(box, "signer_lists_question");
    box.Answer(IDNO);
}

TEST_F(SignerListsAudit, WaitWindow) {
    setup.dialog = HostSetup::Dialog::kWaitWindow;
    StartHost();
    PressOpen();
    EXPECT_EQ(Result(), HostCancelled(1));
    const Window window = WaitForWaitWindow(Program());
    KeepPicture(window, "wait_window");
    // It has no button on purpose, so there is no default button to look for.
    for (const Faults& faults :
         {CutOffTexts(window), MisplacedControls(window), NamelessControls(window), ForeignColours(window)}) {
        for (const std::wstring& fault : faults) {
            ADD_FAILURE() << Utf8(fault);
        }
    }
}

TEST_F(SignerListsAudit, WaitWindowWhileTheLibraryIsAtWork) {
    const HeldCall held(script, "Initialize", 1);
    StartHost();
    PressOpen();
    const Window window = WaitForWaitWindow(Program());
    const RECT text = window.Control(IDC_WAIT_TEXT).Bounds();
    // The display shows what the program has painted in its own time; the program itself is held. A window
    // that is not painted yet is black all over, like the text.
    EXPECT_TRUE(WaitUntil([&] {
        return CountPoints(text, GetSysColor(COLOR_WINDOWTEXT)) > kPointsOfAText &&
               CountPoints(text, GetSysColor(COLOR_BTNFACE)) > kPointsOfAText;
    })) << "the text is not on the screen";
    KeepPictureAsPainted(window, "wait_window_at_work");
}

TEST_F(SignerListsAudit, FailedOpening) {
    script.Status("Initialize", 1, 0xE0700010);
    script.ErrorText(0xE0700010, "The CS profile does not exist");
    for (int i = 0; i < 6; ++i) {
        script.Error(0, "The key of the CS profile cannot be opened", "profile.c", 12, "Clearing");
    }
    StartHost();
    PressOpen();
    const Window box = WaitForWarningBox(Main());
    ExpectSound(box, "failed_opening");
    LeaveByEscape(box);
}

TEST_F(SignerListsAudit, NetworkStoreThatDoesNotAnswer) {
    CheckNetworkStoreOnly();
    script.Status("FindCert", 1, 0xE0700041);
    script.ErrorText(0xE0700041, "The network certificate store does not answer");
    script.Error(1, "Connection refused", "ldap.c", 77, "10.0.0.1:389");
    StartHost();
    PressOpen();
    const Window box = WaitForWarningBox(Window());
    ExpectSound(box, "network_store_warning");
    LeaveByEscape(box);
    const MessageBoxWindow question = WaitForMessageBox(Main());
    ExpectSound(question, "network_store_question");
    LeaveByEscape(question);
    EXPECT_EQ(Result(), HostCancelled(1));
}

TEST_F(SignerListsAudit, DistributionPointThatDoesNotAnswer) {
    RefreshListsOnly();
    CreateRegistryKey(kRefreshTimesKey);
    script.Status("Ctrl", 1, 0xE0700050);
    script.ErrorText(0xE0700050, "The CRL distribution point does not answer");
    script.ControlText("http://crl.example/clearing.crl: no answer");
    StartHost();
    PressOpen();
    const Window box = WaitForWarningBox(Window());
    ExpectSound(box, "revocation_lists_warning");
    LeaveByEscape(box);
    const MessageBoxWindow question = WaitForMessageBox(Main());
    ExpectSound(question, "revocation_lists_question");
    LeaveByEscape(question);
    EXPECT_EQ(Result(), HostCancelled(1));
}

}  // namespace
}  // namespace corvane::test
