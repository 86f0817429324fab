#pragma once

#include <memory>
#include <string>

#include "certificates/session/wait_window.h"
#include "reporting/product_dialog.h"

namespace corvane::certificates {

/// Asks for patience. It has no button and no close box: it goes when the call is through.
class AwaitDlg final : public reporting::ProductDialog {
  public:
    AwaitDlg(HWND owner, std::wstring text, reporting::ErrorReporter& reporter);

    /// Creates the window and paints it whole, in the middle of its owner, without taking the focus away
    /// from there. False when the window could not be made.
    bool ShowPainted();

  protected:
    bool OnInitDialog() override;
    void ExchangeFields(toolkit::DataExchange& exchange) override;

  private:
    void MoveToMiddle(HWND owner) const;

    HWND owner_;
    std::wstring text_;
};

/// The wait window of the program, with the pointer that tells of waiting. It is gone with this object at the
/// latest.
class AwaitWindow final : public WaitWindow {
  public:
    /// `reporter` must outlive the window.
    explicit AwaitWindow(reporting::ErrorReporter& reporter) : reporter_(reporter) {}
    AwaitWindow(const AwaitWindow&) = delete;
    AwaitWindow& operator=(const AwaitWindow&) = delete;
    AwaitWindow(AwaitWindow&&) = delete;
    AwaitWindow& operator=(AwaitWindow&&) = delete;
    ~AwaitWindow() override;

    void Show(toolkit::WindowHandle parent, const std::wstring& text) override;
    void Destroy() override;

  private:
    reporting::ErrorReporter& reporter_;
    std::unique_ptr<AwaitDlg> dialog_;
    HCURSOR formerCursor_ = nullptr;
};

}  // namespace corvane::certificates
