#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <unordered_map>

namespace corvane::standin {

/// The texts that callers hold. Each is known by its address, so that a text that is released twice, or one
/// that was never handed out, is refused instead of damaging memory.
class HandedOutTexts {
  public:
    /// A copy of `text`, ended by NUL, that stays until Release.
    [[nodiscard]] char* Copy(std::string_view text);

    /// Releases one text. False when it is none of ours, which changes nothing.
    [[nodiscard]] bool Release(void* text);

    [[nodiscard]] std::size_t Count() const { return texts_.size(); }

  private:
    std::unordered_map<void*, std::unique_ptr<char[]>> texts_;
};

}  // namespace corvane::standin
