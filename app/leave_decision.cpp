#include "app/leave_decision.h"

#include "app/reporting/message_styles.h"

namespace corvane {

bool MayLeave(bool isDirty, ErrorReporter& reporter, toolkit::WindowHandle owner) {
    return !isDirty ||
           reporter.ShowMessage(owner, std::wstring(L"Some changes has not been saved. Exit without saving?"),
                                kConfirmationStyle) == kAnswerYes;
}

}  // namespace corvane
