#include "standin/error_stack.h"

namespace corvane::standin {

ErrorEntry ErrorHere(std::string_view text, std::string_view data, std::string_view file,
                     std::uint32_t line) {
    if (const std::size_t slash = file.find_last_of("/\\"); slash != std::string_view::npos) {
        file.remove_prefix(slash + 1);
    }
    return {std::string(text), std::string(file), line, std::string(data)};
}

}  // namespace corvane::standin
