#pragma once

#include "editors/editor_services.h"
#include "editors/profile_form.h"
#include "toolkit/button_icons.h"
#include "toolkit/dialog.h"
#include "toolkit/tool_tip.h"

namespace corvane {

/// One profile: its name, its options, and the CS profiles that it uses with the settings of each. What it
/// shows and decides stands in ProfileForm.
class CAddProfile final : public toolkit::Dialog {
  public:
    /// Edits a copy of `profile`; one without a name is a new one. The catalogue and the names of the other
    /// profiles are in `state`, which outlives the dialog. A new profile without a CS profile to begin with
    /// ends the run with std::invalid_argument.
    CAddProfile(HWND owner, const ConfigurationState& state, const Profile& profile,
                const EditorServices& services);

    /// The results, to be taken after a run that ended with OK.
    [[nodiscard]] const Profile& Result() const { return form_.result; }
    [[nodiscard]] const TextList& DeletedCsProfiles() const { return form_.deletedCsProfiles; }

  protected:
    bool OnInitDialog() override;
    bool OnCommand(int controlId, UINT notificationCode) override;
    void OnOk() override;
    const wchar_t* UnsavedInputReason() override;
    void OnScaleChanged() override;
    bool PreTranslateMessage(MSG& message) override;
    void ExchangeFields(toolkit::DataExchange& exchange) override;
    void ReportException(const std::exception& exception) override;

  private:
    void SetUpButtons();
    void ShowForm();
    void ShowTypedText(int controlId, const std::wstring& text) const;
    bool OnButton(int controlId);
    void OnEdited(int controlId);
    [[nodiscard]] bool MayLeaveShownCsProfile();
    void ChangeCsProfile();
    void AddChosenCsProfile();
    void DeleteSelectedCsProfile();

    const ConfigurationState& state_;
    const EditorServices& services_;
    ProfileForm form_;
    Profile opened_;  ///< What could be kept at the beginning.
    toolkit::ToolTip toolTip_;
    toolkit::ButtonIcons buttonIcons_;
};

}  // namespace corvane
