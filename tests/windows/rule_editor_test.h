#pragma once

#include <string>
#include <vector>

#include "tests/windows/editor_test.h"

namespace corvane::test {

/// Folders that every Windows has.
inline constexpr wchar_t kInFolder[] = L"C:\\windows";
inline constexpr wchar_t kOutFolder[] = L"C:\\windows\\system32";
inline constexpr wchar_t kErrorFolder[] = L"C:\\users";
inline constexpr wchar_t kSecondFolder[] = L"C:\\windows\\temp";

/// The operations as the list shows them, and their codes, in order.
[[nodiscard]] driver::Texts OperationNames();
[[nodiscard]] driver::Texts OperationCodes();
/// The position of a code; throws driver::Failure for what is none.
[[nodiscard]] int OperationIndex(const std::wstring& code);

/// A stored rule with folders that exist, in which every value has a text or a number of its own, whatever
/// the operation uses.
[[nodiscard]] StoredRule FullRule(const std::wstring& code);

/// The entries of a combo box, and its selected one.
[[nodiscard]] driver::Texts Entries(const driver::Window& combo);
[[nodiscard]] std::wstring SelectedEntry(const driver::Window& combo);

/// What the rule editor shows of the fields that follow the operation, one line each: the operation, the CS
/// profile, the output folder, the certificate button with its field, and the four option rows.
[[nodiscard]] driver::Texts ShownFields(const driver::Window& dialog);

/// A test that opens the rule editor from the main window of the real program. The profile "alpha" has the
/// CS profiles "CS one" and "CS two".
class RuleEditorTest : public EditorTest {
  protected:
    /// Writes the catalogue and "alpha" with these rules, then starts the program.
    void StartWithRules(const std::vector<StoredRule>& rules);

    /// Presses "Add rule".
    [[nodiscard]] driver::Window OpenNew() const;
    /// Selects a rule and presses "Edit rule".
    [[nodiscard]] driver::Window OpenStored(int row = 0) const;
    /// Starts on this one rule and opens it.
    [[nodiscard]] driver::Window StartAndOpen(const StoredRule& rule);

    /// Comes back when everything that was posted to the editor so far has been handled.
    static void SettleEditor(const driver::Window& dialog);
    /// Comes back when the editor is enabled again after a dialog of its own, and the command that showed
    /// that dialog is through.
    static void WaitForEditor(const driver::Window& dialog);
    /// Presses a button that ends the editor, and waits until the main window has taken the result.
    void Close(const driver::Window& dialog, int buttonId) const;

    static void SelectOperation(const driver::Window& dialog, const std::wstring& code);
    /// Selects a CS profile. Comes back at once; a question may follow.
    static void PostCsProfile(const driver::Window& dialog, int index);
    static void FillFolders(const driver::Window& dialog);
    /// Adds a mask by the button and the mask dialog.
    void AddMaskByDialog(const driver::Window& dialog, const std::wstring& mask) const;
    [[nodiscard]] static driver::ListView Masks(const driver::Window& dialog) {
        return driver::ListView(dialog.Control(IDC_RULE_MASK_LIST));
    }

    /// OK must be refused by the error box with this text and the picture of this icon resource, and the
    /// focus goes to this control.
    void ExpectErrorBox(const driver::Window& dialog, const std::wstring& text, int icon, int focusId) const;
    /// OK must be refused by a message box of this style, and the focus goes to this control.
    void ExpectRefusal(const driver::Window& dialog, const std::wstring& text, unsigned style,
                       int focusId) const;
    /// The focus is on this control; Enter presses it if it is a button, else OK.
    static void ExpectFocusToMend(const driver::Window& dialog, int focusId);
    /// A message box of the editor, answered; comes back when the editor's command has gone on, to its end
    /// or to the next box.
    void AnswerBox(const driver::Window& dialog, const std::wstring& text, unsigned style, int answer,
                   const std::wstring& title = L"QENT AC Velmaris - configuration") const;

    /// Saves, leaves, and gives what is stored of a rule of "alpha": its own values and its subkeys'.
    [[nodiscard]] std::map<std::wstring, driver::RegistryValues> SaveAndRead(int number);
};

}  // namespace corvane::test
