#include "toolkit/files/paths.h"

#include <gtest/gtest.h>

namespace corvane::test {
namespace {

// Names of twenty characters, each behind a separator, until the path has as many characters as wanted.
std::wstring Grown(std::wstring path, std::size_t size, wchar_t separator = L'\\') {
    while (path.size() < size) {
        path += separator + std::wstring(std::min<std::size_t>(20, size - path.size() - 1), L'a');
    }
    return path;
}

constexpr std::size_t kFirstLong = 260;

TEST(LongPathForm, APathThatTheSystemTakesByItselfStays) {
    for (const std::wstring& path : {std::wstring(), std::wstring(L"C:/in//a"),
                                     std::wstring(L"\\\\server\\share\\a"), std::wstring(L"a")}) {
        EXPECT_EQ(toolkit::LongPathForm(path), path);
    }
    const std::wstring longest = Grown(L"C:", kFirstLong - 1);
    EXPECT_EQ(toolkit::LongPathForm(longest), longest);
}

TEST(LongPathForm, ALongPathFromADriveGetsThePrefix) {
    const std::wstring path = Grown(L"C:", kFirstLong);
    ASSERT_EQ(path.size(), kFirstLong);
    EXPECT_EQ(toolkit::LongPathForm(path), L"\\\\?\\" + path);
    const std::wstring lowerCase = Grown(L"z:", 1000);
    EXPECT_EQ(toolkit::LongPathForm(lowerCase), L"\\\\?\\" + lowerCase);
}

TEST(LongPathForm, ALongNetworkPathGetsThePrefixOfTheNetwork) {
    const std::wstring path = Grown(L"\\\\server\\share", kFirstLong);
    EXPECT_EQ(toolkit::LongPathForm(path), L"\\\\?\\UNC" + path.substr(1));
}

TEST(LongPathForm, SlashesBecomeBackslashes) {
    const std::wstring tail = Grown(L"", kFirstLong);
    const std::wstring slashed = Grown(L"", kFirstLong, L'/');
    EXPECT_EQ(toolkit::LongPathForm(L"C:" + slashed), L"\\\\?\\C:" + tail);
    EXPECT_EQ(toolkit::LongPathForm(L"//server/share" + slashed), L"\\\\?\\UNC\\server\\share" + tail);
}

TEST(LongPathForm, RepeatedSeparatorsBecomeOneAndOneAtTheEndStays) {
    const std::wstring tail = Grown(L"", kFirstLong);
    EXPECT_EQ(toolkit::LongPathForm(L"C:\\\\in//" + tail.substr(1) + L"\\\\"),
              L"\\\\?\\C:\\in" + tail + L"\\");
}

TEST(LongPathForm, StepsToTheSameAndToTheOuterFolderAreTaken) {
    const std::wstring tail = Grown(L"", kFirstLong);
    EXPECT_EQ(toolkit::LongPathForm(L"C:\\.\\in\\..\\out" + tail + L"\\."), L"\\\\?\\C:\\out" + tail);
    EXPECT_EQ(toolkit::LongPathForm(L"C:\\..\\.." + tail), L"\\\\?\\C:" + tail)
        << "nothing is outside of a drive";
    EXPECT_EQ(toolkit::LongPathForm(L"\\\\server\\share\\..\\.." + tail), L"\\\\?\\UNC\\server\\share" + tail)
        << "nor of a share";
    EXPECT_EQ(toolkit::LongPathForm(L"C:\\...\\a.." + tail), L"\\\\?\\C:\\...\\a.." + tail)
        << "these are names";
}

TEST(LongPathForm, APathThatIsNotAbsoluteStays) {
    const std::wstring tail = Grown(L"", kFirstLong);
    for (const wchar_t* const start : {L"in", L"C:in", L"", L"1:", L"CD:", L"."}) {
        EXPECT_EQ(toolkit::LongPathForm(start + tail), start + tail);
    }
}

TEST(LongPathForm, APathWithAPrefixStays) {
    const std::wstring tail = Grown(L"", kFirstLong, L'/');
    for (const wchar_t* const start :
         {L"\\\\?\\C:", L"\\\\?\\UNC\\server\\share", L"\\\\.\\C:", L"\\\\\\a"}) {
        EXPECT_EQ(toolkit::LongPathForm(start + tail), start + tail);
    }
}

}  // namespace
}  // namespace corvane::test
