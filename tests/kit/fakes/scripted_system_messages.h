#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>

#include "reporting/system_messages.h"

namespace corvane::test {

/// Message tables of a test's making. The system's table has "System text 5" for code 5 and so on for every
/// code of which nothing else was said; the internet module's has nothing but what was put in.
class ScriptedSystemMessages : public reporting::SystemMessages {
  public:
    [[nodiscard]] std::optional<std::wstring> FromSystem(std::uint32_t code) const override {
        if (const auto found = systemTexts_.find(code); found != systemTexts_.end()) {
            return found->second;
        }
        if (hasNoSystemText_.contains(code)) {
            return std::nullopt;
        }
        return L"System text " + std::to_wstring(code);
    }

    [[nodiscard]] std::optional<std::wstring> FromInternetModule(std::uint32_t code) const override {
        const auto found = internetTexts_.find(code);
        return found == internetTexts_.end() ? std::nullopt : std::optional(found->second);
    }

    void SetSystemText(std::uint32_t code, std::wstring text) { systemTexts_[code] = std::move(text); }
    void SetInternetText(std::uint32_t code, std::wstring text) { internetTexts_[code] = std::move(text); }
    /// Takes the default text of a code away.
    void RemoveSystemText(std::uint32_t code) { hasNoSystemText_.insert(code); }

  private:
    std::map<std::uint32_t, std::wstring> systemTexts_;
    std::map<std::uint32_t, std::wstring> internetTexts_;
    std::set<std::uint32_t> hasNoSystemText_;
};

}  // namespace corvane::test
