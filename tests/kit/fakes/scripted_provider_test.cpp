#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/kit/fakes/scripted_provider.h"

namespace corvane::test {
namespace {

TEST(ScriptedProvider, ATextIsOutUntilItComesBack) {
    ScriptedProvider provider;
    provider.PushError(1, {"text", std::nullopt, 2, std::nullopt});
    const provider::ProviderFunctions& functions = *provider.Functions();
    provider::XsigBlob text;
    provider::XsigBlob file;
    provider::XsigBlob data;
    std::uint32_t line = 0;
    ASSERT_EQ(functions.getErrorLine(1, &text, &file, &line, &data), 0U);
    EXPECT_EQ(provider.TextsOut(), 1U);
    EXPECT_EQ(functions.freeMem(1, text.data), 0U);
    EXPECT_EQ(provider.TextsOut(), 0U);
    EXPECT_EQ(provider.WrongReleases(), 0U);
}

TEST(ScriptedProvider, ASecondOrForeignReleaseIsCounted) {
    ScriptedProvider provider;
    char foreign = 'x';
    EXPECT_NE(provider.Functions()->freeMem(0, &foreign), 0U);
    EXPECT_NE(provider.Functions()->freeMem(0, nullptr), 0U);
    EXPECT_EQ(provider.WrongReleases(), 2U);
}

TEST(ScriptedProvider, ACallThatCannotBeLaidDownIsCountedAndFails) {
    ScriptedProvider provider;
    provider::ProviderContext context = 0;
    EXPECT_NE(provider.Functions()->initialize("name", 0, &context), 0U);
    EXPECT_NE(provider.Functions()->uninitialize(1), 0U);
    EXPECT_EQ(provider.UnexpectedCalls(), 2U);
}

TEST(ScriptedProvider, AMissingLibraryTellsWhatIsMissing) {
    ScriptedProvider provider;
    EXPECT_NE(provider.Functions(), nullptr);
    EXPECT_EQ(provider.LastFailure().code, 0U);
    provider.MakeMissing();
    EXPECT_EQ(provider.Functions(), nullptr);
    EXPECT_EQ(provider.LastFailure().code, 126U);
    EXPECT_EQ(provider.LastFailure().missing, "tarn1.dll");
}

TEST(ScriptedProvider, TwoAtOnceAreRefused) {
    const ScriptedProvider provider;
    EXPECT_THROW(ScriptedProvider(), std::logic_error);
}

}  // namespace
}  // namespace corvane::test
