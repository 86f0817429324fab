#pragma once

#include <string>

namespace toolkit {

/// The form of a path in which every Windows takes it, however long. A path that is absolute and has as many
/// characters as the system takes at most by itself, closing NUL included (MAX_PATH, 260), or more, gets the
/// prefix \\?\, or \\?\UNC\ where it leads to another machine. Behind the prefix the system takes every
/// character as it is, so what it would otherwise do is done here: '/' becomes '\', repeated separators one,
/// and the steps "." and ".." are taken. All other paths, and those with a prefix, come back as they are.
[[nodiscard]] std::wstring LongPathForm(const std::wstring& path);

}  // namespace toolkit
