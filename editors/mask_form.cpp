#include "editors/mask_form.h"

#include "app/reporting/message_styles.h"

namespace corvane {

bool MaskForm::Confirm(ErrorReporter& reporter, toolkit::WindowHandle dialog) const {
    if (!text.empty()) {
        return true;
    }
    reporter.ShowMessage(dialog, std::wstring(L"No Mask selected."), kRefusalStyle);
    return false;
}

}  // namespace corvane
