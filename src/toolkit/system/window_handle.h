#pragma once

// The handle of a window, for code that passes it on without knowing what a window is. It is the
// platform's own handle type, declared the way windef.h declares it under STRICT, so that no conversion
// is ever needed where the platform's headers are at hand.
struct HWND__;

namespace corvane::toolkit {

using WindowHandle = HWND__*;

}  // namespace corvane::toolkit
