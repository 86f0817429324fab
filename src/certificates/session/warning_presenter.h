#pragma once

#include <string>

#include "reporting/error_reporter.h"
#include "toolkit/system/window_handle.h"

namespace corvane::certificates {

/// How a warning box looks.
enum class WarningMode { kWarning, kError, kInformation };

/// Shows long texts to read, in the warning box.
class WarningPresenter {
  public:
    virtual ~WarningPresenter() = default;

    /// Shows `text` (lines broken by CR LF) until the user closes the box. `owner` may be null; with an empty
    /// `title` the box has its usual one.
    virtual void Show(toolkit::WindowHandle owner, const std::wstring& text, const std::wstring& title,
                      WarningMode mode) = 0;

  protected:
    WarningPresenter() = default;
    WarningPresenter(const WarningPresenter&) = default;
    WarningPresenter& operator=(const WarningPresenter&) = default;
    WarningPresenter(WarningPresenter&&) = default;
    WarningPresenter& operator=(WarningPresenter&&) = default;
};

/// Shows warnings in the program's warning box.
class WarningBoxPresenter final : public WarningPresenter {
  public:
    /// `reporter` must outlive the presenter.
    explicit WarningBoxPresenter(reporting::ErrorReporter& reporter) : reporter_(reporter) {}

    void Show(toolkit::WindowHandle owner, const std::wstring& text, const std::wstring& title,
              WarningMode mode) override;

  private:
    reporting::ErrorReporter& reporter_;
};

}  // namespace corvane::certificates
