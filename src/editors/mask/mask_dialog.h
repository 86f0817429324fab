#pragma once

#include <string>

#include "editors/mask/mask_form.h"
#include "reporting/product_dialog.h"

namespace corvane::editors {

/// Asks for one mask of a rule: typed, or picked from suggestions.
class AddMask final : public reporting::ProductDialog {
  public:
    /// Starts with `form`'s text in the field.
    AddMask(HWND owner, MaskForm form, reporting::ErrorReporter& reporter);

    /// The mask, to be taken after a run that ended with OK.
    [[nodiscard]] const std::wstring& Mask() const { return form_.text; }

  protected:
    bool OnInitDialog() override;
    void OnOk() override;
    const wchar_t* UnsavedInputReason() override;
    void ExchangeFields(toolkit::DataExchange& exchange) override;

  private:
    MaskForm form_;
    std::wstring openedText_;
};

}  // namespace corvane::editors
