#include "tests/kit/driver/failure.h"
#include "tests/kit/driver/icon.h"
#include "tests/kit/driver/menu.h"
#include "tests/kit/driver/probe.h"
#include "tests/kit/driver/tool_tips.h"
#include "tests/kit/fixtures/editor_fixture.h"

namespace corvane::test {
namespace {

class Opening : public EditorTest {};
class SecondStart : public EditorTest {};
class FirstStart : public EditorTest {};

TEST_F(Opening, ShowsTheProfilesAndOpensTheFirst) {
    StartWithSample();
    EXPECT_EQ(Main().Text(), L"QENT AC Velmaris - configuration");
    EXPECT_EQ(Profiles().Column(0), (Texts{L"alpha", L"beta", L"gamma"}));
    EXPECT_EQ(Profiles().SelectedRows(), std::vector<int>{0});
    EXPECT_EQ(Control(IDC_PROFILE_CAPTION_EDIT).Text(), L"Profile: alpha");
    EXPECT_EQ(Control(IDC_RULE_LIST_CAPTION_EDIT).Text(), L"CS profile's num: 2");
    EXPECT_EQ(ShownRules(), SampleDescriptions());
}

TEST_F(Opening, PutsTheFocusOnTheProfileList) {
    StartWithSample();
    Profiles().WaitForFocus();
}

TEST_F(Opening, SetsTheCaptionsOfAllButtons) {
    StartWithSample();
    EXPECT_EQ(Control(IDC_SAVE_BUTTON).Text(), L"Save");
    EXPECT_EQ(Control(IDOK).Text(), L"Save and exit");
    EXPECT_EQ(Control(IDCANCEL).Text(), L"Exit without saving");
    EXPECT_EQ(Control(IDC_ADD_PROFILE_BUTTON).Text(), L"Add profile");
    EXPECT_EQ(Control(IDC_OPEN_PROFILE_BUTTON).Text(), L"Open profile");
    EXPECT_EQ(Control(IDC_DELETE_PROFILE_BUTTON).Text(), L"Delete profile");
    EXPECT_EQ(Control(IDC_IMPORT_RULES_BUTTON).Text(), L"Import profile rules");
    EXPECT_EQ(Control(IDC_EXPORT_RULES_BUTTON).Text(), L"Export profile rules");
    EXPECT_EQ(Control(IDC_EDIT_PROFILE_BUTTON).Text(), L"Edit profile");
    EXPECT_EQ(Control(IDC_CONFIGURATIONS_BUTTON).Text(), L"Configurations");
    EXPECT_EQ(Control(IDC_SEARCH_LABEL).Text(), L"Search by field \"Description\"");
}

TEST_F(Opening, HidesTheTwoButtonsThatOnlyStandForCommands) {
    StartWithSample();
    for (const int id : {IDC_CONFIGURATIONS_BUTTON, IDC_OPEN_PROFILE_BUTTON}) {
        EXPECT_FALSE(Control(id).IsVisible()) << "control " << id;
        EXPECT_FALSE(Control(id).IsEnabled()) << "control " << id;
    }
}

TEST_F(Opening, PutsItsIconOnEachIconButton) {
    StartWithSample();
    const std::vector<std::pair<int, int>> icons = {{IDC_SAVE_ICON_BUTTON, IDI_SAVE},
                                                    {IDC_LOG_PATH_BUTTON, IDI_LOG_PATH},
                                                    {IDC_ADD_RULE_BUTTON, IDI_ADD_RULE},
                                                    {IDC_COPY_RULE_BUTTON, IDI_COPY_RULE},
                                                    {IDC_EDIT_RULE_BUTTON, IDI_EDIT_RULE},
                                                    {IDC_DELETE_RULE_BUTTON, IDI_DELETE_RULE},
                                                    {IDC_MAKE_FIRST_BUTTON, IDI_MAKE_FIRST},
                                                    {IDC_MOVE_UP_BUTTON, IDI_MOVE_UP},
                                                    {IDC_MOVE_DOWN_BUTTON, IDI_MOVE_DOWN},
                                                    {IDC_MAKE_LAST_BUTTON, IDI_MAKE_LAST},
                                                    {IDC_ADD_PROFILE_BUTTON, IDI_ADD_PROFILE},
                                                    {IDC_EDIT_PROFILE_BUTTON, IDI_EDIT_PROFILE},
                                                    {IDC_DELETE_PROFILE_BUTTON, IDI_DELETE_PROFILE},
                                                    {IDC_EXPORT_RULES_BUTTON, IDI_EXPORT_RULES},
                                                    {IDC_IMPORT_RULES_BUTTON, IDI_IMPORT_RULES}};
    for (const auto& [button, icon] : icons) {
        const IconView view = IconOf(Control(button), IconPlace::kButton, icon);
        EXPECT_TRUE(view.isThere) << "button " << button << " shows no icon";
        EXPECT_TRUE(view.showsResource) << "button " << button << " shows another icon than " << icon;
    }
}

TEST_F(Opening, GivesTheWindowItsLargeAndSmallIcon) {
    StartWithSample();
    for (const auto place : {IconPlace::kLargeWindowIcon, IconPlace::kSmallWindowIcon}) {
        EXPECT_TRUE(IconOf(Main(), place, IDI_MAIN_WINDOW).showsResource);
    }
}

TEST_F(Opening, ShowsOneToolTipForEachButton) {
    StartWithSample();
    const std::map<int, std::wstring> expected = {{IDC_SAVE_ICON_BUTTON, L"Save"},
                                                  {IDC_LOG_PATH_BUTTON, L"Log path"},
                                                  {IDC_ADD_RULE_BUTTON, L"Add rule"},
                                                  {IDC_COPY_RULE_BUTTON, L"Copy rule"},
                                                  {IDC_EDIT_RULE_BUTTON, L"Edit rule"},
                                                  {IDC_DELETE_RULE_BUTTON, L"Delete rule"},
                                                  {IDC_MAKE_FIRST_BUTTON, L"Make first"},
                                                  {IDC_MOVE_UP_BUTTON, L"Move up"},
                                                  {IDC_MOVE_DOWN_BUTTON, L"Move down"},
                                                  {IDC_MAKE_LAST_BUTTON, L"Make last"},
                                                  {IDC_CONFIGURATIONS_BUTTON, L"Configurations"},
                                                  {IDC_ADD_PROFILE_BUTTON, L"Add profile"},
                                                  {IDC_EDIT_PROFILE_BUTTON, L"Edit profile"},
                                                  {IDC_DELETE_PROFILE_BUTTON, L"Delete profile"},
                                                  {IDC_IMPORT_RULES_BUTTON, L"Import profile rules"},
                                                  {IDC_EXPORT_RULES_BUTTON, L"Export profile rules"}};
    EXPECT_EQ(ToolTipTexts(Main()), expected);
}

TEST_F(Opening, ShowsTheMenuBarWithItsThreePopUps) {
    StartWithSample();
    const std::vector<std::pair<int, std::wstring>> expected = {{0, L"File"},
                                                                {IDM_SAVE, L"Save"},
                                                                {IDM_LOG_PATH, L"Log path"},
                                                                {IDM_CONFIGURATIONS, L"Configurations"},
                                                                {IDM_EXIT, L"Exit"},
                                                                {0, L"Profiles"},
                                                                {IDM_ADD_PROFILE, L"Add profile"},
                                                                {IDM_EDIT_PROFILE, L"Edit profile"},
                                                                {IDM_DELETE_PROFILE, L"Delete profile"},
                                                                {IDM_IMPORT_RULES, L"Import profile rules"},
                                                                {IDM_EXPORT_RULES, L"Export profile rules"},
                                                                {0, L"Rules"},
                                                                {IDM_ADD_RULE, L"Add rule"},
                                                                {IDM_COPY_RULE, L"Copy rule"},
                                                                {IDM_EDIT_RULE, L"Edit rule"},
                                                                {IDM_DELETE_RULE, L"Delete rule"},
                                                                {IDM_MAKE_FIRST, L"Make first"},
                                                                {IDM_MOVE_UP, L"Move up"},
                                                                {IDM_MOVE_DOWN, L"Move down"},
                                                                {IDM_MAKE_LAST, L"Make last"}};
    std::vector<std::pair<int, std::wstring>> found;
    for (const MenuItem& item : MenuBarOf(Main())) {
        EXPECT_EQ(item.depth, item.id == 0 ? 0 : 1);
        found.emplace_back(item.id, item.text);
    }
    EXPECT_EQ(found, expected);
}

TEST_F(Opening, HasTheFrameOfAResizableDialogWithoutMaximiseBox) {
    StartWithSample();
    const DWORD style = Main().Style();
    EXPECT_EQ(style & WS_CAPTION, static_cast<DWORD>(WS_CAPTION));
    EXPECT_NE(style & WS_SYSMENU, 0U);
    EXPECT_NE(style & WS_THICKFRAME, 0U);
    EXPECT_NE(style & WS_MINIMIZEBOX, 0U);
    EXPECT_EQ(style & WS_MAXIMIZEBOX, 0U);
}

TEST_F(Opening, ChangesNothingInTheRegistryThatIsFilled) {
    WriteSampleConfiguration();
    const auto before = ReadRegistryTree(L"");
    Start();
    ExpectNothingToSave();
    EXPECT_EQ(ReadRegistryTree(L""), before);
}

TEST_F(SecondStart, ShowsOneMessageBoxAndLeavesTheFirstCopyAlone) {
    StartWithSample();
    Rules().Select({2});
    Program second(EditorPath());
    const MessageBoxWindow box = second.WaitForMessageBox(Window());
    EXPECT_EQ(box.View(), MessageBoxOfStyle(L"QENT AC Velmaris - configuration allready started",
                                            L"QENT AC Velmaris - configuration", kRefusal));
    EXPECT_EQ(second.TopLevelWindows().size(), 1U);
    box.Answer(IDOK);
    second.WaitForEnd();
    EXPECT_EQ(Rules().SelectedRows(), std::vector<int>{2});
    EXPECT_EQ(ShownRules(), SampleDescriptions());
    ExpectNoDialog();
    ExpectNothingToSave();
}

TEST_F(SecondStart, SeesAFirstCopyThatRunsWithMoreRights) {
    // Nobody may open the mutex of such a copy.
    SECURITY_DESCRIPTOR security{};
    ACL nobody{};
    InitializeSecurityDescriptor(&security, SECURITY_DESCRIPTOR_REVISION);
    InitializeAcl(&nobody, sizeof nobody, ACL_REVISION);
    SetSecurityDescriptorDacl(&security, TRUE, &nobody, FALSE);
    SECURITY_ATTRIBUTES attributes{sizeof attributes, &security, FALSE};
    const UniqueHandle mutex(CreateMutexW(&attributes, TRUE, L"QENT AC Velmaris - configuration"));
    Program second(EditorPath());
    const MessageBoxWindow box = second.WaitForMessageBox(Window());
    EXPECT_EQ(box.View(), MessageBoxOfStyle(L"QENT AC Velmaris - configuration allready started",
                                            L"QENT AC Velmaris - configuration", kRefusal));
    box.Answer(IDOK);
    EXPECT_EQ(second.WaitForEnd(), 0U);
}

TEST_F(SecondStart, WorksAfterTheFirstCopyWasClosedByEitherButton) {
    StartWithSample();
    ExpectNothingToSave();
    Start();
    Control(IDOK).PostClick();
    Editor().WaitForEnd();
    Start();
    EXPECT_EQ(ShownRules(), SampleDescriptions());
}

TEST_F(FirstStart, WritesTheDefaultProfile) {
    WriteCatalogue({L"CS one", L"CS two"});
    Start();
    EXPECT_EQ(Profiles().Column(0), Texts{L"default"});
    EXPECT_EQ(Control(IDC_PROFILE_CAPTION_EDIT).Text(), L"Profile: default");
    EXPECT_EQ(Control(IDC_RULE_LIST_CAPTION_EDIT).Text(), L"CS profile's num: 1");

    const RegistryValues program = ReadRegistryValues(kProgramKey);
    EXPECT_EQ(program, (RegistryValues{{L"LogPath", L""}, {L"Log filesize", 4000U}}));
    const RegistryValues expected = {
        {L"AutoUseTSP", Texts{L"0"}},
        {L"AutoVerifyTSP", Texts{L"0"}},
        {L"NotAddCert", Texts{L"0"}},
        {L"NotCopyToLocal", Texts{L"0"}},
        {L"NotLoadCrl", Texts{L"0"}},
        // Deliberately empty: the list that is meant for another value is written here.
        {L"CrlUpdatePeriod", Texts{}},
        {L"NoTSPisError", Texts{L"0"}},
        {L"NotUseLDAP", Texts{L"1"}},
        {L"ServerTSP", Texts{L"0"}},
        {L"UseAIA", Texts{L"0"}},
        {L"Verify File", 0U},
        {L"Verify x file", 0U},
        {L"Verify det file", 0U},
        {L"Verify resign file", 0U},
        {L"Handler timeout", 15U},
        {L"Rename conf files", 0U},
        {L"ZCSProfile", Texts{L"CS one"}}};
    EXPECT_EQ(ReadRegistryValues(std::wstring(kProgramKey) + L"\\default"), expected);
    EXPECT_TRUE(RegistryKeyExists(std::wstring(kProgramKey) + L"\\default\\rules"));
    ExpectNothingToSave();
}

TEST_F(FirstStart, WithoutAnyCsProfileEndsWithOneMessageBox) {
    WriteCatalogue({});
    Program editor(EditorPath());
    editor.ExpectExitCode(1);
    const Window window = editor.WaitForWindow(Window());
    ASSERT_TRUE(MessageBoxWindow::Is(window)) << Utf8(window.Name());
    const MessageBoxWindow box(window);
    const MessageBoxView view = box.View();
    EXPECT_EQ(view.title, L"QENT AC Velmaris - configuration");
    EXPECT_FALSE(view.text.empty());
    EXPECT_EQ(view.systemIcon, 32513);
    EXPECT_EQ(view.buttons, std::vector<int>{IDOK});
    box.Answer(IDOK);
    editor.WaitForEnd();
    EXPECT_FALSE(RegistryKeyExists(std::wstring(kProgramKey) + L"\\default"))
        << "a start that fails left a half-made profile behind";
}

TEST_F(FirstStart, WithoutTheProvidersKeyReportsItAndEnds) {
    SetCursorPos(1, 1);
    Program editor(EditorPath());
    // The main window is not shown yet, so the report stands on its own.
    const MessageBoxWindow box = editor.WaitForMessageBox(Window());
    EXPECT_EQ(PointerOf(box), kHourglass) << "while the configuration is loaded";
    EXPECT_EQ(
        box.View(),
        MessageBoxOfStyle(
            ReportText(L"Create (open) register key HKEY_CURRENT_USER\\SOFTWARE\\HOLVAN\\tarn\\Profiles", 2),
            L"QENT AC Velmaris - configuration", kReport));
    box.Answer(IDOK);
    editor.WaitForEnd();
}

}  // namespace
}  // namespace corvane::test
