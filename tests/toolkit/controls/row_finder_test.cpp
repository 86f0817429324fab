#include "toolkit/controls/row_finder.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>

#include "tests/toolkit/test_dialog.h"

namespace corvane::test {
namespace {

// A list whose rows are supplied by the finder's source. Beneath the finder the control sends the questions
// that a test has put there, as Windows does, instead of those of the system that the test runs on.
class RowFinderTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(dialog_.CreateModeless());
        list_ = CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA, 0,
                                0, 200, 150, dialog_.Window(), nullptr, GetModuleHandleW(nullptr), nullptr);
        SetWindowSubclass(list_, &Control, 1, reinterpret_cast<DWORD_PTR>(this));
        dialog_.onNotify = [this](NMHDR& header, LRESULT& result) {
            if (header.code != LVN_ODFINDITEMW) {
                return false;
            }
            result = finder_->Find(reinterpret_cast<const NMLVFINDITEMW&>(header));
            return true;
        };
        finder_ = std::make_unique<toolkit::RowFinder>(toolkit::RowFinder::Rows{
            .count = [] { return kRows.size(); },
            .text = [](std::size_t row) { return std::wstring_view(kRows.at(row)); },
        });
        finder_->Attach(list_);
        SendMessageW(list_, LVM_SETITEMCOUNT, kRows.size(), 0);
    }
    void TearDown() override { RemoveWindowSubclass(list_, &Control, 1); }

    static LRESULT CALLBACK Control(HWND list, UINT message, WPARAM wParam, LPARAM lParam,
                                    UINT_PTR /*subclass*/, DWORD_PTR self) {
        auto& test = *reinterpret_cast<RowFinderTest*>(self);
        if (message == WM_CHAR) {
            if (test.searchesByMessage_) {
                const LVFINDINFOW search = test.Search(test.flags_);
                test.found_ =
                    static_cast<int>(SendMessageW(list, LVM_FINDITEMW, static_cast<WPARAM>(test.start_ - 1),
                                                  reinterpret_cast<LPARAM>(&search)));
            } else {
                test.found_ = test.Ask(test.start_, test.flags_);
            }
            return 0;
        }
        if (message == LVM_FINDITEMW) {
            return test.Ask(static_cast<int>(wParam) + 1,
                            reinterpret_cast<const LVFINDINFOW*>(lParam)->flags);
        }
        return DefSubclassProc(list, message, wParam, lParam);
    }
    [[nodiscard]] LVFINDINFOW Search(UINT flags) const {
        LVFINDINFOW search = {};
        search.flags = flags;
        search.psz = text_.c_str();
        return search;
    }
    // The control asks its owner.
    [[nodiscard]] int Ask(int start, UINT flags) const {
        NMLVFINDITEMW question = {};
        question.hdr.hwndFrom = list_;
        question.hdr.code = LVN_ODFINDITEMW;
        question.iStart = start;
        question.lvfi = Search(flags);
        return static_cast<int>(
            SendMessageW(dialog_.Window(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&question)));
    }

    // The user has typed `text`, and the control asks with these flags.
    [[nodiscard]] int Type(const std::wstring& text, UINT flags, int start = 0) {
        text_ = text;
        flags_ = flags;
        start_ = start;
        SendMessageW(list_, WM_CHAR, text.empty() ? L' ' : text.back(), 1);
        return found_;
    }
    // Another program searches the list.
    [[nodiscard]] int FindAfter(int row, const std::wstring& text, UINT flags) {
        text_ = text;
        const LVFINDINFOW search = Search(flags);
        return static_cast<int>(
            SendMessageW(list_, LVM_FINDITEMW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&search)));
    }

    static constexpr UINT kSubstring = 0x4;
    static constexpr std::array kRows = {L"Adams", L"Bell & Sons", L"Bell",
                                         L"\x041D\x043E\x0432\x0430\x043A"};

    TestDialog dialog_;
    HWND list_ = nullptr;
    std::unique_ptr<toolkit::RowFinder> finder_;
    std::wstring text_;
    UINT flags_ = 0;
    int start_ = 0;
    int found_ = -2;
    bool searchesByMessage_ = false;
};

TEST_F(RowFinderTest, TypedLettersFindABeginningWhateverTheFlags) {
    for (const UINT flags : {UINT{LVFI_STRING}, UINT{LVFI_PARTIAL}, kSubstring, UINT{LVFI_WRAP},
                             UINT{LVFI_STRING | LVFI_WRAP}, LVFI_STRING | kSubstring | LVFI_WRAP}) {
        EXPECT_EQ(Type(L"be", flags), 1) << flags;
        EXPECT_EQ(Type(L"nobody", flags), -1) << flags;
    }
}

TEST_F(RowFinderTest, TypedLettersGoOnAtTheTop) {
    EXPECT_EQ(Type(L"a", LVFI_STRING, 2), 0);
    EXPECT_EQ(Type(L"a", LVFI_STRING, 4), 0) << "the last row has the focus";
    EXPECT_EQ(Type(L"b", LVFI_STRING, 2), 2);
}

TEST_F(RowFinderTest, TypedLettersMayComeByTheControlsOwnMessage) {
    searchesByMessage_ = true;
    EXPECT_EQ(Type(L"be", LVFI_STRING), 1);
}

TEST_F(RowFinderTest, AMessageFindsTheWholeText) {
    for (const UINT flags : {UINT{LVFI_STRING}, UINT{LVFI_WRAP}, UINT{LVFI_STRING | LVFI_WRAP}}) {
        EXPECT_EQ(FindAfter(-1, L"bell", flags), 2) << flags;
        EXPECT_EQ(FindAfter(-1, L"Be", flags), -1) << flags;
    }
    EXPECT_EQ(Type(L"be", LVFI_STRING), 1) << "what a message asks for does not stay";
}

TEST_F(RowFinderTest, AMessageFindsABeginningThatItAsksFor) {
    for (const UINT flags : {UINT{LVFI_PARTIAL}, kSubstring, LVFI_STRING | kSubstring}) {
        EXPECT_EQ(FindAfter(-1, L"Be", flags), 1) << flags;
        EXPECT_EQ(FindAfter(1, L"Be", flags), 2) << flags;
        EXPECT_EQ(FindAfter(2, L"Be", flags), -1) << flags;
    }
    EXPECT_EQ(FindAfter(2, L"Be", LVFI_PARTIAL | LVFI_WRAP), 1);
}

TEST_F(RowFinderTest, UpperAndLowerCaseAreAlikeInAllLetters) {
    EXPECT_EQ(Type(L"\x043D\x041E", LVFI_STRING), 3);
    EXPECT_EQ(FindAfter(-1, L"\x041D\x041E\x0412\x0410\x041A", LVFI_STRING), 3);
}

TEST_F(RowFinderTest, WhatIsNoTextIsNotFound) {
    EXPECT_EQ(FindAfter(-1, L"Bell", LVFI_PARAM), -1);
    EXPECT_EQ(FindAfter(-1, L"Bell", 0), -1);
    NMLVFINDITEMW question = {};
    question.lvfi.flags = LVFI_STRING;
    EXPECT_EQ(finder_->Find(question), -1) << "no text at all";
}

// With the search of the control that the system has.
TEST_F(RowFinderTest, TheSystemsControlFindsToo) {
    RemoveWindowSubclass(list_, &Control, 1);
    EXPECT_EQ(FindAfter(-1, L"Bell", LVFI_STRING), 2);
    EXPECT_EQ(FindAfter(1, L"Be", LVFI_PARTIAL), 2) << "the search begins behind the row";
    for (const wchar_t letter : std::wstring(L"be")) {
        SendMessageW(list_, WM_CHAR, letter, 1);
    }
    EXPECT_EQ(SendMessageW(list_, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED), 1);
}

TEST_F(RowFinderTest, ControlAndFinderOutliveEachOther) {
    finder_->Attach(list_);
    finder_.reset();
    dialog_.onNotify = nullptr;
    EXPECT_EQ(SendMessageW(list_, LVM_GETITEMCOUNT, 0, 0), 4);
    toolkit::RowFinder other(
        {.count = [] { return std::size_t{0}; }, .text = [](std::size_t) { return L""; }});
    other.Attach(list_);
    DestroyWindow(list_);
    EXPECT_FALSE(IsWindow(list_));
}

}  // namespace
}  // namespace corvane::test
