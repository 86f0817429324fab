#include "toolkit/system/application.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

#include "tests/toolkit/box_closer.h"

namespace corvane::test {
namespace {

class TestApplication : public toolkit::Application {
  public:
    std::function<bool()> onInit = [] { return true; };
    std::function<void()> onExit = [] {};
    int exits = 0;

  protected:
    bool InitInstance() override { return toolkit::Application::InitInstance() && onInit(); }
    int ExitInstance() override {
        ++exits;
        onExit();
        return toolkit::Application::ExitInstance();
    }
    [[nodiscard]] std::wstring Title() const override { return L"Name of the program"; }
};

// Runs the application and expects that it speaks its last word, once.
void ExpectLastWord(TestApplication& application, const std::wstring& reason) {
    BoxCloser closer;
    EXPECT_EQ(application.Run(), 1);
    const auto boxes = closer.Boxes();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].title, L"Name of the program");
    EXPECT_EQ(boxes[0].text, L"The program cannot go on and will be closed.\r\n" + reason);
}

TEST(Application, EndsWithZeroWhenAllWentWell) {
    BoxCloser closer;
    TestApplication application;
    EXPECT_EQ(application.Run(), 0);
    EXPECT_EQ(application.exits, 1);
    EXPECT_TRUE(closer.Boxes().empty());
}

TEST(Application, EndsWithOneWhenItCouldNotStart) {
    BoxCloser closer;
    TestApplication application;
    application.onInit = [] { return false; };
    EXPECT_EQ(application.Run(), 1);
    EXPECT_EQ(application.exits, 1);
    EXPECT_TRUE(closer.Boxes().empty()) << "who could not start has told why already";
}

TEST(Application, AnExceptionEndsItWithOneBoxThatSaysWhy) {
    TestApplication application;
    application.onInit = []() -> bool { throw std::out_of_range("An argument is invalid."); };
    ExpectLastWord(application, L"An argument is invalid.");
    EXPECT_EQ(application.exits, 1) << "The end is the same as always.";
}

TEST(Application, SomethingThrownThatIsNoExceptionEndsItWithABoxToo) {
    TestApplication application;
    application.onInit = []() -> bool { throw 1; };
    ExpectLastWord(application, L"An unknown error occurred.");
}

TEST(Application, AnExceptionAtTheEndIsToldToo) {
    TestApplication application;
    application.onExit = [] { throw std::runtime_error("The end failed."); };
    ExpectLastWord(application, L"The end failed.");
}

TEST(Application, KeepsTheRegistryKeyOfTheToolkit) {
    TestApplication application;
    EXPECT_EQ(application.RegistryKey(), L"");
    application.SetRegistryKey(L"A key");
    EXPECT_EQ(application.RegistryKey(), L"A key");
}

}  // namespace
}  // namespace corvane::test
