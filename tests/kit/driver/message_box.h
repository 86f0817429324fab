#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "tests/kit/driver/window.h"

namespace corvane::test {

/// What a message box shows.
struct MessageBoxView {
    std::wstring title;
    std::wstring text;
    int systemIcon = 0;        ///< As in IconView; 0 where the box has no icon.
    std::vector<int> buttons;  ///< Answer codes, from left to right.
    int defaultButton = 0;

    bool operator==(const MessageBoxView&) const = default;
};

/// The view that MessageBoxW gives for a style word.
[[nodiscard]] MessageBoxView MessageBoxOfStyle(const std::wstring& text, const std::wstring& title,
                                               unsigned style);

/// In words, for failure messages.
void PrintTo(const MessageBoxView& view, std::ostream* stream);

/// An open message box of the driven program.
class MessageBoxWindow : public Window {
  public:
    explicit MessageBoxWindow(const Window& window) : Window(window) {}

    /// True for a dialog that is built like the system's message box.
    [[nodiscard]] static bool Is(const Window& window);

    [[nodiscard]] MessageBoxView View() const;
    /// Presses the button of an answer code and waits until the box is gone.
    void Answer(int code) const;
    /// Escape or the close box.
    void Dismiss() const;
};

}  // namespace corvane::test
