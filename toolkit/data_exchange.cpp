#include "toolkit/data_exchange.h"

#include "toolkit/format_text.h"
#include "toolkit/window_text.h"

namespace toolkit {

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
    std::wstring text = DecimalText(field);
    Text(controlId, text);
    if (direction_ == Direction::kFromControls) {
        field = ParseDecimal(std::wstring_view(text));
    }
}

}  // namespace toolkit
