#include "tests/kit/driver/message_box.h"

#include <algorithm>

#include "tests/kit/driver/failure.h"
#include "tests/kit/driver/icon.h"

namespace corvane::test {
namespace {

std::wstring WithoutAccelerator(std::wstring caption) {
    caption.erase(std::remove(caption.begin(), caption.end(), L'&'), caption.end());
    return caption;
}

bool IsIconStatic(const Window& control) {
    return control.IsOfClass(L"Static") && (control.Style() & SS_TYPEMASK) == SS_ICON;
}

bool IsTextStatic(const Window& control) {
    return control.IsOfClass(L"Static") && (control.Style() & SS_TYPEMASK) != SS_ICON;
}

}  // namespace

MessageBoxView MessageBoxOfStyle(const std::wstring& text, const std::wstring& title, unsigned style) {
    MessageBoxView view;
    view.text = text;
    view.title = title;
    switch (style & MB_TYPEMASK) {
        case MB_OKCANCEL:
            view.buttons = {IDOK, IDCANCEL};
            break;
        case MB_YESNO:
            view.buttons = {IDYES, IDNO};
            break;
        default:
            view.buttons = {IDOK};
            break;
    }
    switch (style & MB_ICONMASK) {
        case MB_ICONERROR:
            view.systemIcon = 32513;
            break;
        case MB_ICONQUESTION:
            view.systemIcon = 32514;
            break;
        case MB_ICONWARNING:
            view.systemIcon = 32515;
            break;
        case MB_ICONINFORMATION:
            view.systemIcon = 32516;
            break;
        default:
            break;
    }
    view.defaultButton = view.buttons[(style & MB_DEFMASK) >> 8];
    return view;
}

void PrintTo(const MessageBoxView& view, std::ostream* stream) {
    std::wstring words = L"a message box titled \"" + view.title + L"\" saying \"" + view.text +
                         L"\" with icon " + std::to_wstring(view.systemIcon) + L", the buttons";
    for (const int button : view.buttons) {
        words += L" " + std::to_wstring(button);
    }
    words += L" and button " + std::to_wstring(view.defaultButton) + L" preselected";
    *stream << Utf8(words);
}

bool MessageBoxWindow::Is(const Window& window) {
    if (!window.IsOfClass(L"#32770")) {
        return false;
    }
    int texts = 0;
    int buttons = 0;
    for (const Window& control : window.Children()) {
        if (IsTextStatic(control)) {
            ++texts;
        } else if (control.IsOfClass(L"Button")) {
            ++buttons;
        } else if (!IsIconStatic(control)) {
            return false;
        }
    }
    return texts == 1 && buttons > 0;
}

MessageBoxView MessageBoxWindow::View() const {
    MessageBoxView view;
    view.title = Text();
    std::vector<Window> buttons;
    for (const Window& control : Children()) {
        if (!control.IsVisible()) {
            continue;
        }
        if (control.IsOfClass(L"Button")) {
            buttons.push_back(control);
        } else if (IsIconStatic(control)) {
            view.systemIcon = IconOf(control, IconPlace::kStatic).systemIcon;
        } else if (IsTextStatic(control)) {
            view.text = control.Text();
        }
    }
    std::sort(buttons.begin(), buttons.end(), [](const Window& first, const Window& second) {
        return first.Bounds().left < second.Bounds().left;
    });
    for (const Window& button : buttons) {
        // A box with OK alone may give its button the number of Cancel, so that Escape answers it.
        const bool isLoneOk = buttons.size() == 1 && WithoutAccelerator(button.Text()) == L"OK";
        view.buttons.push_back(isLoneOk ? IDOK : button.Id());
    }
    // Not by DM_GETDEFID: Wine's boxes mark the button, but name OK whatever they have.
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        if ((buttons[i].Style() & BS_TYPEMASK) == BS_DEFPUSHBUTTON) {
            view.defaultButton = view.buttons[i];
        }
    }
    return view;
}

void MessageBoxWindow::Answer(int code) const {
    for (const Window& control : Children()) {
        if (control.IsVisible() && control.IsOfClass(L"Button") &&
            (control.Id() == code || (code == IDOK && control.Id() == IDCANCEL && !HasControl(IDOK)))) {
            control.PostClick();
            WaitUntilGone();
            return;
        }
    }
    throw Failure(L"A button for the answer " + std::to_wstring(code) + L" was expected in " + Name() + L".");
}

void MessageBoxWindow::Dismiss() const {
    Post(WM_SYSCOMMAND, SC_CLOSE);
    WaitUntilGone();
}

}  // namespace corvane::test
