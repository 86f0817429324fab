#include "tests/kit/audit/dialog_audit.h"

#include <commctrl.h>
#include <oleacc.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>
#include <type_traits>

#include "res/ids.h"
#include "tests/kit/audit/picture.h"
#include "tests/kit/driver/accessible.h"
#include "tests/kit/driver/icon.h"
#include "tests/kit/driver/list_view.h"
#include "tests/kit/driver/message_box.h"
#include "tests/kit/driver/probe.h"

namespace corvane::test {
namespace {

enum class Kind {
    kLabel,
    kPicture,
    kPushButton,
    kIconButton,
    kCheckBox,
    kGroupBox,
    kEdit,
    kList,
    kListBox,
    kOther
};

Kind KindOf(const Window& control) {
    const DWORD style = control.Style();
    if (control.IsOfClass(L"Static")) {
        const DWORD type = style & SS_TYPEMASK;
        return type == SS_ICON || type == SS_BITMAP ? Kind::kPicture : Kind::kLabel;
    }
    if (control.IsOfClass(L"Button")) {
        const DWORD type = style & BS_TYPEMASK;
        if (type == BS_GROUPBOX) {
            return Kind::kGroupBox;
        }
        if (type == BS_AUTOCHECKBOX || type == BS_CHECKBOX) {
            return Kind::kCheckBox;
        }
        return (style & (BS_ICON | BS_BITMAP)) != 0 ? Kind::kIconButton : Kind::kPushButton;
    }
    if (control.IsOfClass(L"Edit")) {
        return Kind::kEdit;
    }
    if (control.IsOfClass(WC_LISTBOXW)) {
        return Kind::kListBox;
    }
    return control.IsOfClass(WC_LISTVIEWW) ? Kind::kList : Kind::kOther;
}

std::vector<Window> VisibleControls(const Window& dialog) {
    std::vector<Window> controls = dialog.Children();
    controls.erase(std::remove_if(controls.begin(), controls.end(),
                                  [](const Window& control) { return !control.IsVisible(); }),
                   controls.end());
    return controls;
}

struct FontDeleter {
    void operator()(HFONT font) const { DeleteObject(font); }
};
using UniqueFont = std::unique_ptr<std::remove_pointer_t<HFONT>, FontDeleter>;

UniqueFont FontOf(const Window& control) {
    ProbeRequest question{};
    question.question = ProbeQuestion::kFont;
    const ProbeRequest answer = Probe(control, question);
    return UniqueFont(CreateFontIndirectW(&answer.font));
}

/// The room that a text takes in a font, broken into lines of `width` pixels where it may be broken.
SIZE RoomFor(const std::wstring& text, HFONT font, std::optional<int> width, bool hasPrefix) {
    const HDC screen = GetDC(nullptr);
    const HGDIOBJ before = SelectObject(screen, font);
    RECT room = {0, 0, width.value_or(0), 0};
    UINT format = DT_CALCRECT | (width ? DT_WORDBREAK : DT_SINGLELINE) | (hasPrefix ? 0U : DT_NOPREFIX);
    // The empty text takes a line too.
    const std::wstring shown = text.empty() ? L" " : text;
    DrawTextW(screen, shown.c_str(), static_cast<int>(shown.size()), &room, format);
    SelectObject(screen, before);
    ReleaseDC(nullptr, screen);
    return {room.right, room.bottom};
}

std::wstring Pixels(SIZE size) {
    return std::to_wstring(size.cx) + L" by " + std::to_wstring(size.cy);
}

void AddIfTooSmall(const Window& control, SIZE needed, SIZE given, Faults& faults) {
    if (needed.cx > given.cx || needed.cy > given.cy) {
        faults.push_back(control.Name() + L" needs " + Pixels(needed) + L" pixels for its text and has " +
                         Pixels(given) + L".");
    }
}

void CheckHeadings(const Window& control, Faults& faults) {
    const ListView list(control);
    const UniqueFont font = FontOf(Window(reinterpret_cast<HWND>(control.Send(LVM_GETHEADER))));
    const std::vector<std::wstring> headings = list.Headings();
    for (std::size_t column = 0; column < headings.size(); ++column) {
        const SIZE needed = RoomFor(headings[column], font.get(), std::nullopt, false);
        const int given = list.ColumnWidth(static_cast<int>(column));
        if (!headings[column].empty() && needed.cx > given) {
            faults.push_back(L"The heading \"" + headings[column] + L"\" of " + control.Name() + L" needs " +
                             std::to_wstring(needed.cx) + L" pixels and has " + std::to_wstring(given) +
                             L".");
        }
    }
}

void CheckCaptionBar(const Window& dialog, Faults& faults) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    const UniqueFont font(CreateFontIndirectW(&metrics.lfCaptionFont));
    const SIZE needed = RoomFor(dialog.Text(), font.get(), std::nullopt, false);
    const RECT bounds = dialog.Bounds();
    const int boxes = (dialog.Style() & WS_MINIMIZEBOX) != 0 ? 4 : 2;
    const LONG given = bounds.right - bounds.left - boxes * GetSystemMetrics(SM_CXSIZE);
    if (needed.cx > given) {
        faults.push_back(L"The caption of " + dialog.Name() + L" needs " + std::to_wstring(needed.cx) +
                         L" pixels and has " + std::to_wstring(given) + L".");
    }
}

// Pixels at 96 dots per inch: a check box with its gap, and how far the title of a group stands in.
constexpr int kCheckBoxWidth = 17;
constexpr int kGroupTitleIndent = 9;

/// A group box is drawn around its members.
bool IsGroupAround(const Window& group, const RECT& inner) {
    const RECT outer = group.Bounds();
    return KindOf(group) == Kind::kGroupBox && outer.left < inner.left && outer.top < inner.top &&
           outer.right > inner.right && outer.bottom > inner.bottom;
}

/// An up-down control sits on the end of its field.
bool IsUpDownOf(const Window& upDown, const Window& field) {
    return upDown.IsOfClass(UPDOWN_CLASSW) &&
           reinterpret_cast<HWND>(upDown.Send(UDM_GETBUDDY)) == field.Handle();
}

bool IsReadOnly(const Window& edit) {
    return (edit.Style() & ES_READONLY) != 0;
}

bool IsDefault(const Window& button) {
    return (button.Style() & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
}

void CheckColour(const std::wstring& place, POINT point, int expected, Faults& faults) {
    const COLORREF colour = ScreenColour(point);
    if (colour != GetSysColor(expected)) {
        faults.push_back(place + L" is painted in colour " + std::to_wstring(colour) +
                         L" instead of the system's " + std::to_wstring(GetSysColor(expected)) + L".");
    }
}

/// As a screen reader says a text: without the mark of its access key.
std::wstring Spoken(std::wstring text) {
    std::erase(text, L'&');
    return text;
}

/// The states that can be seen from outside in another way too.
LONG VisibleState(const Window& control) {
    LONG state = control.IsEnabled() ? 0 : STATE_SYSTEM_UNAVAILABLE;
    if (KindOf(control) == Kind::kEdit && IsReadOnly(control)) {
        state |= STATE_SYSTEM_READONLY;
    }
    return control.HasFocus() ? state | STATE_SYSTEM_FOCUSED : state;
}

/// A point of the upper left corner, where no control lies and the dialog shows its own background.
POINT BackgroundPoint(const Window& dialog) {
    const RECT client = dialog.ClientBounds();
    return {client.left + 2, client.top + 2};
}

}  // namespace

Faults CutOffTexts(const Window& dialog) {
    Faults faults;
    // How wide a message box is, the system decides.
    if (!MessageBoxWindow::Is(dialog) || dialog.HasControl(IDC_ERROR_BOX_TEXT)) {
        CheckCaptionBar(dialog, faults);
    }
    for (const Window& control : VisibleControls(dialog)) {
        const Kind kind = KindOf(control);
        if (kind == Kind::kList) {
            CheckHeadings(control, faults);
        }
        if (kind != Kind::kLabel && kind != Kind::kPushButton && kind != Kind::kCheckBox &&
            kind != Kind::kGroupBox && kind != Kind::kEdit) {
            continue;
        }
        const UniqueFont font = FontOf(control);
        const DWORD style = control.Style();
        SIZE given = control.ClientSize();
        std::optional<int> width;
        bool hasPrefix = true;
        if (kind == Kind::kLabel) {
            hasPrefix = (style & SS_NOPREFIX) == 0;
            width = static_cast<int>(given.cx);
        } else if (kind == Kind::kPushButton) {
            given.cx -= 2 * GetSystemMetrics(SM_CXEDGE);
            given.cy -= 2 * GetSystemMetrics(SM_CYEDGE);
            if ((style & BS_MULTILINE) != 0) {
                width = static_cast<int>(given.cx);
            }
        } else if (kind == Kind::kCheckBox) {
            given.cx -= MulDiv(kCheckBoxWidth, ScreenDpi(), 96);
        } else if (kind == Kind::kGroupBox) {
            given.cx -= MulDiv(2 * kGroupTitleIndent, ScreenDpi(), 96);
        } else {
            hasPrefix = false;
            if ((style & ES_MULTILINE) != 0) {
                continue;  // It scrolls.
            }
        }
        SIZE needed = RoomFor(control.Text(), font.get(), width, hasPrefix);
        if (kind == Kind::kEdit && !IsReadOnly(control)) {
            needed.cx = 0;  // What the user writes may be longer; the field follows the caret.
        }
        AddIfTooSmall(control, needed, given, faults);
    }
    return faults;
}

Faults MisplacedControls(const Window& dialog) {
    Faults faults;
    const std::vector<Window> controls = VisibleControls(dialog);
    const RECT client = dialog.ClientBounds();
    for (auto first = controls.begin(); first != controls.end(); ++first) {
        const RECT bounds = first->Bounds();
        if (bounds.left < client.left || bounds.top < client.top || bounds.right > client.right ||
            bounds.bottom > client.bottom) {
            faults.push_back(first->Name() + L" reaches out of the client area.");
        }
        for (auto second = std::next(first); second != controls.end(); ++second) {
            const RECT other = second->Bounds();
            RECT common{};
            if (IntersectRect(&common, &bounds, &other) && !IsGroupAround(*first, other) &&
                !IsGroupAround(*second, bounds) && !IsUpDownOf(*second, *first)) {
                faults.push_back(first->Name() + L" and " + second->Name() + L" overlap.");
            }
        }
    }
    return faults;
}

Faults NamelessControls(const Window& dialog) {
    Faults faults;
    std::optional<Window> before;
    for (const Window& control : dialog.Children()) {
        const Kind kind = KindOf(control);
        const bool hasText = !control.Text().empty();
        // A hidden label names its field too, where what is seen before the field is something else.
        if (!control.IsVisible() && (kind != Kind::kLabel || !hasText)) {
            continue;
        }
        const bool hasLabel = before && KindOf(*before) == Kind::kLabel && !before->Text().empty();
        switch (kind) {
            case Kind::kPushButton:
            case Kind::kIconButton:
            case Kind::kCheckBox:
            case Kind::kGroupBox:
                if (!hasText) {
                    faults.push_back(control.Name() + L" has no text.");
                }
                break;
            case Kind::kList:
                if (!hasText && !hasLabel) {
                    faults.push_back(control.Name() + L" has neither a text nor a label.");
                }
                break;
            case Kind::kListBox:
                if (!hasLabel) {
                    faults.push_back(control.Name() + L" has no label right before it.");
                }
                break;
            case Kind::kEdit:
                // A field that cannot be written in is a text itself.
                if (!IsReadOnly(control) && !hasLabel) {
                    faults.push_back(control.Name() + L" has no label right before it.");
                }
                break;
            default:
                break;
        }
        before = control;
    }
    return faults;
}

Faults MisreadControls(const Window& dialog) {
    constexpr LONG kLookedAt = STATE_SYSTEM_UNAVAILABLE | STATE_SYSTEM_READONLY | STATE_SYSTEM_FOCUSED;
    Faults faults;
    std::wstring label;
    for (const Window& control : dialog.Children()) {
        const Kind kind = KindOf(control);
        if (kind == Kind::kLabel) {
            label = control.Text();
        }
        const bool isField = kind == Kind::kEdit && !IsReadOnly(control);
        const bool hasOwnName = kind == Kind::kPushButton || kind == Kind::kIconButton ||
                                kind == Kind::kCheckBox || kind == Kind::kGroupBox || kind == Kind::kList;
        if (!control.IsVisible() || (!isField && !hasOwnName)) {
            continue;
        }
        const AccessibleView heard = AccessibleOf(control);
        const std::wstring name = Spoken(isField ? label : control.Text());
        if (heard.name != name) {
            faults.push_back(control.Name() + L" is read out as \"" + heard.name + L"\" instead of \"" +
                             name + L"\".");
        }
        if ((heard.state & kLookedAt) != VisibleState(control)) {
            faults.push_back(control.Name() + L" is described by the states " + std::to_wstring(heard.state) +
                             L" instead of " + std::to_wstring(VisibleState(control)) + L".");
        }
    }
    return faults;
}

Faults UnreadableTabOrder(const Window& dialog) {
    Faults faults;
    std::optional<Window> before;
    for (const Window& control : VisibleControls(dialog)) {
        if ((control.Style() & WS_TABSTOP) == 0) {
            continue;
        }
        if (before) {
            const RECT from = before->Bounds();
            const RECT to = control.Bounds();
            const bool isSameRow = to.top < from.bottom && from.top < to.bottom;
            const bool isToTheRight = to.left >= from.right;
            const bool isBelow = to.top >= from.bottom;
            if (!isToTheRight && (isSameRow || !isBelow)) {
                faults.push_back(L"The Tab key goes from " + before->Name() + L" back to " + control.Name() +
                                 L".");
            }
        }
        before = control;
    }
    return faults;
}

Faults DefaultButtonFaults(const Window& dialog) {
    std::vector<Window> buttons = VisibleControls(dialog);
    buttons.erase(std::remove_if(buttons.begin(), buttons.end(),
                                 [](const Window& control) {
                                     return !control.IsOfClass(L"Button") || !IsDefault(control);
                                 }),
                  buttons.end());
    if (buttons.size() != 1) {
        return {dialog.Name() + L" has " + std::to_wstring(buttons.size()) + L" default buttons."};
    }
    // Wine's message boxes mark the right button, but name OK whatever they have.
    const LRESULT named = dialog.Send(DM_GETDEFID);
    if (!MessageBoxWindow::Is(dialog) && LOWORD(named) != buttons.front().Id()) {
        return {dialog.Name() + L" marks " + buttons.front().Name() + L" and names " +
                std::to_wstring(LOWORD(named)) + L" as its default button."};
    }
    return {};
}

Faults ForeignColours(const Window& dialog) {
    Faults faults;
    CheckColour(L"The background of " + dialog.Name(), BackgroundPoint(dialog), COLOR_BTNFACE, faults);
    for (const Window& control : VisibleControls(dialog)) {
        const RECT client = control.ClientBounds();
        const POINT corner = {client.right - 2, client.bottom - 2};
        if (KindOf(control) == Kind::kEdit) {
            const bool isWritable = control.IsEnabled() && !IsReadOnly(control);
            CheckColour(control.Name(), corner, isWritable ? COLOR_WINDOW : COLOR_BTNFACE, faults);
        } else if (KindOf(control) == Kind::kLabel) {
            CheckColour(control.Name(), corner, COLOR_BTNFACE, faults);
        } else if (KindOf(control) == Kind::kList && control.IsEnabled()) {
            CheckColour(control.Name(), corner, COLOR_WINDOW, faults);
        }
    }
    return faults;
}

Faults WrongIconSizes(const Window& dialog) {
    Faults faults;
    const auto check = [&faults](const Window& window, IconPlace place, int wanted) {
        const IconView icon = IconOf(window, place);
        if (icon.isThere && (icon.width != wanted || icon.height != wanted)) {
            faults.push_back(L"The icon of " + window.Name() + L" is " + std::to_wstring(icon.width) +
                             L" by " + std::to_wstring(icon.height) + L" pixels instead of " +
                             std::to_wstring(wanted) + L".");
        }
    };
    const int large = MulDiv(32, ScreenDpi(), 96);
    const int small = MulDiv(16, ScreenDpi(), 96);
    check(dialog, IconPlace::kLargeWindowIcon, large);
    check(dialog, IconPlace::kSmallWindowIcon, small);
    for (const Window& control : VisibleControls(dialog)) {
        if (KindOf(control) == Kind::kIconButton) {
            check(control, IconPlace::kButton, large);
        }
    }
    return faults;
}

Faults AllFaults(const Window& dialog) {
    if (!IsPictureScale()) {
        // What the other checks look at is the same at every scale; whether a text fits is not.
        return CutOffTexts(dialog);
    }
    Faults all;
    for (const auto& check : {CutOffTexts, MisplacedControls, NamelessControls, MisreadControls,
                              UnreadableTabOrder, DefaultButtonFaults, ForeignColours, WrongIconSizes}) {
        const Faults faults = check(dialog);
        all.insert(all.end(), faults.begin(), faults.end());
    }
    return all;
}

}  // namespace corvane::test
