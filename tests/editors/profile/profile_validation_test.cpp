#include "editors/profile/profile_form.h"

#include <gtest/gtest.h>

#include "res/ids.h"
#include "tests/kit/samples/sample_profiles.h"

namespace corvane::test {
namespace {

using RefusedProfile = std::optional<reporting::Refusal>;

class ProfileCheck : public ::testing::Test {
  protected:
    ProfileCheck() {
        form_.result = ProfileWith(L"", {L"CS one"});
        form_.shown = FilledCsProfile(L"CS one", 0);
    }

    RefusedProfile CheckName(const std::wstring& name) {
        form_.result.name = name;
        return editors::CheckProfile(form_, {L"abc", L"default"});
    }

    static RefusedProfile OfName(const wchar_t* text) {
        return reporting::Refuse(text, IDC_PROFILE_NAME_EDIT);
    }

    editors::ProfileForm form_;
};

TEST_F(ProfileCheck, ACompleteProfilePasses) {
    EXPECT_EQ(CheckName(L"beta"), std::nullopt);
}

TEST_F(ProfileCheck, AnEmptyNameIsRefused) {
    EXPECT_EQ(CheckName(L""), OfName(L"Please, type a name for profile."));
}

TEST_F(ProfileCheck, ANameOf15CharactersPassesAndOneOf16IsRefused) {
    EXPECT_EQ(CheckName(L"123456789012345"), std::nullopt);
    const RefusedProfile tooLong = OfName(L"Profile name cannot be longer than 15 symbols.");
    EXPECT_EQ(CheckName(L"1234567890123456"), tooLong);
    EXPECT_EQ(CheckName(std::wstring(5000, L'x')), tooLong);
}

TEST_F(ProfileCheck, SpacesAreNoNameWhileOtherWhiteSpaceIs) {
    const RefusedProfile onlySpaces = OfName(L"Profile name cannot consist from spaces only.");
    EXPECT_EQ(CheckName(L" "), onlySpaces);
    EXPECT_EQ(CheckName(L"   "), onlySpaces);
    EXPECT_EQ(CheckName(L"\t"), std::nullopt);
    EXPECT_EQ(CheckName(L" \t "), std::nullopt);
    EXPECT_EQ(CheckName(L"\x00A0"), std::nullopt);
    EXPECT_EQ(CheckName(L" a "), std::nullopt);
}

TEST_F(ProfileCheck, SixteenSpacesAreTooLongFirst) {
    EXPECT_EQ(CheckName(std::wstring(16, L' ')), OfName(L"Profile name cannot be longer than 15 symbols."));
}

TEST_F(ProfileCheck, ATimeoutOfZeroIsRefusedAndThereIsNoUpperBound) {
    form_.result.handlerTimeout = 0;
    EXPECT_EQ(CheckName(L"beta"), RefusedProfile(reporting::Refuse(L"Please, choose handler timeout.",
                                                                   IDC_PROFILE_TIMEOUT_EDIT)));
    form_.result.handlerTimeout = 100000;
    EXPECT_EQ(CheckName(L"beta"), std::nullopt);
    form_.result.handlerTimeout = 2147483647;
    EXPECT_EQ(CheckName(L"beta"), std::nullopt);
}

TEST_F(ProfileCheck, ANameThatAnotherProfileHasIsRefused) {
    EXPECT_EQ(CheckName(L"abc"), OfName(L"Profile 'abc' allready exists."));
    form_.openedName = L"default";
    EXPECT_EQ(CheckName(L"abc"), OfName(L"Profile 'abc' allready exists."));
}

TEST_F(ProfileCheck, TheNameThatTheProfileHadPasses) {
    form_.openedName = L"abc";
    EXPECT_EQ(CheckName(L"abc"), std::nullopt);
}

TEST_F(ProfileCheck, NamesAreComparedWithTheirCaseAndBlanks) {
    form_.openedName = L"abc";
    EXPECT_EQ(CheckName(L"ABC"), std::nullopt);
    EXPECT_EQ(CheckName(L"abc "), std::nullopt);
    EXPECT_EQ(CheckName(L"Default"), std::nullopt);
}

TEST_F(ProfileCheck, AMissingTimeStampServerIsRefused) {
    form_.shown.timeStampServer.clear();
    EXPECT_EQ(CheckName(L"beta"),
              RefusedProfile(reporting::Refuse(L"Please, type TSP data.", IDC_PROFILE_TSP_EDIT)));
    form_.shown.timeStampServer = L"0";
    EXPECT_EQ(CheckName(L"beta"), std::nullopt);
}

TEST_F(ProfileCheck, ANameWithABackslashIsRefused) {
    const RefusedProfile refusal = OfName(L"Profile name cannot contain the symbol '\\'.");
    EXPECT_EQ(CheckName(L"a\\b"), refusal);
    EXPECT_EQ(CheckName(L"\\"), refusal);
    EXPECT_EQ(CheckName(L"a/b"), std::nullopt);
}

TEST_F(ProfileCheck, TheChecksStandInTheirOrder) {
    const corvane::store::TextList names = {L"a\\b"};
    form_.result.name = L"";
    form_.result.handlerTimeout = 0;
    form_.shown.timeStampServer.clear();
    const auto text = [&] {
        const RefusedProfile refusal = editors::CheckProfile(form_, names);
        return std::get<reporting::RefusalText>(refusal.value_or(reporting::Refusal()).wording).text;
    };
    EXPECT_EQ(text(), L"Please, type a name for profile.");
    form_.result.name = L"a\\b";
    EXPECT_EQ(text(), L"Please, choose handler timeout.");
    form_.result.handlerTimeout = 1;
    EXPECT_EQ(text(), L"Profile 'a\\b' allready exists.");
    form_.result.name = L"c\\d";
    EXPECT_EQ(text(), L"Please, type TSP data.");
    form_.shown.timeStampServer = L"x";
    EXPECT_EQ(text(), L"Profile name cannot contain the symbol '\\'.");
}

}  // namespace
}  // namespace corvane::test
