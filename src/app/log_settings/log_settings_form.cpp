#include "app/log_settings/log_settings_form.h"

#include <limits>
#include <utility>

#include "reporting/message_styles.h"
#include "store/records.h"
#include "store/system_codes.h"
#include "toolkit/text/format_text.h"

namespace corvane::app {

namespace {

void ReportBadPath(std::uint32_t code, const std::wstring& path, reporting::ErrorReporter& reporter,
                   toolkit::WindowHandle dialog) {
    std::wstring detail = L"Bad Log path.";
    reporter.ReportError(dialog, 0, reporting::kShowReport, code, "Opening file %s", &detail,
                         reporter.Text().Narrow(path).c_str());
}

/// Tells whether a folder may be used as far as the file system is concerned; if not, that was reported.
bool IsFolderThere(const std::wstring& path, toolkit::FileCalls& files, reporting::ErrorReporter& reporter,
                   toolkit::WindowHandle dialog) {
    const std::uint32_t code = files.CheckExists(path);
    // Deliberate: "file exists" as the reason why a path does not exist lets it pass.
    if (code == 0 || code == store::kCodeFileExists) {
        return true;
    }
    ReportBadPath(code, path, reporter, dialog);
    return false;
}

}  // namespace

LogSettingsForm::LogSettingsForm(std::wstring logPath, std::int32_t sizeInForce)
    : editedPath(logPath), logFileSize(sizeInForce), logPath_(std::move(logPath)) {}

std::optional<std::wstring> LogSettingsForm::OnSizeTextChanged(const std::wstring& text) {
    constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
    logFileSize = toolkit::ParseDecimal(text);
    if (logFileSize < store::kSmallestLogFileSize) {
        // Deliberate: the correction comes at once, even while the user is still typing.
        logFileSize = store::kSmallestLogFileSize;
        return std::to_wstring(store::kSmallestLogFileSize);
    }
    // The largest number may stand for one that is larger still; the field must not show what is not kept.
    const std::wstring largest = std::to_wstring(kLargest);
    return logFileSize == kLargest && text != largest ? std::optional(largest) : std::nullopt;
}

void LogSettingsForm::ChooseFolder(const std::wstring& folder, toolkit::FileCalls& files,
                                   reporting::ErrorReporter& reporter, toolkit::WindowHandle dialog) {
    // Whether it is there only decides about the report; the choice is the user's.
    static_cast<void>(IsFolderThere(folder, files, reporter, dialog));
    editedPath = folder;
}

std::optional<LogSettingsField> LogSettingsForm::Confirm(toolkit::FileCalls& files,
                                                         reporting::ErrorReporter& reporter,
                                                         toolkit::MessagePresenter& messages,
                                                         toolkit::WindowHandle dialog) {
    if (!IsFolderThere(editedPath, files, reporter, dialog)) {
        return LogSettingsField::kPath;
    }
    if (logFileSize < store::kSmallestLogFileSize) {
        messages.Show(dialog, L"Log files size must be bigger than 400 KB.",
                      L"QENT automized client Velmaris", reporting::kRefusalStyle);
        return LogSettingsField::kSize;
    }
    if (!store::IsDriveOrNetworkPath(editedPath)) {
        ReportBadPath(store::kCodePathNotFound, editedPath, reporter, dialog);
        return LogSettingsField::kPath;
    }
    logPath_ = editedPath;
    return std::nullopt;
}

}  // namespace corvane::app
