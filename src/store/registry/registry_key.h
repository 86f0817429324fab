#pragma once

#include "store/registry/registry_calls.h"

namespace corvane::store {

/// Owns at most one open key and closes it, also on every early way out. Empty, it holds null, which names
/// the root to the calls and is never closed.
class RegistryKey {
  public:
    explicit RegistryKey(RegistryCalls& calls) : calls_(calls) {}
    ~RegistryKey() { static_cast<void>(Close()); }
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;
    RegistryKey(RegistryKey&&) = delete;
    RegistryKey& operator=(RegistryKey&&) = delete;

    [[nodiscard]] RegistryCalls::Key Get() const { return key_; }

    /// Takes over `key`, just opened, and closes the key held so far. That one counts as closed whatever
    /// the system says to it, so there is nothing to return.
    void Replace(RegistryCalls::Key key) {
        static_cast<void>(Close());
        key_ = key;
    }

    /// Closes the key held, if any. Returns the system's code; the owner is empty afterwards in any case.
    [[nodiscard]] std::uint32_t Close() {
        const RegistryCalls::Key key = key_;
        key_ = nullptr;
        return key == nullptr ? 0 : calls_.Close(key);
    }

  private:
    RegistryCalls& calls_;
    RegistryCalls::Key key_ = nullptr;
};

}  // namespace corvane::store
