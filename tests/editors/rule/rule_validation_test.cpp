#include "editors/rule/rule_validation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

#include "reporting/message_styles.h"
#include "res/ids.h"
#include "tests/kit/fakes/memory_files.h"
#include "tests/kit/fixtures/reporter_fixture.h"
#include "tests/kit/samples/sample_rules.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using RefusedRule = std::optional<reporting::Refusal>;

/// Where what a refusal says can be mended.
int ControlFor(const std::wstring& text) {
    static const std::map<std::wstring, int> kControls = {
        {L"No operation selected.", IDC_RULE_OPERATION_COMBO},
        {L"No Input folder selected.", IDC_RULE_INPUT_EDIT},
        {L"No Output folder selected.", IDC_RULE_OUTPUT_EDIT},
        {L"No Error folder selected.", IDC_RULE_ERROR_EDIT},
        {L"Bad Input folder.", IDC_RULE_INPUT_EDIT},
        {L"Bad Output folder.", IDC_RULE_OUTPUT_EDIT},
        {L"Bad Error folder.", IDC_RULE_ERROR_EDIT},
        {L"No Mask selected.", IDC_RULE_ADD_MASK_BUTTON},
        {L"No certificate is selected for operation.", IDC_RULE_CERT_BUTTON},
        {L"Bad Second Output folder.", IDC_RULE_CERT_EDIT},
        {L"Executable file is not set.", IDC_RULE_CERT_EDIT},
    };
    return kControls.at(text);
}

reporting::Refusal Box(const wchar_t* text, int iconId) {
    return {.wording = reporting::RefusalPicture{.text = text, .iconId = iconId},
            .controlId = ControlFor(text)};
}

reporting::Refusal Message(const wchar_t* text) {
    return reporting::Refuse(text, ControlFor(text));
}

reporting::Refusal Report(const wchar_t* detail, const std::wstring& folder, std::uint32_t code) {
    return {.wording = reporting::RefusedPath{.path = folder, .code = code, .detail = detail},
            .controlId = ControlFor(detail)};
}

class RuleCheck : public ::testing::Test {
  protected:
    RuleCheck() {
        fixture_.presenter.MakeLive(dialog_);
        for (const wchar_t* const folder : {L"C:\\in", L"C:\\out", L"C:\\error", L"C:\\second"}) {
            files_.contents[folder] = "";
        }
    }

    RefusedRule Check() { return editors::CheckRule(form_, files_); }

    void Show(const reporting::Refusal& refusal) { fixture_.IsAccepted(refusal, dialog_); }

    [[nodiscard]] corvane::store::TextList AskedPaths() const {
        corvane::store::TextList paths;
        for (const FileCall& call : files_.Calls()) {
            paths.push_back(call.path);
        }
        return paths;
    }

    toolkit::WindowHandle dialog_ = RecordingPresenter::Window(7);
    ReporterFixture fixture_;
    MemoryFiles files_;
    editors::RuleForm form_ = Opened(FullRule(L"HASH"));
};

TEST_F(RuleCheck, ARuleOfEveryOperationThatIsCompletePasses) {
    for (const std::wstring code : kCodes) {
        form_ = Opened(FullRule(code));
        EXPECT_EQ(Check(), std::nullopt) << IndexOfCode(code);
    }
}

TEST_F(RuleCheck, NoOperationIsRefusedFirst) {
    form_.operation.index = -1;
    form_.inputFolder.text = L"";
    EXPECT_EQ(Check(), RefusedRule(Message(L"No operation selected.")));
}

TEST_F(RuleCheck, EachFolderThatIsNotSetIsRefusedWithItsPicture) {
    for (const wchar_t* const notSet : {L"", L"0"}) {
        form_ = Opened(FullRule(L"HASH"));
        form_.inputFolder.text = notSet;
        EXPECT_EQ(Check(), RefusedRule(Box(L"No Input folder selected.", IDI_INPUT_FOLDER)));
        form_ = Opened(FullRule(L"HASH"));
        form_.outputFolder.text = notSet;
        EXPECT_EQ(Check(), RefusedRule(Box(L"No Output folder selected.", IDI_OUTPUT_FOLDER)));
        form_ = Opened(FullRule(L"HASH"));
        form_.errorFolder.text = notSet;
        EXPECT_EQ(Check(), RefusedRule(Box(L"No Error folder selected.", IDI_ERROR_FOLDER)));
    }
    EXPECT_THAT(AskedPaths(), IsEmpty());
}

TEST_F(RuleCheck, ARuleWithThreeMissingFoldersReportsOnlyTheInputFolder) {
    form_.inputFolder.text = form_.outputFolder.text = form_.errorFolder.text = L"";
    form_.result.masks.clear();
    EXPECT_EQ(Check(), RefusedRule(Box(L"No Input folder selected.", IDI_INPUT_FOLDER)));
}

TEST_F(RuleCheck, AFolderThatIsNotSetComesBeforeABadOne) {
    form_.inputFolder.text = L"relative";
    form_.errorFolder.text = L"";
    EXPECT_EQ(Check(), RefusedRule(Box(L"No Error folder selected.", IDI_ERROR_FOLDER)));
}

TEST_F(RuleCheck, BlanksAreAFolderLikeAnyOther) {
    form_.inputFolder.text = L"   ";
    EXPECT_EQ(Check(), RefusedRule(Report(L"Bad Input folder.", L"   ", 3)));
    form_.inputFolder.text = L" 0";
    EXPECT_EQ(Check(), RefusedRule(Report(L"Bad Input folder.", L" 0", 3)));
}

TEST_F(RuleCheck, ADeleteRuleWithAnEmptyOutputFolderPasses) {
    form_ = Opened(FullRule(L"DELE"));
    ASSERT_EQ(form_.outputFolder.text, L"");
    EXPECT_EQ(Check(), std::nullopt);
    EXPECT_THAT(AskedPaths(), ElementsAre(L"C:\\in", L"C:\\error"));
}

TEST_F(RuleCheck, FoldersAreAskedForInTheirOrderAsTyped) {
    form_ = Opened(FullRule(L"MOVE"));
    EXPECT_EQ(Check(), std::nullopt);
    EXPECT_THAT(AskedPaths(), ElementsAre(L"C:\\in", L"C:\\out", L"C:\\error", L"C:\\second"));
}

TEST_F(RuleCheck, ARelativeFolderIsRefusedWithCode3EvenIfItExists) {
    for (const wchar_t* const folder : {L"data\\in", L"in", L"\\in", L"/in", L"\\?\\in"}) {
        files_.contents[folder] = "";
        form_.inputFolder.text = folder;
        EXPECT_EQ(Check(), RefusedRule(Report(L"Bad Input folder.", folder, 3)));
    }
    EXPECT_THAT(AskedPaths(), IsEmpty());
}

TEST_F(RuleCheck, ANetworkFolderPassesTheFormTestAndIsTestedForExistence) {
    form_.inputFolder.text = L"\\\\server\\share\\in";
    EXPECT_EQ(Check(), RefusedRule(Report(L"Bad Input folder.", L"\\\\server\\share\\in", 2)));
    files_.contents[L"\\\\server\\share\\in"] = "";
    EXPECT_EQ(Check(), std::nullopt);
}

TEST_F(RuleCheck, AColonOrTwoBackslashesAnywhereAreEnoughForTheFormTest) {
    for (const wchar_t* const folder : {L"in:", L"a\\\\b", L":"}) {
        files_.contents[folder] = "";
        form_.inputFolder.text = folder;
        EXPECT_EQ(Check(), std::nullopt);
    }
}

TEST_F(RuleCheck, EachBadFolderIsReportedWithItsMessageAndTheSystemsCode) {
    files_.FailCall(0, 5);
    EXPECT_EQ(Check(), RefusedRule(Report(L"Bad Input folder.", L"C:\\in", 5)));
    files_.FailCall(2, 53);
    EXPECT_EQ(Check(), RefusedRule(Report(L"Bad Output folder.", L"C:\\out", 53)));
    files_.FailCall(5, 21);
    EXPECT_EQ(Check(), RefusedRule(Report(L"Bad Error folder.", L"C:\\error", 21)));
}

TEST_F(RuleCheck, AFolderThatDoesNotExistWithCode80RefusesSilently) {
    files_.FailCall(0, 80);
    const RefusedRule refusal = Check();
    ASSERT_TRUE(refusal.has_value());
    EXPECT_EQ(refusal,
              (reporting::Refusal{.wording = reporting::SilentRefusal(), .controlId = IDC_RULE_INPUT_EDIT}))
        << "It is told nowhere, but the caret goes there.";
    Show(*refusal);
    EXPECT_THAT(fixture_.presenter.Boxes(), IsEmpty());
}

TEST_F(RuleCheck, AFileInTheFoldersPlacePasses) {
    files_.contents[L"C:\\in"] = "This is a file.";
    EXPECT_EQ(Check(), std::nullopt);
}

TEST_F(RuleCheck, AFolderOf300CharactersIsAskedForAndReportedWhole) {
    const std::wstring folder = L"C:\\" + std::wstring(297, L'x');
    form_.inputFolder.text = folder;
    files_.FailCall(0, 206);
    const RefusedRule refusal = Check();
    EXPECT_EQ(refusal, RefusedRule(Report(L"Bad Input folder.", folder, 206)));
    EXPECT_THAT(AskedPaths(), ElementsAre(folder));
    Show(refusal.value_or(reporting::Refusal()));
    EXPECT_EQ(fixture_.presenter.OnlyText(),
              L"Opening file " + folder + L".\r\nError 0xCE - System text 206.Bad Input folder.");
}

TEST_F(RuleCheck, NoMaskIsRefusedAfterTheFolders) {
    form_.result.masks.clear();
    EXPECT_EQ(Check(), RefusedRule(Message(L"No Mask selected.")));
    files_.FailCall(5, 5);
    EXPECT_EQ(Check(), RefusedRule(Report(L"Bad Error folder.", L"C:\\error", 5)));
}

TEST_F(RuleCheck, ARecipientOperationWithoutRecipientsIsRefusedOnlyAfterFoldersAndMasks) {
    for (const std::wstring code : {L"ENCR", L"LENC", L"SGEN"}) {
        form_ = Opened(FullRule(code));
        form_.recipients.clear();
        EXPECT_EQ(Check(), RefusedRule(Box(L"No certificate is selected for operation.", IDI_CERTIFICATES)));
        form_.result.masks.clear();
        EXPECT_EQ(Check(), RefusedRule(Message(L"No Mask selected.")));
        form_.errorFolder.text = L"relative";
        EXPECT_EQ(Check(), RefusedRule(Report(L"Bad Error folder.", L"relative", 3)));
    }
}

TEST_F(RuleCheck, NoOtherOperationNeedsRecipientsOrSignerLists) {
    for (const std::wstring code : kCodes) {
        if (IsOneOf(code, L"ENCR LENC SGEN")) {
            continue;
        }
        form_ = Opened(FullRule(code));
        form_.recipients.clear();
        form_.result.signerGroups.clear();
        EXPECT_EQ(Check(), std::nullopt);
    }
}

TEST_F(RuleCheck, AMoveRuleWithoutASecondOutputFolderPasses) {
    for (const wchar_t* const notSet : {L"", L"0"}) {
        form_ = Opened(FullRule(L"MOVE"));
        form_.cert.text = notSet;
        EXPECT_EQ(Check(), std::nullopt);
    }
}

TEST_F(RuleCheck, AMoveRuleWithABadSecondOutputFolderIsRefused) {
    form_ = Opened(FullRule(L"MOVE"));
    form_.cert.text = L"D:\\gone";
    EXPECT_EQ(Check(), RefusedRule(Report(L"Bad Second Output folder.", L"D:\\gone", 2)));
    form_.cert.text = L"relative";
    EXPECT_EQ(Check(), RefusedRule(Report(L"Bad Second Output folder.", L"relative", 3)));
}

TEST_F(RuleCheck, AnExecuteRuleWithoutAnExecutableIsRefused) {
    for (const wchar_t* const notSet : {L"", L"0"}) {
        form_ = Opened(FullRule(L"EXEC"));
        form_.cert.text = notSet;
        EXPECT_EQ(Check(), RefusedRule(Box(L"Executable file is not set.", IDI_EXECUTABLE)));
    }
}

TEST_F(RuleCheck, TheExecutableNeedNotExist) {
    form_ = Opened(FullRule(L"EXEC"));
    form_.cert.text = L"no such thing";
    EXPECT_EQ(Check(), std::nullopt);
    EXPECT_THAT(AskedPaths(), ElementsAre(L"C:\\in", L"C:\\out", L"C:\\error"));
}

TEST_F(RuleCheck, ACountInTheCertificateFieldIsNoPath) {
    for (const wchar_t* const text : {L"2", L"0", L"relative"}) {
        form_.cert.text = text;
        EXPECT_EQ(Check(), std::nullopt);
    }
}

TEST_F(RuleCheck, AMessageIsShownOverTheEditor) {
    Show(Message(L"No Mask selected."));
    EXPECT_THAT(
        fixture_.presenter.Boxes(),
        ElementsAre(ShownBox{
            .owner = dialog_, .text = L"No Mask selected.", .title = reporting::AppTitle, .style = 0x30}));
}

TEST_F(RuleCheck, WhatTheErrorBoxSaysIsSaidInNoOther) {
    Show(Box(L"No Output folder selected.", IDI_OUTPUT_FOLDER));
    EXPECT_THAT(fixture_.presenter.Boxes(), IsEmpty());
}

TEST_F(RuleCheck, AReportNamesTheFolderAndTheSystemsCode) {
    Show(Report(L"Bad Input folder.", L"C:\\вход", 3));
    EXPECT_THAT(
        fixture_.presenter.Boxes(),
        ElementsAre(ShownBox{.owner = dialog_,
                             .text = L"Opening file C:\\вход.\r\nError 0x3 - System text 3.Bad Input folder.",
                             .title = reporting::AppTitle,
                             .style = reporting::kErrorStyle}));
}

}  // namespace
}  // namespace corvane::test
