#include "app/about_text.h"

#include "toolkit/format_text.h"

namespace corvane {

std::wstring AboutVersionText() {
    // The zero before the build number belongs to the format and gives it four digits.
    const std::wstring title =
        toolkit::FormatText(L"QENT AC Velmaris - configuration%s Version 1.0", {L" (x64)"});
    return toolkit::FormatText(L"%s.0%s.%s", {title, L"453", L"0"});
}

}  // namespace corvane
