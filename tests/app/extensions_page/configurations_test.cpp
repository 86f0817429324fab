#include <windows.h>

#include "tests/kit/driver/failure.h"
#include "tests/kit/driver/icon.h"
#include "tests/kit/driver/tool_tips.h"
#include "tests/kit/fixtures/profile_editor_fixture.h"

namespace corvane::test {
namespace {

/// The edits of the basic extensions, their labels and texts, their stored values and what "Apply" says of an
/// empty one.
struct Extension {
    int editId;
    int labelId;
    const wchar_t* label;
    const wchar_t* value;
    const wchar_t* stored;
    const wchar_t* refusal;
};

constexpr Extension kExtensions[] = {
    {IDC_CONFIG_SIGNED_EDIT, IDC_CONFIG_SIGNED_LABEL, L"Signed files:", L"SigExt", L"s1",
     L"Please, choose extension for files with attached signature."},
    {IDC_CONFIG_DETACHED_EDIT, IDC_CONFIG_DETACHED_LABEL, L"Files with detached signature:", L"DsigExt",
     L"s2", L"Please, choose extension for files with detached signature."},
    {IDC_CONFIG_ENCRYPTED_EDIT, IDC_CONFIG_ENCRYPTED_LABEL, L"Encrypted files:", L"EncExt", L"s3",
     L"Please, choose extension for encrypted files."},
    {IDC_CONFIG_BASE64_EDIT, IDC_CONFIG_BASE64_LABEL, L"Files in b64 format:", L"B64Ext", L"s4",
     L"Please, choose extension for b64 files."},
    {IDC_CONFIG_HASH_EDIT, IDC_CONFIG_HASH_LABEL, L"Hash files:", L"HashExt", L"s5",
     L"Please, choose extension for hash files."},
    {IDC_CONFIG_VERIFICATION_EDIT, IDC_CONFIG_VERIFICATION_LABEL,
     L"Files with signature verification report:", L"VerifyFileExt", L"s6",
     L"Please, choose extension for files with signature verification report."},
    {IDC_CONFIG_ZIP_EDIT, IDC_CONFIG_ZIP_LABEL, L"ZIP archives:", L"ZIPArchiveExt", L"s7", nullptr},
    {IDC_CONFIG_GZIP_EDIT, IDC_CONFIG_GZIP_LABEL, L"GZIP archives:", L"GZIPArchiveExt", L"s8", nullptr},
};

class Configurations : public EditorTest {
  protected:
    [[nodiscard]] Window StartAndOpen() {
        WriteSampleConfiguration();
        for (const Extension& extension : kExtensions) {
            WriteRegistryValue(kProgramKey, extension.value, std::wstring(extension.stored));
        }
        WriteRegistryValue(kProgramKey, L"ExtExt", Texts{L"xml", L"p7s", L"doc"});
        Start();
        return Open();
    }
    [[nodiscard]] Window Open() const {
        Main().PostMenuCommand(IDM_CONFIGURATIONS);
        return Editor().WaitForDialog(Main());
    }
    static void SettlePage(const Window& dialog) { SettleDialogOf(dialog.Control(IDC_CONFIG_SIGNED_EDIT)); }
    void Close(const Window& dialog, int buttonId) const {
        dialog.Control(buttonId).PostClick();
        dialog.WaitUntilGone();
        WaitForMain();
    }
    void AnswerBox(const Window& dialog, const std::wstring& text, unsigned style, int answer) const {
        ExpectMessageBox(dialog, text, style, answer);
        SettlePage(dialog);
    }
    /// OK must ask whether changes may be lost; Yes ends the dialog.
    void OkAnsweredWithYes(const Window& dialog) const {
        dialog.Control(IDOK).PostClick();
        ExpectMessageBox(dialog, kUnsavedQuestion, kConfirmation, IDYES);
        dialog.WaitUntilGone();
        WaitForMain();
    }
    [[nodiscard]] Window OpenAdd(const Window& dialog) const {
        dialog.Control(IDC_CONFIG_ADD_BUTTON).PostClick();
        return Editor().WaitForDialog(dialog);
    }
    void Add(const Window& dialog, const std::wstring& extension) const {
        const Window add = OpenAdd(dialog);
        add.Control(IDC_EXTENSION_EDIT).SetText(extension);
        add.Control(IDOK).PostClick();
        add.WaitUntilGone();
        dialog.WaitUntilEnabled();
        SettlePage(dialog);
    }
    static void Apply(const Window& dialog) {
        dialog.Control(IDC_CONFIG_APPLY_BUTTON).Click();
        SettlePage(dialog);
    }
    static void Select(const Window& dialog, int index) {
        dialog.Control(IDC_CONFIG_ADDITIONAL_LIST).Send(LB_SETCURSEL, static_cast<WPARAM>(index));
    }
    [[nodiscard]] static Texts Listed(const Window& dialog) {
        return ListEntries(dialog.Control(IDC_CONFIG_ADDITIONAL_LIST));
    }
    [[nodiscard]] static RegistryData Stored(const wchar_t* value) {
        return ReadRegistryValue(kProgramKey, value);
    }
};

TEST_F(Configurations, ShowsTheStoredExtensionsUnderTheirLabels) {
    const Window dialog = StartAndOpen();
    EXPECT_EQ(dialog.Text(), L"Configurations");
    EXPECT_EQ(dialog.Control(IDC_CONFIG_HEADING).Text(), L"Basic file name extensions");
    EXPECT_EQ(dialog.Control(IDC_CONFIG_ADDITIONAL_LABEL).Text(), L"Additional file name extensions:");
    EXPECT_EQ(dialog.Control(IDC_CONFIG_APPLY_BUTTON).Text(), L"Apply");
    EXPECT_EQ(dialog.Control(IDCANCEL).Text(), L"Exit");
    for (const Extension& extension : kExtensions) {
        EXPECT_EQ(dialog.Control(extension.labelId).Text(), extension.label);
        EXPECT_EQ(dialog.Control(extension.editId).Text(), extension.stored);
    }
    EXPECT_NE(dialog.Control(IDC_CONFIG_ADDITIONAL_LIST).Style() & LBS_SORT, 0U);
    EXPECT_EQ(Listed(dialog), (Texts{L"doc", L"p7s", L"xml"}));
    Close(dialog, IDCANCEL);
    ExpectNothingToSave();
}

TEST_F(Configurations, HasIconsTipsTabOrderAndOkAsItsDefault) {
    const Window dialog = StartAndOpen();
    const std::map<int, std::wstring> tips = {{IDC_CONFIG_ADD_BUTTON, L"Add"},
                                              {IDC_CONFIG_DELETE_BUTTON, L"Delete"}};
    EXPECT_EQ(ToolTipTexts(dialog), tips);
    const std::map<int, int> icons = {{IDC_CONFIG_ADD_BUTTON, IDI_ADD_ITEM},
                                      {IDC_CONFIG_DELETE_BUTTON, IDI_DELETE_ITEM}};
    for (const auto& [button, icon] : icons) {
        EXPECT_EQ(dialog.Control(button).Text(), tips.at(button));
        EXPECT_TRUE(IconOf(dialog.Control(button), IconPlace::kButton, icon).showsResource);
    }
    EXPECT_EQ(LOWORD(dialog.Send(DM_GETDEFID)), IDOK);
    std::vector<int> order;
    for (const Extension& extension : kExtensions) {
        order.push_back(extension.editId);
    }
    order.insert(order.end(), {IDC_CONFIG_ADDITIONAL_LIST, IDC_CONFIG_ADD_BUTTON, IDC_CONFIG_DELETE_BUTTON,
                               IDOK, IDCANCEL, IDC_CONFIG_APPLY_BUTTON});
    EXPECT_EQ(TabStops(dialog), order);
    dialog.Control(IDC_CONFIG_SIGNED_EDIT).WaitForFocus();
    Close(dialog, IDCANCEL);
}

TEST_F(Configurations, OkWithoutAnyChangeAsksNothingAndStillHasToBeSaved) {
    Close(StartAndOpen(), IDOK);
    ExpectUnsavedChanges();
}

TEST_F(Configurations, OpensByItsHiddenButtonToo) {
    StartWithSample();
    Main().Post(WM_COMMAND, MAKEWPARAM(IDC_CONFIGURATIONS_BUTTON, BN_CLICKED),
                reinterpret_cast<LPARAM>(Control(IDC_CONFIGURATIONS_BUTTON).Handle()));
    const Window dialog = Editor().WaitForDialog(Main());
    EXPECT_EQ(dialog.Text(), L"Configurations");
    Close(dialog, IDCANCEL);
}

TEST_F(Configurations, ExitEscapeAndTheCloseBoxTakeNothingAndAskNothing) {
    Window dialog = StartAndOpen();
    for (int way = 0; way < 3; ++way) {
        dialog.Control(IDC_CONFIG_HASH_EDIT).SetText(L"changed");
        Add(dialog, L"new");
        Apply(dialog);
        dialog.Control(IDC_CONFIG_ZIP_EDIT).SetText(L"changed");
        if (way == 0) {
            dialog.Control(IDCANCEL).PostClick();
        } else if (way == 1) {
            dialog.FocusOfThread().PostKey(VK_ESCAPE);
        } else {
            dialog.Post(WM_SYSCOMMAND, SC_CLOSE);
        }
        dialog.WaitUntilGone();
        WaitForMain();
        dialog = Open();
        EXPECT_EQ(dialog.Control(IDC_CONFIG_HASH_EDIT).Text(), L"s5");
        EXPECT_EQ(dialog.Control(IDC_CONFIG_ZIP_EDIT).Text(), L"s7");
        EXPECT_EQ(Listed(dialog), (Texts{L"doc", L"p7s", L"xml"}));
    }
    Close(dialog, IDCANCEL);
    ExpectNothingToSave();
}

TEST_F(Configurations, EveryEditCountsAsAChange) {
    Window dialog = StartAndOpen();
    for (const Extension& extension : kExtensions) {
        dialog.Control(extension.editId).SetText(L"new");
        OkAnsweredWithYes(dialog);
        dialog = Open();
        EXPECT_EQ(dialog.Control(extension.editId).Text(), L"new");
    }
    Close(dialog, IDOK);
    SaveAndLeave();
    for (const Extension& extension : kExtensions) {
        EXPECT_EQ(Stored(extension.value), RegistryData(L"new")) << Utf8(extension.value);
    }
}

TEST_F(Configurations, OkAfterAChangeAsksAndNoKeepsTheDialog) {
    const Window dialog = StartAndOpen();
    dialog.Control(IDC_CONFIG_HASH_EDIT).SetText(L"new");
    dialog.Control(IDOK).PostClick();
    AnswerBox(dialog, kUnsavedQuestion, kConfirmation, IDNO);
    EXPECT_TRUE(dialog.IsVisible());
    EXPECT_EQ(dialog.Control(IDC_CONFIG_HASH_EDIT).Text(), L"new");
    OkAnsweredWithYes(dialog);
    SaveAndLeave();
    EXPECT_EQ(Stored(L"HashExt"), RegistryData(L"new"));
}

TEST_F(Configurations, AppliedChangesAreTakenByOkWithoutAQuestion) {
    const Window dialog = StartAndOpen();
    dialog.Control(IDC_CONFIG_ZIP_EDIT).SetText(L"");
    dialog.Control(IDC_CONFIG_SIGNED_EDIT).SetText(L"sig");
    Add(dialog, L"abc");
    Apply(dialog);
    Close(dialog, IDOK);
    SaveAndLeave();
    EXPECT_EQ(Stored(L"ZIPArchiveExt"), RegistryData(L""));
    EXPECT_EQ(Stored(L"SigExt"), RegistryData(L"sig"));
    EXPECT_EQ(Stored(L"ExtExt"), RegistryData(Texts{L"abc", L"doc", L"p7s", L"xml"}))
        << "in the order of the list box";
}

TEST_F(Configurations, ApplyRefusesAnEmptyExtensionAndTakesNothing) {
    const Window dialog = StartAndOpen();
    Add(dialog, L"abc");
    for (const Extension& extension : kExtensions) {
        dialog.Control(extension.editId).SetText(L"");
    }
    for (const Extension& extension : kExtensions) {
        if (extension.refusal != nullptr) {
            dialog.Control(IDC_CONFIG_APPLY_BUTTON).PostClick();
            AnswerBox(dialog, extension.refusal, kRefusal, IDOK);
            dialog.Control(extension.editId).WaitForFocus();
            dialog.Control(extension.editId).SetText(L"x");
        }
    }
    // Nothing was applied so far, so Yes loses the addition.
    OkAnsweredWithYes(dialog);
    SaveAndLeave();
    EXPECT_EQ(Stored(L"ExtExt"), RegistryData(Texts{L"xml", L"p7s", L"doc"}));
    EXPECT_EQ(Stored(L"HashExt"), RegistryData(L"x"));
    EXPECT_EQ(Stored(L"GZIPArchiveExt"), RegistryData(L""));
}

TEST_F(Configurations, ApplyWithoutAChangeChecksNothing) {
    WriteSampleConfiguration();
    WriteRegistryValue(kProgramKey, L"HashExt", std::wstring());
    Start();
    const Window dialog = Open();
    EXPECT_EQ(dialog.Control(IDC_CONFIG_HASH_EDIT).Text(), L"");
    Apply(dialog);
    EXPECT_TRUE(dialog.IsEnabled());
    Close(dialog, IDOK);
}

// Deliberate: typed extensions are taken as they stand, the list as of the last Apply.
TEST_F(Configurations, OkLosesListChangesThatWereNotApplied) {
    const Window dialog = StartAndOpen();
    Add(dialog, L"abc");
    Apply(dialog);
    Add(dialog, L"def");
    dialog.Control(IDC_CONFIG_ENCRYPTED_EDIT).SetText(L"enc");
    OkAnsweredWithYes(dialog);
    SaveAndLeave();
    EXPECT_EQ(Stored(L"ExtExt"), RegistryData(Texts{L"abc", L"doc", L"p7s", L"xml"}));
    EXPECT_EQ(Stored(L"EncExt"), RegistryData(L"enc"));
}

TEST_F(Configurations, AddingAnExtensionThatIsListedWhateverItsCaseChangesNothing) {
    const Window dialog = StartAndOpen();
    Add(dialog, L"P7S");
    EXPECT_EQ(Listed(dialog), (Texts{L"doc", L"p7s", L"xml"}));
    Close(dialog, IDOK);
    ExpectUnsavedChanges();
}

TEST_F(Configurations, AnAddedExtensionIsSortedInAndNotSelected) {
    const Window dialog = StartAndOpen();
    Add(dialog, L"  GZ\t");
    EXPECT_EQ(Listed(dialog), (Texts{L"doc", L"gz", L"p7s", L"xml"}));
    dialog.Control(IDC_CONFIG_DELETE_BUTTON).PostClick();
    AnswerBox(dialog, L"Select list item to delete.", kRefusal, IDOK);
    dialog.Control(IDC_CONFIG_ADDITIONAL_LIST).WaitForFocus();
    Close(dialog, IDCANCEL);
}

TEST_F(Configurations, DeletingAsksAndNoKeepsTheExtension) {
    const Window dialog = StartAndOpen();
    Select(dialog, 1);
    dialog.Control(IDC_CONFIG_DELETE_BUTTON).PostClick();
    AnswerBox(dialog, L"Delete additional extension 'p7s'?", kConfirmation, IDNO);
    EXPECT_EQ(Listed(dialog), (Texts{L"doc", L"p7s", L"xml"}));
    Close(dialog, IDOK);
    ExpectUnsavedChanges();
}

TEST_F(Configurations, ADeletedAndAppliedExtensionIsGone) {
    const Window dialog = StartAndOpen();
    Select(dialog, 1);
    dialog.Control(IDC_CONFIG_DELETE_BUTTON).PostClick();
    AnswerBox(dialog, L"Delete additional extension 'p7s'?", kConfirmation, IDYES);
    EXPECT_EQ(Listed(dialog), (Texts{L"doc", L"xml"}));
    dialog.Control(IDC_CONFIG_DELETE_BUTTON).PostClick();
    AnswerBox(dialog, L"Select list item to delete.", kRefusal, IDOK);
    Apply(dialog);
    Close(dialog, IDOK);
    SaveAndLeave();
    EXPECT_EQ(Stored(L"ExtExt"), RegistryData(Texts{L"doc", L"xml"}));
}

TEST_F(Configurations, TheDeleteKeyDeletesTheSelectedExtension) {
    const Window dialog = StartAndOpen();
    Select(dialog, 2);
    dialog.Control(IDC_CONFIG_ADDITIONAL_LIST).PostKey(VK_DELETE);
    AnswerBox(dialog, L"Delete additional extension 'xml'?", kConfirmation, IDYES);
    EXPECT_EQ(Listed(dialog), (Texts{L"doc", L"p7s"}));
    Close(dialog, IDCANCEL);
}

TEST_F(Configurations, TheExtensionDialogShowsItsTextTwice) {
    const Window dialog = StartAndOpen();
    const Window add = OpenAdd(dialog);
    EXPECT_EQ(add.Text(), L"Add additional extension:");
    EXPECT_EQ(add.Control(IDC_EXTENSION_LABEL).Text(), L"Add additional extension:");
    EXPECT_EQ(add.Control(IDC_EXTENSION_EDIT).Text(), L"");
    EXPECT_EQ(add.Control(IDCANCEL).Text(), L"Exit");
    EXPECT_EQ(LOWORD(add.Send(DM_GETDEFID)), IDOK);
    EXPECT_EQ(TabStops(add), (std::vector<int>{IDC_EXTENSION_EDIT, IDOK, IDCANCEL}));
    add.Control(IDC_EXTENSION_EDIT).WaitForFocus();
    add.Control(IDC_EXTENSION_EDIT).SetText(L"new");
    add.FocusOfThread().PostKey(VK_ESCAPE);
    add.WaitUntilGone();
    dialog.WaitUntilEnabled();
    SettlePage(dialog);
    EXPECT_EQ(Listed(dialog), (Texts{L"doc", L"p7s", L"xml"}));
    Close(dialog, IDCANCEL);
}

TEST_F(Configurations, AnExtensionOfSpacesKeepsItsDialogOpenWithoutAMessage) {
    const Window dialog = StartAndOpen();
    const Window add = OpenAdd(dialog);
    for (const wchar_t* const text : {L"", L"  ", L"\t"}) {
        add.Control(IDC_EXTENSION_EDIT).SetText(text);
        add.Control(IDOK).Click();
        SettleDialogOf(add.Control(IDC_EXTENSION_EDIT));
        EXPECT_TRUE(add.IsVisible());
        EXPECT_TRUE(add.IsEnabled());
        EXPECT_EQ(add.Control(IDC_EXTENSION_EDIT).Text(), text);
    }
    add.Control(IDC_EXTENSION_EDIT).SetText(L" \u0414\u041E\u041A ");
    add.Control(IDC_EXTENSION_EDIT).PostKey(VK_RETURN);
    add.WaitUntilGone();
    dialog.WaitUntilEnabled();
    SettlePage(dialog);
    EXPECT_EQ(Listed(dialog), (Texts{L"doc", L"p7s", L"xml", L"\u0434\u043E\u043A"}));
    Close(dialog, IDCANCEL);
}

}  // namespace
}  // namespace corvane::test
