#pragma once

#include <cstddef>
#include <functional>
#include <optional>

#include "certs/cert_services.h"
#include "certs/cert_session.h"
#include "certs/recipient_selection_form.h"
#include "certs/signer_lists_form.h"
#include "certs/wait_window.h"
#include "config/records.h"
#include "toolkit/window_handle.h"

// What the certificate buttons do: each opens a cryptocontext for the time of one selection dialog. Where
// none can be opened, the dialog is not shown and nothing changes.

namespace corvane {

/// Shows the selection dialog on a form, with the cryptocontext for its searches. Returns whether the user
/// confirmed.
using SelectionRun = std::function<bool(RecipientSelectionForm& form, const Cryptocontext& context)>;

/// What a selection works with. `owner` is the window that asks for it.
struct SelectionPlace {
    toolkit::WindowHandle owner = nullptr;
    const Profile& profile;
    std::size_t csProfileIndex = 0;
    WaitWindow& waitWindow;
    const CertServices& services;
};

/// Lets the user choose the recipients of a rule, beginning with `recipients`. None when the user cancels or
/// no cryptocontext can be opened.
[[nodiscard]] std::optional<TextList> ChooseRecipients(const SelectionPlace& place,
                                                       const TextList& recipients, const SelectionRun& run);

/// Lets the user make a new signer list. Returns whether the lists changed.
bool AddSignerList(SignerListsForm& lists, const SelectionPlace& place, const SelectionRun& run);

/// Lets the user change the signer list at `position`. Returns whether the lists changed.
bool EditSignerList(SignerListsForm& lists, std::size_t position, const SelectionPlace& place,
                    const SelectionRun& run);

}  // namespace corvane
