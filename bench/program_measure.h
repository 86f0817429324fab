#pragma once

#include <cstddef>
#include <string>

/// What one run of a program with a window showed.
struct ProgramRun {
    double millisecondsToWindow = 0;  ///< From the start of the process until its window can be seen.
    std::size_t peakWorkingSet = 0;   ///< Bytes, once the window has been drawn.
};

/// Starts the program, waits for its first visible window, and ends it again.
[[nodiscard]] ProgramRun MeasureProgram(const std::wstring& path);

/// The bytes of an executable file without its icons and pictures.
[[nodiscard]] std::size_t SizeWithoutPictures(const std::wstring& path);

/// Runs a command line to its end and returns the milliseconds that it took.
[[nodiscard]] double MeasureCommand(const std::wstring& commandLine);
