#include "standin/handed_out_texts.h"

#include <algorithm>
#include <utility>

namespace corvane::standin {

char* HandedOutTexts::Copy(std::string_view text) {
    auto copy = std::make_unique<char[]>(text.size() + 1);
    std::copy(text.begin(), text.end(), copy.get());
    char* address = copy.get();
    texts_.emplace(address, std::move(copy));
    return address;
}

bool HandedOutTexts::Release(void* text) {
    return texts_.erase(text) == 1;
}

}  // namespace corvane::standin
