#pragma once

#include <cstdint>
#include <string>

#include "app/log_settings/log_settings_form.h"
#include "app/services.h"
#include "reporting/product_dialog.h"

namespace corvane::app {

/// The log settings: the folder of the client's log and the largest size of its files, in KB.
class CConflictDlg final : public reporting::ProductDialog {
  public:
    /// Shows the settings that are in force.
    CConflictDlg(HWND owner, const std::wstring& logPath, std::int32_t logFileSize, const Services& services);

    /// The results, to be taken after a run that ended with OK.
    [[nodiscard]] const std::wstring& LogPath() const { return form_.LogPath(); }
    [[nodiscard]] std::int32_t LogFileSize() const { return form_.logFileSize; }

  protected:
    bool OnInitDialog() override;
    bool OnCommand(int controlId, UINT notificationCode) override;
    void OnOk() override;
    const wchar_t* UnsavedInputReason() override;
    void ExchangeFields(toolkit::DataExchange& exchange) override;

  private:
    void ChooseFolder();
    void OnSizeChanged();

    const Services& services_;
    LogSettingsForm form_;
    LogSettingsForm opened_;
    std::wstring sizeLabel_;
};

}  // namespace corvane::app
