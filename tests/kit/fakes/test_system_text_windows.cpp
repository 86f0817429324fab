#include <windows.h>

#include "tests/kit/fakes/test_system_text.h"

namespace corvane::test {

std::string TestSystemText::Narrow(std::wstring_view text) const {
    // Without this flag "Ā" would become a plain "A" where the native half says "?".
    const DWORD flags = codePage_ == CodePage::kUtf8 ? 0 : WC_NO_BEST_FIT_CHARS;
    const auto codePage = static_cast<UINT>(codePage_);
    const int length = static_cast<int>(text.size());
    std::string narrow(static_cast<std::size_t>(WideCharToMultiByte(codePage, flags, text.data(), length,
                                                                    nullptr, 0, nullptr, nullptr)),
                       '\0');
    WideCharToMultiByte(codePage, flags, text.data(), length, narrow.data(), static_cast<int>(narrow.size()),
                        nullptr, nullptr);
    return narrow;
}

std::wstring TestSystemText::Widen(std::string_view text) const {
    const auto codePage = static_cast<UINT>(codePage_);
    const int length = static_cast<int>(text.size());
    std::wstring wide(
        static_cast<std::size_t>(MultiByteToWideChar(codePage, 0, text.data(), length, nullptr, 0)), L'\0');
    MultiByteToWideChar(codePage, 0, text.data(), length, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::wstring TestSystemText::UpperCase(std::wstring_view text) const {
    std::wstring upper(text);
    CharUpperBuffW(upper.data(), static_cast<DWORD>(upper.size()));
    return upper;
}

std::wstring TestSystemText::LowerCase(std::wstring_view text) const {
    std::wstring lower(text);
    CharLowerBuffW(lower.data(), static_cast<DWORD>(lower.size()));
    return lower;
}

}  // namespace corvane::test
