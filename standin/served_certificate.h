#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "standin/name_pattern.h"
#include "standin/standin_system.h"

namespace corvane::standin {

/// A certificate as searches serve it.
struct ServedCertificate {
    std::string owner;    ///< "CN=...,O=...,C=..", ANSI code page.
    std::string issuer;   ///< The same form.
    ComparableName name;  ///< The owner, for patterns.
    std::uint8_t usage = 0;
    Bytes serial;  ///< Highest byte first, as people read it.
    Bytes encoded;
    Bytes encodedIssuer;
};

/// A serial number in the order in which people read it: highest byte first, without the zero byte that only
/// keeps the encoded number positive.
[[nodiscard]] Bytes SerialInReadingOrder(const Bytes& lowestFirst);

/// Prepares a decoded certificate for searches. Patterns are compared with the owner text as it is handed
/// out, after its way through the code page, so that every owner text that was handed out finds its owner
/// again, also where the code page lacks some of its letters.
[[nodiscard]] ServedCertificate PrepareCertificate(const DecodedCertificate& decoded,
                                                   const StandInSystem& system);

}  // namespace corvane::standin
