#include "certs/filter_form.h"

#include "app/reporting/message_styles.h"
#include "certs/subject_fields.h"

namespace corvane {

TextList FilterForm::FieldChoices() {
    TextList choices = OfferedSubjectFields();
    choices.emplace_back(kEntireNameChoice);
    return choices;
}

bool FilterForm::IsOkEnabled(std::wstring_view sampleText) {
    return sampleText == L"*" || sampleText.find_first_not_of(L" \t*") != std::wstring_view::npos;
}

bool FilterForm::Confirm(ErrorReporter& reporter, toolkit::WindowHandle dialog) {
    if (fieldIndex < 0) {
        reporter.ShowMessage(dialog, L"Select field for filter", kRefusalStyle);
        return false;
    }
    sample = TrimBlanks(sample);
    return true;
}

std::wstring FilterForm::Pattern(const toolkit::SystemText& systemText) const {
    const TextList fields = OfferedSubjectFields();
    if (fieldIndex < 0 || static_cast<std::size_t>(fieldIndex) >= fields.size()) {
        return sample;
    }
    return SubjectFieldKey(fields[static_cast<std::size_t>(fieldIndex)], systemText) + L"=" + sample;
}

}  // namespace corvane
