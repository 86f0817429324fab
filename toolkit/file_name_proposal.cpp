#include "toolkit/file_name_proposal.h"

#include <algorithm>
#include <string_view>

namespace toolkit {

std::wstring ProposedFileName(std::wstring name) {
    std::replace_if(
        name.begin(), name.end(),
        [](wchar_t character) {
            return character < L' ' ||
                   std::wstring_view(L"\"*/:<>?\\|").find(character) != std::wstring_view::npos;
        },
        L'_');
    return name;
}

}  // namespace toolkit
