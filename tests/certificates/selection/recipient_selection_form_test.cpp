#include "certificates/selection/selection_form.h"

#include <gmock/gmock.h>

#include <set>

#include "reporting/message_styles.h"
#include "res/ids.h"
#include "tests/certificates/provider_fixture.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SelectionForm : public CertsFixture {
  protected:
    SelectionForm() {
        settings_.signerMode = 0;
        sessions_.answer = [this](const FindCall& call) {
            std::vector<ScriptedCertificate> found;
            if (withCertificate_.contains(call.ownerPattern.value_or(""))) {
                found.push_back(Certificate(*call.ownerPattern));
            }
            return found;
        };
    }

    certificates::RecipientSelectionForm Form(corvane::store::TextList chosen = {}) {
        certificates::SelectionStart start;
        start.chosen = std::move(chosen);
        return {settings_, std::move(start), Reports().text};
    }

    certificates::RecipientSelectionForm SignerForm(corvane::store::TextList chosen,
                                                    std::vector<store::SignerGroup> existingLists,
                                                    const std::wstring& previousName) {
        settings_.signerMode = 1;
        certificates::SelectionStart start;
        start.chosen = std::move(chosen);
        start.existingLists = std::move(existingLists);
        start.listName = previousName;
        start.previousListName = previousName;
        return {settings_, std::move(start), Reports().text};
    }

    static corvane::store::TextList Found(const certificates::RecipientSelectionForm& form) {
        corvane::store::TextList owners;
        for (std::size_t i = 0; i < form.FoundRowCount(); ++i) {
            owners.emplace_back(form.FoundRow(i).owner);
        }
        return owners;
    }
    static corvane::store::TextList Chosen(const certificates::RecipientSelectionForm& form) {
        corvane::store::TextList owners;
        for (std::size_t i = 0; i < form.ChosenRowCount(); ++i) {
            owners.emplace_back(form.ChosenRow(i).owner);
        }
        return owners;
    }
    bool Confirm(certificates::RecipientSelectionForm& form) {
        const std::optional<reporting::Refusal> refusal = form.Confirm(context_, Reporter(), owner_);
        toMend_ = refusal.value_or(reporting::Refusal()).controlId;
        return Reports().IsAccepted(refusal, owner_);
    }
    bool DeleteAllFound(certificates::RecipientSelectionForm& form) {
        if (!Reports().IsAgreed(form.DeletionQuestion(), owner_)) {
            return false;
        }
        form.DeleteAllFound();
        return true;
    }
    [[nodiscard]] ShownBox Question(const std::wstring& owner) const {
        return {owner_, L"No certificates found for user " + owner + L".\r\nContinue to check other users?",
                reporting::AppTitle, 0x134};
    }
    [[nodiscard]] ShownBox Refusal(const std::wstring& text) const {
        return {owner_, text, reporting::AppTitle, 0x30};
    }

    std::set<std::string> withCertificate_;
    certificates::CertSearchSettings settings_;
    certificates::Cryptocontext context_ = OpenContext();
    int toMend_ = -1;  ///< The control that the last OK sent the user to, 0 for none.
};

TEST_F(SelectionForm, ItsTitleSaysWhatItIsFor) {
    EXPECT_EQ(Form().Title(), L"Add recipients");
    EXPECT_EQ(SignerForm({}, {}, L"").Title(), L"Add list");
    EXPECT_EQ(SignerForm({}, {}, L"chiefs").Title(), L"Edit list");
}

TEST_F(SelectionForm, StartsWithTheCallersOwnersBelowAndNothingAbove) {
    const certificates::RecipientSelectionForm form = Form({L"CN=B", L"", L"CN=A", L"CN=B"});
    EXPECT_THAT(Chosen(form), ElementsAre(L"CN=B", L"CN=A", L"CN=B")) << "empty owners are not shown";
    EXPECT_THAT(Found(form), IsEmpty());
    EXPECT_EQ(form.FoundSortMark(), certificates::SortMark::kNone);
    EXPECT_EQ(form.ChosenSortMark(), certificates::SortMark::kNone);
    EXPECT_EQ(form.lastGroupPath, L"");
}

TEST_F(SelectionForm, PositionsThatAreNotThereChangeNothing) {
    certificates::RecipientSelectionForm form = Form();
    form.CheckFound(0, true);
    form.CheckChosen(7, true);
    form.SetSortField(9);
    EXPECT_EQ(form.FoundRow(0), certificates::OwnerRow{});
    EXPECT_EQ(form.ChosenRow(7), certificates::OwnerRow{});
    EXPECT_EQ(form.FoundDetails(0), (reporting::Information{.text = L"", .title = L"Subject"}));
    EXPECT_EQ(form.FoundSortMark(), certificates::SortMark::kNone);
}

TEST_F(SelectionForm, FoundOwnersAreAppendedOnce) {
    certificates::RecipientSelectionForm form = Form();
    form.AddFound({L"CN=B", L"CN=A", L"CN=B"});
    form.AddFound({L"CN=C", L"CN=A", L"cn=a", L""});
    EXPECT_THAT(Found(form), ElementsAre(L"CN=B", L"CN=A", L"CN=C", L"cn=a"));
}

TEST_F(SelectionForm, TheLocalStoreSearchAddsWhatIsNew) {
    certificates::RecipientSelectionForm form = Form();
    form.AddFound({L"CN=B"});
    form.CheckFound(0, true);
    sessions_.answer = nullptr;
    sessions_.certificates = {Certificate("CN=A"), Certificate("CN=B")};
    EXPECT_TRUE(form.SearchLocalStore(context_, Reporter(), owner_));
    EXPECT_THAT(Found(form), ElementsAre(L"CN=B", L"CN=A"));
    EXPECT_TRUE(form.FoundRow(0).isChecked);
}

TEST_F(SelectionForm, AFailedSearchLeavesTheLists) {
    certificates::RecipientSelectionForm form = Form();
    form.AddFound({L"CN=B"});
    sessions_.findStatus = 0xE0700001;
    EXPECT_FALSE(form.SearchLocalStore(context_, Reporter(), owner_));
    EXPECT_FALSE(form.SearchNetworkStore(L"CN=A", context_, Reporter(), owner_));
    EXPECT_THAT(Found(form), ElementsAre(L"CN=B"));
    EXPECT_EQ(Boxes().size(), 2U);
}

TEST_F(SelectionForm, ANetworkSearchThatFindsNobodySaysSo) {
    certificates::RecipientSelectionForm form = Form();
    sessions_.findStatus = 0xE0700046;
    EXPECT_TRUE(form.SearchNetworkStore(L"*", context_, Reporter(), owner_));
    sessions_.findStatus = 0;
    EXPECT_TRUE(form.SearchNetworkStore(L"CN=No*", context_, Reporter(), owner_));
    EXPECT_EQ(sessions_.Searches()[0].ownerPattern, "*=*");
    EXPECT_THAT(Boxes(), ElementsAre(Refusal(L"No certificates found for your request"),
                                     Refusal(L"No certificates found for your request")));
}

TEST_F(SelectionForm, ANetworkSearchThatFindsKnownOwnersSaysNothing) {
    certificates::RecipientSelectionForm form = Form();
    withCertificate_ = {"CN=B"};
    form.AddFound({L"CN=B"});
    EXPECT_TRUE(form.SearchNetworkStore(L"CN=B", context_, Reporter(), owner_));
    EXPECT_THAT(Found(form), ElementsAre(L"CN=B"));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(SelectionForm, SelectAllAndClearActOnWhatIsShown) {
    certificates::RecipientSelectionForm form = Form();
    form.AddFound({L"CN=Ann", L"CN=Bob"});
    form.SetFilter(L"ann");
    form.CheckAllFound(true);
    form.SetFilter(L"");
    EXPECT_EQ(form.FoundRow(0), (certificates::OwnerRow{L"CN=Ann", true}));
    EXPECT_EQ(form.FoundRow(1), (certificates::OwnerRow{L"CN=Bob", false}));
    form.CheckAllFound(true);
    form.CheckAllFound(false);
    EXPECT_THAT(form.CheckedFoundOwners(), IsEmpty());
}

TEST_F(SelectionForm, DeleteAllAsksAndForgetsTheGroupFile) {
    certificates::RecipientSelectionForm form = Form({L"CN=Z"});
    form.AddFound({L"CN=A"});
    form.lastGroupPath = L"C:\\g.grx";
    Reports().presenter.AnswerNext(reporting::kAnswerNo);
    EXPECT_FALSE(DeleteAllFound(form));
    EXPECT_THAT(Found(form), ElementsAre(L"CN=A"));
    EXPECT_EQ(form.lastGroupPath, L"C:\\g.grx");
    Reports().presenter.AnswerNext(reporting::kAnswerYes);
    EXPECT_TRUE(DeleteAllFound(form));
    EXPECT_THAT(Found(form), IsEmpty());
    EXPECT_THAT(Chosen(form), ElementsAre(L"CN=Z"));
    EXPECT_EQ(form.lastGroupPath, L"");
    const ShownBox question{owner_, L"Delete all list items?", reporting::AppTitle, 0x134};
    EXPECT_THAT(Boxes(), ElementsAre(question, question));
    form.AddFound({L"CN=A"});
    EXPECT_THAT(Found(form), ElementsAre(L"CN=A")) << "what was deleted can be found again";
}

TEST_F(SelectionForm, DeleteAllOfAnEmptyListAsksNothing) {
    certificates::RecipientSelectionForm form = Form();
    form.lastGroupPath = L"C:\\g.grx";
    EXPECT_FALSE(DeleteAllFound(form));
    form.AddFound({L"CN=A"});
    form.SetFilter(L"nobody");
    EXPECT_FALSE(DeleteAllFound(form)) << "nothing is shown";
    EXPECT_THAT(Boxes(), IsEmpty());
    EXPECT_EQ(form.lastGroupPath, L"C:\\g.grx");
}

TEST_F(SelectionForm, TheFilterIgnoresLetterCase) {
    certificates::RecipientSelectionForm form = Form();
    form.AddFound({L"CN=IVANOV", L"CN=Petrov", L"CN=\x0418\x0432\x0430\x043D"});
    form.SetFilter(L"ivan");
    EXPECT_THAT(Found(form), ElementsAre(L"CN=IVANOV"));
    form.SetFilter(L"\x0438\x0412\x0410");
    EXPECT_THAT(Found(form), ElementsAre(L"CN=\x0418\x0432\x0430\x043D"));
    form.SetFilter(L"");
    EXPECT_EQ(form.FoundRowCount(), 3U);
}

TEST_F(SelectionForm, TheFilterDoesNotTouchTheLowerList) {
    certificates::RecipientSelectionForm form = Form({L"CN=A", L"CN=B"});
    form.SetFilter(L"b");
    EXPECT_THAT(Chosen(form), ElementsAre(L"CN=A", L"CN=B"));
}

TEST_F(SelectionForm, ChecksOutlastFilteringSortingAndRefilling) {
    certificates::RecipientSelectionForm form = Form();
    form.AddFound({L"CN=C", L"CN=B", L"CN=A"});
    form.CheckFound(0, true);
    form.SetFilter(L"a");
    EXPECT_THAT(form.CheckedFoundOwners(), IsEmpty()) << "a hidden owner counts as unchecked";
    form.SetFilter(L"");
    form.ClickFoundHeader();
    EXPECT_EQ(form.FoundRow(2), (certificates::OwnerRow{L"CN=C", true}));
    form.AddFound({L"CN=D"});
    EXPECT_THAT(form.CheckedFoundOwners(), ElementsAre(L"CN=C"));
}

TEST_F(SelectionForm, TheFirstHeaderClickSortsAscendingAndEachFurtherOneReverses) {
    certificates::RecipientSelectionForm form = Form();
    form.AddFound({L"CN=B,O=X", L"CN=A,O=Z", L"CN=C,O=Y"});
    form.ClickFoundHeader();
    EXPECT_THAT(Found(form), ElementsAre(L"CN=A,O=Z", L"CN=B,O=X", L"CN=C,O=Y"));
    EXPECT_EQ(form.FoundSortMark(), certificates::SortMark::kUp);
    form.ClickFoundHeader();
    EXPECT_THAT(Found(form), ElementsAre(L"CN=C,O=Y", L"CN=B,O=X", L"CN=A,O=Z"));
    EXPECT_EQ(form.FoundSortMark(), certificates::SortMark::kDown);
    form.ClickFoundHeader();
    EXPECT_EQ(form.FoundSortMark(), certificates::SortMark::kUp);
}

TEST_F(SelectionForm, AnotherSortFieldSortsTheUpperListInTheSameDirection) {
    certificates::RecipientSelectionForm form = Form({L"CN=B,O=X", L"CN=A,O=Z"});
    form.AddFound({L"CN=B,O=X", L"CN=A,O=Z", L"CN=C,O=Y"});
    form.ClickFoundHeader();
    form.ClickFoundHeader();
    form.SetSortField(5);
    EXPECT_THAT(Found(form), ElementsAre(L"CN=A,O=Z", L"CN=C,O=Y", L"CN=B,O=X"));
    EXPECT_EQ(form.FoundSortMark(), certificates::SortMark::kDown);
    EXPECT_THAT(Chosen(form), ElementsAre(L"CN=B,O=X", L"CN=A,O=Z")) << "the lower list waits for a click";
    form.ClickChosenHeader();
    EXPECT_THAT(Chosen(form), ElementsAre(L"CN=B,O=X", L"CN=A,O=Z")) << "sorted by the same field";
    EXPECT_EQ(form.ChosenSortMark(), certificates::SortMark::kUp);
}

TEST_F(SelectionForm, ASortFieldChosenFirstSortsAscending) {
    certificates::RecipientSelectionForm form = Form();
    form.AddFound({L"CN=A,O=Z", L"CN=B,O=X"});
    form.SetSortField(5);
    EXPECT_THAT(Found(form), ElementsAre(L"CN=B,O=X", L"CN=A,O=Z"));
    EXPECT_EQ(form.FoundSortMark(), certificates::SortMark::kUp);
}

TEST_F(SelectionForm, EachListHasItsOwnDirection) {
    certificates::RecipientSelectionForm form = Form({L"CN=B", L"CN=A"});
    form.AddFound({L"CN=B", L"CN=A"});
    form.ClickFoundHeader();
    form.ClickFoundHeader();
    form.ClickChosenHeader();
    EXPECT_EQ(form.FoundSortMark(), certificates::SortMark::kDown);
    EXPECT_EQ(form.ChosenSortMark(), certificates::SortMark::kUp);
    EXPECT_THAT(Chosen(form), ElementsAre(L"CN=A", L"CN=B"));
}

TEST_F(SelectionForm, AListThatIsFilledAgainStandsInTheOrderFoundAndKeepsItsDirection) {
    certificates::RecipientSelectionForm form = Form();
    form.AddFound({L"CN=B", L"CN=A"});
    form.ClickFoundHeader();
    form.SetFilter(L"cn");
    EXPECT_THAT(Found(form), ElementsAre(L"CN=B", L"CN=A"));
    EXPECT_EQ(form.FoundSortMark(), certificates::SortMark::kNone)
        << "no mark promises an order that is not there";
    form.ClickFoundHeader();
    EXPECT_EQ(form.FoundSortMark(), certificates::SortMark::kDown) << "a click reverses the direction";
}

TEST_F(SelectionForm, TheArrowAddsTheCheckedOwnersInListOrderOnce) {
    certificates::RecipientSelectionForm form = Form({L"CN=B"});
    form.AddFound({L"CN=C", L"CN=B", L"CN=A", L"CN=D"});
    form.CheckAllFound(true);
    form.CheckFound(3, false);
    form.ClickFoundHeader();
    EXPECT_EQ(form.AddChecked(), L"");
    EXPECT_THAT(Chosen(form), ElementsAre(L"CN=B", L"CN=A", L"CN=C"));
    EXPECT_EQ(form.AddChecked(), L"");
    EXPECT_EQ(form.ChosenRowCount(), 3U);
    EXPECT_EQ(form.CheckedFoundOwners().size(), 3U) << "the checks above stay";
}

TEST_F(SelectionForm, AddingKeepsTheChecksBelow) {
    certificates::RecipientSelectionForm form = Form({L"CN=B"});
    form.CheckChosen(0, true);
    form.AddFound({L"CN=A"});
    form.CheckAllFound(true);
    EXPECT_EQ(form.AddChecked(), L"");
    EXPECT_EQ(form.ChosenRow(0), (certificates::OwnerRow{L"CN=B", true}));
    EXPECT_EQ(form.ChosenRow(1), (certificates::OwnerRow{L"CN=A", false}));
}

TEST_F(SelectionForm, SignersOfOtherListsAreExcludedAndReported) {
    certificates::RecipientSelectionForm form =
        SignerForm({L"CN=Old"}, {{L"one", {L"CN=A", L"CN=Old"}}, {L"two", {L"CN=C", L"CN=A"}}}, L"");
    form.AddFound({L"CN=A", L"CN=B", L"CN=C"});
    form.CheckAllFound(true);
    EXPECT_EQ(form.AddChecked(),
              L"Following signers are used in other lists and had been excluded:\r\n\r\n"
              L"Signer\r\n\"CN=A\"\r\nis used in list\r\n\"one\"\r\n\r\n"
              L"Signer\r\n\"CN=Old\"\r\nis used in list\r\n\"one\"\r\n\r\n"
              L"Signer\r\n\"CN=C\"\r\nis used in list\r\n\"two\"\r\n\r\n");
    EXPECT_THAT(Chosen(form), ElementsAre(L"CN=B"));
}

TEST_F(SelectionForm, TheListThatIsEditedExcludesNothing) {
    certificates::RecipientSelectionForm form =
        SignerForm({L"CN=A"}, {{L"one", {L"CN=A", L"CN=B"}}, {L"two", {}}}, L"one");
    form.AddFound({L"CN=B"});
    form.CheckAllFound(true);
    EXPECT_EQ(form.AddChecked(), L"");
    EXPECT_THAT(Chosen(form), ElementsAre(L"CN=A", L"CN=B"));
}

TEST_F(SelectionForm, EveryEqualEntryIsExcludedAndReported) {
    certificates::RecipientSelectionForm form =
        SignerForm({L"CN=A", L"CN=A", L"cn=a"}, {{L"one", {L"CN=A"}}}, L"");
    const std::wstring line = L"Signer\r\n\"CN=A\"\r\nis used in list\r\n\"one\"\r\n\r\n";
    EXPECT_EQ(form.AddChecked(),
              L"Following signers are used in other lists and had been excluded:\r\n\r\n" + line + line);
    EXPECT_THAT(Chosen(form), ElementsAre(L"cn=a"));
}

TEST_F(SelectionForm, RemovingTakesTheCheckedRowsOnlyAndKeepsTheOrderShown) {
    certificates::RecipientSelectionForm form = Form({L"CN=C", L"CN=A", L"CN=D", L"CN=B", L"CN=A"});
    form.ClickChosenHeader();
    ASSERT_THAT(Chosen(form), ElementsAre(L"CN=A", L"CN=A", L"CN=B", L"CN=C", L"CN=D"));
    form.CheckChosen(1, true);
    form.CheckChosen(3, true);
    form.RemoveChecked();
    EXPECT_THAT(Chosen(form), ElementsAre(L"CN=A", L"CN=B", L"CN=D"));
    form.RemoveChecked();
    EXPECT_EQ(form.ChosenRowCount(), 3U);
}

TEST_F(SelectionForm, ARemovedOwnerCanBeAddedAgain) {
    certificates::RecipientSelectionForm form = Form({L"CN=A"});
    form.AddFound({L"CN=A"});
    form.CheckAllFound(true);
    form.CheckChosen(0, true);
    form.RemoveChecked();
    EXPECT_THAT(Chosen(form), IsEmpty());
    EXPECT_EQ(form.AddChecked(), L"");
    EXPECT_THAT(Chosen(form), ElementsAre(L"CN=A"));
}

TEST_F(SelectionForm, ADoubleClickShowsTheOwnerInLines) {
    certificates::RecipientSelectionForm form = Form({L"CN=A,O=X, Y"});
    form.AddFound({L"CN=B,C=RU"});
    EXPECT_EQ(form.FoundDetails(0), (reporting::Information{.text = L"CN=B,\r\nC=RU", .title = L"Subject"}));
    EXPECT_EQ(form.ChosenDetails(0),
              (reporting::Information{.text = L"CN=A,\r\nO=X, Y", .title = L"Recipient"}));
    EXPECT_EQ(SignerForm({L"CN=A"}, {}, L"").ChosenDetails(0),
              (reporting::Information{.text = L"CN=A", .title = L"Signer"}));
}

TEST_F(SelectionForm, OkAsksForEveryLowerOwnerCheckedOrNotInTheOrderShown) {
    certificates::RecipientSelectionForm form = Form({L"CN=B", L"CN=A"});
    withCertificate_ = {"CN=A", "CN=B"};
    form.ClickChosenHeader();
    form.CheckChosen(1, true);
    EXPECT_TRUE(Confirm(form));
    EXPECT_THAT(form.Result(), ElementsAre(L"CN=A", L"CN=B"));
    const provider::ProviderContext context = ScriptedSessions::kFirstContext;
    EXPECT_THAT(sessions_.Searches(), ElementsAre(FindCall{context, 4, 4, "CN=A", 0x28084, true},
                                                  FindCall{context, 4, 4, "CN=B", 0x28084, true}));
}

TEST_F(SelectionForm, OwnersWithoutCertificateAreDroppedIfTheUserWants) {
    certificates::RecipientSelectionForm form = Form({L"CN=A", L"CN=B", L"CN=C"});
    withCertificate_ = {"CN=B"};
    Reports().presenter.AnswerNext(reporting::kAnswerYes);
    Reports().presenter.AnswerNext(reporting::kAnswerYes);
    EXPECT_TRUE(Confirm(form));
    EXPECT_THAT(form.Result(), ElementsAre(L"CN=B"));
    EXPECT_THAT(Boxes(), ElementsAre(Question(L"CN=A"), Question(L"CN=C")));
}

TEST_F(SelectionForm, NoKeepsEveryOwnerAndTheDialog) {
    certificates::RecipientSelectionForm form = Form({L"CN=A", L"CN=B", L"CN=C"});
    withCertificate_ = {"CN=A", "CN=C"};
    Reports().presenter.AnswerNext(reporting::kAnswerNo);
    EXPECT_FALSE(Confirm(form));
    EXPECT_EQ(toMend_, IDC_SELECTION_CHOSEN_LIST);
    EXPECT_THAT(Chosen(form), ElementsAre(L"CN=A", L"CN=B", L"CN=C"));
    EXPECT_THAT(form.Result(), IsEmpty());
    EXPECT_EQ(sessions_.Searches().size(), 2U);
}

TEST_F(SelectionForm, AFailedSearchStopsOk) {
    certificates::RecipientSelectionForm form = Form({L"CN=A", L"CN=B"});
    sessions_.findStatus = 0xE0700046;
    EXPECT_FALSE(Confirm(form));
    EXPECT_EQ(toMend_, 0);
    EXPECT_EQ(sessions_.Searches().size(), 1U);
    EXPECT_EQ(Boxes().size(), 1U);
    EXPECT_EQ(Boxes()[0].style, reporting::kErrorStyle);
    EXPECT_EQ(form.ChosenRowCount(), 2U);
}

TEST_F(SelectionForm, RecipientsMayBeEmpty) {
    certificates::RecipientSelectionForm form = Form({L"CN=A"});
    Reports().presenter.AnswerNext(reporting::kAnswerYes);
    EXPECT_TRUE(Confirm(form));
    EXPECT_THAT(form.Result(), IsEmpty());
}

TEST_F(SelectionForm, ASignerListNeedsASigner) {
    certificates::RecipientSelectionForm form = SignerForm({L"CN=A"}, {}, L"one");
    Reports().presenter.AnswerNext(reporting::kAnswerYes);
    EXPECT_FALSE(Confirm(form));
    EXPECT_EQ(toMend_, IDC_SELECTION_FOUND_LIST);
    EXPECT_THAT(Boxes(), ElementsAre(Question(L"CN=A"), Refusal(L"No users selected.")));
    certificates::RecipientSelectionForm empty = SignerForm({}, {}, L"one");
    EXPECT_FALSE(Confirm(empty));
    EXPECT_EQ(Boxes().size(), 3U);
}

TEST_F(SelectionForm, ASignerListNeedsANameOfItsOwnBeforeAnySearch) {
    certificates::RecipientSelectionForm form = SignerForm({L"CN=A"}, {{L"one", {}}, {L"two", {}}}, L"one");
    withCertificate_ = {"CN=A"};
    form.listName = L"";
    EXPECT_FALSE(Confirm(form));
    EXPECT_EQ(toMend_, IDC_SELECTION_LIST_NAME_EDIT);
    form.listName = L"two";
    EXPECT_FALSE(Confirm(form));
    EXPECT_EQ(toMend_, IDC_SELECTION_LIST_NAME_EDIT);
    EXPECT_THAT(Boxes(),
                ElementsAre(Refusal(L"No list name"), Refusal(L"List with this name already exists")));
    EXPECT_THAT(sessions_.Searches(), IsEmpty());
    form.listName = L"one";
    EXPECT_TRUE(Confirm(form)) << "its own name may stay";
    form.listName = L"ONE";
    EXPECT_TRUE(Confirm(form)) << "its own name may change its letter case";
    EXPECT_THAT(form.Result(), ElementsAre(L"CN=A"));
}

TEST_F(SelectionForm, AListNameThatDiffersFromAnotherOnlyInLetterCaseIsRefused) {
    certificates::RecipientSelectionForm form = SignerForm({L"CN=A"}, {{L"one", {}}, {L"two", {}}}, L"one");
    withCertificate_ = {"CN=A"};
    form.listName = L"Two";
    EXPECT_FALSE(Confirm(form));
    EXPECT_THAT(Boxes(), ElementsAre(Refusal(L"List with this name already exists")));
}

TEST_F(SelectionForm, AListNameWithABackslashIsRefusedAfterTheOtherNameChecks) {
    certificates::RecipientSelectionForm form = SignerForm({L"CN=A"}, {{L"one\\two", {}}}, L"");
    form.listName = L"one\\two";
    EXPECT_FALSE(Confirm(form));
    form.listName = L"three\\four";
    EXPECT_FALSE(Confirm(form));
    EXPECT_THAT(Boxes(), ElementsAre(Refusal(L"List with this name already exists"),
                                     Refusal(L"List name cannot contain the symbol '\\'")));
    EXPECT_THAT(sessions_.Searches(), IsEmpty());
}

TEST_F(SelectionForm, ANewListMayNotTakeAnExistingName) {
    certificates::RecipientSelectionForm form = SignerForm({L"CN=A"}, {{L"one", {}}}, L"");
    form.listName = L"one";
    EXPECT_FALSE(Confirm(form));
    EXPECT_THAT(Boxes(), ElementsAre(Refusal(L"List with this name already exists")));
}

TEST_F(SelectionForm, RecipientsHaveNoListName) {
    certificates::RecipientSelectionForm form = Form({});
    EXPECT_TRUE(Confirm(form));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(SelectionForm, TwentyThousandFoundAndFiveThousandChosenAreHandledWhole) {
    corvane::store::TextList many;
    corvane::store::TextList others;
    for (int i = 0; i < 20'000; ++i) {
        many.push_back(L"CN=Owner " + std::to_wstring(19'999 - i) + L",C=RU");
    }
    certificates::RecipientSelectionForm form =
        SignerForm({many.begin(), many.begin() + 5000}, {{L"one", {many.end() - 5000, many.end()}}}, L"");
    form.AddFound(many);
    form.SetFilter(L"owner");
    form.ClickFoundHeader();
    form.SetSortField(1);
    form.CheckAllFound(true);
    EXPECT_NE(form.AddChecked(), L"");
    EXPECT_EQ(form.ChosenRowCount(), 15'000U);
    form.CheckChosen(0, true);
    form.RemoveChecked();
    EXPECT_EQ(form.ChosenRowCount(), 14'999U);
}

TEST_F(SelectionForm, IsUnchangedWhateverIsOnlyLookedAt) {
    certificates::RecipientSelectionForm form = SignerForm({L"CN=B", L"CN=A"}, {}, L"Board");
    EXPECT_FALSE(form.IsChanged(L"Board"));
    form.AddFound({L"CN=C", L"CN=D"});
    form.CheckAllFound(true);
    form.SetFilter(L"c");
    form.CheckChosen(0, true);
    EXPECT_FALSE(form.IsChanged(L"Board"));
}

TEST_F(SelectionForm, IsChangedByOwnersTheirOrderAndTheName) {
    certificates::RecipientSelectionForm added = Form({L"CN=B"});
    added.AddFound({L"CN=C"});
    added.CheckAllFound(true);
    EXPECT_EQ(added.AddChecked(), L"");
    EXPECT_TRUE(added.IsChanged(L""));

    certificates::RecipientSelectionForm removed = Form({L"CN=B"});
    removed.CheckChosen(0, true);
    removed.RemoveChecked();
    EXPECT_TRUE(removed.IsChanged(L""));
    removed.AddFound({L"CN=B"});
    removed.CheckAllFound(true);
    EXPECT_EQ(removed.AddChecked(), L"");
    EXPECT_FALSE(removed.IsChanged(L"")) << "It is as it was.";

    certificates::RecipientSelectionForm sorted = Form({L"CN=B", L"CN=A"});
    sorted.ClickChosenHeader();
    EXPECT_TRUE(sorted.IsChanged(L"")) << "The order shown is the order kept.";

    EXPECT_TRUE(SignerForm({}, {}, L"Board").IsChanged(L"Boar"));
}

}  // namespace
}  // namespace corvane::test
