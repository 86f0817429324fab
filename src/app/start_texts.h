#pragma once

#include <string>

namespace corvane::app {

/// Told to a user who starts the editor while it runs already (refusal).
[[nodiscard]] std::wstring AlreadyStartedText();

/// The operation named in the report of a single-instance mutex that cannot be created.
inline constexpr char kCreateMutexOperation[] = "Create programm process mutex";

}  // namespace corvane::app
