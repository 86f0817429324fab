#include "certificates/group_file/group_file.h"

#include <gmock/gmock.h>

#include "reporting/message_styles.h"
#include "res/ids.h"
#include "tests/kit/fakes/memory_files.h"
#include "tests/kit/fixtures/reporter_fixture.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr wchar_t kPath[] = L"C:\\groups\\friends.grx";

store::TextList Parse(std::string_view bytes) {
    return certificates::ParseGroupFile(bytes, TestSystemText(CodePage::kCyrillic));
}

class GroupFile : public ::testing::Test {
  protected:
    GroupFile() {
        settings_.signerMode = 0;
        reports_.presenter.MakeLive(dialog_);
    }

    bool Load(const std::wstring& path = kPath) {
        return certificates::LoadGroupFile(form_, path, files_, reports_.reporter, dialog_);
    }
    bool Save() { return certificates::SaveGroupFile(form_, kPath, files_, reports_.reporter, dialog_); }
    [[nodiscard]] store::TextList Shown() const {
        store::TextList owners;
        for (std::size_t i = 0; i < form_.FoundRowCount(); ++i) {
            owners.emplace_back(form_.FoundRow(i).owner);
        }
        return owners;
    }
    [[nodiscard]] const std::vector<ShownBox>& Boxes() const { return reports_.presenter.Boxes(); }

    toolkit::WindowHandle dialog_ = RecordingPresenter::Window(8);
    ReporterFixture reports_;
    MemoryFiles files_;
    certificates::CertSearchSettings settings_;
    certificates::RecipientSelectionForm form_{settings_, {}, reports_.text};
};

TEST(ParseGroupFile, TakesTheLinesThatCrLfEnds) {
    EXPECT_THAT(Parse("CN=Ann\r\nCN=Bob,C=RU\r\n"), ElementsAre(L"CN=Ann", L"CN=Bob,C=RU"));
}

TEST(ParseGroupFile, AnEmptyFileHasNone) {
    EXPECT_THAT(Parse(""), IsEmpty());
    EXPECT_THAT(Parse("\r\n\r\n"), IsEmpty());
}

TEST(ParseGroupFile, ALastLineWithoutCrLfIsLost) {
    EXPECT_THAT(Parse("CN=Ann\r\nCN=Bob"), ElementsAre(L"CN=Ann"));
    EXPECT_THAT(Parse("CN=Ann\r\nCN=Bob\r"), ElementsAre(L"CN=Ann"));
    EXPECT_THAT(Parse("CN=Ann"), IsEmpty());
}

TEST(ParseGroupFile, LinesWithoutEqualsAreIgnored) {
    EXPECT_THAT(Parse("# friends\r\nAnn\r\n\r\nCN=Bob\r\n \r\n=\r\n"), ElementsAre(L"CN=Bob", L"="));
}

TEST(ParseGroupFile, ALoneCrOrLfBelongsToItsLine) {
    EXPECT_THAT(Parse("CN=Ann\nCN=Bob\r\n"), ElementsAre(L"CN=Ann\nCN=Bob"));
    EXPECT_THAT(Parse("CN=Ann\rO=B\r\r\nCN=C\r\n"), ElementsAre(L"CN=Ann\rO=B\r", L"CN=C"));
    EXPECT_THAT(Parse("CN=A\n\r\n"), ElementsAre(L"CN=A\n"));
    EXPECT_THAT(Parse("CN=A\n"), IsEmpty());
}

TEST(ParseGroupFile, AZeroByteEndsTheFile) {
    EXPECT_THAT(Parse(std::string_view("CN=A\r\nCN=B\0\r\nCN=C\r\n", 19)), ElementsAre(L"CN=A"));
    EXPECT_THAT(Parse(std::string_view("\0CN=A\r\n", 7)), IsEmpty());
}

TEST(ParseGroupFile, BlanksStay) {
    EXPECT_THAT(Parse(" CN = A \r\n"), ElementsAre(L" CN = A "));
}

TEST(ParseGroupFile, TenMegabytesWithoutAndWithLines) {
    EXPECT_THAT(Parse(std::string(10'000'000, '=')), IsEmpty());
    std::string lines;
    while (lines.size() < 10'000'000) {
        lines += "comment line of a long file without any owner\r\n";
    }
    EXPECT_THAT(Parse(lines + "CN=A\r\n"), ElementsAre(L"CN=A"));
}

TEST(FormatGroupFile, EndsEveryLineWithCrLf) {
    const TestSystemText text(CodePage::kCyrillic);
    EXPECT_EQ(certificates::FormatGroupFile({L"CN=Ann", L"CN=\x0411"}, text), "CN=Ann\r\nCN=\xC1\r\n");
    EXPECT_EQ(certificates::FormatGroupFile({}, text), "");
}

TEST(FormatGroupFile, CharactersOutsideTheCodePageAreLost) {
    const TestSystemText text(CodePage::kLatin);
    EXPECT_EQ(certificates::FormatGroupFile({L"CN=\x0411\x00E9"}, text), "CN=?\xE9\r\n");
}

TEST(FormatGroupFile, WhatItWritesIsReadBack) {
    const store::TextList owners = {L"CN=\x0418\x0432\x0430\x043D,C=RU", L"CN=Ann"};
    for (const CodePage codePage : {CodePage::kCyrillic, CodePage::kUtf8, CodePage::kShiftJis}) {
        const TestSystemText text(codePage);
        EXPECT_EQ(certificates::ParseGroupFile(certificates::FormatGroupFile(owners, text), text), owners);
    }
}

TEST_F(GroupFile, LoadingAddsTheNewOwnersInFileOrderAndKeepsTheChecks) {
    form_.AddFound({L"CN=B", L"CN=A"});
    form_.CheckFound(1, true);
    files_.contents[kPath] = "CN=C\r\nCN=A\r\ncn=a\r\nCN=C\r\n";
    EXPECT_TRUE(Load());
    EXPECT_THAT(Shown(), ElementsAre(L"CN=B", L"CN=A", L"CN=C", L"cn=a"));
    EXPECT_THAT(form_.CheckedFoundOwners(), ElementsAre(L"CN=A"));
}

TEST_F(GroupFile, LoadingTheSameFileTwiceAddsNothing) {
    files_.contents[kPath] = "CN=A\r\nCN=B\r\n";
    EXPECT_TRUE(Load());
    EXPECT_TRUE(Load());
    EXPECT_THAT(Shown(), ElementsAre(L"CN=A", L"CN=B"));
}

TEST_F(GroupFile, AnEmptyFileAddsNothingAndIsNoError) {
    files_.contents[kPath] = "";
    EXPECT_TRUE(Load());
    EXPECT_THAT(Shown(), IsEmpty());
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(GroupFile, TheFilterHoldsForLoadedOwners) {
    form_.SetFilter(L"b");
    files_.contents[kPath] = "CN=A\r\nCN=B\r\n";
    EXPECT_TRUE(Load());
    EXPECT_THAT(Shown(), ElementsAre(L"CN=B"));
}

TEST_F(GroupFile, AMissingFileIsReportedAndTheListsStay) {
    form_.AddFound({L"CN=B"});
    EXPECT_FALSE(Load());
    EXPECT_THAT(Shown(), ElementsAre(L"CN=B"));
    EXPECT_THAT(Boxes(), ElementsAre(ShownBox{dialog_,
                                              L"Opening file C:\\groups\\friends.grx.\r\n"
                                              L"Error 0x2 - System text 2.",
                                              reporting::AppTitle, reporting::kErrorStyle}));
    EXPECT_EQ(form_.lastGroupPath, kPath) << "the user chose it";
}

TEST_F(GroupFile, ACyrillicPathIsReportedInItsLetters) {
    EXPECT_FALSE(Load(L"C:\\\x0433\x0440.grx"));
    EXPECT_EQ(Boxes()[0].text, L"Opening file C:\\\x0433\x0440.grx.\r\nError 0x2 - System text 2.");
}

TEST_F(GroupFile, SavingWritesTheCheckedOwnersAsShown) {
    form_.AddFound({L"CN=B", L"CN=A", L"CN=C"});
    form_.ClickFoundHeader();
    form_.CheckFound(0, true);
    form_.CheckFound(1, true);
    files_.contents[kPath] = "an older and longer group file\r\n";
    EXPECT_TRUE(Save());
    EXPECT_EQ(files_.contents[kPath], "CN=A\r\nCN=B\r\n");
    EXPECT_EQ(form_.lastGroupPath, kPath);
}

TEST_F(GroupFile, SavingLeavesOutWhatTheFilterHides) {
    form_.AddFound({L"CN=B", L"CN=A"});
    form_.CheckAllFound(true);
    form_.SetFilter(L"a");
    EXPECT_TRUE(Save());
    EXPECT_EQ(files_.contents[kPath], "CN=A\r\n");
}

TEST_F(GroupFile, AFailedWriteLeavesTheListsAndTheChecks) {
    form_.AddFound({L"CN=B"});
    form_.CheckFound(0, true);
    files_.FailCall(1, 112);
    EXPECT_FALSE(Save());
    EXPECT_THAT(form_.CheckedFoundOwners(), ElementsAre(L"CN=B"));
    EXPECT_EQ(Boxes()[0].text, L"Writing file C:\\groups\\friends.grx.\r\nError 0x70 - System text 112.");
}

TEST_F(GroupFile, AReadOnlyFileIsReportedAsNotCreated) {
    form_.AddFound({L"CN=B"});
    form_.CheckFound(0, true);
    files_.FailCall(0, 5);
    EXPECT_FALSE(Save());
    EXPECT_EQ(Boxes()[0].text, L"Creating file C:\\groups\\friends.grx.\r\nError 0x5 - System text 5.");
}

TEST_F(GroupFile, WithNobodyCheckedNothingIsSaved) {
    form_.AddFound({L"CN=B"});
    EXPECT_FALSE(reports_.IsAccepted(certificates::CheckGroupToSave(form_), dialog_));
    settings_.signerMode = 1;
    EXPECT_FALSE(reports_.IsAccepted(certificates::CheckGroupToSave(form_), dialog_));
    EXPECT_THAT(Boxes(), ElementsAre(ShownBox{dialog_, L"No users selected.", reporting::AppTitle, 0x30},
                                     ShownBox{dialog_, L"No signers selected.", reporting::AppTitle, 0x30}));
    EXPECT_EQ(certificates::CheckGroupToSave(form_).value_or(reporting::Refusal()).controlId,
              IDC_SELECTION_FOUND_LIST);
    form_.CheckFound(0, true);
    EXPECT_TRUE(reports_.IsAccepted(certificates::CheckGroupToSave(form_), dialog_));
    form_.SetFilter(L"x");
    EXPECT_FALSE(reports_.IsAccepted(certificates::CheckGroupToSave(form_), dialog_))
        << "who is hidden is not checked";
}

TEST_F(GroupFile, TheOffersHaveTheFilterOfGroupFiles) {
    EXPECT_EQ(certificates::OfferToOpenGroup(form_).filter,
              L"User groups files (*.grx)|*.grx|All files (*.*)|*.*||");
    EXPECT_EQ(certificates::OfferToSaveGroup(form_).filter,
              L"User groups files (*.grx)|*.grx|All files (*.*)|*.*||");
}

TEST_F(GroupFile, OpeningStartsInTheGroupFolderAndThenWithTheLastPath) {
    settings_.groupFolder = L"D:\\groups\\";
    EXPECT_EQ(certificates::OfferToOpenGroup(form_).fileName, L"");
    EXPECT_EQ(certificates::OfferToOpenGroup(form_).folder, L"D:\\groups\\");
    form_.lastGroupPath = kPath;
    EXPECT_EQ(certificates::OfferToOpenGroup(form_).fileName, kPath);
    EXPECT_EQ(certificates::OfferToOpenGroup(form_).folder, L"");
}

TEST_F(GroupFile, SavingStartsWithANewGroupInTheGroupFolderAndThenWithTheLastPath) {
    EXPECT_EQ(certificates::OfferToSaveGroup(form_).fileName, L"New group.grx");
    settings_.groupFolder = L"D:\\groups\\/\\";
    EXPECT_EQ(certificates::OfferToSaveGroup(form_).fileName, L"D:\\groups\\New group.grx");
    settings_.groupFolder = L"\\/";
    EXPECT_EQ(certificates::OfferToSaveGroup(form_).fileName, L"New group.grx");
    form_.lastGroupPath = kPath;
    EXPECT_EQ(certificates::OfferToSaveGroup(form_).fileName, kPath);
}

}  // namespace
}  // namespace corvane::test
