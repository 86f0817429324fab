#include "editors/mask/mask_form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace corvane::test {
namespace {

using ::testing::ElementsAre;

store::Rule RuleWithMasks(corvane::store::TextList masks) {
    store::Rule rule;
    rule.masks = std::move(masks);
    return rule;
}

TEST(SuggestedMasks, WithoutRulesAreThoseOfSixKindsOfFilesAndNoArchives) {
    EXPECT_THAT(editors::BuildMaskSuggestions(store::AppSettings(), {}),
                ElementsAre(L"*.p7s", L"*.p7d", L"*.p7e", L"*.b64", L"*.hsh", L"*.vrf"));
}

TEST(SuggestedMasks, TakeTheExtensionsFromTheSettingsAndThenTheAdditionalOnes) {
    store::AppSettings settings;
    settings.signedExtension = L"1";
    settings.detachedSignatureExtension = L"2";
    settings.encryptedExtension = L"3";
    settings.base64Extension = L"4";
    settings.hashExtension = L"5";
    settings.verificationExtension = L"";
    settings.zipExtension = L"7";
    settings.gzipExtension = L"8";
    settings.additionalExtensions = {L"z", L"a"};
    EXPECT_THAT(editors::BuildMaskSuggestions(settings, {}),
                ElementsAre(L"*.1", L"*.2", L"*.3", L"*.4", L"*.5", L"*.", L"*.z", L"*.a"));
}

TEST(SuggestedMasks, ThoseOfTheRulesStandInFrontRuleByRule) {
    EXPECT_THAT(
        editors::BuildMaskSuggestions(
            store::AppSettings(), {RuleWithMasks({L"b", L"a"}), RuleWithMasks({}), RuleWithMasks({L"c"})}),
        ElementsAre(L"b", L"a", L"c", L"*.p7s", L"*.p7d", L"*.p7e", L"*.b64", L"*.hsh", L"*.vrf"));
}

TEST(SuggestedMasks, AMaskOfSeveralRulesStandsWhereItOccursLast) {
    const corvane::store::TextList suggestions = editors::BuildMaskSuggestions(
        store::AppSettings(), {RuleWithMasks({L"a", L"b", L"a"}), RuleWithMasks({L"c", L"b"})});
    EXPECT_THAT(corvane::store::TextList(suggestions.begin(), suggestions.begin() + 4),
                ElementsAre(L"a", L"c", L"b", L"*.p7s"));
}

TEST(SuggestedMasks, AMaskThatAnExtensionSuggestsStandsOnceAmongTheRules) {
    EXPECT_THAT(editors::BuildMaskSuggestions(store::AppSettings(),
                                              {RuleWithMasks({L"*.vrf", L"x"}), RuleWithMasks({L"*.p7s"})}),
                ElementsAre(L"*.vrf", L"x", L"*.p7s", L"*.p7d", L"*.p7e", L"*.b64", L"*.hsh"));
}

TEST(SuggestedMasks, LetterCaseAndBlanksMakeADifference) {
    EXPECT_THAT(editors::BuildMaskSuggestions(store::AppSettings(), {RuleWithMasks({L"*.P7S", L"*.p7s "})}),
                ElementsAre(L"*.P7S", L"*.p7s ", L"*.p7s", L"*.p7d", L"*.p7e", L"*.b64", L"*.hsh", L"*.vrf"));
}

TEST(SuggestedMasks, EqualExtensionsAreSuggestedOnce) {
    store::AppSettings settings;
    settings.encryptedExtension = L"p7s";
    settings.additionalExtensions = {L"z", L"vrf", L"z"};
    EXPECT_THAT(editors::BuildMaskSuggestions(settings, {}),
                ElementsAre(L"*.p7s", L"*.p7d", L"*.b64", L"*.hsh", L"*.vrf", L"*.z"));
}

}  // namespace
}  // namespace corvane::test
