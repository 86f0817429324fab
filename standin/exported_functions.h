#pragma once

#include <cstdint>

#include "certs/provider/provider_records.h"

// The functions of tarn1.dll, as certs/provider/provider_functions.h describes them. Safe to call from
// several threads; the calls are served one after another. No exception leaves them.
extern "C" {
std::uint32_t XSIG_Initialize(const char* csProfileName, std::uint32_t flags,
                              corvane::ProviderContext* context);
std::uint32_t XSIG_Uninitialize(corvane::ProviderContext context);
std::uint32_t XSIG_Ctrl(corvane::ProviderContext context, std::uint32_t code, corvane::XsigBlob* buffer);
std::uint32_t XSIG_FindCert(corvane::ProviderContext context, corvane::CertQuery* query,
                            corvane::CertFindResult* result);
std::uint32_t XSIG_FreeFindResult(corvane::ProviderContext context, corvane::CertFindResult* result);
std::uint32_t XSIG_FreeMem(corvane::ProviderContext context, void* memory);
std::uint32_t XSIG_GetErrorText(std::uint32_t status, char* buffer, std::uint32_t capacity);
std::uint32_t XSIG_GetErrorLineEx(corvane::ProviderContext context, corvane::XsigBlob* text,
                                  corvane::XsigBlob* file, std::uint32_t* line, corvane::XsigBlob* data);
}
