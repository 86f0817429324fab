#pragma once

#include "certs/warning_presenter.h"

namespace corvane {

/// Shows warnings in the program's warning box.
class WarningBoxPresenter final : public WarningPresenter {
  public:
    void Show(toolkit::WindowHandle owner, const std::wstring& text, const std::wstring& title,
              WarningMode mode) override;
};

}  // namespace corvane
