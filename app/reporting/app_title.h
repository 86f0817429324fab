#pragma once

namespace corvane {

/// Title of the message boxes, caption of the main window and name of the single-instance mutex.
inline constexpr wchar_t AppTitle[] = L"QENT AC Velmaris - configuration";

}  // namespace corvane
