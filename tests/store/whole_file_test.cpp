#include "store/whole_file.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <vector>

#include "tests/kit/fakes/memory_files.h"
#include "tests/kit/fixtures/reporter_fixture.h"

namespace corvane::test {
namespace {

constexpr wchar_t kPath[] = L"C:\\folder\\file.txt";

std::vector<FileOperation> Operations(const MemoryFiles& files) {
    std::vector<FileOperation> operations;
    for (const FileCall& call : files.Calls()) {
        operations.push_back(call.operation);
    }
    return operations;
}

// What a test of whole files needs; at its end every file must have been closed, and none twice.
struct WholeFileTest : public ::testing::Test {
    store::WholeFile File(const wchar_t* path = kPath) {
        return store::WholeFile(path, files, reports.reporter, owner);
    }

    void TearDown() override {
        EXPECT_EQ(files.OpenHandles(), 0U);
        EXPECT_EQ(files.Misuses(), 0U);
    }

    MemoryFiles files;
    ReporterFixture reports;
    toolkit::WindowHandle owner = nullptr;
};

using WholeFileRead = WholeFileTest;
using WholeFileWrite = WholeFileTest;

TEST_F(WholeFileRead, GivesTheBytesAsTheyAre) {
    const std::string bytes("a\0\xFF\r\n\x1A", 6);
    files.contents[kPath] = bytes;
    EXPECT_EQ(File().Read(), bytes);
    EXPECT_EQ(reports.presenter.Boxes().size(), 0U);
    EXPECT_EQ(Operations(files), (std::vector{FileOperation::kOpen, FileOperation::kSize,
                                              FileOperation::kRead, FileOperation::kClose}));
}

TEST_F(WholeFileRead, AnEmptyFileIsNoFailure) {
    files.contents[kPath] = "";
    EXPECT_EQ(File().Read(), std::string());
    EXPECT_EQ(reports.presenter.Boxes().size(), 0U);
}

TEST_F(WholeFileRead, AFileThatComesInPiecesIsReadWhole) {
    files.contents[kPath] = "seven letters and more";
    files.LimitReads(3);
    EXPECT_EQ(File().Read(), "seven letters and more");
}

TEST_F(WholeFileRead, AFileThatShrinksGivesWhatIsLeft) {
    files.contents[kPath] = "short";
    files.PretendSize(100);
    EXPECT_EQ(File().Read(), "short");
    EXPECT_EQ(reports.presenter.Boxes().size(), 0U);
}

TEST_F(WholeFileRead, AFileThatIsEmptiedGivesNothing) {
    files.contents[kPath] = "";
    files.PretendSize(100);
    EXPECT_EQ(File().Read(), std::string());
}

TEST_F(WholeFileRead, OfAFileThatGrowsTheFirstPartIsTaken) {
    files.contents[kPath] = "first part, second part";
    files.PretendSize(10);
    EXPECT_EQ(File().Read(), "first part");
}

TEST_F(WholeFileRead, AFileLargerThanAnyMemoryIsReportedAsAFailedRead) {
    files.contents[kPath] = "x";
    files.PretendSize(UINT64_MAX);
    EXPECT_EQ(File().Read(), std::nullopt);
    EXPECT_EQ(reports.presenter.OnlyText(),
              L"Reading file C:\\folder\\file.txt.\r\nError 0x8 - System text 8.");
    EXPECT_EQ(Operations(files),
              (std::vector{FileOperation::kOpen, FileOperation::kSize, FileOperation::kClose}));
}

// AddressSanitizer ends the program on such an allocation instead of throwing.
#if !defined(__has_feature)
#define CORVANE_ALLOCATION_FAILURES_THROW 1
#elif !__has_feature(address_sanitizer)
#define CORVANE_ALLOCATION_FAILURES_THROW 1
#endif
#if defined(CORVANE_ALLOCATION_FAILURES_THROW)
TEST_F(WholeFileRead, AFileThatFitsTheAddressesButNotTheMemoryIsReportedAsAFailedRead) {
    files.contents[kPath] = "x";
    files.PretendSize(std::uint64_t{1} << 55U);
    EXPECT_EQ(File().Read(), std::nullopt);
    EXPECT_EQ(reports.presenter.OnlyText(),
              L"Reading file C:\\folder\\file.txt.\r\nError 0x8 - System text 8.");
}
#endif

TEST_F(WholeFileRead, AMissingFileIsReportedWithTheOwnerTheTitleAndTheErrorStyle) {
    owner = RecordingPresenter::Window(7);
    reports.presenter.MakeLive(owner);
    EXPECT_EQ(File().Read(), std::nullopt);
    EXPECT_EQ(
        reports.presenter.Boxes(),
        (std::vector{ShownBox{owner, L"Opening file C:\\folder\\file.txt.\r\nError 0x2 - System text 2.",
                              L"QENT AC Velmaris - configuration", 0x10}}));
}

TEST_F(WholeFileRead, ACyrillicPathIsShownAsItIsUnder1251) {
    EXPECT_EQ(File(L"C:\\\x041F\x0440\x0430\x0432\x0438\x043B\x0430").Read(), std::nullopt);
    EXPECT_EQ(reports.presenter.OnlyText(),
              L"Opening file C:\\\x041F\x0440\x0430\x0432\x0438\x043B\x0430.\r\nError 0x2 - System text 2.");
}

TEST_F(WholeFileRead, WhatTheCodePageLacksIsReplacedInTheReportOnly) {
    files.contents[L"C:\\\x65E5"] = "x";
    EXPECT_EQ(File(L"C:\\\x65E5").Read(), "x");
    files.contents.clear();
    EXPECT_EQ(File(L"C:\\\x65E5").Read(), std::nullopt);
    EXPECT_EQ(reports.presenter.OnlyText(), L"Opening file C:\\?.\r\nError 0x2 - System text 2.");
}

TEST_F(WholeFileRead, APercentSignInThePathIsNoFormat) {
    EXPECT_EQ(File(L"C:\\100%s%d").Read(), std::nullopt);
    EXPECT_EQ(reports.presenter.OnlyText(), L"Opening file C:\\100%s%d.\r\nError 0x2 - System text 2.");
}

TEST_F(WholeFileRead, AFailedCloseIsReportedAndGivesNoBytes) {
    files.contents[kPath] = "abc";
    files.FailCall(3, 5);
    EXPECT_EQ(File().Read(), std::nullopt);
    EXPECT_EQ(reports.presenter.OnlyText(),
              L"Closing file C:\\folder\\file.txt.\r\nError 0x5 - System text 5.");
}

TEST_F(WholeFileRead, AfterAFailedReadAFailedCloseIsNotReportedToo) {
    files.contents[kPath] = "abc";
    files.FailCall(2, 1117);
    files.FailCall(3, 5);
    EXPECT_EQ(File().Read(), std::nullopt);
    EXPECT_EQ(reports.presenter.OnlyText(),
              L"Reading file C:\\folder\\file.txt.\r\nError 0x45D - System text 1117.");
}

TEST_F(WholeFileRead, AFailureInASecondPieceFailsTheWhole) {
    files.contents[kPath] = "abcdef";
    files.LimitReads(4);
    files.FailCall(3, 1117);
    EXPECT_EQ(File().Read(), std::nullopt);
    EXPECT_EQ(reports.presenter.OnlyText(),
              L"Reading file C:\\folder\\file.txt.\r\nError 0x45D - System text 1117.");
}

TEST_F(WholeFileWrite, WritesTheBytesAsTheyAre) {
    const std::string bytes("a\0\xFF\n\r", 5);
    EXPECT_TRUE(File().Write(bytes));
    EXPECT_EQ(files.contents[kPath], bytes);
    EXPECT_EQ(Operations(files),
              (std::vector{FileOperation::kCreate, FileOperation::kWrite, FileOperation::kClose}));
}

TEST_F(WholeFileWrite, ReplacesAnExistingFile) {
    files.contents[kPath] = "something longer than what comes";
    EXPECT_TRUE(File().Write("new"));
    EXPECT_EQ(files.contents[kPath], "new");
}

TEST_F(WholeFileWrite, NoBytesMakeAnEmptyFile) {
    files.contents[kPath] = "old";
    EXPECT_TRUE(File().Write(""));
    EXPECT_EQ(files.contents[kPath], "");
    EXPECT_EQ(Operations(files), (std::vector{FileOperation::kCreate, FileOperation::kClose}));
}

TEST_F(WholeFileWrite, APartialWriteGoesOnUntilAllIsWritten) {
    files.LimitWrites(4);
    EXPECT_TRUE(File().Write("abcdefghij"));
    EXPECT_EQ(files.contents[kPath], "abcdefghij");
    EXPECT_EQ(files.Calls().size(), 5U);
}

TEST_F(WholeFileWrite, AWriteThatTakesNothingIsAFailureAndNoEndlessLoop) {
    files.LimitWrites(0);
    EXPECT_FALSE(File().Write("abc"));
    EXPECT_EQ(reports.presenter.OnlyText(),
              L"Writing file C:\\folder\\file.txt.\r\nError 0x1D - System text 29.");
    EXPECT_EQ(Operations(files),
              (std::vector{FileOperation::kCreate, FileOperation::kWrite, FileOperation::kClose}));
}

TEST_F(WholeFileWrite, AFailureInASecondPieceIsReportedAndWhatWasWrittenStays) {
    files.LimitWrites(4);
    files.FailCall(2, 112);
    EXPECT_FALSE(File().Write("abcdefghij"));
    EXPECT_EQ(reports.presenter.OnlyText(),
              L"Writing file C:\\folder\\file.txt.\r\nError 0x70 - System text 112.");
    EXPECT_EQ(files.contents[kPath], "abcd");
}

TEST_F(WholeFileWrite, AFailedCreateIsReportedAndNothingElseIsCalled) {
    files.contents[kPath] = "old";
    files.FailCall(0, 32);
    EXPECT_FALSE(File().Write("new"));
    EXPECT_EQ(reports.presenter.OnlyText(),
              L"Creating file C:\\folder\\file.txt.\r\nError 0x20 - System text 32.");
    EXPECT_EQ(files.contents[kPath], "old");
    EXPECT_EQ(files.Calls().size(), 1U);
}

TEST_F(WholeFileWrite, AFailedCloseIsReportedAndFails) {
    files.FailCall(2, 112);
    EXPECT_FALSE(File().Write("abc"));
    EXPECT_EQ(reports.presenter.OnlyText(),
              L"Closing file C:\\folder\\file.txt.\r\nError 0x70 - System text 112.");
}

TEST_F(WholeFileWrite, AfterAFailedWriteAFailedCloseIsNotReportedToo) {
    files.FailCall(1, 112);
    files.FailCall(2, 6);
    EXPECT_FALSE(File().Write("abc"));
    EXPECT_EQ(reports.presenter.OnlyText(),
              L"Writing file C:\\folder\\file.txt.\r\nError 0x70 - System text 112.");
}

// Sees whether files are open at the moment at which a box is shown.
class OpenFilesWatcher : public RecordingPresenter {
  public:
    explicit OpenFilesWatcher(const MemoryFiles& files) : files_(files) {}

    int Show(toolkit::WindowHandle owner, const std::wstring& text, const std::wstring& title,
             std::uint32_t style) override {
        openWhenShown += files_.OpenHandles();
        return RecordingPresenter::Show(owner, text, title, style);
    }

    std::size_t openWhenShown = 0;

  private:
    const MemoryFiles& files_;
};

TEST_F(WholeFileTest, TheFileIsNoLongerLockedWhileAReportIsShown) {
    OpenFilesWatcher presenter(files);
    reporting::ErrorReporter reporter(presenter, reports.messages, reports.provider, reports.text);
    files.contents[kPath] = "abc";
    files.FailCall(2, 1117);
    EXPECT_EQ(store::WholeFile(kPath, files, reporter, nullptr).Read(), std::nullopt);
    files.FailCall(files.Calls().size() + 1, 112);
    EXPECT_FALSE(store::WholeFile(kPath, files, reporter, nullptr).Write("abc"));
    EXPECT_EQ(presenter.Boxes().size(), 2U);
    EXPECT_EQ(presenter.openWhenShown, 0U);
}

}  // namespace
}  // namespace corvane::test
