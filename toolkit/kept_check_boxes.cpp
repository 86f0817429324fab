#include "toolkit/kept_check_boxes.h"

#include <windowsx.h>

namespace toolkit {

namespace {

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
    SendMessageW(list, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
    SendMessageW(list, LVM_SETCALLBACKMASK, LVIS_STATEIMAGEMASK, 0);
    SetWindowSubclass(list, &Procedure, 0, reinterpret_cast<DWORD_PTR>(this));
}

void KeptCheckBoxes::AnswerDisplayRequest(LVITEMW& item) const {
    if ((item.mask & LVIF_STATE) != 0 && (item.stateMask & LVIS_STATEIMAGEMASK) != 0 && item.iItem >= 0) {
        item.state &= ~static_cast<UINT>(LVIS_STATEIMAGEMASK);
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
        case LVM_SETITEMSTATE: {
            const int row = static_cast<int>(wParam);
            const auto& item = *reinterpret_cast<const LVITEMW*>(lParam);
            if ((item.stateMask & LVIS_STATEIMAGEMASK) == 0) {
                return handOn();
            }
            const bool isKnown = row == -1 || HasRow(row);
            Put(row, (item.state & LVIS_STATEIMAGEMASK) == kCheckedState);
            handOn();
            return isKnown ? TRUE : FALSE;
        }
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK: {
            const int row = RowOfBoxAt(lParam);
            const bool wasChecked = row >= 0 && IsChecked(row);
            const LRESULT result = handOn();
            // A control that sets the mark by its own message has done so by now.
            if (HasRow(row) && IsChecked(row) == wasChecked) {
                Put(row, !wasChecked);
            }
            return result;
        }
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

}  // namespace toolkit
