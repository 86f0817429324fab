#pragma once

#include <windows.h>

namespace corvane::toolkit {

/// Tells whether a message to a dialog is a command of its user, which a disabled dialog must not carry out,
/// however it was sent: a button, a menu, a choice in a list, a click or key in a common control, the close
/// box. What only tells how things are (the text of an edit has changed, a list loses the focus, a row wants
/// its text or its colours) is none.
[[nodiscard]] bool IsUserCommand(UINT message, WPARAM wParam, LPARAM lParam);

/// Tells whether a message is the mouse or the keyboard at work, or a press of a button that was posted.
[[nodiscard]] bool IsUserInput(UINT message);

/// Throws away what the user did with mouse and keyboard and nobody has looked at yet (PeekMessageW).
void DiscardUserInput();

}  // namespace corvane::toolkit
