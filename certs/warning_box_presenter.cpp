#include "certs/warning_box_presenter.h"

#include "app/reporting/warning_box.h"

namespace corvane {

void WarningBoxPresenter::Show(toolkit::WindowHandle owner, const std::wstring& text,
                               const std::wstring& title, WarningMode mode) {
    WarningBox box(owner, mode == WarningMode::kError);
    box.text = text;
    box.title = title;
    box.isInfoMode = mode == WarningMode::kInformation;
    box.RunModal();
}

}  // namespace corvane
