#pragma once

#include <string>

namespace corvane::app {

/// The caption of the about box.
inline constexpr wchar_t kAboutTitle[] = L"About programm...";

/// The line that says whose work the product is.
inline constexpr wchar_t kAboutMakerText[] = L"Software for electronic signature and encryption";

/// The line that names the product which this program configures.
inline constexpr wchar_t kAboutProductText[] = L"Client Velmaris";

/// The line with the program's title and version.
[[nodiscard]] std::wstring AboutVersionText();

}  // namespace corvane::app
