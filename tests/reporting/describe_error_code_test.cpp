#include <gtest/gtest.h>

#include "tests/kit/fixtures/reporter_fixture.h"
#include "tests/reporting/failed_call.h"

namespace corvane::test {
namespace {

std::wstring Describe(ReporterFixture& fixture, std::uint32_t code, provider::ProviderContext session = 0) {
    std::wstring description = L"what was there before";
    fixture.reporter.DescribeErrorCode(code, description, session);
    return description;
}

TEST(DescribeErrorCode, NineHighestCodesAreBadParameters) {
    ReporterFixture fixture;
    for (std::uint32_t code = 0xFFFFFFF7; code != 0; ++code) {
        EXPECT_EQ(Describe(fixture, code), L"Bad parameter") << std::hex << code;
    }
    EXPECT_TRUE(fixture.provider.AskedCapacities().empty());
}

TEST(DescribeErrorCode, TheCodeBelowTheParameterErrorsIsTheProviders) {
    ReporterFixture fixture;
    fixture.provider.SetErrorText(0xFFFFFFF6, "Of the provider");
    EXPECT_EQ(Describe(fixture, 0xFFFFFFF6), L"Of the provider");
}

TEST(DescribeErrorCode, ABadParameterHasNoErrorStack) {
    ReporterFixture fixture;
    fixture.provider.PushError(kSession, {"text", "file", 1, "data"});
    EXPECT_EQ(Describe(fixture, 0xFFFFFFFF, kSession), L"Bad parameter");
    EXPECT_EQ(fixture.provider.ErrorLineCalls(), 0U);
}

TEST(DescribeErrorCode, AProviderCodeIsDescribedByTheProvider) {
    ReporterFixture fixture;
    fixture.provider.SetErrorText(kProviderCode, "Certificate has expired");
    EXPECT_EQ(Describe(fixture, kProviderCode), L"Certificate has expired");
}

TEST(DescribeErrorCode, ZeroIsDescribedByTheProvider) {
    ReporterFixture fixture;
    fixture.provider.SetErrorText(0, "No error");
    fixture.messages.SetSystemText(0, L"The operation completed successfully.\r\n");
    EXPECT_EQ(Describe(fixture, 0), L"No error");
}

TEST(DescribeErrorCode, TheProviderIsGivenABufferOf1024Bytes) {
    ReporterFixture fixture;
    Describe(fixture, kProviderCode);
    EXPECT_EQ(fixture.provider.AskedCapacities(), std::vector<std::uint32_t>{1024});
}

TEST(DescribeErrorCode, AProviderTextIsWidenedFromTheSystemsCodePage) {
    ReporterFixture fixture(CodePage::kCyrillic);
    fixture.provider.SetErrorText(kProviderCode, "\xCE\xF8\xE8\xE1\xEA\xE0");
    EXPECT_EQ(Describe(fixture, kProviderCode), L"Ошибка");
}

TEST(DescribeErrorCode, AProviderTextThatFillsItsBufferNeedsNoTerminator) {
    ReporterFixture fixture;
    fixture.provider.SetErrorText(kProviderCode, std::string(1024, 'x'));
    EXPECT_EQ(Describe(fixture, kProviderCode), std::wstring(1024, L'x'));
}

TEST(DescribeErrorCode, AProviderTextThatIsTooLongIsWhatFitsTheBuffer) {
    ReporterFixture fixture;
    fixture.provider.SetErrorText(kProviderCode, std::string(5000, 'y'));
    EXPECT_EQ(Describe(fixture, kProviderCode), std::wstring(1024, L'y'));
}

TEST(DescribeErrorCode, AProviderCodeWithoutTextSaysThatThereIsNone) {
    ReporterFixture fixture;
    EXPECT_EQ(Describe(fixture, kProviderCode), L"Error description not found");
}

TEST(DescribeErrorCode, AnEmptyProviderTextCountsAsNone) {
    ReporterFixture fixture;
    fixture.provider.SetErrorText(kProviderCode, "");
    EXPECT_EQ(Describe(fixture, kProviderCode), L"Error description not found");
}

TEST(DescribeErrorCode, WithoutTheLibraryAProviderCodeSaysThatThereIsNoText) {
    ReporterFixture fixture;
    fixture.provider.SetErrorText(kProviderCode, "never seen");
    fixture.provider.MakeMissing();
    EXPECT_EQ(Describe(fixture, kProviderCode), L"Error description not found");
    EXPECT_EQ(Describe(fixture, 0), L"Error description not found");
    EXPECT_EQ(Describe(fixture, kProviderCode, kSession), L"Error description not found");
}

TEST(DescribeErrorCode, AProviderCodeIsNeverLookedUpInTheSystem) {
    ReporterFixture fixture;
    fixture.messages.SetSystemText(kProviderCode, L"of the system");
    fixture.messages.SetInternetText(kProviderCode, L"of the internet module");
    EXPECT_EQ(Describe(fixture, kProviderCode), L"Error description not found");
}

TEST(DescribeErrorCode, TwoStackEntriesFollowTheTextAndTheLastLosesItsEnd) {
    ReporterFixture fixture;
    fixture.provider.SetErrorText(kProviderCode, "Cannot open the profile.\r\n");
    fixture.provider.PushError(kSession, {"no such profile", "profile.c", 120, "name=main"});
    fixture.provider.PushError(kSession, {"initialisation failed", "init.c", 7, "step 2"});
    EXPECT_EQ(Describe(fixture, kProviderCode, kSession),
              L"Cannot open the profile\r\n"
              L"no such profile,\r\nfile: profile.c, line 120, data: name=main.\r\n"
              L"initialisation failed,\r\nfile: init.c, line 7, data: step 2");
}

TEST(DescribeErrorCode, AnEmptyStackLeavesNothingBehind) {
    ReporterFixture fixture;
    fixture.provider.SetErrorText(kProviderCode, "Cannot open the profile.");
    EXPECT_EQ(Describe(fixture, kProviderCode, kSession), L"Cannot open the profile");
}

TEST(DescribeErrorCode, TheStackIsAddedEvenWhereTheCodeHasNoText) {
    ReporterFixture fixture;
    fixture.provider.PushError(kSession, {"a", "b", 1, "c"});
    EXPECT_EQ(Describe(fixture, kProviderCode, kSession),
              L"Error description not found\r\na,\r\nfile: b, line 1, data: c");
}

TEST(DescribeErrorCode, WithoutASessionTheStackIsNotRead) {
    ReporterFixture fixture;
    fixture.provider.SetErrorText(kProviderCode, "text");
    fixture.provider.PushError(0, {"of a failed initialisation", "f", 1, "d"});
    EXPECT_EQ(Describe(fixture, kProviderCode, 0), L"text");
    EXPECT_EQ(fixture.provider.ErrorLineCalls(), 0U);
}

TEST(DescribeErrorCode, ASystemCodeIsDescribedByTheSystem) {
    ReporterFixture fixture;
    fixture.messages.SetSystemText(5, L"Access denied.\r\n");
    fixture.messages.SetInternetText(5, L"of the internet module");
    EXPECT_EQ(Describe(fixture, 5), L"Access denied");
}

TEST(DescribeErrorCode, TheTopBitAloneDoesNotMakeACodeTheProviders) {
    ReporterFixture fixture;
    EXPECT_EQ(Describe(fixture, 0x80070005), L"System text 2147942405");
}

TEST(DescribeErrorCode, ASystemCodeHasNoErrorStack) {
    ReporterFixture fixture;
    fixture.provider.PushError(kSession, {"text", "file", 1, "data"});
    EXPECT_EQ(Describe(fixture, 5, kSession), L"System text 5");
    EXPECT_EQ(fixture.provider.ErrorLineCalls(), 0U);
}

TEST(DescribeErrorCode, ACodeThatTheSystemDoesNotKnowIsLookedUpInTheInternetModule) {
    ReporterFixture fixture;
    fixture.messages.RemoveSystemText(12007);
    fixture.messages.SetInternetText(12007, L"The server name could not be resolved\r\n");
    EXPECT_EQ(Describe(fixture, 12007), L"The server name could not be resolved");
}

TEST(DescribeErrorCode, ACodeThatNobodyKnowsSaysSo) {
    ReporterFixture fixture;
    fixture.messages.RemoveSystemText(4711);
    EXPECT_EQ(Describe(fixture, 4711), L"Error description not found");
}

TEST(DescribeErrorCode, PointsAndLineEndsAreCutInAnyOrderButSpacesStay) {
    ReporterFixture fixture;
    fixture.messages.SetSystemText(5, L"It. Failed\n.\r..\r\n\r\n");
    fixture.messages.SetSystemText(6, L"It failed. \r\n");
    fixture.messages.SetSystemText(7, L"...\r\n");
    EXPECT_EQ(Describe(fixture, 5), L"It. Failed");
    EXPECT_EQ(Describe(fixture, 6), L"It failed. ");
    EXPECT_EQ(Describe(fixture, 7), L"");
}

}  // namespace
}  // namespace corvane::test
