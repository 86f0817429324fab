#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace corvane::standin {

using Bytes = std::vector<std::uint8_t>;

/// The objects of a certificate or CRL file. A file with "-----BEGIN <label>-----" lines holds one object per
/// such block, in Base64; any other file is one object as it stands. A block that is not closed or not Base64
/// is left out. `label` is "CERTIFICATE" or "X509 CRL".
[[nodiscard]] std::vector<Bytes> ObjectsOfFile(std::string_view content, std::string_view label);

}  // namespace corvane::standin
