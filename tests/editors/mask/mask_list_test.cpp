#include "editors/mask/mask_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "reporting/message_styles.h"
#include "tests/kit/fixtures/reporter_fixture.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MaskList : public ::testing::Test {
  protected:
    MaskList() { fixture_.presenter.MakeLive(dialog_); }

    bool Delete(const std::vector<std::size_t>& rows) {
        if (!fixture_.IsAgreed(editors::MaskDeletionQuestion(masks_, rows), dialog_)) {
            return false;
        }
        editors::DeleteMasks(masks_, rows);
        return true;
    }

    toolkit::WindowHandle dialog_ = RecordingPresenter::Window(7);
    ReporterFixture fixture_;
    corvane::store::TextList masks_ = {L"1", L"2", L"3", L"4"};
};

TEST_F(MaskList, AddingTheSameMaskTwiceGivesTwoEntries) {
    editors::AppendMask(masks_, L"5");
    editors::AppendMask(masks_, L"5");
    EXPECT_THAT(masks_, ElementsAre(L"1", L"2", L"3", L"4", L"5", L"5"));
}

TEST_F(MaskList, AMaskKeepsItsLeadingAndTrailingSpaces) {
    editors::AppendMask(masks_, L"  *.txt ");
    EXPECT_EQ(masks_.back(), L"  *.txt ");
    editors::ReplaceMask(masks_, 0, L" x ");
    EXPECT_EQ(masks_.front(), L" x ");
}

TEST_F(MaskList, EditingWithThreeItemsSelectedEditsTheFirst) {
    EXPECT_EQ(editors::MaskRowToEdit({1, 2, 3}), 1U);
    editors::ReplaceMask(masks_, 1, L"new");
    EXPECT_THAT(masks_, ElementsAre(L"1", L"new", L"3", L"4"));
}

TEST_F(MaskList, EditingWithoutASelectionDoesNothing) {
    EXPECT_EQ(editors::MaskRowToEdit({}), std::nullopt);
}

TEST_F(MaskList, DeletingItems1And3OfFourAsksFor2AndLeaves2And4) {
    fixture_.presenter.AnswerNext(reporting::kAnswerYes);
    EXPECT_TRUE(Delete({0, 2}));
    EXPECT_THAT(masks_, ElementsAre(L"2", L"4"));
    EXPECT_THAT(
        fixture_.presenter.Boxes(),
        ElementsAre(ShownBox{
            .owner = dialog_, .text = L"Delete 2 mask(s)?", .title = reporting::AppTitle, .style = 0x124}));
}

TEST_F(MaskList, DeletingAllLeavesNone) {
    fixture_.presenter.AnswerNext(reporting::kAnswerYes);
    EXPECT_TRUE(Delete({0, 1, 2, 3}));
    EXPECT_THAT(masks_, IsEmpty());
}

TEST_F(MaskList, AnyAnswerButYesDeletesNothing) {
    for (const int answer : {reporting::kAnswerNo, reporting::kAnswerCancel, reporting::kAnswerOk}) {
        fixture_.presenter.AnswerNext(answer);
        EXPECT_FALSE(Delete({1}));
        EXPECT_EQ(masks_.size(), 4U);
    }
}

TEST_F(MaskList, DeletingWithoutASelectionAsksNothing) {
    EXPECT_FALSE(Delete({}));
    EXPECT_THAT(fixture_.presenter.Boxes(), IsEmpty());
    EXPECT_EQ(masks_.size(), 4U);
}

TEST_F(MaskList, RowsThatDoNotExistOrAreOutOfOrderAreTheCallersFaultAndAskNothing) {
    EXPECT_THROW(Delete({4}), std::invalid_argument);
    EXPECT_THROW(Delete({2, 1}), std::invalid_argument);
    EXPECT_THROW(Delete({1, 1}), std::invalid_argument);
    EXPECT_THROW(editors::ReplaceMask(masks_, 4, L"x"), std::invalid_argument);
    EXPECT_THROW(editors::DeleteMasks(masks_, {4}), std::invalid_argument);
    EXPECT_THROW(editors::DeleteMasks(masks_, {2, 1}), std::invalid_argument);
    EXPECT_THROW(static_cast<void>(editors::MaskDetails(masks_, 4)), std::invalid_argument);
    EXPECT_THAT(masks_, ElementsAre(L"1", L"2", L"3", L"4"));
    EXPECT_THAT(fixture_.presenter.Boxes(), IsEmpty());
}

TEST_F(MaskList, AMaskIsShownWholeInAnInformationBoxOfItsOwnTitle) {
    masks_[2] = std::wstring(300, L'x');
    EXPECT_EQ(editors::MaskDetails(masks_, 2),
              (reporting::Information{.text = std::wstring(300, L'x'), .title = L"Mask"}));
}

TEST_F(MaskList, TheColumnFirstLeavesRoomForAScrollBar) {
    EXPECT_EQ(editors::OpeningMaskColumnWidth(200, 17), 183);
    EXPECT_EQ(editors::OpeningMaskColumnWidth(10, 17), 0);
}

TEST_F(MaskList, TheColumnIsHeadedMasks) {
    EXPECT_STREQ(editors::kMaskColumnTitle, L"Masks");
}

}  // namespace
}  // namespace corvane::test
