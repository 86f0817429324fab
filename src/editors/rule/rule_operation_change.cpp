#include "editors/rule/rule_operation_change.h"

#include <algorithm>
#include <utility>

namespace corvane::editors {

namespace {

CertUse CertOf(Operation operation) {
    return LayoutOf(operation).cert;
}

bool HasSignersOrExecutes(Operation operation) {
    return CertOf(operation) == CertUse::kSigners || CertOf(operation) == CertUse::kExecutable;
}

bool IsArchiverRowOf(Operation operation, RowUse use) {
    return ArchiverUse(LayoutOf(operation)) == use;
}

void DropCertificates(RuleForm& form, Operation previous, Operation next) {
    const bool leavesRecipients =
        CertOf(previous) == CertUse::kRecipients && CertOf(next) != CertUse::kRecipients;
    const bool leavesSigners = HasSignersOrExecutes(previous) && !HasSignersOrExecutes(next);
    const bool leavesMove = previous == Operation::kMove && next != Operation::kMove;
    if (leavesRecipients || leavesSigners || leavesMove) {
        form.cert.text = L"0";
        form.recipients.clear();
    }
    // Deliberate: signer lists outlive an executing operation. Users who come back from it to a verifying
    // one find them again.
    if (leavesSigners) {
        form.result.signerGroups.clear();
    }
}

void EmptyFields(RuleForm& form, Operation previous, Operation next) {
    if (next == Operation::kDelete || previous == Operation::kDelete) {
        form.outputFolder.text.clear();
    }
    if (next != Operation::kMove) {
        for (std::size_t row = 0; row < form.numbers.size(); ++row) {
            form.texts[row].text.clear();
        }
    }
    if (previous == next) {
        return;
    }
    if (next == Operation::kMove || next == Operation::kExecute) {
        form.cert.text.clear();
    }
    if (next == Operation::kMove || next == Operation::kPack) {
        form.texts.back().text.clear();
    }
    if (next == Operation::kPack) {
        for (NumberField& field : form.numbers) {
            field.number = 0;
        }
    } else if (next == Operation::kExecute) {
        form.numbers.front().number = 0;
    }
}

/// Refills the archiver choice for the next operation so that the chosen archiver survives. What counts is
/// what the choice holds, not where the user comes from: between two archiving operations there may have
/// been one without the row. Signature formats are no archivers, so their index is left as it is.
void CarryArchiver(ChoiceField& choice, Operation next) {
    constexpr int kLastWithNo = 2;
    // Entries and index change together, so that a change that fails for lack of memory can be made good.
    ChoiceField carried = choice;
    FillArchivers(carried, LayoutOf(next));
    const bool heldNo = HoldsNoArchiver(choice);
    if (HoldsArchivers(choice) && heldNo != HoldsNoArchiver(carried)) {
        carried.index = heldNo ? std::max(carried.index - 1, 0) : std::min(carried.index + 1, kLastWithNo);
    }
    choice = std::move(carried);
}

void ResetChoices(RuleForm& form, Operation previous, Operation next) {
    const bool comesFromChoiceWithNo = IsArchiverRowOf(previous, RowUse::kArchiverOrNone);
    const bool comesFromArchivers = !IsArchiverRowOf(previous, RowUse::kNone);
    // Deliberate: only these three operations reset the first row's choice, and only moving resets the
    // archiver. Behind any other operation users find their archiver again.
    const bool resets = next == Operation::kMove || IsArchiverRowOf(next, RowUse::kArchiver);
    if (resets && comesFromChoiceWithNo) {
        form.choices[0].index = 0;
    }
    if (next == Operation::kMove && comesFromArchivers) {
        form.choices[kArchiverRow].index = 0;
    }
}

void SetChoices(RuleForm& form, Operation previous, Operation next) {
    if (next == Operation::kResign) {
        if (previous != Operation::kResign) {
            for (ChoiceField* formats : {&form.choices[0], &form.choices[1]}) {
                FillSignatureFormats(*formats);
                formats->index = 0;
            }
        }
        return;
    }
    if (!IsArchiverRowOf(next, RowUse::kNone)) {
        CarryArchiver(form.choices[kArchiverRow], next);
    }
    ResetChoices(form, previous, next);
}

}  // namespace

void ChangeOperation(RuleForm& form) {
    const std::optional<Operation> selected = SelectedOperation(form);
    if (!selected) {
        return;
    }
    const Operation previous = form.laidOutOperation;
    const Operation next = *selected;
    DropCertificates(form, previous, next);
    EmptyFields(form, previous, next);
    SetChoices(form, previous, next);
    ShowCertCount(form, next);
    ShowLayout(form, next);
}

}  // namespace corvane::editors
