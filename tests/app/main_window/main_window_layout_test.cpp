#include "app/main_window/main_window_layout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// What a change of the window's size does to a control, in words: which of its sides follow the change.
std::set<std::string> Following(int id) {
    std::set<std::string> following;
    for (const app::ControlChange& change : app::kControlChanges) {
        if (change.id != id) {
            continue;
        }
        for (const auto& [follows, name] :
             {std::pair(change.moveX, "left"), std::pair(change.moveY, "top"),
              std::pair(change.growX, "width"), std::pair(change.growY, "height")}) {
            if (follows) {
                following.insert(name);
            }
        }
    }
    return following;
}

std::map<int, std::wstring> Texts(const auto& table) {
    std::map<int, std::wstring> texts;
    for (const app::IdText& entry : table) {
        texts[entry.id] = entry.text;
    }
    EXPECT_EQ(texts.size(), table.size()) << "An id stands in the table twice.";
    return texts;
}

TEST(MainWindowLayout, GrowingTheWindowGrowsTheRuleListInBothDirections) {
    EXPECT_THAT(Following(IDC_RULE_LIST), ElementsAre("height", "width"));
}

TEST(MainWindowLayout, GrowingTheWindowGrowsTheProfileListInHeightOnly) {
    EXPECT_THAT(Following(IDC_PROFILE_LIST), ElementsAre("height"));
}

TEST(MainWindowLayout, GrowingTheWindowGrowsSearchFieldAndRuleListCaptionInWidthOnly) {
    for (const int id : {IDC_SEARCH_EDIT, IDC_RULE_LIST_CAPTION_EDIT}) {
        EXPECT_THAT(Following(id), ElementsAre("width")) << "control " << id;
    }
}

TEST(MainWindowLayout, GrowingTheWindowMovesTheThreeBottomButtons) {
    for (const int id : {IDC_SAVE_BUTTON, app::kSaveAndExitButton, app::kExitButton}) {
        EXPECT_THAT(Following(id), ElementsAre("left", "top")) << "control " << id;
    }
}

TEST(MainWindowLayout, GrowingTheWindowLeavesSearchLabelAndIconButtonsWhereTheyAre) {
    EXPECT_THAT(Following(IDC_SEARCH_LABEL), IsEmpty());
    EXPECT_THAT(Following(IDC_PROFILE_CAPTION_EDIT), IsEmpty());
    for (const app::ButtonIcon& button : app::kButtonIcons) {
        EXPECT_THAT(Following(button.buttonId), IsEmpty()) << "control " << button.buttonId;
    }
}

// Deliberate: the import button is placed again, at its own position.
TEST(MainWindowLayout, TheControlsAreChangedInTheirOrderTheImportButtonAmongThem) {
    std::vector<int> ids;
    ids.reserve(app::kControlChanges.size());
    for (const app::ControlChange& change : app::kControlChanges) {
        ids.push_back(change.id);
    }
    EXPECT_THAT(ids, ElementsAre(IDC_RULE_LIST, IDC_RULE_LIST_CAPTION_EDIT, IDC_PROFILE_LIST, IDC_SEARCH_EDIT,
                                 app::kSaveAndExitButton, app::kExitButton, IDC_IMPORT_RULES_BUTTON,
                                 IDC_SAVE_BUTTON));
}

TEST(MainWindowLayout, TheMinimumSizeFollowsTheButtonAndTheScrollBar) {
    EXPECT_EQ(app::MinimumTrackingSize(75, 31, 17, 18), (app::Size{.width = 859, .height = 346}));
}

TEST(MainWindowLayout, TheIconOfTheMinimisedWindowStandsInTheMiddle) {
    EXPECT_EQ(app::MinimisedIconPosition({.width = 100, .height = 60}, {.width = 32, .height = 32}),
              (app::Point{.x = 34, .y = 14}));
    EXPECT_EQ(app::MinimisedIconPosition({.width = 101, .height = 61}, {.width = 32, .height = 32}),
              (app::Point{.x = 35, .y = 15}));
}

TEST(MainWindowTexts, EveryToolHasItsTip) {
    const std::map<int, std::wstring> expected = {
        {IDC_SAVE_ICON_BUTTON, L"Save"},
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
        {IDC_EXPORT_RULES_BUTTON, L"Export profile rules"},
    };
    EXPECT_EQ(Texts(app::kToolTips), expected);
}

TEST(MainWindowTexts, EveryIconButtonHasItsIconAndItsTip) {
    const std::map<int, int> expected = {
        {IDC_SAVE_ICON_BUTTON, IDI_SAVE},
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
        {IDC_IMPORT_RULES_BUTTON, IDI_IMPORT_RULES},
    };
    const std::map<int, std::wstring> tips = Texts(app::kToolTips);
    std::map<int, int> icons;
    for (const app::ButtonIcon& button : app::kButtonIcons) {
        icons[button.buttonId] = button.iconId;
        EXPECT_TRUE(tips.contains(button.buttonId)) << "No tip for button " << button.buttonId;
    }
    EXPECT_EQ(icons, expected);
}

TEST(MainWindowTexts, TheMenuItemsHaveTheirTexts) {
    const std::map<int, std::wstring> expected = {
        {IDM_SAVE, L"Save"},
        {IDM_LOG_PATH, L"Log path"},
        {IDM_CONFIGURATIONS, L"Configurations"},
        {IDM_EXIT, L"Exit"},
        {IDM_ADD_PROFILE, L"Add profile"},
        {IDM_EDIT_PROFILE, L"Edit profile"},
        {IDM_DELETE_PROFILE, L"Delete profile"},
        {IDM_IMPORT_RULES, L"Import profile rules"},
        {IDM_EXPORT_RULES, L"Export profile rules"},
        {IDM_ADD_RULE, L"Add rule"},
        {IDM_COPY_RULE, L"Copy rule"},
        {IDM_EDIT_RULE, L"Edit rule"},
        {IDM_DELETE_RULE, L"Delete rule"},
        {IDM_MAKE_FIRST, L"Make first"},
        {IDM_MOVE_UP, L"Move up"},
        {IDM_MOVE_DOWN, L"Move down"},
        {IDM_MAKE_LAST, L"Make last"},
    };
    EXPECT_EQ(Texts(app::kMenuItemTexts), expected);
}

TEST(MainWindowTexts, TheControlsHaveTheirFirstCaptions) {
    const std::map<int, std::wstring> expected = {
        {IDC_SAVE_BUTTON, L"Save"},
        {app::kSaveAndExitButton, L"Save and exit"},
        {app::kExitButton, L"Exit without saving"},
        {IDC_ADD_PROFILE_BUTTON, L"Add profile"},
        {IDC_OPEN_PROFILE_BUTTON, L"Open profile"},
        {IDC_DELETE_PROFILE_BUTTON, L"Delete profile"},
        {IDC_IMPORT_RULES_BUTTON, L"Import profile rules"},
        {IDC_EXPORT_RULES_BUTTON, L"Export profile rules"},
        {IDC_EDIT_PROFILE_BUTTON, L"Edit profile"},
        {IDC_CONFIGURATIONS_BUTTON, L"Configurations"},
        {IDC_PROFILE_CAPTION_EDIT, L"Profile: "},
        {IDC_RULE_LIST_CAPTION_EDIT, L"CS profile: "},
    };
    EXPECT_EQ(Texts(app::kInitialCaptions), expected);
}

TEST(MainWindowCommands, ButtonAndMenuItemOfACommandGiveTheSame) {
    struct Pair {
        int buttonId;
        int menuId;
        app::MainCommand command;
    };
    const std::vector<Pair> pairs = {
        {IDC_SAVE_ICON_BUTTON, IDM_SAVE, app::MainCommand::kSave},
        {IDC_SAVE_BUTTON, IDM_SAVE, app::MainCommand::kSave},
        {IDC_LOG_PATH_BUTTON, IDM_LOG_PATH, app::MainCommand::kLogPath},
        {IDC_CONFIGURATIONS_BUTTON, IDM_CONFIGURATIONS, app::MainCommand::kConfigurations},
        {app::kExitButton, IDM_EXIT, app::MainCommand::kExitWithoutSaving},
        {IDC_ADD_PROFILE_BUTTON, IDM_ADD_PROFILE, app::MainCommand::kAddProfile},
        {IDC_EDIT_PROFILE_BUTTON, IDM_EDIT_PROFILE, app::MainCommand::kEditProfile},
        {IDC_DELETE_PROFILE_BUTTON, IDM_DELETE_PROFILE, app::MainCommand::kDeleteProfile},
        {IDC_IMPORT_RULES_BUTTON, IDM_IMPORT_RULES, app::MainCommand::kImportRules},
        {IDC_EXPORT_RULES_BUTTON, IDM_EXPORT_RULES, app::MainCommand::kExportRules},
        {IDC_OPEN_PROFILE_BUTTON, IDM_OPEN_PROFILE, app::MainCommand::kOpenProfile},
        {IDC_ADD_RULE_BUTTON, IDM_ADD_RULE, app::MainCommand::kAddRule},
        {IDC_COPY_RULE_BUTTON, IDM_COPY_RULE, app::MainCommand::kCopyRule},
        {IDC_EDIT_RULE_BUTTON, IDM_EDIT_RULE, app::MainCommand::kEditRule},
        {IDC_DELETE_RULE_BUTTON, IDM_DELETE_RULE, app::MainCommand::kDeleteRule},
        {IDC_MAKE_FIRST_BUTTON, IDM_MAKE_FIRST, app::MainCommand::kMakeFirst},
        {IDC_MOVE_UP_BUTTON, IDM_MOVE_UP, app::MainCommand::kMoveUp},
        {IDC_MOVE_DOWN_BUTTON, IDM_MOVE_DOWN, app::MainCommand::kMoveDown},
        {IDC_MAKE_LAST_BUTTON, IDM_MAKE_LAST, app::MainCommand::kMakeLast},
    };
    for (const Pair& pair : pairs) {
        EXPECT_EQ(app::FindMainCommand(pair.buttonId), pair.command) << "button " << pair.buttonId;
        EXPECT_EQ(app::FindMainCommand(pair.menuId), pair.command) << "menu item " << pair.menuId;
    }
}

TEST(MainWindowCommands, SaveAndExitHasItsButtonOnly) {
    EXPECT_EQ(app::FindMainCommand(app::kSaveAndExitButton), app::MainCommand::kSaveAndExit);
    EXPECT_EQ(std::count_if(app::kCommandRoutes.begin(), app::kCommandRoutes.end(),
                            [](const app::CommandRoute& route) {
                                return route.command == app::MainCommand::kSaveAndExit;
                            }),
              1);
}

TEST(MainWindowCommands, EveryMenuItemGivesACommandAndNoIdGivesTwo) {
    for (const app::IdText& item : app::kMenuItemTexts) {
        EXPECT_TRUE(app::FindMainCommand(item.id).has_value()) << "menu item " << item.id;
    }
    std::set<int> ids;
    for (const app::CommandRoute& route : app::kCommandRoutes) {
        EXPECT_TRUE(ids.insert(route.id).second) << "id " << route.id;
    }
}

TEST(MainWindowCommands, OtherControlsGiveNone) {
    EXPECT_EQ(app::FindMainCommand(IDC_RULE_LIST), std::nullopt);
    EXPECT_EQ(app::FindMainCommand(IDC_SEARCH_EDIT), std::nullopt);
    EXPECT_EQ(app::FindMainCommand(0), std::nullopt);
}

TEST(MainWindowCommands, NoMenuShowsOpenProfile) {
    EXPECT_FALSE(Texts(app::kMenuItemTexts).contains(IDM_OPEN_PROFILE));
}

TEST(MainWindowCommands, TheLowFourBitsOfTheAboutCommandDoNotCount) {
    EXPECT_STREQ(app::kAboutItem.text, L"About programm...");
    EXPECT_EQ(app::kAboutItem.id, IDM_ABOUT);
    EXPECT_TRUE(app::IsAboutCommand(IDM_ABOUT));
    EXPECT_TRUE(app::IsAboutCommand(IDM_ABOUT + 15));
    EXPECT_FALSE(app::IsAboutCommand(IDM_ABOUT + 16));
    EXPECT_FALSE(app::IsAboutCommand(IDM_ABOUT - 1));
    EXPECT_FALSE(app::IsAboutCommand(0xF060));
}

TEST(MainWindowEnabling, OpeningAProfileEnablesItsControls) {
    EXPECT_EQ(std::set<int>(app::kProfileControls.begin(), app::kProfileControls.end()),
              (std::set<int>{IDC_PROFILE_CAPTION_EDIT, IDC_RULE_LIST, IDC_ADD_RULE_BUTTON,
                             IDC_COPY_RULE_BUTTON, IDC_EDIT_RULE_BUTTON, IDC_DELETE_RULE_BUTTON,
                             IDC_MAKE_FIRST_BUTTON, IDC_MOVE_UP_BUTTON, IDC_MOVE_DOWN_BUTTON,
                             IDC_MAKE_LAST_BUTTON, IDC_DELETE_PROFILE_BUTTON, IDC_EXPORT_RULES_BUTTON,
                             IDC_IMPORT_RULES_BUTTON, IDC_EDIT_PROFILE_BUTTON, IDC_RULE_LIST_CAPTION_EDIT}));
}

TEST(MainWindowEnabling, OpeningAProfileEnablesItsMenuItemsAndNoOthers) {
    std::set<int> always = {IDM_SAVE, IDM_LOG_PATH, IDM_CONFIGURATIONS, IDM_EXIT, IDM_ADD_PROFILE};
    for (const app::IdText& item : app::kMenuItemTexts) {
        const bool needsProfile = std::find(app::kProfileMenuItems.begin(), app::kProfileMenuItems.end(),
                                            item.id) != app::kProfileMenuItems.end();
        EXPECT_NE(needsProfile, always.contains(item.id)) << "menu item " << item.id;
    }
    EXPECT_EQ(app::kProfileMenuItems.size() + always.size(), app::kMenuItemTexts.size());
}

}  // namespace
}  // namespace corvane::test
