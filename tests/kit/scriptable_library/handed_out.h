#pragma once

#include <list>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "provider/provider_functions.h"
#include "tests/kit/scriptable_library/library_script.h"

namespace corvane::test {

/// What the library has handed out and has not got back.
class HandedOut {
  public:
    /// Hands out a text of exactly its length; what lies behind it is no terminator. None gives a null
    /// pointer.
    provider::XsigBlob Text(const ScriptText& text);
    /// Takes a text back; false when this is none that is out.
    bool TakeText(const void* text) { return texts_.erase(static_cast<const char*>(text)) != 0; }

    /// Hands out the entries of a search; none of them gives a null array.
    provider::CertFindResult Result(const std::vector<ScriptCertificate>& certificates);
    /// Takes a result back; false when this is none that is out. One without entries needs no taking back.
    bool TakeResult(const provider::CertFindResult& result) {
        return result.entries == nullptr || results_.erase(result.entries) != 0;
    }

    [[nodiscard]] std::size_t TextCount() const { return texts_.size(); }
    [[nodiscard]] std::size_t ResultCount() const { return results_.size(); }

  private:
    struct FoundCertificates {
        std::vector<ScriptCertificate> certificates;
        std::vector<provider::CertEntry> entries;
    };

    std::map<const char*, std::unique_ptr<char[]>> texts_;
    std::map<const provider::CertEntry*, std::unique_ptr<FoundCertificates>> results_;
};

}  // namespace corvane::test
