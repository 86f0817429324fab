#include "certificates/selection/selection_form.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "certificates/search/certificate_search.h"
#include "certificates/search/owner_texts.h"
#include "reporting/message_styles.h"
#include "res/ids.h"
#include "toolkit/text/format_text.h"

namespace corvane::certificates {

SortMark RecipientSelectionForm::ListSort::Mark() const {
    if (!isSorted) {
        return SortMark::kNone;
    }
    return direction == SortDirection::kAscending ? SortMark::kUp : SortMark::kDown;
}

SortDirection RecipientSelectionForm::ListSort::Next() const {
    if (!wasSorted) {
        return direction;
    }
    return direction == SortDirection::kAscending ? SortDirection::kDescending : SortDirection::kAscending;
}

RecipientSelectionForm::RecipientSelectionForm(const CertSearchSettings& settings, SelectionStart start,
                                               const toolkit::SystemText& systemText)
    : listName(std::move(start.listName)),
      settings_(settings),
      systemText_(systemText),
      existingLists_(std::move(start.existingLists)),
      previousListName_(std::move(start.previousListName)),
      isNetworkStoreAvailable_(start.isNetworkStoreAvailable) {
    for (const std::wstring& field : OfferedSubjectFields()) {
        sortKeys_.push_back(SubjectFieldKey(field, systemText));
    }
    for (std::wstring& owner : start.chosen) {
        chosen_.push_back({std::move(owner), false});
    }
    FillChosen();
    openedChosen_ = ChosenAsShown();
    openedListName_ = listName;
}

bool RecipientSelectionForm::IsChanged(const std::wstring& shownListName) const {
    return shownListName != openedListName_ || ChosenAsShown() != openedChosen_;
}

store::TextList RecipientSelectionForm::ChosenAsShown() const {
    store::TextList owners;
    owners.reserve(chosenRows_.size());
    for (const std::size_t row : chosenRows_) {
        owners.push_back(chosen_[row].text);
    }
    return owners;
}

std::wstring RecipientSelectionForm::Title() const {
    if (!IsForSigners()) {
        return L"Add recipients";
    }
    return previousListName_.empty() ? L"Add list" : L"Edit list";
}

OwnerRow RecipientSelectionForm::FoundRow(std::size_t position) const {
    if (position >= foundRows_.size()) {
        return {};
    }
    const FoundOwner& owner = found_[foundRows_[position]];
    return {owner.text, owner.isChecked};
}

OwnerRow RecipientSelectionForm::ChosenRow(std::size_t position) const {
    if (position >= chosenRows_.size()) {
        return {};
    }
    const ChosenOwner& owner = chosen_[chosenRows_[position]];
    return {owner.text, owner.isChecked};
}

void RecipientSelectionForm::CheckFound(std::size_t position, bool isChecked) {
    if (position < foundRows_.size()) {
        found_[foundRows_[position]].isChecked = isChecked;
    }
}

void RecipientSelectionForm::CheckAllFound(bool isChecked) {
    for (const std::size_t row : foundRows_) {
        found_[row].isChecked = isChecked;
    }
}

void RecipientSelectionForm::AddFound(const store::TextList& owners) {
    std::unordered_set<std::wstring_view> known;
    // There is room for all of them at once: no owner that is known moves.
    found_.reserve(found_.size() + owners.size());
    for (const FoundOwner& owner : found_) {
        known.insert(owner.text);
    }
    for (const std::wstring& owner : owners) {
        if (known.insert(owner).second) {
            found_.push_back({owner, systemText_.UpperCase(owner), false});
        }
    }
    FillFound();
}

bool RecipientSelectionForm::SearchLocalStore(const Cryptocontext& context,
                                              reporting::ErrorReporter& reporter,
                                              toolkit::WindowHandle dialog) {
    store::TextList owners;
    if (!FindAllLocal(dialog, settings_, context, reporter, owners)) {
        return false;
    }
    AddFound(owners);
    return true;
}

bool RecipientSelectionForm::SearchNetworkStore(const std::wstring& pattern, const Cryptocontext& context,
                                                reporting::ErrorReporter& reporter,
                                                toolkit::WindowHandle dialog) {
    store::TextList owners;
    if (!FindByPattern(dialog, settings_, context, pattern, reporter, owners)) {
        return false;
    }
    if (owners.empty()) {
        reporter.ShowMessage(dialog, L"No certificates found for your request", reporting::kRefusalStyle);
        return true;
    }
    AddFound(owners);
    return true;
}

std::optional<reporting::Question> RecipientSelectionForm::DeletionQuestion() const {
    return foundRows_.empty() ? std::nullopt
                              : std::optional(reporting::Question{.text = L"Delete all list items?",
                                                                  .style = reporting::kWarningQuestionStyle});
}

void RecipientSelectionForm::DeleteAllFound() {
    found_.clear();
    lastGroupPath.clear();
    FillFound();
}

void RecipientSelectionForm::SetFilter(std::wstring_view text) {
    upperFilter_ = systemText_.UpperCase(text);
    FillFound();
}

void RecipientSelectionForm::SetSortField(std::size_t fieldIndex) {
    if (fieldIndex < sortKeys_.size()) {
        sortField_ = fieldIndex;
        SortFound(foundSort_.direction);
    }
}

void RecipientSelectionForm::ClickFoundHeader() {
    SortFound(foundSort_.Next());
}

reporting::Information RecipientSelectionForm::FoundDetails(std::size_t position) const {
    return {.text = OwnerLines(FoundRow(position).owner), .title = L"Subject"};
}

store::TextList RecipientSelectionForm::CheckedFoundOwners() const {
    store::TextList owners;
    for (const std::size_t row : foundRows_) {
        if (found_[row].isChecked) {
            owners.push_back(found_[row].text);
        }
    }
    return owners;
}

void RecipientSelectionForm::CheckChosen(std::size_t position, bool isChecked) {
    if (position < chosenRows_.size()) {
        chosen_[chosenRows_[position]].isChecked = isChecked;
    }
}

std::wstring RecipientSelectionForm::AddChecked() {
    std::unordered_set<std::wstring_view> known;
    for (const ChosenOwner& owner : chosen_) {
        known.insert(owner.text);
    }
    // Which of them are new is known before the first one is added: adding moves the texts in memory. The
    // upper list has no owner twice.
    store::TextList newOwners = CheckedFoundOwners();
    std::erase_if(newOwners, [&known](const std::wstring& owner) { return known.contains(owner); });
    for (std::wstring& owner : newOwners) {
        chosen_.push_back({std::move(owner), false});
    }
    // The rows are filled for certain once owners are taken out behind them.
    chosenRows_.reserve(chosen_.size());
    std::wstring report = ExcludeSignersOfOtherLists();
    FillChosen();
    return report.empty()
               ? report
               : L"Following signers are used in other lists and had been excluded:\r\n\r\n" + report;
}

// Deliberate: what other lists hold is taken out again here, among the chosen ones of before too, so that a
// signer belongs to one list of the rule.
std::wstring RecipientSelectionForm::ExcludeSignersOfOtherLists() {
    if (existingLists_.empty()) {
        return {};
    }
    // How often each owner is chosen: what the caller gave may hold one twice.
    std::unordered_map<std::wstring_view, std::size_t> counts;
    for (const ChosenOwner& owner : chosen_) {
        ++counts[owner.text];
    }
    std::unordered_set<std::wstring_view> excluded;
    std::wstring report;
    for (const store::SignerGroup& list : existingLists_) {
        if (list.name == previousListName_) {
            continue;
        }
        for (const std::wstring& signer : list.signers) {
            const auto chosen = counts.find(signer);
            if (chosen == counts.end() || !excluded.insert(signer).second) {
                continue;
            }
            for (std::size_t i = 0; i < chosen->second; ++i) {
                report += toolkit::FormatText(L"Signer\r\n\"%s\"\r\nis used in list\r\n\"%s\"\r\n\r\n",
                                              {signer, list.name});
            }
        }
    }
    std::erase_if(chosen_, [&excluded](const ChosenOwner& owner) { return excluded.contains(owner.text); });
    return report;
}

void RecipientSelectionForm::RemoveChecked() {
    std::vector<std::size_t> newIndices(chosen_.size());
    std::size_t kept = 0;
    for (std::size_t i = 0; i < chosen_.size(); ++i) {
        newIndices[i] = kept;
        kept += chosen_[i].isChecked ? 0U : 1U;
    }
    std::erase_if(chosenRows_, [this](std::size_t row) { return chosen_[row].isChecked; });
    for (std::size_t& row : chosenRows_) {
        row = newIndices[row];
    }
    std::erase_if(chosen_, [](const ChosenOwner& owner) { return owner.isChecked; });
}

void RecipientSelectionForm::ClickChosenHeader() {
    SortChosen(chosenSort_.Next());
}

reporting::Information RecipientSelectionForm::ChosenDetails(std::size_t position) const {
    return {.text = OwnerLines(ChosenRow(position).owner),
            .title = IsForSigners() ? L"Signer" : L"Recipient"};
}

std::optional<reporting::Refusal> RecipientSelectionForm::Confirm(const Cryptocontext& context,
                                                                  reporting::ErrorReporter& reporter,
                                                                  toolkit::WindowHandle dialog) {
    if (IsForSigners()) {
        if (auto refusal = CheckListName()) {
            return refusal;
        }
    }
    store::TextList kept;
    for (const std::size_t row : chosenRows_) {
        const std::wstring& owner = chosen_[row].text;
        store::TextList issuers;
        store::TextList serials;
        if (!FindByOwner(dialog, settings_, context, owner, reporter, issuers, serials)) {
            return reporting::Refusal{.wording = reporting::SilentRefusal()};
        }
        if (!issuers.empty()) {
            kept.push_back(owner);
            continue;
        }
        const reporting::Question question = {
            .text = toolkit::FormatText(
                L"No certificates found for user %s.\r\nContinue to check other users?", {owner}),
            .style = reporting::kWarningQuestionStyle};
        if (!reporting::IsAgreedTo(question, reporter, dialog)) {
            return reporting::Refusal{.wording = reporting::SilentRefusal(),
                                      .controlId = IDC_SELECTION_CHOSEN_LIST};
        }
    }
    // Recipients may be cleared so; a signer list without signers would verify nothing.
    if (IsForSigners() && kept.empty()) {
        // Whoever is checked among those found can be added.
        return reporting::Refuse(L"No users selected.", IDC_SELECTION_FOUND_LIST);
    }
    result_ = std::move(kept);
    return std::nullopt;
}

std::optional<reporting::Refusal> RecipientSelectionForm::CheckListName() const {
    if (listName.empty()) {
        return reporting::Refuse(L"No list name", IDC_SELECTION_LIST_NAME_EDIT);
    }
    // Each list is stored under its name as a registry key, and keys do not know upper from lower case: of
    // two lists that differ only in that, one would be lost.
    const std::wstring key = systemText_.UpperCase(listName);
    const bool isTaken =
        listName != previousListName_ && std::any_of(existingLists_.begin(), existingLists_.end(),
                                                     [this, &key](const store::SignerGroup& list) {
                                                         return list.name != previousListName_ &&
                                                                systemText_.UpperCase(list.name) == key;
                                                     });
    if (isTaken) {
        return reporting::Refuse(L"List with this name already exists", IDC_SELECTION_LIST_NAME_EDIT);
    }
    // It would be stored as a key within a key, where nobody looks for it.
    if (listName.find(L'\\') != std::wstring::npos) {
        return reporting::Refuse(L"List name cannot contain the symbol '\\'", IDC_SELECTION_LIST_NAME_EDIT);
    }
    return std::nullopt;
}

// When memory is short the rows stay whole: whoever presses OK next keeps what is shown.
void RecipientSelectionForm::FillFound() {
    foundRows_.reserve(found_.size());
    foundRows_.clear();
    for (std::size_t i = 0; i < found_.size(); ++i) {
        if (!found_[i].text.empty() && found_[i].upperText.find(upperFilter_) != std::wstring::npos) {
            foundRows_.push_back(i);
        }
    }
    foundSort_.isSorted = false;
}

void RecipientSelectionForm::FillChosen() {
    chosenRows_.reserve(chosen_.size());
    chosenRows_.clear();
    for (std::size_t i = 0; i < chosen_.size(); ++i) {
        if (!chosen_[i].text.empty()) {
            chosenRows_.push_back(i);
        }
    }
    chosenSort_.isSorted = false;
}

void RecipientSelectionForm::SortFound(SortDirection direction) {
    std::vector<std::wstring_view> owners;
    owners.reserve(found_.size());
    for (const FoundOwner& owner : found_) {
        owners.push_back(owner.text);
    }
    SortOwnerRows(foundRows_, owners, sortKeys_[sortField_], direction);
    foundSort_ = {.direction = direction, .wasSorted = true, .isSorted = true};
}

void RecipientSelectionForm::SortChosen(SortDirection direction) {
    std::vector<std::wstring_view> owners;
    owners.reserve(chosen_.size());
    for (const ChosenOwner& owner : chosen_) {
        owners.push_back(owner.text);
    }
    SortOwnerRows(chosenRows_, owners, sortKeys_[sortField_], direction);
    chosenSort_ = {.direction = direction, .wasSorted = true, .isSorted = true};
}

std::optional<CertSession> OpenCertSession(const SelectionPlace& place, CertificateUse use) {
    return OpenCertSession(place.owner, place.profile, place.csProfileIndex, use, place.waitWindow,
                           place.services);
}

std::optional<ChosenRecipients> ChooseRecipients(const SelectionPlace& place,
                                                 const store::TextList& recipients) {
    std::optional<CertSession> session = OpenCertSession(place, CertificateUse::kRecipients);
    if (!session) {
        return std::nullopt;
    }
    SelectionStart start;
    start.chosen = recipients;
    start.isNetworkStoreAvailable = session->isNetworkStoreAvailable;
    RecipientSelectionForm form(session->settings, std::move(start), place.services.reporter.Text());
    if (!place.dialog.Run(form, session->context)) {
        // Deliberate: a cancelled choice of recipients closes no cryptocontext, it only lets go of it. Users
        // of the rule editor get back to their rule without another call to the provider.
        session->context.Drop();
        return std::nullopt;
    }
    return ChosenRecipients{form.Result(), std::move(*session)};
}

}  // namespace corvane::certificates
