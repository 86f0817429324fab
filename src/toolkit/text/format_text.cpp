#include "toolkit/text/format_text.h"

#include <algorithm>
#include <limits>

namespace corvane::toolkit {

namespace {

std::wstring UpperHexadecimal(std::uint32_t number) {
    std::wstring digits;
    do {
        digits.insert(digits.begin(), L"0123456789ABCDEF"[number & 0xFU]);
        number >>= 4U;
    } while (number != 0);
    return digits;
}

template <typename Character>
bool IsSpace(Character character) {
    return character == ' ' || (character >= '\t' && character <= '\r');
}

template <typename Character>
std::int32_t ParseDecimalText(std::basic_string_view<Character> text, Overflow overflow) {
    constexpr std::int64_t kLowest = std::numeric_limits<std::int32_t>::min();
    constexpr std::int64_t kHighest = std::numeric_limits<std::int32_t>::max();
    constexpr std::int64_t kLowBits = 0xFFFFFFFF;
    std::size_t position = 0;
    while (position < text.size() && IsSpace(text[position])) {
        ++position;
    }
    bool isNegative = false;
    if (position < text.size() && (text[position] == '+' || text[position] == '-')) {
        isNegative = text[position] == '-';
        ++position;
    }
    std::int64_t number = 0;
    for (; position < text.size() && text[position] >= '0' && text[position] <= '9'; ++position) {
        const auto digit = static_cast<std::int64_t>(text[position] - '0');
        number = isNegative ? number * 10 - digit : number * 10 + digit;
        number = overflow == Overflow::kNearest ? std::clamp(number, kLowest, kHighest) : number & kLowBits;
    }
    return static_cast<std::int32_t>(number);
}

}  // namespace

void FormatArgument::AppendTo(std::wstring& result, wchar_t conversion) const {
    if (!isNumber_) {
        result += text_;
    } else if (conversion == L'X') {
        result += UpperHexadecimal(static_cast<std::uint32_t>(number_));
    } else {
        result += std::to_wstring(number_);
    }
}

std::wstring FormatText(std::wstring_view format, std::initializer_list<FormatArgument> arguments) {
    std::wstring result;
    const FormatArgument* next = arguments.begin();
    for (std::size_t position = 0; position < format.size();) {
        if (format[position] != L'%') {
            result += format[position++];
            continue;
        }
        const std::wstring_view rest = format.substr(position + 1);
        const std::wstring_view length = rest.starts_with(L"lld") ? rest.substr(0, 3) : rest.substr(0, 1);
        if (length == L"%") {
            result += L'%';
            position += 2;
        } else if ((length == L"s" || length == L"d" || length == L"X" || length == L"lld") &&
                   next != arguments.end()) {
            next->AppendTo(result, length.back());
            ++next;
            position += 1 + length.size();
        } else {
            result += format[position++];
        }
    }
    return result;
}

std::int32_t ParseDecimal(std::string_view text, Overflow overflow) {
    return ParseDecimalText(text, overflow);
}

std::int32_t ParseDecimal(std::wstring_view text, Overflow overflow) {
    return ParseDecimalText(text, overflow);
}

}  // namespace corvane::toolkit
