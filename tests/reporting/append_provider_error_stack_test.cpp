#include <gtest/gtest.h>

#include "reporting/provider_error_stack.h"
#include "tests/kit/fixtures/reporter_fixture.h"
#include "tests/reporting/failed_call.h"

namespace corvane::test {
namespace {

std::wstring StackOf(ReporterFixture& fixture, provider::ProviderContext session = kSession) {
    std::wstring description = L"D";
    fixture.reporter.AppendProviderErrorStack(session, description);
    return description;
}

TEST(AppendProviderErrorStack, WithoutASessionNothingHappens) {
    ReporterFixture fixture;
    fixture.provider.PushError(0, {"text", "file", 1, "data"});
    EXPECT_EQ(StackOf(fixture, 0), L"D");
    EXPECT_EQ(fixture.provider.ErrorLineCalls(), 0U);
}

TEST(AppendProviderErrorStack, EveryEntryBecomesALineOfTheFixedShape) {
    ReporterFixture fixture;
    fixture.provider.PushError(kSession, {"first", "a.c", 10, "one"});
    fixture.provider.PushError(kSession, {"second", "b.c", 20, "two"});
    EXPECT_EQ(StackOf(fixture),
              L"D\r\nfirst,\r\nfile: a.c, line 10, data: one.\r\n"
              L"second,\r\nfile: b.c, line 20, data: two.\r\n");
}

TEST(AppendProviderErrorStack, TheStackIsPoppedAndASecondReadingFindsItEmpty) {
    ReporterFixture fixture;
    fixture.provider.PushError(kSession, {"first", "a.c", 10, "one"});
    StackOf(fixture);
    EXPECT_EQ(StackOf(fixture), L"D\r\n");
}

TEST(AppendProviderErrorStack, AnEmptyStackStillBringsTheLineBreak) {
    ReporterFixture fixture;
    EXPECT_EQ(StackOf(fixture), L"D\r\n");
}

TEST(AppendProviderErrorStack, AMissingLibraryIsAnEmptyStack) {
    ReporterFixture fixture;
    fixture.provider.MakeMissing();
    EXPECT_EQ(StackOf(fixture), L"D\r\n");
}

TEST(AppendProviderErrorStack, OnlyTheSessionsOwnStackIsRead) {
    ReporterFixture fixture;
    fixture.provider.PushError(1, {"of another", "a.c", 10, "one"});
    fixture.provider.PushError(0, {"of none", "a.c", 10, "one"});
    EXPECT_EQ(StackOf(fixture), L"D\r\n");
}

TEST(AppendProviderErrorStack, EveryTextIsReleasedOnceUnderTheSession) {
    ReporterFixture fixture;
    fixture.provider.PushError(kSession, {"first", "a.c", 10, "one"});
    fixture.provider.PushError(kSession, {"second", "b.c", 20, "two"});
    StackOf(fixture);
    EXPECT_EQ(fixture.provider.TextsOut(), 0U);
    EXPECT_EQ(fixture.provider.WrongReleases(), 0U);
    ASSERT_EQ(fixture.provider.Released().size(), 6U);
    for (const ReleasedText& released : fixture.provider.Released()) {
        EXPECT_EQ(released.context, kSession) << released.text;
    }
}

TEST(AppendProviderErrorStack, TextsThatComeWithTheRefusalAreReleasedButNotShown) {
    ReporterFixture fixture;
    fixture.provider.BringTextsAtTheEnd();
    EXPECT_EQ(StackOf(fixture), L"D\r\n");
    EXPECT_EQ(fixture.provider.Released().size(), 3U);
    EXPECT_EQ(fixture.provider.TextsOut(), 0U);
}

TEST(AppendProviderErrorStack, ATextThatIsNoneIsEmptyAndNotReleased) {
    ReporterFixture fixture;
    fixture.provider.PushError(kSession, {"text", std::nullopt, 3, std::nullopt});
    EXPECT_EQ(StackOf(fixture), L"D\r\ntext,\r\nfile: , line 3, data: .\r\n");
    EXPECT_EQ(fixture.provider.Released().size(), 1U);
    EXPECT_EQ(fixture.provider.WrongReleases(), 0U);
}

TEST(AppendProviderErrorStack, ATextOfNoBytesIsReleasedToo) {
    ReporterFixture fixture;
    fixture.provider.PushError(kSession, {"", "", 3, ""});
    EXPECT_EQ(StackOf(fixture), L"D\r\n,\r\nfile: , line 3, data: .\r\n");
    EXPECT_EQ(fixture.provider.Released().size(), 3U);
}

TEST(AppendProviderErrorStack, ALengthThatCountsTheTerminatorBringsNoNulIntoTheMessage) {
    ReporterFixture fixture;
    fixture.provider.PushError(kSession, {std::string("text\0", 5), std::string("a.c\0junk", 8), 3, "d"});
    EXPECT_EQ(StackOf(fixture), L"D\r\ntext,\r\nfile: a.c, line 3, data: d.\r\n");
}

TEST(AppendProviderErrorStack, TextsAreWidenedFromTheSystemsCodePage) {
    ReporterFixture fixture(CodePage::kCyrillic);
    fixture.provider.PushError(kSession, {"\xC4\xE0", "\xC5", 3, "\xC6"});
    EXPECT_EQ(StackOf(fixture), L"D\r\nДа,\r\nfile: Е, line 3, data: Ж.\r\n");
}

TEST(AppendProviderErrorStack, PercentSignsInTextsAreOrdinaryCharacters) {
    ReporterFixture fixture;
    fixture.provider.PushError(kSession, {"100%d", "%s", 3, "%X"});
    EXPECT_EQ(StackOf(fixture), L"D\r\n100%d,\r\nfile: %s, line 3, data: %X.\r\n");
}

TEST(AppendProviderErrorStack, ALineNumberIsWrittenWithItsSign) {
    ReporterFixture fixture;
    fixture.provider.PushError(kSession, {"t", "f", 0xFFFFFFFF, "d"});
    EXPECT_EQ(StackOf(fixture), L"D\r\nt,\r\nfile: f, line -1, data: d.\r\n");
}

TEST(AppendProviderErrorStack, AStackThatNeverEndsIsLeftAfterTheMostEntries) {
    ReporterFixture fixture;
    fixture.provider.NeverPopErrors();
    fixture.provider.PushError(kSession, {"for ever", "a.c", 1, "d"});
    const std::wstring description = StackOf(fixture);
    const std::wstring line = L"for ever,\r\nfile: a.c, line 1, data: d.\r\n";
    EXPECT_EQ(description.size(),
              std::wstring(L"D\r\n").size() + reporting::kMostProviderErrors * line.size());
    EXPECT_EQ(fixture.provider.ErrorLineCalls(), reporting::kMostProviderErrors);
    EXPECT_EQ(fixture.provider.TextsOut(), 0U);
}

TEST(PopProviderErrors, TheStackOfAFailedInitialisationCanBeReadAndReleasedUnderNoContext) {
    ReporterFixture fixture;
    fixture.provider.PushError(0, {"first", "a.c", 10, "one"});
    const std::vector<reporting::ProviderError> errors =
        reporting::PopProviderErrors(*fixture.provider.Functions(), 0, 0, fixture.text);
    ASSERT_EQ(errors.size(), 1U);
    EXPECT_EQ(errors[0].text, L"first");
    EXPECT_EQ(errors[0].file, L"a.c");
    EXPECT_EQ(errors[0].line, 10U);
    EXPECT_EQ(errors[0].data, L"one");
    EXPECT_EQ(fixture.provider.TextsOut(), 0U);
}

TEST(PopProviderErrors, TheContextOfTheReleaseMayDifferFromThatOfTheStack) {
    ReporterFixture fixture;
    fixture.provider.PushError(kSession, {"first", std::nullopt, 10, std::nullopt});
    EXPECT_EQ(reporting::PopProviderErrors(*fixture.provider.Functions(), kSession, 0, fixture.text).size(),
              1U);
    EXPECT_EQ(fixture.provider.Released(), (std::vector<ReleasedText>{{0, "first"}}));
}

}  // namespace
}  // namespace corvane::test
