#pragma once

#include <optional>
#include <string>
#include <vector>

#include "reporting/error_reporter.h"
#include "reporting/refusal.h"
#include "toolkit/controls/button_icons.h"
#include "toolkit/controls/tool_tip.h"
#include "toolkit/dialog/anchored_layout.h"
#include "toolkit/dialog/dialog.h"
#include "toolkit/system/icon.h"

namespace corvane::reporting {

/// Base class of the dialogs of this program: what they have in common beyond any program's dialogs. It
/// reports exceptions under the program's title, keeps tooltips, icons and the places of the controls right
/// at every size and scale, and shows what a form refuses.
///
/// A derived class that overrides OnScaleChanged or PreTranslateMessage calls this class's.
class ProductDialog : public toolkit::Dialog {
  protected:
    /// `reporter` must outlive the dialog.
    ProductDialog(int templateId, HWND owner, ErrorReporter& reporter);

    // Hooks.

    /// The controls have new places, because the size or the scale has changed: what depends on their width
    /// is to follow. Only in a dialog that can be resized.
    virtual void OnArranged() {}
    void OnSize(WPARAM kind, int width, int height) override;
    /// Keeps the user from making the dialog smaller than its template.
    void OnMinimumMaximumInfo(MINMAXINFO& info) override;
    void OnScaleChanged() override;
    bool PreTranslateMessage(MSG& message) override;
    void ReportException(const std::exception& exception) override;

    // Calls for derived classes.

    /// Lets the controls follow the size of the window from now on.
    void LetControlsFollow(const std::vector<toolkit::Anchor>& anchors);
    /// Gives the window the icon resource as its large and its small icon, at every scale.
    void SetWindowIcon(int iconId);
    /// The large icon of the window; null without one.
    [[nodiscard]] HICON LargeIcon() const { return largeIcon_.get(); }
    /// Gives a control its tooltip.
    void SetToolTip(int controlId, const std::wstring& text);
    /// Shows the icon resource on a button, at every scale.
    void SetButtonIcon(int buttonId, int iconId);
    /// Makes a button an icon button: its name, which is its tooltip too, and its picture. Again for one that
    /// gets another name or picture.
    void SetIconButton(int buttonId, const std::wstring& name, int iconId);
    /// Puts a corrected text into a field in which the user is typing. The caret goes after it, where typing
    /// goes on; a field that shows it already is left alone.
    void CorrectTypedText(int controlId, const std::wstring& text) const;
    /// Tells the user why, and moves the focus to the control to mend.
    void Show(const Refusal& refusal);
    void Show(const Information& information);
    /// Asks the user. Returns whether the answer was Yes.
    [[nodiscard]] bool IsAgreed(const Question& question);
    [[nodiscard]] ErrorReporter& Reporter() const { return reporter_; }

  private:
    ErrorReporter& reporter_;
    toolkit::ToolTip toolTip_;
    std::vector<int> controlsWithToolTip_;
    toolkit::ButtonIcons buttonIcons_;
    int windowIconId_ = 0;  ///< 0 for none.
    toolkit::UniqueIcon largeIcon_;
    toolkit::UniqueIcon smallIcon_;
    std::optional<toolkit::AnchoredLayout> layout_;  ///< Of a dialog that can be resized.
};

}  // namespace corvane::reporting
