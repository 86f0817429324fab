#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "reporting/error_reporter.h"
#include "toolkit/files/file_calls.h"
#include "toolkit/system/message_presenter.h"
#include "toolkit/system/window_handle.h"

namespace corvane::app {

/// The texts of the log settings dialog.
inline constexpr wchar_t kLogSettingsTitle[] = L"Log path";
inline constexpr wchar_t kLogFolderButtonText[] = L"Log path";
inline constexpr wchar_t kLogSettingsExitText[] = L"Exit";
inline constexpr wchar_t kLogSizeLabelText[] = L"Log files size (KB.):";

/// The fields that OK may refuse.
enum class LogSettingsField { kPath, kSize };

/// What the log settings dialog edits and decides: the folder of the client's log and the largest size of
/// its files. The dialog copies the two edited members from and to its controls and asks the form what to
/// do; the caller takes the results after OK.
class LogSettingsForm {
  public:
    /// Starts with the settings that are in force.
    LogSettingsForm(std::wstring logPath, std::int32_t sizeInForce);

    /// The user changed the text of the size field. Takes the size from it and returns the text that has to
    /// be put into the field at once instead, or none where it may stand. A size below the smallest one
    /// cannot stand even while it is being typed; a number that does not fit becomes the largest that does.
    [[nodiscard]] std::optional<std::wstring> OnSizeTextChanged(const std::wstring& text);

    /// The user chose a folder. One that does not exist is reported, and taken all the same.
    void ChooseFolder(const std::wstring& folder, toolkit::FileCalls& files,
                      reporting::ErrorReporter& reporter, toolkit::WindowHandle dialog);

    /// The user pressed OK. Returns the field to mend, or none where the dialog may end; a refusal has been
    /// shown, owned by `dialog`, and left everything as it was.
    [[nodiscard]] std::optional<LogSettingsField> Confirm(toolkit::FileCalls& files,
                                                          reporting::ErrorReporter& reporter,
                                                          toolkit::MessagePresenter& messages,
                                                          toolkit::WindowHandle dialog);

    /// The log path: the one handed in until OK has been confirmed, then the edited one.
    [[nodiscard]] const std::wstring& LogPath() const { return logPath_; }

    /// The fields hold the same.
    [[nodiscard]] bool HasSameInput(const LogSettingsForm& other) const {
        return editedPath == other.editedPath && logFileSize == other.logFileSize;
    }

    std::wstring editedPath;   ///< The text of the path field.
    std::int32_t logFileSize;  ///< The number of the size field, in KB; the resulting size after OK.

  private:
    std::wstring logPath_;
};

}  // namespace corvane::app
