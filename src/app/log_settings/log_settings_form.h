#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "reporting/refusal.h"
#include "toolkit/files/file_calls.h"

namespace corvane::app {

/// The texts of the log settings dialog.
inline constexpr wchar_t kLogSettingsTitle[] = L"Log path";
inline constexpr wchar_t kLogFolderButtonText[] = L"Log path";
inline constexpr wchar_t kLogSettingsExitText[] = L"Exit";
inline constexpr wchar_t kLogSizeLabelText[] = L"Log files size (KB.):";

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

    /// The user chose a folder, which becomes the edited one. What is to be reported of one that does not
    /// exist, which is taken all the same; else none.
    [[nodiscard]] std::optional<reporting::Refusal> ChooseFolder(const std::wstring& folder,
                                                                 toolkit::FileCalls& files);

    /// What OK refuses; none where the edited settings may be taken.
    [[nodiscard]] std::optional<reporting::Refusal> Check(toolkit::FileCalls& files) const;

    /// Takes the edited path as the log path.
    void Commit() { logPath_ = editedPath; }

    /// The log path: the one handed in until the edited one is taken.
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
