#pragma once

#include <cstdint>

#include "certs/provider/provider_records.h"

namespace corvane {

/// The functions of tarn1.dll that this program calls. Each returns a status, 0 for success, unless said
/// otherwise; all texts are 8-bit, in the system's ANSI code page.
struct ProviderFunctions {
    /// Opens a cryptocontext for the named CS profile; may take tens of seconds.
    std::uint32_t (*initialize)(const char* csProfileName, std::uint32_t flags, ProviderContext* context);
    /// Closes a cryptocontext.
    std::uint32_t (*uninitialize)(ProviderContext context);
    /// Code 4 loads the revocation lists and writes diagnostic text into the caller's buffer.
    std::uint32_t (*control)(ProviderContext context, std::uint32_t code, XsigBlob* buffer);
    /// Searches certificates; the result is released with freeFindResult, after failures too.
    std::uint32_t (*findCert)(ProviderContext context, CertQuery* query, CertFindResult* result);
    /// Releases what findCert allocated.
    std::uint32_t (*freeFindResult)(ProviderContext context, CertFindResult* result);
    /// Writes the description of a status into a buffer of `capacity` bytes. Non-zero on success, 0 where
    /// there is no description.
    std::uint32_t (*getErrorText)(std::uint32_t status, char* buffer, std::uint32_t capacity);
    /// Pops the next entry of the error stack of `context` (0: of a failed initialize). Returns 0 while an
    /// entry was delivered; its three texts are released with freeMem.
    std::uint32_t (*getErrorLine)(ProviderContext context, XsigBlob* text, XsigBlob* file,
                                  std::uint32_t* line, XsigBlob* data);
    /// Frees one text that the library allocated.
    std::uint32_t (*freeMem)(ProviderContext context, void* memory);
};

}  // namespace corvane
