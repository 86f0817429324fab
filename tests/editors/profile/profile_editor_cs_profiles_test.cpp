#include <windows.h>

#include "tests/kit/fixtures/profile_editor_fixture.h"

namespace corvane::test {
namespace {

// The first rule of "alpha" has recipients, the third one signer lists, both with "CS one".
constexpr wchar_t kDeleteCsOneQuestion[] =
    L"Rule(s) '1,3' of profile 'alpha' are using sertificates of CS profile 'CS one'.\r\n"
    L"Validation of these rules will be nessesary for proper work.\r\n"
    L"Delete CS profile 'CS one' from list?";

class CsProfileList : public ProfileEditorTest {
  protected:
    /// "alpha" with the two CS profiles of the sample; the catalogue has two more, one of which differs from
    /// "CS two" in its case only.
    [[nodiscard]] Window StartAndOpen() {
        WriteSampleConfiguration();
        WriteCatalogue({L"CS one", L"CS two", L"CS three", L"cs TWO"});
        Start();
        return OpenCurrent();
    }
    [[nodiscard]] static Texts Names(const Window& dialog) { return ListEntries(CsProfiles(dialog)); }
};

TEST_F(CsProfileList, IsAListBoxInTheOrderOfTheProfileWithTheFirstSelected) {
    WriteSampleConfiguration();
    WriteProfile(L"alpha", {L"z", L"a", L"m"});
    Start();
    const Window dialog = OpenCurrent();
    EXPECT_TRUE(CsProfiles(dialog).IsOfClass(L"ListBox"));
    EXPECT_EQ(CsProfiles(dialog).Style() & LBS_SORT, 0U);
    EXPECT_NE(CsProfiles(dialog).Style() & LBS_NOTIFY, 0U);
    EXPECT_EQ(Names(dialog), (Texts{L"z", L"a", L"m"}));
    EXPECT_EQ(SelectedCsProfile(dialog), 0);
    EXPECT_EQ(SettingsOf(dialog).title, L"CS profile setting's: z");
    Close(dialog, IDCANCEL);
}

TEST_F(CsProfileList, TheChoiceOffersTheCatalogueWithTheFirstSelected) {
    const Window dialog = StartAndOpen();
    const Window choice = OpenChoice(dialog);
    EXPECT_EQ(choice.Text(), L"Add CS profile");
    EXPECT_EQ(choice.Control(IDC_CS_PROFILE_CHOICE_LABEL).Text(), L"Choose CS profile");
    EXPECT_EQ(choice.Control(IDCANCEL).Text(), L"Exit");
    EXPECT_EQ(LOWORD(choice.Send(DM_GETDEFID)), IDOK);
    const Window combo = choice.Control(IDC_CS_PROFILE_CHOICE_COMBO);
    EXPECT_EQ(combo.Style() & 3, static_cast<DWORD>(CBS_DROPDOWNLIST));
    EXPECT_EQ(combo.Send(CB_GETCOUNT), 4);
    EXPECT_EQ(combo.Send(CB_GETCURSEL), 0);
    EXPECT_EQ(combo.Text(), L"CS one");
    combo.Send(CB_SETCURSEL, 2);
    EXPECT_EQ(combo.Text(), L"CS three");
    EXPECT_EQ(TabStops(choice), (std::vector<int>{IDC_CS_PROFILE_CHOICE_COMBO, IDOK, IDCANCEL}));
    choice.FocusOfThread().PostKey(VK_ESCAPE);
    choice.WaitUntilGone();
    dialog.WaitUntilEnabled();
    SettleEditor(dialog);
    EXPECT_EQ(Names(dialog), (Texts{L"CS one", L"CS two"}));
    Close(dialog, IDCANCEL);
    ExpectNothingToSave();
}

TEST_F(CsProfileList, AClickShowsTheSettingsOfTheEntry) {
    const Window dialog = StartAndOpen();
    PressIn(dialog, IDC_PROFILE_USE_AIA_CHECK);
    dialog.Control(IDC_PROFILE_FREQUENCY_EDIT).SetText(L"48");
    const ShownSettings first = SettingsOf(dialog);
    RECT second{};
    // The entry's place is asked for inside the other process, so it is worked out here.
    const auto height = static_cast<LONG>(CsProfiles(dialog).Send(LB_GETITEMHEIGHT, 0));
    second.top = height + height / 2;
    CsProfiles(dialog).PostLeftClick({10, second.top});
    dialog.Control(IDC_PROFILE_CS_PROFILE_GROUP).WaitForText(L"CS profile setting's: CS two");
    SettleEditor(dialog);
    EXPECT_EQ(SelectedCsProfile(dialog), 1);
    ShownSettings untouched = NewSettings(L"CS two");
    untouched.checked.clear();
    EXPECT_EQ(SettingsOf(dialog), untouched);
    CsProfiles(dialog).PostKey(VK_UP);
    dialog.Control(IDC_PROFILE_CS_PROFILE_GROUP).WaitForText(L"CS profile setting's: CS one");
    SettleEditor(dialog);
    EXPECT_EQ(SettingsOf(dialog), first);
    Close(dialog, IDCANCEL);
}

TEST_F(CsProfileList, TheSettingsOfEveryEntryAreSaved) {
    const Window dialog = StartAndOpen();
    PressIn(dialog, IDC_PROFILE_USE_AIA_CHECK);
    dialog.Control(IDC_PROFILE_FREQUENCY_EDIT).SetText(L"48");
    SelectCsProfile(dialog, 1);
    PressIn(dialog, IDC_PROFILE_USE_TSP_CHECK);
    dialog.Control(IDC_PROFILE_TSP_EDIT).SetText(L"http://two");
    AddCsProfile(dialog, 2);
    PressIn(dialog, IDC_PROFILE_NOT_LOAD_CRL_CHECK);
    SelectCsProfile(dialog, 0);
    EXPECT_EQ(SettingsOf(dialog).frequency, L"48");
    Close(dialog, IDOK);
    EXPECT_EQ(Control(IDC_RULE_LIST_CAPTION_EDIT).Text(), L"CS profile's num: 3");
    SaveAndLeave();
    const std::map<std::wstring, Texts> expected = {{L"ZCSProfile", {L"CS one", L"CS two", L"CS three"}},
                                                    {L"ServerTSP", {L"0", L"http://two", L"0"}},
                                                    {L"NotUseLDAP", {L"0", L"0", L"1"}},
                                                    {L"NotAddCert", {L"0", L"0", L"0"}},
                                                    {L"NotCopyToLocal", {L"0", L"0", L"0"}},
                                                    {L"AutoVerifyTSP", {L"0", L"0", L"0"}},
                                                    {L"NoTSPisError", {L"0", L"0", L"0"}},
                                                    {L"UseAIA", {L"1", L"0", L"0"}},
                                                    {L"AutoUseTSP", {L"0", L"1", L"0"}},
                                                    {L"NotLoadCrl", {L"0", L"0", L"1"}},
                                                    {L"CrlUpdatePeriod", {L"48", L"1", L"1"}}};
    EXPECT_EQ(StoredLists(L"alpha"), expected);
}

TEST_F(CsProfileList, AnAddedEntryStandsLastAndIsShownWithTheSettingsOfANewOne) {
    const Window dialog = StartAndOpen();
    PressIn(dialog, IDC_PROFILE_VERIFY_TSP_CHECK);
    PressIn(dialog, IDC_PROFILE_NO_TSP_ERROR_CHECK);
    AddCsProfile(dialog, 2);
    EXPECT_EQ(Names(dialog), (Texts{L"CS one", L"CS two", L"CS three"}));
    EXPECT_EQ(SelectedCsProfile(dialog), 2);
    EXPECT_EQ(SettingsOf(dialog), NewSettings(L"CS three"));
    SelectCsProfile(dialog, 0);
    EXPECT_EQ(SettingsOf(dialog).checked,
              (std::vector<int>{IDC_PROFILE_VERIFY_TSP_CHECK, IDC_PROFILE_NO_TSP_ERROR_CHECK}));
    Close(dialog, IDCANCEL);
    ExpectNothingToSave();
}

TEST_F(CsProfileList, AnEntryThatIsListedWhateverItsCaseIsNotAddedAgain) {
    const Window dialog = StartAndOpen();
    for (const int index : {1, 3}) {
        AddCsProfile(dialog, index);
        EXPECT_EQ(Names(dialog), (Texts{L"CS one", L"CS two"}));
        EXPECT_EQ(SelectedCsProfile(dialog), 0);
        EXPECT_EQ(SettingsOf(dialog).title, L"CS profile setting's: CS one");
    }
    Close(dialog, IDCANCEL);
}

TEST_F(CsProfileList, AMissingTimeStampServerKeepsFromLeavingTheEntry) {
    const Window dialog = StartAndOpen();
    SelectCsProfile(dialog, 1);
    PressIn(dialog, IDC_PROFILE_USE_TSP_CHECK);
    dialog.Control(IDC_PROFILE_TSP_EDIT).SetText(L"");
    const ShownSettings before = SettingsOf(dialog);
    PostSelection(dialog, 0);
    const MessageBoxWindow box = Editor().WaitForMessageBox(dialog);
    EXPECT_EQ(SelectedCsProfile(dialog), 1) << "the selection is back before the box is shown";
    EXPECT_EQ(box.View(),
              MessageBoxOfStyle(L"Please, type TSP data.", L"QENT AC Velmaris - configuration", kRefusal));
    box.Answer(IDOK);
    dialog.WaitUntilEnabled();
    SettleEditor(dialog);
    EXPECT_EQ(SelectedCsProfile(dialog), 1);
    EXPECT_EQ(SettingsOf(dialog), before);
    dialog.Control(IDC_PROFILE_ADD_CS_PROFILE_BUTTON).PostClick();
    AnswerBox(dialog, L"Please, type TSP data.", kRefusal, IDOK);
    EXPECT_EQ(Names(dialog), (Texts{L"CS one", L"CS two"}));
    Close(dialog, IDCANCEL);
}

TEST_F(CsProfileList, TheLastEntryCannotBeDeleted) {
    StartWithSample();
    OpenProfile(L"beta");
    const Window dialog = OpenCurrent();
    for (const int selected : {0, -1}) {
        CsProfiles(dialog).Send(LB_SETCURSEL, static_cast<WPARAM>(selected));
        dialog.Control(IDC_PROFILE_DELETE_CS_PROFILE_BUTTON).PostClick();
        AnswerBox(dialog, L"Last CS profile in list cannot be deleted.", kRefusal, IDOK);
    }
    EXPECT_EQ(Names(dialog), Texts{L"CS one"});
    Close(dialog, IDCANCEL);
}

TEST_F(CsProfileList, DeletingWithoutASelectionIsRefused) {
    const Window dialog = StartAndOpen();
    CsProfiles(dialog).Send(LB_SETCURSEL, static_cast<WPARAM>(-1));
    dialog.Control(IDC_PROFILE_DELETE_CS_PROFILE_BUTTON).PostClick();
    AnswerBox(dialog, L"Select list item to delete.", kRefusal, IDOK);
    CsProfiles(dialog).WaitForFocus();
    EXPECT_EQ(Names(dialog), (Texts{L"CS one", L"CS two"}));
    Close(dialog, IDCANCEL);
}

TEST_F(CsProfileList, DeletingNamesTheRulesWithCertificatesAndNoKeepsTheEntry) {
    const Window dialog = StartAndOpen();
    DeleteCsProfile(dialog, kDeleteCsOneQuestion, IDNO);
    EXPECT_EQ(Names(dialog), (Texts{L"CS one", L"CS two"}));
    SelectCsProfile(dialog, 1);
    DeleteCsProfile(dialog, L"Delete CS profile 'CS two' from list?", IDNO);
    EXPECT_EQ(SettingsOf(dialog).title, L"CS profile setting's: CS two");
    Close(dialog, IDCANCEL);
}

TEST_F(CsProfileList, ADeletedEntryIsGoneAndTheFirstIsShown) {
    const Window dialog = StartAndOpen();
    AddCsProfile(dialog, 2);
    SelectCsProfile(dialog, 1);
    DeleteCsProfile(dialog, L"Delete CS profile 'CS two' from list?", IDYES);
    EXPECT_EQ(Names(dialog), (Texts{L"CS one", L"CS three"}));
    EXPECT_EQ(SelectedCsProfile(dialog), 0);
    EXPECT_EQ(SettingsOf(dialog).title, L"CS profile setting's: CS one");
    Close(dialog, IDCANCEL);
    ExpectNothingToSave();
}

TEST_F(CsProfileList, TheDeleteKeyDeletesTheSelectedEntry) {
    const Window dialog = StartAndOpen();
    SelectCsProfile(dialog, 1);
    CsProfiles(dialog).PostKey(VK_DELETE);
    AnswerBox(dialog, L"Delete CS profile 'CS two' from list?", kConfirmation, IDYES);
    EXPECT_EQ(Names(dialog), Texts{L"CS one"});
    Close(dialog, IDCANCEL);
}

TEST_F(CsProfileList, RulesOfADeletedEntryGetTheFirstOneLeft) {
    const Window dialog = StartAndOpen();
    DeleteCsProfile(dialog, kDeleteCsOneQuestion, IDYES);
    Close(dialog, IDOK);
    EXPECT_EQ(Rules().Column(kCsProfileColumn),
              (Texts{L"CS two", L"0", L"CS two", L"CS two", L"CS two", L"CS two"}));
    EXPECT_EQ(Control(IDC_RULE_LIST_CAPTION_EDIT).Text(), L"CS profile's num: 1");
    SaveAndLeave();
    EXPECT_EQ(StoredRuleTexts(L"alpha", L"ZCSProfile"),
              (Texts{L"CS two", L"0", L"CS two", L"CS two", L"CS two", L"CS two"}));
    EXPECT_EQ(StoredRuleTexts(L"beta", L"ZCSProfile"), (Texts{L"CS one", L"CS one"}))
        << "rules of other profiles keep theirs";
    EXPECT_EQ(StoredList(L"alpha", L"ZCSProfile"), Texts{L"CS two"});
}

TEST_F(CsProfileList, RulesThatResignToADeletedEntryGetTheFirstOneLeft) {
    const Window dialog = StartAndOpen();
    SelectCsProfile(dialog, 1);
    DeleteCsProfile(dialog, L"Delete CS profile 'CS two' from list?", IDYES);
    Close(dialog, IDOK);
    SaveAndLeave();
    EXPECT_EQ(ReadRegistryValue(RuleKey(L"alpha", kResign), L"ResignProfile"), RegistryData(L"CS one"));
}

TEST_F(CsProfileList, AnEntryThatIsDeletedAndAddedAgainRedirectsNoRule) {
    const Window dialog = StartAndOpen();
    DeleteCsProfile(dialog, kDeleteCsOneQuestion, IDYES);
    AddCsProfile(dialog, 0);
    EXPECT_EQ(Names(dialog), (Texts{L"CS two", L"CS one"}));
    EXPECT_EQ(SettingsOf(dialog), NewSettings(L"CS one"));
    Close(dialog, IDOK);
    EXPECT_EQ(Rules().Column(kCsProfileColumn),
              (Texts{L"CS one", L"0", L"CS one", L"CS one", L"CS one", L"CS one"}));
    SaveAndLeave();
    EXPECT_EQ(StoredRuleTexts(L"alpha", L"ZCSProfile"),
              (Texts{L"CS one", L"0", L"CS one", L"CS one", L"CS one", L"CS one"}));
}

}  // namespace
}  // namespace corvane::test
