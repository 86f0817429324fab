#pragma once

#include <windows.h>

#include <string>

namespace toolkit {

/// The whole text of a window or control of this process.
[[nodiscard]] inline std::wstring WindowText(HWND window) {
    std::wstring text;
    text.resize(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1);
    const int length = GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

}  // namespace toolkit
