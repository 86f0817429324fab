#pragma once

#include <string>

#include "toolkit/system/application.h"

namespace corvane::app {

/// The application: one instance of the editor for the user's session, run as one modal main window.
class CCorvaneApp final : public toolkit::Application {
  public:
    CCorvaneApp() = default;

  protected:
    bool InitInstance() override;
    int ExitInstance() override;
    [[nodiscard]] std::wstring Title() const override;
};

}  // namespace corvane::app
