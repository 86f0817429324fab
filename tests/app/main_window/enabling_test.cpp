#include "tests/kit/driver/menu.h"
#include "tests/kit/driver/probe.h"
#include "tests/kit/fixtures/editor_fixture.h"

namespace corvane::test {
namespace {

const std::vector<int> kControlsOfAProfile = {
    IDC_PROFILE_CAPTION_EDIT, IDC_RULE_LIST,           IDC_ADD_RULE_BUTTON,       IDC_COPY_RULE_BUTTON,
    IDC_EDIT_RULE_BUTTON,     IDC_DELETE_RULE_BUTTON,  IDC_MAKE_FIRST_BUTTON,     IDC_MOVE_UP_BUTTON,
    IDC_MOVE_DOWN_BUTTON,     IDC_MAKE_LAST_BUTTON,    IDC_DELETE_PROFILE_BUTTON, IDC_EXPORT_RULES_BUTTON,
    IDC_IMPORT_RULES_BUTTON,  IDC_EDIT_PROFILE_BUTTON, IDC_RULE_LIST_CAPTION_EDIT};
const std::vector<int> kMenuItemsOfAProfile = {
    IDM_EDIT_PROFILE, IDM_DELETE_PROFILE, IDM_IMPORT_RULES, IDM_EXPORT_RULES, IDM_ADD_RULE,  IDM_COPY_RULE,
    IDM_EDIT_RULE,    IDM_DELETE_RULE,    IDM_MAKE_FIRST,   IDM_MOVE_UP,      IDM_MOVE_DOWN, IDM_MAKE_LAST};
const std::vector<int> kControlsAlwaysEnabled = {IDC_SAVE_ICON_BUTTON,
                                                 IDC_LOG_PATH_BUTTON,
                                                 IDC_ADD_PROFILE_BUTTON,
                                                 IDC_PROFILE_LIST,
                                                 IDC_SEARCH_EDIT,
                                                 IDC_SEARCH_LABEL,
                                                 IDC_SAVE_BUTTON,
                                                 IDOK,
                                                 IDCANCEL};
const std::vector<int> kMenuItemsAlwaysEnabled = {IDM_SAVE, IDM_LOG_PATH, IDM_CONFIGURATIONS, IDM_EXIT,
                                                  IDM_ADD_PROFILE};

class Enabling : public EditorTest {
  protected:
    void ExpectStates(bool isProfileOpen) const {
        for (const int id : kControlsOfAProfile) {
            EXPECT_EQ(Control(id).IsEnabled(), isProfileOpen) << "control " << id;
        }
        for (const int id : kControlsAlwaysEnabled) {
            EXPECT_TRUE(Control(id).IsEnabled()) << "control " << id;
        }
        for (const int id : kMenuItemsOfAProfile) {
            const MenuItem item = MenuItemOf(Main(), id);
            EXPECT_EQ(item.isEnabled, isProfileOpen) << "menu item " << id;
            EXPECT_EQ(item.isGrey, !isProfileOpen) << "menu item " << id;
        }
        for (const int id : kMenuItemsAlwaysEnabled) {
            EXPECT_TRUE(MenuItemOf(Main(), id).isEnabled) << "menu item " << id;
        }
    }
    void DeleteOpenProfile(const std::wstring& name) const {
        Control(IDC_DELETE_PROFILE_BUTTON).PostClick();
        ExpectBox(L"Delete profile '" + name + L"'?", kConfirmation, IDYES);
    }
};

TEST_F(Enabling, AnOpenProfileEnablesItsCommands) {
    StartWithSample();
    ExpectStates(true);
}

TEST_F(Enabling, DeletingTheProfileDisablesAndGreysThemUntilAnotherIsOpened) {
    StartWithSample();
    DeleteOpenProfile(L"alpha");
    ExpectStates(false);
    OpenProfile(L"gamma");
    ExpectStates(true);
}

// Windows draws the bar anew only when it is told to.
TEST_F(Enabling, TheMenuBarIsDrawnAgainWhenItsItemsChange) {
    StartWithSample();
    const MessageWatch watch(Main(), {WM_NCCALCSIZE});
    const auto framesDrawn = [&watch] { return watch.Sent().size(); };
    const std::size_t before = framesDrawn();
    DeleteOpenProfile(L"alpha");
    const std::size_t afterGreying = framesDrawn();
    EXPECT_GT(afterGreying, before);
    OpenProfile(L"gamma");
    EXPECT_GT(framesDrawn(), afterGreying);
}

TEST_F(Enabling, NothingDependsOnTheSelectionOfRules) {
    StartWithSample();
    EXPECT_TRUE(Rules().SelectedRows().empty());
    ExpectStates(true);
    Rules().Select({0, 3});
    ExpectStates(true);
}

}  // namespace
}  // namespace corvane::test
