#pragma once

#include <cstdint>

#include "provider/provider_functions.h"

// The functions of tarn1.dll, as certs/provider/provider_functions.h describes them. Safe to call from
// several threads; the calls are served one after another. No exception leaves them.
extern "C" {
std::uint32_t XSIG_Initialize(const char* csProfileName, std::uint32_t flags,
                              corvane::provider::ProviderContext* context);
std::uint32_t XSIG_Uninitialize(corvane::provider::ProviderContext context);
std::uint32_t XSIG_Ctrl(corvane::provider::ProviderContext context, std::uint32_t code,
                        corvane::provider::XsigBlob* buffer);
std::uint32_t XSIG_FindCert(corvane::provider::ProviderContext context, corvane::provider::CertQuery* query,
                            corvane::provider::CertFindResult* result);
std::uint32_t XSIG_FreeFindResult(corvane::provider::ProviderContext context,
                                  corvane::provider::CertFindResult* result);
std::uint32_t XSIG_FreeMem(corvane::provider::ProviderContext context, void* memory);
std::uint32_t XSIG_GetErrorText(std::uint32_t status, char* buffer, std::uint32_t capacity);
std::uint32_t XSIG_GetErrorLineEx(corvane::provider::ProviderContext context,
                                  corvane::provider::XsigBlob* text, corvane::provider::XsigBlob* file,
                                  std::uint32_t* line, corvane::provider::XsigBlob* data);
}
