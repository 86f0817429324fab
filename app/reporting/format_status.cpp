#include "app/reporting/error_reporter.h"
#include "toolkit/format_text.h"

namespace corvane {

std::wstring FormatStatus(std::uint32_t code) {
    constexpr std::uint32_t kProviderBit = 0x20000000;
    const bool isProviderCode = (code & kProviderBit) != 0 && code != 0xFFFFFFFF;
    return toolkit::FormatText(isProviderCode ? L"XSIG error 0x%X" : L"Error 0x%X", {code});
}

}  // namespace corvane
