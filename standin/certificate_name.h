#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvane::standin {

/// One attribute of a distinguished name as a certificate holds it.
struct NameAttribute {
    std::string objectId;  ///< Dotted decimal, "2.5.4.3" for the common name.
    std::wstring value;
};

/// The key that stands before "=" in a name text ("CN", "EMAIL", ...); an attribute without a usual key
/// keeps its object id.
[[nodiscard]] std::string_view AttributeKey(std::string_view objectId);

/// Puts attributes in the order in which people read them: the common name first, then from the most specific
/// to the country. Certificates are usually encoded the other way round, from the country down; a name that
/// is encoded with its common name first is already in reading order.
[[nodiscard]] std::vector<NameAttribute> InReadingOrder(std::vector<NameAttribute> attributes);

/// A value as it stands in a name text: control characters become blanks, so that a text ends where it ends
/// and stays on one line. Commas and quotation marks stay as they are, unquoted.
[[nodiscard]] std::wstring PrintableValue(std::wstring_view value);

}  // namespace corvane::standin
