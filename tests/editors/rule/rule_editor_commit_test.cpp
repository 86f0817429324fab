// What OK makes of a rule: the row of the main window and, after saving, what is stored.

#include <windows.h>

#include <algorithm>

#include "tests/kit/driver/failure.h"
#include "tests/kit/fixtures/rule_editor_fixture.h"

namespace corvane::test {
namespace {

/// The values that an operation uses besides folders, description and masks, as FullRule has them.
struct Used {
    const wchar_t* code;
    Texts values;
    bool hasRecipients = false;
    bool hasSigners = false;
};

std::vector<Used> UsedValues() {
    const Texts cs = {L"ZCSProfile"};
    const Texts csZip = {L"ZCSProfile", L"ZipFile"};
    return {
        {L"ENCR", csZip, true},
        {L"DECR", csZip},
        {L"HASH", cs},
        {L"B64E", {}},
        {L"B64D", {}},
        {L"SIGN", cs},
        {L"CHCK", cs, false, true},
        {L"CHKX", cs, false, true},
        {L"MOVE", {L"Path Out 2", L"DelExt", L"AddExt", L"Folders", L"Copyfolders"}},
        {L"DELE", {}},
        {L"LENC", csZip, true},
        {L"LDEC", csZip},
        {L"CDSG", cs},
        {L"DSIG", cs},
        {L"DCHK", cs, false, true},
        {L"DELS", cs},
        {L"RESG", {L"ZCSProfile", L"In format det", L"Out format det", L"ResignProfile"}, false, true},
        {L"SGEN", csZip, true},
        {L"DCCX", csZip, false, true},
        {L"ARCH", {L"ZipFile"}},
        {L"UNAR", {L"ZipFile"}},
        {L"PACK", {L"ArchCount", L"ArchSize", L"ArchTimeout", L"ArchName"}},
        {L"UNPK", {}},
        {L"EXEC", {L"ExecName", L"ExecTimeout"}},
    };
}

Texts ValuesOfOneOperation() {
    return {L"ZCSProfile",  L"ZipFile",       L"Path Out 2",     L"DelExt",        L"AddExt",    L"Folders",
            L"Copyfolders", L"In format det", L"Out format det", L"ResignProfile", L"ArchCount", L"ArchSize",
            L"ArchTimeout", L"ArchName",      L"ExecName",       L"ExecTimeout"};
}

bool Holds(const Texts& texts, const std::wstring& text) {
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

class RuleEditorCommit : public RuleEditorTest {
  protected:
    /// The rule must be stored with what its operation uses, as `full` has it, and nothing else.
    static void ExpectStored(int number, const Used& used, const StoredRule& full) {
        SCOPED_TRACE(Utf8(used.code));
        auto tree = ReadRegistryTree(RuleKey(L"alpha", number));
        RegistryValues& rule = tree[L""];
        const bool isDelete = std::wstring(used.code) == L"DELE";
        EXPECT_EQ(rule[L"Operation"], RegistryData(used.code));
        EXPECT_EQ(rule[L"Is on"], RegistryData(1U));
        EXPECT_EQ(rule[L"Descryption"], full.values.at(L"Descryption"));
        EXPECT_EQ(rule[L"Path In"], RegistryData(kInFolder));
        EXPECT_EQ(rule[L"Path Out"], RegistryData(isDelete ? L"" : kOutFolder));
        EXPECT_EQ(rule[L"Path Error"], RegistryData(kErrorFolder));
        EXPECT_EQ(rule[L"Mask num"], RegistryData(2U));
        EXPECT_EQ(rule[L"M0"], RegistryData(L"*.one"));
        EXPECT_EQ(rule[L"M1"], RegistryData(L"*.two"));
        for (const std::wstring& name : ValuesOfOneOperation()) {
            const RegistryData& value = full.values.at(name);
            const RegistryData nothing =
                std::holds_alternative<std::wstring>(value) ? RegistryData(L"") : RegistryData(0U);
            EXPECT_EQ(rule[name], Holds(used.values, name) ? value : nothing) << Utf8(name);
        }
        EXPECT_EQ(rule[L"Ext num"], RegistryData(used.hasRecipients ? 2U : 0U));
        EXPECT_EQ(rule.count(L"C1"), used.hasRecipients ? 1U : 0U);
        EXPECT_EQ(tree.size(), used.hasSigners ? 4U : 1U) << "the rule's key and those of its signer lists";
    }
};

TEST_F(RuleEditorCommit, ConfirmingAStoredRuleKeepsWhatItsOperationUsesAndNothingElse) {
    std::vector<StoredRule> rules;
    for (const Used& used : UsedValues()) {
        rules.push_back(FullRule(used.code));
    }
    StartWithRules(rules);
    for (int row = 0; row < static_cast<int>(rules.size()); ++row) {
        Close(OpenStored(row), IDOK);
        EXPECT_EQ(Rules().SelectedRows(), std::vector<int>{row});
        EXPECT_TRUE(Rules().IsChecked(row));
        EXPECT_TRUE(Rules().IsInView(row));
    }
    SaveAndLeave();
    for (std::size_t i = 0; i < rules.size(); ++i) {
        ExpectStored(static_cast<int>(i), UsedValues()[i], rules[i]);
    }
}

TEST_F(RuleEditorCommit, ARuleOfEachOperationIsMadeOfAnotherOne) {
    // A full rule of an operation from which recipients or signer lists survive.
    std::vector<StoredRule> rules;
    for (const Used& used : UsedValues()) {
        rules.push_back(FullRule(used.hasRecipients ? L"LENC" : L"DCHK"));
    }
    StartWithRules(rules);
    for (int row = 0; row < static_cast<int>(rules.size()); ++row) {
        const Used used = UsedValues()[static_cast<std::size_t>(row)];
        const Window dialog = OpenStored(row);
        SelectOperation(dialog, used.code);
        const std::wstring code = used.code;
        if (code == L"MOVE") {
            dialog.Control(IDC_RULE_CERT_EDIT).SetText(kSecondFolder);
            dialog.Control(IDC_RULE_ROW1_EDIT).SetText(L"del");
            dialog.Control(IDC_RULE_ROW2_EDIT).SetText(L"add");
            dialog.Control(IDC_RULE_ROW3_EDIT).SetText(L"fol");
            dialog.Control(IDC_RULE_ROW4_EDIT).SetText(L"cop");
        } else if (code == L"PACK") {
            dialog.Control(IDC_RULE_ROW1_NUMBER_EDIT).SetText(L"11");
            dialog.Control(IDC_RULE_ROW2_NUMBER_EDIT).SetText(L"12");
            dialog.Control(IDC_RULE_ROW3_NUMBER_EDIT).SetText(L"13");
            dialog.Control(IDC_RULE_ROW4_EDIT).SetText(L"arch");
        } else if (code == L"EXEC") {
            dialog.Control(IDC_RULE_CERT_EDIT).SetText(L"C:\\tool.exe");
            dialog.Control(IDC_RULE_ROW1_NUMBER_EDIT).SetText(L"14");
        } else if (code == L"RESG") {
            dialog.Control(IDC_RULE_ROW1_COMBO).Send(CB_SETCURSEL, 1);
            dialog.Control(IDC_RULE_ROW2_COMBO).Send(CB_SETCURSEL, 1);
            dialog.Control(IDC_RULE_ROW3_COMBO).Send(CB_SETCURSEL, 1);
        } else if (Holds(used.values, L"ZipFile")) {
            const Window archivers = dialog.Control(IDC_RULE_ROW2_COMBO);
            archivers.Send(CB_SETCURSEL, static_cast<WPARAM>(archivers.Send(CB_GETCOUNT) - 1));
        }
        Close(dialog, IDOK);
    }
    SaveAndLeave();
    for (std::size_t i = 0; i < rules.size(); ++i) {
        const Used used = UsedValues()[i];
        StoredRule expected = FullRule(used.code);
        expected.values[L"Descryption"] = rules[i].values.at(L"Descryption");
        ExpectStored(static_cast<int>(i), used, expected);
    }
}

TEST_F(RuleEditorCommit, ANewRuleIsAppendedSwitchedOnAndScrolledIntoView) {
    std::vector<StoredRule> rules(40, FullRule(L"HASH"));
    StartWithRules(rules);
    EXPECT_FALSE(Rules().IsInView(39));
    const Window dialog = OpenNew();
    SelectOperation(dialog, L"B64E");
    FillFolders(dialog);
    AddMaskByDialog(dialog, L"*.new");
    dialog.Control(IDC_RULE_DESCRIPTION_EDIT).SetText(L"Brand new");
    Close(dialog, IDOK);
    ASSERT_EQ(Rules().RowCount(), 41);
    EXPECT_EQ(Rules().Row(40), (Texts{L"41", L"Brand new", L"Encode b64", kInFolder, kOutFolder, kErrorFolder,
                                      L"*.new", L"", L""}));
    EXPECT_TRUE(Rules().IsChecked(40));
    EXPECT_TRUE(Rules().IsInView(40));
    ExpectUnsavedChanges();
}

TEST_F(RuleEditorCommit, AnEditedRuleIsSelectedFocusedAndInView) {
    StartWithSample();
    const Window dialog = OpenStored(kMove);
    FillFolders(dialog);
    dialog.Control(IDC_RULE_CERT_EDIT).SetText(L"");
    dialog.Control(IDC_RULE_DESCRIPTION_EDIT).SetText(L"Moved by hand");
    Close(dialog, IDOK);
    EXPECT_EQ(Rules().Cell(kMove, kDescriptionColumn), L"Moved by hand");
    EXPECT_EQ(Rules().Cell(kMove, kExtraColumn), L"tmp; done");
    EXPECT_EQ(Rules().SelectedRows(), std::vector<int>{kMove});
    Rules().WaitForFocus();
    EXPECT_TRUE(Rules().IsChecked(kMove));
    ExpectUnsavedChanges();
}

TEST_F(RuleEditorCommit, OfSeveralSelectedRulesTheFirstIsEdited) {
    StartWithSample();
    Rules().Select({kPack, kExecute});
    Main().PostMenuCommand(IDM_EDIT_RULE);
    const Window dialog = Editor().WaitForDialog(Main());
    EXPECT_EQ(SelectedEntry(dialog.Control(IDC_RULE_OPERATION_COMBO)), L"Pack files");
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorCommit, ExitDiscardsEverything) {
    StartWithSample();
    const Window dialog = OpenStored(kPack);
    SelectOperation(dialog, L"HASH");
    FillFolders(dialog);
    AddMaskByDialog(dialog, L"*.more");
    Close(dialog, IDCANCEL);
    EXPECT_EQ(ShownRules(), SampleDescriptions());
    EXPECT_EQ(Rules().Cell(kPack, kOperationColumn), L"Pack files");
    EXPECT_EQ(Rules().Cell(kPack, kMasksColumn), L"*.xml");
    ExpectNothingToSave();
}

TEST_F(RuleEditorCommit, ARuleThatIsNotChangedStillHasToBeSaved) {
    StartWithRules({FullRule(L"HASH")});
    Close(OpenStored(), IDOK);
    ExpectUnsavedChanges();
}

TEST_F(RuleEditorCommit, TextsAreStoredAsTheyWereTyped) {
    StartWithRules({});
    const Window dialog = OpenNew();
    SelectOperation(dialog, L"MOVE");
    FillFolders(dialog);
    dialog.Control(IDC_RULE_INPUT_EDIT).SetText(L"c:\\WINDOWS\\");
    dialog.Control(IDC_RULE_DESCRIPTION_EDIT).SetText(L"  one\r\ntwo \u043F\u0440\u0438 ");
    dialog.Control(IDC_RULE_ROW1_EDIT).SetText(L" Tmp ");
    AddMaskByDialog(dialog, L" *.A ");
    Close(dialog, IDOK);
    RegistryValues rule = SaveAndRead(0)[L""];
    EXPECT_EQ(rule[L"Path In"], RegistryData(L"c:\\WINDOWS\\"));
    EXPECT_EQ(rule[L"Descryption"], RegistryData(L"  one\r\ntwo \u043F\u0440\u0438 "));
    EXPECT_EQ(rule[L"DelExt"], RegistryData(L" Tmp "));
    EXPECT_EQ(rule[L"M0"], RegistryData(L" *.A "));
    EXPECT_EQ(rule[L"Path Out 2"], RegistryData(L""));
}

TEST_F(RuleEditorCommit, EnterDoesWhatOkDoesEverywhereButInTheDescription) {
    StartWithRules({FullRule(L"HASH")});
    Window dialog = OpenStored();
    const Window description = dialog.Control(IDC_RULE_DESCRIPTION_EDIT);
    dialog.Post(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(description.Handle()), TRUE);
    description.WaitForFocus();
    description.Send(EM_SETSEL, 0, 0);
    description.PostKey(VK_RETURN);
    description.WaitForText(L"\r\nRule of HASH");
    dialog.Control(IDC_RULE_INPUT_EDIT).PostKey(VK_RETURN);
    dialog.WaitUntilGone();
    WaitForMain();
    EXPECT_EQ(Rules().Cell(0, kDescriptionColumn), L"\r\nRule of HASH");
}

TEST_F(RuleEditorCommit, EscapeAndTheCloseBoxDoWhatExitDoes) {
    StartWithRules({FullRule(L"HASH")});
    Window dialog = OpenStored();
    dialog.Control(IDC_RULE_INPUT_EDIT).SetText(L"changed");
    dialog.FocusOfThread().PostKey(VK_ESCAPE);
    dialog.WaitUntilGone();
    WaitForMain();
    dialog = OpenStored();
    const Window description = dialog.Control(IDC_RULE_DESCRIPTION_EDIT);
    dialog.Post(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(description.Handle()), TRUE);
    description.WaitForFocus();
    description.PostKey(VK_ESCAPE);
    dialog.WaitUntilGone();
    WaitForMain();
    dialog = OpenStored();
    dialog.Post(WM_SYSCOMMAND, SC_CLOSE);
    dialog.WaitUntilGone();
    WaitForMain();
    ExpectNothingToSave();
}

TEST_F(RuleEditorCommit, OkIsTheDefaultButtonAndTheOperationHasTheFirstFocus) {
    StartWithRules({});
    const Window dialog = OpenNew();
    EXPECT_EQ(LOWORD(dialog.Send(DM_GETDEFID)), IDOK);
    dialog.Control(IDC_RULE_OPERATION_COMBO).WaitForFocus();
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorCommit, TheTabKeyFollowsTheReadingOrder) {
    const Window dialog = StartAndOpen(FullRule(L"RESG"));
    dialog.Control(IDC_RULE_OPERATION_COMBO).WaitForFocus();
    const std::vector<int> order = {IDC_RULE_CS_PROFILE_COMBO,
                                    IDC_RULE_DESCRIPTION_EDIT,
                                    IDC_RULE_INPUT_BUTTON,
                                    IDC_RULE_INPUT_EDIT,
                                    IDC_RULE_OUTPUT_BUTTON,
                                    IDC_RULE_OUTPUT_EDIT,
                                    IDC_RULE_ERROR_BUTTON,
                                    IDC_RULE_ERROR_EDIT,
                                    IDC_RULE_CERT_BUTTON,
                                    IDC_RULE_CERT_EDIT,
                                    IDC_RULE_ROW1_COMBO,
                                    IDC_RULE_ROW2_COMBO,
                                    IDC_RULE_ROW3_COMBO,
                                    IDC_RULE_MASK_LIST,
                                    IDC_RULE_ADD_MASK_BUTTON,
                                    IDC_RULE_EDIT_MASK_BUTTON,
                                    IDC_RULE_DELETE_MASK_BUTTON,
                                    IDOK,
                                    IDCANCEL,
                                    IDC_RULE_OPERATION_COMBO};
    for (const int id : order) {
        dialog.FocusOfThread().PostKey(VK_TAB);
        dialog.Control(id).WaitForFocus();
    }
    Close(dialog, IDCANCEL);
}

}  // namespace
}  // namespace corvane::test
