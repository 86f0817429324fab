#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvane::standin {

/// One "KEY=value" of a name, or one "KEY=sample" of a pattern, in upper case.
struct ComparableAttribute {
    std::wstring key;
    std::wstring value;
};

/// A certificate owner's name as patterns are compared with it: all in upper case, so that letter case does
/// not matter.
struct ComparableName {
    std::wstring text;  ///< The whole name text.
    std::vector<ComparableAttribute> attributes;
};

/// True when `text` is what `pattern` describes: * stands for any characters, none included; every other
/// character stands for itself. Takes at most text times pattern steps, however many stars there are.
[[nodiscard]] bool WildcardMatches(std::wstring_view text, std::wstring_view pattern);

/// An owner pattern. It matches a name when
/// - the whole name text is what the pattern describes (so a complete owner text finds its owner, and
///   "*=*" everybody), or
/// - the pattern is a list of "KEY=sample", parted by commas, and for each of them the name has an attribute
///   with that key whose whole value is what the sample describes, wherever it stands: "CN=Iva*",
///   "O=*bank*,C=GB".
class NamePattern {
  public:
    /// `pattern` in upper case.
    explicit NamePattern(std::wstring pattern);

    [[nodiscard]] bool Matches(const ComparableName& name) const;

  private:
    std::wstring pattern_;
    std::vector<ComparableAttribute> parts_;  ///< Empty when the pattern is no list of "KEY=sample".
};

}  // namespace corvane::standin
