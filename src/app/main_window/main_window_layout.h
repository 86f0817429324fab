#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "res/ids.h"

namespace corvane::app {

/// The two buttons whose ids are the dialog manager's own: Enter presses the first, Escape the second.
inline constexpr int kSaveAndExitButton = 1;
inline constexpr int kExitButton = 2;

/// A size in pixels.
struct Size {
    int width = 0;
    int height = 0;

    bool operator==(const Size&) const = default;
};

/// A point in pixels.
struct Point {
    int x = 0;
    int y = 0;

    bool operator==(const Point&) const = default;
};

/// What a change of the window's size does to one control: whether it moves or grows by the change of the
/// client area, in each direction.
struct ControlChange {
    int id;
    bool moveX;
    bool moveY;
    bool growX;
    bool growY;
};

/// The controls that are placed again when the size of the restored window changes, in this order; all
/// others keep their places. That the search field widens while its label stays is deliberate, and so is
/// that the import button is placed where it stands already: users know the window so.
inline constexpr std::array kControlChanges = std::to_array<ControlChange>({
    {.id = IDC_RULE_LIST, .moveX = false, .moveY = false, .growX = true, .growY = true},
    {.id = IDC_RULE_LIST_CAPTION_EDIT, .moveX = false, .moveY = false, .growX = true, .growY = false},
    {.id = IDC_PROFILE_LIST, .moveX = false, .moveY = false, .growX = false, .growY = true},
    {.id = IDC_SEARCH_EDIT, .moveX = false, .moveY = false, .growX = true, .growY = false},
    {.id = kSaveAndExitButton, .moveX = true, .moveY = true, .growX = false, .growY = false},
    {.id = kExitButton, .moveX = true, .moveY = true, .growX = false, .growY = false},
    {.id = IDC_IMPORT_RULES_BUTTON, .moveX = false, .moveY = false, .growX = false, .growY = false},
    {.id = IDC_SAVE_BUTTON, .moveX = true, .moveY = true, .growX = false, .growY = false},
});

/// The smallest size to which the window can be dragged, frame included, in pixels. The button is "Save and
/// exit"; the other two are the system's vertical scroll bar width and the height of its arrow.
[[nodiscard]] Size MinimumTrackingSize(int buttonWidth, int buttonHeight, int scrollBarWidth,
                                       int scrollBarArrowHeight);

/// Where the window icon is drawn while the window is minimised: in the middle of the client area.
[[nodiscard]] Point MinimisedIconPosition(const Size& client, const Size& icon);

/// A text that belongs to a control or a menu item.
struct IdText {
    int id;
    const wchar_t* text;
};

/// The icon that a button carries.
struct ButtonIcon {
    int buttonId;
    int iconId;
};

/// The tooltips, one for each button.
inline constexpr std::array kToolTips = std::to_array<IdText>({
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
});

/// The icons of the icon buttons.
inline constexpr std::array kButtonIcons = std::to_array<ButtonIcon>({
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
});

/// The captions of the buttons and, until a profile is opened, of the two caption fields. Those of icon
/// buttons are not seen; they are their accessible names.
inline constexpr std::array kInitialCaptions = std::to_array<IdText>({
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
});

/// The texts of the menu items, pop-up by pop-up.
inline constexpr std::array kMenuItemTexts = std::to_array<IdText>({
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
});

/// The item that the system menu gets, after a separator.
inline constexpr IdText kAboutItem = {IDM_ABOUT, L"About programm..."};

/// Tells whether a system command is the one of the item above; the low four bits are the system's own.
[[nodiscard]] constexpr bool IsAboutCommand(std::uintptr_t systemCommand) {
    return (systemCommand & ~std::uintptr_t{0xF}) == IDM_ABOUT;
}

/// The commands of the main window, whichever way they come.
enum class MainCommand {
    kSave,
    kLogPath,
    kConfigurations,
    kExitWithoutSaving,
    kSaveAndExit,
    kAddProfile,
    kEditProfile,
    kDeleteProfile,
    kImportRules,
    kExportRules,
    kOpenProfile,
    kAddRule,
    kCopyRule,
    kEditRule,
    kDeleteRule,
    kMakeFirst,
    kMoveUp,
    kMoveDown,
    kMakeLast,
};

/// A button or menu item, and the command that it gives.
struct CommandRoute {
    int id;
    MainCommand command;
};

/// Every button and every menu item that gives a command. No menu shows IDM_OPEN_PROFILE; programs that
/// drive this one may send it.
inline constexpr std::array kCommandRoutes = std::to_array<CommandRoute>({
    {IDC_SAVE_ICON_BUTTON, MainCommand::kSave},
    {IDC_SAVE_BUTTON, MainCommand::kSave},
    {IDM_SAVE, MainCommand::kSave},
    {IDC_LOG_PATH_BUTTON, MainCommand::kLogPath},
    {IDM_LOG_PATH, MainCommand::kLogPath},
    {IDC_CONFIGURATIONS_BUTTON, MainCommand::kConfigurations},
    {IDM_CONFIGURATIONS, MainCommand::kConfigurations},
    {kExitButton, MainCommand::kExitWithoutSaving},
    {IDM_EXIT, MainCommand::kExitWithoutSaving},
    {kSaveAndExitButton, MainCommand::kSaveAndExit},
    {IDC_ADD_PROFILE_BUTTON, MainCommand::kAddProfile},
    {IDM_ADD_PROFILE, MainCommand::kAddProfile},
    {IDC_EDIT_PROFILE_BUTTON, MainCommand::kEditProfile},
    {IDM_EDIT_PROFILE, MainCommand::kEditProfile},
    {IDC_DELETE_PROFILE_BUTTON, MainCommand::kDeleteProfile},
    {IDM_DELETE_PROFILE, MainCommand::kDeleteProfile},
    {IDC_IMPORT_RULES_BUTTON, MainCommand::kImportRules},
    {IDM_IMPORT_RULES, MainCommand::kImportRules},
    {IDC_EXPORT_RULES_BUTTON, MainCommand::kExportRules},
    {IDM_EXPORT_RULES, MainCommand::kExportRules},
    {IDC_OPEN_PROFILE_BUTTON, MainCommand::kOpenProfile},
    {IDM_OPEN_PROFILE, MainCommand::kOpenProfile},
    {IDC_ADD_RULE_BUTTON, MainCommand::kAddRule},
    {IDM_ADD_RULE, MainCommand::kAddRule},
    {IDC_COPY_RULE_BUTTON, MainCommand::kCopyRule},
    {IDM_COPY_RULE, MainCommand::kCopyRule},
    {IDC_EDIT_RULE_BUTTON, MainCommand::kEditRule},
    {IDM_EDIT_RULE, MainCommand::kEditRule},
    {IDC_DELETE_RULE_BUTTON, MainCommand::kDeleteRule},
    {IDM_DELETE_RULE, MainCommand::kDeleteRule},
    {IDC_MAKE_FIRST_BUTTON, MainCommand::kMakeFirst},
    {IDM_MAKE_FIRST, MainCommand::kMakeFirst},
    {IDC_MOVE_UP_BUTTON, MainCommand::kMoveUp},
    {IDM_MOVE_UP, MainCommand::kMoveUp},
    {IDC_MOVE_DOWN_BUTTON, MainCommand::kMoveDown},
    {IDM_MOVE_DOWN, MainCommand::kMoveDown},
    {IDC_MAKE_LAST_BUTTON, MainCommand::kMakeLast},
    {IDM_MAKE_LAST, MainCommand::kMakeLast},
});

/// The command of a button or menu item, or none.
[[nodiscard]] std::optional<MainCommand> FindMainCommand(int id);

/// The controls that opening a profile enables and deleting one disables.
inline constexpr std::array kProfileControls = std::to_array<int>({
    IDC_PROFILE_CAPTION_EDIT,
    IDC_RULE_LIST,
    IDC_ADD_RULE_BUTTON,
    IDC_COPY_RULE_BUTTON,
    IDC_EDIT_RULE_BUTTON,
    IDC_DELETE_RULE_BUTTON,
    IDC_MAKE_FIRST_BUTTON,
    IDC_MOVE_UP_BUTTON,
    IDC_MOVE_DOWN_BUTTON,
    IDC_MAKE_LAST_BUTTON,
    IDC_DELETE_PROFILE_BUTTON,
    IDC_EXPORT_RULES_BUTTON,
    IDC_IMPORT_RULES_BUTTON,
    IDC_EDIT_PROFILE_BUTTON,
    IDC_RULE_LIST_CAPTION_EDIT,
});

/// The menu items that opening a profile enables and deleting one greys.
inline constexpr std::array kProfileMenuItems = std::to_array<int>({
    IDM_EDIT_PROFILE,
    IDM_DELETE_PROFILE,
    IDM_IMPORT_RULES,
    IDM_EXPORT_RULES,
    IDM_ADD_RULE,
    IDM_COPY_RULE,
    IDM_EDIT_RULE,
    IDM_DELETE_RULE,
    IDM_MAKE_FIRST,
    IDM_MOVE_UP,
    IDM_MOVE_DOWN,
    IDM_MAKE_LAST,
});

}  // namespace corvane::app
