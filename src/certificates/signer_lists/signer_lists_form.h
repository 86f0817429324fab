#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "certificates/selection/selection_form.h"
#include "reporting/refusal.h"
#include "store/records.h"

namespace corvane::certificates {

inline constexpr wchar_t kSignerListsTitle[] = L"Signer lists";
/// The title of the box that shows one list.
inline constexpr wchar_t kSignerListTitle[] = L"Signer list";

/// What the signer lists dialog edits and decides, on a copy of a rule's lists that the caller takes back
/// after OK. A position that is not there is none.
class SignerListsForm {
  public:
    explicit SignerListsForm(std::vector<store::SignerGroup> lists);

    [[nodiscard]] const std::vector<store::SignerGroup>& Lists() const { return lists_; }

    /// The two cells of a row: the list's name, and its signers, separated by "; ".
    [[nodiscard]] const std::wstring& NameCell(std::size_t position) const { return lists_[position].name; }
    [[nodiscard]] std::wstring SignersCell(std::size_t position) const;

    /// What the selection dialog starts with for a new list, and for editing one.
    [[nodiscard]] SelectionStart StartOfNewList(bool isNetworkStoreAvailable) const;
    [[nodiscard]] SelectionStart StartOfEditing(std::size_t position, bool isNetworkStoreAvailable) const;

    /// Takes the confirmed list from the selection dialog.
    void Add(const RecipientSelectionForm& confirmed);
    void Replace(std::size_t position, const RecipientSelectionForm& confirmed);

    /// What is asked before the lists at these positions are deleted; none where there are none.
    [[nodiscard]] std::optional<reporting::Question> DeletionQuestion(
        const std::vector<std::size_t>& positions) const;
    /// Deletes the lists at these positions.
    void Delete(const std::vector<std::size_t>& positions);

    /// The list in full, for the box that a right click shows, lines broken by CR LF.
    [[nodiscard]] std::wstring Describe(std::size_t position) const;

  private:
    [[nodiscard]] std::vector<bool> Marked(const std::vector<std::size_t>& positions) const;

    std::vector<store::SignerGroup> lists_;
};

/// Lets the user make a new signer list. Returns the cryptocontext when the lists changed, else none.
[[nodiscard]] std::optional<CertSession> AddSignerList(SignerListsForm& lists, const SelectionPlace& place);

/// Lets the user change the signer list at `position`. Returns the cryptocontext when the lists changed, else
/// none.
[[nodiscard]] std::optional<CertSession> EditSignerList(SignerListsForm& lists, std::size_t position,
                                                        const SelectionPlace& place);

}  // namespace corvane::certificates
