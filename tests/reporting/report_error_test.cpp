#include <gtest/gtest.h>

#include <new>

#include "reporting/message_styles.h"
#include "tests/kit/fixtures/reporter_fixture.h"
#include "tests/reporting/failed_call.h"

namespace corvane::test {
namespace {

// The text that a report without an owner shows.
std::wstring ShownText(ReporterFixture& fixture, std::uint32_t code, const char* format,
                       const char* argument) {
    fixture.reporter.ReportError(nullptr, 0, reporting::kShowReport, code, format, nullptr, argument);
    return fixture.presenter.OnlyText();
}

TEST(ReportError, FlagsZeroTouchNothingAndGiveTheCode) {
    ReporterFixture fixture;
    fixture.provider.PushError(kSession, {"text", "file", 1, "data"});
    std::wstring text = L"as it was";
    EXPECT_EQ(
        fixture.reporter.ReportError(nullptr, kSession, 0, kProviderCode, "Opening file %s", &text, "x"),
        kProviderCode);
    EXPECT_TRUE(fixture.presenter.Boxes().empty());
    EXPECT_EQ(text, L"as it was");
    EXPECT_TRUE(fixture.provider.AskedCapacities().empty());
    EXPECT_EQ(fixture.provider.ErrorLineCalls(), 0U);
}

TEST(ReportError, AReportIsOneErrorBoxOfTheFixedShape) {
    ReporterFixture fixture;
    const std::uint32_t code =
        fixture.reporter.ReportError(nullptr, 0, reporting::kShowReport, 5,
                                     "Reading integer value '%s' from register", nullptr, "Window_top");
    EXPECT_EQ(code, 5U);
    ASSERT_EQ(fixture.presenter.Boxes().size(), 1U);
    EXPECT_EQ(
        fixture.presenter.Boxes().front(),
        (ShownBox{nullptr, L"Reading integer value 'Window_top' from register.\r\nError 0x5 - System text 5.",
                  L"QENT AC Velmaris - configuration", 0x10}));
}

TEST(ReportError, EveryCodeIsGivenBackUnchanged) {
    ReporterFixture fixture;
    for (const std::uint32_t code : {0U, 5U, 0x80070005U, kProviderCode, 0xFFFFFFFFU}) {
        EXPECT_EQ(
            fixture.reporter.ReportError(nullptr, 0, reporting::kShowReport, code, "x", nullptr, nullptr),
            code);
    }
}

TEST(ReportError, WithoutTheLowestFlagTheMessageIsOnlyComposed) {
    ReporterFixture fixture;
    std::wstring text;
    fixture.reporter.ReportError(nullptr, 0, 2, 5, "Memory allocation", &text, nullptr);
    EXPECT_TRUE(fixture.presenter.Boxes().empty());
    EXPECT_EQ(text, L"Memory allocation.\r\nError 0x5 - System text 5.");
}

TEST(ReportError, FlagsThreeShowLikeFlagsOne) {
    ReporterFixture fixture;
    fixture.reporter.ReportError(nullptr, 0, 3, 5, "Memory allocation", nullptr, nullptr);
    EXPECT_EQ(fixture.presenter.OnlyText(), L"Memory allocation.\r\nError 0x5 - System text 5.");
}

TEST(ReportError, ADetailEndsTheShownMessageAndIsLeftOutOfTheText) {
    ReporterFixture fixture;
    std::wstring text = L"\r\nTry another folder.";
    fixture.reporter.ReportError(nullptr, 0, reporting::kShowReport, 5, "Opening file %s", &text, "a.prx");
    EXPECT_EQ(fixture.presenter.OnlyText(),
              L"Opening file a.prx.\r\nError 0x5 - System text 5.\r\nTry another folder.");
    EXPECT_EQ(text, L"Opening file a.prx.\r\nError 0x5 - System text 5.");
}

TEST(ReportError, AnEmptyTextBringsNoDetailAndTakesTheMessage) {
    ReporterFixture fixture;
    std::wstring text;
    fixture.reporter.ReportError(nullptr, 0, reporting::kShowReport, 5, "Opening file %s", &text, "a.prx");
    EXPECT_EQ(fixture.presenter.OnlyText(), text);
    EXPECT_EQ(text, L"Opening file a.prx.\r\nError 0x5 - System text 5.");
}

TEST(ReportError, AllBitsSetIsABadParameterWithoutTheProvidersPrefix) {
    ReporterFixture fixture;
    EXPECT_EQ(ShownText(fixture, 0xFFFFFFFF, "Memory allocation", nullptr),
              L"Memory allocation.\r\nError 0xFFFFFFFF - Bad parameter.");
}

TEST(ReportError, AnotherParameterErrorHasTheProvidersPrefix) {
    ReporterFixture fixture;
    EXPECT_EQ(ShownText(fixture, 0xFFFFFFF7, "Memory allocation", nullptr),
              L"Memory allocation.\r\nXSIG error 0xFFFFFFF7 - Bad parameter.");
}

TEST(ReportError, CodeZeroIsAPlainErrorWithTheProvidersText) {
    ReporterFixture fixture;
    fixture.provider.SetErrorText(0, "Success.");
    EXPECT_EQ(ShownText(fixture, 0, "Memory allocation", nullptr),
              L"Memory allocation.\r\nError 0x0 - Success.");
}

TEST(ReportError, AProviderCodeBringsTheErrorStackOfTheSession) {
    ReporterFixture fixture;
    fixture.provider.SetErrorText(kProviderCode, "Closing failed");
    fixture.provider.PushError(kSession, {"busy", "close.c", 3, "none"});
    fixture.reporter.ReportError(nullptr, kSession, reporting::kShowReport, kProviderCode,
                                 "Cryptocontext uninitialization", nullptr, nullptr);
    EXPECT_EQ(fixture.presenter.OnlyText(),
              L"Cryptocontext uninitialization.\r\nXSIG error 0xE0700012 - Closing failed\r\n"
              L"busy,\r\nfile: close.c, line 3, data: none.");
    EXPECT_EQ(fixture.provider.TextsOut(), 0U);
}

TEST(ReportError, WithoutTheLibraryAProviderCodeIsReportedAllTheSame) {
    ReporterFixture fixture;
    fixture.provider.MakeMissing();
    EXPECT_EQ(ShownText(fixture, kProviderCode, "Cryptocontext initialization", nullptr),
              L"Cryptocontext initialization.\r\nXSIG error 0xE0700012 - Error description not found.");
}

TEST(ReportError, FormatAndArgumentAreWidenedFromTheSystemsCodePage) {
    ReporterFixture fixture(CodePage::kCyrillic);
    EXPECT_EQ(ShownText(fixture, 5, "\xD4\xE0\xE9\xEB %s", "\xEF\xF0\xE0\xE2\xE8\xEB\xE0.prx"),
              L"Файл правила.prx.\r\nError 0x5 - System text 5.");
}

TEST(ReportError, TheSameBytesReadDifferentlyUnderAnotherCodePage) {
    ReporterFixture fixture(CodePage::kLatin);
    EXPECT_EQ(ShownText(fixture, 5, "Opening file %s", "\xEF\xF0"),
              L"Opening file ïð.\r\nError 0x5 - System text 5.");
}

TEST(ReportError, PercentSignsInTheArgumentAreOrdinaryCharacters) {
    ReporterFixture fixture;
    EXPECT_EQ(ShownText(fixture, 5, "Opening file %s", "%s 100%d.txt"),
              L"Opening file %s 100%d.txt.\r\nError 0x5 - System text 5.");
}

TEST(ReportError, PercentSignsInADescriptionAreOrdinaryCharacters) {
    ReporterFixture fixture;
    fixture.messages.SetSystemText(34, L"Wrong disk in %2 (%3).");
    EXPECT_EQ(ShownText(fixture, 34, "Memory allocation", nullptr),
              L"Memory allocation.\r\nError 0x22 - Wrong disk in %2 (%3).");
}

TEST(ReportError, AnArgumentThatTheFormatHasNoPlaceForIsLeftOut) {
    ReporterFixture fixture;
    EXPECT_EQ(ShownText(fixture, 5, "Memory allocation", "unused"),
              L"Memory allocation.\r\nError 0x5 - System text 5.");
}

TEST(ReportError, ALiveOwnerOwnsTheReport) {
    ReporterFixture fixture;
    const toolkit::WindowHandle owner = RecordingPresenter::Window(9);
    fixture.presenter.MakeLive(owner);
    fixture.reporter.ReportError(owner, 0, reporting::kShowReport, 5, "Memory allocation", nullptr, nullptr);
    EXPECT_EQ(fixture.presenter.Boxes().front().owner, owner);
}

TEST(ReportError, AnOwnerThatIsGoneMeansAReportWithoutOwner) {
    ReporterFixture fixture;
    fixture.reporter.ReportError(RecordingPresenter::Window(9), 0, reporting::kShowReport, 5,
                                 "Memory allocation", nullptr, nullptr);
    ASSERT_EQ(fixture.presenter.Boxes().size(), 1U);
    EXPECT_EQ(fixture.presenter.Boxes().front().owner, nullptr);
}

TEST(ReportError, NothingIsKeptFromOneReportToTheNext) {
    ReporterFixture fixture;
    std::wstring text = L" First detail";
    fixture.reporter.ReportError(nullptr, 0, reporting::kShowReport, 5, "First", &text, nullptr);
    fixture.presenter.Clear();
    EXPECT_EQ(ShownText(fixture, 6, "Second", nullptr), L"Second.\r\nError 0x6 - System text 6.");
}

// A machine whose memory runs out while a text is converted.
class ExhaustedText : public toolkit::SystemText {
  public:
    [[nodiscard]] std::string Narrow(std::wstring_view /*text*/) const override { throw std::bad_alloc(); }
    [[nodiscard]] std::wstring Widen(std::string_view /*text*/) const override { throw std::bad_alloc(); }
    [[nodiscard]] std::wstring UpperCase(std::wstring_view /*text*/) const override {
        throw std::bad_alloc();
    }
    [[nodiscard]] std::wstring LowerCase(std::wstring_view /*text*/) const override {
        throw std::bad_alloc();
    }
};

TEST(ReportError, ShortMemoryGivesTheCodeAndDoesNotThrow) {
    ReporterFixture fixture;
    const ExhaustedText exhausted;
    reporting::ErrorReporter reporter(fixture.presenter, fixture.messages, fixture.provider, exhausted);
    std::wstring text = L"as it was";
    EXPECT_EQ(
        reporter.ReportError(nullptr, 0, reporting::kShowReport, 8, "Memory allocation", &text, nullptr), 8U);
    EXPECT_EQ(text, L"as it was");
}

TEST(PopProviderErrors, ShortMemoryWhileAnEntryIsReadReleasesItsTexts) {
    ReporterFixture fixture;
    const ExhaustedText exhausted;
    reporting::ErrorReporter reporter(fixture.presenter, fixture.messages, fixture.provider, exhausted);
    fixture.provider.PushError(kSession, {"text", "file", 1, "data"});
    std::wstring description;
    EXPECT_THROW(reporter.AppendProviderErrorStack(kSession, description), std::bad_alloc);
    EXPECT_EQ(fixture.provider.TextsOut(), 0U);
    EXPECT_EQ(fixture.provider.Released().size(), 3U);
}

}  // namespace
}  // namespace corvane::test
