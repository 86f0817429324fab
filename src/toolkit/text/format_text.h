#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace corvane::toolkit {

/// One argument of FormatText: a text, or a number as the place in the format wants it.
class FormatArgument {
  public:
    // NOLINTBEGIN(google-explicit-constructor): arguments are written as they are.
    FormatArgument(std::wstring_view text) : text_(text) {}
    FormatArgument(const std::wstring& text) : text_(text) {}
    FormatArgument(const wchar_t* text) : text_(text) {}
    FormatArgument(std::int32_t number) : number_(number), isNumber_(true) {}
    FormatArgument(std::uint32_t number) : number_(number), isNumber_(true) {}
    FormatArgument(std::int64_t number) : number_(number), isNumber_(true) {}
    // NOLINTEND(google-explicit-constructor)

    /// Appends the argument the way the conversion letter says: s and d as they are, X as upper-case
    /// hexadecimal of its low 32 bits without leading zeros.
    void AppendTo(std::wstring& result, wchar_t conversion) const;

  private:
    std::wstring_view text_;
    std::int64_t number_ = 0;
    bool isNumber_ = false;
};

/// Formats a text with the conversions %s, %d, %lld and %X; %% is a percent sign. A place without an
/// argument stays as it stands, arguments without a place are ignored. The place says how a number is
/// written, the argument what it is, so no mismatch can read memory that is not its own; and unlike the
/// runtime's functions, the meaning of %s does not change from one compiler to the next.
[[nodiscard]] std::wstring FormatText(std::wstring_view format,
                                      std::initializer_list<FormatArgument> arguments);

/// What becomes of a number that does not fit 32 bits: the nearest that does, or what its low 32 bits say.
enum class Overflow { kNearest, kLowBits };

/// The usual decimal conversion of text to a number: leading white space and a sign allowed, ends at the
/// first character that is no digit, 0 where there is no number.
[[nodiscard]] std::int32_t ParseDecimal(std::string_view text, Overflow overflow = Overflow::kNearest);
/// The same for wide text.
[[nodiscard]] std::int32_t ParseDecimal(std::wstring_view text, Overflow overflow = Overflow::kNearest);

}  // namespace corvane::toolkit
