#include "certificates/search/filter_form.h"

#include "certificates/search/owner_texts.h"
#include "res/ids.h"

namespace corvane::certificates {

store::TextList FilterForm::FieldChoices() {
    store::TextList choices = OfferedSubjectFields();
    choices.emplace_back(kEntireNameChoice);
    return choices;
}

bool FilterForm::IsOkEnabled(std::wstring_view sampleText) {
    return sampleText == L"*" || sampleText.find_first_not_of(L" \t*") != std::wstring_view::npos;
}

std::optional<reporting::Refusal> FilterForm::Check() const {
    return fieldIndex < 0
               ? std::optional(reporting::Refuse(L"Select field for filter", IDC_FILTER_FIELD_COMBO))
               : std::nullopt;
}

void FilterForm::Commit() {
    sample = TrimBlanks(sample);
}

std::wstring FilterForm::Pattern(const toolkit::SystemText& systemText) const {
    const store::TextList fields = OfferedSubjectFields();
    if (fieldIndex < 0 || static_cast<std::size_t>(fieldIndex) >= fields.size()) {
        return sample;
    }
    return SubjectFieldKey(fields[static_cast<std::size_t>(fieldIndex)], systemText) + L"=" + sample;
}

}  // namespace corvane::certificates
