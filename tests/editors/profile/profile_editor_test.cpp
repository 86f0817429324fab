#include "tests/kit/fixtures/profile_editor_fixture.h"

#include <windows.h>

#include <commctrl.h>

#include <functional>

#include "tests/kit/driver/failure.h"
#include "tests/kit/driver/icon.h"
#include "tests/kit/driver/tool_tips.h"

namespace corvane::test {
namespace {

class ProfileEditor : public ProfileEditorTest {
  protected:
    [[nodiscard]] static std::wstring ProfileKey(const std::wstring& profile) {
        return std::wstring(kProgramKey) + L"\\" + profile;
    }
    /// Starts on the sample configuration in which "alpha" has these lists and options.
    void StartWith(const std::map<std::wstring, RegistryData>& values) {
        WriteSampleConfiguration();
        for (const auto& [name, data] : values) {
            WriteRegistryValue(ProfileKey(L"alpha"), name, data);
        }
        Start();
    }
    /// Opens a new profile and gives it a name.
    [[nodiscard]] Window StartWithNewProfile(const std::wstring& name) {
        StartWithSample();
        const Window dialog = OpenNew();
        dialog.Control(IDC_PROFILE_NAME_EDIT).SetText(name);
        return dialog;
    }
    static std::wstring FrequencyOf(const Window& dialog) {
        return dialog.Control(IDC_PROFILE_FREQUENCY_EDIT).Text();
    }
};

TEST_F(ProfileEditor, ANewProfileStartsWithTheFirstCsProfileOfTheCatalogue) {
    StartWithSample();
    const Window dialog = OpenNew();
    EXPECT_EQ(dialog.Text(), L"Add profile");
    EXPECT_EQ(dialog.Control(IDC_PROFILE_NAME_EDIT).Text(), L"");
    EXPECT_EQ(ListEntries(CsProfiles(dialog)), Texts{L"CS one"});
    EXPECT_EQ(SelectedCsProfile(dialog), 0);
    EXPECT_EQ(SettingsOf(dialog), NewSettings(L"CS one"));
    EXPECT_EQ(dialog.Control(IDC_PROFILE_TIMEOUT_EDIT).Text(), L"15");
    for (const int id : {IDC_PROFILE_VERIFY_REPORT_CHECK, IDC_PROFILE_VERIFY_DELETE_REPORT_CHECK,
                         IDC_PROFILE_VERIFY_DETACHED_REPORT_CHECK, IDC_PROFILE_RESIGN_REPORT_CHECK,
                         IDC_PROFILE_RENAME_CHECK}) {
        EXPECT_FALSE(IsChecked(dialog.Control(id))) << id;
    }
    Close(dialog, IDCANCEL);
    ExpectNothingToSave();
}

TEST_F(ProfileEditor, ShowsItsTexts) {
    StartWithSample();
    const Window dialog = OpenCurrent();
    EXPECT_EQ(dialog.Text(), L"Edit profile");
    const std::map<int, std::wstring> texts = {
        {IDC_PROFILE_NAME_LABEL, L"Type profile name"},
        {IDC_PROFILE_CS_PROFILE_GROUP, L"CS profile setting's: CS one"},
        {IDC_PROFILE_NO_NCS_CHECK, L"Do not use NCS"},
        {IDC_PROFILE_NOT_ADD_CERT_CHECK, L"Do not add certificate into signature"},
        {IDC_PROFILE_NOT_COPY_CERT_CHECK, L"Do not add certificate into local store"},
        {IDC_PROFILE_NOT_LOAD_CRL_CHECK, L"Do not load CRL from distribution point"},
        {IDC_PROFILE_FREQUENCY_LABEL, L"Frequency (h.):"},
        {IDC_PROFILE_USE_TSP_CHECK, L"Use TSP server:"},
        {IDC_PROFILE_VERIFY_TSP_CHECK, L"Verify time stamp while signature verification"},
        {IDC_PROFILE_NO_TSP_ERROR_CHECK, L"Admit the lack of time stamp as an error"},
        {IDC_PROFILE_USE_AIA_CHECK, L"Allow AIA and CDP access while building chains"},
        {IDC_PROFILE_VERIFY_REPORT_CHECK, L"Create report file after verifying attached signature"},
        {IDC_PROFILE_VERIFY_DELETE_REPORT_CHECK,
         L"Create report file after verifying and deleting attached signature"},
        {IDC_PROFILE_VERIFY_DETACHED_REPORT_CHECK, L"Create report file after verifying detached signature"},
        {IDC_PROFILE_RESIGN_REPORT_CHECK, L"Create report file after verifying resigning file"},
        {IDC_PROFILE_TIMEOUT_LABEL, L"Handler timeout (sec.):"},
        {IDC_PROFILE_RENAME_CHECK, L"Rename files in Output directory if name conflict happens"},
        {IDC_PROFILE_ADD_CS_PROFILE_BUTTON, L"Add"},
        {IDC_PROFILE_DELETE_CS_PROFILE_BUTTON, L"Delete"},
        {IDOK, L"OK"},
        {IDCANCEL, L"Exit"},
    };
    for (const auto& [id, text] : texts) {
        EXPECT_EQ(dialog.Control(id).Text(), text) << id;
    }
    const std::map<int, std::wstring> tips = {{IDC_PROFILE_ADD_CS_PROFILE_BUTTON, L"Add"},
                                              {IDC_PROFILE_DELETE_CS_PROFILE_BUTTON, L"Delete"}};
    EXPECT_EQ(ToolTipTexts(dialog), tips);
    EXPECT_TRUE(IconOf(dialog.Control(IDC_PROFILE_ADD_CS_PROFILE_BUTTON), IconPlace::kButton, IDI_ADD_ITEM)
                    .showsResource);
    EXPECT_TRUE(
        IconOf(dialog.Control(IDC_PROFILE_DELETE_CS_PROFILE_BUTTON), IconPlace::kButton, IDI_DELETE_ITEM)
            .showsResource);
    Close(dialog, IDCANCEL);
}

TEST_F(ProfileEditor, ShowsTheStoredProfile) {
    StartWith({{L"ServerTSP", Texts{L"http://one", L"0"}},
               {L"NotUseLDAP", Texts{L"0", L"1"}},
               {L"NotAddCert", Texts{L"1", L"0"}},
               {L"AutoUseTSP", Texts{L"1", L"0"}},
               {L"AutoVerifyTSP", Texts{L"1", L"0"}},
               {L"NoTSPisError", Texts{L"1", L"0"}},
               {L"CrlUpdatePeriod", Texts{L"48", L"2"}},
               {L"Handler timeout", 100U},
               {L"Verify x file", 1U},
               {L"Verify resign file", 1U},
               {L"Rename conf files", 1U}});
    const Window dialog = OpenCurrent();
    EXPECT_EQ(dialog.Control(IDC_PROFILE_NAME_EDIT).Text(), L"alpha");
    EXPECT_EQ(ListEntries(CsProfiles(dialog)), (Texts{L"CS one", L"CS two"}));
    const ShownSettings first = {.title = L"CS profile setting's: CS one",
                                 .checked = {IDC_PROFILE_NOT_ADD_CERT_CHECK, IDC_PROFILE_USE_TSP_CHECK,
                                             IDC_PROFILE_VERIFY_TSP_CHECK, IDC_PROFILE_NO_TSP_ERROR_CHECK},
                                 .server = L"http://one",
                                 .isServerEnabled = true,
                                 .isNoTimeStampErrorEnabled = true,
                                 .frequency = L"48"};
    EXPECT_EQ(SettingsOf(dialog), first);
    EXPECT_EQ(dialog.Control(IDC_PROFILE_TIMEOUT_EDIT).Text(), L"100");
    EXPECT_FALSE(IsChecked(dialog.Control(IDC_PROFILE_VERIFY_REPORT_CHECK)));
    EXPECT_TRUE(IsChecked(dialog.Control(IDC_PROFILE_VERIFY_DELETE_REPORT_CHECK)));
    EXPECT_FALSE(IsChecked(dialog.Control(IDC_PROFILE_VERIFY_DETACHED_REPORT_CHECK)));
    EXPECT_TRUE(IsChecked(dialog.Control(IDC_PROFILE_RESIGN_REPORT_CHECK)));
    EXPECT_TRUE(IsChecked(dialog.Control(IDC_PROFILE_RENAME_CHECK)));
    Close(dialog, IDCANCEL);
}

TEST_F(ProfileEditor, OpensByMenuAndDoubleClickToo) {
    StartWithSample();
    Main().PostMenuCommand(IDM_ADD_PROFILE);
    Window dialog = Editor().WaitForDialog(Main());
    EXPECT_EQ(dialog.Text(), L"Add profile");
    Close(dialog, IDCANCEL);
    Main().PostMenuCommand(IDM_EDIT_PROFILE);
    dialog = Editor().WaitForDialog(Main());
    EXPECT_EQ(dialog.Control(IDC_PROFILE_NAME_EDIT).Text(), L"alpha");
    Close(dialog, IDCANCEL);
    Profiles().PostLeftDoubleClick(Profiles().CellCentre(1, 0));
    dialog = Editor().WaitForDialog(Main());
    EXPECT_EQ(dialog.Control(IDC_PROFILE_NAME_EDIT).Text(), L"beta");
    Close(dialog, IDCANCEL);
    ExpectNothingToSave();
}

TEST_F(ProfileEditor, TheTabKeyFollowsTheOrderOfReading) {
    StartWithSample();
    const Window dialog = OpenNew();
    dialog.Control(IDC_PROFILE_NAME_EDIT).WaitForFocus();
    const std::vector<int> always = {IDC_PROFILE_NAME_EDIT,
                                     IDC_PROFILE_CS_PROFILE_LIST,
                                     IDC_PROFILE_ADD_CS_PROFILE_BUTTON,
                                     IDC_PROFILE_DELETE_CS_PROFILE_BUTTON,
                                     IDC_PROFILE_NO_NCS_CHECK,
                                     IDC_PROFILE_NOT_ADD_CERT_CHECK,
                                     IDC_PROFILE_NOT_COPY_CERT_CHECK,
                                     IDC_PROFILE_NOT_LOAD_CRL_CHECK,
                                     IDC_PROFILE_FREQUENCY_EDIT,
                                     IDC_PROFILE_USE_TSP_CHECK,
                                     IDC_PROFILE_TSP_EDIT,
                                     IDC_PROFILE_VERIFY_TSP_CHECK,
                                     IDC_PROFILE_NO_TSP_ERROR_CHECK,
                                     IDC_PROFILE_USE_AIA_CHECK,
                                     IDC_PROFILE_VERIFY_REPORT_CHECK,
                                     IDC_PROFILE_VERIFY_DELETE_REPORT_CHECK,
                                     IDC_PROFILE_VERIFY_DETACHED_REPORT_CHECK,
                                     IDC_PROFILE_RESIGN_REPORT_CHECK,
                                     IDC_PROFILE_TIMEOUT_EDIT,
                                     IDC_PROFILE_RENAME_CHECK,
                                     IDOK,
                                     IDCANCEL};
    PressIn(dialog, IDC_PROFILE_USE_TSP_CHECK);
    PressIn(dialog, IDC_PROFILE_VERIFY_TSP_CHECK);
    EXPECT_EQ(TabStops(dialog), always);
    Close(dialog, IDCANCEL);
}

TEST_F(ProfileEditor, ExitEscapeAndTheCloseBoxChangeNothing) {
    StartWithSample();
    for (const auto& leave : std::vector<std::function<void(const Window&)>>{
             [](const Window& dialog) { dialog.Control(IDCANCEL).PostClick(); },
             [](const Window& dialog) { dialog.FocusOfThread().PostKey(VK_ESCAPE); },
             [](const Window& dialog) { dialog.Post(WM_SYSCOMMAND, SC_CLOSE); }}) {
        const Window dialog = OpenCurrent();
        dialog.Control(IDC_PROFILE_NAME_EDIT).SetText(L"another");
        PressIn(dialog, IDC_PROFILE_RENAME_CHECK);
        DeleteCsProfile(dialog,
                        L"Rule(s) '1,3' of profile 'alpha' are using sertificates of CS profile 'CS one'.\r\n"
                        L"Validation of these rules will be nessesary for proper work.\r\n"
                        L"Delete CS profile 'CS one' from list?",
                        IDYES);
        leave(dialog);
        dialog.WaitUntilGone();
        WaitForMain();
    }
    EXPECT_EQ(Profiles().Column(0), (Texts{L"alpha", L"beta", L"gamma"}));
    const Window again = OpenCurrent();
    EXPECT_EQ(ListEntries(CsProfiles(again)), (Texts{L"CS one", L"CS two"}));
    EXPECT_FALSE(IsChecked(again.Control(IDC_PROFILE_RENAME_CHECK)));
    Close(again, IDCANCEL);
    ExpectNothingToSave();
}

TEST_F(ProfileEditor, EnterDoesWhatOkDoes) {
    const Window dialog = StartWithNewProfile(L"delta");
    EXPECT_EQ(LOWORD(dialog.Send(DM_GETDEFID)), IDOK);
    dialog.Control(IDC_PROFILE_NAME_EDIT).PostKey(VK_RETURN);
    dialog.WaitUntilGone();
    WaitForMain();
    EXPECT_EQ(Profiles().Column(0), (Texts{L"alpha", L"beta", L"gamma", L"delta"}));
    ExpectUnsavedChanges();
}

TEST_F(ProfileEditor, TheServerFieldFollowsItsBox) {
    StartWithSample();
    const Window dialog = OpenNew();
    const Window server = dialog.Control(IDC_PROFILE_TSP_EDIT);
    PressIn(dialog, IDC_PROFILE_USE_TSP_CHECK);
    EXPECT_TRUE(server.IsEnabled());
    EXPECT_EQ(server.Text(), L"0");
    server.SetText(L"http://stamp");
    PressIn(dialog, IDC_PROFILE_USE_TSP_CHECK);
    EXPECT_FALSE(server.IsEnabled());
    EXPECT_EQ(server.Text(), L"0");
    PressIn(dialog, IDC_PROFILE_USE_TSP_CHECK);
    EXPECT_TRUE(server.IsEnabled());
    EXPECT_EQ(server.Text(), L"0");
    dialog.Control(IDC_PROFILE_NAME_EDIT).SetText(L"delta");
    Close(dialog, IDOK);
    SaveAndLeave();
    EXPECT_EQ(StoredList(L"delta", L"ServerTSP"), Texts{L"0"});
    EXPECT_EQ(StoredList(L"delta", L"AutoUseTSP"), Texts{L"1"});
}

TEST_F(ProfileEditor, TheLackOfATimeStampFollowsTheVerification) {
    StartWithSample();
    const Window dialog = OpenNew();
    const Window lack = dialog.Control(IDC_PROFILE_NO_TSP_ERROR_CHECK);
    EXPECT_FALSE(lack.IsEnabled());
    PressIn(dialog, IDC_PROFILE_VERIFY_TSP_CHECK);
    EXPECT_TRUE(lack.IsEnabled());
    PressIn(dialog, IDC_PROFILE_NO_TSP_ERROR_CHECK);
    EXPECT_TRUE(IsChecked(lack));
    PressIn(dialog, IDC_PROFILE_VERIFY_TSP_CHECK);
    EXPECT_FALSE(lack.IsEnabled());
    EXPECT_FALSE(IsChecked(lack));
    Close(dialog, IDCANCEL);
}

TEST_F(ProfileEditor, NothingElseDependsOnAnything) {
    StartWithSample();
    const Window dialog = OpenNew();
    for (const int id : {IDC_PROFILE_NO_NCS_CHECK, IDC_PROFILE_NOT_LOAD_CRL_CHECK,
                         IDC_PROFILE_NOT_ADD_CERT_CHECK, IDC_PROFILE_USE_AIA_CHECK}) {
        PressIn(dialog, id);
    }
    EXPECT_TRUE(dialog.Control(IDC_PROFILE_FREQUENCY_EDIT).IsEnabled());
    ShownSettings expected = NewSettings(L"CS one");
    expected.checked = {IDC_PROFILE_NOT_ADD_CERT_CHECK, IDC_PROFILE_NOT_LOAD_CRL_CHECK,
                        IDC_PROFILE_USE_AIA_CHECK};
    EXPECT_EQ(SettingsOf(dialog), expected);
    Close(dialog, IDCANCEL);
}

TEST_F(ProfileEditor, TypingAPeriodPutsItIntoItsRangeAtOnce) {
    StartWithSample();
    const Window dialog = OpenNew();
    EXPECT_NE(dialog.Control(IDC_PROFILE_FREQUENCY_EDIT).Style() & ES_NUMBER, 0U);
    TypeInto(dialog, IDC_PROFILE_FREQUENCY_EDIT, L"9000");
    EXPECT_EQ(FrequencyOf(dialog), L"8760");
    TypeInto(dialog, IDC_PROFILE_FREQUENCY_EDIT, L"24");
    EXPECT_EQ(FrequencyOf(dialog), L"24");
    // What is pasted or set from outside may be anything.
    for (const auto& [text, shown] : std::map<std::wstring, std::wstring>{
             {L"", L"0"}, {L"99999999999", L"8760"}, {L"-1", L"0"}, {L"abc", L"0"}, {L"0012", L"12"}}) {
        dialog.Control(IDC_PROFILE_FREQUENCY_EDIT).SetText(text);
        EXPECT_EQ(FrequencyOf(dialog), shown);
    }
    Close(dialog, IDCANCEL);
}

TEST_F(ProfileEditor, TheArrowsOfThePeriodGoFrom0To8760WithoutSeparators) {
    StartWithSample();
    const Window dialog = OpenNew();
    const Window arrows = dialog.Control(IDC_PROFILE_FREQUENCY_SPIN);
    EXPECT_EQ(arrows.Send(UDM_GETRANGE), MAKELONG(8760, 0));
    EXPECT_EQ(Window(reinterpret_cast<HWND>(arrows.Send(UDM_GETBUDDY))),
              dialog.Control(IDC_PROFILE_FREQUENCY_EDIT));
    EXPECT_NE(arrows.Style() & UDS_NOTHOUSANDS, 0U);
    const Window frequency = dialog.Control(IDC_PROFILE_FREQUENCY_EDIT);
    frequency.SetText(L"1999");
    frequency.Send(WM_KEYDOWN, VK_UP);
    EXPECT_EQ(FrequencyOf(dialog), L"2000");
    frequency.SetText(L"0");
    frequency.Send(WM_KEYDOWN, VK_DOWN);
    EXPECT_EQ(FrequencyOf(dialog), L"0");
    frequency.SetText(L"8760");
    frequency.Send(WM_KEYDOWN, VK_UP);
    EXPECT_EQ(FrequencyOf(dialog), L"8760");
    Close(dialog, IDCANCEL);
}

TEST_F(ProfileEditor, AStoredPeriodBeyondItsRangeIsShownInIt) {
    StartWith({{L"CrlUpdatePeriod", Texts{L"9000", L"9001"}}});
    const Window dialog = OpenCurrent();
    EXPECT_EQ(FrequencyOf(dialog), L"8760");
    Close(dialog, IDOK);
    SaveAndLeave();
    EXPECT_EQ(StoredList(L"alpha", L"CrlUpdatePeriod"), (Texts{L"8760", L"9001"}))
        << "a CS profile that was not shown keeps what is stored";
}

TEST_F(ProfileEditor, TheTimeoutTakesDigitsAndWhateverFits) {
    const Window dialog = StartWithNewProfile(L"delta");
    const Window timeout = dialog.Control(IDC_PROFILE_TIMEOUT_EDIT);
    EXPECT_NE(timeout.Style() & ES_NUMBER, 0U);
    for (const auto& [text, shown] : std::map<std::wstring, std::wstring>{{L"99999999999", L"2147483647"},
                                                                          {L"-1", L"0"},
                                                                          {L"abc", L"0"},
                                                                          {L"", L""},
                                                                          {L"100000", L"100000"}}) {
        timeout.SetText(text);
        EXPECT_EQ(timeout.Text(), shown);
    }
    timeout.SetText(L"100000");
    Close(dialog, IDOK);
    SaveAndLeave();
    EXPECT_EQ(ReadRegistryValue(ProfileKey(L"delta"), L"Handler timeout"), RegistryData(100000U));
}

TEST_F(ProfileEditor, RefusesEachFaultInItsOrder) {
    StartWithSample();
    const Window dialog = OpenNew();
    const Window name = dialog.Control(IDC_PROFILE_NAME_EDIT);
    const Window timeout = dialog.Control(IDC_PROFILE_TIMEOUT_EDIT);
    timeout.SetText(L"0");
    PressIn(dialog, IDC_PROFILE_USE_TSP_CHECK);
    dialog.Control(IDC_PROFILE_TSP_EDIT).SetText(L"");
    ExpectRefusal(dialog, L"Please, type a name for profile.", IDC_PROFILE_NAME_EDIT);
    name.SetText(L"1234567890123456");
    ExpectRefusal(dialog, L"Profile name cannot be longer than 15 symbols.", IDC_PROFILE_NAME_EDIT);
    name.SetText(L"   ");
    ExpectRefusal(dialog, L"Profile name cannot consist from spaces only.", IDC_PROFILE_NAME_EDIT);
    name.SetText(L"beta");
    ExpectRefusal(dialog, L"Please, choose handler timeout.", IDC_PROFILE_TIMEOUT_EDIT);
    timeout.SetText(L"1");
    ExpectRefusal(dialog, L"Profile 'beta' allready exists.", IDC_PROFILE_NAME_EDIT);
    name.SetText(L"a\\b");
    ExpectRefusal(dialog, L"Please, type TSP data.", IDC_PROFILE_TSP_EDIT);
    dialog.Control(IDC_PROFILE_TSP_EDIT).SetText(L"http://stamp");
    ExpectRefusal(dialog, L"Profile name cannot contain the symbol '\\'.", IDC_PROFILE_NAME_EDIT);
    EXPECT_EQ(name.Text(), L"a\\b");
    EXPECT_EQ(dialog.Control(IDC_PROFILE_TSP_EDIT).Text(), L"http://stamp");
    Close(dialog, IDCANCEL);
    ExpectNothingToSave();
}

TEST_F(ProfileEditor, ARefusalLeavesTheDialogAsItIs) {
    StartWithSample();
    const Window dialog = OpenCurrent();
    dialog.Control(IDC_PROFILE_NAME_EDIT).SetText(L"");
    dialog.Control(IDC_PROFILE_TIMEOUT_EDIT).SetText(L"");
    SelectCsProfile(dialog, 1);
    dialog.Control(IDC_PROFILE_TIMEOUT_EDIT).SetText(L"");
    const ShownSettings before = SettingsOf(dialog);
    ExpectRefusal(dialog, L"Please, type a name for profile.", IDC_PROFILE_NAME_EDIT);
    EXPECT_EQ(SettingsOf(dialog), before);
    EXPECT_EQ(SelectedCsProfile(dialog), 1);
    EXPECT_EQ(dialog.Control(IDC_PROFILE_TIMEOUT_EDIT).Text(), L"");
    Close(dialog, IDCANCEL);
}

TEST_F(ProfileEditor, ANameOf15CharactersIsAddedAndSavedWithItsDefaults) {
    const Window dialog = StartWithNewProfile(L"123456789012345");
    Close(dialog, IDOK);
    EXPECT_EQ(Profiles().Column(0), (Texts{L"alpha", L"beta", L"gamma", L"123456789012345"}));
    EXPECT_EQ(Control(IDC_PROFILE_CAPTION_EDIT).Text(), L"Profile: alpha") << "no other profile is opened";
    SaveAndLeave();
    const std::map<std::wstring, Texts> expected = {
        {L"ZCSProfile", {L"CS one"}}, {L"ServerTSP", {L"0"}},      {L"NotUseLDAP", {L"1"}},
        {L"NotAddCert", {L"0"}},      {L"NotCopyToLocal", {L"0"}}, {L"AutoVerifyTSP", {L"0"}},
        {L"NoTSPisError", {L"0"}},    {L"UseAIA", {L"0"}},         {L"AutoUseTSP", {L"0"}},
        {L"NotLoadCrl", {L"0"}},      {L"CrlUpdatePeriod", {L"1"}}};
    EXPECT_EQ(StoredLists(L"123456789012345"), expected);
    EXPECT_EQ(ReadRegistryValue(ProfileKey(L"123456789012345"), L"Handler timeout"), RegistryData(15U));
}

TEST_F(ProfileEditor, ANameThatDiffersInItsCaseOnlyIsAnotherName) {
    const Window dialog = StartWithNewProfile(L"ALPHA");
    Close(dialog, IDOK);
    EXPECT_EQ(Profiles().Column(0), (Texts{L"alpha", L"beta", L"gamma", L"ALPHA"}));
    OpenProfile(L"ALPHA");
    EXPECT_EQ(Rules().RowCount(), 0);
    ExpectUnsavedChanges();
}

TEST_F(ProfileEditor, ATabIsAName) {
    const Window dialog = StartWithNewProfile(L"\t");
    Close(dialog, IDOK);
    EXPECT_EQ(Profiles().Column(0), (Texts{L"alpha", L"beta", L"gamma", L"\t"}));
    ExpectUnsavedChanges();
}

TEST_F(ProfileEditor, EverySettingIsSaved) {
    const Window dialog = StartWithNewProfile(L" \u041F\u0440\u043E\u0444\u0438\u043B\u044C ");
    for (const int id :
         {IDC_PROFILE_NO_NCS_CHECK, IDC_PROFILE_NOT_ADD_CERT_CHECK, IDC_PROFILE_NOT_COPY_CERT_CHECK,
          IDC_PROFILE_NOT_LOAD_CRL_CHECK, IDC_PROFILE_USE_TSP_CHECK, IDC_PROFILE_VERIFY_TSP_CHECK,
          IDC_PROFILE_NO_TSP_ERROR_CHECK, IDC_PROFILE_USE_AIA_CHECK, IDC_PROFILE_VERIFY_REPORT_CHECK,
          IDC_PROFILE_VERIFY_DETACHED_REPORT_CHECK, IDC_PROFILE_RENAME_CHECK}) {
        PressIn(dialog, id);
    }
    dialog.Control(IDC_PROFILE_TSP_EDIT).SetText(L" http://stamp ");
    dialog.Control(IDC_PROFILE_FREQUENCY_EDIT).SetText(L"12");
    dialog.Control(IDC_PROFILE_TIMEOUT_EDIT).SetText(L"30");
    Close(dialog, IDOK);
    SaveAndLeave();
    const std::wstring name = L" \u041F\u0440\u043E\u0444\u0438\u043B\u044C ";
    const std::map<std::wstring, Texts> expected = {
        {L"ZCSProfile", {L"CS one"}}, {L"ServerTSP", {L" http://stamp "}},
        {L"NotUseLDAP", {L"0"}},      {L"NotAddCert", {L"1"}},
        {L"NotCopyToLocal", {L"1"}},  {L"AutoVerifyTSP", {L"1"}},
        {L"NoTSPisError", {L"1"}},    {L"UseAIA", {L"1"}},
        {L"AutoUseTSP", {L"1"}},      {L"NotLoadCrl", {L"1"}},
        {L"CrlUpdatePeriod", {L"12"}}};
    EXPECT_EQ(StoredLists(name), expected);
    const std::map<std::wstring, std::uint32_t> options = {
        {L"Handler timeout", 30U}, {L"Verify File", 1U},        {L"Verify x file", 0U},
        {L"Verify det file", 1U},  {L"Verify resign file", 0U}, {L"Rename conf files", 1U}};
    for (const auto& [value, number] : options) {
        EXPECT_EQ(ReadRegistryValue(ProfileKey(name), value), RegistryData(number)) << Utf8(value);
    }
}

TEST_F(ProfileEditor, ARenamedProfileKeepsItsPlaceItsRulesAndStaysOpen) {
    StartWithSample();
    OpenProfile(L"beta");
    const Window dialog = OpenCurrent();
    dialog.Control(IDC_PROFILE_NAME_EDIT).SetText(L"BETA");
    Close(dialog, IDOK);
    EXPECT_EQ(Profiles().Column(0), (Texts{L"alpha", L"BETA", L"gamma"}));
    EXPECT_EQ(Control(IDC_PROFILE_CAPTION_EDIT).Text(), L"Profile: BETA");
    EXPECT_EQ(Control(IDC_RULE_LIST_CAPTION_EDIT).Text(), L"CS profile's num: 1");
    EXPECT_EQ(ShownRules(), (Texts{L"Hash reports", L"Encode reports"}));
    SaveAndLeave();
    EXPECT_EQ(RegistrySubkeys(kProgramKey), (Texts{L"alpha", L"BETA", L"gamma"}));
    EXPECT_EQ(StoredRuleTexts(L"BETA", L"Descryption"), (Texts{L"Hash reports", L"Encode reports"}));
}

TEST_F(ProfileEditor, ARenamedProfileIsSavedUnderItsNewNameAlone) {
    StartWithSample();
    const Window dialog = OpenCurrent();
    dialog.Control(IDC_PROFILE_NAME_EDIT).SetText(L"omega");
    Close(dialog, IDOK);
    SaveAndLeave();
    EXPECT_EQ(RegistrySubkeys(kProgramKey), (Texts{L"beta", L"gamma", L"omega"}));
    EXPECT_EQ(StoredRuleTexts(L"omega", L"Descryption"), SampleDescriptions());
}

TEST_F(ProfileEditor, RenamingToAnotherProfilesNameIsRefused) {
    StartWithSample();
    const Window dialog = OpenCurrent();
    dialog.Control(IDC_PROFILE_NAME_EDIT).SetText(L"gamma");
    ExpectRefusal(dialog, L"Profile 'gamma' allready exists.", IDC_PROFILE_NAME_EDIT);
    dialog.Control(IDC_PROFILE_NAME_EDIT).SetText(L"alpha");
    Close(dialog, IDOK);
    ExpectUnsavedChanges();
}

TEST_F(ProfileEditor, AProfileIsEditedAlsoWhereTheCatalogueIsEmpty) {
    WriteCatalogue({});
    WriteProfile(L"alpha", {L"gone", L"gone too"});
    Start();
    const Window dialog = OpenCurrent();
    EXPECT_EQ(ListEntries(CsProfiles(dialog)), (Texts{L"gone", L"gone too"}));
    const Window choice = OpenChoice(dialog);
    EXPECT_EQ(choice.Control(IDC_CS_PROFILE_CHOICE_COMBO).Send(CB_GETCOUNT), 0);
    choice.Control(IDOK).PostClick();
    ExpectMessageBox(choice, L"No CS profiles found.", kRefusal, IDOK);
    choice.Control(IDC_CS_PROFILE_CHOICE_COMBO).WaitForFocus();
    choice.WaitUntilEnabled();
    choice.Control(IDCANCEL).PostClick();
    choice.WaitUntilGone();
    dialog.WaitUntilEnabled();
    SettleEditor(dialog);
    PressIn(dialog, IDC_PROFILE_USE_AIA_CHECK);
    Close(dialog, IDOK);
    SaveAndLeave();
    EXPECT_EQ(StoredList(L"alpha", L"ZCSProfile"), (Texts{L"gone", L"gone too"}));
    EXPECT_EQ(StoredList(L"alpha", L"UseAIA"), (Texts{L"1", L"0"}));
}

TEST_F(ProfileEditor, ListsOfUnequalLengthAreSavedOfOneLength) {
    StartWith({{L"ServerTSP", Texts{L"http://one"}},
               {L"NotUseLDAP", Texts{}},
               {L"UseAIA", Texts{L"1", L"1", L"1"}},
               {L"NotAddCert", Texts{L"1"}}});
    const Window dialog = OpenCurrent();
    SelectCsProfile(dialog, 1);
    EXPECT_EQ(SettingsOf(dialog).server, L"0");
    EXPECT_EQ(SettingsOf(dialog).checked,
              (std::vector<int>{IDC_PROFILE_NO_NCS_CHECK, IDC_PROFILE_USE_AIA_CHECK}));
    Close(dialog, IDOK);
    SaveAndLeave();
    const std::map<std::wstring, Texts> expected = {
        {L"ZCSProfile", {L"CS one", L"CS two"}}, {L"ServerTSP", {L"http://one", L"0"}},
        {L"NotUseLDAP", {L"1", L"1"}},           {L"NotAddCert", {L"1", L"0"}},
        {L"NotCopyToLocal", {L"0", L"0"}},       {L"AutoVerifyTSP", {L"0", L"0"}},
        {L"NoTSPisError", {L"0", L"0"}},         {L"UseAIA", {L"1", L"1"}},
        {L"AutoUseTSP", {L"0", L"0"}},           {L"NotLoadCrl", {L"0", L"0"}},
        {L"CrlUpdatePeriod", {L"1", L"1"}}};
    EXPECT_EQ(StoredLists(L"alpha"), expected);
}

}  // namespace
}  // namespace corvane::test
