#pragma once

#include <optional>

#include "app/extensions_page/extensions_page_form.h"
#include "app/services.h"
#include "reporting/product_dialog.h"
#include "store/records.h"
#include "toolkit/system/window_handle.h"

namespace corvane::app {

/// The file name extensions of the settings: the basic ones that the client gives to the files it produces,
/// and a list of additional ones.
class CConfigPage final : public reporting::ProductDialog {
  public:
    /// Shows the settings that are in force.
    CConfigPage(HWND owner, const store::AppSettings& settings, reporting::ErrorReporter& reporter);

    /// The settings with the new extensions, to be taken after a run that ended with OK.
    [[nodiscard]] const store::AppSettings& Settings() const { return form_.settings; }

  protected:
    bool OnInitDialog() override;
    bool OnCommand(int controlId, UINT notificationCode) override;
    void OnOk() override;
    const wchar_t* UnsavedInputReason() override;
    void OnScaleChanged() override;
    bool PreTranslateMessage(MSG& message) override;
    void ExchangeFields(toolkit::DataExchange& exchange) override;

  private:
    void SetUpTexts();
    void AddTypedExtension();
    void DeleteSelectedExtension();
    void Apply();
    [[nodiscard]] store::AppSettings SettingsAsShown();

    ConfigPageForm form_;
    store::AppSettings opened_;
};

/// Lets the user edit the file name extensions of the settings. Returns the settings with the new
/// extensions, or none when the user cancels.
[[nodiscard]] std::optional<store::AppSettings> EditConfigurations(toolkit::WindowHandle owner,
                                                                   const store::AppSettings& settings,
                                                                   const Services& services);

}  // namespace corvane::app
