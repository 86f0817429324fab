#pragma once

#include <string>

#include "app/reporting/error_reporter.h"
#include "certs/recipient_selection_form.h"
#include "toolkit/file_calls.h"
#include "toolkit/window_handle.h"

namespace corvane {

/// What the file dialogs of the selection dialog offer.
struct GroupFileOffer {
    std::wstring fileName;  ///< Proposed path or name; empty for none.
    std::wstring folder;    ///< Where the dialog starts when there is no proposed path; empty for none.
    std::wstring filter;    ///< Descriptions and patterns in turn, each ended by "|", one more at the end.
};

/// The offer for opening a group file.
[[nodiscard]] GroupFileOffer OfferToOpenGroup(const RecipientSelectionForm& form);

/// The offer for saving one.
[[nodiscard]] GroupFileOffer OfferToSaveGroup(const RecipientSelectionForm& form);

/// Whether there is something to save; otherwise says that nobody is checked, in a message owned by `dialog`.
[[nodiscard]] bool MaySaveGroup(const RecipientSelectionForm& form, ErrorReporter& reporter,
                                toolkit::WindowHandle dialog);

/// Remembers the path that the user chose and adds the file's owners to the upper list. False after a
/// failure, which has been reported and left the lists as they were.
bool LoadGroupFile(RecipientSelectionForm& form, const std::wstring& path, toolkit::FileCalls& files,
                   ErrorReporter& reporter, toolkit::WindowHandle dialog);

/// Remembers the path that the user chose and writes the checked owners of the upper list, as shown. False
/// after a failure, which has been reported.
bool SaveGroupFile(RecipientSelectionForm& form, const std::wstring& path, toolkit::FileCalls& files,
                   ErrorReporter& reporter, toolkit::WindowHandle dialog);

}  // namespace corvane
