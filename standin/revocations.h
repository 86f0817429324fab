#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "standin/standin_system.h"

namespace corvane::standin {

/// The certificates that the loaded CRLs revoke.
class Revocations {
  public:
    /// Replaces everything known about the issuer of `file` with what the file says.
    void Take(const RevocationFile& file);

    [[nodiscard]] bool Contains(const Bytes& encodedIssuer, const Bytes& serialHighestFirst) const;

  private:
    std::set<std::pair<Bytes, Bytes>> revoked_;  ///< Issuer and serial, highest byte first.
};

/// What a loading of CRLs tells its caller: one line per file, refused ones first because the buffer may be
/// too small for all.
[[nodiscard]] std::string DescribeLoading(const std::vector<RevocationFile>& files);

/// Writes as many whole lines of `text` as fit into a buffer of `capacity` bytes, and a NUL. A first line
/// that is too long for the buffer is left out like any other.
void WriteWholeLines(const std::string& text, char* buffer, std::size_t capacity);

}  // namespace corvane::standin
