#include "app/extensions_page/extensions_page_form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tuple>

#include "reporting/message_styles.h"
#include "reporting/unsaved_changes.h"
#include "res/ids.h"
#include "tests/kit/fixtures/reporter_fixture.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ConfigPage : public ::testing::Test {
  protected:
    ConfigPage() { fixture_.presenter.MakeLive(dialog_); }

    static store::AppSettings Stored() {
        store::AppSettings settings;
        settings.additionalExtensions = {L"pdf", L"xml"};
        settings.logPath = L"C:\\log";
        return settings;
    }
    // What the dialog does when the user presses a button. Apply gives the control to mend, 0 for none.
    int Apply(const corvane::store::TextList& listed = {L"listed"}) {
        const std::optional<reporting::Refusal> refusal = form_.Apply(listed);
        fixture_.IsAccepted(refusal, dialog_);
        return refusal.value_or(reporting::Refusal()).controlId;
    }
    bool Confirm() { return reporting::MayLeave(form_.IsModified(), fixture_.reporter, dialog_); }
    bool Delete(const std::optional<std::wstring>& selected) {
        if (!selected) {
            return fixture_.IsAccepted(app::ConfigPageForm::NothingToDelete(), dialog_);
        }
        if (!fixture_.IsAgreed(app::ConfigPageForm::DeletionQuestion(*selected), dialog_)) {
            return false;
        }
        form_.OnExtensionDeleted();
        return true;
    }
    [[nodiscard]] ShownBox Box(const wchar_t* text, std::uint32_t style) const {
        return {dialog_, text, reporting::AppTitle, style};
    }
    [[nodiscard]] ShownBox UnsavedQuestion() const {
        return Box(L"Some changes has not been saved. Exit without saving?", reporting::kConfirmationStyle);
    }
    [[nodiscard]] const std::vector<ShownBox>& Boxes() const { return fixture_.presenter.Boxes(); }

    toolkit::WindowHandle dialog_ = RecordingPresenter::Window(7);
    ReporterFixture fixture_;
    app::ConfigPageForm form_{Stored()};
};

TEST_F(ConfigPage, StartsWithTheSettingsInForceUnmodified) {
    EXPECT_EQ(form_.settings, Stored());
    EXPECT_FALSE(form_.IsModified());
}

TEST_F(ConfigPage, OkWithoutAnyChangeAsksNothing) {
    EXPECT_TRUE(Confirm());
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ConfigPage, EveryChangeOfAnExtensionCounts) {
    form_.OnExtensionEdited();
    EXPECT_TRUE(form_.IsModified());
}

TEST_F(ConfigPage, AnExtensionThatIsNotListedIsAddedAndCountsAsAChange) {
    EXPECT_TRUE(form_.AddExtension(false));
    EXPECT_TRUE(form_.IsModified());
}

TEST_F(ConfigPage, AnExtensionThatIsListedIsDroppedWithoutAMessageAndIsNoChange) {
    EXPECT_FALSE(form_.AddExtension(true));
    EXPECT_FALSE(form_.IsModified());
    form_.OnExtensionEdited();
    EXPECT_FALSE(form_.AddExtension(true));
    EXPECT_TRUE(form_.IsModified()) << "an earlier change still counts";
}

TEST_F(ConfigPage, DeletingWithoutASelectionIsRefused) {
    EXPECT_FALSE(Delete(std::nullopt));
    EXPECT_THAT(Boxes(), ElementsAre(Box(L"Select list item to delete.", reporting::kRefusalStyle)));
    EXPECT_EQ(app::ConfigPageForm::NothingToDelete().controlId, IDC_CONFIG_ADDITIONAL_LIST);
    EXPECT_FALSE(form_.IsModified());
}

TEST_F(ConfigPage, DeletingAsksAndOnlyYesDeletes) {
    for (const int answer : {reporting::kAnswerNo, reporting::kAnswerCancel}) {
        fixture_.presenter.AnswerNext(answer);
        EXPECT_FALSE(Delete(L"pdf"));
        EXPECT_FALSE(form_.IsModified());
    }
    fixture_.presenter.Clear();
    fixture_.presenter.AnswerNext(reporting::kAnswerYes);
    EXPECT_TRUE(Delete(L"pdf"));
    EXPECT_TRUE(form_.IsModified());
    EXPECT_THAT(Boxes(),
                ElementsAre(Box(L"Delete additional extension 'pdf'?", reporting::kConfirmationStyle)));
}

TEST_F(ConfigPage, ApplyTakesTheListAndCountsTheChangesAsKept) {
    form_.OnExtensionEdited();
    EXPECT_EQ(Apply({L"a", L"b"}), 0);
    EXPECT_THAT(form_.settings.additionalExtensions, ElementsAre(L"a", L"b"));
    EXPECT_FALSE(form_.IsModified());
    EXPECT_TRUE(Confirm());
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ConfigPage, ApplyWithoutAChangeDoesNothingNotEvenItsChecks) {
    form_.settings.hashExtension.clear();
    EXPECT_EQ(Apply(), 0);
    EXPECT_THAT(form_.settings.additionalExtensions, ElementsAre(L"pdf", L"xml"));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ConfigPage, ApplyRefusesTheFirstOfSixExtensionsThatIsEmpty) {
    const std::tuple<app::ExtensionField, int, const wchar_t*> checks[] = {
        {&store::AppSettings::signedExtension, IDC_CONFIG_SIGNED_EDIT,
         L"Please, choose extension for files with attached signature."},
        {&store::AppSettings::detachedSignatureExtension, IDC_CONFIG_DETACHED_EDIT,
         L"Please, choose extension for files with detached signature."},
        {&store::AppSettings::encryptedExtension, IDC_CONFIG_ENCRYPTED_EDIT,
         L"Please, choose extension for encrypted files."},
        {&store::AppSettings::base64Extension, IDC_CONFIG_BASE64_EDIT,
         L"Please, choose extension for b64 files."},
        {&store::AppSettings::hashExtension, IDC_CONFIG_HASH_EDIT,
         L"Please, choose extension for hash files."},
        {&store::AppSettings::verificationExtension, IDC_CONFIG_VERIFICATION_EDIT,
         L"Please, choose extension for files with signature verification report."},
    };
    for (const auto& check : checks) {
        form_.settings.*std::get<0>(check) = L"";
    }
    form_.OnExtensionEdited();
    for (const auto& [field, controlId, message] : checks) {
        fixture_.presenter.Clear();
        EXPECT_EQ(Apply(), controlId);
        EXPECT_THAT(Boxes(), ElementsAre(Box(message, reporting::kRefusalStyle)));
        EXPECT_TRUE(form_.IsModified());
        EXPECT_THAT(form_.settings.additionalExtensions, ElementsAre(L"pdf", L"xml"));
        form_.settings.*field = L"x";
    }
    EXPECT_EQ(Apply(), 0);
    EXPECT_FALSE(form_.IsModified());
}

TEST_F(ConfigPage, ApplyTakesEmptyExtensionsOfArchives) {
    form_.settings.zipExtension.clear();
    form_.settings.gzipExtension.clear();
    form_.OnExtensionEdited();
    EXPECT_EQ(Apply(), 0);
    EXPECT_THAT(Boxes(), IsEmpty());
    EXPECT_FALSE(form_.IsModified());
}

TEST_F(ConfigPage, OkAfterChangesAsksAndOnlyYesEnds) {
    form_.OnExtensionEdited();
    for (const int answer : {reporting::kAnswerNo, reporting::kAnswerCancel}) {
        fixture_.presenter.Clear();
        fixture_.presenter.AnswerNext(answer);
        EXPECT_FALSE(Confirm());
        EXPECT_THAT(Boxes(), ElementsAre(UnsavedQuestion()));
    }
    fixture_.presenter.AnswerNext(reporting::kAnswerYes);
    EXPECT_TRUE(Confirm());
}

TEST_F(ConfigPage, OkChecksNothing) {
    form_.settings.signedExtension.clear();
    form_.OnExtensionEdited();
    fixture_.presenter.AnswerNext(reporting::kAnswerYes);
    EXPECT_TRUE(Confirm());
    EXPECT_THAT(Boxes(), ElementsAre(UnsavedQuestion()));
    EXPECT_EQ(form_.settings.signedExtension, L"");
}

// Deliberate: what was typed is taken as it stands, the list as of the last Apply.
TEST_F(ConfigPage, OkKeepsTypedExtensionsAndLosesListChangesThatWereNotApplied) {
    EXPECT_TRUE(form_.AddExtension(false));
    Apply({L"applied"});
    EXPECT_TRUE(form_.AddExtension(false));
    form_.settings.signedExtension = L"typed";
    form_.OnExtensionEdited();
    fixture_.presenter.AnswerNext(reporting::kAnswerYes);
    EXPECT_TRUE(Confirm());
    EXPECT_EQ(form_.settings.signedExtension, L"typed");
    EXPECT_THAT(form_.settings.additionalExtensions, ElementsAre(L"applied"));
}

TEST_F(ConfigPage, TheOtherSettingsStayAsTheyWere) {
    form_.OnExtensionEdited();
    Apply({L"a"});
    store::AppSettings expected = Stored();
    expected.additionalExtensions = {L"a"};
    EXPECT_EQ(form_.settings, expected);
}

TEST(ConfigPageTexts, AreTheDialogs) {
    EXPECT_STREQ(app::kConfigPageTitle, L"Configurations");
    EXPECT_STREQ(app::kConfigPageExitText, L"Exit");
    EXPECT_STREQ(app::kConfigPageApplyText, L"Apply");
}

}  // namespace
}  // namespace corvane::test
