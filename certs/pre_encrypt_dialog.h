#pragma once

#include <functional>

#include "app/reporting/error_reporter.h"
#include "certs/cryptocontext.h"
#include "certs/owner_list_view.h"
#include "certs/recipient_selection_form.h"
#include "toolkit/anchored_layout.h"
#include "toolkit/button_icons.h"
#include "toolkit/dialog.h"
#include "toolkit/file_calls.h"
#include "toolkit/icon.h"
#include "toolkit/tool_tip.h"

namespace corvane {

/// The choice of recipients or signers: above the certificate owners that were found, below those chosen.
class CPreEncryptDlg final : public toolkit::Dialog {
  public:
    /// Works on `form` and searches in `context`; both, and the services, must outlive the dialog. After a
    /// run that ended with OK the form holds the result.
    CPreEncryptDlg(HWND owner, RecipientSelectionForm& form, const Cryptocontext& context,
                   ErrorReporter& reporter, toolkit::FileCalls& files);

  protected:
    bool OnInitDialog() override;
    bool OnCommand(int controlId, UINT notificationCode) override;
    bool OnNotify(NMHDR& header, LRESULT& result) override;
    void OnOk() override;
    const wchar_t* UnsavedInputReason() override;
    void OnSize(WPARAM kind, int width, int height) override;
    void OnMinimumMaximumInfo(MINMAXINFO& info) override;
    void OnScaleChanged() override;
    bool PreTranslateMessage(MSG& message) override;
    void ExchangeFields(toolkit::DataExchange& exchange) override;
    void ReportException(const std::exception& exception) override;

  private:
    void SetUpControls();
    void FitColumns() const;
    void ShowIcons();
    bool Press(int buttonId);
    bool OnFoundNotification(const NMHDR& header);
    bool OnChosenNotification(const NMHDR& header);

    /// Makes a change of the form, then shows what a list holds now.
    void ChangeFound(const std::function<void()>& change);
    void ChangeChosen(const std::function<void()>& change);

    void SearchLocalStore();
    void SearchNetworkStore();
    void OpenGroup();
    void SaveGroup();
    void AddChecked();
    void ShowDetails(const OwnerBox& box);

    RecipientSelectionForm& form_;
    const Cryptocontext& context_;
    ErrorReporter& reporter_;
    toolkit::FileCalls& files_;
    OwnerListView foundList_;
    OwnerListView chosenList_;
    toolkit::AnchoredLayout layout_;
    toolkit::ToolTip toolTip_;
    toolkit::ButtonIcons buttonIcons_;
    toolkit::UniqueIcon largeIcon_;
    toolkit::UniqueIcon smallIcon_;
};

}  // namespace corvane
