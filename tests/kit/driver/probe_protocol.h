#pragma once

#include <windows.h>

#include <array>
#include <cstdint>

namespace corvane::test {

/// Menus and icons can only be looked at in their own process: their handles mean nothing elsewhere. A
/// small library is hooked into the driven program for a moment, and answers these questions there. The
/// record lies in the driven process; both sides are built together, so its layout is its own agreement.
enum class ProbeQuestion : std::uint32_t {
    kMenuBar,     ///< All items of the window's menu bar.
    kSystemMenu,  ///< All items of the window's system menu.
    kIcon,        ///< The icon of a control or window.
    kFont,        ///< The font of a control.
    kPointer,     ///< The pointer that the window's thread shows.
    kWatch,       ///< From now on, note which of `watched` are sent to the window.
    kWatched,     ///< What was noted since kWatch.
};

/// Where an icon is asked for.
enum class IconPlace : std::uint32_t { kStatic, kButton, kLargeWindowIcon, kSmallWindowIcon, kDragIcon };

/// A message that was sent to a window.
struct ProbeMessage {
    std::uint32_t message;
    std::uint32_t wParam;  ///< Its low half.
};

struct ProbeMenuItem {
    std::int32_t depth;  ///< 0 for the bar itself.
    std::uint32_t id;    ///< 0 for a pop-up or a separator.
    std::uint32_t type;
    std::uint32_t state;
    std::array<wchar_t, 80> text;
};

struct ProbeRequest {
    ProbeQuestion question;
    IconPlace iconPlace;
    std::int32_t iconResource;  ///< The resource that the icon is compared with, 0 for none.
    std::int32_t isAnswered;

    std::uint32_t itemCount;
    std::array<ProbeMenuItem, 64> items;

    std::int32_t hasIcon;
    std::int32_t iconWidth;   ///< pixels
    std::int32_t iconHeight;  ///< pixels
    std::int32_t showsResource;
    /// Number of the system's own icon (IDI_ERROR and its kin), 0 for none of them.
    std::int32_t systemIcon;

    /// Number of the system's pointer (IDC_ARROW and its kin), 0 for none of them.
    std::int32_t systemPointer;

    std::array<std::uint32_t, 4> watched;  ///< Messages, 0 for none.
    std::uint32_t messageCount;
    std::array<ProbeMessage, 256> messages;

    LOGFONTW font;  ///< Zeroed where the control has the system font.
};

/// The message that carries the address of a ProbeRequest in lParam.
inline constexpr wchar_t kProbeMessageName[] = L"driver probe question";
/// The library, beside the test program, and the hook that it exports.
inline constexpr wchar_t kProbeLibrary[] = L"driver_probe.dll";
inline constexpr char kProbeHook[] = "ProbeHook";

}  // namespace corvane::test
