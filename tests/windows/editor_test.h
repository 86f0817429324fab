#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "res/ids.h"
#include "tests/driver/list_view.h"
#include "tests/driver/message_box.h"
#include "tests/driver/program.h"
#include "tests/driver/registry.h"
#include "tests/windows/sample_configuration.h"

namespace corvane::test {

/// The path of the program under test: what CORVANE_EDITOR names, else corvane.exe beside the test program.
[[nodiscard]] std::wstring EditorPath();

/// Columns of the rule list.
enum RuleColumn : int {
    kNumberColumn,
    kDescriptionColumn,
    kOperationColumn,
    kInputColumn,
    kOutputColumn,
    kErrorColumn,
    kMasksColumn,
    kCsProfileColumn,
    kExtraColumn,
    kRuleColumnCount
};

/// A test that starts the real program and drives it from outside. Each starts from a registry of its own.
class EditorTest : public ::testing::Test {
  protected:
    EditorTest();

    /// Starts the program and waits for its main window.
    void Start();
    /// Writes the sample configuration, then starts.
    void StartWithSample();
    /// Leaves the program where it still runs, throws away what it has not saved, and starts it again.
    void StartAgain();

    [[nodiscard]] const driver::Program& Editor() const { return *editor_; }
    [[nodiscard]] const driver::Window& Main() const { return main_; }
    [[nodiscard]] driver::Window Control(int id) const { return main_.Control(id); }
    [[nodiscard]] driver::ListView Rules() const { return driver::ListView(Control(IDC_RULE_LIST)); }
    [[nodiscard]] driver::ListView Profiles() const { return driver::ListView(Control(IDC_PROFILE_LIST)); }
    /// The descriptions of the shown rules, in order.
    [[nodiscard]] driver::Texts ShownRules() const { return Rules().Column(kDescriptionColumn); }

    /// Comes back when everything that was posted to the window so far has been handled.
    void Settle() const;
    /// Comes back when the main window is enabled again after a dialog, and the command that showed the
    /// dialog is through: the window is enabled before the dialog's answer is used.
    void WaitForMain() const;
    /// Clicks a profile's row and waits until its caption is shown.
    void OpenProfile(const std::wstring& name) const;
    /// Presses a button whose command shows nothing, and waits until it is through.
    void Press(int buttonId) const;

    /// Waits for a message box of `owner` and compares all of it; answers it.
    void ExpectMessageBox(const driver::Window& owner, const std::wstring& text, unsigned style, int answer,
                          const std::wstring& title = L"QENT AC Velmaris - configuration") const;
    /// The same for a box of the main window; comes back when the command has gone on, to its end or to the
    /// next box.
    void ExpectBox(const std::wstring& text, unsigned style, int answer) const;
    /// No window but the main window is open.
    void ExpectNoDialog() const;

    /// Leaves by "Exit without saving"; the program must end without a question.
    void ExpectNothingToSave();
    /// Leaves by "Exit without saving"; the program must ask first. Answers Yes.
    void ExpectUnsavedChanges();
    /// Presses "Save" and leaves.
    void SaveAndLeave();

  private:
    driver::RegistryOfTest registry_;
    std::optional<driver::Program> editor_;
    driver::Window main_;
};

inline constexpr unsigned kRefusal = 0x30;
inline constexpr unsigned kConfirmation = 0x124;
inline constexpr unsigned kReport = 0x10;
inline constexpr unsigned kInformation = 0x40;

inline constexpr wchar_t kUnsavedQuestion[] = L"Some changes has not been saved. Exit without saving?";

/// The report of a failed operation, as it is shown: with the system's own words for the code.
[[nodiscard]] std::wstring ReportText(const std::wstring& operation, unsigned code,
                                      const std::wstring& detail = L"");

}  // namespace corvane::test
