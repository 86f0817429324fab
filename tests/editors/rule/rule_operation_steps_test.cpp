#include <gtest/gtest.h>

#include <algorithm>

#include "editors/rule/rule_form.h"
#include "tests/editors/rule/described_form.h"
#include "tests/editors/rule/literal_operation_steps.h"
#include "tests/kit/fakes/registry_snapshot.h"
#include "tests/kit/samples/sample_rules.h"

namespace corvane::test {
namespace {

// What the user can enter in the fields that are shown, different from what any rule holds.
void EnterSomethingEverywhere(editors::RuleForm& form, int choiceIndex) {
    form.inputFolder.text = L"D:\\typed";
    form.description.text = L"typed";
    if (form.outputFolder.isEnabled) {
        form.outputFolder.text = L"D:\\typed out";
    }
    if (!form.cert.isReadOnly) {
        form.cert.text = L"D:\\typed path";
    }
    for (editors::TextField& field : form.texts) {
        field.text = field.isShown ? L"typed" : field.text;
    }
    for (editors::NumberField& field : form.numbers) {
        field.number = field.isShown ? 77 : field.number;
    }
    for (editors::ChoiceField& field : form.choices) {
        const int last = static_cast<int>(field.entries.size()) - 1;
        field.index = field.isShown ? std::min(choiceIndex, last) : field.index;
    }
    const editors::CertUse use = editors::RowOf(form.laidOutOperation).cert;
    if (use == editors::CertUse::kRecipients) {
        form.recipients = {L"CN=Typed", L"CN=Too"};
        form.cert.text = L"2";
    } else if (use == editors::CertUse::kSigners) {
        form.result.signerGroups = {{L"typed", {L"CN=Signer"}}};
        form.cert.text = L"1";
    }
}

// Changes the operation in both readings and tells where they differ.
::testing::AssertionResult ChangesAlike(editors::RuleForm& form, const std::wstring& from,
                                        const std::wstring& to) {
    editors::RuleForm literal = form;
    TakeStepsOneByOne(literal, from, to);
    SelectOperation(form, to);
    if (form == literal) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure()
           << "from " << Printable(from) << " to " << Printable(to) << "\nstep by step:\n"
           << DescribeForm(literal) << "\nthe form:\n"
           << DescribeForm(form);
}

TEST(ChangeOperation, All576ChangesOfAnOpenedRuleFollowTheSteps) {
    for (const std::wstring from : kCodes) {
        for (const std::wstring to : kCodes) {
            for (const std::int32_t archiveFormat : {0, 1, 2}) {
                store::Rule rule = FullRule(from);
                rule.archiveFormat = archiveFormat;
                editors::RuleForm form = Opened(rule);
                ASSERT_TRUE(ChangesAlike(form, from, to)) << "archive format " << archiveFormat;
            }
        }
    }
}

// What a first operation leaves behind in hidden fields must not show under the third.
TEST(ChangeOperation, All576ChangesFollowTheStepsAfterEveryEarlierOperation) {
    for (const std::wstring first : kCodes) {
        for (const std::wstring from : kCodes) {
            for (const int choiceIndex : {0, 1, 2}) {
                editors::RuleForm before = Opened(FullRule(first));
                EnterSomethingEverywhere(before, choiceIndex);
                SelectOperation(before, from);
                EnterSomethingEverywhere(before, choiceIndex);
                for (const std::wstring to : kCodes) {
                    editors::RuleForm form = before;
                    ASSERT_TRUE(ChangesAlike(form, from, to))
                        << "first " << Printable(first) << ", choice " << choiceIndex;
                }
            }
        }
    }
}

// Another program can put something into every control, also into those that users do not see.
TEST(ChangeOperation, All576ChangesFollowTheStepsWhateverStandsInTheHiddenFields) {
    for (const std::wstring from : kCodes) {
        for (const std::wstring to : kCodes) {
            editors::RuleForm form = Opened(FullRule(from));
            form.outputFolder.text = L"put in";
            for (editors::TextField& field : form.texts) {
                field.text = L"put in";
            }
            for (editors::NumberField& field : form.numbers) {
                field.number = 99;
            }
            for (editors::ChoiceField& field : form.choices) {
                field.index = 1;
            }
            ASSERT_TRUE(ChangesAlike(form, from, to));
        }
    }
}

TEST(ChangeOperation, ALongWalkThroughTheOperationsFollowsTheSteps) {
    editors::RuleForm form = Opened(store::Rule());
    std::wstring from = L"ENCR";
    std::uint32_t random = 2463534242U;
    for (int step = 0; step < 5000; ++step) {
        random ^= random << 13U;
        random ^= random >> 17U;
        random ^= random << 5U;
        const std::wstring to = kCodes[random % kCodes.size()];
        if ((random & 0x10000U) != 0) {
            EnterSomethingEverywhere(form, static_cast<int>((random >> 20U) % 3));
        }
        ASSERT_TRUE(ChangesAlike(form, from, to)) << "step " << step;
        from = to;
    }
}

}  // namespace
}  // namespace corvane::test
