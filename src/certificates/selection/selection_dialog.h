#pragma once

#include <cstddef>
#include <functional>
#include <optional>

#include "certificates/selection/owner_list_view.h"
#include "certificates/selection/selection_form.h"
#include "certificates/session/cert_services.h"
#include "certificates/session/cryptocontext.h"
#include "reporting/product_dialog.h"
#include "store/records.h"
#include "toolkit/files/file_calls.h"
#include "toolkit/system/window_handle.h"

namespace corvane::certificates {

/// The choice of recipients or signers: above the certificate owners that were found, below those chosen.
class CPreEncryptDlg final : public reporting::ProductDialog {
  public:
    /// Works on `form` and searches in `context`; both, and the services, must outlive the dialog. After a
    /// run that ended with OK the form holds the result.
    CPreEncryptDlg(HWND owner, RecipientSelectionForm& form, const Cryptocontext& context,
                   reporting::ErrorReporter& reporter, toolkit::FileCalls& files);

  protected:
    bool OnInitDialog() override;
    bool OnCommand(int controlId, UINT notificationCode) override;
    bool OnNotify(NMHDR& header, LRESULT& result) override;
    void OnOk() override;
    const wchar_t* UnsavedInputReason() override;
    void OnArranged() override;
    void OnScaleChanged() override;
    void ExchangeFields(toolkit::DataExchange& exchange) override;

  private:
    void SetUpControls();
    bool Press(int buttonId);
    bool OnListNotification(const OwnerRows& owners, const NMHDR& header);

    /// Makes a change of the form, then shows what a list holds now.
    void ChangeFound(const std::function<void()>& change);
    void ChangeChosen(const std::function<void()>& change);

    void SearchLocalStore();
    void SearchNetworkStore();
    void OpenGroup();
    void SaveGroup();
    void DeleteAllFound();
    void AddChecked();

    RecipientSelectionForm& form_;
    const Cryptocontext& context_;
    toolkit::FileCalls& files_;
    FoundOwners foundOwners_;
    ChosenOwners chosenOwners_;
    OwnerListView foundList_{foundOwners_};
    OwnerListView chosenList_{chosenOwners_};
};

/// Shows CPreEncryptDlg, owned by `owner`, on the form that a run is given. `reporter` and `files` must
/// outlive it.
class SelectionDialogRun final : public SelectionRun {
  public:
    SelectionDialogRun(toolkit::WindowHandle owner, reporting::ErrorReporter& reporter,
                       toolkit::FileCalls& files)
        : owner_(owner), reporter_(reporter), files_(files) {}

    bool Run(RecipientSelectionForm& form, const Cryptocontext& context) override;

  private:
    toolkit::WindowHandle owner_;
    reporting::ErrorReporter& reporter_;
    toolkit::FileCalls& files_;
};

/// Lets the user choose the recipients of a rule under CS profile `csProfileIndex` of `profile`, beginning
/// with `recipients`. None when the user cancels or no cryptocontext can be opened, which has been shown. A
/// failure to close the cryptocontext is reported, owned by `owner`, when the result dies.
[[nodiscard]] std::optional<ChosenRecipients> EditRecipients(
    toolkit::WindowHandle owner, const store::Profile& profile, std::size_t csProfileIndex,
    const store::TextList& recipients, const CertServices& services, toolkit::FileCalls& files);

}  // namespace corvane::certificates
