#include "toolkit/controls/kept_check_boxes.h"

#include <windowsx.h>

#include <utility>

namespace corvane::toolkit {

namespace {

constexpr UINT kMarks = LVIS_STATEIMAGEMASK;
constexpr UINT kCheckedState = INDEXTOSTATEIMAGEMASK(2U);
constexpr UINT kUncheckedState = INDEXTOSTATEIMAGEMASK(1U);

}  // namespace

KeptCheckBoxes::~KeptCheckBoxes() {
    if (list_ != nullptr) {
        RemoveWindowSubclass(list_, &Procedure, 0);
    }
}

void KeptCheckBoxes::Attach(HWND list) {
    list_ = list;
    MakeAnew();
}

void KeptCheckBoxes::MakeAnew() {
    // The control clears all marks with the new boxes, which is not to reach those that are kept.
    RemoveWindowSubclass(list_, &Procedure, 0);
    SendMessageW(list_, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_CHECKBOXES, 0);
    SendMessageW(list_, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
    SendMessageW(list_, LVM_SETCALLBACKMASK, kMarks, 0);
    SetWindowSubclass(list_, &Procedure, 0, reinterpret_cast<DWORD_PTR>(this));
}

void KeptCheckBoxes::AnswerDisplayRequest(LVITEMW& item) const {
    if ((item.mask & LVIF_STATE) != 0 && (item.stateMask & kMarks) != 0 && item.iItem >= 0) {
        item.state &= ~kMarks;
        item.state |= IsChecked(item.iItem) ? kCheckedState : kUncheckedState;
    }
}

LRESULT CALLBACK KeptCheckBoxes::Procedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam,
                                           UINT_PTR /*subclass*/, DWORD_PTR self) {
    auto* const boxes = reinterpret_cast<KeptCheckBoxes*>(self);
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(list, &Procedure, 0);
        boxes->list_ = nullptr;
        return DefSubclassProc(list, message, wParam, lParam);
    }
    return boxes->Handle(message, wParam, lParam);
}

LRESULT KeptCheckBoxes::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    const auto handOn = [&] { return DefSubclassProc(list_, message, wParam, lParam); };
    switch (message) {
        case LVM_GETITEMSTATE:
            return static_cast<LRESULT>(StateImage(static_cast<int>(wParam)) & static_cast<UINT>(lParam)) |
                   DefSubclassProc(list_, message, wParam, lParam & ~static_cast<LPARAM>(kMarks));
        case LVM_GETITEMA:
        case LVM_GETITEMW:
            return GetItem(message, wParam, *reinterpret_cast<LVITEMW*>(lParam));
        case LVM_SETITEMSTATE:
            return SetState(static_cast<int>(wParam), *reinterpret_cast<const LVITEMW*>(lParam));
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK: {
            const int row = RowOfBoxAt(lParam);
            if (row < 0) {
                return handOn();
            }
            SetFocus(list_);
            SetCapture(list_);
            pressedRow_ = row;
            return 0;
        }
        case WM_MOUSEMOVE:
            // Moved off the box, the press is a drag. Without the button it is not the mouse of this press.
            if (pressedRow_ >= 0 && (wParam & MK_LBUTTON) != 0 && RowOfBoxAt(lParam) != pressedRow_) {
                ReleaseCapture();
            }
            return handOn();
        case WM_LBUTTONUP: {
            const int row = std::exchange(pressedRow_, -1);
            if (row < 0) {
                return handOn();
            }
            ReleaseCapture();
            if (RowOfBoxAt(lParam) == row) {
                Put(row, !IsChecked(row));
            }
            return 0;
        }
        case WM_CAPTURECHANGED:
            pressedRow_ = -1;
            return handOn();
        case WM_KEYDOWN: {
            if (wParam != VK_SPACE) {
                return handOn();
            }
            // As they are now: the control may make the row with the focus the only selected one.
            const std::vector<std::size_t> rows = RowsOfTheSpaceBar();
            const bool wasChecked = !rows.empty() && marks_.isChecked(rows.front());
            const LRESULT result = handOn();
            if (!rows.empty() && HasRow(static_cast<int>(rows.front())) &&
                marks_.isChecked(rows.front()) == wasChecked) {
                for (const std::size_t row : rows) {
                    Put(static_cast<int>(row), !wasChecked);
                }
            }
            return result;
        }
        default:
            return handOn();
    }
}

int KeptCheckBoxes::RowCount() const {
    return static_cast<int>(SendMessageW(list_, LVM_GETITEMCOUNT, 0, 0));
}

int KeptCheckBoxes::RowOfBoxAt(LPARAM point) const {
    LVHITTESTINFO hit = {};
    hit.pt = {GET_X_LPARAM(point), GET_Y_LPARAM(point)};
    const int row = static_cast<int>(SendMessageW(list_, LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
    return (hit.flags & LVHT_ONITEM) == LVHT_ONITEMSTATEICON ? row : -1;
}

int KeptCheckBoxes::NextRow(int after, UINT flag) const {
    return static_cast<int>(
        SendMessageW(list_, LVM_GETNEXTITEM, static_cast<WPARAM>(after), MAKELPARAM(flag, 0)));
}

UINT KeptCheckBoxes::StateImage(int row) const {
    if (!HasRow(row)) {
        return 0;
    }
    return IsChecked(row) ? kCheckedState : kUncheckedState;
}

// The control itself keeps nothing but focus and selection, so nothing else is handed on.
LRESULT KeptCheckBoxes::SetState(int row, const LVITEMW& item) {
    LVITEMW rest = {};
    rest.state = item.state & ~kMarks;
    rest.stateMask = item.stateMask & ~kMarks;
    const auto handOnTheRest = [&] {
        return DefSubclassProc(list_, LVM_SETITEMSTATE, static_cast<WPARAM>(row),
                               reinterpret_cast<LPARAM>(&rest));
    };
    if (rest.stateMask == item.stateMask) {
        return handOnTheRest();
    }
    const bool isKnown = row == -1 || HasRow(row);
    Put(row, (item.state & kMarks) == kCheckedState);
    if (rest.stateMask != 0) {
        handOnTheRest();
    }
    return isKnown ? TRUE : FALSE;
}

LRESULT KeptCheckBoxes::GetItem(UINT message, WPARAM wParam, LVITEMW& item) const {
    const UINT wanted = (item.mask & LVIF_STATE) != 0 ? item.stateMask & kMarks : 0;
    item.stateMask &= ~wanted;
    const LRESULT result = DefSubclassProc(list_, message, wParam, reinterpret_cast<LPARAM>(&item));
    item.stateMask |= wanted;
    if (result != FALSE && wanted != 0) {
        item.state = (item.state & ~kMarks) | (StateImage(item.iItem) & wanted);
    }
    return result;
}

void KeptCheckBoxes::Put(int row, bool isChecked) {
    if (row == -1) {
        for (int each = 0, count = RowCount(); each < count; ++each) {
            Put(each, isChecked);
        }
    } else if (HasRow(row) && IsChecked(row) != isChecked) {
        marks_.check(static_cast<std::size_t>(row), isChecked);
        SendMessageW(list_, LVM_REDRAWITEMS, static_cast<WPARAM>(row), row);
        // Screen readers tell the new state.
        NotifyWinEvent(EVENT_OBJECT_STATECHANGE, list_, OBJID_CLIENT, row + 1);
    }
}

// The row with the focus, and where it is selected all others that are: they get the mark that it gets.
std::vector<std::size_t> KeptCheckBoxes::RowsOfTheSpaceBar() const {
    std::vector<std::size_t> rows;
    const int focused = NextRow(-1, LVNI_FOCUSED);
    if (focused < 0) {
        return rows;
    }
    rows.push_back(static_cast<std::size_t>(focused));
    const LRESULT state = SendMessageW(list_, LVM_GETITEMSTATE, static_cast<WPARAM>(focused), LVIS_SELECTED);
    if ((state & LVIS_SELECTED) != 0) {
        for (int row = NextRow(-1, LVNI_SELECTED); row >= 0; row = NextRow(row, LVNI_SELECTED)) {
            rows.push_back(static_cast<std::size_t>(row));
        }
    }
    return rows;
}

}  // namespace corvane::toolkit
