#pragma once

#include <windows.h>

#include <commctrl.h>

namespace toolkit {

/// Draws the caption of a push button in as many centred lines as it needs (NM_CUSTOMDRAW of a button with
/// BS_MULTILINE), and returns what the notification is to be answered with.
///
/// Buttons can break lines themselves, but Wine breaks a centred caption as if its lines had less room than
/// they have, and the last words are lost (seen with 8.0). Drawn here, it looks the same everywhere.
[[nodiscard]] LRESULT DrawWrappedCaption(const NMCUSTOMDRAW& draw);

}  // namespace toolkit
