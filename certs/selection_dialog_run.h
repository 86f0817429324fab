#pragma once

#include "app/reporting/error_reporter.h"
#include "certs/recipient_selection.h"
#include "toolkit/file_calls.h"
#include "toolkit/window_handle.h"

namespace corvane {

/// The run that shows CPreEncryptDlg, owned by `owner`, on the form that it is given. `reporter` and `files`
/// must outlive it.
[[nodiscard]] SelectionRun ShowSelectionDialog(toolkit::WindowHandle owner, ErrorReporter& reporter,
                                               toolkit::FileCalls& files);

}  // namespace corvane
