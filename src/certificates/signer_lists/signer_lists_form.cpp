#include "certificates/signer_lists/signer_lists_form.h"

#include <algorithm>
#include <utility>

#include "reporting/message_styles.h"
#include "toolkit/text/format_text.h"

namespace corvane::certificates {

SignerListsForm::SignerListsForm(std::vector<store::SignerGroup> lists) : lists_(std::move(lists)) {}

std::wstring SignerListsForm::SignersCell(std::size_t position) const {
    std::wstring cell;
    for (const std::wstring& signer : lists_[position].signers) {
        cell += cell.empty() ? signer : L"; " + signer;
    }
    return cell;
}

SelectionStart SignerListsForm::StartOfNewList(bool isNetworkStoreAvailable) const {
    SelectionStart start;
    start.existingLists = lists_;
    start.isNetworkStoreAvailable = isNetworkStoreAvailable;
    return start;
}

SelectionStart SignerListsForm::StartOfEditing(std::size_t position, bool isNetworkStoreAvailable) const {
    SelectionStart start = StartOfNewList(isNetworkStoreAvailable);
    if (position < lists_.size()) {
        start.chosen = lists_[position].signers;
        start.listName = lists_[position].name;
        start.previousListName = lists_[position].name;
    }
    return start;
}

void SignerListsForm::Add(const RecipientSelectionForm& confirmed) {
    lists_.push_back({confirmed.listName, confirmed.Result()});
}

void SignerListsForm::Replace(std::size_t position, const RecipientSelectionForm& confirmed) {
    if (position < lists_.size()) {
        lists_[position] = {confirmed.listName, confirmed.Result()};
    }
}

std::vector<bool> SignerListsForm::Marked(const std::vector<std::size_t>& positions) const {
    std::vector<bool> isMarked(lists_.size());
    for (const std::size_t position : positions) {
        if (position < lists_.size()) {
            isMarked[position] = true;
        }
    }
    return isMarked;
}

std::optional<reporting::Question> SignerListsForm::DeletionQuestion(
    const std::vector<std::size_t>& positions) const {
    const std::vector<bool> isDeleted = Marked(positions);
    const std::int64_t count = std::count(isDeleted.begin(), isDeleted.end(), true);
    if (count == 0) {
        return std::nullopt;
    }
    return reporting::Question{.text = toolkit::FormatText(L"Delete %d list(s)?", {count}),
                               .style = reporting::kWarningQuestionStyle};
}

void SignerListsForm::Delete(const std::vector<std::size_t>& positions) {
    const std::vector<bool> isDeleted = Marked(positions);
    // There is room for all of them at once: no list is moved before it is certain that all can be.
    std::vector<store::SignerGroup> kept;
    kept.reserve(lists_.size());
    for (std::size_t i = 0; i < lists_.size(); ++i) {
        if (!isDeleted[i]) {
            kept.push_back(std::move(lists_[i]));
        }
    }
    lists_ = std::move(kept);
}

std::wstring SignerListsForm::Describe(std::size_t position) const {
    if (position >= lists_.size()) {
        return {};
    }
    std::wstring text = L"List name: " + lists_[position].name;
    std::int64_t number = 0;
    for (const std::wstring& signer : lists_[position].signers) {
        text += L"\r\nSigner" + toolkit::FormatText(L" %d:", {++number}) + L"\r\n" + signer;
    }
    return text;
}

std::optional<CertSession> AddSignerList(SignerListsForm& lists, const SelectionPlace& place) {
    std::optional<CertSession> session = OpenCertSession(place, CertificateUse::kSigners);
    if (!session) {
        return std::nullopt;
    }
    RecipientSelectionForm form(session->settings, lists.StartOfNewList(session->isNetworkStoreAvailable),
                                place.services.reporter.Text());
    if (!place.dialog.Run(form, session->context)) {
        return std::nullopt;
    }
    lists.Add(form);
    return session;
}

std::optional<CertSession> EditSignerList(SignerListsForm& lists, std::size_t position,
                                          const SelectionPlace& place) {
    if (position >= lists.Lists().size()) {
        return std::nullopt;
    }
    std::optional<CertSession> session = OpenCertSession(place, CertificateUse::kSigners);
    if (!session) {
        return std::nullopt;
    }
    RecipientSelectionForm form(session->settings,
                                lists.StartOfEditing(position, session->isNetworkStoreAvailable),
                                place.services.reporter.Text());
    if (!place.dialog.Run(form, session->context)) {
        return std::nullopt;
    }
    lists.Replace(position, form);
    return session;
}

}  // namespace corvane::certificates
