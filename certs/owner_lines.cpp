#include "certs/owner_lines.h"

namespace corvane {

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

}  // namespace corvane
