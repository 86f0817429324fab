#include "tests/editors/rule/literal_operation_steps.h"

#include "tests/kit/samples/sample_rules.h"

namespace corvane::test {

namespace {

constexpr wchar_t kRecipients[] = L"ENCR LENC SGEN";
constexpr wchar_t kSigners[] = L"CHCK CHKX DCHK RESG DCCX";
constexpr wchar_t kSignersOrExecute[] = L"CHCK CHKX DCHK RESG DCCX EXEC";
constexpr wchar_t kArchiverOrNo[] = L"ENCR DECR LENC LDEC SGEN DCCX";
constexpr wchar_t kArchiver[] = L"ARCH UNAR";
constexpr wchar_t kWithoutCsProfile[] = L"B64E B64D MOVE DELE ARCH UNAR PACK UNPK EXEC";

// Steps 1 to 5: the certificates and their button.
void TakeCertificateSteps(editors::RuleForm& form, const std::wstring& from, const std::wstring& to) {
    if (IsOneOf(from, kRecipients) && !IsOneOf(to, kRecipients)) {
        form.cert.text = L"0";
        form.recipients = {};
    }
    if (IsOneOf(from, kSignersOrExecute) && !IsOneOf(to, kSignersOrExecute)) {
        form.cert.text = L"0";
        form.recipients = {};
        form.result.signerGroups = {};
    }
    form.certButton.toolTip = IsOneOf(to, kSigners) ? L"Add signers"
                              : to == L"MOVE"       ? L"Second Output folder "
                                                    : L"Add recipients";
    if (from == L"MOVE" && to != L"MOVE") {
        form.cert.text = L"0";
        form.recipients = {};
    }
    form.certButton.isEnabled = IsOneOf(to, kRecipients) || IsOneOf(to, kSigners) || to == L"MOVE";
}

// Step 6: the output folder.
void TakeOutputStep(editors::RuleForm& form, const std::wstring& from, const std::wstring& to) {
    if (to == L"DELE") {
        form.outputFolder.isEnabled = false;
        form.outputButton.isEnabled = false;
        form.outputFolder.text = L"";
    } else {
        form.outputFolder.isEnabled = true;
        form.outputButton.isEnabled = true;
        if (from == L"DELE") {
            form.outputFolder.text = L"";
        }
    }
}

void ShowText(editors::TextField& field, bool isShown) {
    field.isShown = isShown;
    field.isEnabled = isShown;
}

// Step 7: the fields of moving.
void TakeMoveStep(editors::RuleForm& form, const std::wstring& from, const std::wstring& to) {
    editors::TextField& edit1130 = form.texts[0];
    editors::TextField& edit1131 = form.texts[1];
    editors::TextField& edit1136 = form.texts[2];
    editors::TextField& edit1137 = form.texts[3];
    std::wstring& label1138 = form.rowLabels[3];
    if (to != L"MOVE") {
        form.cert.isReadOnly = true;
        form.certButton.icon = editors::RuleIcon::kCertificates;
        for (editors::TextField* field : {&edit1130, &edit1131, &edit1136}) {
            ShowText(*field, false);
            field->text = L"";
        }
        label1138 = L"";
        ShowText(edit1137, false);
        return;
    }
    if (from != L"MOVE") {
        form.cert.text = L"";
        edit1137.text = L"";
    }
    form.cert.isReadOnly = false;
    form.certButton.icon = editors::RuleIcon::kSecondOutputFolder;
    for (editors::TextField* field : {&edit1130, &edit1131, &edit1136, &edit1137}) {
        ShowText(*field, true);
    }
    label1138 = L"Accounting copy format:";
}

// Step 8: the fields of packing and executing.
void TakeNumberStep(editors::RuleForm& form, const std::wstring& from, const std::wstring& to) {
    editors::NumberField& edit1139 = form.numbers[0];
    editors::NumberField& edit1140 = form.numbers[1];
    editors::NumberField& edit1141 = form.numbers[2];
    if (to == L"PACK") {
        if (from != L"PACK") {
            edit1139.number = 0;
            edit1140.number = 0;
            edit1141.number = 0;
            form.texts[3].text = L"";
        }
        edit1139.isShown = true;
        edit1140.isShown = true;
        edit1141.isShown = true;
        ShowText(form.texts[3], true);
    } else if (to == L"EXEC") {
        if (from != L"EXEC") {
            edit1139.number = 0;
            form.cert.text = L"";
        }
        form.rowLabels[0] = L"Execution timeout (min.):";
        edit1139.isShown = true;
        edit1140.isShown = false;
        edit1141.isShown = false;
        form.cert.isReadOnly = false;
        form.certButton.isEnabled = true;
        form.certButton.icon = editors::RuleIcon::kExecutable;
        form.certButton.toolTip = L"Executable file:";
    } else {
        edit1139.isShown = false;
        edit1140.isShown = false;
        edit1141.isShown = false;
        if (to != L"MOVE") {
            ShowText(form.texts[3], false);
            form.rowLabels[3] = L"";
        }
    }
}

void RefillArchivers(editors::ChoiceField& list1106, bool isWithNo) {
    const corvane::store::TextList withNo = {L"No", L"ZIP archivation", L"GZIP archivation"};
    const corvane::store::TextList withoutNo = {L"ZIP archivation", L"GZIP archivation"};
    if (isWithNo && list1106.entries == withoutNo && list1106.index < 2) {
        list1106.index += 1;
    }
    if (!isWithNo && list1106.entries == withNo && list1106.index > 0) {
        list1106.index -= 1;
    }
    list1106.entries = isWithNo ? withNo : withoutNo;
}

// Step 9: the labels and choices.
void TakeChoiceStep(editors::RuleForm& form, const std::wstring& from, const std::wstring& to) {
    editors::ChoiceField& list1105 = form.choices[0];
    editors::ChoiceField& list1106 = form.choices[1];
    editors::ChoiceField& list1107 = form.choices[2];
    std::wstring& label1108 = form.rowLabels[0];
    std::wstring& label1109 = form.rowLabels[1];
    std::wstring& label1110 = form.rowLabels[2];
    if (to != L"RESG") {
        label1108 = label1109 = label1110 = L"";
        list1105.isShown = list1106.isShown = list1107.isShown = false;
        if (to == L"MOVE") {
            label1108 = L"Delete extension:";
            label1109 = L"Add extension:";
            label1110 = L"Accounting format:";
        } else if (IsOneOf(to, kArchiverOrNo) || IsOneOf(to, kArchiver)) {
            label1109 = L"Use archivation:";
            list1106.isShown = true;
            RefillArchivers(list1106, IsOneOf(to, kArchiverOrNo));
        } else if (to == L"PACK") {
            label1108 = L"File count:";
            label1109 = L"Archive size (KB.):";
            label1110 = L"Archivation timeout (min.):";
            form.rowLabels[3] = L"Archives name format:";
        } else if (to == L"EXEC") {
            label1108 = L"Execution timeout (min.):";
        }
        if (IsOneOf(to, L"MOVE ARCH UNAR") && IsOneOf(from, kArchiverOrNo)) {
            list1105.index = 0;
        }
        if (to == L"MOVE" && (IsOneOf(from, kArchiverOrNo) || IsOneOf(from, kArchiver))) {
            list1106.index = 0;
        }
    } else if (from != L"RESG") {
        list1105.entries = {L"Attached signature", L"Detached signature"};
        list1106.entries = list1105.entries;
        list1105.index = 0;
        list1106.index = 0;
        label1108 = L"Input signature format:";
        label1109 = L"Output signature format:";
        label1110 = L"New signature profile:";
        list1105.isShown = list1106.isShown = list1107.isShown = true;
    }
}

// Step 10: the CS profile.
void TakeCsProfileStep(editors::RuleForm& form, const std::wstring& to) {
    const bool isWithout = IsOneOf(to, kWithoutCsProfile);
    form.csProfileLabel = isWithout ? L"" : L"CS profile: ";
    form.csProfile.isShown = !isWithout;
}

}  // namespace

void TakeStepsOneByOne(editors::RuleForm& form, const std::wstring& from, const std::wstring& to) {
    form.operation.index = IndexOfCode(to);
    form.laidOutOperation = static_cast<editors::Operation>(form.operation.index);
    TakeCertificateSteps(form, from, to);
    TakeOutputStep(form, from, to);
    TakeMoveStep(form, from, to);
    TakeNumberStep(form, from, to);
    TakeChoiceStep(form, from, to);
    TakeCsProfileStep(form, to);
    // The number of signer lists is shown wherever there are some, also by those who come from executing.
    if (IsOneOf(to, kSigners)) {
        form.cert.text = std::to_wstring(form.result.signerGroups.size());
    }
}

}  // namespace corvane::test
