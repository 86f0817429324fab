#pragma once

#include <string>

namespace corvane::test {

// Paths are written out here, as other programs know them.
inline const std::wstring kCatalogue = L"SOFTWARE\\HOLVAN\\tarn\\Profiles";
inline const std::wstring kProgram = L"SOFTWARE\\HOLVAN\\tarntray";
inline const std::wstring kProfile = L"SOFTWARE\\HOLVAN\\tarntray\\Office";
inline const std::wstring kRules = L"SOFTWARE\\HOLVAN\\tarntray\\Office\\rules";

}  // namespace corvane::test
