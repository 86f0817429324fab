#include "certs/selection_dialog_run.h"

#include "certs/pre_encrypt_dialog.h"

namespace corvane {

SelectionRun ShowSelectionDialog(toolkit::WindowHandle owner, ErrorReporter& reporter,
                                 toolkit::FileCalls& files) {
    return [owner, &reporter, &files](RecipientSelectionForm& form, const Cryptocontext& context) {
        return CPreEncryptDlg(owner, form, context, reporter, files).RunModal() == IDOK;
    };
}

}  // namespace corvane
