#include "editors/profile/cs_profile_choice_form.h"

#include "res/ids.h"

namespace corvane::editors {

namespace {

bool IsEntry(const store::TextList& list, int index) {
    return index >= 0 && static_cast<std::size_t>(index) < list.size();
}

}  // namespace

std::optional<reporting::Refusal> CsProfileChoiceForm::Check() const {
    return IsEntry(catalogue, index)
               ? std::nullopt
               : std::optional(reporting::Refuse(kNoCsProfilesText, IDC_CS_PROFILE_CHOICE_COMBO));
}

std::wstring CsProfileChoiceForm::Name() const {
    return IsEntry(catalogue, index) ? catalogue[static_cast<std::size_t>(index)] : std::wstring();
}

}  // namespace corvane::editors
