#pragma once

#include <string>

#include "editors/extension_form.h"
#include "toolkit/dialog.h"
#include "toolkit/system_text.h"

namespace corvane {

/// Asks for one file name extension.
class CAddExtDlg final : public toolkit::Dialog {
  public:
    CAddExtDlg(HWND owner, const toolkit::SystemText& systemText);

    /// The extension, to be taken after a run that ended with OK.
    [[nodiscard]] const std::wstring& Extension() const { return form_.text; }

  protected:
    bool OnInitDialog() override;
    void OnOk() override;
    const wchar_t* UnsavedInputReason() override;
    void ExchangeFields(toolkit::DataExchange& exchange) override;

  private:
    ExtensionForm form_;
    const toolkit::SystemText& systemText_;
};

}  // namespace corvane
