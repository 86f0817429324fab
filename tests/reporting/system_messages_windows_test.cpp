#include <gtest/gtest.h>
#include <windows.h>

#include "reporting/system_messages.h"
#include "toolkit/system/handles.h"

namespace corvane::test {
namespace {

// The texts are in the user's language, so only their shape is known.

// The name of a server could not be resolved: a code of the internet functions alone.
constexpr std::uint32_t kNameNotResolved = 12007;
constexpr std::uint32_t kNoCodeAtAll = 0x0FFFFFF1;

TEST(WindowsSystemMessages, TheSystemHasATextForItsCode) {
    const std::optional<std::wstring> text =
        reporting::WindowsSystemMessages().FromSystem(ERROR_ACCESS_DENIED);
    ASSERT_TRUE(text.has_value());
    EXPECT_GT(text->size(), 5U);
    EXPECT_TRUE(text->ends_with(L"\n")) << "The text comes as it stands in the table";
    EXPECT_EQ(text->find(L'\0'), std::wstring::npos);
}

TEST(WindowsSystemMessages, PlacesForInsertsStayAsTheyAre) {
    const std::optional<std::wstring> text =
        reporting::WindowsSystemMessages().FromSystem(ERROR_BAD_EXE_FORMAT);
    ASSERT_TRUE(text.has_value());
    EXPECT_NE(text->find(L"%1"), std::wstring::npos);
}

TEST(WindowsSystemMessages, ACodeThatTheSystemDoesNotKnowHasNoText) {
    EXPECT_EQ(reporting::WindowsSystemMessages().FromSystem(kNoCodeAtAll), std::nullopt);
    EXPECT_EQ(reporting::WindowsSystemMessages().FromSystem(kNameNotResolved), std::nullopt);
}

TEST(WindowsSystemMessages, TheInternetModulesTextIsFoundWhetherOrNotItIsLoaded) {
    ASSERT_EQ(GetModuleHandleW(L"wininet.dll"), nullptr) << "Nothing here may have loaded it yet";
    const std::optional<std::wstring> unloaded =
        reporting::WindowsSystemMessages().FromInternetModule(kNameNotResolved);
    ASSERT_TRUE(unloaded.has_value());
    EXPECT_GT(unloaded->size(), 5U);
    EXPECT_EQ(GetModuleHandleW(L"wininet.dll"), nullptr) << "It is not kept";

    const toolkit::UniqueModule loaded(LoadLibraryExW(L"wininet.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32));
    ASSERT_TRUE(loaded);
    EXPECT_EQ(reporting::WindowsSystemMessages().FromInternetModule(kNameNotResolved), unloaded);
}

TEST(WindowsSystemMessages, ACodeThatTheInternetModuleDoesNotKnowHasNoText) {
    EXPECT_EQ(reporting::WindowsSystemMessages().FromInternetModule(kNoCodeAtAll), std::nullopt);
}

TEST(WindowsSystemMessages, TheInternetModulesTableIsNotTheSystems) {
    EXPECT_EQ(reporting::WindowsSystemMessages().FromInternetModule(ERROR_ACCESS_DENIED), std::nullopt);
}

}  // namespace
}  // namespace corvane::test
