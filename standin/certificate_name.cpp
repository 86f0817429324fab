#include "standin/certificate_name.h"

#include <algorithm>
#include <array>
#include <utility>

namespace corvane::standin {
namespace {

constexpr std::string_view kCommonName = "2.5.4.3";

constexpr std::array<std::pair<std::string_view, std::string_view>, 17> kKeys = {{
    {kCommonName, "CN"},
    {"2.5.4.4", "SN"},
    {"2.5.4.5", "SERIALNUMBER"},
    {"2.5.4.6", "C"},
    {"2.5.4.7", "L"},
    {"2.5.4.8", "ST"},
    {"2.5.4.9", "STREET"},
    {"2.5.4.10", "O"},
    {"2.5.4.11", "OU"},
    {"2.5.4.12", "T"},
    {"2.5.4.42", "G"},
    {"2.5.4.43", "I"},
    {"0.9.2342.19200300.100.1.1", "UID"},
    {"0.9.2342.19200300.100.1.25", "DC"},
    {"1.2.840.113549.1.9.1", "EMAIL"},
    {"1.2.840.113549.1.9.2", "UNSTRUCTUREDNAME"},
    {"1.2.840.113549.1.9.8", "UNSTRUCTUREDADDRESS"},
}};

}  // namespace

std::string_view AttributeKey(std::string_view objectId) {
    for (const auto& [id, key] : kKeys) {
        if (id == objectId) {
            return key;
        }
    }
    return objectId;
}

std::vector<NameAttribute> InReadingOrder(std::vector<NameAttribute> attributes) {
    const auto isCommonName = [](const NameAttribute& attribute) {
        return attribute.objectId == kCommonName;
    };
    if (!attributes.empty() && !isCommonName(attributes.front())) {
        std::reverse(attributes.begin(), attributes.end());
        std::stable_partition(attributes.begin(), attributes.end(), isCommonName);
    }
    return attributes;
}

std::wstring PrintableValue(std::wstring_view value) {
    std::wstring printable(value);
    std::replace_if(
        printable.begin(), printable.end(), [](wchar_t unit) { return unit < L' ' || unit == L'\x7F'; },
        L' ');
    return printable;
}

}  // namespace corvane::standin
