#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "certificates/search/owner_texts.h"
#include "certificates/session/cert_services.h"
#include "certificates/session/cert_session.h"
#include "certificates/session/cryptocontext.h"
#include "certificates/session/wait_window.h"
#include "reporting/error_reporter.h"
#include "reporting/refusal.h"
#include "store/records.h"
#include "toolkit/system/window_handle.h"

namespace corvane::certificates {

/// What the selection dialog starts with.
struct SelectionStart {
    store::TextList chosen;  ///< The caller's owners so far.
    std::vector<store::SignerGroup>
        existingLists;  ///< Of a signer list: the lists of the rule, itself included.
    std::wstring listName;
    std::wstring previousListName;  ///< The name of the list that is edited; empty for a new one.
    bool isNetworkStoreAvailable = false;
};

/// An owner as a list of the dialog shows it.
struct OwnerRow {
    std::wstring_view owner;  ///< Good until the form changes.
    bool isChecked = false;

    bool operator==(const OwnerRow&) const = default;
};

/// The mark of a list's sort direction in its column header.
enum class SortMark { kNone, kUp, kDown };

/// What the selection of recipients or signers shows and decides: the upper list with the owners that were
/// found, the lower one with those chosen. The dialog shows the rows, tells the form what the user did and
/// shows the rows again. Rows are addressed by their position in the list as it is shown; a position that is
/// not there changes nothing.
///
/// Checks belong to owners and outlast refilling, sorting and filtering; an owner that the filter hides comes
/// back as it was, but counts as unchecked while it is hidden.
class RecipientSelectionForm {
  public:
    /// `settings` and `systemText` must outlive the form. The settings say whether signers or recipients are
    /// chosen.
    RecipientSelectionForm(const CertSearchSettings& settings, SelectionStart start,
                           const toolkit::SystemText& systemText);

    // What the dialog shows.
    [[nodiscard]] bool IsForSigners() const { return settings_.signerMode != 0; }
    [[nodiscard]] std::wstring Title() const;
    [[nodiscard]] bool IsNetworkStoreAvailable() const { return isNetworkStoreAvailable_; }
    [[nodiscard]] std::size_t FoundRowCount() const { return foundRows_.size(); }
    [[nodiscard]] OwnerRow FoundRow(std::size_t position) const;
    [[nodiscard]] std::size_t ChosenRowCount() const { return chosenRows_.size(); }
    [[nodiscard]] OwnerRow ChosenRow(std::size_t position) const;
    [[nodiscard]] SortMark FoundSortMark() const { return foundSort_.Mark(); }
    [[nodiscard]] SortMark ChosenSortMark() const { return chosenSort_.Mark(); }

    // What the user does with the upper list.
    void CheckFound(std::size_t position, bool isChecked);
    /// "Select all" and "Clear": the owners that are shown.
    void CheckAllFound(bool isChecked);
    /// Puts owners that are not yet there at the end, and fills the upper list again.
    void AddFound(const store::TextList& owners);
    /// "From local store". False after a failure, which has been reported and changed nothing.
    bool SearchLocalStore(const Cryptocontext& context, reporting::ErrorReporter& reporter,
                          toolkit::WindowHandle dialog);
    /// "From NCS", with the pattern of the filter dialog. Says so when nothing was found.
    bool SearchNetworkStore(const std::wstring& pattern, const Cryptocontext& context,
                            reporting::ErrorReporter& reporter, toolkit::WindowHandle dialog);
    /// What "Delete all" asks first; none where the upper list shows nobody.
    [[nodiscard]] std::optional<reporting::Question> DeletionQuestion() const;
    /// "Delete all": empties the upper list.
    void DeleteAllFound();
    /// The filter keeps owners that contain its text, whatever the letter case.
    void SetFilter(std::wstring_view text);
    /// The user chose the attribute to sort by, an index of OfferedSubjectFields.
    void SetSortField(std::size_t fieldIndex);
    void ClickFoundHeader();
    /// What a double click on the row shows.
    [[nodiscard]] reporting::Information FoundDetails(std::size_t position) const;
    [[nodiscard]] store::TextList CheckedFoundOwners() const;

    // What the user does with the lower list.
    void CheckChosen(std::size_t position, bool isChecked);
    /// The arrow down: adds the checked upper owners. Returns the text of a warning, empty for none: signers
    /// of other lists have been excluded, because a signer belongs to one list only.
    [[nodiscard]] std::wstring AddChecked();
    /// The arrow up: removes the checked lower owners; the others stay in the order shown.
    void RemoveChecked();
    void ClickChosenHeader();
    /// What a double click on the row shows.
    [[nodiscard]] reporting::Information ChosenDetails(std::size_t position) const;

    /// The user pressed OK. Looks for a certificate of every owner of the lower list, in the order shown.
    /// Returns what is refused; none where it is accepted, and Result then holds the owners kept. What the
    /// search reports or asks has been shown, owned by `dialog`, and is refused without another word.
    [[nodiscard]] std::optional<reporting::Refusal> Confirm(const Cryptocontext& context,
                                                            reporting::ErrorReporter& reporter,
                                                            toolkit::WindowHandle dialog);
    [[nodiscard]] const store::TextList& Result() const { return result_; }

    /// Tells whether OK would keep other owners, another order of them or, by the name field as it stands,
    /// another name than the caller has.
    [[nodiscard]] bool IsChanged(const std::wstring& shownListName) const;

    std::wstring listName;       ///< The text of the list name field.
    std::wstring lastGroupPath;  ///< The group file last chosen here; empty for none.
    [[nodiscard]] const CertSearchSettings& Settings() const { return settings_; }

  private:
    struct FoundOwner {
        std::wstring text;
        std::wstring upperText;  ///< What the filter is compared with, so that typing need not convert.
        bool isChecked = false;
    };
    struct ChosenOwner {
        std::wstring text;
        bool isChecked = false;
    };
    // The sort direction of a list and whether the list still stands in that order: rows come in the order of
    // their owners again when it is filled.
    struct ListSort {
        SortDirection direction = SortDirection::kAscending;
        bool wasSorted = false;
        bool isSorted = false;

        [[nodiscard]] SortMark Mark() const;
        /// The direction in which a click on the header sorts.
        [[nodiscard]] SortDirection Next() const;
    };

    [[nodiscard]] store::TextList ChosenAsShown() const;
    void FillFound();
    void FillChosen();
    void SortFound(SortDirection direction);
    void SortChosen(SortDirection direction);
    [[nodiscard]] std::wstring ExcludeSignersOfOtherLists();
    [[nodiscard]] std::optional<reporting::Refusal> CheckListName() const;

    const CertSearchSettings& settings_;
    const toolkit::SystemText& systemText_;
    std::vector<store::SignerGroup> existingLists_;
    std::wstring previousListName_;
    bool isNetworkStoreAvailable_;
    std::vector<std::wstring> sortKeys_;  ///< The attributes that can be sorted by.
    std::size_t sortField_ = 0;
    std::wstring upperFilter_;
    std::vector<FoundOwner> found_;
    std::vector<std::size_t> foundRows_;  ///< Indices of found_, as shown.
    ListSort foundSort_;
    std::vector<ChosenOwner> chosen_;
    std::vector<std::size_t> chosenRows_;  ///< Indices of chosen_, as shown.
    ListSort chosenSort_;
    store::TextList openedChosen_;
    std::wstring openedListName_;
    store::TextList result_;
};

/// The selection dialog for whoever opens it.
class SelectionRun {
  public:
    virtual ~SelectionRun() = default;

    /// Shows the dialog on a form, with the cryptocontext for its searches. Returns whether the user
    /// confirmed.
    virtual bool Run(RecipientSelectionForm& form, const Cryptocontext& context) = 0;

  protected:
    SelectionRun() = default;
    SelectionRun(const SelectionRun&) = default;
    SelectionRun& operator=(const SelectionRun&) = default;
    SelectionRun(SelectionRun&&) = default;
    SelectionRun& operator=(SelectionRun&&) = default;
};

/// What a selection works with. `owner` is the window that asks for it.
struct SelectionPlace {
    toolkit::WindowHandle owner = nullptr;
    const store::Profile& profile;
    std::size_t csProfileIndex = 0;
    WaitWindow& waitWindow;
    const CertServices& services;
    SelectionRun& dialog;
};

/// Opens the cryptocontext for the time of one selection dialog. Where none can be opened, which has been
/// shown, the dialog is not shown and nothing changes.
[[nodiscard]] std::optional<CertSession> OpenCertSession(const SelectionPlace& place, CertificateUse use);

/// The recipients that the user confirmed, and the cryptocontext, which is closed with this object: still
/// open, so that the choice can be kept and shown before the closing, which may fail, is reported.
struct ChosenRecipients {
    store::TextList owners;
    CertSession session;
};

/// Lets the user choose the recipients of a rule, beginning with `recipients`. None when the user cancels or
/// no cryptocontext can be opened.
[[nodiscard]] std::optional<ChosenRecipients> ChooseRecipients(const SelectionPlace& place,
                                                               const store::TextList& recipients);

}  // namespace corvane::certificates
