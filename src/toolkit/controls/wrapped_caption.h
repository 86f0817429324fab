#pragma once

#include <windows.h>

#include <commctrl.h>

namespace corvane::toolkit {

/// The system colour (COLOR_...) of a push button's caption in the given state (CDIS_...). In a scheme of
/// high contrast a button under the mouse, or pressed, has the ground of selected text, on which only the
/// colour of selected text can be read.
[[nodiscard]] int CaptionColor(UINT itemState, bool isHighContrast);

/// Draws the caption of a push button in as many centred lines as it needs (NM_CUSTOMDRAW of a button with
/// BS_MULTILINE), and returns what the notification is to be answered with.
///
/// Buttons can break lines themselves, but Wine breaks a centred caption as if its lines had less room than
/// they have, and the last words are lost (seen with 8.0). Drawn here, it looks the same everywhere.
[[nodiscard]] LRESULT DrawWrappedCaption(const NMCUSTOMDRAW& draw);

}  // namespace corvane::toolkit
