#include "provider/provider_functions.h"

// Functions that only say which of them was called.

namespace {

using corvane::provider::CertFindResult;
using corvane::provider::CertQuery;
using corvane::provider::ProviderContext;
using corvane::provider::XsigBlob;

}  // namespace

extern "C" {

std::uint32_t XSIG_Initialize(const char* /*csProfileName*/, std::uint32_t /*flags*/,
                              ProviderContext* /*context*/) {
    return 1;
}

std::uint32_t XSIG_Uninitialize(ProviderContext /*context*/) {
    return 2;
}

std::uint32_t XSIG_Ctrl(ProviderContext /*context*/, std::uint32_t /*code*/, XsigBlob* /*buffer*/) {
    return 3;
}

std::uint32_t XSIG_FindCert(ProviderContext /*context*/, CertQuery* /*query*/, CertFindResult* /*result*/) {
    return 4;
}

std::uint32_t XSIG_FreeFindResult(ProviderContext /*context*/, CertFindResult* /*result*/) {
    return 5;
}

std::uint32_t XSIG_FreeMem(ProviderContext /*context*/, void* /*memory*/) {
    return 6;
}

std::uint32_t XSIG_GetErrorText(std::uint32_t /*status*/, char* /*buffer*/, std::uint32_t /*capacity*/) {
    return 7;
}

std::uint32_t XSIG_GetErrorLineEx(ProviderContext /*context*/, XsigBlob* /*text*/, XsigBlob* /*file*/,
                                  std::uint32_t* /*line*/, XsigBlob* /*data*/) {
    return 8;
}
}
