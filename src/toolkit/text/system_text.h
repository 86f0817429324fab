#pragma once

#include <string>
#include <string_view>

namespace corvane::toolkit {

/// The text services that only the system can give: its ANSI code page and its letter case.
///
/// Wide text is UTF-16 everywhere: one element of a std::wstring is one UTF-16 code unit, also where
/// wchar_t has room for more.
class SystemText {
  public:
    virtual ~SystemText() = default;

    /// Converts to the system's ANSI code page. A character that the code page lacks becomes the system's
    /// replacement. The result has as many bytes as the conversion gives (WideCharToMultiByte, CP_ACP).
    [[nodiscard]] virtual std::string Narrow(std::wstring_view text) const = 0;

    /// Converts from the system's ANSI code page (MultiByteToWideChar, CP_ACP).
    [[nodiscard]] virtual std::wstring Widen(std::string_view text) const = 0;

    /// Converts to upper case as the system does for all of Unicode, code unit by code unit, so the length
    /// stays (CharUpperBuffW).
    [[nodiscard]] virtual std::wstring UpperCase(std::wstring_view text) const = 0;

    /// The same for lower case (CharLowerBuffW).
    [[nodiscard]] virtual std::wstring LowerCase(std::wstring_view text) const = 0;

  protected:
    SystemText() = default;
    SystemText(const SystemText&) = default;
    SystemText& operator=(const SystemText&) = default;
    SystemText(SystemText&&) = default;
    SystemText& operator=(SystemText&&) = default;
};

/// The text services of Windows. A text that is longer than the system's functions can count is refused with
/// std::length_error; nothing is ever cut.
class WindowsSystemText : public SystemText {
  public:
    [[nodiscard]] std::string Narrow(std::wstring_view text) const override;
    [[nodiscard]] std::wstring Widen(std::string_view text) const override;
    [[nodiscard]] std::wstring UpperCase(std::wstring_view text) const override;
    [[nodiscard]] std::wstring LowerCase(std::wstring_view text) const override;
};

}  // namespace corvane::toolkit
