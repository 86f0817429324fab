#pragma once

#include <windows.h>

#include <exception>
#include <string>
#include <utility>

#include "toolkit/dialog/data_exchange.h"
#include "toolkit/dialog/template_scale.h"

namespace corvane::toolkit {

/// Base class of every dialog, modal or modeless, on a template of this program's resources.
///
/// The dialog object has an owner in the code that uses it and lives longer than its window. A modal dialog
/// runs on a message loop of this class, not on the system's, so that every message passes
/// PreTranslateMessage first; that is how tooltips and keys reach whoever wants them before the dialog
/// manager does.
///
/// While its window is disabled, a dialog carries out no command, however it was sent (IsUserCommand).
///
/// Nothing thrown leaves a window procedure: what OnInitDialog throws comes out of RunModal; what a later
/// handler throws is told to the user by ReportException, and the dialog goes on with what it holds.
class Dialog {
  public:
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;
    Dialog(Dialog&&) = delete;
    Dialog& operator=(Dialog&&) = delete;
    virtual ~Dialog();

    /// Shows the dialog in the middle of its owner, or of the window in use where it has none, and returns
    /// when it has ended, with the value it was ended with. All other windows of the thread are disabled
    /// meanwhile, and enabled again before the dialog's window dies; then the owner, or the window that was
    /// in use, is active again. WM_QUIT ends the dialog like Cancel and is handed on. Returns -1 when the
    /// window could not be made.
    int RunModal();

    /// Creates the dialog's window without waiting for its end; it is visible as its template says.
    /// False when the window could not be made.
    bool CreateModeless();

    /// Destroys the window of a modeless dialog; nothing when it has none.
    void DestroyDialogWindow();

    /// The dialog's window, null while it has none.
    [[nodiscard]] HWND Window() const { return window_; }

  protected:
    Dialog(int templateId, HWND owner) : templateId_(templateId), owner_(owner) {}

    // Hooks.

    /// Called once, before the dialog is shown. True lets the dialog manager choose the first focus.
    virtual bool OnInitDialog();
    /// A command of a control (with its notification code) or of a menu (code 0). True when handled; the
    /// base class handles OK and Cancel.
    virtual bool OnCommand(int controlId, UINT notificationCode);
    /// A notification of a common control. True when handled, `result` is then the answer.
    virtual bool OnNotify(NMHDR& header, LRESULT& result);
    virtual void OnOk() { EndModal(IDOK); }
    virtual void OnCancel() { EndModal(IDCANCEL); }
    /// The client area has a new size in pixels; `kind` is WM_SIZE's.
    virtual void OnSize(WPARAM kind, int width, int height);
    /// Limits of the size, before the user changes it.
    virtual void OnMinimumMaximumInfo(MINMAXINFO& info);
    /// A command of the system menu. True when handled.
    virtual bool OnSystemCommand(WPARAM command);
    /// Paints the client area. True when it did.
    virtual bool OnPaint();
    /// The icon to drag while minimised; null for the class's.
    virtual HICON OnQueryDragIcon();
    /// Windows wants to end. Returns the reason against it, which the user is told, or null when nothing
    /// would be lost with this window. Each window is asked for itself, one that is disabled, too.
    virtual const wchar_t* UnsavedInputReason();
    /// Windows is to name `reason` to its user beside `window`, the one that stands for the program
    /// (ShutdownBlockReasonCreate).
    virtual void BlockShutdown(HWND window, const wchar_t* reason);
    /// The reason holds no longer (ShutdownBlockReasonDestroy).
    virtual void UnblockShutdown(HWND window);
    /// The dialog has come to a screen of another scale. Every control is where the template has it at that
    /// scale; what follows the size of the window, or else depends on pixels, is to be arranged again.
    virtual void OnScaleChanged();
    /// A message before it is dispatched. True when it was used up. The base class gives the dialog its
    /// keyboard interface.
    virtual bool PreTranslateMessage(MSG& message);
    /// Names each control that stands for a field, once, for both directions.
    virtual void ExchangeFields(DataExchange& exchange);
    /// Tells the user of an exception that a handler threw.
    virtual void ReportException(const std::exception& exception);

    // Calls for derived classes.

    /// Ends a modal run with the given result.
    void EndModal(int result);
    [[nodiscard]] bool HasEnded() const { return hasEnded_; }
    /// Copies the controls into the fields.
    void TakeData();
    /// Copies the fields into the controls. The commands that the controls send meanwhile reach no handler;
    /// what common controls ask through OnNotify is still answered.
    void PutData();
    /// What TakeData would give to `fields`, one or all of those that ExchangeFields copies; they keep what
    /// they hold.
    template <typename Fields>
    [[nodiscard]] Fields FieldsAsShown(Fields& fields) {
        Fields kept = fields;
        TakeData();
        return std::exchange(fields, std::move(kept));
    }
    [[nodiscard]] HWND Control(int controlId) const { return GetDlgItem(window_, controlId); }
    void SetControlText(int controlId, const wchar_t* text) const;
    void EnableControl(int controlId, bool isEnabled) const;
    /// Moves the focus to a control as the Tab key would: the text of a field is selected, and the default
    /// button is the one with the focus or else the dialog's own.
    void FocusControl(int controlId) const;
    /// The window's scale in dots per inch.
    [[nodiscard]] UINT DotsPerInch() const { return dotsPerInch_; }
    /// The client area of the template at the window's scale, in pixels.
    [[nodiscard]] SIZE TemplateClientSize() const { return scale_.ClientSize(); }

  private:
    static INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR HandleGuarded(UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR Answer(LRESULT result) const;
    bool Begin(HWND window);
    bool MaySessionEnd();
    bool IsUsedUpBeforeDispatch(MSG& message);
    void ReportCurrentException();
    void Rescale(UINT dotsPerInch, const RECT& suggested);
    HWND CreateTemplateWindow(HWND owner);
    int RunLoop();

    int templateId_;
    HWND owner_;
    HWND backdrop_ = nullptr;  ///< The window that a modal run goes on over; null for none.
    HWND window_ = nullptr;
    UINT dotsPerInch_ = USER_DEFAULT_SCREEN_DPI;
    TemplateScale scale_;
    int result_ = -1;
    bool isModal_ = false;
    bool hasEnded_ = false;
    bool isFilling_ = false;
    bool isRescaling_ = false;
    std::exception_ptr initFailure_;
};

}  // namespace corvane::toolkit
