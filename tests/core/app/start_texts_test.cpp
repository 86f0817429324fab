#include "app/start_texts.h"

#include <gtest/gtest.h>

namespace corvane::testing {
namespace {

TEST(StartTexts, TellThatTheEditorRunsAlready) {
    EXPECT_EQ(AlreadyStartedText(), L"QENT AC Velmaris - configuration allready started");
}

TEST(StartTexts, NameTheMutexInTheReport) {
    EXPECT_STREQ(kCreateMutexOperation, "Create programm process mutex");
}

}  // namespace
}  // namespace corvane::testing
