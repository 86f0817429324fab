#pragma once

#include <string>

#include "toolkit/dialog/anchored_layout.h"
#include "toolkit/dialog/dialog.h"
#include "toolkit/system/icon.h"

namespace corvane::reporting {

/// Shows a long text to read, with "OK" as the only way out, in a window that can be resized.
class WarningBox final : public toolkit::Dialog {
  public:
    WarningBox(HWND owner, bool isErrorMode);

    std::wstring text;        ///< Lines broken by CR LF.
    std::wstring title;       ///< The caption; "Warning:" when empty.
    bool isInfoMode = false;  ///< Shows the information icon, whatever the error mode says.

  protected:
    bool OnInitDialog() override;
    void OnOk() override {}  // "Continue" is not offered.
    void OnSize(WPARAM kind, int width, int height) override;
    void OnMinimumMaximumInfo(MINMAXINFO& info) override;
    void OnScaleChanged() override;
    void ExchangeFields(toolkit::DataExchange& exchange) override;

  private:
    void ShowIcons();

    bool isErrorMode_;
    toolkit::UniqueIcon largeIcon_;
    toolkit::UniqueIcon smallIcon_;
    toolkit::AnchoredLayout layout_;
};

}  // namespace corvane::reporting
