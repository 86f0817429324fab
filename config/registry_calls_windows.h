#pragma once

#include <cstdint>
#include <string>

#include "config/registry_calls.h"

namespace corvane {

/// The registry of the system.
class WindowsRegistryCalls final : public RegistryCalls {
  public:
    /// The calls that not every system has (the transacted ones, and the delete that knows views) are looked
    /// up at run time in the loaded module `moduleName`.
    explicit WindowsRegistryCalls(std::wstring moduleName = L"Advapi32.dll");

    [[nodiscard]] std::uint32_t Open(Key parent, const std::wstring& path, std::uint32_t access,
                                     Transaction transaction, Key& key) override;
    [[nodiscard]] std::uint32_t Create(Key parent, const std::wstring& path, std::uint32_t access,
                                       Transaction transaction, Key& key) override;
    [[nodiscard]] std::uint32_t Delete(Key parent, const std::wstring& name, std::uint32_t viewBits,
                                       Transaction transaction) override;
    [[nodiscard]] std::uint32_t Close(Key key) override;
    [[nodiscard]] std::uint32_t EnumerateSubkey(Key key, std::uint32_t index, std::uint32_t capacityChars,
                                                std::wstring& name) override;
    [[nodiscard]] std::uint32_t Query(Key key, const std::wstring& name, void* data,
                                      std::uint32_t capacityBytes, std::uint32_t& type,
                                      std::uint32_t& sizeBytes) override;
    [[nodiscard]] std::uint32_t Set(Key key, const std::wstring& name, std::uint32_t type, const void* data,
                                    std::uint32_t sizeBytes) override;

  private:
    std::wstring moduleName_;
};

}  // namespace corvane
