// A machine of which nothing is known but the CS profiles of its provider, set up through all the editors.

#include <windows.h>

#include "tests/journey/stored_forms.h"
#include "tests/kit/driver/failure.h"
#include "tests/kit/fixtures/journey_fixture.h"
#include "tests/kit/fixtures/profile_editor_fixture.h"

namespace corvane::test {
namespace {

constexpr wchar_t kExchangeProfile[] = L"Exchange";
constexpr wchar_t kTimeStampServer[] = L"http://tsp.northgate.example/tsp";

class NewMachine : public JourneyTest {
  protected:
    NewMachine() { WriteCatalogue({kFirstCsProfile, kSecondCsProfile}); }

    [[nodiscard]] Window OpenByMenu(int command, int controlId) const {
        Main().PostMenuCommand(command);
        return WaitForDialogWith(Editor(), Main(), controlId);
    }

    /// Other extensions for encrypted files, and a further one.
    void SetExtensions() const {
        const Window page = OpenByMenu(IDM_CONFIGURATIONS, IDC_CONFIG_ADDITIONAL_LIST);
        page.Control(IDC_CONFIG_ENCRYPTED_EDIT).SetText(L"enc");
        page.Control(IDC_CONFIG_ADD_BUTTON).PostClick();
        const Window extension = WaitForDialogWith(Editor(), page, IDC_EXTENSION_EDIT);
        extension.Control(IDC_EXTENSION_EDIT).SetText(L" PDF ");
        EndDialog(extension, IDOK);
        EXPECT_EQ(ListEntries(page.Control(IDC_CONFIG_ADDITIONAL_LIST)), (Texts{L"pdf"}));
        page.Control(IDC_CONFIG_APPLY_BUTTON).Click();
        EndDialog(page, IDOK);
    }

    void SetLog() const {
        const Window dialog = OpenByMenu(IDM_LOG_PATH, IDC_LOG_SIZE_EDIT);
        dialog.Control(IDC_LOG_FOLDER_EDIT).SetText(kExchangeError);
        dialog.Control(IDC_LOG_SIZE_EDIT).SetText(L"5000");
        EndDialog(dialog, IDOK);
    }

    /// A profile with both CS profiles: the first stamps its signatures and uses the network store.
    void AddProfile() const {
        const Window dialog = OpenByMenu(IDM_ADD_PROFILE, IDC_PROFILE_NAME_EDIT);
        dialog.Control(IDC_PROFILE_NAME_EDIT).SetText(kExchangeProfile);
        for (const int check : {IDC_PROFILE_NO_NCS_CHECK, IDC_PROFILE_USE_TSP_CHECK,
                                IDC_PROFILE_VERIFY_REPORT_CHECK, IDC_PROFILE_RENAME_CHECK}) {
            dialog.Control(check).Click();
        }
        dialog.Control(IDC_PROFILE_TSP_EDIT).SetText(kTimeStampServer);
        dialog.Control(IDC_PROFILE_FREQUENCY_EDIT).SetText(L"24");
        dialog.Control(IDC_PROFILE_TIMEOUT_EDIT).SetText(L"60");
        AddCsProfile(dialog, kSecondCsProfile);
        EndDialog(dialog, IDOK);
        EXPECT_EQ(Profiles().Column(0), (Texts{L"default", kExchangeProfile}));
        OpenProfile(kExchangeProfile);
    }

    void AddCsProfile(const Window& profileEditor, const std::wstring& name) const {
        profileEditor.Control(IDC_PROFILE_ADD_CS_PROFILE_BUTTON).PostClick();
        const Window choice = WaitForDialogWith(Editor(), profileEditor, IDC_CS_PROFILE_CHOICE_COMBO);
        ChooseEntry(choice, IDC_CS_PROFILE_CHOICE_COMBO, name);
        EndDialog(choice, IDOK);
        EXPECT_EQ(SettingsOf(profileEditor), NewSettings(name));
    }

    /// A rule of the second CS profile whose mask is picked from the suggestions.
    void AddRule(const TypicalRule& rule) const {
        const Window dialog = OpenNew();
        ChooseEntry(dialog, IDC_RULE_CS_PROFILE_COMBO, rule.csProfile);
        dialog.Control(IDC_RULE_DESCRIPTION_EDIT).SetText(DescriptionOf(rule));
        TypeFolders(dialog);
        dialog.Control(IDC_RULE_ADD_MASK_BUTTON).PostClick();
        const Window mask = WaitForDialogWith(Editor(), dialog, IDC_MASK_COMBO);
        EXPECT_EQ(Entries(mask.Control(IDC_MASK_COMBO)),
                  (Texts{L"*.p7s", L"*.p7d", L"*.enc", L"*.b64", L"*.hsh", L"*.vrf", L"*.pdf"}));
        ChooseEntry(mask, IDC_MASK_COMBO, rule.masks.front());
        EndDialog(mask, IDOK);
        ChooseRecipients(Editor(), dialog, rule.recipients);
        Close(dialog, IDOK);
    }

    [[nodiscard]] static TypicalRule RuleOfNewMachine(const std::wstring& csProfile) {
        TypicalRule rule = RulesWithRecipients().front();
        rule.csProfile = csProfile;
        rule.masks = {L"*.pdf"};
        return rule;
    }

    [[nodiscard]] static StoredTree Expected() {
        RegistryValues values = ProfileValues({kFirstCsProfile, kSecondCsProfile}, L"1");
        values[L"NotUseLDAP"] = Texts{L"0", L"1"};
        values[L"AutoUseTSP"] = Texts{L"1", L"0"};
        values[L"ServerTSP"] = Texts{kTimeStampServer, L"0"};
        values[L"CrlUpdatePeriod"] = Texts{L"24", L"1"};
        values[L"Verify File"] = 1U;
        values[L"Rename conf files"] = 1U;
        values[L"Handler timeout"] = 60U;
        StoredTree tree = StoredFormOf(kExchangeProfile, values, {RuleOfNewMachine(kSecondCsProfile)});
        tree[L""][L"EncExt"] = L"enc";
        tree[L""][L"ExtExt"] = Texts{L"pdf"};
        tree[L""][L"LogPath"] = kExchangeError;
        tree[L""][L"Log filesize"] = 5000U;
        tree[L"default"] = ProfileValues({kFirstCsProfile}, L"1");
        tree[L"default\\rules"] = {};
        return tree;
    }

    void ExpectStored(const StoredTree& expected) {
        StoredTree stored = SaveAndReadAll();
        EXPECT_EQ(TakeRefreshTimes(stored), (Texts{kSecondCsProfile}));
        EXPECT_EQ(DifferencesOf(expected, stored), std::vector<std::string>());
    }

    void SetUpMachine() {
        Start();
        SetExtensions();
        SetLog();
        AddProfile();
        AddRule(RuleOfNewMachine(kSecondCsProfile));
    }
};

TEST_F(NewMachine, IsSetUpAndComesBackAsItWas) {
    SetUpMachine();
    ExpectStored(Expected());

    StartAgain();
    OpenProfile(kExchangeProfile);
    EndDialog(OpenByMenu(IDM_EDIT_PROFILE, IDC_PROFILE_NAME_EDIT), IDOK);
    EndDialog(OpenByMenu(IDM_CONFIGURATIONS, IDC_CONFIG_ADDITIONAL_LIST), IDOK);
    EndDialog(OpenByMenu(IDM_LOG_PATH, IDC_LOG_SIZE_EDIT), IDOK);
    Close(OpenStored(), IDOK);
    ExpectStored(Expected());
}

TEST_F(NewMachine, LosesACsProfileAndItsRulesTakeTheFirstThatRemains) {
    SetUpMachine();
    const Window dialog = OpenByMenu(IDM_EDIT_PROFILE, IDC_PROFILE_NAME_EDIT);
    const Window list = dialog.Control(IDC_PROFILE_CS_PROFILE_LIST);
    list.Send(LB_SETCURSEL, 1);
    dialog.Send(WM_COMMAND, MAKEWPARAM(IDC_PROFILE_CS_PROFILE_LIST, LBN_SELCHANGE),
                reinterpret_cast<LPARAM>(list.Handle()));
    dialog.Control(IDC_PROFILE_DELETE_CS_PROFILE_BUTTON).PostClick();
    ExpectMessageBox(dialog,
                     L"Rule(s) '1' of profile 'Exchange' are using sertificates of CS profile 'Partner "
                     L"exchange'.\r\nValidation of these rules will be nessesary for proper work.\r\nDelete "
                     L"CS profile 'Partner exchange' from list?",
                     kConfirmation, IDYES);
    dialog.WaitUntilEnabled();
    SettleDialog(dialog);
    EndDialog(dialog, IDOK);
    EXPECT_EQ(Rules().Cell(0, kCsProfileColumn), kFirstCsProfile);

    StoredTree expected = Expected();
    for (auto& [name, data] : expected[kExchangeProfile]) {
        if (auto* const settings = std::get_if<Texts>(&data)) {
            settings->pop_back();
        }
    }
    expected[std::wstring(kExchangeProfile) + L"\\rules\\Rule 0"][L"ZCSProfile"] = kFirstCsProfile;
    ExpectStored(expected);
}

}  // namespace
}  // namespace corvane::test
