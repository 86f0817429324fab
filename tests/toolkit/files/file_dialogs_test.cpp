#include "toolkit/files/path_pickers.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace corvane::test {
namespace {

constexpr DWORD kInvalidFileName = toolkit::kCommonDialogInvalidFileName;

// What file dialogs that are not there were asked, and what they answer. The functions have no other place
// for it.
struct Script {
    std::vector<DWORD> errors;  // One for each dialog, in turn; 0 stands for a cancel.
    bool isChosen = false;      // What follows the errors: a choice, or nothing.
    bool changesFolder = false;
    std::vector<std::wstring> offered;
    DWORD lastError = 0;
    DWORD flags = 0;
};

Script& TheScript() {
    static Script script;
    return script;
}

BOOL WINAPI AnswerFileDialog(OPENFILENAMEW* request) {
    Script& script = TheScript();
    script.offered.emplace_back(request->lpstrFile);
    script.flags = request->Flags;
    if (script.changesFolder) {
        std::array<wchar_t, MAX_PATH> folder{};
        GetSystemDirectoryW(folder.data(), MAX_PATH);
        SetCurrentDirectoryW(folder.data());
    }
    if (script.offered.size() <= script.errors.size()) {
        script.lastError = script.errors[script.offered.size() - 1];
        return FALSE;
    }
    const std::wstring chosen = L"C:\\chosen.prx";
    chosen.copy(request->lpstrFile, chosen.size());
    request->lpstrFile[chosen.size()] = L'\0';
    return TRUE;
}

DWORD WINAPI AnswerLastError() {
    return TheScript().lastError;
}

class ShownFileDialog : public ::testing::Test {
  protected:
    ShownFileDialog() { TheScript() = {}; }

    static toolkit::PathChoice Show(const toolkit::FileDialogOffer& offer) {
        return toolkit::ShowFileDialog({.ask = &AnswerFileDialog, .lastError = &AnswerLastError}, nullptr,
                                       offer, OFN_FILEMUSTEXIST);
    }
    static toolkit::PathChoice ShowWithName(const std::wstring& name) {
        return Show(
            {.fileName = name, .folder = {}, .defaultExtension = L"prx", .filter = L"All|*.*||", .path = {}});
    }
    static toolkit::PathChoice Failure(DWORD error) { return {{}, toolkit::CommonDialogFailure(error)}; }
};

TEST_F(ShownFileDialog, GivesTheChosenPath) {
    EXPECT_EQ(ShowWithName(L"alpha"), (toolkit::PathChoice{L"C:\\chosen.prx", {}}));
    EXPECT_EQ(TheScript().offered, std::vector<std::wstring>{L"alpha"});
    EXPECT_NE(TheScript().flags & OFN_FILEMUSTEXIST, 0U);
}

TEST_F(ShownFileDialog, ACancelIsNoFailure) {
    TheScript().errors = {0};
    EXPECT_EQ(ShowWithName(L"alpha"), toolkit::PathChoice{});
}

TEST_F(ShownFileDialog, AnyNumberOfTheCommonDialogIsAFailure) {
    for (const DWORD error : {0x1UL, 0x2UL, 0xAUL, 0x3001UL, 0x3003UL, 0xFFFFUL}) {
        TheScript() = {};
        TheScript().errors = {error};
        EXPECT_EQ(ShowWithName(L"alpha"), Failure(error));
        EXPECT_EQ(TheScript().offered.size(), 1U);
    }
}

TEST_F(ShownFileDialog, ANameThatTheSystemRefusesIsLeftOut) {
    TheScript().errors = {kInvalidFileName};
    EXPECT_EQ(ShowWithName(L"CON"), (toolkit::PathChoice{L"C:\\chosen.prx", {}}));
    EXPECT_EQ(TheScript().offered, (std::vector<std::wstring>{L"CON", L""}));
}

TEST_F(ShownFileDialog, APathThatTheSystemRefusesIsLeftOutToo) {
    TheScript().errors = {kInvalidFileName, 0};
    EXPECT_EQ(Show({.fileName = {},
                    .folder = {},
                    .defaultExtension = L"grx",
                    .filter = L"All|*.*||",
                    .path = L"C:\\gone\\a.grx"}),
              toolkit::PathChoice{});
    EXPECT_EQ(TheScript().offered, (std::vector<std::wstring>{L"C:\\gone\\a.grx", L""}));
}

TEST_F(ShownFileDialog, ANameThatIsRefusedTwiceIsAFailure) {
    TheScript().errors = {kInvalidFileName, kInvalidFileName, kInvalidFileName};
    EXPECT_EQ(ShowWithName(L"CON"), Failure(kInvalidFileName));
    EXPECT_EQ(TheScript().offered.size(), 2U);
}

TEST_F(ShownFileDialog, WithoutANameARefusedNameIsAFailureAtOnce) {
    TheScript().errors = {kInvalidFileName, kInvalidFileName};
    EXPECT_EQ(ShowWithName(L""), Failure(kInvalidFileName));
    EXPECT_EQ(TheScript().offered.size(), 1U);
}

TEST_F(ShownFileDialog, LeavesTheCurrentFolderAsItWas) {
    const toolkit::KeptCurrentFolder ofTheTests;
    ASSERT_NE(SetCurrentDirectoryW(L"C:\\"), FALSE);
    for (const std::vector<DWORD>& errors : {std::vector<DWORD>{}, {0}, {2}}) {
        TheScript() = {};
        TheScript().errors = errors;
        TheScript().changesFolder = true;
        static_cast<void>(ShowWithName(L"alpha"));
        std::array<wchar_t, MAX_PATH> folder{};
        GetCurrentDirectoryW(MAX_PATH, folder.data());
        EXPECT_STREQ(folder.data(), L"C:\\");
    }
}

}  // namespace
}  // namespace corvane::test
