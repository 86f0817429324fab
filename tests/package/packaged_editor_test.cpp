#include <gtest/gtest.h>

#include <windows.h>
#include <cstdlib>
#include <optional>
#include <string>
#include <utility>

#include "res/ids.h"
#include "tests/kit/driver/list_view.h"
#include "tests/kit/driver/message_box.h"
#include "tests/kit/driver/program.h"
#include "tests/kit/driver/window.h"
#include "tests/kit/fixtures/editor_fixture.h"

// The editor as it was handed out, where CORVANE_EDITOR says, on the worked example in this user's registry.
// The scripts that start this program have brought both there, so nothing is set aside or restored here.

namespace corvane::test {
namespace {

class PackagedEditor : public ::testing::Test {
  protected:
    PackagedEditor() { UseScreenPixels(); }

    void Start() {
        editor_.reset();
        editor_.emplace(EditorPath());
        main_ = editor_->WaitForDialog(Window());
    }
    [[nodiscard]] const Program& Editor() const { return *editor_; }
    [[nodiscard]] const Window& Main() const { return main_; }
    /// The descriptions of the shown rules: those of the first profile.
    [[nodiscard]] Texts ShownRules() const {
        return ListView(main_.Control(IDC_RULE_LIST)).Column(kDescriptionColumn);
    }
    /// Moves the first rule behind the second one, and gives the descriptions as they are to be shown then.
    Texts ExchangeFirstRules() const {
        Texts expected = ShownRules();
        if (expected.size() < 2) {
            ADD_FAILURE() << "the worked example was expected, and there are " << expected.size() << " rules";
            return expected;
        }
        std::swap(expected[0], expected[1]);
        const ListView rules(main_.Control(IDC_RULE_LIST));
        rules.Select({0});
        main_.Control(IDC_MOVE_DOWN_BUTTON).Click();
        rules.WaitForColumn(kDescriptionColumn, expected);
        return expected;
    }

  private:
    std::optional<Program> editor_;
    Window main_;
};

TEST_F(PackagedEditor, ShowsTheWorkedExampleAndSavesAChangeOfIt) {
    Start();
    EXPECT_EQ(ListView(Main().Control(IDC_PROFILE_LIST)).Column(0),
              (Texts{L"Archive", L"Incoming", L"Outgoing"}));
    const Texts expected = ExchangeFirstRules();
    Main().Control(IDOK).PostClick();
    EXPECT_EQ(Editor().WaitForEnd(), 0U);
    Start();
    EXPECT_EQ(ShownRules(), expected);
}

TEST_F(PackagedEditor, IsLeftAloneWithWhatIsNotSavedWhileANewerVersionIsInstalled) {
    Start();
    const Texts expected = ExchangeFirstRules();
    const wchar_t* const installer = _wgetenv(L"CORVANE_NEWER_INSTALLER");
    ASSERT_NE(installer, nullptr);
    const int code = _wsystem((L"msiexec /i \"" + std::wstring(installer) + L"\" /qn").c_str());
    EXPECT_TRUE(code == ERROR_SUCCESS || code == ERROR_SUCCESS_REBOOT_REQUIRED)
        << "the installer ends with " << code;
    ASSERT_TRUE(Editor().IsRunning());
    EXPECT_EQ(ShownRules(), expected);
    Main().Control(IDCANCEL).PostClick();
    const MessageBoxWindow box = Editor().WaitForMessageBox(Main());
    EXPECT_EQ(box.View(),
              MessageBoxOfStyle(kUnsavedQuestion, L"QENT AC Velmaris - configuration", kConfirmation));
    box.Answer(IDYES);
    EXPECT_EQ(Editor().WaitForEnd(), 0U);
}

}  // namespace
}  // namespace corvane::test
