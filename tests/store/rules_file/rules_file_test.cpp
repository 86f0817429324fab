#include "store/rules_file/rules_file.h"

#include <gtest/gtest.h>

#include "tests/kit/fakes/memory_files.h"
#include "tests/kit/fixtures/reporter_fixture.h"
#include "tests/store/rules_file/record_text.h"

namespace corvane::test {
namespace {

constexpr wchar_t kRulesPath[] = L"C:\\exchange\\rules.prx";

store::Rule MoveRule(const std::wstring& description) {
    store::Rule rule;
    rule.operation = L"MOVE";
    rule.description = description;
    return rule;
}

TEST(WriteRulesFile, TheFileHoldsTheRecordsInTheSystemsCodePage) {
    MemoryFiles files;
    ReporterFixture reports(CodePage::kCyrillic);
    EXPECT_TRUE(store::WriteRulesFile(kRulesPath, {MoveRule(L"\x0416\x0431"), store::Rule()}, files,
                                      reports.reporter, nullptr));
    EXPECT_EQ(files.contents[kRulesPath],
              "MOVE\n\n\n\n0\n0\n0\n\n0\n0\n\n\n\xC6\xE1\n0\n0\n\n\n\n\n0\n0\n0\n\n\n0\n\r"
              "\n\n\n\n0\n0\n0\n\n0\n0\n\n\n\n0\n0\n\n\n\n\n0\n0\n0\n\n\n0\n\r");
    EXPECT_EQ(reports.presenter.Boxes().size(), 0U);
}

TEST(WriteRulesFile, EveryByteIsWrittenWhereACharacterTakesSeveral) {
    MemoryFiles files;
    ReporterFixture reports(CodePage::kShiftJis);
    EXPECT_TRUE(store::WriteRulesFile(kRulesPath, {MoveRule(L"\x65E5\x672C\x8A9E")}, files, reports.reporter,
                                      nullptr));
    EXPECT_EQ(files.contents[kRulesPath],
              "MOVE\n\n\n\n0\n0\n0\n\n0\n0\n\n\n\x93\xFA\x96\x7B\x8C\xEA\n0\n0\n\n\n\n\n0\n0\n0\n\n\n0\n\r");
}

TEST(WriteRulesFile, WithoutRulesNoFileIsTouched) {
    MemoryFiles files;
    ReporterFixture reports;
    files.contents[kRulesPath] = "old";
    EXPECT_TRUE(store::WriteRulesFile(kRulesPath, {}, files, reports.reporter, nullptr));
    EXPECT_EQ(files.Calls().size(), 0U);
    EXPECT_EQ(files.contents[kRulesPath], "old");
}

TEST(ReadRulesFile, TheImportReadsWhatSuchAnExportWrote) {
    for (const CodePage codePage :
         {CodePage::kLatin, CodePage::kCyrillic, CodePage::kShiftJis, CodePage::kUtf8}) {
        MemoryFiles files;
        ReporterFixture reports(codePage);
        const std::vector<store::Rule> rules = {MoveRule(L"one"), MoveRule(L"two"), store::Rule()};
        ASSERT_TRUE(store::WriteRulesFile(kRulesPath, rules, files, reports.reporter, nullptr));
        const std::optional<std::string> bytes =
            store::ReadRulesFile(kRulesPath, files, reports.reporter, nullptr);
        ASSERT_TRUE(bytes.has_value());
        EXPECT_EQ(store::ParseRulesFile(*bytes, reports.text), rules) << static_cast<int>(codePage);
    }
}

TEST(ReadRulesFile, CharactersOfSeveralBytesComeBack) {
    MemoryFiles files;
    ReporterFixture reports(CodePage::kShiftJis);
    const std::vector<store::Rule> rules = {MoveRule(L"\x65E5\x672C\x8A9E"), MoveRule(L"last")};
    ASSERT_TRUE(store::WriteRulesFile(kRulesPath, rules, files, reports.reporter, nullptr));
    const std::optional<std::string> bytes =
        store::ReadRulesFile(kRulesPath, files, reports.reporter, nullptr);
    ASSERT_TRUE(bytes.has_value());
    EXPECT_EQ(store::ParseRulesFile(*bytes, reports.text), rules);
}

TEST(ReadRulesFile, ReadingTheSameFileTwiceGivesTheRulesTwice) {
    MemoryFiles files;
    ReporterFixture reports;
    files.contents[kRulesPath] = RecordText(FieldsWith(0, "ENCR"));
    std::vector<store::Rule> rules;
    for (int times = 0; times < 2; ++times) {
        const std::optional<std::string> bytes =
            store::ReadRulesFile(kRulesPath, files, reports.reporter, nullptr);
        ASSERT_TRUE(bytes.has_value());
        for (const store::Rule& rule : store::ParseRulesFile(*bytes, reports.text)) {
            rules.push_back(rule);
        }
    }
    ASSERT_EQ(rules.size(), 2U);
    EXPECT_EQ(rules[0], rules[1]);
}

}  // namespace
}  // namespace corvane::test
