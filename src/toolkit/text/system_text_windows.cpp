#include "toolkit/text/system_text.h"

#include <windows.h>

#include <limits>
#include <stdexcept>

namespace corvane::toolkit {

namespace {

// The longest text whose conversion, at up to four bytes for a unit, still has a length that fits an int.
constexpr std::size_t kLongestText = static_cast<std::size_t>(std::numeric_limits<int>::max()) / 4;

int CheckedLength(std::size_t length) {
    if (length > kLongestText) {
        throw std::length_error("The text is too long to be converted");
    }
    return static_cast<int>(length);
}

}  // namespace

std::string WindowsSystemText::Narrow(std::wstring_view text) const {
    const int lengthChars = CheckedLength(text.size());
    const int sizeBytes =
        WideCharToMultiByte(CP_ACP, 0, text.data(), lengthChars, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<std::size_t>(sizeBytes), '\0');
    WideCharToMultiByte(CP_ACP, 0, text.data(), lengthChars, narrow.data(), sizeBytes, nullptr, nullptr);
    return narrow;
}

std::wstring WindowsSystemText::Widen(std::string_view text) const {
    const int sizeBytes = CheckedLength(text.size());
    const int lengthChars = MultiByteToWideChar(CP_ACP, 0, text.data(), sizeBytes, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(lengthChars), L'\0');
    MultiByteToWideChar(CP_ACP, 0, text.data(), sizeBytes, wide.data(), lengthChars);
    return wide;
}

std::wstring WindowsSystemText::UpperCase(std::wstring_view text) const {
    std::wstring upper(text);
    CharUpperBuffW(upper.data(), static_cast<DWORD>(CheckedLength(upper.size())));
    return upper;
}

std::wstring WindowsSystemText::LowerCase(std::wstring_view text) const {
    std::wstring lower(text);
    CharLowerBuffW(lower.data(), static_cast<DWORD>(CheckedLength(lower.size())));
    return lower;
}

}  // namespace corvane::toolkit
