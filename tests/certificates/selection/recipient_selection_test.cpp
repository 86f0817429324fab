#include "certificates/selection/selection_form.h"

#include <gmock/gmock.h>

#include <functional>
#include <utility>

#include "certificates/signer_lists/signer_lists_form.h"
#include "reporting/message_styles.h"
#include "tests/certificates/provider_fixture.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Choosing = std::function<bool(certificates::RecipientSelectionForm& form,
                                    const certificates::Cryptocontext& context)>;

// A selection dialog whose user is a function.
class ScriptedRun final : public certificates::SelectionRun {
  public:
    bool Run(certificates::RecipientSelectionForm& form,
             const certificates::Cryptocontext& context) override {
        return user(form, context);
    }

    Choosing user;
};

class Selection : public CertsFixture {
  protected:
    Selection() {
        profile_.csProfiles = {L"main"};
        profile_.notUseDirectory = {1};
        profile_.notLoadCrl = {1};
        sessions_.answer = [](const FindCall& call) {
            return std::vector<ScriptedCertificate>{Certificate(call.ownerPattern.value_or(""), 0x1C)};
        };
    }

    [[nodiscard]] certificates::SelectionPlace Place(Choosing user) {
        dialog_.user = std::move(user);
        return {owner_, profile_, 0, waitWindow_, services_, dialog_};
    }

    // A user who confirms what the dialog starts with.
    Choosing Confirming(const std::wstring& listName = {}) {
        return [this, listName](certificates::RecipientSelectionForm& form,
                                const certificates::Cryptocontext& context) {
            sessions_.log.emplace_back("dialog");
            wasForSigners_ = form.IsForSigners();
            wasNetworkStoreAvailable_ = form.IsNetworkStoreAvailable();
            title_ = form.Title();
            if (!listName.empty()) {
                form.listName = listName;
            }
            form.AddFound({L"CN=New"});
            form.CheckAllFound(true);
            EXPECT_EQ(form.AddChecked(), L"");
            return Reports().IsAccepted(form.Confirm(context, Reporter(), owner_), owner_);
        };
    }
    Choosing Cancelling() {
        return [this](certificates::RecipientSelectionForm& /*form*/,
                      const certificates::Cryptocontext& /*context*/) {
            sessions_.log.emplace_back("dialog");
            return false;
        };
    }

    ScriptedRun dialog_;
    store::Profile profile_;
    certificates::SignerListsForm lists_{{{L"one", {L"CN=A"}}, {L"two", {L"CN=B"}}}};
    bool wasForSigners_ = false;
    bool wasNetworkStoreAvailable_ = true;
    std::wstring title_;
};

TEST_F(Selection, ChosenRecipientsComeBackAndTheContextIsClosed) {
    {
        const std::optional<certificates::ChosenRecipients> chosen =
            certificates::ChooseRecipients(Place(Confirming()), {L"CN=A"});
        ASSERT_TRUE(chosen);
        EXPECT_THAT(chosen->owners, ElementsAre(L"CN=A", L"CN=New"));
        EXPECT_THAT(sessions_.Closed(), IsEmpty()) << "closed before the choice could be kept";
    }
    EXPECT_FALSE(wasForSigners_);
    EXPECT_FALSE(wasNetworkStoreAvailable_);
    EXPECT_THAT(sessions_.log, ElementsAre("show wait window", "initialize", "destroy wait window", "dialog",
                                           "find", "free result", "find", "free result", "uninitialize"));
    EXPECT_THAT(sessions_.Closed(), ElementsAre(ScriptedSessions::kFirstContext));
}

TEST_F(Selection, ACancelledChoiceOfRecipientsDropsTheContextUnclosed) {
    EXPECT_FALSE(certificates::ChooseRecipients(Place(Cancelling()), {L"CN=A"}));
    EXPECT_THAT(sessions_.Closed(), IsEmpty());
    EXPECT_EQ(sessions_.OpenContexts(), 1U);
}

TEST_F(Selection, WithoutAContextNoDialogIsShown) {
    sessions_.initializeStatus = 0xE0700001;
    EXPECT_FALSE(certificates::ChooseRecipients(Place(Confirming()), {L"CN=A"}));
    EXPECT_FALSE(certificates::AddSignerList(lists_, Place(Confirming(L"three"))));
    EXPECT_FALSE(certificates::EditSignerList(lists_, 0, Place(Confirming(L"three"))));
    EXPECT_THAT(sessions_.log, ::testing::Not(::testing::Contains("dialog")));
    EXPECT_EQ(lists_.Lists().size(), 2U);
    EXPECT_EQ(warnings_.warnings.size(), 3U);
}

TEST_F(Selection, AFailureToCloseIsReportedAndTheChoiceHolds) {
    sessions_.uninitializeStatus = 6;
    {
        const std::optional<certificates::ChosenRecipients> chosen =
            certificates::ChooseRecipients(Place(Confirming()), {});
        ASSERT_TRUE(chosen);
        EXPECT_THAT(chosen->owners, ElementsAre(L"CN=New"));
        EXPECT_THAT(Boxes(), IsEmpty());
    }
    ASSERT_EQ(Boxes().size(), 1U);
    EXPECT_EQ(Boxes()[0].text, L"Cryptocontext uninitialization.\r\nError 0x6 - System text 6.");
}

TEST_F(Selection, ANewSignerListIsAppended) {
    {
        const std::optional<certificates::CertSession> session =
            certificates::AddSignerList(lists_, Place(Confirming(L"three")));
        EXPECT_TRUE(session);
        EXPECT_THAT(sessions_.Closed(), IsEmpty()) << "closed before the list could be shown";
    }
    EXPECT_TRUE(wasForSigners_);
    EXPECT_EQ(title_, L"Add list");
    EXPECT_THAT(lists_.Lists(),
                ElementsAre(store::SignerGroup{L"one", {L"CN=A"}}, store::SignerGroup{L"two", {L"CN=B"}},
                            store::SignerGroup{L"three", {L"CN=New"}}));
    EXPECT_THAT(sessions_.Closed(), ElementsAre(ScriptedSessions::kFirstContext));
    EXPECT_EQ(sessions_.Searches()[0].searchFlags, 0x100U) << "signers, without the network store";
}

TEST_F(Selection, AnEditedSignerListIsReplacedInPlace) {
    EXPECT_TRUE(certificates::EditSignerList(lists_, 0, Place(Confirming())));
    EXPECT_EQ(title_, L"Edit list");
    EXPECT_THAT(lists_.Lists(), ElementsAre(store::SignerGroup{L"one", {L"CN=A", L"CN=New"}},
                                            store::SignerGroup{L"two", {L"CN=B"}}));
    EXPECT_TRUE(certificates::EditSignerList(lists_, 0, Place(Confirming(L"renamed"))));
    EXPECT_EQ(lists_.Lists()[0].name, L"renamed");
}

TEST_F(Selection, ASignerListMayNotTakeTheNameOfAnotherOne) {
    EXPECT_FALSE(certificates::EditSignerList(lists_, 0, Place(Confirming(L"two"))));
    EXPECT_EQ(lists_.Lists()[0].name, L"one");
    ASSERT_EQ(Boxes().size(), 1U);
    EXPECT_EQ(Boxes()[0].text, L"List with this name already exists");
}

TEST_F(Selection, ACancelledSignerListClosesTheContext) {
    EXPECT_FALSE(certificates::AddSignerList(lists_, Place(Cancelling())));
    EXPECT_FALSE(certificates::EditSignerList(lists_, 1, Place(Cancelling())));
    EXPECT_THAT(sessions_.Closed(),
                ElementsAre(ScriptedSessions::kFirstContext, ScriptedSessions::kFirstContext + 1));
    EXPECT_EQ(lists_.Lists().size(), 2U);
}

TEST_F(Selection, AListThatIsNotThereIsNotEdited) {
    EXPECT_FALSE(certificates::EditSignerList(lists_, 2, Place(Confirming())));
    EXPECT_THAT(sessions_.log, IsEmpty());
}

}  // namespace
}  // namespace corvane::test
