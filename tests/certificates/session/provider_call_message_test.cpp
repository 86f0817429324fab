#include "certificates/session/provider_call_message.h"

#include <gmock/gmock.h>

#include "reporting/message_styles.h"
#include "reporting/provider_error_stack.h"
#include "tests/certificates/provider_fixture.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;

class ErrorStackText : public CertsFixture {
  protected:
    std::wstring Format(provider::ProviderContext context) {
        return certificates::FormatErrorStack(*sessions_.Functions(), context, Reporter().Text());
    }
};

class ProviderMessage : public CertsFixture {};

TEST_F(ErrorStackText, AnEmptyStackIsAnEmptyText) {
    EXPECT_EQ(Format(5), L"");
    EXPECT_EQ(Reports().provider.ErrorLineCalls(), 1U);
}

TEST_F(ErrorStackText, NumbersItsEntriesAndLeavesTheLineNumberOut) {
    Reports().provider.PushError(5, {"Key not found", "store.c", 77, "CN=A"});
    Reports().provider.PushError(5, {"Store closed", "main.c", 9, "x"});
    EXPECT_EQ(Format(5),
              L"XSIG stek, error number 1\r\nError: Key not found\r\nFile: store.c\r\nData: CN=A\r\n"
              L"XSIG stek, error number 2\r\nError: Store closed\r\nFile: main.c\r\nData: x\r\n");
}

TEST_F(ErrorStackText, EveryTextIsFreedOnceUnderContextZero) {
    Reports().provider.PushError(5, {"a", "b", 1, "c"});
    Format(5);
    EXPECT_THAT(
        Reports().provider.Released(),
        ::testing::UnorderedElementsAre(ReleasedText{0, "a"}, ReleasedText{0, "b"}, ReleasedText{0, "c"}));
}

TEST_F(ErrorStackText, TextsThatComeWithTheEmptyAnswerAreFreedToo) {
    Reports().provider.BringTextsAtTheEnd();
    EXPECT_EQ(Format(5), L"");
    EXPECT_EQ(Reports().provider.Released().size(), 3U);
}

TEST_F(ErrorStackText, NullTextsAreEmpty) {
    Reports().provider.PushError(5, {});
    EXPECT_EQ(Format(5), L"XSIG stek, error number 1\r\nError: \r\nFile: \r\nData: \r\n");
}

TEST_F(ErrorStackText, FormatLettersInTheTextsStayAsTheyAre) {
    Reports().provider.PushError(5, {"%s%d", "%X", 1, "%%"});
    EXPECT_EQ(Format(5), L"XSIG stek, error number 1\r\nError: %s%d\r\nFile: %X\r\nData: %%\r\n");
}

TEST_F(ErrorStackText, BytesAreReadInTheCodePage) {
    Reports().provider.PushError(5, {"\xCE\xF8", "\x98", 1, "d"});
    EXPECT_EQ(Format(5), L"XSIG stek, error number 1\r\nError: \x041E\x0448\r\nFile: \x0098\r\nData: d\r\n");
}

TEST_F(ErrorStackText, AThousandEntriesAreAllShown) {
    for (int i = 0; i < 1000; ++i) {
        Reports().provider.PushError(5, {"t", "f", 1, "d"});
    }
    const std::wstring text = Format(5);
    EXPECT_NE(text.find(L"XSIG stek, error number 1000\r\n"), std::wstring::npos);
    EXPECT_EQ(Reports().provider.Released().size(), 3000U);
}

TEST_F(ErrorStackText, AStackThatNeverEndsIsLeftAtTheBound) {
    Reports().provider.PushError(5, {"t", "f", 1, "d"});
    Reports().provider.NeverPopErrors();
    const std::wstring text = Format(5);
    EXPECT_EQ(Reports().provider.ErrorLineCalls(), reporting::kMostProviderErrors);
    EXPECT_TRUE(text.ends_with(L"error number " + std::to_wstring(reporting::kMostProviderErrors) +
                               L"\r\nError: t\r\nFile: f\r\nData: d\r\n"));
}

TEST_F(ProviderMessage, SaysWhatWasAttemptedTheStatusTheDescriptionAndTheDetails) {
    EXPECT_EQ(certificates::ProviderCallMessage(L"Opening", 0xE0000005, L"No access", L"details"),
              L"Opening.\r\nXSIG error 0xE0000005 - No access.\r\n\r\ndetails");
}

TEST_F(ProviderMessage, WithoutDetailsEndsInABlankLine) {
    EXPECT_EQ(certificates::ProviderCallMessage(L"Opening", 0x80070005, L"No access", L""),
              L"Opening.\r\nError 0x80070005 - No access.\r\n\r\n");
}

TEST_F(ProviderMessage, TheStatusOfAllOnesIsAPlainErrorAndABadParameter) {
    EXPECT_EQ(certificates::DescribeStatus(Reporter(), 0xFFFFFFFF), L"Bad parameter");
    EXPECT_EQ(certificates::ProviderCallMessage(L"O", 0xFFFFFFFF,
                                                certificates::DescribeStatus(Reporter(), 0xFFFFFFFF), L""),
              L"O.\r\nError 0xFFFFFFFF - Bad parameter.\r\n\r\n");
}

TEST_F(ProviderMessage, ASystemCodeHasTheSystemsDescription) {
    Reports().messages.SetSystemText(0x80070005, L"Access is denied.\r\n");
    EXPECT_EQ(certificates::DescribeStatus(Reporter(), 0x80070005), L"Access is denied");
}

TEST_F(ProviderMessage, AProviderCodeHasTheProvidersDescriptionWithoutAnyStack) {
    Reports().provider.SetErrorText(0xE0000005, "No key.");
    EXPECT_EQ(certificates::DescribeStatus(Reporter(), 0xE0000005), L"No key");
    EXPECT_EQ(certificates::DescribeStatus(Reporter(), 0xE0000006), L"Error description not found");
    EXPECT_EQ(Reports().provider.ErrorLineCalls(), 0U);
}

TEST_F(ProviderMessage, AskingToContinueOffersOkAndCancel) {
    Reports().presenter.AnswerNext(reporting::kAnswerOk);
    EXPECT_TRUE(
        certificates::AskToContinue(Reporter(), owner_, L"%s (0x%X).\r\nGo on?", L"No net %d", 0xE0000005));
    Reports().presenter.AnswerNext(reporting::kAnswerCancel);
    EXPECT_FALSE(certificates::AskToContinue(Reporter(), owner_, L"%s (0x%X).\r\nGo on?", L"No net", 5));
    EXPECT_THAT(Boxes(),
                ElementsAre(ShownBox{owner_, L"No net %d (0xE0000005).\r\nGo on?", reporting::AppTitle, 0x31},
                            ShownBox{owner_, L"No net (0x5).\r\nGo on?", reporting::AppTitle, 0x31}));
}

}  // namespace
}  // namespace corvane::test
