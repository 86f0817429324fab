#pragma once

#include <cstdint>
#include <deque>
#include <set>
#include <string>
#include <vector>

#include "toolkit/system/message_presenter.h"

namespace corvane::test {

/// A message box as it was asked for.
struct ShownBox {
    toolkit::WindowHandle owner = nullptr;
    std::wstring text;
    std::wstring title;
    std::uint32_t style = 0;

    bool operator==(const ShownBox&) const = default;
};

/// Keeps every message box instead of showing it and answers as the test laid down.
class RecordingPresenter : public toolkit::MessagePresenter {
  public:
    int Show(toolkit::WindowHandle owner, const std::wstring& text, const std::wstring& title,
             std::uint32_t style) override;
    [[nodiscard]] bool IsLive(toolkit::WindowHandle window) const override;

    /// Lays down the answer of the next box that has none yet. Boxes without one are answered with OK (1).
    void AnswerNext(int answer) { answers_.push_back(answer); }

    /// Declares a window alive, or gone again.
    void MakeLive(toolkit::WindowHandle window) { liveWindows_.insert(window); }
    void MakeDead(toolkit::WindowHandle window) { liveWindows_.erase(window); }

    /// A window handle that is good for being passed on and compared, one for each number but 0.
    [[nodiscard]] static toolkit::WindowHandle Window(std::uintptr_t number);

    [[nodiscard]] const std::vector<ShownBox>& Boxes() const { return boxes_; }
    /// The text of the only box; a text that tells so when there is not exactly one.
    [[nodiscard]] std::wstring OnlyText() const;
    /// How many laid down answers no box has asked for.
    [[nodiscard]] std::size_t UnusedAnswers() const { return answers_.size(); }
    /// Forgets the boxes that were shown.
    void Clear() { boxes_.clear(); }

  private:
    std::vector<ShownBox> boxes_;
    std::deque<int> answers_;
    std::set<toolkit::WindowHandle> liveWindows_;
};

}  // namespace corvane::test
