#include "tests/kit/fakes/recording_presenter.h"

namespace corvane::test {

int RecordingPresenter::Show(toolkit::WindowHandle owner, const std::wstring& text, const std::wstring& title,
                             std::uint32_t style) {
    boxes_.push_back({owner, text, title, style});
    if (answers_.empty()) {
        return 1;
    }
    const int answer = answers_.front();
    answers_.pop_front();
    return answer;
}

bool RecordingPresenter::IsLive(toolkit::WindowHandle window) const {
    return liveWindows_.contains(window);
}

toolkit::WindowHandle RecordingPresenter::Window(std::uintptr_t number) {
    return reinterpret_cast<toolkit::WindowHandle>(number);  // NOLINT(performance-no-int-to-ptr)
}

std::wstring RecordingPresenter::OnlyText() const {
    return boxes_.size() == 1 ? boxes_.front().text
                              : L"(" + std::to_wstring(boxes_.size()) + L" boxes were shown)";
}

}  // namespace corvane::test
