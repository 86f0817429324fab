#include "app/start_texts.h"

#include "app/reporting/app_title.h"
#include "toolkit/format_text.h"

namespace corvane {

std::wstring AlreadyStartedText() {
    return toolkit::FormatText(L"%s allready started", {AppTitle});
}

}  // namespace corvane
