#include "editors/profile/cs_profile_choice_form.h"

#include "reporting/message_styles.h"

namespace corvane::editors {

namespace {

bool IsEntry(const store::TextList& list, int index) {
    return index >= 0 && static_cast<std::size_t>(index) < list.size();
}

}  // namespace

bool CsProfileChoiceForm::Confirm(reporting::ErrorReporter& reporter, toolkit::WindowHandle dialog) const {
    if (IsEntry(catalogue, index)) {
        return true;
    }
    reporter.ShowMessage(dialog, std::wstring(kNoCsProfilesText), reporting::kRefusalStyle);
    return false;
}

std::wstring CsProfileChoiceForm::Name() const {
    return IsEntry(catalogue, index) ? catalogue[static_cast<std::size_t>(index)] : std::wstring();
}

}  // namespace corvane::editors
