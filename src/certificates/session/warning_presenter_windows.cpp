#include "certificates/session/warning_presenter.h"

#include "reporting/warning_box.h"

namespace corvane::certificates {

void WarningBoxPresenter::Show(toolkit::WindowHandle owner, const std::wstring& text,
                               const std::wstring& title, WarningMode mode) {
    reporting::WarningBox box(owner, mode == WarningMode::kError, reporter_);
    box.text = text;
    box.title = title;
    box.isInfoMode = mode == WarningMode::kInformation;
    box.RunModal();
}

}  // namespace corvane::certificates
