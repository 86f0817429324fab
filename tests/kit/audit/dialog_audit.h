#pragma once

#include <string>
#include <vector>

#include "tests/kit/driver/window.h"

namespace corvane::test {

/// What a user of a dialog would complain about, each fault in words; empty for a sound dialog. Each looks
/// at the visible controls of an open dialog.
using Faults = std::vector<std::wstring>;

/// Texts that do not fit their control or their window's caption bar, and edits lower than a line.
[[nodiscard]] Faults CutOffTexts(const Window& dialog);
/// Controls that lie over each other, or reach out of the client area.
[[nodiscard]] Faults MisplacedControls(const Window& dialog);
/// Controls that a screen reader could not name: a button or a list without a text of its own, a field to
/// write in without a label right before it.
[[nodiscard]] Faults NamelessControls(const Window& dialog);
/// Buttons, lists and fields to write in that the platform's accessibility interface names or describes in
/// another way than the dialog shows them.
[[nodiscard]] Faults MisreadControls(const Window& dialog);
/// Steps of the Tab key that go against the order of reading: rows from top to bottom, in a row from left to
/// right, groups beside each other one after the other.
[[nodiscard]] Faults UnreadableTabOrder(const Window& dialog);
/// Not exactly one default button, or another one than the dialog itself names.
[[nodiscard]] Faults DefaultButtonFaults(const Window& dialog);
/// Places that are not painted in the system's colour for them.
[[nodiscard]] Faults ForeignColours(const Window& dialog);
/// Icons that were not loaded at the size that this screen wants.
[[nodiscard]] Faults WrongIconSizes(const Window& dialog);

/// All of the above; at a scale of which no pictures are kept, only the texts that are cut off.
[[nodiscard]] Faults AllFaults(const Window& dialog);

}  // namespace corvane::test
