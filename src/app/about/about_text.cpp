#include "app/about/about_text.h"

#include "res/version.h"
#include "toolkit/text/format_text.h"

namespace corvane::app {

std::wstring AboutVersionText() {
    const std::wstring title = toolkit::FormatText(L"QENT AC Velmaris - configuration%s Version %d.%d",
                                                   {L" (x64)", CORVANE_VERSION_MAJOR, CORVANE_VERSION_MINOR});
    // The zero before the build number belongs to the format and gives it four digits.
    return toolkit::FormatText(L"%s.0%d.%d", {title, CORVANE_VERSION_BUILD, CORVANE_VERSION_REVISION});
}

}  // namespace corvane::app
