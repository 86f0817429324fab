#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tests/kit/fakes/registry_snapshot.h"

namespace corvane::test {

/// While it lives, HKEY_CURRENT_USER of this process is an empty key of its own, which goes with it. The key
/// is not a volatile one, because under such a key the system refuses the lasting keys that the program
/// makes.
///
/// What a test puts in and looks at goes straight to the system, past the program's own calls.
class OwnRegistryRoot {
  public:
    OwnRegistryRoot();
    ~OwnRegistryRoot();
    OwnRegistryRoot(const OwnRegistryRoot&) = delete;
    OwnRegistryRoot& operator=(const OwnRegistryRoot&) = delete;
    OwnRegistryRoot(OwnRegistryRoot&&) = delete;
    OwnRegistryRoot& operator=(OwnRegistryRoot&&) = delete;

    void PutKey(const std::wstring& path);
    void Put(const std::wstring& path, const std::wstring& name, const StoredData& data);
    void PutAll(const RegistrySnapshot& snapshot);

    [[nodiscard]] std::optional<StoredData> Find(const std::wstring& path, const std::wstring& name) const;
    [[nodiscard]] std::vector<std::wstring> SubkeyNames(const std::wstring& path) const;
    [[nodiscard]] RegistrySnapshot Snapshot() const;

  private:
    std::wstring name_;
    HKEY key_ = nullptr;
};

}  // namespace corvane::test
