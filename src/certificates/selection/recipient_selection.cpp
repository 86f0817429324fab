#include "certificates/selection/recipient_selection.h"

#include <utility>

namespace corvane::certificates {

namespace {

std::optional<CertSession> Open(const SelectionPlace& place, CertificateUse use) {
    return OpenCertSession(place.owner, place.profile, place.csProfileIndex, use, place.waitWindow,
                           place.services);
}

}  // namespace

std::optional<ChosenRecipients> ChooseRecipients(const SelectionPlace& place,
                                                 const store::TextList& recipients, const SelectionRun& run) {
    std::optional<CertSession> session = Open(place, CertificateUse::kRecipients);
    if (!session) {
        return std::nullopt;
    }
    SelectionStart start;
    start.chosen = recipients;
    start.isNetworkStoreAvailable = session->isNetworkStoreAvailable;
    RecipientSelectionForm form(session->settings, std::move(start), place.services.reporter.Text());
    if (!run(form, session->context)) {
        // Deliberate: a cancelled choice of recipients closes no cryptocontext, it only lets go of it. Users
        // of the rule editor get back to their rule without another call to the provider.
        session->context.Drop();
        return std::nullopt;
    }
    return ChosenRecipients{form.Result(), std::move(*session)};
}

std::optional<CertSession> AddSignerList(SignerListsForm& lists, const SelectionPlace& place,
                                         const SelectionRun& run) {
    std::optional<CertSession> session = Open(place, CertificateUse::kSigners);
    if (!session) {
        return std::nullopt;
    }
    RecipientSelectionForm form(session->settings, lists.StartOfNewList(session->isNetworkStoreAvailable),
                                place.services.reporter.Text());
    if (!run(form, session->context)) {
        return std::nullopt;
    }
    lists.Add(form);
    return session;
}

std::optional<CertSession> EditSignerList(SignerListsForm& lists, std::size_t position,
                                          const SelectionPlace& place, const SelectionRun& run) {
    if (position >= lists.Lists().size()) {
        return std::nullopt;
    }
    std::optional<CertSession> session = Open(place, CertificateUse::kSigners);
    if (!session) {
        return std::nullopt;
    }
    RecipientSelectionForm form(session->settings,
                                lists.StartOfEditing(position, session->isNetworkStoreAvailable),
                                place.services.reporter.Text());
    if (!run(form, session->context)) {
        return std::nullopt;
    }
    lists.Replace(position, form);
    return session;
}

}  // namespace corvane::certificates
