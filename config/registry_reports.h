#pragma once

#include <cstdint>
#include <string_view>

#include "app/reporting/error_reporter.h"
#include "toolkit/window_handle.h"

namespace corvane {

/// What was attempted with a key, in the program's words.
inline constexpr char kOpenKeyOperation[] = "Create (open) register key %s";
inline constexpr char kSearchKeyOperation[] = "Search register key %s subkeys";
inline constexpr char kDeleteKeyOperation[] = "Delete register key %s";

/// Reports that `operation`, one of the above, failed with `code` on the key `path` under
/// HKEY_CURRENT_USER. Does nothing for code 0. Returns whether the operation succeeded.
bool ReportKeyResult(ErrorReporter& reporter, toolkit::WindowHandle owner, std::uint32_t code,
                     const char* operation, std::wstring_view path);

}  // namespace corvane
