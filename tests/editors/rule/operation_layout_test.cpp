#include "editors/rule/operation_table.h"

#include <gtest/gtest.h>

#include <array>
#include <iterator>
#include <string_view>
#include <utility>

#include "editors/rule/rule_form.h"
#include "store/records.h"
#include "tests/kit/fakes/registry_snapshot.h"
#include "tests/kit/samples/operation_witness.h"
#include "tests/kit/samples/sample_rules.h"

namespace corvane::test {
namespace {

constexpr wchar_t kArchivation[] = L"Use archivation:";

// One operation as its user sees it.
struct SeenOperation {
    const wchar_t* code;
    bool hasCsProfile;
    bool hasOutput;
    const wchar_t* certToolTip;  // Empty: the button is disabled.
    editors::RuleIcon certIcon;
    const wchar_t* rowKinds;  // For each row: - nothing, c choice, t text, n number.
    std::array<const wchar_t*, 4> labels;
};

constexpr auto kCertificate = editors::RuleIcon::kCertificates;
constexpr std::array<const wchar_t*, 4> kNoLabels = {L"", L"", L"", L""};
constexpr std::array<const wchar_t*, 4> kArchiverLabels = {L"", kArchivation, L"", L""};

constexpr SeenOperation kSeenOperations[] = {
    {L"ENCR", true, true, L"Add recipients", kCertificate, L"-c--", kArchiverLabels},
    {L"DECR", true, true, L"", kCertificate, L"-c--", kArchiverLabels},
    {L"HASH", true, true, L"", kCertificate, L"----", kNoLabels},
    {L"B64E", false, true, L"", kCertificate, L"----", kNoLabels},
    {L"B64D", false, true, L"", kCertificate, L"----", kNoLabels},
    {L"SIGN", true, true, L"", kCertificate, L"----", kNoLabels},
    {L"CHCK", true, true, L"Add signers", kCertificate, L"----", kNoLabels},
    {L"CHKX", true, true, L"Add signers", kCertificate, L"----", kNoLabels},
    {L"MOVE",
     false,
     true,
     L"Second Output folder ",
     editors::RuleIcon::kSecondOutputFolder,
     L"tttt",
     {L"Delete extension:", L"Add extension:", L"Accounting format:", L"Accounting copy format:"}},
    {L"DELE", false, false, L"", kCertificate, L"----", kNoLabels},
    {L"LENC", true, true, L"Add recipients", kCertificate, L"-c--", kArchiverLabels},
    {L"LDEC", true, true, L"", kCertificate, L"-c--", kArchiverLabels},
    {L"CDSG", true, true, L"", kCertificate, L"----", kNoLabels},
    {L"DSIG", true, true, L"", kCertificate, L"----", kNoLabels},
    {L"DCHK", true, true, L"Add signers", kCertificate, L"----", kNoLabels},
    {L"DELS", true, true, L"", kCertificate, L"----", kNoLabels},
    {L"RESG",
     true,
     true,
     L"Add signers",
     kCertificate,
     L"ccc-",
     {L"Input signature format:", L"Output signature format:", L"New signature profile:", L""}},
    {L"SGEN", true, true, L"Add recipients", kCertificate, L"-c--", kArchiverLabels},
    {L"DCCX", true, true, L"Add signers", kCertificate, L"-c--", kArchiverLabels},
    {L"ARCH", false, true, L"", kCertificate, L"-c--", kArchiverLabels},
    {L"UNAR", false, true, L"", kCertificate, L"-c--", kArchiverLabels},
    {L"PACK",
     false,
     true,
     L"",
     kCertificate,
     L"nnnt",
     {L"File count:", L"Archive size (KB.):", L"Archivation timeout (min.):", L"Archives name format:"}},
    {L"UNPK", false, true, L"", kCertificate, L"----", kNoLabels},
    {L"EXEC",
     false,
     true,
     L"Executable file:",
     editors::RuleIcon::kExecutable,
     L"n---",
     {L"Execution timeout (min.):", L"", L"", L""}},
};

void ExpectRow(const editors::RuleForm& form, std::size_t row, wchar_t kind) {
    EXPECT_EQ(form.texts[row].isShown, kind == L't') << "text of row " << row + 1;
    EXPECT_EQ(form.texts[row].isEnabled, form.texts[row].isShown) << "text of row " << row + 1;
    EXPECT_FALSE(form.texts[row].isReadOnly);
    if (row < 3) {
        EXPECT_EQ(form.choices[row].isShown, kind == L'c') << "choice of row " << row + 1;
        EXPECT_EQ(form.numbers[row].isShown, kind == L'n') << "number of row " << row + 1;
    } else {
        EXPECT_TRUE(kind == L't' || kind == L'-');
    }
}

void ExpectChoices(const editors::RuleForm& form, const std::wstring& code) {
    using List = corvane::store::TextList;
    if (IsOneOf(code, L"ENCR DECR LENC LDEC SGEN DCCX")) {
        EXPECT_EQ(form.choices[1].entries, (List{L"No", L"ZIP archivation", L"GZIP archivation"}));
    } else if (IsOneOf(code, L"ARCH UNAR")) {
        EXPECT_EQ(form.choices[1].entries, (List{L"ZIP archivation", L"GZIP archivation"}));
    } else if (code == L"RESG") {
        EXPECT_EQ(form.choices[0].entries, (List{L"Attached signature", L"Detached signature"}));
        EXPECT_EQ(form.choices[1].entries, form.choices[0].entries);
        EXPECT_EQ(form.choices[2].entries, (List{L"First", L"Second", L"Third"}));
    }
}

void ExpectSeen(const editors::RuleForm& form, const SeenOperation& seen) {
    EXPECT_EQ(form.csProfile.isShown, seen.hasCsProfile);
    EXPECT_EQ(form.csProfileLabel, seen.hasCsProfile ? L"CS profile: " : L"");
    EXPECT_EQ(form.outputFolder.isEnabled, seen.hasOutput);
    EXPECT_EQ(form.outputButton.isEnabled, seen.hasOutput);
    const std::wstring toolTip = seen.certToolTip;
    EXPECT_EQ(form.certButton.isEnabled, !toolTip.empty());
    EXPECT_EQ(form.certButton.toolTip, toolTip.empty() ? L"Add recipients" : toolTip);
    EXPECT_EQ(form.certButton.icon, seen.certIcon);
    EXPECT_EQ(form.cert.isReadOnly, !IsOneOf(seen.code, L"MOVE EXEC"));
    for (std::size_t row = 0; row < 4; ++row) {
        EXPECT_EQ(form.rowLabels[row], seen.labels[row]) << "label of row " << row + 1;
        ExpectRow(form, row, seen.rowKinds[row]);
    }
    ExpectChoices(form, seen.code);
    // Never hidden, never disabled, whatever the operation.
    for (const editors::TextField* field : {&form.inputFolder, &form.errorFolder, &form.description}) {
        EXPECT_TRUE(field->isShown && field->isEnabled && !field->isReadOnly);
    }
    for (const editors::IconButton* button : {&form.inputButton, &form.errorButton, &form.addMaskButton,
                                              &form.editMaskButton, &form.deleteMaskButton}) {
        EXPECT_TRUE(button->isEnabled);
    }
    EXPECT_TRUE(form.operation.isShown && form.outputFolder.isShown && form.cert.isShown);
}

TEST(OperationLayout, HasTheCodesAndNamesInTheOrderOfTheOperationChoice) {
    ASSERT_EQ(editors::kOperations.size(), kWitnessedOperations.size());
    for (std::size_t index = 0; index < kWitnessedOperations.size(); ++index) {
        EXPECT_EQ(editors::kOperations[index].code, kWitnessedOperations[index].code) << "code " << index;
        EXPECT_EQ(editors::kOperations[index].name, kWitnessedOperations[index].name) << "name " << index;
    }
}

TEST(OperationLayout, EveryCodeIsShownByItsName) {
    for (const auto& [code, name] : kWitnessedOperations) {
        EXPECT_EQ(editors::OperationDisplayName(code), name);
    }
}

TEST(OperationLayout, ATextThatIsNoCodeIsShownAsItIs) {
    for (const wchar_t* text :
         {L"", L"ENC", L"encr", L"ENCRY", L"XXXX", L"NCR\n", L"ENCR\nDECR", L"Encrypt"}) {
        EXPECT_EQ(editors::OperationDisplayName(text), text);
    }
}

TEST(OperationLayout, EveryOperationNamesItsOwnRowOfTheTable) {
    EXPECT_EQ(editors::RowOf(editors::Operation::kEncrypt).code, L"ENCR");
    EXPECT_EQ(editors::RowOf(editors::Operation::kMove).code, L"MOVE");
    EXPECT_EQ(editors::RowOf(editors::Operation::kDelete).code, L"DELE");
    EXPECT_EQ(editors::RowOf(editors::Operation::kResign).code, L"RESG");
    EXPECT_EQ(editors::RowOf(editors::Operation::kArchive).code, L"ARCH");
    EXPECT_EQ(editors::RowOf(editors::Operation::kPack).code, L"PACK");
    EXPECT_EQ(editors::RowOf(editors::Operation::kExecute).code, L"EXEC");
}

TEST(OperationLayout, AnOpenedRuleShowsTheFieldsOfEachOfThe24Operations) {
    ASSERT_EQ(std::size(kSeenOperations), 24U);
    for (const SeenOperation& seen : kSeenOperations) {
        SCOPED_TRACE(Printable(seen.code));
        ExpectSeen(Opened(FullRule(seen.code)), seen);
    }
}

TEST(OperationLayout, AChangeOfOperationShowsTheFieldsOfEachOperationWhereverItComesFrom) {
    for (const SeenOperation& from : kSeenOperations) {
        for (const SeenOperation& seen : kSeenOperations) {
            SCOPED_TRACE(Printable(from.code) + " to " + Printable(seen.code));
            editors::RuleForm form = Opened(FullRule(from.code));
            SelectOperation(form, seen.code);
            ExpectSeen(form, seen);
        }
    }
}

TEST(CertLabel, SaysWhatTheOperationWantsInTheField) {
    for (std::size_t i = 0; i < editors::kOperations.size(); ++i) {
        const std::wstring code = kCodes[i];
        const wchar_t* const expected = IsOneOf(code, L"ENCR LENC SGEN")             ? L"Recipients:"
                                        : IsOneOf(code, L"CHCK CHKX DCHK RESG DCCX") ? L"Signer lists:"
                                        : code == L"MOVE" ? L"Second output folder:"
                                        : code == L"EXEC" ? L"Executable file:"
                                                          : L"Certificates:";
        EXPECT_EQ(editors::CertLabel(static_cast<editors::Operation>(i)), expected) << Printable(code);
    }
}

}  // namespace
}  // namespace corvane::test
