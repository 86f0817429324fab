#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/registry/registry_calls.h"
#include "tests/kit/fakes/registry_snapshot.h"

namespace corvane::test {

/// The kinds of registry calls. A query that asks only for type and size is a kind of its own.
enum class RegistryOperation { kOpen, kCreate, kDelete, kClose, kEnumerate, kQuerySize, kQuery, kSet };

/// One call that was made, and what it answered.
struct RegistryCall {
    RegistryOperation operation = RegistryOperation::kOpen;
    std::wstring keyPath;  ///< The full path of the key that is opened, deleted, searched, read or written.
    std::wstring name;     ///< The value's name, or the name that an enumeration gave.
    std::uint32_t code = 0;
    std::uint32_t access = 0;  ///< Of an open or create the access mask, of a delete the view bits.
    store::RegistryCalls::Transaction transaction = nullptr;
    StoredData written;  ///< What a set wrote.
};

/// A registry in memory, for tests of everything that reads or writes the configuration. Any call can be told
/// to fail; each call is kept in a log, each open key is counted. Names are found whatever their case and
/// keep the case in which they were made; odd names and paths come to what they come to in the system's
/// registry, which a test in tests/registry compares call by call.
class MemoryRegistry : public store::RegistryCalls {
  public:
    MemoryRegistry();
    ~MemoryRegistry() override;
    MemoryRegistry(const MemoryRegistry&) = delete;
    MemoryRegistry& operator=(const MemoryRegistry&) = delete;
    MemoryRegistry(MemoryRegistry&&) = delete;
    MemoryRegistry& operator=(MemoryRegistry&&) = delete;

    std::uint32_t Open(Key parent, const std::wstring& path, std::uint32_t access, Transaction transaction,
                       Key& key) override;
    std::uint32_t Create(Key parent, const std::wstring& path, std::uint32_t access, Transaction transaction,
                         Key& key) override;
    std::uint32_t Delete(Key parent, const std::wstring& name, std::uint32_t viewBits,
                         Transaction transaction) override;
    std::uint32_t Close(Key key) override;
    std::uint32_t EnumerateSubkey(Key key, std::uint32_t index, std::uint32_t capacityChars,
                                  std::wstring& name) override;
    std::uint32_t Query(Key key, const std::wstring& name, void* data, std::uint32_t capacityBytes,
                        std::uint32_t& type, std::uint32_t& sizeBytes) override;
    std::uint32_t Set(Key key, const std::wstring& name, std::uint32_t type, const void* data,
                      std::uint32_t sizeBytes) override;

    // What a test puts in. Keys are made where they do not exist; no call is logged.
    void PutKey(std::wstring_view path);
    void Put(std::wstring_view path, std::wstring_view name, StoredData data);
    void PutNumber(std::wstring_view path, std::wstring_view name, std::uint32_t number);
    void PutText(std::wstring_view path, std::wstring_view name, std::wstring_view text);
    void PutTextList(std::wstring_view path, std::wstring_view name, const std::vector<std::wstring>& list);
    void PutAll(const RegistrySnapshot& snapshot);
    void RemoveValue(std::wstring_view path, std::wstring_view name);
    /// Subkeys enumerate in the order in which they were made; these come first, in this order, from now on.
    void PutSubkeysFirst(std::wstring_view path, const std::vector<std::wstring>& names);

    // What a test looks at.
    [[nodiscard]] bool HasKey(std::wstring_view path) const;
    [[nodiscard]] std::optional<StoredData> Find(std::wstring_view path, std::wstring_view name) const;
    [[nodiscard]] std::vector<std::wstring> SubkeyNames(std::wstring_view path) const;
    [[nodiscard]] RegistrySnapshot Snapshot() const;

    /// Makes the call of this index (from 0, all kinds counted together) answer `code` and do nothing else;
    /// a failed close closes nonetheless.
    void FailCall(std::size_t index, std::uint32_t code) { failures_[index] = code; }
    /// Makes the call of this index and every one behind it answer `code`, in the same way.
    void FailCallsFrom(std::size_t index, std::uint32_t code) {
        firstFailure_ = index;
        lastingCode_ = code;
    }
    /// Nothing is told to fail any more.
    void Mend() {
        failures_.clear();
        failsMatching_ = nullptr;
        firstFailure_ = SIZE_MAX;
    }
    /// Makes every call that `matches` answer `code` and do nothing else. It sees the call before its code is
    /// known.
    void FailCalls(std::function<bool(const RegistryCall&)> matches, std::uint32_t code) {
        failsMatching_ = std::move(matches);
        matchingCode_ = code;
    }
    /// Runs `action` once, right after the next question for the size of a value of this name: another
    /// program changes the value just then.
    void ChangeAfterSizeOf(std::wstring name, std::function<void()> action) {
        changedName_ = std::move(name);
        change_ = std::move(action);
    }
    /// Makes questions for the size of values of this name answer `sizeBytes`.
    void PretendSize(std::wstring name, std::uint32_t sizeBytes) {
        pretendedName_ = std::move(name);
        pretendedSizeBytes_ = sizeBytes;
    }

    [[nodiscard]] const std::vector<RegistryCall>& Calls() const { return calls_; }
    void ForgetCalls() { calls_.clear(); }
    [[nodiscard]] std::size_t OpenKeys() const { return opened_.size(); }
    /// The most keys that were open at one time.
    [[nodiscard]] std::size_t MostOpenKeys() const { return mostOpenKeys_; }
    /// How many calls were made with a key that was not open (any more).
    [[nodiscard]] std::size_t Misuses() const { return misuses_; }

  private:
    struct StoredKey;
    struct OpenedKey;

    // The logged call, or null where the key is not open.
    RegistryCall* Enter(RegistryOperation operation, Key key, const std::wstring& relativePath,
                        const std::wstring& name);
    // Decides whether the call entered last is told to fail; its code then stands in the log.
    bool IsToldToFail();
    std::shared_ptr<StoredKey> KeyBehind(Key key, std::wstring& path);
    // The existing key that `path` leads to from `parent`, or the code why there is none.
    [[nodiscard]] std::uint32_t Resolve(Key parent, const std::wstring& path,
                                        std::shared_ptr<StoredKey>& found);
    [[nodiscard]] std::shared_ptr<StoredKey> FindKey(std::wstring_view path) const;
    Key Remember(std::shared_ptr<StoredKey> stored, const std::wstring& path);

    std::shared_ptr<StoredKey> root_;
    std::map<Key, OpenedKey> opened_;
    std::map<std::size_t, std::uint32_t> failures_;
    std::size_t firstFailure_ = SIZE_MAX;
    std::uint32_t lastingCode_ = 0;
    std::function<bool(const RegistryCall&)> failsMatching_;
    std::uint32_t matchingCode_ = 0;
    std::wstring changedName_;
    std::function<void()> change_;
    std::wstring pretendedName_;
    std::uint32_t pretendedSizeBytes_ = 0;
    std::vector<RegistryCall> calls_;
    std::size_t callCount_ = 0;
    std::uintptr_t lastKey_ = 0;
    std::size_t mostOpenKeys_ = 0;
    std::size_t misuses_ = 0;
};

/// The text of a kind of call, for failure messages.
[[nodiscard]] std::string Describe(const RegistryCall& call);

}  // namespace corvane::test
