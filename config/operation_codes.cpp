#include "config/operation_codes.h"

namespace corvane {

TextList SplitEntries(std::wstring_view entries) {
    TextList list;
    while (!entries.empty()) {
        const std::size_t end = entries.find(L'\n');
        list.emplace_back(entries.substr(0, end));
        entries.remove_prefix(end == std::wstring_view::npos ? entries.size() : end + 1);
    }
    return list;
}

std::wstring_view OperationDisplayName(std::wstring_view code) {
    constexpr std::size_t kCodeLength = 4;
    if (code.size() != kCodeLength) {
        return code;
    }
    std::wstring_view codes = OperationCode;
    std::wstring_view names = kOperationNames;
    while (!codes.empty()) {
        const std::size_t nameEnd = names.find(L'\n');
        if (codes.substr(0, kCodeLength) == code) {
            return names.substr(0, nameEnd);
        }
        codes.remove_prefix(kCodeLength + 1);
        names.remove_prefix(nameEnd + 1);
    }
    return code;
}

bool IsArchiveOperation(std::wstring_view code) {
    return code == L"ARCH" || code == L"UNAR";
}

}  // namespace corvane
