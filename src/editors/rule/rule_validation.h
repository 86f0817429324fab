#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "editors/rule/rule_form.h"
#include "reporting/error_reporter.h"
#include "toolkit/files/file_calls.h"
#include "toolkit/system/window_handle.h"

namespace corvane::editors {

/// How a refusal reaches the user.
enum class RefusalKind {
    kMessage,     ///< A message box of warning style.
    kErrorBox,    ///< The error box with a picture.
    kFileReport,  ///< The report of a failure to open a folder.
    kSilent,      ///< Not at all.
};

/// Where a refused rule can be mended.
enum class RuleField {
    kOperation,
    kInputFolder,
    kOutputFolder,
    kErrorFolder,
    kMasks,
    kCertificates,  ///< Chosen in a dialog of their own.
    kCertPath,      ///< The second output folder or the executable.
};

/// Why OK leaves the editor open, and where to mend it.
struct RuleRefusal {
    RefusalKind kind = RefusalKind::kMessage;
    std::wstring text;                        ///< The message; of a report its detail.
    RuleIcon icon = RuleIcon::kCertificates;  ///< Of an error box.
    std::wstring folder;                      ///< Of a report.
    std::uint32_t code = 0;                   ///< Of a report, the system's code.
    RuleField field = RuleField::kOperation;

    bool operator==(const RuleRefusal&) const = default;
};

/// Checks the form the way OK does and returns the first fault, or none where the rule may be taken.
[[nodiscard]] std::optional<RuleRefusal> CheckRule(const RuleForm& form, toolkit::FileCalls& files);

/// Shows an error box with a text and a picture, modal to the editor.
using ShowErrorBox = std::function<void(const std::wstring& text, RuleIcon icon)>;

/// Shows a refusal, owned by `dialog`.
void ShowRefusal(const RuleRefusal& refusal, reporting::ErrorReporter& reporter, toolkit::WindowHandle dialog,
                 const ShowErrorBox& showErrorBox);

}  // namespace corvane::editors
