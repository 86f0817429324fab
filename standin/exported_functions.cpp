#include "standin/exported_functions.h"

#include <mutex>
#include <new>

#include "standin/standin_provider.h"
#include "standin/status_texts.h"
#include "standin/windows_system.h"

namespace corvane::standin {
namespace {

/// What lives as long as the library is loaded. The functions of a library have no other owner for it.
struct LoadedLibrary {
    std::mutex oneAtATime;
    WindowsSystem system;
    StandInProvider provider{system};
};

LoadedLibrary& Library() {
    static LoadedLibrary library;
    return library;
}

template <typename Call>
std::uint32_t Serve(Call call) {
    try {
        LoadedLibrary& library = Library();
        const std::scoped_lock lock(library.oneAtATime);
        return call(library.provider);
    } catch (const std::bad_alloc&) {
        return kStatusOutOfMemory;
    } catch (...) {
        return kStatusUnexpected;
    }
}

}  // namespace
}  // namespace corvane::standin

namespace {

using corvane::standin::Serve;
using corvane::standin::StandInProvider;

}  // namespace

std::uint32_t XSIG_Initialize(const char* csProfileName, std::uint32_t flags,
                              corvane::provider::ProviderContext* context) {
    return Serve(
        [&](StandInProvider& provider) { return provider.Initialize(csProfileName, flags, context); });
}

std::uint32_t XSIG_Uninitialize(corvane::provider::ProviderContext context) {
    return Serve([&](StandInProvider& provider) { return provider.Uninitialize(context); });
}

std::uint32_t XSIG_Ctrl(corvane::provider::ProviderContext context, std::uint32_t code,
                        corvane::provider::XsigBlob* buffer) {
    return Serve([&](StandInProvider& provider) { return provider.Control(context, code, buffer); });
}

std::uint32_t XSIG_FindCert(corvane::provider::ProviderContext context, corvane::provider::CertQuery* query,
                            corvane::provider::CertFindResult* result) {
    return Serve([&](StandInProvider& provider) { return provider.FindCert(context, query, result); });
}

std::uint32_t XSIG_FreeFindResult(corvane::provider::ProviderContext context,
                                  corvane::provider::CertFindResult* result) {
    return Serve([&](StandInProvider& provider) { return provider.FreeFindResult(context, result); });
}

std::uint32_t XSIG_FreeMem(corvane::provider::ProviderContext context, void* memory) {
    return Serve([&](StandInProvider& provider) { return provider.FreeMem(context, memory); });
}

std::uint32_t XSIG_GetErrorText(std::uint32_t status, char* buffer, std::uint32_t capacity) {
    return StandInProvider::GetErrorText(status, buffer, capacity);
}

std::uint32_t XSIG_GetErrorLineEx(corvane::provider::ProviderContext context,
                                  corvane::provider::XsigBlob* text, corvane::provider::XsigBlob* file,
                                  std::uint32_t* line, corvane::provider::XsigBlob* data) {
    return Serve(
        [&](StandInProvider& provider) { return provider.GetErrorLine(context, text, file, line, data); });
}
