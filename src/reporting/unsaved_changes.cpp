#include "reporting/unsaved_changes.h"

#include "reporting/message_styles.h"

namespace corvane::reporting {

bool MayLeave(bool isDirty, ErrorReporter& reporter, toolkit::WindowHandle owner) {
    return !isDirty ||
           reporter.ShowMessage(owner, std::wstring(L"Some changes has not been saved. Exit without saving?"),
                                kConfirmationStyle) == kAnswerYes;
}

}  // namespace corvane::reporting
