// What the windows behind can do while a cryptocontext is being opened, searched in or closed.

#include <windows.h>

#include <cstdlib>

#include "tests/kit/fixtures/session_fixture.h"
#include "tests/kit/scriptable_library/held_call.h"

namespace corvane::test {
namespace {

/// The real rule editor, on a rule of a profile whose CS profile asks the network store.
class ModalityTest : public SessionTest {
  protected:
    ModalityTest() {
        CheckNetworkStoreOnly();
        script.ErrorText(0xE0700041, "The store does not answer");
    }

    /// Starts the editor and opens the only rule.
    Window OpenRuleEditor() {
        WriteProfile(L"alpha", {L"Clearing"});
        const std::wstring profile = std::wstring(kProgramKey) + L"\\alpha";
        WriteRegistryValue(profile, L"NotUseLDAP", Texts{std::to_wstring(setup.csProfile.notUseDirectory)});
        WriteRegistryValue(profile, L"NotLoadCrl", Texts{std::to_wstring(setup.csProfile.notLoadCrl)});
        StoredRule rule = PlainRule(L"ENCR", L"only");
        rule.values[L"ZCSProfile"] = L"Clearing";
        rule.recipients = {L"CN=Anna,C=GB"};
        WriteRule(L"alpha", 0, rule);
        StartEditor();
        ListView(Main().Control(IDC_RULE_LIST)).Select({0});
        Main().Control(IDC_EDIT_RULE_BUTTON).PostClick();
        return WaitForDialogOf(Main());
    }

    static void PressCertificates(const Window& editor) { editor.Control(IDC_RULE_CERT_BUTTON).PostClick(); }

    /// Gives the windows behind whatever commands a user or another program could give them.
    void CommandEverythingBehind(const Window& editor) const {
        for (const int button :
             {IDC_RULE_CERT_BUTTON, IDC_RULE_ADD_MASK_BUTTON, IDC_RULE_INPUT_BUTTON, IDOK, IDCANCEL}) {
            editor.Control(button).PostClick();
            editor.Post(WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                        reinterpret_cast<LPARAM>(editor.Control(button).Handle()));
        }
        editor.Post(WM_CLOSE);
        for (const int command :
             {IDC_ADD_RULE_BUTTON, IDC_DELETE_RULE_BUTTON, IDC_LOG_PATH_BUTTON, IDCANCEL}) {
            Main().PostMenuCommand(command);
        }
        Main().Post(WM_SYSCOMMAND, SC_CLOSE);
    }

    /// Comes back when all that was posted to the editor so far has been handled.
    static void SettleBehind(const Window& editor) { Settle(editor); }

    [[nodiscard]] std::size_t WindowCount() const { return Program().TopLevelWindows().size(); }

    static void ExpectCentredOver(const Window& window, const Window& behind) {
        const RECT inner = window.Bounds();
        const RECT outer = behind.Bounds();
        EXPECT_LE(std::abs((inner.left + inner.right) - (outer.left + outer.right)), 2);
        EXPECT_LE(std::abs((inner.top + inner.bottom) - (outer.top + outer.bottom)), 2);
    }
};

TEST_F(ModalityTest, TheWarningWithoutOwnerDisablesEveryOtherWindowAndStandsOverTheEditor) {
    script.Status("FindCert", 1, 0xE0700041);
    const Window editor = OpenRuleEditor();
    MoveWindow(editor.Handle(), 700, 500, editor.Bounds().right - editor.Bounds().left,
               editor.Bounds().bottom - editor.Bounds().top, TRUE);
    PressCertificates(editor);
    const Window box = WaitForWarningBox(Window());
    EXPECT_FALSE(editor.IsEnabled());
    EXPECT_FALSE(Main().IsEnabled());
    ExpectCentredOver(box, editor);
    box.Control(IDCANCEL).PostClick();
    WaitForMessageBox(editor).Answer(IDCANCEL);
    editor.WaitUntilEnabled();
    EXPECT_FALSE(Main().IsEnabled()) << "It is behind the editor still.";
}

TEST_F(ModalityTest, BehindTheWarningNothingCanBeDone) {
    script.Status("FindCert", 1, 0xE0700041);
    const Window editor = OpenRuleEditor();
    PressCertificates(editor);
    const Window box = WaitForWarningBox(Window());
    editor.Control(IDC_RULE_DESCRIPTION_EDIT).SetText(L"typed meanwhile");
    const std::size_t windows = WindowCount();
    CommandEverythingBehind(editor);
    SettleBehind(editor);
    EXPECT_EQ(WindowCount(), windows);
    EXPECT_TRUE(editor.IsLive());
    EXPECT_EQ(Calls("Initialize").size(), 1U) << "a second cryptocontext is opened inside the first";
    box.Control(IDCANCEL).PostClick();
    WaitForMessageBox(editor).Answer(IDOK);
    const Window selection = WaitForDialogOf(editor);
    selection.Control(IDCANCEL).PostClick();
    selection.WaitUntilGone();
    editor.WaitUntilEnabled();
    SettleBehind(editor);
    EXPECT_EQ(Utf8(editor.Control(IDC_RULE_DESCRIPTION_EDIT).Text()), "typed meanwhile");
    EXPECT_EQ(Calls("Initialize").size(), 1U);
}

TEST_F(ModalityTest, TheFocusIsBackWhereItWasAfterTheWarning) {
    script.Status("FindCert", 1, 0xE0700041);
    const Window editor = OpenRuleEditor();
    const Window button = editor.Control(IDC_RULE_CERT_BUTTON);
    button.PostLeftClick({5, 5});
    WaitForWarningBox(Window()).Control(IDCANCEL).PostClick();
    WaitForMessageBox(editor).Answer(IDCANCEL);
    editor.WaitUntilEnabled();
    button.WaitForFocus();
}

TEST_F(ModalityTest, ALibraryThatHandlesMessagesLetsNothingBegin) {
    CheckNothing();
    HeldCall held(script, "Initialize", 1, HeldCall::Meanwhile::kHandlesMessages);
    const Window editor = OpenRuleEditor();
    PressCertificates(editor);
    const Window waitWindow = WaitForWaitWindow(Program());
    EXPECT_FALSE(editor.IsEnabled());
    EXPECT_FALSE(Main().IsEnabled());
    const std::size_t windows = WindowCount();
    CommandEverythingBehind(editor);
    SettleBehind(editor);
    EXPECT_EQ(WindowCount(), windows);
    EXPECT_TRUE(waitWindow.IsLive());
    held.Release();
    const Window selection = WaitForDialogOf(editor);
    EXPECT_EQ(Calls("Initialize").size(), 1U);
    EXPECT_EQ(WindowCount(), 3U) << "main window, rule editor and selection";
    selection.Control(IDCANCEL).PostClick();
    selection.WaitUntilGone();
    editor.WaitUntilEnabled();
}

TEST_F(ModalityTest, EveryCallThatMayTakeLongFindsTheWindowsDisabled) {
    setup.recipients = {L"CN=Anna,C=GB"};
    script.CertificateFor("CN=Anna,C=GB", "CN=Anna,C=GB");
    HeldCall probe(script, "FindCert", 1, HeldCall::Meanwhile::kHandlesMessages);
    HeldCall search(script, "FindCert", 2, HeldCall::Meanwhile::kHandlesMessages);
    HeldCall closing(script, "Uninitialize", 1, HeldCall::Meanwhile::kHandlesMessages);
    const Window editor = OpenRuleEditor();
    const auto waitUntilDisabled = [](const Window& window, const char* call) {
        EXPECT_TRUE(WaitUntil([&] { return !window.IsEnabled(); })) << call;
    };
    PressCertificates(editor);
    ASSERT_TRUE(WaitUntil([&] { return Calls("Initialize").size() == 1; }));
    waitUntilDisabled(editor, "the check of the network store");
    probe.Release();
    const Window selection = WaitForDialogOf(editor);
    selection.Control(IDC_SELECTION_FROM_STORE_BUTTON).PostClick();
    waitUntilDisabled(selection, "the search");
    selection.Post(WM_COMMAND, IDCANCEL);
    Settle(selection);
    EXPECT_TRUE(selection.IsVisible()) << "the dialog is closed under the search";
    search.Release();
    selection.WaitUntilEnabled();
    Settle(selection);
    selection.Control(IDOK).PostClick();
    selection.WaitUntilGone();
    waitUntilDisabled(editor, "the closing");
    closing.Release();
    editor.WaitUntilEnabled();
    SettleBehind(editor);
    ExpectNothingOut();
}

TEST_F(ModalityTest, LoadingRevocationListsFindsTheWindowsDisabled) {
    RefreshListsOnly();
    HeldCall loading(script, "Ctrl", 1, HeldCall::Meanwhile::kHandlesMessages);
    const Window editor = OpenRuleEditor();
    PressCertificates(editor);
    ASSERT_TRUE(WaitUntil([&] { return Calls("Initialize").size() == 1; }));
    EXPECT_TRUE(WaitUntil([&] { return !editor.IsEnabled(); }));
    const std::size_t windows = WindowCount();
    CommandEverythingBehind(editor);
    SettleBehind(editor);
    EXPECT_EQ(WindowCount(), windows);
    loading.Release();
    static_cast<void>(WaitForDialogOf(editor));
    EXPECT_EQ(Calls("Initialize").size(), 1U);
}

TEST_F(ModalityTest, InputThatCameWhileTheLibraryBlockedIsLost) {
    CheckNothing();
    HeldCall held(script, "Initialize", 1);
    script.Status("Initialize", 1, 0xE0700010);
    const Window editor = OpenRuleEditor();
    PressCertificates(editor);
    static_cast<void>(WaitForWaitWindow(Program()));
    const Window description = editor.Control(IDC_RULE_DESCRIPTION_EDIT);
    for (const WPARAM character : {L'l', L'o', L's', L't'}) {
        description.Post(WM_CHAR, character, 1);
    }
    editor.Control(IDCANCEL).PostLeftClick({5, 5});
    held.Release();
    WaitForWarningBox(editor).Control(IDCANCEL).PostClick();
    editor.WaitUntilEnabled();
    SettleBehind(editor);
    EXPECT_EQ(Utf8(description.Text()), "only");
    EXPECT_TRUE(editor.IsVisible());
}

/// The host takes the press of its button even while it is disabled, as other programs' windows may do.
TEST_F(ModalityTest, ASecondCryptocontextIsNotBegunInsideTheFirst) {
    CheckNothing();
    HeldCall held(script, "Initialize", 1, HeldCall::Meanwhile::kHandlesMessages);
    StartHost();
    PressOpen();
    static_cast<void>(WaitForWaitWindow(Program()));
    PressOpen();
    EXPECT_EQ(Result(), HostCancelled(2));
    EXPECT_TRUE(Calls("Initialize").empty()) << "The first is at work still.";
    held.Release();
    const Window selection = WaitForDialogOf(Main());
    EXPECT_EQ(Calls("Initialize").size(), 1U);
    selection.Control(IDCANCEL).PostClick();
    selection.WaitUntilGone();
}

}  // namespace
}  // namespace corvane::test
