#include "certificates/session/provider_call_message.h"

#include "reporting/message_styles.h"
#include "reporting/provider_error_stack.h"
#include "toolkit/text/format_text.h"

namespace corvane::certificates {

std::wstring FormatErrorStack(const provider::ProviderFunctions& provider, provider::ProviderContext context,
                              const toolkit::SystemText& systemText) {
    std::wstring stack;
    std::int64_t number = 0;
    for (const reporting::ProviderError& error :
         reporting::PopProviderErrors(provider, context, provider::ProviderContext{}, systemText)) {
        // Deliberate: "stek" and the missing line number. Support reads these texts so.
        stack += toolkit::FormatText(L"XSIG stek, error number %d\r\nError: %s\r\nFile: %s\r\nData: %s\r\n",
                                     {++number, error.text, error.file, error.data});
    }
    return stack;
}

std::wstring DescribeStatus(reporting::ErrorReporter& reporter, std::uint32_t status) {
    std::wstring description;
    reporter.DescribeErrorCode(status, description, provider::ProviderContext{});
    return description;
}

std::wstring ProviderCallMessage(std::wstring_view operation, std::uint32_t status,
                                 std::wstring_view description, std::wstring_view details) {
    std::wstring message(operation);
    message += L".\r\n" + reporting::FormatStatus(status) + L" - ";
    message += description;
    message += L".\r\n\r\n";
    message += details;
    return message;
}

bool AskToContinue(reporting::ErrorReporter& reporter, toolkit::WindowHandle owner,
                   std::wstring_view question, std::wstring_view description, std::uint32_t status) {
    return reporter.ShowMessage(owner, toolkit::FormatText(question, {description, status}),
                                reporting::kContinueStyle) == reporting::kAnswerOk;
}

}  // namespace corvane::certificates
