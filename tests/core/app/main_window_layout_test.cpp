#include "app/main_window_layout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace corvane::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// What a change of the window's size does to a control, in words: which of its sides follow the change.
std::set<std::string> Following(int id) {
    std::set<std::string> following;
    for (const ControlChange& change : kControlChanges) {
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
    for (const IdText& entry : table) {
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
    for (const int id : {IDC_SAVE_BUTTON, kSaveAndExitButton, kExitButton}) {
        EXPECT_THAT(Following(id), ElementsAre("left", "top")) << "control " << id;
    }
}

TEST(MainWindowLayout, GrowingTheWindowLeavesSearchLabelAndIconButtonsWhereTheyAre) {
    EXPECT_THAT(Following(IDC_SEARCH_LABEL), IsEmpty());
    EXPECT_THAT(Following(IDC_PROFILE_CAPTION_EDIT), IsEmpty());
    for (const ButtonIcon& button : kButtonIcons) {
        EXPECT_THAT(Following(button.buttonId), IsEmpty()) << "control " << button.buttonId;
    }
}

// Deliberate: the import button is placed again, at its own position.
TEST(MainWindowLayout, TheControlsAreChangedInTheirOrderTheImportButtonAmongThem) {
    std::vector<int> ids;
    ids.reserve(kControlChanges.size());
    for (const ControlChange& change : kControlChanges) {
        ids.push_back(change.id);
    }
    EXPECT_THAT(ids, ElementsAre(IDC_RULE_LIST, IDC_RULE_LIST_CAPTION_EDIT, IDC_PROFILE_LIST, IDC_SEARCH_EDIT,
                                 kSaveAndExitButton, kExitButton, IDC_IMPORT_RULES_BUTTON, IDC_SAVE_BUTTON));
}

TEST(MainWindowLayout, TheMinimumSizeFollowsTheButtonAndTheScrollBar) {
    EXPECT_EQ(MinimumTrackingSize(75, 31, 17, 18), (Size{.width = 859, .height = 346}));
}

TEST(MainWindowLayout, TheIconOfTheMinimisedWindowStandsInTheMiddle) {
    EXPECT_EQ(MinimisedIconPosition({.width = 100, .height = 60}, {.width = 32, .height = 32}),
              (Point{.x = 34, .y = 14}));
    EXPECT_EQ(MinimisedIconPosition({.width = 101, .height = 61}, {.width = 32, .height = 32}),
              (Point{.x = 35, .y = 15}));
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
    EXPECT_EQ(Texts(kToolTips), expected);
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
    const std::map<int, std::wstring> tips = Texts(kToolTips);
    std::map<int, int> icons;
    for (const ButtonIcon& button : kButtonIcons) {
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
    EXPECT_EQ(Texts(kMenuItemTexts), expected);
}

TEST(MainWindowTexts, TheControlsHaveTheirFirstCaptions) {
    const std::map<int, std::wstring> expected = {
        {IDC_SAVE_BUTTON, L"Save"},
        {kSaveAndExitButton, L"Save and exit"},
        {kExitButton, L"Exit without saving"},
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
    EXPECT_EQ(Texts(kInitialCaptions), expected);
}

TEST(MainWindowCommands, ButtonAndMenuItemOfACommandGiveTheSame) {
    struct Pair {
        int buttonId;
        int menuId;
        MainCommand command;
    };
    const std::vector<Pair> pairs = {
        {IDC_SAVE_ICON_BUTTON, IDM_SAVE, MainCommand::kSave},
        {IDC_SAVE_BUTTON, IDM_SAVE, MainCommand::kSave},
        {IDC_LOG_PATH_BUTTON, IDM_LOG_PATH, MainCommand::kLogPath},
        {IDC_CONFIGURATIONS_BUTTON, IDM_CONFIGURATIONS, MainCommand::kConfigurations},
        {kExitButton, IDM_EXIT, MainCommand::kExitWithoutSaving},
        {IDC_ADD_PROFILE_BUTTON, IDM_ADD_PROFILE, MainCommand::kAddProfile},
        {IDC_EDIT_PROFILE_BUTTON, IDM_EDIT_PROFILE, MainCommand::kEditProfile},
        {IDC_DELETE_PROFILE_BUTTON, IDM_DELETE_PROFILE, MainCommand::kDeleteProfile},
        {IDC_IMPORT_RULES_BUTTON, IDM_IMPORT_RULES, MainCommand::kImportRules},
        {IDC_EXPORT_RULES_BUTTON, IDM_EXPORT_RULES, MainCommand::kExportRules},
        {IDC_OPEN_PROFILE_BUTTON, IDM_OPEN_PROFILE, MainCommand::kOpenProfile},
        {IDC_ADD_RULE_BUTTON, IDM_ADD_RULE, MainCommand::kAddRule},
        {IDC_COPY_RULE_BUTTON, IDM_COPY_RULE, MainCommand::kCopyRule},
        {IDC_EDIT_RULE_BUTTON, IDM_EDIT_RULE, MainCommand::kEditRule},
        {IDC_DELETE_RULE_BUTTON, IDM_DELETE_RULE, MainCommand::kDeleteRule},
        {IDC_MAKE_FIRST_BUTTON, IDM_MAKE_FIRST, MainCommand::kMakeFirst},
        {IDC_MOVE_UP_BUTTON, IDM_MOVE_UP, MainCommand::kMoveUp},
        {IDC_MOVE_DOWN_BUTTON, IDM_MOVE_DOWN, MainCommand::kMoveDown},
        {IDC_MAKE_LAST_BUTTON, IDM_MAKE_LAST, MainCommand::kMakeLast},
    };
    for (const Pair& pair : pairs) {
        EXPECT_EQ(FindMainCommand(pair.buttonId), pair.command) << "button " << pair.buttonId;
        EXPECT_EQ(FindMainCommand(pair.menuId), pair.command) << "menu item " << pair.menuId;
    }
}

TEST(MainWindowCommands, SaveAndExitHasItsButtonOnly) {
    EXPECT_EQ(FindMainCommand(kSaveAndExitButton), MainCommand::kSaveAndExit);
    EXPECT_EQ(
        std::count_if(kCommandRoutes.begin(), kCommandRoutes.end(),
                      [](const CommandRoute& route) { return route.command == MainCommand::kSaveAndExit; }),
        1);
}

TEST(MainWindowCommands, EveryMenuItemGivesACommandAndNoIdGivesTwo) {
    for (const IdText& item : kMenuItemTexts) {
        EXPECT_TRUE(FindMainCommand(item.id).has_value()) << "menu item " << item.id;
    }
    std::set<int> ids;
    for (const CommandRoute& route : kCommandRoutes) {
        EXPECT_TRUE(ids.insert(route.id).second) << "id " << route.id;
    }
}

TEST(MainWindowCommands, OtherControlsGiveNone) {
    EXPECT_EQ(FindMainCommand(IDC_RULE_LIST), std::nullopt);
    EXPECT_EQ(FindMainCommand(IDC_SEARCH_EDIT), std::nullopt);
    EXPECT_EQ(FindMainCommand(0), std::nullopt);
}

TEST(MainWindowCommands, NoMenuShowsOpenProfile) {
    EXPECT_FALSE(Texts(kMenuItemTexts).contains(IDM_OPEN_PROFILE));
}

TEST(MainWindowCommands, TheLowFourBitsOfTheAboutCommandDoNotCount) {
    EXPECT_STREQ(kAboutItem.text, L"About programm...");
    EXPECT_EQ(kAboutItem.id, IDM_ABOUT);
    EXPECT_TRUE(IsAboutCommand(IDM_ABOUT));
    EXPECT_TRUE(IsAboutCommand(IDM_ABOUT + 15));
    EXPECT_FALSE(IsAboutCommand(IDM_ABOUT + 16));
    EXPECT_FALSE(IsAboutCommand(IDM_ABOUT - 1));
    EXPECT_FALSE(IsAboutCommand(0xF060));
}

TEST(MainWindowEnabling, OpeningAProfileEnablesItsControls) {
    EXPECT_EQ(std::set<int>(kProfileControls.begin(), kProfileControls.end()),
              (std::set<int>{IDC_PROFILE_CAPTION_EDIT, IDC_RULE_LIST, IDC_ADD_RULE_BUTTON,
                             IDC_COPY_RULE_BUTTON, IDC_EDIT_RULE_BUTTON, IDC_DELETE_RULE_BUTTON,
                             IDC_MAKE_FIRST_BUTTON, IDC_MOVE_UP_BUTTON, IDC_MOVE_DOWN_BUTTON,
                             IDC_MAKE_LAST_BUTTON, IDC_DELETE_PROFILE_BUTTON, IDC_EXPORT_RULES_BUTTON,
                             IDC_IMPORT_RULES_BUTTON, IDC_EDIT_PROFILE_BUTTON, IDC_RULE_LIST_CAPTION_EDIT}));
}

TEST(MainWindowEnabling, OpeningAProfileEnablesItsMenuItemsAndNoOthers) {
    std::set<int> always = {IDM_SAVE, IDM_LOG_PATH, IDM_CONFIGURATIONS, IDM_EXIT, IDM_ADD_PROFILE};
    for (const IdText& item : kMenuItemTexts) {
        const bool needsProfile =
            std::find(kProfileMenuItems.begin(), kProfileMenuItems.end(), item.id) != kProfileMenuItems.end();
        EXPECT_NE(needsProfile, always.contains(item.id)) << "menu item " << item.id;
    }
    EXPECT_EQ(kProfileMenuItems.size() + always.size(), kMenuItemTexts.size());
}

}  // namespace
}  // namespace corvane::testing
