#include "tests/kit/driver/failure.h"
#include "tests/kit/fixtures/editor_fixture.h"

#include <commctrl.h>

namespace corvane::test {
namespace {

class ProfileList : public EditorTest {
  protected:
    void DeleteOpenProfile(const std::wstring& asked) const {
        Control(IDC_DELETE_PROFILE_BUTTON).PostClick();
        ExpectBox(L"Delete profile '" + asked + L"'?", kConfirmation, IDYES);
        Settle();
    }
    /// The current profile's name as the question of "Delete profile" tells it; answers No.
    void ExpectCurrentName(const std::wstring& name) const {
        Profiles().Select({0});
        Main().PostMenuCommand(IDM_DELETE_PROFILE);
        ExpectBox(L"Delete profile '" + name + L"'?", kConfirmation, IDNO);
    }
};

TEST_F(ProfileList, IsAReportOfOneColumn) {
    StartWithSample();
    EXPECT_EQ(Profiles().Headings(), Texts{L"Profiles"});
    EXPECT_EQ(Profiles().Style() & LVS_TYPEMASK, static_cast<DWORD>(LVS_REPORT));
    EXPECT_NE(Profiles().Style() & LVS_SINGLESEL, 0U);
    EXPECT_NE(Profiles().Style() & LVS_SHOWSELALWAYS, 0U);
    const DWORD wanted = LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP;
    EXPECT_EQ(Profiles().ExtendedListStyle() & wanted, wanted);
    EXPECT_EQ(Profiles().ExtendedListStyle() & LVS_EX_CHECKBOXES, 0U);
}

TEST_F(ProfileList, AClickOpensTheProfile) {
    StartWithSample();
    OpenProfile(L"beta");
    EXPECT_EQ(Control(IDC_RULE_LIST_CAPTION_EDIT).Text(), L"CS profile's num: 1");
    EXPECT_EQ(ShownRules(), (Texts{L"Hash reports", L"Encode reports"}));
    OpenProfile(L"gamma");
    EXPECT_EQ(ShownRules(), (Texts{L"Hash letters", L"Decode letters"}));
    ExpectNothingToSave();
}

TEST_F(ProfileList, TheHiddenButtonAndItsCommandOpenTheSelectedProfile) {
    StartWithSample();
    Profiles().Select({1});
    Main().SendMenuCommand(IDM_OPEN_PROFILE);
    EXPECT_EQ(Control(IDC_PROFILE_CAPTION_EDIT).Text(), L"Profile: beta");
    Profiles().Select({2});
    Main().Send(WM_COMMAND, MAKEWPARAM(IDC_OPEN_PROFILE_BUTTON, BN_CLICKED),
                reinterpret_cast<LPARAM>(Control(IDC_OPEN_PROFILE_BUTTON).Handle()));
    EXPECT_EQ(Control(IDC_PROFILE_CAPTION_EDIT).Text(), L"Profile: gamma");
}

TEST_F(ProfileList, AClickBelowTheRowsOpensNothing) {
    StartWithSample();
    OpenProfile(L"beta");
    Profiles().PostLeftClick(Profiles().PointBelowRows());
    Settle();
    EXPECT_EQ(Control(IDC_PROFILE_CAPTION_EDIT).Text(), L"Profile: beta");
    ExpectNoDialog();
}

TEST_F(ProfileList, DeletingAsksAndNoKeepsTheProfile) {
    StartWithSample();
    Control(IDC_DELETE_PROFILE_BUTTON).PostClick();
    ExpectBox(L"Delete profile 'alpha'?", kConfirmation, IDNO);
    EXPECT_EQ(Profiles().Column(0), (Texts{L"alpha", L"beta", L"gamma"}));
    EXPECT_EQ(ShownRules(), SampleDescriptions());
    ExpectNothingToSave();
}

TEST_F(ProfileList, DeletingEmptiesTheRulesAndOpensNoOther) {
    StartWithSample();
    DeleteOpenProfile(L"alpha");
    EXPECT_EQ(Profiles().Column(0), (Texts{L"beta", L"gamma"}));
    EXPECT_EQ(Rules().RowCount(), 0);
    EXPECT_EQ(Control(IDC_PROFILE_CAPTION_EDIT).Text(), L"Profile: ");
    EXPECT_EQ(Control(IDC_RULE_LIST_CAPTION_EDIT).Text(), L"CS profile's num: 0");
    ExpectUnsavedChanges();
}

TEST_F(ProfileList, DeletingByTheMenuDoesTheSame) {
    StartWithSample();
    OpenProfile(L"beta");
    Main().PostMenuCommand(IDM_DELETE_PROFILE);
    ExpectBox(L"Delete profile 'beta'?", kConfirmation, IDYES);
    EXPECT_EQ(Profiles().Column(0), (Texts{L"alpha", L"gamma"}));
    ExpectUnsavedChanges();
}

// Deliberate: the walk over the rows goes on after the deleted one without correcting its index.
TEST_F(ProfileList, DeletingTheFirstOfThreeLeavesTheThirdAsCurrentName) {
    StartWithSample();
    DeleteOpenProfile(L"alpha");
    ExpectCurrentName(L"gamma");
}

TEST_F(ProfileList, DeletingTheFirstOfTwoLeavesNoCurrentName) {
    StartWithSample();
    DeleteOpenProfile(L"alpha");
    OpenProfile(L"beta");
    DeleteOpenProfile(L"beta");
    ExpectCurrentName(L"");
}

TEST_F(ProfileList, DeletingTheLastRowLeavesNoCurrentName) {
    StartWithSample();
    OpenProfile(L"gamma");
    DeleteOpenProfile(L"gamma");
    ExpectCurrentName(L"");
}

// The rule list is empty and loses the focus while the profile goes; boxes that are not there must not count
// as checked for a profile that nobody has opened.
TEST_F(ProfileList, DeletingFromWithinTheRuleListSwitchesNoRuleOfAnotherProfile) {
    WriteSampleConfiguration();
    const std::vector<std::wstring> others = {L"beta", L"gamma"};
    for (const std::wstring& other : others) {
        for (int rule = 0; rule < 2; ++rule) {
            WriteRegistryValue(RuleKey(other, rule), L"Is on", 0U);
        }
    }
    Start();
    Rules().PostLeftClick(Rules().CellCentre(kEncrypt, kDescriptionColumn));
    Rules().WaitForFocus();
    Main().PostMenuCommand(IDM_DELETE_PROFILE);
    ExpectBox(L"Delete profile 'alpha'?", kConfirmation, IDYES);
    Profiles().WaitForFocus();
    SaveAndLeave();
    for (const std::wstring& other : others) {
        EXPECT_EQ(StoredSwitches(other), (std::vector<std::uint32_t>{0, 0})) << Utf8(other);
    }
}

TEST_F(ProfileList, TheOnlyProfileIsRefusedAfterTheQuestion) {
    WriteCatalogue({L"CS one"});
    WriteProfile(L"only", {L"CS one"});
    WriteRule(L"only", 0, PlainRule(L"ENCR", L"One rule"));
    Start();
    Control(IDC_DELETE_PROFILE_BUTTON).PostClick();
    ExpectBox(L"Delete profile 'only'?", kConfirmation, IDYES);
    ExpectBox(L"Last profile cannot be deleted.", kRefusal, IDOK);
    EXPECT_EQ(Profiles().Column(0), Texts{L"only"});
    EXPECT_EQ(ShownRules(), Texts{L"One rule"});
    ExpectNothingToSave();
}

TEST_F(ProfileList, DeletingWithoutASelectionAsksNothing) {
    StartWithSample();
    Profiles().Select({});
    Press(IDC_DELETE_PROFILE_BUTTON);
    ExpectNoDialog();
    EXPECT_EQ(Profiles().RowCount(), 3);
    ExpectNothingToSave();
}

TEST_F(ProfileList, ASavedDeletionRemovesTheKeyWithEverythingUnderIt) {
    StartWithSample();
    DeleteOpenProfile(L"alpha");
    SaveAndLeave();
    EXPECT_EQ(RegistrySubkeys(kProgramKey), (Texts{L"beta", L"gamma"}));
}

TEST_F(ProfileList, AddingWithoutAnyCsProfileIsRefused) {
    WriteCatalogue({});
    WriteProfile(L"alpha", {L"CS one"});
    Start();
    Control(IDC_ADD_PROFILE_BUTTON).PostClick();
    ExpectBox(L"No CS profiles found.", kRefusal, IDOK);
    Main().PostMenuCommand(IDM_ADD_PROFILE);
    ExpectBox(L"No CS profiles found.", kRefusal, IDOK);
    ExpectNothingToSave();
}

}  // namespace
}  // namespace corvane::test
