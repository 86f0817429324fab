#pragma once

#include <optional>

#include "editors/editor_services.h"
#include "editors/profile/profile_form.h"
#include "reporting/product_dialog.h"
#include "store/records.h"
#include "toolkit/system/window_handle.h"

namespace corvane::editors {

/// One profile: its name, its options, and the CS profiles that it uses with the settings of each. What it
/// shows and decides stands in ProfileForm.
class CAddProfile final : public reporting::ProductDialog {
  public:
    /// Edits a copy of `profile`; one without a name is a new one. The catalogue and the names of the other
    /// profiles are in `state`, which outlives the dialog. A new profile without a CS profile to begin with
    /// ends the run with std::invalid_argument.
    CAddProfile(HWND owner, const store::ConfigurationState& state, const store::Profile& profile,
                const EditorServices& services);

    /// The results, to be taken after a run that ended with OK.
    [[nodiscard]] const store::Profile& Result() const { return form_.result; }
    [[nodiscard]] const store::TextList& DeletedCsProfiles() const { return form_.deletedCsProfiles; }

  protected:
    bool OnInitDialog() override;
    bool OnCommand(int controlId, UINT notificationCode) override;
    void OnOk() override;
    const wchar_t* UnsavedInputReason() override;
    void OnScaleChanged() override;
    bool PreTranslateMessage(MSG& message) override;
    void ExchangeFields(toolkit::DataExchange& exchange) override;

  private:
    void ShowForm();
    bool OnButton(int controlId);
    void OnEdited(int controlId);
    [[nodiscard]] bool LeaveShownCsProfile();
    void ChangeCsProfile();
    void AddChosenCsProfile();
    void DeleteSelectedCsProfile();

    const store::ConfigurationState& state_;
    const EditorServices& services_;
    ProfileForm form_;
    store::Profile opened_;  ///< What could be kept at the beginning.
};

/// What the profile editor gives back.
struct EditedProfile {
    store::Profile profile;
    store::TextList deletedCsProfiles;  ///< Names of the CS profiles that were deleted in the editor.
};

/// Lets the user create or change a profile; one without a name is a new one. The catalogue and the names of
/// the other profiles are in `state`. Returns none when the user cancels.
[[nodiscard]] std::optional<EditedProfile> EditProfile(toolkit::WindowHandle owner,
                                                       const store::ConfigurationState& state,
                                                       const store::Profile& profile,
                                                       const EditorServices& services);

}  // namespace corvane::editors
