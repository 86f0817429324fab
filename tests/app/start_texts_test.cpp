#include "app/start_texts.h"

#include <gtest/gtest.h>

namespace corvane::test {
namespace {

TEST(StartTexts, TellThatTheEditorRunsAlready) {
    EXPECT_EQ(app::AlreadyStartedText(), L"QENT AC Velmaris - configuration allready started");
}

TEST(StartTexts, NameTheMutexInTheReport) {
    EXPECT_STREQ(app::kCreateMutexOperation, "Create programm process mutex");
}

}  // namespace
}  // namespace corvane::test
