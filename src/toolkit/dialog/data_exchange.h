#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

namespace corvane::toolkit {

/// Copies between the controls of a dialog and the fields that stand for them, in the one direction that it
/// was made for. A dialog names each control once, with its field, and this list serves both directions.
/// It copies and does nothing else: it does not judge, move the focus or throw.
class DataExchange {
  public:
    enum class Direction { kToControls, kFromControls };

    DataExchange(HWND dialog, Direction direction) : dialog_(dialog), direction_(direction) {}

    /// The text of an edit, static or button. A control that shows the text already is left alone, so that
    /// its caret and selection stay.
    void Text(int controlId, std::wstring& field) const;

    /// A 32-bit number in decimal. Text that is no number reads as 0, one that does not fit as the nearest
    /// that does.
    void Number(int controlId, std::int32_t& field) const;

    /// The selected entry of a combo box, -1 for none.
    void Choice(int controlId, int& field) const;

    /// The selected entry of a list box, -1 for none.
    void Selection(int controlId, int& field) const;

    /// A check box: 1 while it is checked, else 0. Any number but 0 checks it.
    void Check(int controlId, std::int32_t& field) const;

  private:
    void Position(int controlId, UINT getMessage, UINT setMessage, int& field) const;

    HWND dialog_;
    Direction direction_;
};

/// The whole text of a window or control of this process.
[[nodiscard]] inline std::wstring WindowText(HWND window) {
    std::wstring text;
    text.resize(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1);
    const int length = GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

}  // namespace corvane::toolkit
