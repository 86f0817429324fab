#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/windows/editor_test.h"

namespace corvane::test {

/// Comes back when everything that was posted to the dialog of this edit so far has been handled.
void SettleDialogOf(const driver::Window& edit);

/// The entries of a list box.
[[nodiscard]] driver::Texts ListEntries(const driver::Window& listBox);

/// Whether a check box is checked.
[[nodiscard]] bool IsChecked(const driver::Window& checkBox);

/// The ids of the controls that the Tab key reaches, in its order.
[[nodiscard]] std::vector<int> TabStops(const driver::Window& dialog);

/// The settings group of the profile editor, as it is shown.
struct ShownSettings {
    std::wstring title;
    std::vector<int> checked;  ///< The ids of the check boxes that are checked, in the dialog's order.
    std::wstring server;
    bool isServerEnabled = false;
    bool isNoTimeStampErrorEnabled = false;
    std::wstring frequency;

    bool operator==(const ShownSettings&) const = default;
};

[[nodiscard]] ShownSettings SettingsOf(const driver::Window& dialog);
/// The settings of a new CS profile.
[[nodiscard]] ShownSettings NewSettings(const std::wstring& csProfile);
void PrintTo(const ShownSettings& settings, std::ostream* stream);

/// A test that opens the profile editor from the main window of the real program.
class ProfileEditorTest : public EditorTest {
  protected:
    /// Presses "Add profile".
    [[nodiscard]] driver::Window OpenNew() const;
    /// Presses "Edit profile".
    [[nodiscard]] driver::Window OpenCurrent() const;
    /// Presses a button that ends the editor, and waits until the main window has taken the result.
    void Close(const driver::Window& dialog, int buttonId) const;

    static void SettleEditor(const driver::Window& dialog) {
        SettleDialogOf(dialog.Control(IDC_PROFILE_NAME_EDIT));
    }
    /// Presses a check box or button whose command shows nothing.
    static void PressIn(const driver::Window& dialog, int controlId);
    /// Types into a field in place of what it holds.
    static void TypeInto(const driver::Window& dialog, int controlId, const std::wstring& text);

    /// A message box of the editor, answered; comes back when the editor's command is through.
    void AnswerBox(const driver::Window& dialog, const std::wstring& text, unsigned style, int answer) const;
    /// OK must be refused with this text, and the focus goes to this control.
    void ExpectRefusal(const driver::Window& dialog, const std::wstring& text, int focusId) const;

    [[nodiscard]] static driver::Window CsProfiles(const driver::Window& dialog) {
        return dialog.Control(IDC_PROFILE_CS_PROFILE_LIST);
    }
    [[nodiscard]] static int SelectedCsProfile(const driver::Window& dialog);
    /// Selects a CS profile as a click does. Comes back at once; a refusal may follow.
    static void PostSelection(const driver::Window& dialog, int index);
    static void SelectCsProfile(const driver::Window& dialog, int index);
    /// Presses the add button and waits for the choice.
    [[nodiscard]] driver::Window OpenChoice(const driver::Window& dialog) const;
    /// Adds the CS profile at `index` of the catalogue.
    void AddCsProfile(const driver::Window& dialog, int index) const;
    /// Presses the delete button; the question must be this one.
    void DeleteCsProfile(const driver::Window& dialog, const std::wstring& question, int answer) const;

    /// A stored list of a profile.
    [[nodiscard]] static driver::Texts StoredList(const std::wstring& profile, const std::wstring& value);
    /// The eleven stored lists of a profile, by the names of their values.
    [[nodiscard]] static std::map<std::wstring, driver::Texts> StoredLists(const std::wstring& profile);
};

}  // namespace corvane::test
