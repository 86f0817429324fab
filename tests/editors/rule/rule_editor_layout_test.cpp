// What the rule editor shows for each operation: on adding a rule, on opening a stored one, and on going from
// one operation to another.

#include <windows.h>

#include <commctrl.h>

#include <array>

#include "tests/kit/driver/failure.h"
#include "tests/kit/driver/icon.h"
#include "tests/kit/driver/tool_tips.h"
#include "tests/kit/fixtures/rule_editor_fixture.h"

namespace corvane::test {
namespace {

constexpr wchar_t kNoCs[] = L"hidden";
constexpr wchar_t kFirstCs[] = L"CS profile: (CS one/CS two) CS one";
constexpr wchar_t kSecondCs[] = L"CS profile: (CS one/CS two) CS two";
constexpr wchar_t kOutOn[] = L"OUT enabled, field enabled '";
constexpr wchar_t kOutOff[] = L"OUT disabled, field disabled ''";
constexpr wchar_t kNoCert[] = L"CERT disabled 'Add recipients' certificates, read-only '0'";
constexpr wchar_t kZipOrNone[] = L"Use archivation: (No/ZIP archivation/GZIP archivation) ";
constexpr wchar_t kZip[] = L"Use archivation: (ZIP archivation/GZIP archivation) ";

std::wstring With(const wchar_t* beginning, const std::wstring& rest) {
    return beginning + rest;
}

/// What each operation shows, typed here a second time: once for a rule that is being added and went from one
/// operation to the next in the order of the list, and once for the stored rule in which every value is set.
struct Layout {
    const wchar_t* code;
    bool hasCsProfile;
    std::wstring cert;        ///< When adding.
    std::wstring storedCert;  ///< Of the stored rule.
    std::array<std::wstring, 4> rows;
    std::array<std::wstring, 4> storedRows;
};

const std::wstring kRecipients = L"CERT enabled 'Add recipients' certificates, read-only '0'";
const std::wstring kTwoRecipients = L"CERT enabled 'Add recipients' certificates, read-only '2'";
const std::wstring kSigners = L"CERT enabled 'Add signers' certificates, read-only '0'";
const std::wstring kThreeSigners = L"CERT enabled 'Add signers' certificates, read-only '3'";

std::vector<Layout> Layouts() {
    const std::array<std::wstring, 4> none;
    const std::array<std::wstring, 4> zipOrNone = {L"", With(kZipOrNone, L"No")};
    const std::array<std::wstring, 4> storedZip = {L"", With(kZipOrNone, L"GZIP archivation")};
    const std::array<std::wstring, 4> move = {L"Delete extension: ''", L"Add extension: ''",
                                              L"Accounting format: ''", L"Accounting copy format: ''"};
    const std::array<std::wstring, 4> storedMove = {L"Delete extension: 'del'", L"Add extension: 'add'",
                                                    L"Accounting format: 'fol'",
                                                    L"Accounting copy format: 'cop'"};
    const std::array<std::wstring, 4> resign = {
        L"Input signature format: (Attached signature/Detached signature) Attached signature",
        L"Output signature format: (Attached signature/Detached signature) Attached signature",
        L"New signature profile: (CS one/CS two) CS one", L""};
    const std::array<std::wstring, 4> storedResign = {
        L"Input signature format: (Attached signature/Detached signature) Detached signature",
        L"Output signature format: (Attached signature/Detached signature) Detached signature",
        L"New signature profile: (CS one/CS two) CS two", L""};
    const std::array<std::wstring, 4> zip = {L"", With(kZip, L"ZIP archivation")};
    const std::array<std::wstring, 4> storedOnlyZip = {L"", With(kZip, L"GZIP archivation")};
    const std::array<std::wstring, 4> pack = {L"File count: 0", L"Archive size (KB.): 0",
                                              L"Archivation timeout (min.): 0", L"Archives name format: ''"};
    const std::array<std::wstring, 4> storedPack = {L"File count: 11", L"Archive size (KB.): 12",
                                                    L"Archivation timeout (min.): 13",
                                                    L"Archives name format: 'arch'"};
    return {
        {L"ENCR", true, kRecipients, kTwoRecipients, zipOrNone, storedZip},
        {L"DECR", true, kNoCert, kNoCert, zipOrNone, storedZip},
        {L"HASH", true, kNoCert, kNoCert, none, none},
        {L"B64E", false, kNoCert, kNoCert, none, none},
        {L"B64D", false, kNoCert, kNoCert, none, none},
        {L"SIGN", true, kNoCert, kNoCert, none, none},
        {L"CHCK", true, kSigners, kThreeSigners, none, none},
        {L"CHKX", true, kSigners, kThreeSigners, none, none},
        {L"MOVE", false, L"CERT enabled 'Second Output folder ' folder, field ''",
         L"CERT enabled 'Second Output folder ' folder, field 'C:\\windows\\temp'", move, storedMove},
        {L"DELE", false, kNoCert, kNoCert, none, none},
        {L"LENC", true, kRecipients, kTwoRecipients, zipOrNone, storedZip},
        {L"LDEC", true, kNoCert, kNoCert, zipOrNone, storedZip},
        {L"CDSG", true, kNoCert, kNoCert, none, none},
        {L"DSIG", true, kNoCert, kNoCert, none, none},
        {L"DCHK", true, kSigners, kThreeSigners, none, none},
        {L"DELS", true, kNoCert, kNoCert, none, none},
        {L"RESG", true, kSigners, kThreeSigners, resign, storedResign},
        {L"SGEN", true, kRecipients, kTwoRecipients, zipOrNone, storedZip},
        {L"DCCX", true, kSigners, kThreeSigners, zipOrNone, storedZip},
        {L"ARCH", false, kNoCert, kNoCert, zip, storedOnlyZip},
        {L"UNAR", false, kNoCert, kNoCert, zip, storedOnlyZip},
        {L"PACK", false, kNoCert, kNoCert, pack, storedPack},
        {L"UNPK", false, kNoCert, kNoCert, none, none},
        {L"EXEC",
         false,
         L"CERT enabled 'Executable file:' program, field ''",
         L"CERT enabled 'Executable file:' program, field 'C:\\tool.exe'",
         {L"Execution timeout (min.): 0"},
         {L"Execution timeout (min.): 14"}},
    };
}

Texts ExpectedFields(std::size_t index, const wchar_t* csProfile, const std::wstring& output,
                     const std::wstring& cert, const std::array<std::wstring, 4>& rows) {
    const Layout layout = Layouts()[index];
    const bool isDelete = std::wstring(layout.code) == L"DELE";
    return {OperationNames()[index],
            layout.hasCsProfile ? csProfile : kNoCs,
            isDelete ? kOutOff : With(kOutOn, output + L"'"),
            cert,
            rows[0],
            rows[1],
            rows[2],
            rows[3]};
}

class RuleEditorLayout : public RuleEditorTest {
  protected:
    static void ExpectFields(const Window& dialog, const Texts& expected) {
        EXPECT_EQ(ShownFields(dialog), expected);
    }
    static std::wstring Row(const Window& dialog, std::size_t row) { return ShownFields(dialog).at(3 + row); }
    static std::wstring Cert(const Window& dialog) { return ShownFields(dialog).at(3); }
};

TEST_F(RuleEditorLayout, AddingARuleGoesThroughAllOperations) {
    StartWithRules({});
    const Window dialog = OpenNew();
    const std::vector<Layout> layouts = Layouts();
    ASSERT_EQ(layouts.size(), kCodes.size());
    for (std::size_t i = 0; i < layouts.size(); ++i) {
        SCOPED_TRACE(Utf8(layouts[i].code));
        if (i != 0) {
            SelectOperation(dialog, layouts[i].code);
        }
        ExpectFields(dialog, ExpectedFields(i, kFirstCs, L"", layouts[i].cert, layouts[i].rows));
    }
    Close(dialog, IDCANCEL);
    ExpectNothingToSave();
}

TEST_F(RuleEditorLayout, EveryStoredOperationOpensWithItsValues) {
    std::vector<StoredRule> rules;
    for (const std::wstring code : kCodes) {
        rules.push_back(FullRule(code));
    }
    StartWithRules(rules);
    const std::vector<Layout> layouts = Layouts();
    for (std::size_t i = 0; i < layouts.size(); ++i) {
        SCOPED_TRACE(Utf8(layouts[i].code));
        const Window dialog = OpenStored(static_cast<int>(i));
        EXPECT_EQ(dialog.Text(), L"Edit rule");
        ExpectFields(dialog,
                     ExpectedFields(i, kSecondCs, kOutFolder, layouts[i].storedCert, layouts[i].storedRows));
        EXPECT_EQ(dialog.Control(IDC_RULE_INPUT_EDIT).Text(), kInFolder);
        EXPECT_EQ(dialog.Control(IDC_RULE_ERROR_EDIT).Text(), kErrorFolder);
        EXPECT_EQ(dialog.Control(IDC_RULE_DESCRIPTION_EDIT).Text(), std::wstring(L"Rule of ") + kCodes.at(i));
        EXPECT_EQ(Masks(dialog).Column(0), (Texts{L"*.one", L"*.two"}));
        Close(dialog, IDCANCEL);
    }
    ExpectNothingToSave();
}

TEST_F(RuleEditorLayout, ANewRuleIsEmpty) {
    StartWithRules({});
    Main().PostMenuCommand(IDM_ADD_RULE);
    const Window dialog = Editor().WaitForDialog(Main());
    EXPECT_EQ(dialog.Text(), L"Add rule");
    EXPECT_EQ(Entries(dialog.Control(IDC_RULE_OPERATION_COMBO)), OperationNames());
    for (const int id :
         {IDC_RULE_INPUT_EDIT, IDC_RULE_OUTPUT_EDIT, IDC_RULE_ERROR_EDIT, IDC_RULE_DESCRIPTION_EDIT,
          IDC_RULE_ROW1_EDIT, IDC_RULE_ROW2_EDIT, IDC_RULE_ROW3_EDIT, IDC_RULE_ROW4_EDIT}) {
        EXPECT_EQ(dialog.Control(id).Text(), L"") << id;
    }
    EXPECT_EQ(Masks(dialog).RowCount(), 0);
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorLayout, BearsItsTextsToolTipsAndIcons) {
    StartWithRules({FullRule(L"HASH")});
    Rules().PostLeftDoubleClick(Rules().CellCentre(0, kDescriptionColumn));
    const Window dialog = Editor().WaitForDialog(Main());
    EXPECT_EQ(dialog.Control(IDC_RULE_DESCRIPTION_LABEL).Text(), L"Descrip\ntion");
    EXPECT_EQ(dialog.Control(IDCANCEL).Text(), L"Exit");
    EXPECT_EQ(dialog.Control(IDOK).Text(), L"OK");
    EXPECT_EQ(ToolTipTexts(dialog), (std::map<int, std::wstring>{{IDC_RULE_INPUT_BUTTON, L"Input folder"},
                                                                 {IDC_RULE_OUTPUT_BUTTON, L"Output folder"},
                                                                 {IDC_RULE_ERROR_BUTTON, L"Error folder"},
                                                                 {IDC_RULE_CERT_BUTTON, L"Add recipients"},
                                                                 {IDC_RULE_ADD_MASK_BUTTON, L"Add"},
                                                                 {IDC_RULE_EDIT_MASK_BUTTON, L"Edit"},
                                                                 {IDC_RULE_DELETE_MASK_BUTTON, L"Delete"}}));
    const std::map<int, int> icons = {
        {IDC_RULE_INPUT_BUTTON, IDI_INPUT_FOLDER},     {IDC_RULE_OUTPUT_BUTTON, IDI_OUTPUT_FOLDER},
        {IDC_RULE_ERROR_BUTTON, IDI_ERROR_FOLDER},     {IDC_RULE_CERT_BUTTON, IDI_CERTIFICATES},
        {IDC_RULE_ADD_MASK_BUTTON, IDI_ADD_ITEM},      {IDC_RULE_EDIT_MASK_BUTTON, IDI_EDIT_ITEM},
        {IDC_RULE_DELETE_MASK_BUTTON, IDI_DELETE_ITEM}};
    for (const auto& [button, icon] : icons) {
        EXPECT_TRUE(IconOf(dialog.Control(button), IconPlace::kButton, icon).showsResource) << button;
    }
    EXPECT_EQ(Masks(dialog).Headings(), (Texts{L"Masks"}));
    EXPECT_NE(Masks(dialog).ExtendedListStyle() & LVS_EX_FULLROWSELECT, 0U);
    for (const int id : {IDC_RULE_ROW1_NUMBER_EDIT, IDC_RULE_ROW2_NUMBER_EDIT, IDC_RULE_ROW3_NUMBER_EDIT}) {
        EXPECT_NE(dialog.Control(id).Style() & ES_NUMBER, 0U) << id;
    }
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorLayout, IconButtonsAreNamedAsTheirToolTipsSay) {
    StartWithRules({});
    const Window dialog = OpenNew();
    for (const std::wstring& code : Texts{L"ENCR", L"CHCK", L"MOVE", L"EXEC", L"HASH"}) {
        SelectOperation(dialog, code);
        for (const auto& [id, text] : ToolTipTexts(dialog)) {
            EXPECT_EQ(dialog.Control(id).Text(), text) << Utf8(code);
        }
    }
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorLayout, ThreeControlsAreThereAndNeverShown) {
    StartWithRules({});
    const Window dialog = OpenNew();
    EXPECT_TRUE(dialog.Control(IDC_RULE_UNUSED_EDIT).IsOfClass(L"Edit"));
    EXPECT_TRUE(dialog.Control(IDC_RULE_UNUSED_COMBO).IsOfClass(L"ComboBox"));
    EXPECT_EQ(dialog.Control(IDC_RULE_UNUSED_LABEL).Text(), L"Mask");
    for (const std::wstring code : kCodes) {
        SelectOperation(dialog, code);
        for (const int id : {IDC_RULE_UNUSED_EDIT, IDC_RULE_UNUSED_COMBO, IDC_RULE_UNUSED_LABEL}) {
            EXPECT_FALSE(dialog.Control(id).IsVisible()) << Utf8(code) << " " << id;
        }
    }
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorLayout, ACodeThatIsNoneOpensAsEncrypt) {
    const Window dialog = StartAndOpen(FullRule(L"NOPE"));
    EXPECT_EQ(dialog.Text(), L"Edit rule");
    EXPECT_EQ(ShownFields(dialog)[0], L"Encrypt");
    EXPECT_EQ(dialog.Control(IDC_RULE_INPUT_EDIT).Text(), kInFolder);
    EXPECT_EQ(dialog.Control(IDC_RULE_DESCRIPTION_EDIT).Text(), L"Rule of NOPE");
    EXPECT_EQ(Masks(dialog).RowCount(), 2);
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorLayout, ACsProfileThatTheProfileDoesNotHaveShowsAsTheFirst) {
    StoredRule rule = FullRule(L"RESG");
    rule.values[L"ZCSProfile"] = L"CS gone";
    rule.values[L"ResignProfile"] = L"CS gone";
    const Window dialog = StartAndOpen(rule);
    EXPECT_EQ(SelectedEntry(dialog.Control(IDC_RULE_CS_PROFILE_COMBO)), L"CS one");
    EXPECT_EQ(SelectedEntry(dialog.Control(IDC_RULE_ROW3_COMBO)), L"CS one");
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorLayout, AStoredZeroIsShownAsAnEmptySecondFolder) {
    StoredRule rule = FullRule(L"MOVE");
    rule.values[L"Path Out 2"] = L"0";
    const Window dialog = StartAndOpen(rule);
    EXPECT_EQ(dialog.Control(IDC_RULE_CERT_EDIT).Text(), L"");
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorLayout, AStoredZeroIsShownAsAnEmptyExecutable) {
    StoredRule rule = FullRule(L"EXEC");
    rule.values[L"ExecName"] = L"0";
    const Window dialog = StartAndOpen(rule);
    EXPECT_EQ(dialog.Control(IDC_RULE_CERT_EDIT).Text(), L"");
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorLayout, AStoredNegativeNumberIsShownAsZero) {
    StoredRule rule = FullRule(L"PACK");
    rule.values[L"ArchCount"] = 0xFFFFFFFFU;
    const Window dialog = StartAndOpen(rule);
    EXPECT_EQ(dialog.Control(IDC_RULE_ROW1_NUMBER_EDIT).Text(), L"0");
    EXPECT_EQ(dialog.Control(IDC_RULE_ROW2_NUMBER_EDIT).Text(), L"12");
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorLayout, OnlyAStoredOneIsADetachedFormat) {
    StoredRule rule = FullRule(L"RESG");
    rule.values[L"In format det"] = 2U;
    const Window dialog = StartAndOpen(rule);
    EXPECT_EQ(SelectedEntry(dialog.Control(IDC_RULE_ROW1_COMBO)), L"Attached signature");
    EXPECT_EQ(SelectedEntry(dialog.Control(IDC_RULE_ROW2_COMBO)), L"Detached signature");
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorLayout, LeavingTheRecipientGroupDropsTheRecipients) {
    const Window dialog = StartAndOpen(FullRule(L"ENCR"));
    SelectOperation(dialog, L"LENC");
    EXPECT_EQ(Cert(dialog), kTwoRecipients);
    SelectOperation(dialog, L"SIGN");
    SelectOperation(dialog, L"ENCR");
    EXPECT_EQ(Cert(dialog), kRecipients);
    ExpectErrorBox(dialog, L"No certificate is selected for operation.", IDI_CERTIFICATES,
                   IDC_RULE_CERT_BUTTON);
    Close(dialog, IDCANCEL);
}

// Deliberate: signer lists outlive a visit to "Execute".
TEST_F(RuleEditorLayout, SignerListsSurviveExecuteAndNothingElse) {
    const Window dialog = StartAndOpen(FullRule(L"CHCK"));
    SelectOperation(dialog, L"EXEC");
    EXPECT_EQ(Cert(dialog), L"CERT enabled 'Executable file:' program, field ''");
    SelectOperation(dialog, L"DCHK");
    EXPECT_EQ(Cert(dialog), kThreeSigners);
    SelectOperation(dialog, L"HASH");
    SelectOperation(dialog, L"CHCK");
    EXPECT_EQ(Cert(dialog), kSigners);
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorLayout, TheArchiverSurvivesAListWithoutNo) {
    const Window dialog = StartAndOpen(FullRule(L"ENCR"));
    EXPECT_EQ(Row(dialog, 2), With(kZipOrNone, L"GZIP archivation"));
    SelectOperation(dialog, L"ARCH");
    EXPECT_EQ(Row(dialog, 2), With(kZip, L"GZIP archivation"));
    SelectOperation(dialog, L"ENCR");
    EXPECT_EQ(Row(dialog, 2), With(kZipOrNone, L"GZIP archivation"));
    SelectOperation(dialog, L"HASH");
    EXPECT_EQ(Row(dialog, 2), L"");
    SelectOperation(dialog, L"UNAR");
    EXPECT_EQ(Row(dialog, 2), With(kZip, L"GZIP archivation"));
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorLayout, DeleteEmptiesTheOutputFolderForGood) {
    const Window dialog = StartAndOpen(FullRule(L"HASH"));
    SelectOperation(dialog, L"DELE");
    EXPECT_EQ(ShownFields(dialog)[2], kOutOff);
    SelectOperation(dialog, L"SIGN");
    EXPECT_EQ(ShownFields(dialog)[2], With(kOutOn, L"'"));
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorLayout, FromMoveToPackNoTextIsTakenAlong) {
    const Window dialog = StartAndOpen(FullRule(L"MOVE"));
    SelectOperation(dialog, L"PACK");
    EXPECT_EQ(Row(dialog, 4), L"Archives name format: ''");
    SelectOperation(dialog, L"MOVE");
    EXPECT_EQ(Row(dialog, 1), L"Delete extension: ''");
    EXPECT_EQ(Row(dialog, 4), L"Accounting copy format: ''");
    EXPECT_EQ(Cert(dialog), L"CERT enabled 'Second Output folder ' folder, field ''");
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorLayout, FromPackToExecuteOnlyTheFirstNumberIsShown) {
    const Window dialog = StartAndOpen(FullRule(L"PACK"));
    SelectOperation(dialog, L"EXEC");
    EXPECT_EQ(Row(dialog, 1), L"Execution timeout (min.): 0");
    EXPECT_EQ(Row(dialog, 2), L"");
    EXPECT_EQ(Row(dialog, 3), L"");
    EXPECT_EQ(Row(dialog, 4), L"");
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorLayout, ResignBeginsWithAttachedFormats) {
    const Window dialog = StartAndOpen(FullRule(L"RESG"));
    SelectOperation(dialog, L"ENCR");
    SelectOperation(dialog, L"RESG");
    EXPECT_EQ(SelectedEntry(dialog.Control(IDC_RULE_ROW1_COMBO)), L"Attached signature");
    EXPECT_EQ(SelectedEntry(dialog.Control(IDC_RULE_ROW2_COMBO)), L"Attached signature");
    EXPECT_EQ(SelectedEntry(dialog.Control(IDC_RULE_ROW3_COMBO)), L"CS two");
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorLayout, AChangeOfOperationKeepsWhatIsBeingTyped) {
    StartWithRules({});
    const Window dialog = OpenNew();
    dialog.Control(IDC_RULE_INPUT_EDIT).SetText(L"C:\\half typ");
    dialog.Control(IDC_RULE_DESCRIPTION_EDIT).SetText(L"First line\r\nSecond line");
    SelectOperation(dialog, L"PACK");
    EXPECT_EQ(dialog.Control(IDC_RULE_INPUT_EDIT).Text(), L"C:\\half typ");
    EXPECT_EQ(dialog.Control(IDC_RULE_DESCRIPTION_EDIT).Text(), L"First line\r\nSecond line");
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorLayout, AnEditChangeOfTheOperationListDoesNothing) {
    const Window dialog = StartAndOpen(FullRule(L"MOVE"));
    const Texts before = ShownFields(dialog);
    const Window combo = dialog.Control(IDC_RULE_OPERATION_COMBO);
    dialog.Send(WM_COMMAND, MAKEWPARAM(IDC_RULE_OPERATION_COMBO, CBN_EDITCHANGE),
                reinterpret_cast<LPARAM>(combo.Handle()));
    EXPECT_EQ(ShownFields(dialog), before);
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorLayout, AFieldThatGoesAwayLeavesTheFocusToTheOperation) {
    const Window dialog = StartAndOpen(FullRule(L"MOVE"));
    const std::vector<std::pair<int, std::wstring>> goingFields = {{IDC_RULE_ROW4_EDIT, L"HASH"},
                                                                   {IDC_RULE_OUTPUT_EDIT, L"DELE"}};
    for (const auto& [field, code] : goingFields) {
        dialog.Post(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(dialog.Control(field).Handle()), TRUE);
        dialog.Control(field).WaitForFocus();
        SelectOperation(dialog, code);
        dialog.Control(IDC_RULE_OPERATION_COMBO).WaitForFocus();
    }
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorLayout, AProfileWithoutCsProfilesHasNoneToChoose) {
    WriteCatalogue({L"CS one"});
    WriteProfile(L"alpha", {});
    WriteRule(L"alpha", 0, FullRule(L"RESG"));
    Start();
    const Window dialog = OpenStored();
    EXPECT_EQ(ShownFields(dialog)[1], L"CS profile: () nothing");
    EXPECT_EQ(Row(dialog, 3), L"New signature profile: () nothing");
    Close(dialog, IDOK);
    const RegistryValues stored = SaveAndRead(0)[L""];
    EXPECT_EQ(stored.at(L"ZCSProfile"), RegistryData(L""));
    EXPECT_EQ(stored.at(L"ResignProfile"), RegistryData(L""));
}

}  // namespace
}  // namespace corvane::test
