#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/reporting/error_reporter.h"
#include "config/records.h"
#include "toolkit/file_calls.h"
#include "toolkit/window_handle.h"

namespace corvane {

// Rules files on the disk. Every failure is reported to the user where it happens, under `owner` (which may
// be null), with flags 1 and the path as the argument; no window is touched otherwise.

/// Writes the rules to the file `path`, replacing an existing one: every byte that the conversion to the
/// system's code page gives, also where a character takes several. True when the file is complete; false
/// after a reported failure ("Creating file %s", "Writing file %s", "Closing file %s"). Without rules there
/// is nothing to write: no file is touched and the result is true.
[[nodiscard]] bool WriteRulesFile(const std::wstring& path, const std::vector<Rule>& rules,
                                  toolkit::FileCalls& files, ErrorReporter& reporter,
                                  toolkit::WindowHandle owner);

/// Reads the file `path`. The bytes go to SplitRecords and ParseRecords. None after a reported failure
/// ("Opening file %s", "Getting size of file %s", "Reading file %s", "Closing file %s").
[[nodiscard]] std::optional<std::string> ReadRulesFile(const std::wstring& path, toolkit::FileCalls& files,
                                                       ErrorReporter& reporter, toolkit::WindowHandle owner);

}  // namespace corvane
