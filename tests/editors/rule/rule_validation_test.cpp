#include "editors/rule/rule_validation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

#include "reporting/message_styles.h"
#include "tests/kit/fakes/memory_files.h"
#include "tests/kit/fixtures/reporter_fixture.h"
#include "tests/kit/samples/sample_rules.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using RefusedRule = std::optional<editors::RuleRefusal>;

/// Where what a refusal says can be mended.
editors::RuleField FieldFor(const std::wstring& text) {
    static const std::map<std::wstring, editors::RuleField> kFields = {
        {L"No operation selected.", editors::RuleField::kOperation},
        {L"No Input folder selected.", editors::RuleField::kInputFolder},
        {L"No Output folder selected.", editors::RuleField::kOutputFolder},
        {L"No Error folder selected.", editors::RuleField::kErrorFolder},
        {L"Bad Input folder.", editors::RuleField::kInputFolder},
        {L"Bad Output folder.", editors::RuleField::kOutputFolder},
        {L"Bad Error folder.", editors::RuleField::kErrorFolder},
        {L"No Mask selected.", editors::RuleField::kMasks},
        {L"No certificate is selected for operation.", editors::RuleField::kCertificates},
        {L"Bad Second Output folder.", editors::RuleField::kCertPath},
        {L"Executable file is not set.", editors::RuleField::kCertPath},
    };
    return kFields.at(text);
}

editors::RuleRefusal Box(const wchar_t* text, editors::RuleIcon icon) {
    return {editors::RefusalKind::kErrorBox, text, icon, L"", 0, FieldFor(text)};
}

editors::RuleRefusal Message(const wchar_t* text) {
    return {editors::RefusalKind::kMessage, text, editors::RuleIcon::kInputFolder, L"", 0, FieldFor(text)};
}

editors::RuleRefusal Report(const wchar_t* detail, const std::wstring& folder, std::uint32_t code) {
    return {editors::RefusalKind::kFileReport,
            detail,
            editors::RuleIcon::kInputFolder,
            folder,
            code,
            FieldFor(detail)};
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

    void Show(const editors::RuleRefusal& refusal) {
        editors::ShowRefusal(refusal, fixture_.reporter, dialog_,
                             [this](const std::wstring& text, editors::RuleIcon icon) {
                                 errorBoxes_.emplace_back(text, icon);
                             });
    }

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
    std::vector<std::pair<std::wstring, editors::RuleIcon>> errorBoxes_;
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
        EXPECT_EQ(Check(), RefusedRule(Box(L"No Input folder selected.", editors::RuleIcon::kInputFolder)));
        form_ = Opened(FullRule(L"HASH"));
        form_.outputFolder.text = notSet;
        EXPECT_EQ(Check(), RefusedRule(Box(L"No Output folder selected.", editors::RuleIcon::kOutputFolder)));
        form_ = Opened(FullRule(L"HASH"));
        form_.errorFolder.text = notSet;
        EXPECT_EQ(Check(), RefusedRule(Box(L"No Error folder selected.", editors::RuleIcon::kErrorFolder)));
    }
    EXPECT_THAT(AskedPaths(), IsEmpty());
}

TEST_F(RuleCheck, ARuleWithThreeMissingFoldersReportsOnlyTheInputFolder) {
    form_.inputFolder.text = form_.outputFolder.text = form_.errorFolder.text = L"";
    form_.result.masks.clear();
    EXPECT_EQ(Check(), RefusedRule(Box(L"No Input folder selected.", editors::RuleIcon::kInputFolder)));
}

TEST_F(RuleCheck, AFolderThatIsNotSetComesBeforeABadOne) {
    form_.inputFolder.text = L"relative";
    form_.errorFolder.text = L"";
    EXPECT_EQ(Check(), RefusedRule(Box(L"No Error folder selected.", editors::RuleIcon::kErrorFolder)));
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
    EXPECT_EQ(refusal->kind, editors::RefusalKind::kSilent);
    EXPECT_EQ(refusal->field, editors::RuleField::kInputFolder)
        << "It is told nowhere, but the caret goes there.";
    Show(*refusal);
    EXPECT_THAT(fixture_.presenter.Boxes(), IsEmpty());
    EXPECT_THAT(errorBoxes_, IsEmpty());
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
    Show(refusal.value_or(editors::RuleRefusal()));
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
        EXPECT_EQ(Check(), RefusedRule(Box(L"No certificate is selected for operation.",
                                           editors::RuleIcon::kCertificates)));
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
        EXPECT_EQ(Check(), RefusedRule(Box(L"Executable file is not set.", editors::RuleIcon::kExecutable)));
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
    EXPECT_THAT(errorBoxes_, IsEmpty());
}

TEST_F(RuleCheck, AnErrorBoxIsShownWithItsPicture) {
    Show(Box(L"No Output folder selected.", editors::RuleIcon::kOutputFolder));
    EXPECT_THAT(errorBoxes_, ElementsAre(std::pair(std::wstring(L"No Output folder selected."),
                                                   editors::RuleIcon::kOutputFolder)));
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
