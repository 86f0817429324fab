#include "app/start_texts.h"

#include "reporting/message_styles.h"
#include "toolkit/text/format_text.h"

namespace corvane::app {

std::wstring AlreadyStartedText() {
    return toolkit::FormatText(L"%s allready started", {reporting::AppTitle});
}

}  // namespace corvane::app
