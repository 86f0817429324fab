#include "toolkit/dialog/dialog.h"

#include <stdexcept>
#include <utility>

#include "toolkit/dialog/modal_state.h"
#include "toolkit/dialog/user_command.h"
#include "toolkit/dialog/window_geometry.h"

namespace corvane::toolkit {

namespace {

/// Sets a flag for as long as this object lives.
class FlagSetter {
  public:
    explicit FlagSetter(bool& flag) : flag_(flag), before_(flag) { flag_ = true; }
    FlagSetter(const FlagSetter&) = delete;
    FlagSetter& operator=(const FlagSetter&) = delete;
    FlagSetter(FlagSetter&&) = delete;
    FlagSetter& operator=(FlagSetter&&) = delete;
    ~FlagSetter() { flag_ = before_; }

  private:
    bool& flag_;
    bool before_;
};

/// Tells whether a message is the user's input into a window that is disabled. It can only have been posted:
/// the system sends nothing of the kind there.
bool IsInputForDisabledWindow(const MSG& message) {
    return IsUserInput(message.message) && message.hwnd != nullptr &&
           IsWindowEnabled(GetAncestor(message.hwnd, GA_ROOT)) == FALSE;
}

}  // namespace

Dialog::~Dialog() {
    DestroyDialogWindow();
}

int Dialog::RunModal() {
    const HWND owner = owner_ != nullptr ? GetAncestor(owner_, GA_ROOT) : nullptr;
    isModal_ = true;
    hasEnded_ = false;
    result_ = -1;
    initFailure_ = nullptr;
    {
        const ModalState others;
        backdrop_ = owner != nullptr ? owner : others.WindowInUse();
        if (CreateTemplateWindow(owner) != nullptr && !hasEnded_) {
            RunLoop();
        }
        if (window_ != nullptr) {
            SetWindowPos(window_, nullptr, 0, 0, 0, 0,
                         SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
        }
    }
    // The other windows are enabled again by now; were the dialog destroyed before, Windows would activate
    // some other program's window instead.
    if (IsWindow(backdrop_) != FALSE && window_ != nullptr && GetActiveWindow() == window_) {
        SetActiveWindow(backdrop_);
    }
    DestroyDialogWindow();
    isModal_ = false;
    if (initFailure_ != nullptr) {
        std::rethrow_exception(std::exchange(initFailure_, nullptr));
    }
    return result_;
}

bool Dialog::CreateModeless() {
    isModal_ = false;
    hasEnded_ = false;
    CreateTemplateWindow(owner_);
    if (initFailure_ != nullptr) {
        DestroyDialogWindow();
        std::rethrow_exception(std::exchange(initFailure_, nullptr));
    }
    return window_ != nullptr;
}

void Dialog::DestroyDialogWindow() {
    if (window_ != nullptr) {
        DestroyWindow(window_);
    }
}

HWND Dialog::CreateTemplateWindow(HWND owner) {
    CreateDialogParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(templateId_), owner, &DialogProcedure,
                       reinterpret_cast<LPARAM>(this));
    return window_;
}

int Dialog::RunLoop() {
    if ((GetWindowLongPtrW(window_, GWL_STYLE) & WS_VISIBLE) == 0) {
        ShowWindow(window_, SW_SHOWNORMAL);
    }
    while (!hasEnded_) {
        MSG message = {};
        const BOOL got = GetMessageW(&message, nullptr, 0, 0);
        if (got <= 0) {
            EndModal(IDCANCEL);
            if (got == 0) {
                PostQuitMessage(static_cast<int>(message.wParam));
            }
            break;
        }
        if (!IsInputForDisabledWindow(message) && !IsUsedUpBeforeDispatch(message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    return result_;
}

bool Dialog::IsUsedUpBeforeDispatch(MSG& message) {
    try {
        return PreTranslateMessage(message);
    } catch (...) {
        ReportCurrentException();
    }
    return true;
}

void Dialog::EndModal(int result) {
    if (!isModal_ || hasEnded_) {
        return;
    }
    result_ = result;
    hasEnded_ = true;
    // The loop may be waiting inside GetMessage while a message of another thread is handled here. It is
    // woken through the thread, because what is posted to a window dies with it.
    PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0);
}

void Dialog::TakeData() {
    DataExchange exchange(window_, DataExchange::Direction::kFromControls);
    ExchangeFields(exchange);
}

void Dialog::PutData() {
    const FlagSetter filling(isFilling_);
    DataExchange exchange(window_, DataExchange::Direction::kToControls);
    ExchangeFields(exchange);
}

void Dialog::SetControlText(int controlId, const wchar_t* text) const {
    SetDlgItemTextW(window_, controlId, text);
}

void Dialog::EnableControl(int controlId, bool isEnabled) const {
    EnableWindow(Control(controlId), isEnabled ? TRUE : FALSE);
}

void Dialog::FocusControl(int controlId) const {
    SendMessageW(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(controlId)), TRUE);
}

INT_PTR CALLBACK Dialog::DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        auto* const created = reinterpret_cast<Dialog*>(lParam);
        SetWindowLongPtrW(window, DWLP_USER, lParam);
        return created->Begin(window) ? TRUE : FALSE;
    }
    auto* const dialog = reinterpret_cast<Dialog*>(GetWindowLongPtrW(window, DWLP_USER));
    if (dialog == nullptr) {
        return FALSE;
    }
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrW(window, DWLP_USER, 0);
        dialog->EndModal(IDCANCEL);
        dialog->window_ = nullptr;
        return FALSE;
    }
    return dialog->HandleGuarded(message, wParam, lParam);
}

bool Dialog::Begin(HWND window) {
    window_ = window;
    dotsPerInch_ = WindowDotsPerInch(window);
    TakeOverScaling(window);
    scale_.Remember(window, dotsPerInch_);
    if (isModal_ && IsWindowVisible(backdrop_) != FALSE && IsIconic(backdrop_) == FALSE) {
        CenterOver(window, backdrop_);
    }
    try {
        return OnInitDialog();
    } catch (...) {
        initFailure_ = std::current_exception();
        EndModal(IDCANCEL);
        // At once, before the dialog manager shows a window that is only half made.
        DestroyWindow(window);
        return false;
    }
}

bool Dialog::MaySessionEnd() {
    const wchar_t* const reason = UnsavedInputReason();
    if (reason == nullptr) {
        return true;
    }
    // Windows lists programs by their windows without owner, and shows the reason of those alone.
    BlockShutdown(GetAncestor(window_, GA_ROOTOWNER), reason);
    return false;
}

INT_PTR Dialog::HandleGuarded(UINT message, WPARAM wParam, LPARAM lParam) {
    try {
        return Handle(message, wParam, lParam);
    } catch (...) {
        if (message == WM_PAINT) {
            // Or it would be asked for again at once, while the report is shown and ever after.
            ValidateRect(window_, nullptr);
        }
        ReportCurrentException();
    }
    return TRUE;
}

void Dialog::ReportCurrentException() {
    try {
        throw;
    } catch (const std::exception& exception) {
        ReportException(exception);
    } catch (...) {
        ReportException(std::runtime_error("An unknown error occurred."));
    }
}

INT_PTR Dialog::Answer(LRESULT result) const {
    SetWindowLongPtrW(window_, DWLP_MSGRESULT, result);
    return TRUE;
}

INT_PTR Dialog::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    if (IsUserCommand(message, wParam, lParam) && IsWindowEnabled(window_) == FALSE) {
        // What the system makes of its own commands is its affair; a disabled window may be minimised.
        return message == WM_SYSCOMMAND ? FALSE : Answer(0);
    }
    switch (message) {
        case WM_COMMAND: {
            const bool isNotification = lParam != 0;
            if (isNotification && isFilling_) {
                return TRUE;
            }
            return OnCommand(LOWORD(wParam), HIWORD(wParam)) ? TRUE : FALSE;
        }
        case WM_NOTIFY: {
            LRESULT result = 0;
            return OnNotify(*reinterpret_cast<NMHDR*>(lParam), result) ? Answer(result) : FALSE;
        }
        case WM_SIZE:
            if (!isRescaling_) {
                OnSize(wParam, LOWORD(lParam), HIWORD(lParam));
            }
            return FALSE;
        case WM_GETMINMAXINFO:
            // On the way to another scale the limits of the old one do not hold.
            if (!isRescaling_) {
                OnMinimumMaximumInfo(*reinterpret_cast<MINMAXINFO*>(lParam));
            }
            return FALSE;
        case WM_SYSCOMMAND:
            return OnSystemCommand(wParam) ? TRUE : FALSE;
        case WM_PAINT:
            return OnPaint() ? TRUE : FALSE;
        case WM_QUERYDRAGICON:
            return reinterpret_cast<INT_PTR>(OnQueryDragIcon());
        case WM_QUERYENDSESSION:
            return Answer(MaySessionEnd() ? TRUE : FALSE);
        case WM_ENDSESSION:
            // Whether the session ends or the user has thought better of it.
            UnblockShutdown(GetAncestor(window_, GA_ROOTOWNER));
            return TRUE;
        case WM_DPICHANGED:
            Rescale(HIWORD(wParam), *reinterpret_cast<const RECT*>(lParam));
            return TRUE;
        default:
            return FALSE;
    }
}

void Dialog::Rescale(UINT dotsPerInch, const RECT& suggested) {
    if (dotsPerInch == 0 || dotsPerInch == dotsPerInch_) {
        return;
    }
    {
        const FlagSetter rescaling(isRescaling_);
        scale_.ShowAt(dotsPerInch);
        scale_.PlaceWindow(suggested);
        dotsPerInch_ = dotsPerInch;
    }
    OnScaleChanged();
    InvalidateRect(window_, nullptr, TRUE);
}

bool Dialog::OnInitDialog() {
    return true;
}

bool Dialog::OnCommand(int controlId, UINT notificationCode) {
    if (notificationCode != BN_CLICKED || (controlId != IDOK && controlId != IDCANCEL)) {
        return false;
    }
    if (controlId == IDOK) {
        OnOk();
    } else {
        OnCancel();
    }
    return true;
}

bool Dialog::OnNotify(NMHDR& /*header*/, LRESULT& /*result*/) {
    return false;
}

void Dialog::OnSize(WPARAM /*kind*/, int /*width*/, int /*height*/) {}

void Dialog::OnMinimumMaximumInfo(MINMAXINFO& /*info*/) {}

bool Dialog::OnSystemCommand(WPARAM /*command*/) {
    return false;
}

bool Dialog::OnPaint() {
    return false;
}

HICON Dialog::OnQueryDragIcon() {
    return nullptr;
}

const wchar_t* Dialog::UnsavedInputReason() {
    return nullptr;
}

void Dialog::BlockShutdown(HWND window, const wchar_t* reason) {
    ShutdownBlockReasonCreate(window, reason);
}

void Dialog::UnblockShutdown(HWND window) {
    ShutdownBlockReasonDestroy(window);
}

void Dialog::OnScaleChanged() {}

bool Dialog::PreTranslateMessage(MSG& message) {
    return window_ != nullptr && IsDialogMessageW(window_, &message) != FALSE;
}

void Dialog::ExchangeFields(DataExchange& /*exchange*/) {}

void Dialog::ReportException(const std::exception& exception) {
    const std::string what = exception.what();
    const std::wstring text(what.begin(), what.end());
    const ModalState others(window_);
    MessageBoxW(window_, text.c_str(), nullptr, MB_ICONERROR | MB_OK);
}

}  // namespace corvane::toolkit
