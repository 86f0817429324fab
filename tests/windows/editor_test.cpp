#include "tests/windows/editor_test.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <cwchar>

#include "tests/driver/failure.h"
#include "tests/driver/waiting.h"

namespace corvane::test {

using driver::Window;

std::wstring EditorPath() {
    std::array<wchar_t, 1024> path{};
    const auto room = static_cast<DWORD>(path.size());
    if (GetEnvironmentVariableW(L"CORVANE_EDITOR", path.data(), room) != 0) {
        return path.data();
    }
    GetModuleFileNameW(nullptr, path.data(), room);
    const std::wstring own = path.data();
    return own.substr(0, own.find_last_of(L'\\') + 1) + L"corvane.exe";
}

EditorTest::EditorTest() {
    driver::UseScreenPixels();
}

void EditorTest::Start() {
    editor_.emplace(EditorPath());
    main_ = editor_->WaitForDialog(Window());
    if (!main_.HasControl(IDC_RULE_LIST)) {
        throw driver::Failure(L"The main window was expected, and there came " + main_.Name() + L".");
    }
}

void EditorTest::StartWithSample() {
    WriteSampleConfiguration();
    Start();
}

void EditorTest::StartAgain() {
    editor_.reset();
    Start();
}

void EditorTest::Settle() const {
    // Posted messages are handled in order. Of these, the hover time can be asked for, and nothing depends
    // on it: when the list tells the new one, all that was posted before has been handled.
    const Window list = Profiles();
    const LRESULT mark = list.Send(LVM_GETHOVERTIME) == 500 ? 501 : 500;
    list.Post(LVM_SETHOVERTIME, 0, mark);
    if (!driver::WaitUntil([&] { return list.Send(LVM_GETHOVERTIME) == mark; })) {
        throw driver::Failure(L"The main window was expected to handle its messages, and does not.");
    }
}

void EditorTest::WaitForMain() const {
    main_.WaitUntilEnabled();
    Settle();
}

void EditorTest::OpenProfile(const std::wstring& name) const {
    const driver::Texts names = Profiles().Column(0);
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end()) {
        throw driver::Failure(L"The profile list was expected to hold \"" + name + L"\".");
    }
    Profiles().PostLeftClick(Profiles().CellCentre(static_cast<int>(found - names.begin()), 0));
    Control(IDC_PROFILE_CAPTION_EDIT).WaitForText(L"Profile: " + name);
    Settle();
}

void EditorTest::Press(int buttonId) const {
    Control(buttonId).Click();
    Settle();
}

void EditorTest::ExpectMessageBox(const Window& owner, const std::wstring& text, unsigned style, int answer,
                                  const std::wstring& title) const {
    const driver::MessageBoxWindow box = editor_->WaitForMessageBox(owner);
    EXPECT_EQ(box.View(), driver::MessageBoxOfStyle(text, title, style));
    box.Answer(answer);
}

void EditorTest::ExpectBox(const std::wstring& text, unsigned style, int answer) const {
    ExpectMessageBox(main_, text, style, answer);
    Settle();
}

void EditorTest::ExpectNoDialog() const {
    Settle();
    EXPECT_TRUE(main_.IsEnabled()) << "the main window is disabled, as by a dialog";
    for (const Window& window : editor_->TopLevelWindows()) {
        EXPECT_EQ(window, main_) << "an unexpected window: " << driver::Utf8(window.Name());
    }
}

void EditorTest::ExpectNothingToSave() {
    Control(IDCANCEL).PostClick();
    EXPECT_EQ(editor_->WaitForEnd(), 0U);
}

void EditorTest::ExpectUnsavedChanges() {
    Control(IDCANCEL).PostClick();
    ExpectMessageBox(main_, kUnsavedQuestion, kConfirmation, IDYES);
    EXPECT_EQ(editor_->WaitForEnd(), 0U);
}

void EditorTest::SaveAndLeave() {
    Press(IDC_SAVE_BUTTON);
    ExpectNothingToSave();
}

std::wstring ReportText(const std::wstring& operation, unsigned code, const std::wstring& detail) {
    std::array<wchar_t, 1024> buffer{};
    FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code, 0,
                   buffer.data(), static_cast<DWORD>(buffer.size()), nullptr);
    std::wstring description = buffer.data();
    description.erase(description.find_last_not_of(L".\r\n") + 1);
    std::array<wchar_t, 16> number{};
    std::swprintf(number.data(), number.size(), L"0x%X", code);
    return operation + L".\r\nError " + number.data() + L" - " + description + L"." + detail;
}

}  // namespace corvane::test
