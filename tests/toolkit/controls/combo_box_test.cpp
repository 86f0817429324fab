#include "toolkit/controls/choice_controls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/toolkit/test_dialog.h"
#include "toolkit/dialog/data_exchange.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int kComboId = 2001;

class ComboBoxTest : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(dialog_.CreateModeless()); }

    toolkit::ComboBox Make(DWORD style) {
        control_ =
            CreateWindowExW(0, L"COMBOBOX", L"", WS_CHILD | style, 0, 0, 100, 100, dialog_.Window(),
                            reinterpret_cast<HMENU>(INT_PTR{kComboId}), GetModuleHandleW(nullptr), nullptr);
        return toolkit::ComboBox(control_);
    }

    TestDialog dialog_;
    HWND control_ = nullptr;
};

TEST_F(ComboBoxTest, FillingReplacesTheEntriesAndSelectsNone) {
    const toolkit::ComboBox combo = Make(CBS_DROPDOWNLIST);
    combo.Fill({L"one", L"", L"three"});
    EXPECT_THAT(combo.Entries(), ElementsAre(L"one", L"", L"three"));
    combo.Select(2);
    EXPECT_EQ(combo.Selected(), 2);
    combo.Fill({L"four"});
    EXPECT_THAT(combo.Entries(), ElementsAre(L"four"));
    EXPECT_EQ(combo.Selected(), -1);
    combo.Fill({});
    EXPECT_THAT(combo.Entries(), IsEmpty());
}

TEST_F(ComboBoxTest, TheTextOfAnEditableOneOutlivesTheFilling) {
    const toolkit::ComboBox combo = Make(CBS_DROPDOWN);
    SetWindowTextW(control_, L" *.xml ");
    combo.Fill({L"*.one", L"*.two"});
    EXPECT_EQ(toolkit::WindowText(control_), L" *.xml ");
}

TEST_F(ComboBoxTest, AnEntryThatIsNotThereIsEmpty) {
    const toolkit::ComboBox combo = Make(CBS_DROPDOWNLIST);
    combo.Fill({L"one"});
    EXPECT_EQ(combo.Entry(1), L"");
    EXPECT_EQ(combo.Entry(-1), L"");
}

TEST_F(ComboBoxTest, TheChoiceIsExchangedInBothDirections) {
    const toolkit::ComboBox combo = Make(CBS_DROPDOWNLIST);
    combo.Fill({L"one", L"two"});
    int choice = 1;
    toolkit::DataExchange(dialog_.Window(), toolkit::DataExchange::Direction::kToControls)
        .Choice(kComboId, choice);
    EXPECT_EQ(combo.Selected(), 1);
    combo.Select(0);
    toolkit::DataExchange(dialog_.Window(), toolkit::DataExchange::Direction::kFromControls)
        .Choice(kComboId, choice);
    EXPECT_EQ(choice, 0);
    combo.Select(-1);
    toolkit::DataExchange(dialog_.Window(), toolkit::DataExchange::Direction::kFromControls)
        .Choice(kComboId, choice);
    EXPECT_EQ(choice, -1);
}

}  // namespace
}  // namespace corvane::test
