#include "app/log_settings/log_settings_form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "reporting/message_styles.h"
#include "res/ids.h"
#include "tests/kit/fakes/memory_files.h"
#include "tests/kit/fixtures/reporter_fixture.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class LogSettings : public ::testing::Test {
  protected:
    LogSettings() { fixture_.presenter.MakeLive(dialog_); }

    void AnswerExistence(std::uint32_t code) { files_.FailCall(0, code); }

    bool Confirm() {
        const std::optional<reporting::Refusal> refusal = form_.Check(files_);
        toMend_ = refusal.value_or(reporting::Refusal()).controlId;
        if (!fixture_.IsAccepted(refusal, dialog_)) {
            return false;
        }
        form_.Commit();
        return true;
    }

    void ChooseFolder(const std::wstring& folder) {
        fixture_.IsAccepted(form_.ChooseFolder(folder, files_), dialog_);
    }

    [[nodiscard]] std::vector<ShownBox> Boxes() const { return fixture_.presenter.Boxes(); }

    // The report of a folder that cannot be used, as it is shown.
    [[nodiscard]] ShownBox BadPathBox(const std::wstring& path, std::uint32_t code) const {
        const std::wstring number = std::to_wstring(code);
        return {.owner = dialog_,
                .text = L"Opening file " + path + L".\r\nError 0x" + number + L" - System text " + number +
                        L".Bad Log path.",
                .title = reporting::AppTitle,
                .style = reporting::kErrorStyle};
    }

    toolkit::WindowHandle dialog_ = RecordingPresenter::Window(7);
    ReporterFixture fixture_;
    MemoryFiles files_;
    app::LogSettingsForm form_{L"C:\\old", 4000};
    int toMend_ = 0;  ///< The control that the last OK left to be mended.
};

TEST_F(LogSettings, StartWithTheSettingsInForce) {
    EXPECT_EQ(form_.editedPath, L"C:\\old");
    EXPECT_EQ(form_.LogPath(), L"C:\\old");
    EXPECT_EQ(form_.logFileSize, 4000);
}

TEST_F(LogSettings, TypingOneIntoAnEmptySizeFieldTurnsItInto400AtOnce) {
    EXPECT_EQ(form_.OnSizeTextChanged(L"1"), L"400");
    EXPECT_EQ(form_.logFileSize, 400);
}

TEST_F(LogSettings, EmptyingTheSizeFieldPutsIn400AtOnce) {
    EXPECT_EQ(form_.OnSizeTextChanged(L""), L"400");
    EXPECT_EQ(form_.logFileSize, 400);
}

TEST_F(LogSettings, PastedTextThatIsNoNumberOrNegativeBecomes400) {
    for (const wchar_t* const text : {L"abc", L"-1", L"-2147483648", L"-99999999999", L"0", L"399", L" "}) {
        form_.logFileSize = 4000;
        EXPECT_EQ(form_.OnSizeTextChanged(text), L"400") << text;
        EXPECT_EQ(form_.logFileSize, 400);
    }
}

TEST_F(LogSettings, ASizeOf400OrMoreStands) {
    EXPECT_EQ(form_.OnSizeTextChanged(L"400"), std::nullopt);
    EXPECT_EQ(form_.logFileSize, 400);
    EXPECT_EQ(form_.OnSizeTextChanged(L"4001"), std::nullopt);
    EXPECT_EQ(form_.logFileSize, 4001);
    EXPECT_EQ(form_.OnSizeTextChanged(L"2147483647"), std::nullopt);
    EXPECT_EQ(form_.logFileSize, 2147483647);
}

TEST_F(LogSettings, ASizeThatDoesNotFitBecomesTheLargestThatDoes) {
    for (const wchar_t* const text : {L"2147483648", L"4294967696", L"99999999999999999999999"}) {
        form_.logFileSize = 4000;
        EXPECT_EQ(form_.OnSizeTextChanged(text), L"2147483647") << text;
        EXPECT_EQ(form_.logFileSize, 2147483647);
    }
}

TEST_F(LogSettings, WhatIsPutBackStandsWhenItsOwnChangeIsToldOf) {
    EXPECT_EQ(form_.OnSizeTextChanged(form_.OnSizeTextChanged(L"1").value_or(L"?")), std::nullopt);
    EXPECT_EQ(form_.OnSizeTextChanged(form_.OnSizeTextChanged(L"99999999999").value_or(L"?")), std::nullopt);
}

TEST_F(LogSettings, AChosenFolderBecomesTheEditedPathButNotYetTheLogPath) {
    files_.contents[L"D:\\log"] = "";
    ChooseFolder(L"D:\\log");
    EXPECT_EQ(form_.editedPath, L"D:\\log");
    EXPECT_EQ(form_.LogPath(), L"C:\\old");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(LogSettings, AChosenFolderThatDoesNotExistIsReportedAndTakenAllTheSame) {
    AnswerExistence(3);
    ChooseFolder(L"D:\\log");
    EXPECT_EQ(form_.editedPath, L"D:\\log");
    EXPECT_THAT(Boxes(), ElementsAre(BadPathBox(L"D:\\log", 3)));
}

TEST_F(LogSettings, AChosenFolderWithCode80IsNotReported) {
    AnswerExistence(80);
    ChooseFolder(L"D:\\log");
    EXPECT_EQ(form_.editedPath, L"D:\\log");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(LogSettings, OkTakesAnExistingDrivePathOver) {
    files_.contents[L"D:\\log"] = "";
    form_.editedPath = L"D:\\log";
    form_.logFileSize = 500;
    EXPECT_TRUE(Confirm());
    EXPECT_EQ(form_.LogPath(), L"D:\\log");
    EXPECT_EQ(form_.logFileSize, 500);
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(LogSettings, OkAcceptsANetworkPathThatExists) {
    files_.contents[L"\\\\server\\log"] = "";
    form_.editedPath = L"\\\\server\\log";
    EXPECT_TRUE(Confirm());
    EXPECT_EQ(form_.LogPath(), L"\\\\server\\log");
}

TEST_F(LogSettings, OkRefusesAPathThatDoesNotExist) {
    AnswerExistence(5);
    form_.editedPath = L"D:\\log";
    EXPECT_FALSE(Confirm());
    EXPECT_EQ(form_.LogPath(), L"C:\\old");
    EXPECT_EQ(form_.editedPath, L"D:\\log");
    EXPECT_EQ(toMend_, IDC_LOG_FOLDER_EDIT);
    EXPECT_THAT(Boxes(), ElementsAre(BadPathBox(L"D:\\log", 5)));
}

// Deliberate: "file exists" as the reason why a path does not exist lets it pass.
TEST_F(LogSettings, OkAcceptsAPathThatDoesNotExistWithCode80) {
    AnswerExistence(80);
    form_.editedPath = L"D:\\log";
    EXPECT_TRUE(Confirm());
    EXPECT_EQ(form_.LogPath(), L"D:\\log");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(LogSettings, OkRefusesARelativePathEvenIfItExists) {
    for (const wchar_t* const path : {L"logs", L"a\\b", L"\\log", L"/log"}) {
        files_.contents[path] = "";
        form_.editedPath = path;
        fixture_.presenter.Clear();
        EXPECT_FALSE(Confirm()) << path;
        EXPECT_EQ(toMend_, IDC_LOG_FOLDER_EDIT);
        EXPECT_EQ(form_.LogPath(), L"C:\\old");
        EXPECT_THAT(Boxes(), ElementsAre(BadPathBox(path, 3)));
    }
}

TEST_F(LogSettings, OkRefusesARelativePathThatPassedWithCode80) {
    AnswerExistence(80);
    form_.editedPath = L"logs";
    EXPECT_FALSE(Confirm());
    EXPECT_THAT(Boxes(), ElementsAre(BadPathBox(L"logs", 3)));
}

TEST_F(LogSettings, OkRefusesASizeBelow400InTheDialogsOwnBox) {
    files_.contents[L"D:\\log"] = "";
    form_.editedPath = L"D:\\log";
    form_.logFileSize = 399;
    EXPECT_FALSE(Confirm());
    EXPECT_EQ(form_.LogPath(), L"C:\\old");
    EXPECT_EQ(form_.logFileSize, 399);
    EXPECT_EQ(toMend_, IDC_LOG_SIZE_EDIT);
    EXPECT_THAT(Boxes(), ElementsAre(ShownBox{.owner = dialog_,
                                              .text = L"Log files size must be bigger than 400 KB.",
                                              .title = L"QENT automized client Velmaris",
                                              .style = 0x30}));
}

TEST_F(LogSettings, OkWithASizeBelow400DoesNotLookAtTheKindOfPath) {
    files_.contents[L"logs"] = "";
    form_.editedPath = L"logs";
    form_.logFileSize = 0;
    EXPECT_FALSE(Confirm());
    EXPECT_EQ(fixture_.presenter.OnlyText(), L"Log files size must be bigger than 400 KB.");
}

TEST_F(LogSettings, OkAsksForThePathBeforeTheSize) {
    AnswerExistence(2);
    form_.editedPath = L"D:\\log";
    form_.logFileSize = 1;
    EXPECT_FALSE(Confirm());
    EXPECT_THAT(Boxes(), ElementsAre(BadPathBox(L"D:\\log", 2)));
}

TEST_F(LogSettings, AFolderOutsideAsciiIsNamedInTheReport) {
    AnswerExistence(3);
    ChooseFolder(L"D:\\журнал");
    EXPECT_THAT(Boxes(), ElementsAre(BadPathBox(L"D:\\журнал", 3)));
}

TEST(LogSettingsTexts, AreTheDialogs) {
    EXPECT_STREQ(app::kLogSettingsTitle, L"Log path");
    EXPECT_STREQ(app::kLogFolderButtonText, L"Log path");
    EXPECT_STREQ(app::kLogSettingsExitText, L"Exit");
    EXPECT_STREQ(app::kLogSizeLabelText, L"Log files size (KB.):");
}

TEST(LogSettingsInput, DiffersByPathAndBySize) {
    const app::LogSettingsForm opened(L"D:\\log", 4000);
    app::LogSettingsForm form = opened;
    EXPECT_TRUE(form.HasSameInput(opened));
    form.editedPath = L"D:\\other";
    EXPECT_FALSE(form.HasSameInput(opened));
    form = opened;
    form.logFileSize = 4001;
    EXPECT_FALSE(form.HasSameInput(opened));
}

}  // namespace
}  // namespace corvane::test
