#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "certificates/search/owner_texts.h"
#include "fuzz/code_pages.h"
#include "fuzz/require.h"

// The lines of an input are owners as a provider may hand them out, and lines of fields. Whatever they hold,
// an owner is cut where its attributes begin, its sort key is what stands behind the attribute, and sorting
// only changes the order.

namespace corvane::fuzz {
namespace {

using fuzz::Require;
using OwnerViews = std::vector<std::wstring_view>;

// Each is told a second time and literally, so that one can check the other.

std::wstring ExpectedLines(std::wstring_view owner) {
    std::wstring lines;
    for (std::size_t i = 0; i < owner.size(); ++i) {
        lines += owner[i];
        const std::size_t equals = owner.find(L'=', i + 1);
        const std::size_t comma = std::min(owner.find(L',', i + 1), owner.size());
        if (owner[i] == L',' && equals != std::wstring_view::npos && equals > i + 1 && equals < comma) {
            lines += L"\r\n";
        }
    }
    return lines;
}

std::optional<std::wstring> ExpectedKey(const std::wstring& owner, const std::wstring& fieldKey) {
    const std::wstring start = fieldKey + L"=";
    if (owner.compare(0, start.size(), start) == 0) {
        return owner.substr(start.size());
    }
    const std::size_t found = owner.find(L"," + start);
    if (found == std::wstring::npos) {
        return std::nullopt;
    }
    return owner.substr(found + 1 + start.size());
}

void CheckOwner(std::wstring_view owner, const std::wstring& fieldKey) {
    Require(certificates::OwnerLines(owner) == ExpectedLines(owner),
            "an owner is cut where its attributes begin");
    const std::optional<std::wstring_view> key = certificates::OwnerSortKey(owner, fieldKey);
    Require((key ? std::optional<std::wstring>(*key) : std::nullopt) ==
                ExpectedKey(std::wstring(owner), fieldKey),
            "the sort key is what stands behind the attribute");

    const std::wstring_view trimmed = certificates::TrimBlanks(owner);
    Require(!trimmed.starts_with(L' ') && !trimmed.ends_with(L' '), "no blank is left at the ends");
    Require(owner.find(trimmed) != std::wstring_view::npos, "nothing but blanks at the ends is lost");

    const std::wstring keyOfLine = certificates::SubjectFieldKey(owner, fuzz::SingleByteText());
    Require(keyOfLine.empty() ||
                (owner.ends_with(L"(" + keyOfLine + L")") && keyOfLine.find(L'(') == std::wstring::npos),
            "a line's key is what its last brackets hold");
}

void CheckOrder(const OwnerViews& owners, const std::wstring& fieldKey,
                certificates::SortDirection direction) {
    std::vector<std::size_t> rows(owners.size());
    std::iota(rows.begin(), rows.end(), std::size_t{0});
    certificates::SortOwnerRows(rows, owners, fieldKey, direction);
    for (std::size_t i = 1; i < rows.size(); ++i) {
        const auto before = certificates::OwnerSortKey(owners[rows[i - 1]], fieldKey);
        const auto after = certificates::OwnerSortKey(owners[rows[i]], fieldKey);
        const std::wstring_view left = before.value_or(owners[rows[i - 1]]);
        const std::wstring_view right = after.value_or(owners[rows[i]]);
        const bool isInOrder =
            direction == certificates::SortDirection::kAscending ? left < right : right < left;
        Require(before.has_value() >= after.has_value(), "owners without the attribute come last");
        Require(
            before.has_value() != after.has_value() || isInOrder || (left == right && rows[i - 1] < rows[i]),
            "owners are in the order of their keys, equal ones in the order they had");
    }
    std::sort(rows.begin(), rows.end());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        Require(rows[i] == i, "every owner is there once");
    }
}

}  // namespace
}  // namespace corvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t sizeBytes) {
    using namespace corvane;
    using namespace corvane::fuzz;
    if (sizeBytes == 0) {
        return 0;
    }
    static const store::TextList kFields = certificates::SubjectFields();
    const fuzz::DoubleByteText systemText;
    const std::wstring fieldKey =
        certificates::SubjectFieldKey(kFields[data[0] % kFields.size()], systemText);
    const std::wstring text =
        systemText.Widen(std::string_view(reinterpret_cast<const char*>(data + 1), sizeBytes - 1));
    OwnerViews owners;
    for (std::wstring_view rest = text; !rest.empty();) {
        const std::size_t end = std::min(rest.find(L'\n'), rest.size());
        owners.push_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    for (const std::wstring_view owner : owners) {
        CheckOwner(owner, fieldKey);
    }
    CheckOrder(owners, fieldKey, certificates::SortDirection::kAscending);
    CheckOrder(owners, fieldKey, certificates::SortDirection::kDescending);
    return 0;
}
