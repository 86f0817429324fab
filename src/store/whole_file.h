#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "reporting/error_reporter.h"
#include "toolkit/files/file_calls.h"
#include "toolkit/system/window_handle.h"

namespace corvane::store {

/// Reads and writes files as wholes, for the commands that exchange small text files with the user. A
/// failure is reported once, where it happens, with the path in the system's code page; the caller only
/// learns that there was one. The file is closed in every case, exactly once, and before the report is shown:
/// a message box may stand for hours, and nobody should find the file locked meanwhile.
///
/// It holds references only; what it refers to must outlive it.
class WholeFile {
  public:
    /// `owner` is the window of the reports; it may be null.
    WholeFile(std::wstring path, toolkit::FileCalls& files, reporting::ErrorReporter& reporter,
              toolkit::WindowHandle owner);

    /// Gives the file's bytes, or none after a reported failure ("Opening file %s", "Getting size of file
    /// %s", "Reading file %s", "Closing file %s"). A file that shrinks meanwhile gives what is left of it, of
    /// one that grows the first part is taken. A file that does not fit into memory counts as a failed read
    /// (code 8, not enough memory).
    [[nodiscard]] std::optional<std::string> Read();

    /// Creates the file, replacing an existing one, and writes all of `bytes`, in as many calls as the system
    /// wants. False after a reported failure ("Creating file %s", "Writing file %s", "Closing file %s"); the
    /// file then holds what had been written. A write that succeeds without taking a single byte counts as
    /// failed (code 29, write fault).
    [[nodiscard]] bool Write(std::string_view bytes);

  private:
    // What could not be done, and the system's code why; code 0 is success.
    struct Outcome {
        const char* operationFormat;
        std::uint32_t code;
    };

    [[nodiscard]] Outcome TryRead(std::string& bytes);
    [[nodiscard]] Outcome TryWrite(std::string_view bytes);
    void ReportFailure(const Outcome& outcome);

    std::wstring path_;
    toolkit::FileCalls& files_;
    reporting::ErrorReporter& reporter_;
    toolkit::WindowHandle owner_;
};

}  // namespace corvane::store
