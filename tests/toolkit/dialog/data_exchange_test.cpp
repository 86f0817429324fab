#include <gtest/gtest.h>
#include <windows.h>

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "tests/toolkit/test_dialog.h"
#include "tests/toolkit/test_window.h"
#include "toolkit/dialog/data_exchange.h"

namespace corvane::test {
namespace {

class DataExchangeTest : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(dialog_.CreateModeless()); }

    [[nodiscard]] toolkit::DataExchange ToControls() const {
        return {dialog_.Window(), toolkit::DataExchange::Direction::kToControls};
    }
    [[nodiscard]] toolkit::DataExchange FromControls() const {
        return {dialog_.Window(), toolkit::DataExchange::Direction::kFromControls};
    }
    [[nodiscard]] std::wstring Shown(int controlId) const {
        return toolkit::WindowText(dialog_.Control(controlId));
    }

    TestDialog dialog_;
};

TEST_F(DataExchangeTest, TextsOfAnyLengthGoBothWaysWhole) {
    for (const std::size_t length : {0U, 1U, 255U, 256U, 257U, 4096U, 70000U}) {
        std::wstring text(length, L'ж');
        if (length > 1) {
            text.back() = L'!';
        }
        ToControls().Text(IDC_TEXT_EDIT, text);
        std::wstring back = L"something else";
        FromControls().Text(IDC_TEXT_EDIT, back);
        EXPECT_TRUE(back == text) << length << " characters came back as " << back.size();
    }
}

TEST_F(DataExchangeTest, TextsAndButtonsAreExchangedLikeEdits) {
    for (const int id : {IDC_NAME_TEXT, IDC_TALL_BUTTON, IDC_CHOICE_CHECK}) {
        std::wstring text = L"New text";
        ToControls().Text(id, text);
        EXPECT_EQ(Shown(id), L"New text") << "control " << id;
        std::wstring back;
        FromControls().Text(id, back);
        EXPECT_EQ(back, L"New text") << "control " << id;
    }
}

TEST_F(DataExchangeTest, ACheckBoxIsCheckedByAnyNumberButZeroAndReadsAsOne) {
    for (const std::int32_t stored : {1, 7, -1}) {
        std::int32_t field = stored;
        ToControls().Check(IDC_CHOICE_CHECK, field);
        FromControls().Check(IDC_CHOICE_CHECK, field);
        EXPECT_EQ(field, 1) << "stored as " << stored;
    }
    std::int32_t field = 0;
    ToControls().Check(IDC_CHOICE_CHECK, field);
    field = 5;
    FromControls().Check(IDC_CHOICE_CHECK, field);
    EXPECT_EQ(field, 0);
}

TEST_F(DataExchangeTest, AControlThatShowsTheTextAlreadyKeepsCaretAndSelection) {
    std::wstring text = L"0123456789";
    ToControls().Text(IDC_TEXT_EDIT, text);
    const HWND edit = dialog_.Control(IDC_TEXT_EDIT);
    SendMessageW(edit, EM_SETSEL, 3, 6);
    const MessageWatcher watcher(edit, [](UINT message) {
        EXPECT_NE(message, static_cast<UINT>(WM_SETTEXT)) << "The text is there already.";
    });
    ToControls().Text(IDC_TEXT_EDIT, text);
    EXPECT_EQ(SendMessageW(edit, EM_GETSEL, 0, 0), MAKELONG(3, 6));
}

TEST_F(DataExchangeTest, NumbersAreShownInDecimal) {
    for (const std::int32_t number :
         {0, 7, -15, std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min()}) {
        std::int32_t field = number;
        ToControls().Number(IDC_NUMBER_EDIT, field);
        EXPECT_EQ(Shown(IDC_NUMBER_EDIT), std::to_wstring(number));
        std::int32_t back = 1;
        FromControls().Number(IDC_NUMBER_EDIT, back);
        EXPECT_EQ(back, number);
    }
}

TEST_F(DataExchangeTest, NumbersAreReadAsFarAsTheyAreNumbers) {
    struct Case {
        const wchar_t* text;
        std::int32_t number;
    };
    for (const Case& entry :
         std::vector<Case>{{L"", 0},
                           {L"abc", 0},
                           {L"12abc", 12},
                           {L"  42", 42},
                           {L"-7", -7},
                           {L"2147483648", std::numeric_limits<std::int32_t>::max()},
                           {L"99999999999999999999", std::numeric_limits<std::int32_t>::max()},
                           {L"-2147483649", std::numeric_limits<std::int32_t>::min()}}) {
        dialog_.SetControlText(IDC_NUMBER_EDIT, entry.text);
        std::int32_t field = 5;
        FromControls().Number(IDC_NUMBER_EDIT, field);
        EXPECT_EQ(field, entry.number)
            << "the text \"" << std::string(entry.text, entry.text + wcslen(entry.text)) << "\"";
    }
}

TEST_F(DataExchangeTest, AMissingControlLeavesItsFieldAlone) {
    std::wstring text = L"kept";
    std::int32_t number = 12;
    ToControls().Text(IDC_NOWHERE, text);
    ToControls().Number(IDC_NOWHERE, number);
    FromControls().Text(IDC_NOWHERE, text);
    FromControls().Number(IDC_NOWHERE, number);
    EXPECT_EQ(text, L"kept");
    EXPECT_EQ(number, 12);
}

TEST_F(DataExchangeTest, OnlyTheGivenDirectionIsTaken) {
    std::wstring text = L"field";
    dialog_.SetControlText(IDC_TEXT_EDIT, L"control");
    ToControls().Text(IDC_TEXT_EDIT, text);
    EXPECT_EQ(text, L"field");
    dialog_.SetControlText(IDC_TEXT_EDIT, L"control");
    FromControls().Text(IDC_TEXT_EDIT, text);
    EXPECT_EQ(Shown(IDC_TEXT_EDIT), L"control");
    EXPECT_EQ(text, L"control");
}

TEST_F(DataExchangeTest, ControlsAreEnabledAndDisabledById) {
    dialog_.EnableControl(IDC_TEXT_EDIT, false);
    EXPECT_FALSE(IsWindowEnabled(dialog_.Control(IDC_TEXT_EDIT)));
    dialog_.EnableControl(IDC_TEXT_EDIT, true);
    EXPECT_TRUE(IsWindowEnabled(dialog_.Control(IDC_TEXT_EDIT)));
    dialog_.EnableControl(IDC_NOWHERE, true);
}

}  // namespace
}  // namespace corvane::test
