#include "editors/extension/extension_form.h"

#include <gtest/gtest.h>

#include <optional>

#include "tests/kit/fakes/registry_snapshot.h"
#include "tests/kit/fakes/test_system_text.h"

namespace corvane::test {
namespace {

// The extension that is taken for a typed text; none where the dialog stays open.
std::optional<std::wstring> Taken(const std::wstring& typed) {
    editors::ExtensionForm form{typed};
    const std::optional<reporting::Refusal> refusal = form.Confirm(TestSystemText(CodePage::kLatin));
    const bool isTaken = !refusal.has_value();
    if (refusal) {
        EXPECT_EQ(*refusal, reporting::Refusal{.wording = reporting::SilentRefusal()});
        EXPECT_EQ(form.text, typed) << "changed by a refusal";
    }
    return isTaken ? std::optional(form.text) : std::nullopt;
}

TEST(ExtensionForm, AnExtensionIsTakenInLowerCase) {
    EXPECT_EQ(Taken(L"txt"), L"txt");
    EXPECT_EQ(Taken(L"P7S"), L"p7s");
    EXPECT_EQ(Taken(L".Tar.GZ"), L".tar.gz");
}

TEST(ExtensionForm, LowerCaseIsThatOfAllOfUnicode) {
    EXPECT_EQ(Taken(L"ДОК"), L"док");
    EXPECT_EQ(Taken(L"ΩÄ"), L"ωä");
}

TEST(ExtensionForm, WhiteSpaceIsTakenOffBothEndsOnly) {
    EXPECT_EQ(Taken(L"  a B\t"), L"a b");
    EXPECT_EQ(Taken(L"\r\n\v\fTXT\t \n"), L"txt");
    EXPECT_EQ(Taken(L"\x00A0\x3000TXT\x2003\x2028"), L"txt");
    EXPECT_EQ(Taken(L" x "), L"x");
}

TEST(ExtensionForm, NothingButWhiteSpaceKeepsTheDialogOpen) {
    for (const wchar_t* const text : {L"", L" ", L"   ", L"\t", L"\r\n", L"\x00A0", L"\x3000 "}) {
        EXPECT_EQ(Taken(text), std::nullopt) << Printable(text);
    }
}

TEST(ExtensionForm, ANulInTheTextIsNoWhiteSpace) {
    EXPECT_EQ(Taken(std::wstring(L" \0a", 3)), std::wstring(L"\0a", 2));
}

TEST(ExtensionFormTexts, AreTheDialogs) {
    EXPECT_STREQ(editors::kExtensionTitle, L"Add additional extension:");
    EXPECT_STREQ(editors::kExtensionExitText, L"Exit");
}

}  // namespace
}  // namespace corvane::test
