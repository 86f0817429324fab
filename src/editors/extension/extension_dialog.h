#pragma once

#include <string>

#include "editors/extension/extension_form.h"
#include "toolkit/dialog/dialog.h"
#include "toolkit/text/system_text.h"

namespace corvane::editors {

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

}  // namespace corvane::editors
