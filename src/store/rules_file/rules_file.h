#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "reporting/error_reporter.h"
#include "store/records.h"
#include "toolkit/files/file_calls.h"
#include "toolkit/system/window_handle.h"
#include "toolkit/text/system_text.h"

namespace corvane::store {

// The text of a rules file, for the commands that carry a profile's rules from one machine to another.
//
// A file is a sequence of records, one for each rule: 25 fields joined by LF, then LF CR. Nothing in a
// value is escaped, so a value that holds LF or a list separator comes back as something else; files must
// stay readable by every version of the editor that is out there. All work is linear in the size of the text.

/// What the names of rules files end in, without the point.
inline constexpr wchar_t kRulesFileExtension[] = L"prx";

/// The text of a rules file with these rules in their order, those without an operation included; empty
/// without rules. It still has to be converted to the system's code page.
[[nodiscard]] std::wstring FormatRulesFile(const std::vector<Rule>& rules);

/// The records of a rules file that an import looks at, without their LF CR: those that are not empty and
/// have an LF. `bytes` is the file's content; it ends at the first zero byte, and what follows the last LF CR
/// belongs to no record. An import that finds no record here does nothing at all.
[[nodiscard]] TextList SplitRecords(std::string_view bytes, const toolkit::SystemText& systemText);

/// The rules of the records. A record of fewer than 12 fields gives none; what a shorter record lacks stays
/// as in a new rule, and fields after the 25th are passed over.
[[nodiscard]] std::vector<Rule> ParseRecords(const TextList& records);

/// Both steps at once: the rules that a file's content gives.
[[nodiscard]] std::vector<Rule> ParseRulesFile(std::string_view bytes, const toolkit::SystemText& systemText);

// Rules files on the disk. Every failure is reported to the user where it happens, under `owner` (which may
// be null), with flags 1 and the path as the argument; no window is touched otherwise.

/// Writes the rules to the file `path`, replacing an existing one: every byte that the conversion to the
/// system's code page gives, also where a character takes several. True when the file is complete; false
/// after a reported failure ("Creating file %s", "Writing file %s", "Closing file %s"). Without rules there
/// is nothing to write: no file is touched and the result is true.
[[nodiscard]] bool WriteRulesFile(const std::wstring& path, const std::vector<Rule>& rules,
                                  toolkit::FileCalls& files, reporting::ErrorReporter& reporter,
                                  toolkit::WindowHandle owner);

/// Reads the file `path`. The bytes go to SplitRecords and ParseRecords. None after a reported failure
/// ("Opening file %s", "Getting size of file %s", "Reading file %s", "Closing file %s").
[[nodiscard]] std::optional<std::string> ReadRulesFile(const std::wstring& path, toolkit::FileCalls& files,
                                                       reporting::ErrorReporter& reporter,
                                                       toolkit::WindowHandle owner);

}  // namespace corvane::store
