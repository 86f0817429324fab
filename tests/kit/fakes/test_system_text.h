#pragma once

#include <string>
#include <string_view>

#include "toolkit/text/system_text.h"

namespace corvane::test {

/// The ANSI code pages that the tests stand on, named by their number.
enum class CodePage { kShiftJis = 932, kCyrillic = 1251, kLatin = 1252, kUtf8 = 65001 };

/// The system's text services with a code page of the test's choice, whatever the machine's own is.
///
/// A character that the code page lacks becomes "?", one for each code unit (in UTF-8 a surrogate that
/// stands alone becomes the replacement character). A byte without a meaning becomes the control character
/// of its number, as Windows has it (in UTF-8 the replacement character).
class TestSystemText : public toolkit::SystemText {
  public:
    explicit TestSystemText(CodePage codePage) : codePage_(codePage) {}

    [[nodiscard]] std::string Narrow(std::wstring_view text) const override;
    [[nodiscard]] std::wstring Widen(std::string_view text) const override;
    [[nodiscard]] std::wstring UpperCase(std::wstring_view text) const override;
    [[nodiscard]] std::wstring LowerCase(std::wstring_view text) const override;

  private:
    CodePage codePage_;
};

}  // namespace corvane::test
