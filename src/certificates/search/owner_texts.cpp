#include "certificates/search/owner_texts.h"

#include <algorithm>
#include <string>

namespace corvane::certificates {

namespace {

struct KeyedRow {
    std::wstring_view key;
    bool lacksField = false;
    std::size_t row = 0;
    std::size_t position = 0;  ///< Before sorting.
};

}  // namespace

std::optional<std::wstring_view> OwnerSortKey(std::wstring_view owner, std::wstring_view fieldKey) {
    std::wstring start = L",";
    start += fieldKey;
    start += L'=';
    const std::wstring_view ownerStart = std::wstring_view(start).substr(1);
    if (owner.starts_with(ownerStart)) {
        return owner.substr(ownerStart.size());
    }
    const std::size_t found = owner.find(start);
    return found == std::wstring_view::npos ? std::nullopt
                                            : std::optional(owner.substr(found + start.size()));
}

void SortOwnerRows(std::vector<std::size_t>& rows, const std::vector<std::wstring_view>& owners,
                   std::wstring_view fieldKey, SortDirection direction) {
    std::vector<KeyedRow> keyed;
    keyed.reserve(rows.size());
    for (const std::size_t row : rows) {
        const std::optional<std::wstring_view> key = OwnerSortKey(owners[row], fieldKey);
        keyed.push_back({key.value_or(owners[row]), !key, row, keyed.size()});
    }
    const bool isDescending = direction == SortDirection::kDescending;
    std::sort(keyed.begin(), keyed.end(), [isDescending](const KeyedRow& left, const KeyedRow& right) {
        if (left.lacksField != right.lacksField) {
            return right.lacksField;
        }
        const int order = left.key.compare(right.key);
        if (order != 0) {
            return isDescending ? order > 0 : order < 0;
        }
        return left.position < right.position;
    });
    std::transform(keyed.begin(), keyed.end(), rows.begin(), [](const KeyedRow& row) { return row.row; });
}

std::wstring OwnerLines(std::wstring_view owner) {
    std::wstring lines;
    for (std::size_t start = 0; start < owner.size();) {
        const std::size_t comma = owner.find(L',', start);
        if (comma == std::wstring_view::npos) {
            lines += owner.substr(start);
            break;
        }
        lines += owner.substr(start, comma - start + 1);
        start = comma + 1;
        // What decides lies before the next comma or at it, so that no text is looked through twice.
        const std::size_t mark = owner.find_first_of(L",=", start);
        if (mark != std::wstring_view::npos && owner[mark] == L'=' && mark > start) {
            lines += L"\r\n";
        }
    }
    return lines;
}

store::TextList SubjectFields() {
    store::TextList fields;
    std::wstring_view rest = kSubjectFieldList;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(L'\n'), rest.size());
        fields.emplace_back(TrimBlanks(rest.substr(0, end)));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return fields;
}

store::TextList OfferedSubjectFields() {
    store::TextList fields = SubjectFields();
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

}  // namespace corvane::certificates
