#include "certs/provider/provider_library_windows.h"

#include <bit>
#include <utility>

namespace corvane {

namespace {

constexpr char kLibraryName[] = "tarn1.dll";

// Keeps the system from showing boxes of its own about a library that it cannot load: the program tells
// of it in its own words. The calling thread's mode is put back afterwards.
class QuietLoading {
  public:
    QuietLoading() { SetThreadErrorMode(GetThreadErrorMode() | SEM_FAILCRITICALERRORS, &former_); }
    QuietLoading(const QuietLoading&) = delete;
    QuietLoading& operator=(const QuietLoading&) = delete;
    QuietLoading(QuietLoading&&) = delete;
    QuietLoading& operator=(QuietLoading&&) = delete;
    ~QuietLoading() { SetThreadErrorMode(former_, nullptr); }

  private:
    DWORD former_ = 0;
};

// Looks functions up until one is missing; the first missing one is remembered.
class FunctionFinder {
  public:
    explicit FunctionFinder(HMODULE module) : module_(module) {}

    template <typename Function>
    void Find(const char* name, Function*& function) {
        if (failure_.code != 0) {
            return;
        }
        const FARPROC found = GetProcAddress(module_, name);
        if (found == nullptr) {
            failure_ = {GetLastError(), name};
            return;
        }
        function = std::bit_cast<Function*>(found);
    }

    [[nodiscard]] const ProviderBindFailure& Failure() const { return failure_; }

  private:
    HMODULE module_;
    ProviderBindFailure failure_;
};

}  // namespace

const ProviderFunctions* SystemProviderLibrary::Functions() {
    if (functions_) {
        return &*functions_;
    }
    const QuietLoading quiet;
    decltype(module_) module(LoadLibraryExA(
        kLibraryName, nullptr, LOAD_LIBRARY_SEARCH_APPLICATION_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32));
    if (!module) {
        lastFailure_ = {GetLastError(), kLibraryName};
        return nullptr;
    }
    ProviderFunctions functions{};
    FunctionFinder finder(module.get());
    finder.Find("XSIG_Initialize", functions.initialize);
    finder.Find("XSIG_Uninitialize", functions.uninitialize);
    finder.Find("XSIG_Ctrl", functions.control);
    finder.Find("XSIG_FindCert", functions.findCert);
    finder.Find("XSIG_FreeFindResult", functions.freeFindResult);
    finder.Find("XSIG_FreeMem", functions.freeMem);
    finder.Find("XSIG_GetErrorText", functions.getErrorText);
    finder.Find("XSIG_GetErrorLineEx", functions.getErrorLine);
    lastFailure_ = finder.Failure();
    if (lastFailure_.code != 0) {
        return nullptr;
    }
    module_ = std::move(module);
    functions_ = functions;
    return &*functions_;
}

}  // namespace corvane
