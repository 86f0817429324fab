#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::test {

/// A record written by hand, field by field: the fields joined by LF, then LF CR.
inline std::string RecordText(const std::vector<std::string>& fields) {
    std::string text;
    for (std::size_t index = 0; index < fields.size(); ++index) {
        text += index == 0 ? "" : "\n";
        text += fields[index];
    }
    return text + "\n\r";
}

/// The fields of a record in which nothing is set, as an export writes it.
inline std::vector<std::string> EmptyFields() {
    return {"",  "",  "", "", "0", "0", "0", "",  "0", "0", "", "", "",
            "0", "0", "", "", "",  "",  "0", "0", "0", "",  "", "0"};
}

/// The same with one field set.
inline std::vector<std::string> FieldsWith(std::size_t index, const std::string& text) {
    std::vector<std::string> fields = EmptyFields();
    fields.at(index) = text;
    return fields;
}

/// ASCII text as it stands in memory.
inline std::wstring Wide(std::string_view text) {
    return {text.begin(), text.end()};
}

}  // namespace corvane::test
