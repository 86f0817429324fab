#pragma once

#include <string>

namespace toolkit {

/// Makes a name that a file dialog may propose out of any text: each character that no file name can hold
/// (control characters and "*/:<>?\|) becomes an underscore. A dialog that is handed one of these fails at
/// once, without a word to the user, and a profile's name may well have a colon in it.
[[nodiscard]] std::wstring ProposedFileName(std::wstring name);

}  // namespace toolkit
