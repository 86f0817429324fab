#pragma once

#include <cstdint>

namespace corvane::reporting {

/// Title of the message boxes, caption of the main window and name of the single-instance mutex.
inline constexpr wchar_t AppTitle[] = L"QENT AC Velmaris - configuration";

/// The message box styles in use, one for each purpose (values of MessageBoxW's style word).
inline constexpr std::uint32_t kRefusalStyle = 0x30;           ///< Warning icon, OK.
inline constexpr std::uint32_t kContinueStyle = 0x31;          ///< Warning icon, OK and Cancel.
inline constexpr std::uint32_t kConfirmationStyle = 0x124;     ///< Question icon, Yes and No, No preselected.
inline constexpr std::uint32_t kWarningQuestionStyle = 0x134;  ///< Warning icon, Yes and No, No preselected.
inline constexpr std::uint32_t kErrorStyle = 0x10;             ///< Error icon, OK.
inline constexpr std::uint32_t kInformationStyle = 0x40;       ///< Information icon, OK.

/// The answers of a message box.
inline constexpr int kAnswerOk = 1;
inline constexpr int kAnswerCancel = 2;
inline constexpr int kAnswerYes = 6;
inline constexpr int kAnswerNo = 7;

}  // namespace corvane::reporting
