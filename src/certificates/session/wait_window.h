#pragma once

#include <cstdint>
#include <string>

#include "store/records.h"
#include "toolkit/system/window_handle.h"

namespace corvane::certificates {

/// What the user reads while a cryptocontext is being opened.
inline constexpr wchar_t kWaitText[] =
    L"Please, wait, cryptocontext initialization can take up to 30 seconds.";

/// The window that asks for patience while a call blocks the user interface. It does not answer meanwhile, so
/// it has to be painted whole before Show returns.
class WaitWindow {
  public:
    virtual ~WaitWindow() = default;

    /// Shows the window with `text`, in the middle of `parent`, and paints it. Where it cannot be shown, the
    /// work goes on without it.
    virtual void Show(toolkit::WindowHandle parent, const std::wstring& text) = 0;

    /// Takes the window away again. Called once for each Show.
    virtual void Destroy() = 0;

  protected:
    WaitWindow() = default;
    WaitWindow(const WaitWindow&) = default;
    WaitWindow& operator=(const WaitWindow&) = default;
    WaitWindow(WaitWindow&&) = default;
    WaitWindow& operator=(WaitWindow&&) = default;
};

/// A point of the screen, in pixels.
struct ScreenPoint {
    std::int32_t left = 0;
    std::int32_t top = 0;

    bool operator==(const ScreenPoint&) const = default;
};

/// Where the wait window's top left corner goes so that it stands in the middle of its parent, from the
/// normal-position rectangles of both.
[[nodiscard]] ScreenPoint WaitWindowPlace(const store::WindowRectangle& parent,
                                          const store::WindowRectangle& window);

}  // namespace corvane::certificates
