#include "reporting/error_reporter.h"

#include <algorithm>
#include <array>
#include <exception>
#include <optional>
#include <string_view>

#include "reporting/message_styles.h"
#include "reporting/provider_error_stack.h"
#include "toolkit/text/format_text.h"

namespace corvane::reporting {

namespace {

constexpr std::uint32_t kFirstParameterError = 0xFFFFFFF7;
constexpr std::uint32_t kCustomerBit = 0x20000000;

void CutClosingMarks(std::wstring& text) {
    text.erase(text.find_last_not_of(L".\n\r") + 1);
}

std::optional<std::wstring> DescribeProviderCode(provider::ProviderLibrary& provider,
                                                 const toolkit::SystemText& systemText, std::uint32_t code) {
    const provider::ProviderFunctions* functions = provider.Functions();
    if (functions == nullptr) {
        return std::nullopt;
    }
    std::array<char, 1024> buffer{};
    if (functions->getErrorText(code, buffer.data(), static_cast<std::uint32_t>(buffer.size())) == 0) {
        return std::nullopt;
    }
    // A text that fills the buffer may have come without its terminator.
    const auto end = std::find(buffer.begin(), buffer.end(), '\0');
    const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.begin()));
    return text.empty() ? std::nullopt : std::optional(systemText.Widen(text));
}

std::optional<std::wstring> DescribeSystemCode(const SystemMessages& systemMessages, std::uint32_t code) {
    std::optional<std::wstring> text = systemMessages.FromSystem(code);
    return text ? text : systemMessages.FromInternetModule(code);
}

}  // namespace

ErrorReporter::ErrorReporter(toolkit::MessagePresenter& messages, const SystemMessages& systemMessages,
                             provider::ProviderLibrary& provider, const toolkit::SystemText& systemText)
    : messages_(messages), systemMessages_(systemMessages), provider_(provider), systemText_(systemText) {}

int ErrorReporter::ShowMessage(toolkit::WindowHandle owner, const std::wstring& text, std::uint32_t style) {
    return ShowTitledMessage(owner, text, AppTitle, style);
}

int ErrorReporter::ShowTitledMessage(toolkit::WindowHandle owner, const std::wstring& text,
                                     const std::wstring& title, std::uint32_t style) {
    return messages_.Show(messages_.IsLive(owner) ? owner : nullptr, text, title, style);
}

int ErrorReporter::ShowMessage(toolkit::WindowHandle owner, const char* text, std::uint32_t style) {
    return ShowMessage(owner, systemText_.Widen(text), style);
}

std::uint32_t ErrorReporter::ReportError(toolkit::WindowHandle owner, provider::ProviderContext session,
                                         std::uint32_t flags, std::uint32_t code, const char* operationFormat,
                                         std::wstring* text, const char* argument) {
    if (flags == 0) {
        return code;
    }
    try {
        const std::wstring format = systemText_.Widen(operationFormat);
        std::wstring message = argument == nullptr
                                   ? toolkit::FormatText(format, {})
                                   : toolkit::FormatText(format, {systemText_.Widen(argument)});
        std::wstring description;
        DescribeErrorCode(code, description, session);
        message += L".\r\n" + FormatStatus(code) + L" - " + description + L".";
        if ((flags & kShowReport) != 0) {
            ShowMessage(owner, text == nullptr ? message : message + *text, kErrorStyle);
        }
        if (text != nullptr) {
            *text = std::move(message);
        }
    } catch (const std::exception&) {
        // Only memory can be short here, and then no message box can be made either. Whoever reports a
        // failure goes on by the code alone.
        return code;
    }
    return code;
}

void ErrorReporter::DescribeErrorCode(std::uint32_t code, std::wstring& description,
                                      provider::ProviderContext session) {
    constexpr wchar_t kNotFound[] = L"Error description not found";
    if (code >= kFirstParameterError) {
        description = L"Bad parameter";
    } else if (code == 0 || (code & kCustomerBit) != 0) {
        description = DescribeProviderCode(provider_, systemText_, code).value_or(kNotFound);
        CutClosingMarks(description);
        AppendProviderErrorStack(session, description);
    } else {
        description = DescribeSystemCode(systemMessages_, code).value_or(kNotFound);
    }
    CutClosingMarks(description);
}

void ErrorReporter::AppendProviderErrorStack(provider::ProviderContext session, std::wstring& description) {
    if (session == 0) {
        return;
    }
    // The line break is deliberate even when no entry follows: whoever shows a description for a session
    // relies on the stack standing on lines of its own.
    description += L"\r\n";
    const provider::ProviderFunctions* functions = provider_.Functions();
    if (functions == nullptr) {
        return;
    }
    for (const ProviderError& error : PopProviderErrors(*functions, session, session, systemText_)) {
        description +=
            toolkit::FormatText(L"%s,\r\nfile: %s, line %d, data: %s.\r\n",
                                {error.text, error.file, static_cast<std::int32_t>(error.line), error.data});
    }
}

std::optional<std::wstring> PathOrReport(const toolkit::PathChoice& choice, ErrorReporter& reporter,
                                         toolkit::WindowHandle owner) {
    if (choice.failure) {
        reporter.ReportError(owner, provider::ProviderContext{}, kShowReport, choice.failure->code,
                             choice.failure->operationFormat, nullptr, choice.failure->detail.c_str());
    }
    return choice.path;
}

std::wstring FormatStatus(std::uint32_t code) {
    constexpr std::uint32_t kProviderBit = 0x20000000;
    const bool isProviderCode = (code & kProviderBit) != 0 && code != 0xFFFFFFFF;
    return toolkit::FormatText(isProviderCode ? L"XSIG error 0x%X" : L"Error 0x%X", {code});
}

}  // namespace corvane::reporting
