#include "reporting/product_dialog.h"

#include <algorithm>

#include "reporting/error_box.h"

namespace corvane::reporting {

ProductDialog::ProductDialog(int templateId, HWND owner, ErrorReporter& reporter)
    : toolkit::Dialog(templateId, owner), reporter_(reporter) {}

void ProductDialog::OnSize(WPARAM kind, int width, int height) {
    // A window without a maximise box that is maximised all the same leaves its controls where they are.
    const bool isOwnSize =
        kind == SIZE_RESTORED ||
        (kind == SIZE_MAXIMIZED && (GetWindowLongPtrW(Window(), GWL_STYLE) & WS_MAXIMIZEBOX) != 0);
    if (!layout_ || !isOwnSize) {
        return;
    }
    layout_->Arrange(width, height);
    OnArranged();
    InvalidateRect(Window(), nullptr, TRUE);
}

void ProductDialog::OnMinimumMaximumInfo(MINMAXINFO& info) {
    if (layout_) {
        layout_->LimitSize(info);
    }
}

void ProductDialog::OnScaleChanged() {
    if (layout_) {
        layout_->Rescale(TemplateClientSize());
        OnArranged();
    }
    if (windowIconId_ != 0) {
        SetWindowIcon(windowIconId_);
    }
    buttonIcons_.Rescale(Window(), DotsPerInch());
}

bool ProductDialog::PreTranslateMessage(MSG& message) {
    toolTip_.Relay(message);
    return toolkit::Dialog::PreTranslateMessage(message);
}

void ProductDialog::ReportException(const std::exception& exception) {
    reporter_.ShowMessage(Window(), exception.what(), kErrorStyle);
}

void ProductDialog::LetControlsFollow(const std::vector<toolkit::Anchor>& anchors) {
    layout_.emplace().Remember(Window(), anchors);
}

void ProductDialog::SetWindowIcon(int iconId) {
    windowIconId_ = iconId;
    toolkit::ShowWindowIcons(Window(), DotsPerInch(), iconId, largeIcon_, smallIcon_);
}

void ProductDialog::SetToolTip(int controlId, const std::wstring& text) {
    if (controlsWithToolTip_.empty()) {
        toolTip_.Create(Window());
        toolTip_.Activate(true);
    }
    if (std::find(controlsWithToolTip_.begin(), controlsWithToolTip_.end(), controlId) ==
        controlsWithToolTip_.end()) {
        toolTip_.Add(Control(controlId), text.c_str());
        controlsWithToolTip_.push_back(controlId);
    } else {
        toolTip_.SetText(Control(controlId), text.c_str());
    }
}

void ProductDialog::SetButtonIcon(int buttonId, int iconId) {
    buttonIcons_.Show(Window(), DotsPerInch(), buttonId, iconId);
}

void ProductDialog::SetIconButton(int buttonId, const std::wstring& name, int iconId) {
    SetControlText(buttonId, name.c_str());
    SetToolTip(buttonId, name);
    SetButtonIcon(buttonId, iconId);
}

void ProductDialog::CorrectTypedText(int controlId, const std::wstring& text) const {
    const HWND edit = Control(controlId);
    if (toolkit::WindowText(edit) != text) {
        SetWindowTextW(edit, text.c_str());
        SendMessageW(edit, EM_SETSEL, text.size(), static_cast<LPARAM>(text.size()));
    }
}

void ProductDialog::Show(const Refusal& refusal) {
    if (const auto* const picture = std::get_if<RefusalPicture>(&refusal.wording)) {
        const int size =
            MulDiv(toolkit::kButtonIconSize, static_cast<int>(DotsPerInch()), USER_DEFAULT_SCREEN_DPI);
        const toolkit::UniqueIcon icon = toolkit::LoadIconResource(picture->iconId, size);
        ErrBox(Window(), picture->text, icon.get(), reporter_).RunModal();
    } else {
        ShowRefusal(refusal, reporter_, Window());
    }
    if (refusal.controlId != 0) {
        FocusControl(refusal.controlId);
    }
}

void ProductDialog::Show(const Information& information) {
    reporter_.ShowTitledMessage(Window(), information.text, information.title, kInformationStyle);
}

bool ProductDialog::IsAgreed(const Question& question) {
    return IsAgreedTo(question, reporter_, Window());
}

}  // namespace corvane::reporting
