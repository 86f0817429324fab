#include "editors/cs_profile_choice_form.h"

#include "app/reporting/message_styles.h"

namespace corvane {

namespace {

bool IsEntry(const TextList& list, int index) {
    return index >= 0 && static_cast<std::size_t>(index) < list.size();
}

}  // namespace

bool CsProfileChoiceForm::Confirm(ErrorReporter& reporter, toolkit::WindowHandle dialog) const {
    if (IsEntry(catalogue, index)) {
        return true;
    }
    reporter.ShowMessage(dialog, std::wstring(kNoCsProfilesText), kRefusalStyle);
    return false;
}

std::wstring CsProfileChoiceForm::Name() const {
    return IsEntry(catalogue, index) ? catalogue[static_cast<std::size_t>(index)] : std::wstring();
}

}  // namespace corvane
