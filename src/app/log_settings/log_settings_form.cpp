#include "app/log_settings/log_settings_form.h"

#include <limits>
#include <utility>

#include "res/ids.h"
#include "store/records.h"
#include "store/system_codes.h"
#include "toolkit/text/format_text.h"

namespace corvane::app {

namespace {

reporting::Refusal BadPath(const std::wstring& path, std::uint32_t code, int controlId) {
    return {.wording = reporting::RefusedPath{.path = path, .code = code, .detail = L"Bad Log path."},
            .controlId = controlId};
}

/// The system's code for a folder that may not be used as far as the file system is concerned, else 0.
std::uint32_t CheckFolder(const std::wstring& path, toolkit::FileCalls& files) {
    const std::uint32_t code = files.CheckExists(path);
    // Deliberate: "file exists" as the reason why a path does not exist lets it pass.
    return code == store::kCodeFileExists ? 0 : code;
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

std::optional<reporting::Refusal> LogSettingsForm::ChooseFolder(const std::wstring& folder,
                                                                toolkit::FileCalls& files) {
    editedPath = folder;
    const std::uint32_t code = CheckFolder(folder, files);
    return code == 0 ? std::nullopt : std::optional(BadPath(folder, code, 0));
}

std::optional<reporting::Refusal> LogSettingsForm::Check(toolkit::FileCalls& files) const {
    const std::uint32_t code = CheckFolder(editedPath, files);
    if (code != 0) {
        return BadPath(editedPath, code, IDC_LOG_FOLDER_EDIT);
    }
    if (logFileSize < store::kSmallestLogFileSize) {
        return reporting::Refusal{
            .wording = reporting::RefusalText{.text = L"Log files size must be bigger than 400 KB.",
                                              .title = L"QENT automized client Velmaris"},
            .controlId = IDC_LOG_SIZE_EDIT};
    }
    if (!store::IsDriveOrNetworkPath(editedPath)) {
        return BadPath(editedPath, store::kCodePathNotFound, IDC_LOG_FOLDER_EDIT);
    }
    return std::nullopt;
}

}  // namespace corvane::app
