#pragma once

#include <cstddef>
#include <cstdint>

// The records exchanged with the crypto provider library tarn1.dll. Their sizes and offsets are the
// library's contract; the padding between the named fields is the library's own.

namespace corvane::provider {

/// The handle of an open cryptocontext, as XSIG_Initialize gives it out; 0 means that there is none.
using ProviderContext = std::uint64_t;

/// A text that the library hands out, or a buffer that the caller hands in.
struct XsigBlob {
    std::uint32_t length = 0;  ///< Bytes of text, or the capacity of a buffer handed in.
    char* data = nullptr;  ///< Allocated by the library (to be released with XSIG_FreeMem) where handed out.
};
static_assert(sizeof(XsigBlob) == 16 && offsetof(XsigBlob, data) == 8);

/// What XSIG_FindCert is asked: 416 bytes, all zero except the named fields.
struct CertQuery {
    std::uint32_t searchFlags = 0;
    std::uint8_t reserved4[12] = {};
    std::uint32_t matchMode = 0;
    std::uint8_t reserved20[20] = {};
    const char* ownerPattern = nullptr;  ///< Distinguished name text, * as wildcard; the caller's.
    std::uint8_t reserved48[360] = {};
    std::uint32_t fieldsWanted = 0;
    std::uint8_t reserved412[4] = {};
};
static_assert(sizeof(CertQuery) == 416);
static_assert(offsetof(CertQuery, matchMode) == 16 && offsetof(CertQuery, ownerPattern) == 40);
static_assert(offsetof(CertQuery, fieldsWanted) == 408);

/// One found certificate; all texts are the library's until XSIG_FreeFindResult.
struct CertEntry {
    std::uint8_t reserved0[24] = {};
    const char* owner = nullptr;  ///< Subject distinguished name.
    std::uint8_t reserved32[32] = {};
    std::uint8_t usage = 0;  ///< Usable for encryption when one of the bits 0x1C is set.
    std::uint8_t reserved65[239] = {};
    const char* issuer = nullptr;  ///< Issuer distinguished name.
    std::uint8_t reserved312[64] = {};
    std::uint32_t serialLength = 0;  ///< Bytes at serial.
    std::uint8_t reserved380[4] = {};
    const std::uint8_t* serial = nullptr;
};
static_assert(sizeof(CertEntry) == 392);
static_assert(offsetof(CertEntry, owner) == 24 && offsetof(CertEntry, usage) == 64);
static_assert(offsetof(CertEntry, issuer) == 304 && offsetof(CertEntry, serialLength) == 376);
static_assert(offsetof(CertEntry, serial) == 384);

/// What XSIG_FindCert gives; released with XSIG_FreeFindResult after every search, failed ones too.
struct CertFindResult {
    std::uint32_t count = 0;
    CertEntry* entries = nullptr;
};
static_assert(sizeof(CertFindResult) == 16);

/// The status with which XSIG_FindCert says that nothing was found.
inline constexpr std::uint32_t kStatusNothingFound = 0xE0700046;

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

}  // namespace corvane::provider
