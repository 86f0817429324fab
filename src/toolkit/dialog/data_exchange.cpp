#include "toolkit/dialog/data_exchange.h"

#include "toolkit/text/format_text.h"

namespace corvane::toolkit {

void DataExchange::Text(int controlId, std::wstring& field) const {
    const HWND control = GetDlgItem(dialog_, controlId);
    if (control == nullptr) {
        return;
    }
    if (direction_ == Direction::kFromControls) {
        field = WindowText(control);
    } else if (WindowText(control) != field) {
        SetWindowTextW(control, field.c_str());
    }
}

void DataExchange::Number(int controlId, std::int32_t& field) const {
    std::wstring text = std::to_wstring(field);
    Text(controlId, text);
    if (direction_ == Direction::kFromControls) {
        field = ParseDecimal(std::wstring_view(text));
    }
}

void DataExchange::Choice(int controlId, int& field) const {
    Position(controlId, CB_GETCURSEL, CB_SETCURSEL, field);
}

void DataExchange::Selection(int controlId, int& field) const {
    Position(controlId, LB_GETCURSEL, LB_SETCURSEL, field);
}

void DataExchange::Position(int controlId, UINT getMessage, UINT setMessage, int& field) const {
    const HWND control = GetDlgItem(dialog_, controlId);
    if (control == nullptr) {
        return;
    }
    if (direction_ == Direction::kFromControls) {
        field = static_cast<int>(SendMessageW(control, getMessage, 0, 0));
    } else {
        SendMessageW(control, setMessage, static_cast<WPARAM>(field), 0);
    }
}

void DataExchange::Check(int controlId, std::int32_t& field) const {
    const HWND control = GetDlgItem(dialog_, controlId);
    if (control == nullptr) {
        return;
    }
    if (direction_ == Direction::kFromControls) {
        field = SendMessageW(control, BM_GETCHECK, 0, 0) == BST_CHECKED ? 1 : 0;
    } else {
        SendMessageW(control, BM_SETCHECK, field != 0 ? BST_CHECKED : BST_UNCHECKED, 0);
    }
}

}  // namespace corvane::toolkit
