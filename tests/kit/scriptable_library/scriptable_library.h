#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>

#include "provider/provider_functions.h"
#include "tests/kit/scriptable_library/call_log.h"
#include "tests/kit/scriptable_library/handed_out.h"
#include "tests/kit/scriptable_library/library_script.h"

namespace scriptable {

/// A provider library that does what a test's script says, and keeps a log of its calls. Script and log lie
/// beside it: tarn1_script.txt and tarn1_log.txt. A line of the log is the call with its arguments, " -> ",
/// the status, " | " and what is out after it:
///
///     FindCert context=1 flags=E04 mode=0 pattern="CN=QQQ,C=RU" fields=4 rest=zero -> 0 | contexts=1
///     results=1 texts=0 wrong=0
///
/// "Unload" stands there when the library is unloaded before the program ends.
///
/// Contexts are named by their number, from 1. "wrong" counts the calls with a context that is not open, or
/// memory that is not out.
class ScriptableLibrary {
  public:
    explicit ScriptableLibrary(const std::filesystem::path& folder);

    std::uint32_t Initialize(const char* csProfileName, std::uint32_t flags,
                             corvane::provider::ProviderContext* context);
    std::uint32_t Uninitialize(corvane::provider::ProviderContext context);
    std::uint32_t Control(corvane::provider::ProviderContext context, std::uint32_t code,
                          corvane::provider::XsigBlob* buffer);
    std::uint32_t FindCert(corvane::provider::ProviderContext context,
                           const corvane::provider::CertQuery* query,
                           corvane::provider::CertFindResult* result);
    std::uint32_t FreeFindResult(corvane::provider::ProviderContext context,
                                 corvane::provider::CertFindResult* result);
    std::uint32_t FreeMem(corvane::provider::ProviderContext context, const void* memory);
    std::uint32_t GetErrorText(std::uint32_t status, char* buffer, std::uint32_t capacity);
    std::uint32_t GetErrorLine(corvane::provider::ProviderContext context, corvane::provider::XsigBlob* text,
                               corvane::provider::XsigBlob* file, std::uint32_t* line,
                               corvane::provider::XsigBlob* data);

  private:
    std::uint32_t Enter(const std::string& function);
    std::uint32_t Leave(const std::string& call, std::uint32_t status) const;
    [[nodiscard]] const std::vector<ScriptCertificate>& Found(const ScriptText& pattern) const;
    [[nodiscard]] unsigned ContextNumber(corvane::provider::ProviderContext context) const;
    std::string NameOpen(corvane::provider::ProviderContext context);

    LibraryScript script_;
    CallLog log_;
    HandedOut handedOut_;
    std::map<std::string, unsigned> callCounts_;
    std::set<corvane::provider::ProviderContext> open_;
    std::map<unsigned, std::size_t> poppedErrors_;
    unsigned contextCount_ = 0;
    unsigned wrongCount_ = 0;
};

}  // namespace scriptable
