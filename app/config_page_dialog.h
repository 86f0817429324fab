#pragma once

#include "app/config_page_form.h"
#include "toolkit/button_icons.h"
#include "toolkit/dialog.h"
#include "toolkit/tool_tip.h"

namespace corvane {

/// The file name extensions of the settings: the basic ones that the client gives to the files it produces,
/// and a list of additional ones.
class CConfigPage final : public toolkit::Dialog {
  public:
    /// Shows the settings that are in force.
    CConfigPage(HWND owner, const AppSettings& settings, ErrorReporter& reporter);

    /// The settings with the new extensions, to be taken after a run that ended with OK.
    [[nodiscard]] const AppSettings& Settings() const { return form_.settings; }

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
    void SetUpTexts();
    void SetUpButtons();
    void AddTypedExtension();
    void DeleteSelectedExtension();
    void Apply();
    [[nodiscard]] AppSettings SettingsAsShown();

    ErrorReporter& reporter_;
    ConfigPageForm form_;
    AppSettings opened_;
    toolkit::ToolTip toolTip_;
    toolkit::ButtonIcons buttonIcons_;
};

}  // namespace corvane
