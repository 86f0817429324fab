#include "standin/usage_byte.h"

namespace corvane::standin {

std::uint8_t UsageByte(std::optional<std::uint8_t> keyUsageExtension) {
    constexpr unsigned kAllUses = 0xFF;
    constexpr unsigned kHighestBit = 0x80;
    if (!keyUsageExtension) {
        return kAllUses;
    }
    unsigned usage = 0;
    for (unsigned bit = 0; bit < 8; ++bit) {
        if ((*keyUsageExtension & (kHighestBit >> bit)) != 0) {
            usage |= 1U << bit;
        }
    }
    return static_cast<std::uint8_t>(usage);
}

}  // namespace corvane::standin
