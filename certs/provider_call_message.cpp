#include "certs/provider_call_message.h"

#include "app/reporting/message_styles.h"
#include "app/reporting/provider_error_stack.h"
#include "toolkit/format_text.h"

namespace corvane {

std::wstring FormatErrorStack(const ProviderFunctions& provider, ProviderContext context,
                              const toolkit::SystemText& systemText) {
    std::wstring stack;
    std::int64_t number = 0;
    for (const ProviderError& error : PopProviderErrors(provider, context, ProviderContext{}, systemText)) {
        // Deliberate: "stek" and the missing line number. Support reads these texts so.
        stack += toolkit::FormatText(L"XSIG stek, error number %d\r\nError: %s\r\nFile: %s\r\nData: %s\r\n",
                                     {++number, error.text, error.file, error.data});
    }
    return stack;
}

std::wstring DescribeStatus(ErrorReporter& reporter, std::uint32_t status) {
    std::wstring description;
    reporter.DescribeErrorCode(status, description, ProviderContext{});
    return description;
}

std::wstring ProviderCallMessage(std::wstring_view operation, std::uint32_t status,
                                 std::wstring_view description, std::wstring_view details) {
    std::wstring message(operation);
    message += L".\r\n" + FormatStatus(status) + L" - ";
    message += description;
    message += L".\r\n\r\n";
    message += details;
    return message;
}

bool AskToContinue(ErrorReporter& reporter, toolkit::WindowHandle owner, std::wstring_view question,
                   std::wstring_view description, std::uint32_t status) {
    return reporter.ShowMessage(owner, toolkit::FormatText(question, {description, status}),
                                kContinueStyle) == kAnswerOk;
}

}  // namespace corvane
