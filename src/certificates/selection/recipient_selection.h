#pragma once

#include <cstddef>
#include <functional>
#include <optional>

#include "certificates/selection/selection_form.h"
#include "certificates/session/cert_services.h"
#include "certificates/session/cert_session.h"
#include "certificates/session/wait_window.h"
#include "certificates/signer_lists/signer_lists_form.h"
#include "store/records.h"
#include "toolkit/system/window_handle.h"

// What the certificate buttons do: each opens a cryptocontext for the time of one selection dialog. Where
// none can be opened, the dialog is not shown and nothing changes. A confirmed choice comes back with its
// cryptocontext still open, so that it can be kept and shown before the closing, which may fail, is told of.

namespace corvane::certificates {

/// Shows the selection dialog on a form, with the cryptocontext for its searches. Returns whether the user
/// confirmed.
using SelectionRun = std::function<bool(RecipientSelectionForm& form, const Cryptocontext& context)>;

/// What a selection works with. `owner` is the window that asks for it.
struct SelectionPlace {
    toolkit::WindowHandle owner = nullptr;
    const store::Profile& profile;
    std::size_t csProfileIndex = 0;
    WaitWindow& waitWindow;
    const CertServices& services;
};

/// The recipients that the user confirmed, and the cryptocontext, which is closed with this object.
struct ChosenRecipients {
    store::TextList owners;
    CertSession session;
};

/// Lets the user choose the recipients of a rule, beginning with `recipients`. None when the user cancels or
/// no cryptocontext can be opened.
[[nodiscard]] std::optional<ChosenRecipients> ChooseRecipients(const SelectionPlace& place,
                                                               const store::TextList& recipients,
                                                               const SelectionRun& run);

/// Lets the user make a new signer list. Returns the cryptocontext when the lists changed, else none.
[[nodiscard]] std::optional<CertSession> AddSignerList(SignerListsForm& lists, const SelectionPlace& place,
                                                       const SelectionRun& run);

/// Lets the user change the signer list at `position`. Returns the cryptocontext when the lists changed, else
/// none.
[[nodiscard]] std::optional<CertSession> EditSignerList(SignerListsForm& lists, std::size_t position,
                                                        const SelectionPlace& place, const SelectionRun& run);

}  // namespace corvane::certificates
