#pragma once

#include "toolkit/system_text.h"

namespace toolkit {

/// The text services of Windows. A text that is longer than the system's functions can count is refused with
/// std::length_error; nothing is ever cut.
class WindowsSystemText : public SystemText {
  public:
    [[nodiscard]] std::string Narrow(std::wstring_view text) const override;
    [[nodiscard]] std::wstring Widen(std::string_view text) const override;
    [[nodiscard]] std::wstring UpperCase(std::wstring_view text) const override;
    [[nodiscard]] std::wstring LowerCase(std::wstring_view text) const override;
};

}  // namespace toolkit
