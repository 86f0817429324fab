#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>

#include "provider/provider_functions.h"
#include "tests/kit/scriptable_library/call_log.h"
#include "tests/kit/scriptable_library/handed_out.h"
#include "tests/kit/scriptable_library/library_script.h"

namespace corvane::test {

/// A provider library that does what a test's script says, and keeps a log of its calls; both lie beside it.
/// The arguments of a call in the log are, for instance,
///
///     context=1 flags=E04 mode=0 pattern="CN=QQQ,C=RU" fields=4 rest=zero
///
/// Contexts are named by their number, from 1. A call is wrong with a context that is not open, or memory
/// that is not out. "Unload" stands in the log when the library is unloaded before the program ends.
class ScriptableLibrary {
  public:
    explicit ScriptableLibrary(const std::filesystem::path& folder);

    std::uint32_t Initialize(const char* csProfileName, std::uint32_t flags,
                             provider::ProviderContext* context);
    std::uint32_t Uninitialize(provider::ProviderContext context);
    std::uint32_t Control(provider::ProviderContext context, std::uint32_t code, provider::XsigBlob* buffer);
    std::uint32_t FindCert(provider::ProviderContext context, const provider::CertQuery* query,
                           provider::CertFindResult* result);
    std::uint32_t FreeFindResult(provider::ProviderContext context, provider::CertFindResult* result);
    std::uint32_t FreeMem(provider::ProviderContext context, const void* memory);
    std::uint32_t GetErrorText(std::uint32_t status, char* buffer, std::uint32_t capacity);
    std::uint32_t GetErrorLine(provider::ProviderContext context, provider::XsigBlob* text,
                               provider::XsigBlob* file, std::uint32_t* line, provider::XsigBlob* data);

  private:
    std::uint32_t Enter(const std::string& function);
    std::uint32_t Leave(const std::string& function, const std::string& arguments,
                        std::uint32_t status) const;
    [[nodiscard]] const std::vector<ScriptCertificate>& Found(const ScriptText& pattern) const;
    [[nodiscard]] unsigned ContextNumber(provider::ProviderContext context) const;
    std::string NameOpen(provider::ProviderContext context);

    LibraryScript script_;
    CallLog log_;
    HandedOut handedOut_;
    std::map<std::string, unsigned> callCounts_;
    std::set<provider::ProviderContext> open_;
    std::map<unsigned, std::size_t> poppedErrors_;
    unsigned contextCount_ = 0;
    unsigned wrongCount_ = 0;
};

}  // namespace corvane::test
