#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "tests/kit/fakes/memory_registry.h"
#include "tests/kit/fakes/registry_snapshot.h"

namespace corvane::test {

/// The codes with which calls fail, each plausible for some reason of the system's.
inline constexpr std::uint32_t kFailureCodes[] = {2, 5, 13, 87, 234, 1018};

/// The codes with which calls fail from then on: one that stands for a missing value, and one that does not.
inline constexpr std::uint32_t kLastingCodes[] = {2, 5};

/// The calls without the closing ones. Those do not matter for what a load or save does; that every key is
/// closed is counted.
[[nodiscard]] std::vector<RegistryCall> WithoutClosing(const std::vector<RegistryCall>& calls);

/// How many of the first `count` calls are no closing ones.
[[nodiscard]] std::size_t CountWithoutClosing(const std::vector<RegistryCall>& calls, std::size_t count);

/// Expects that `found` are the calls `expected`, which have no closing ones, whatever they answered.
void ExpectSameCalls(const std::vector<RegistryCall>& expected, const std::vector<RegistryCall>& found);

/// What is stored after the successful calls among `calls`, starting from `before`.
[[nodiscard]] RegistrySnapshot Replay(RegistrySnapshot before, const std::vector<RegistryCall>& calls);

/// The texts of reports, by what a call was about.
[[nodiscard]] std::wstring OpenReport(const std::wstring& path, std::uint32_t code);
[[nodiscard]] std::wstring SearchReport(const std::wstring& path, std::uint32_t code);
[[nodiscard]] std::wstring DeleteReport(const std::wstring& path, std::uint32_t code);
[[nodiscard]] std::wstring ReadReport(const std::wstring& kind, const std::wstring& name, std::uint32_t code);
[[nodiscard]] std::wstring WriteReport(const RegistryCall& set, std::uint32_t code);

}  // namespace corvane::test
