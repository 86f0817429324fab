// What is typed into the editors: it is kept, whatever button is pressed, and the Delete key deletes from it.

#include <windows.h>

#include "tests/kit/driver/failure.h"
#include "tests/kit/driver/file_dialog.h"
#include "tests/kit/fixtures/profile_editor_fixture.h"
#include "tests/kit/fixtures/rule_editor_fixture.h"

namespace corvane::test {
namespace {

/// A field and what is typed into it.
struct TypedField {
    int id;
    std::wstring text;
};

void TypeAll(const Window& dialog, const std::vector<TypedField>& fields) {
    for (const TypedField& field : fields) {
        const Window edit = dialog.Control(field.id);
        edit.Send(EM_SETSEL, 0, -1);
        edit.Type(field.text);
        edit.WaitForText(field.text);
    }
}

void ExpectTyped(const Window& dialog, const std::vector<TypedField>& fields, const std::string& after) {
    for (const TypedField& field : fields) {
        EXPECT_EQ(dialog.Control(field.id).Text(), field.text) << "field " << field.id << " after " << after;
    }
}

/// The Delete key must take the first character of the field, and nothing else.
void ExpectDeleteKeyInField(const Window& dialog, const TypedField& field) {
    const Window edit = dialog.Control(field.id);
    edit.SetText(field.text);
    dialog.Send(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(edit.Handle()), TRUE);
    edit.WaitForFocus();
    edit.Send(EM_SETSEL, 0, 0);
    edit.PostKey(VK_DELETE);
    edit.WaitForText(field.text.substr(1));
    EXPECT_TRUE(dialog.IsEnabled()) << "field " << field.id;
}

const std::vector<TypedField> kMoveFields = {{IDC_RULE_DESCRIPTION_EDIT, L"half a description"},
                                             {IDC_RULE_INPUT_EDIT, L"C:\\half in"},
                                             {IDC_RULE_OUTPUT_EDIT, L"C:\\half out"},
                                             {IDC_RULE_ERROR_EDIT, L"C:\\half error"},
                                             {IDC_RULE_CERT_EDIT, L"C:\\half second"},
                                             {IDC_RULE_ROW1_EDIT, L"del"},
                                             {IDC_RULE_ROW2_EDIT, L"add"},
                                             {IDC_RULE_ROW3_EDIT, L"%Y"},
                                             {IDC_RULE_ROW4_EDIT, L"%m"}};
const std::vector<TypedField> kPackFields = {{IDC_RULE_ROW1_NUMBER_EDIT, L"512"},
                                             {IDC_RULE_ROW2_NUMBER_EDIT, L"6400"},
                                             {IDC_RULE_ROW3_NUMBER_EDIT, L"73"},
                                             {IDC_RULE_ROW4_EDIT, L"name"}};

class RuleTyping : public RuleEditorTest {
  protected:
    void GiveUpPicker(const Window& dialog, int buttonId) const {
        dialog.Control(buttonId).PostClick();
        FileDialog(Editor().WaitForDialog(dialog)).GiveUp();
        WaitForEditor(dialog);
    }
    void EndMaskDialog(const Window& dialog, int openingButton, int endingButton) const {
        dialog.Control(openingButton).PostClick();
        const Window mask = Editor().WaitForDialog(dialog);
        mask.Control(IDC_MASK_COMBO).SetText(L"*.new");
        mask.Control(endingButton).PostClick();
        mask.WaitUntilGone();
        WaitForEditor(dialog);
    }
};

TEST_F(RuleTyping, TheDeleteKeyDeletesACharacterInEveryField) {
    const Window dialog = StartAndOpen(FullRule(L"MOVE"));
    Masks(dialog).Select({0});
    const Texts masks = Masks(dialog).Column(0);
    for (const TypedField& field : kMoveFields) {
        ExpectDeleteKeyInField(dialog, field);
    }
    SelectOperation(dialog, L"PACK");
    for (const TypedField& field : kPackFields) {
        ExpectDeleteKeyInField(dialog, field);
    }
    EXPECT_EQ(Masks(dialog).Column(0), masks);
    Close(dialog, IDCANCEL);
}

TEST_F(RuleTyping, ADigitTypedIntoAnEmptiedNumberStandsAlone) {
    const Window dialog = StartAndOpen(FullRule(L"PACK"));
    for (const int id : {IDC_RULE_ROW1_NUMBER_EDIT, IDC_RULE_ROW2_NUMBER_EDIT, IDC_RULE_ROW3_NUMBER_EDIT}) {
        dialog.Control(id).SetText(L"");
        EXPECT_EQ(dialog.Control(id).Text(), L"");
        dialog.Control(id).Type(L"7");
        EXPECT_EQ(dialog.Control(id).Text(), L"7");
    }
    Close(dialog, IDCANCEL);
}

TEST_F(RuleTyping, SurvivesEveryButtonThatOpensAnotherDialog) {
    const Window dialog = StartAndOpen(FullRule(L"MOVE"));
    TypeAll(dialog, kMoveFields);
    for (const int button :
         {IDC_RULE_INPUT_BUTTON, IDC_RULE_OUTPUT_BUTTON, IDC_RULE_ERROR_BUTTON, IDC_RULE_CERT_BUTTON}) {
        GiveUpPicker(dialog, button);
        ExpectTyped(dialog, kMoveFields, "giving up the picker of button " + std::to_string(button));
    }
    for (const int ending : {IDCANCEL, IDOK}) {
        EndMaskDialog(dialog, IDC_RULE_ADD_MASK_BUTTON, ending);
        ExpectTyped(dialog, kMoveFields, "adding a mask");
        Masks(dialog).Select({0});
        EndMaskDialog(dialog, IDC_RULE_EDIT_MASK_BUTTON, ending);
        ExpectTyped(dialog, kMoveFields, "editing a mask");
    }
    for (const int answer : {IDNO, IDYES}) {
        Masks(dialog).Select({0});
        dialog.Control(IDC_RULE_DELETE_MASK_BUTTON).PostClick();
        AnswerBox(dialog, L"Delete 1 mask(s)?", kConfirmation, answer);
        ExpectTyped(dialog, kMoveFields, "deleting a mask");
    }
    Close(dialog, IDCANCEL);
}

TEST_F(RuleTyping, SurvivesAFolderThatIsPickedForAnotherField) {
    const Window dialog = StartAndOpen(FullRule(L"MOVE"));
    TypeAll(dialog, kMoveFields);
    dialog.Control(IDC_RULE_INPUT_BUTTON).PostClick();
    const FileDialog picker(Editor().WaitForDialog(dialog));
    picker.SetFileName(L"C:\\windows");
    picker.Confirm();
    picker.WaitUntilGone();
    WaitForEditor(dialog);
    std::vector<TypedField> expected = kMoveFields;
    expected[1].text = L"C:\\windows";
    ExpectTyped(dialog, expected, "picking the input folder");
    Close(dialog, IDCANCEL);
}

TEST_F(RuleTyping, NumbersSurviveTheMaskDialog) {
    const Window dialog = StartAndOpen(FullRule(L"PACK"));
    TypeAll(dialog, kPackFields);
    EndMaskDialog(dialog, IDC_RULE_ADD_MASK_BUTTON, IDOK);
    ExpectTyped(dialog, kPackFields, "adding a mask");
    Close(dialog, IDCANCEL);
}

const std::vector<TypedField> kProfileFields = {{IDC_PROFILE_NAME_EDIT, L"half a name"},
                                                {IDC_PROFILE_TSP_EDIT, L"http://half"},
                                                {IDC_PROFILE_FREQUENCY_EDIT, L"482"},
                                                {IDC_PROFILE_TIMEOUT_EDIT, L"735"}};

class ProfileTyping : public ProfileEditorTest {
  protected:
    [[nodiscard]] Window OpenWithTwoCsProfiles() {
        WriteCatalogue({L"CS one", L"CS two", L"CS three"});
        WriteProfile(L"alpha", {L"CS one", L"CS two"});
        Start();
        const Window dialog = OpenCurrent();
        PressIn(dialog, IDC_PROFILE_USE_TSP_CHECK);
        return dialog;
    }
    [[nodiscard]] Window OpenFromMenu(int command) {
        StartWithSample();
        Main().PostMenuCommand(command);
        return Editor().WaitForDialog(Main());
    }
};

TEST_F(ProfileTyping, TheDeleteKeyDeletesACharacterInEveryField) {
    const Window dialog = OpenWithTwoCsProfiles();
    for (const TypedField& field : kProfileFields) {
        ExpectDeleteKeyInField(dialog, field);
    }
    EXPECT_EQ(ListEntries(CsProfiles(dialog)), (Texts{L"CS one", L"CS two"}));
    Close(dialog, IDCANCEL);
}

TEST_F(ProfileTyping, ADigitTypedIntoAnEmptiedNumberIsTheNumber) {
    const Window dialog = OpenWithTwoCsProfiles();
    // The frequency is put into its range at once: without a digit it is 0.
    dialog.Control(IDC_PROFILE_FREQUENCY_EDIT).SetText(L"");
    EXPECT_EQ(dialog.Control(IDC_PROFILE_FREQUENCY_EDIT).Text(), L"0");
    dialog.Control(IDC_PROFILE_FREQUENCY_EDIT).Type(L"5");
    EXPECT_EQ(dialog.Control(IDC_PROFILE_FREQUENCY_EDIT).Text(), L"5");
    dialog.Control(IDC_PROFILE_TIMEOUT_EDIT).SetText(L"");
    EXPECT_EQ(dialog.Control(IDC_PROFILE_TIMEOUT_EDIT).Text(), L"");
    dialog.Control(IDC_PROFILE_TIMEOUT_EDIT).Type(L"9");
    EXPECT_EQ(dialog.Control(IDC_PROFILE_TIMEOUT_EDIT).Text(), L"9");
    Close(dialog, IDCANCEL);
}

TEST_F(ProfileTyping, SurvivesTheButtonsOfTheCsProfileList) {
    const Window dialog = OpenWithTwoCsProfiles();
    TypeAll(dialog, kProfileFields);
    const Window choice = OpenChoice(dialog);
    choice.Control(IDCANCEL).PostClick();
    choice.WaitUntilGone();
    dialog.WaitUntilEnabled();
    SettleEditor(dialog);
    ExpectTyped(dialog, kProfileFields, "giving up the choice of a CS profile");
    DeleteCsProfile(dialog, L"Delete CS profile 'CS one' from list?", IDNO);
    ExpectTyped(dialog, kProfileFields, "keeping a CS profile");
    AddCsProfile(dialog, 2);
    // The others belong to the CS profile that is left, which keeps them.
    ExpectTyped(dialog, {kProfileFields[0], kProfileFields[3]}, "adding a CS profile");
    SelectCsProfile(dialog, 0);
    ExpectTyped(dialog, kProfileFields, "coming back to the CS profile");
    Close(dialog, IDCANCEL);
}

const std::vector<TypedField> kExtensionFields = {
    {IDC_CONFIG_SIGNED_EDIT, L"ea"}, {IDC_CONFIG_DETACHED_EDIT, L"eb"}, {IDC_CONFIG_ENCRYPTED_EDIT, L"ec"},
    {IDC_CONFIG_BASE64_EDIT, L"ed"}, {IDC_CONFIG_HASH_EDIT, L"ee"},     {IDC_CONFIG_VERIFICATION_EDIT, L"ef"},
    {IDC_CONFIG_ZIP_EDIT, L"eg"},    {IDC_CONFIG_GZIP_EDIT, L"eh"}};

TEST_F(ProfileTyping, TheDeleteKeyDeletesACharacterOfEveryExtension) {
    const Window dialog = OpenFromMenu(IDM_CONFIGURATIONS);
    const Window list = dialog.Control(IDC_CONFIG_ADDITIONAL_LIST);
    list.Send(LB_SETCURSEL, 0);
    const Texts listed = ListEntries(list);
    for (const TypedField& field : kExtensionFields) {
        ExpectDeleteKeyInField(dialog, field);
    }
    EXPECT_EQ(ListEntries(list), listed);
    Close(dialog, IDCANCEL);
}

TEST_F(ProfileTyping, ExtensionsSurviveTheButtonsBesideTheList) {
    const Window dialog = OpenFromMenu(IDM_CONFIGURATIONS);
    TypeAll(dialog, kExtensionFields);
    for (const int ending : {IDCANCEL, IDOK}) {
        dialog.Control(IDC_CONFIG_ADD_BUTTON).PostClick();
        const Window extension = Editor().WaitForDialog(dialog);
        extension.Control(IDC_EXTENSION_EDIT).SetText(L"new");
        extension.Control(ending).PostClick();
        extension.WaitUntilGone();
        dialog.WaitUntilEnabled();
        ExpectTyped(dialog, kExtensionFields, "adding an extension");
    }
    dialog.Control(IDC_CONFIG_ADDITIONAL_LIST).Send(LB_SETCURSEL, 0);
    dialog.Control(IDC_CONFIG_DELETE_BUTTON).PostClick();
    Editor().WaitForMessageBox(dialog).Answer(IDNO);
    dialog.WaitUntilEnabled();
    ExpectTyped(dialog, kExtensionFields, "keeping an extension");
    Close(dialog, IDCANCEL);
}

const std::vector<TypedField> kLogFields = {{IDC_LOG_FOLDER_EDIT, L"C:\\half a pa"},
                                            {IDC_LOG_SIZE_EDIT, L"5123"}};

TEST_F(ProfileTyping, LogSettingsSurviveThePickerThatIsGivenUp) {
    const Window dialog = OpenFromMenu(IDM_LOG_PATH);
    dialog.Control(IDC_LOG_FOLDER_EDIT).SetText(kLogFields[0].text);
    dialog.Control(IDC_LOG_SIZE_EDIT).SetText(kLogFields[1].text);
    dialog.Control(IDC_LOG_FOLDER_BUTTON).PostClick();
    FileDialog(Editor().WaitForDialog(dialog)).GiveUp();
    dialog.WaitUntilEnabled();
    ExpectTyped(dialog, kLogFields, "giving up the picker");
    Close(dialog, IDCANCEL);
}

TEST_F(ProfileTyping, TheDeleteKeyDeletesACharacterOfTheLogSettings) {
    const Window dialog = OpenFromMenu(IDM_LOG_PATH);
    ExpectDeleteKeyInField(dialog, kLogFields[0]);
    // What is left of it is not below the smallest size.
    ExpectDeleteKeyInField(dialog, {IDC_LOG_SIZE_EDIT, L"51234"});
    Close(dialog, IDCANCEL);
}

TEST_F(ProfileTyping, ADigitTypedIntoAnEmptiedLogSizeFollowsTheSmallestOne) {
    const Window dialog = OpenFromMenu(IDM_LOG_PATH);
    const Window size = dialog.Control(IDC_LOG_SIZE_EDIT);
    size.SetText(L"");
    EXPECT_EQ(size.Text(), L"400");
    size.Type(L"1");
    EXPECT_EQ(size.Text(), L"4001");
    Close(dialog, IDCANCEL);
}

}  // namespace
}  // namespace corvane::test
