#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <variant>

#include "reporting/error_reporter.h"
#include "reporting/message_styles.h"
#include "toolkit/system/window_handle.h"

namespace corvane::reporting {

/// A refusal that is told in a message box of kRefusalStyle.
struct RefusalText {
    std::wstring text;
    std::wstring title = AppTitle;

    bool operator==(const RefusalText&) const = default;
};

/// A refusal that is told in the error box, beside the picture of what is missing.
struct RefusalPicture {
    std::wstring text;
    int iconId = 0;  ///< An icon resource of this program.

    bool operator==(const RefusalPicture&) const = default;
};

/// A path that cannot be used: the report of a failure to open it, which ends with `detail`.
struct RefusedPath {
    std::wstring path;
    std::uint32_t code = 0;  ///< The system's.
    std::wstring detail;

    bool operator==(const RefusedPath&) const = default;
};

/// A refusal without a word: what can be said has been said, or nobody could make anything of it.
struct SilentRefusal {
    bool operator==(const SilentRefusal&) const = default;
};

/// Why a dialog does not do what it was asked for, as a plain value: what the user is told, and where it can
/// be mended. Forms give it back; ProductDialog shows it.
struct Refusal {
    std::variant<RefusalText, RefusalPicture, RefusedPath, SilentRefusal> wording;
    int controlId = 0;  ///< Of the control to mend, 0 for none.

    bool operator==(const Refusal&) const = default;
};

/// The refusal with this text under the program's title.
[[nodiscard]] inline Refusal Refuse(std::wstring text, int controlId = 0) {
    return {.wording = RefusalText{.text = std::move(text)}, .controlId = controlId};
}

/// A question to be answered with Yes or No before something is done.
struct Question {
    std::wstring text;
    std::uint32_t style = kConfirmationStyle;

    bool operator==(const Question&) const = default;
};

/// A text to be read, in an information box.
struct Information {
    std::wstring text;
    std::wstring title = AppTitle;

    bool operator==(const Information&) const = default;
};

/// Shows what a refusal says, owned by `owner`. The error box is a dialog; a refusal that wants it shows
/// nothing here.
void ShowRefusal(const Refusal& refusal, ErrorReporter& reporter, toolkit::WindowHandle owner);

/// Asks, owned by `owner`. Returns whether the user answered with Yes.
[[nodiscard]] bool IsAgreedTo(const Question& question, ErrorReporter& reporter, toolkit::WindowHandle owner);

}  // namespace corvane::reporting
