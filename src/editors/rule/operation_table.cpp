#include "editors/rule/operation_table.h"

#include <algorithm>

namespace corvane::editors {

namespace {

consteval bool StandsInItsPlace() {
    for (std::size_t place = 0; place < kOperations.size(); ++place) {
        const OperationRow& row = kOperations[place];
        if (static_cast<std::size_t>(row.operation) != place || row.code.empty() || row.name.empty()) {
            return false;
        }
    }
    return true;
}
static_assert(StandsInItsPlace(), "Every operation has one row, at the place that its enumerator numbers.");

consteval bool CodesDiffer() {
    for (std::size_t place = 0; place < kOperations.size(); ++place) {
        for (std::size_t earlier = 0; earlier < place; ++earlier) {
            if (kOperations[place].code == kOperations[earlier].code) {
                return false;
            }
        }
    }
    return true;
}
static_assert(CodesDiffer(), "A code stands for one operation.");

static_assert(kCertFields.size() == static_cast<std::size_t>(CertUse::kExecutable) + 1);

consteval bool CertFieldsStandInTheirPlace() {
    for (std::size_t place = 0; place < kCertFields.size(); ++place) {
        if (static_cast<std::size_t>(kCertFields[place].use) != place || kCertFields[place].label.empty()) {
            return false;
        }
    }
    return true;
}
static_assert(CertFieldsStandInTheirPlace(),
              "Every use has one row, at the place that its enumerator numbers.");

consteval bool LastRowsAreTexts() {
    return std::all_of(kOperations.begin(), kOperations.end(), [](const OperationRow& operation) {
        const Option& last = operation.rows.back().option;
        return std::holds_alternative<std::monostate>(last) || std::holds_alternative<TextOption>(last);
    });
}
static_assert(LastRowsAreTexts(), "The template has only a text field in the last row.");

consteval bool EachValueIsTypedOnce() {
    for (std::size_t place = 0; place < kOperations.size() * kRowCount; ++place) {
        for (std::size_t earlier = 0; earlier < place; ++earlier) {
            const Option& option = kOperations[place / kRowCount].rows[place % kRowCount].option;
            const bool isTyped =
                std::holds_alternative<TextOption>(option) || std::holds_alternative<NumberOption>(option);
            if (isTyped && option == kOperations[earlier / kRowCount].rows[earlier % kRowCount].option) {
                return false;
            }
        }
    }
    return true;
}
static_assert(EachValueIsTypedOnce(), "A rule's description walks all operations and would show it twice.");

}  // namespace

const OperationRow* FindOperation(std::wstring_view code) {
    const auto* const found =
        std::find_if(kOperations.begin(), kOperations.end(),
                     [code](const OperationRow& operation) { return operation.code == code; });
    return found == kOperations.end() ? nullptr : &*found;
}

std::wstring_view OperationDisplayName(std::wstring_view code) {
    const OperationRow* const operation = FindOperation(code);
    return operation == nullptr ? code : operation->name;
}

}  // namespace corvane::editors
