#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "provider/provider_library.h"
#include "reporting/system_messages.h"
#include "toolkit/files/paths.h"
#include "toolkit/system/message_presenter.h"
#include "toolkit/system/window_handle.h"
#include "toolkit/text/system_text.h"

namespace corvane::reporting {

/// Bit 0 of ReportError's flags: the message is shown. With any other non-zero value it is only composed.
inline constexpr std::uint32_t kShowReport = 1;

/// Turns failures into messages of one fixed shape, for everything that can fail.
///
/// It holds references only; what it refers to must outlive it. Nothing here throws for a missing
/// description, and nothing is kept from one call to the next.
class ErrorReporter {
  public:
    ErrorReporter(toolkit::MessagePresenter& messages, const SystemMessages& systemMessages,
                  provider::ProviderLibrary& provider, const toolkit::SystemText& systemText);

    /// Shows the system message box under AppTitle and returns the system's answer code. The owner is used
    /// only if it is a live window at the moment of the call.
    int ShowMessage(toolkit::WindowHandle owner, const std::wstring& text, std::uint32_t style);
    /// The same under a title of its own.
    int ShowTitledMessage(toolkit::WindowHandle owner, const std::wstring& text, const std::wstring& title,
                          std::uint32_t style);
    /// ShowMessage for an 8-bit text in the system's code page.
    int ShowMessage(toolkit::WindowHandle owner, const char* text, std::uint32_t style);

    /// Composes and, where bit 0 of `flags` is set, shows the report of a failed operation; returns `code`.
    /// With flags 0 nothing is touched.
    /// `operationFormat` (at most one %s) and `argument` (may be null) are 8-bit, in the system's code page.
    /// `text` (may be null) brings a detail that the shown message ends with, and takes the composed message
    /// without that detail. `session` (may be 0) adds its error stack to the description of provider codes.
    std::uint32_t ReportError(toolkit::WindowHandle owner, provider::ProviderContext session,
                              std::uint32_t flags, std::uint32_t code, const char* operationFormat,
                              std::wstring* text, const char* argument);

    /// Sets `description` to the text that belongs to `code`, without closing points and line ends.
    void DescribeErrorCode(std::uint32_t code, std::wstring& description, provider::ProviderContext session);

    /// Appends the provider's error stack of `session`, popping it; nothing without a session.
    void AppendProviderErrorStack(provider::ProviderContext session, std::wstring& description);

    [[nodiscard]] const toolkit::SystemText& Text() const { return systemText_; }

  private:
    toolkit::MessagePresenter& messages_;
    const SystemMessages& systemMessages_;
    provider::ProviderLibrary& provider_;
    const toolkit::SystemText& systemText_;
};

/// The status text of a code: "XSIG error 0x%X" for the provider's own codes, "Error 0x%X" for all others.
[[nodiscard]] std::wstring FormatStatus(std::uint32_t code);

/// The path that the user chose. None after a cancel, and after a failure, which is then reported under
/// `owner`.
[[nodiscard]] std::optional<std::wstring> PathOrReport(const toolkit::PathChoice& choice,
                                                       ErrorReporter& reporter, toolkit::WindowHandle owner);

}  // namespace corvane::reporting
