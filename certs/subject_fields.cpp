#include "certs/subject_fields.h"

#include <algorithm>

namespace corvane {

TextList SubjectFields() {
    TextList fields;
    std::wstring_view rest = kSubjectFieldList;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(L'\n'), rest.size());
        fields.emplace_back(TrimBlanks(rest.substr(0, end)));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return fields;
}

TextList OfferedSubjectFields() {
    TextList fields = SubjectFields();
    std::erase_if(fields, [](const std::wstring& field) { return field.starts_with(L'('); });
    return fields;
}

std::wstring SubjectFieldKey(std::wstring_view line, const toolkit::SystemText& systemText) {
    const std::size_t start = line.rfind(L'(');
    if (!line.ends_with(L')') || start == std::wstring_view::npos) {
        return {};
    }
    return systemText.UpperCase(line.substr(start + 1, line.size() - start - 2));
}

std::wstring_view TrimBlanks(std::wstring_view text) {
    const std::size_t first = text.find_first_not_of(L' ');
    if (first == std::wstring_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(L' ') - first + 1);
}

}  // namespace corvane
