#include "config/registry_reports.h"

#include <string>

namespace corvane {

bool ReportKeyResult(ErrorReporter& reporter, toolkit::WindowHandle owner, std::uint32_t code,
                     const char* operation, std::wstring_view path) {
    if (code == 0) {
        return true;
    }
    std::wstring fullPath = L"HKEY_CURRENT_USER\\";
    fullPath += path;
    reporter.ReportError(owner, ProviderContext{}, kShowReport, code, operation, nullptr,
                         reporter.Text().Narrow(fullPath).c_str());
    return false;
}

}  // namespace corvane
