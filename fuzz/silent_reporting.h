#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "reporting/system_messages.h"
#include "toolkit/system/message_presenter.h"

// Reporting that nobody sees, for fuzzers of what reports on its way.

namespace corvane::fuzz {

/// Answers every message box with OK and counts them.
class SilentPresenter : public toolkit::MessagePresenter {
  public:
    int Show(toolkit::WindowHandle /*owner*/, const std::wstring& /*text*/, const std::wstring& /*title*/,
             std::uint32_t /*style*/) override {
        ++count;
        return 1;
    }
    [[nodiscard]] bool IsLive(toolkit::WindowHandle /*window*/) const override { return false; }

    std::size_t count = 0;
};

/// Has no text for any code.
class NoMessages : public reporting::SystemMessages {
  public:
    [[nodiscard]] std::optional<std::wstring> FromSystem(std::uint32_t /*code*/) const override { return {}; }
    [[nodiscard]] std::optional<std::wstring> FromInternetModule(std::uint32_t /*code*/) const override {
        return {};
    }
};

}  // namespace corvane::fuzz
