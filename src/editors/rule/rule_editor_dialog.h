#pragma once

#include <optional>
#include <string>

#include "editors/editor_services.h"
#include "editors/mask/mask_list_view.h"
#include "editors/rule/rule_form.h"
#include "reporting/product_dialog.h"
#include "store/records.h"
#include "toolkit/files/paths.h"
#include "toolkit/system/window_handle.h"

namespace corvane::editors {

/// The rule editor: one template whose fields follow the operation. It shows a RuleForm, reads it back and
/// asks the functions on the form what to do.
class CAddRule final : public reporting::ProductDialog {
  public:
    /// Opens on a copy of `rule`, which belongs to `profile`; one without an operation is a new rule.
    CAddRule(HWND owner, const store::Profile& profile, store::TextList maskSuggestions,
             const store::Rule& rule, const EditorServices& services);

    /// The new rule, to be taken after a run that ended with OK.
    [[nodiscard]] const store::Rule& Result() const { return result_; }

  protected:
    bool OnInitDialog() override;
    bool OnCommand(int controlId, UINT notificationCode) override;
    bool OnNotify(NMHDR& header, LRESULT& result) override;
    void OnOk() override;
    const wchar_t* UnsavedInputReason() override;
    void OnScaleChanged() override;
    void ExchangeFields(toolkit::DataExchange& exchange) override;

  private:
    void SetUpButtons();
    /// Shows all of the form in the controls.
    void ShowForm();
    void ShowChoices();
    void ShowFields();
    void ShowCertButton();

    bool OnSelectionChanged(int controlId);
    void OnNumberChanged(int controlId);
    bool OnButton(int controlId);

    void PickFolder(std::wstring& field);
    void RunCertCommand();
    void PickCertPath(const toolkit::PathChoice& choice);

    [[nodiscard]] std::optional<std::wstring> AskForMask(const std::wstring& initialText);
    void AddMaskToRule();
    void EditSelectedMask();
    void DeleteSelectedMasks();

    const EditorServices& services_;
    store::TextList maskSuggestions_;
    RuleForm form_;
    store::Rule opened_;  ///< What OK would have given at the beginning.
    store::Rule result_;
    MaskListView maskList_;
};

/// Lets the user create or change one rule of `profile`; a rule without an operation is a new one.
/// `maskSuggestions` are offered for its masks. Returns the new rule, or none when the user cancels.
[[nodiscard]] std::optional<store::Rule> EditRule(toolkit::WindowHandle owner, const store::Profile& profile,
                                                  const store::TextList& maskSuggestions,
                                                  const store::Rule& rule, const EditorServices& services);

}  // namespace corvane::editors
