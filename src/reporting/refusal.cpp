#include "reporting/refusal.h"

namespace corvane::reporting {

void ShowRefusal(const Refusal& refusal, ErrorReporter& reporter, toolkit::WindowHandle owner) {
    if (const auto* const message = std::get_if<RefusalText>(&refusal.wording)) {
        reporter.ShowTitledMessage(owner, message->text, message->title, kRefusalStyle);
    } else if (const auto* const refused = std::get_if<RefusedPath>(&refusal.wording)) {
        std::wstring detail = refused->detail;
        reporter.ReportError(owner, 0, kShowReport, refused->code, "Opening file %s", &detail,
                             reporter.Text().Narrow(refused->path).c_str());
    }
}

bool IsAgreedTo(const Question& question, ErrorReporter& reporter, toolkit::WindowHandle owner) {
    return reporter.ShowMessage(owner, question.text, question.style) == kAnswerYes;
}

}  // namespace corvane::reporting
