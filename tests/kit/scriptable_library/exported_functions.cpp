#include <windows.h>

#include <array>
#include <exception>
#include <filesystem>

#include "standin/exported_functions.h"
#include "tests/kit/scriptable_library/call_log.h"
#include "tests/kit/scriptable_library/scriptable_library.h"

namespace corvane::test {
namespace {

constexpr std::uint32_t kStatusUnexpected = 0xE070FFFF;

std::filesystem::path OwnFolder() {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&OwnFolder), &module);
    std::array<wchar_t, 1024> path{};
    GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
    return std::filesystem::path(path.data()).parent_path();
}

// What lives as long as the library is loaded; its functions have no other owner for it. The program calls
// them on one thread.
ScriptableLibrary& Library() {
    static ScriptableLibrary library(OwnFolder());
    return library;
}

template <typename Call>
std::uint32_t Serve(Call call) {
    try {
        return call(Library());
    } catch (const std::exception& failure) {
        CallLog(OwnFolder()).WriteFailure(failure.what());
        return kStatusUnexpected;
    }
}

}  // namespace
}  // namespace corvane::test

namespace {

using corvane::test::ScriptableLibrary;
using corvane::test::Serve;

}  // namespace

std::uint32_t XSIG_Initialize(const char* csProfileName, std::uint32_t flags,
                              corvane::provider::ProviderContext* context) {
    return Serve(
        [&](ScriptableLibrary& library) { return library.Initialize(csProfileName, flags, context); });
}

std::uint32_t XSIG_Uninitialize(corvane::provider::ProviderContext context) {
    return Serve([&](ScriptableLibrary& library) { return library.Uninitialize(context); });
}

std::uint32_t XSIG_Ctrl(corvane::provider::ProviderContext context, std::uint32_t code,
                        corvane::provider::XsigBlob* buffer) {
    return Serve([&](ScriptableLibrary& library) { return library.Control(context, code, buffer); });
}

std::uint32_t XSIG_FindCert(corvane::provider::ProviderContext context, corvane::provider::CertQuery* query,
                            corvane::provider::CertFindResult* result) {
    return Serve([&](ScriptableLibrary& library) { return library.FindCert(context, query, result); });
}

std::uint32_t XSIG_FreeFindResult(corvane::provider::ProviderContext context,
                                  corvane::provider::CertFindResult* result) {
    return Serve([&](ScriptableLibrary& library) { return library.FreeFindResult(context, result); });
}

std::uint32_t XSIG_FreeMem(corvane::provider::ProviderContext context, void* memory) {
    return Serve([&](ScriptableLibrary& library) { return library.FreeMem(context, memory); });
}

std::uint32_t XSIG_GetErrorText(std::uint32_t status, char* buffer, std::uint32_t capacity) {
    return Serve([&](ScriptableLibrary& library) { return library.GetErrorText(status, buffer, capacity); });
}

std::uint32_t XSIG_GetErrorLineEx(corvane::provider::ProviderContext context,
                                  corvane::provider::XsigBlob* text, corvane::provider::XsigBlob* file,
                                  std::uint32_t* line, corvane::provider::XsigBlob* data) {
    return Serve(
        [&](ScriptableLibrary& library) { return library.GetErrorLine(context, text, file, line, data); });
}

/// Being unloaded while the program goes on stands in the log as a call; ending with the program does not.
BOOL WINAPI DllMain(HINSTANCE /*module*/, DWORD reason, void* isProgramEnding) {
    if (reason == DLL_PROCESS_DETACH && isProgramEnding == nullptr) {
        corvane::test::CallLog(corvane::test::OwnFolder())
            .Write({.function = "Unload", .arguments = {}, .out = {}});
    }
    return TRUE;
}
