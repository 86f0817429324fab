#pragma once

#include <string>

#include "config/records.h"

namespace corvane {

/// The signature formats that a resigning rule reads and writes, as rows and descriptions show them.
[[nodiscard]] std::wstring SignatureFormatsText(const Rule& rule);

/// The name of a rule's archive format; empty where it is none of the two that there are.
[[nodiscard]] std::wstring ArchiveFormatText(const Rule& rule);

}  // namespace corvane
