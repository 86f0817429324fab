#pragma once

#include <string>
#include <string_view>

#include "config/records.h"
#include "toolkit/system_text.h"

// A user group file: one owner per line, each line ended by CR LF, in the system's ANSI code page.

namespace corvane {

inline constexpr wchar_t kGroupFileExtension[] = L"grx";

/// The owners of a file, in file order. A line counts only when it is ended by CR LF, is not empty and holds
/// "="; a lone CR or LF belongs to its line, and a zero byte ends the file.
[[nodiscard]] TextList ParseGroupFile(std::string_view bytes, const toolkit::SystemText& systemText);

/// The bytes of a file with these owners. Characters that the code page lacks are lost.
[[nodiscard]] std::string FormatGroupFile(const TextList& owners, const toolkit::SystemText& systemText);

}  // namespace corvane
