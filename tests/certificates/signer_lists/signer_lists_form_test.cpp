#include "certificates/signer_lists/signer_lists_form.h"

#include <gmock/gmock.h>

#include "reporting/message_styles.h"
#include "tests/kit/fixtures/reporter_fixture.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const store::SignerGroup kChiefs{L"chiefs", {L"CN=A", L"CN=B"}};
const store::SignerGroup kClerks{L"clerks", {L"CN=C"}};
const store::SignerGroup kNobody{L"nobody", {}};

class SignerLists : public ::testing::Test {
  protected:
    SignerLists() { reports_.presenter.MakeLive(dialog_); }

    bool Delete(const std::vector<std::size_t>& positions, int answer) {
        reports_.presenter.AnswerNext(answer);
        if (!reports_.IsAgreed(form_.DeletionQuestion(positions), dialog_)) {
            return false;
        }
        form_.Delete(positions);
        return true;
    }
    [[nodiscard]] ShownBox Question(const std::wstring& text) const {
        return {dialog_, text, reporting::AppTitle, 0x134};
    }

    toolkit::WindowHandle dialog_ = RecordingPresenter::Window(6);
    ReporterFixture reports_;
    certificates::SignerListsForm form_{{kChiefs, kClerks, kNobody}};
};

TEST_F(SignerLists, ARowHasTheNameAndTheSigners) {
    EXPECT_EQ(form_.NameCell(0), L"chiefs");
    EXPECT_EQ(form_.SignersCell(0), L"CN=A; CN=B");
    EXPECT_EQ(form_.SignersCell(1), L"CN=C");
    EXPECT_EQ(form_.SignersCell(2), L"");
}

TEST_F(SignerLists, ANewListStartsEmptyBesideTheExistingOnes) {
    const certificates::SelectionStart start = form_.StartOfNewList(true);
    EXPECT_THAT(start.chosen, IsEmpty());
    EXPECT_THAT(start.existingLists, ElementsAre(kChiefs, kClerks, kNobody));
    EXPECT_EQ(start.listName, L"");
    EXPECT_EQ(start.previousListName, L"");
    EXPECT_TRUE(start.isNetworkStoreAvailable);
}

TEST_F(SignerLists, EditingStartsWithTheListsSignersAndName) {
    const certificates::SelectionStart start = form_.StartOfEditing(0, false);
    EXPECT_THAT(start.chosen, ElementsAre(L"CN=A", L"CN=B"));
    EXPECT_EQ(start.existingLists.size(), 3U);
    EXPECT_EQ(start.listName, L"chiefs");
    EXPECT_EQ(start.previousListName, L"chiefs");
    EXPECT_FALSE(start.isNetworkStoreAvailable);
}

TEST_F(SignerLists, DeletingTwoAsksWithTheirNumber) {
    EXPECT_TRUE(Delete({2, 0}, reporting::kAnswerYes));
    EXPECT_THAT(form_.Lists(), ElementsAre(kClerks));
    EXPECT_THAT(reports_.presenter.Boxes(), ElementsAre(Question(L"Delete 2 list(s)?")));
}

TEST_F(SignerLists, NoDeletesNothing) {
    EXPECT_FALSE(Delete({1}, reporting::kAnswerNo));
    EXPECT_EQ(form_.Lists().size(), 3U);
    EXPECT_THAT(reports_.presenter.Boxes(), ElementsAre(Question(L"Delete 1 list(s)?")));
}

TEST_F(SignerLists, WithNothingSelectedNothingIsAsked) {
    EXPECT_EQ(form_.DeletionQuestion({}), std::nullopt);
    EXPECT_EQ(form_.DeletionQuestion({3, 99}), std::nullopt);
    form_.Delete({3, 99});
    EXPECT_THAT(reports_.presenter.Boxes(), IsEmpty());
    EXPECT_EQ(form_.Lists().size(), 3U);
}

TEST_F(SignerLists, AListIsDescribedWithItsNumberedSigners) {
    EXPECT_EQ(form_.Describe(0), L"List name: chiefs\r\nSigner 1:\r\nCN=A\r\nSigner 2:\r\nCN=B");
    EXPECT_EQ(form_.Describe(2), L"List name: nobody");
    EXPECT_EQ(form_.Describe(3), L"");
}

TEST(SignerListsTexts, AreThoseThatUsersKnow) {
    EXPECT_STREQ(certificates::kSignerListsTitle, L"Signer lists");
    EXPECT_STREQ(certificates::kSignerListTitle, L"Signer list");
}

}  // namespace
}  // namespace corvane::test
