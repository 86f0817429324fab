#include "tests/kit/fakes/memory_registry.h"

#include <algorithm>
#include <cstring>
#include <sstream>
#include <utility>

namespace corvane::test {

namespace {

constexpr std::uint32_t kCodeAccessDenied = 5;
constexpr std::uint32_t kCodeInvalidHandle = 6;
constexpr std::uint32_t kCodeInvalidParameter = 87;
constexpr std::uint32_t kCodeBadPath = 161;
constexpr std::uint32_t kCodeKeyDeleted = 1018;
/// The system's limit for the name of a key.
constexpr std::size_t kLongestKeyNameChars = 255;

// The case of Latin and Cyrillic letters; what more the system folds, no test needs.
wchar_t FoldCase(wchar_t character) {
    const bool isLower = (character >= L'a' && character <= L'z') ||
                         (character >= 0xE0 && character <= 0xFE && character != 0xF7) ||
                         (character >= 0x430 && character <= 0x44F);
    if (isLower) {
        return static_cast<wchar_t>(character - 0x20);
    }
    return character >= 0x450 && character <= 0x45F ? static_cast<wchar_t>(character - 0x50) : character;
}

bool IsSameName(std::wstring_view left, std::wstring_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](wchar_t a, wchar_t b) { return FoldCase(a) == FoldCase(b); });
}

// Empty parts count for nothing, also behind the last backslash.
std::vector<std::wstring> SplitPath(std::wstring_view path) {
    std::vector<std::wstring> names;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find(L'\\'), path.size());
        if (end > 0) {
            names.emplace_back(path.substr(0, end));
        }
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return names;
}

std::wstring Join(const std::wstring& parent, const std::wstring& path) {
    if (parent.empty() || path.empty()) {
        return parent + path;
    }
    return parent + L'\\' + path;
}

}  // namespace

struct MemoryRegistry::StoredKey {
    std::wstring name;
    StoredKey* parent = nullptr;  // Lives at least as long as this key is not deleted.
    std::vector<std::shared_ptr<StoredKey>> subkeys;
    std::vector<std::pair<std::wstring, StoredData>> values;
    bool isDeleted = false;

    [[nodiscard]] std::shared_ptr<StoredKey> FindSubkey(std::wstring_view subkeyName) const {
        const auto found = std::find_if(subkeys.begin(), subkeys.end(), [subkeyName](const auto& subkey) {
            return IsSameName(subkey->name, subkeyName);
        });
        return found == subkeys.end() ? nullptr : *found;
    }

    std::shared_ptr<StoredKey> Subkey(const std::wstring& subkeyName) {
        std::shared_ptr<StoredKey> subkey = FindSubkey(subkeyName);
        if (!subkey) {
            subkey = std::make_shared<StoredKey>();
            subkey->name = subkeyName;
            subkey->parent = this;
            subkeys.push_back(subkey);
        }
        return subkey;
    }

    StoredData* FindValue(std::wstring_view valueName) {
        const auto found = std::find_if(values.begin(), values.end(), [valueName](const auto& value) {
            return IsSameName(value.first, valueName);
        });
        return found == values.end() ? nullptr : &found->second;
    }

    void SetValue(std::wstring_view valueName, StoredData data) {
        if (StoredData* const found = FindValue(valueName); found != nullptr) {
            *found = std::move(data);
        } else {
            values.emplace_back(valueName, std::move(data));
        }
    }

    void CopyTo(RegistrySnapshot& snapshot, const std::wstring& path) const {
        auto& copy = snapshot[path];
        for (const auto& [valueName, data] : values) {
            copy[valueName] = data;
        }
        for (const auto& subkey : subkeys) {
            subkey->CopyTo(snapshot, Join(path, subkey->name));
        }
    }
};

struct MemoryRegistry::OpenedKey {
    std::shared_ptr<StoredKey> stored;
    std::wstring path;
};

MemoryRegistry::MemoryRegistry() : root_(std::make_shared<StoredKey>()) {}

MemoryRegistry::~MemoryRegistry() = default;

RegistryCall* MemoryRegistry::Enter(RegistryOperation operation, Key key, const std::wstring& relativePath,
                                    const std::wstring& name) {
    std::wstring path;
    const bool isOpen = KeyBehind(key, path) != nullptr;
    RegistryCall& call = calls_.emplace_back();
    call.operation = operation;
    call.keyPath = Join(path, relativePath);
    call.name = name;
    ++callCount_;
    if (!isOpen) {
        ++misuses_;
        call.code = kCodeInvalidHandle;
        return nullptr;
    }
    return &call;
}

bool MemoryRegistry::IsToldToFail() {
    RegistryCall& call = calls_.back();
    if (const auto found = failures_.find(callCount_ - 1); found != failures_.end()) {
        call.code = found->second;
    } else if (callCount_ > firstFailure_) {
        call.code = lastingCode_;
    } else if (failsMatching_ && failsMatching_(call)) {
        call.code = matchingCode_;
    }
    return call.code != 0;
}

std::shared_ptr<MemoryRegistry::StoredKey> MemoryRegistry::KeyBehind(Key key, std::wstring& path) {
    if (key == nullptr) {
        return root_;
    }
    const auto found = opened_.find(key);
    if (found == opened_.end()) {
        return nullptr;
    }
    path = found->second.path;
    return found->second.stored;
}

std::shared_ptr<MemoryRegistry::StoredKey> MemoryRegistry::FindKey(std::wstring_view path) const {
    std::shared_ptr<StoredKey> key = root_;
    for (const std::wstring& name : SplitPath(path)) {
        key = key->FindSubkey(name);
        if (!key) {
            break;
        }
    }
    return key;
}

std::uint32_t MemoryRegistry::Resolve(Key parent, const std::wstring& path,
                                      std::shared_ptr<StoredKey>& found) {
    std::wstring parentPath;
    found = KeyBehind(parent, parentPath);
    if (found->isDeleted) {
        return kCodeKeyDeleted;
    }
    if (path.starts_with(L'\\')) {
        return kCodeBadPath;
    }
    for (const std::wstring& name : SplitPath(path)) {
        found = found->FindSubkey(name);
        if (!found) {
            return store::kCodeNotFound;
        }
    }
    return 0;
}

store::RegistryCalls::Key MemoryRegistry::Remember(std::shared_ptr<StoredKey> stored,
                                                   const std::wstring& path) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a key is a number that nobody looks behind.
    const Key key = reinterpret_cast<Key>(++lastKey_);
    opened_[key] = {std::move(stored), path};
    mostOpenKeys_ = std::max(mostOpenKeys_, opened_.size());
    return key;
}

std::uint32_t MemoryRegistry::Open(Key parent, const std::wstring& path, std::uint32_t access,
                                   Transaction transaction, Key& key) {
    RegistryCall* const call = Enter(RegistryOperation::kOpen, parent, path, {});
    if (call == nullptr) {
        return kCodeInvalidHandle;
    }
    call->access = access;
    call->transaction = transaction;
    if (IsToldToFail()) {
        return call->code;
    }
    std::shared_ptr<StoredKey> found;
    call->code = Resolve(parent, path, found);
    if (call->code != 0) {
        return call->code;
    }
    key = Remember(std::move(found), call->keyPath);
    return 0;
}

std::uint32_t MemoryRegistry::Create(Key parent, const std::wstring& path, std::uint32_t access,
                                     Transaction transaction, Key& key) {
    RegistryCall* const call = Enter(RegistryOperation::kCreate, parent, path, {});
    if (call == nullptr) {
        return kCodeInvalidHandle;
    }
    call->access = access;
    call->transaction = transaction;
    if (IsToldToFail()) {
        return call->code;
    }
    std::shared_ptr<StoredKey> created;
    call->code = Resolve(parent, path, created);
    if (call->code != 0 && call->code != store::kCodeNotFound) {
        return call->code;
    }
    call->code = 0;
    std::wstring parentPath;
    created = KeyBehind(parent, parentPath);
    for (const std::wstring& name : SplitPath(path)) {
        if (name.size() > kLongestKeyNameChars) {
            return call->code = kCodeInvalidParameter;
        }
        created = created->Subkey(name);
    }
    key = Remember(std::move(created), call->keyPath);
    return 0;
}

std::uint32_t MemoryRegistry::Delete(Key parent, const std::wstring& name, std::uint32_t viewBits,
                                     Transaction transaction) {
    RegistryCall* const call = Enter(RegistryOperation::kDelete, parent, name, {});
    if (call == nullptr) {
        return kCodeInvalidHandle;
    }
    call->access = viewBits;
    call->transaction = transaction;
    if (IsToldToFail()) {
        return call->code;
    }
    std::shared_ptr<StoredKey> found;
    call->code = Resolve(parent, name, found);
    if (call->code != 0) {
        return call->code;
    }
    if (!found->subkeys.empty() || found == root_) {
        return call->code = kCodeAccessDenied;
    }
    found->isDeleted = true;
    std::erase(found->parent->subkeys, found);
    return 0;
}

std::uint32_t MemoryRegistry::Close(Key key) {
    if (key == nullptr) {
        ++misuses_;
    }
    RegistryCall* const call = Enter(RegistryOperation::kClose, key, {}, {});
    if (call == nullptr) {
        return kCodeInvalidHandle;
    }
    static_cast<void>(IsToldToFail());
    opened_.erase(key);
    return call->code;
}

std::uint32_t MemoryRegistry::EnumerateSubkey(Key key, std::uint32_t index, std::uint32_t capacityChars,
                                              std::wstring& name) {
    RegistryCall* const call = Enter(RegistryOperation::kEnumerate, key, {}, {});
    if (call == nullptr) {
        return kCodeInvalidHandle;
    }
    if (IsToldToFail()) {
        return call->code;
    }
    std::wstring path;
    const std::shared_ptr<StoredKey> stored = KeyBehind(key, path);
    if (stored->isDeleted) {
        return call->code = kCodeKeyDeleted;
    }
    if (index >= stored->subkeys.size()) {
        return call->code = store::kCodeNoMoreItems;
    }
    if (stored->subkeys[index]->name.size() >= capacityChars) {
        return call->code = store::kCodeMoreData;
    }
    name = stored->subkeys[index]->name;
    call->name = name;
    return 0;
}

std::uint32_t MemoryRegistry::Query(Key key, const std::wstring& name, void* data,
                                    std::uint32_t capacityBytes, std::uint32_t& type,
                                    std::uint32_t& sizeBytes) {
    const bool asksForSize = data == nullptr;
    RegistryCall* const call =
        Enter(asksForSize ? RegistryOperation::kQuerySize : RegistryOperation::kQuery, key, {}, name);
    if (call == nullptr) {
        return kCodeInvalidHandle;
    }
    if (IsToldToFail()) {
        return call->code;
    }
    std::wstring path;
    const std::shared_ptr<StoredKey> stored = KeyBehind(key, path);
    if (stored->isDeleted) {
        return call->code = kCodeKeyDeleted;
    }
    const StoredData* const found = stored->FindValue(name);
    if (found == nullptr) {
        return call->code = store::kCodeNotFound;
    }
    type = found->type;
    sizeBytes = static_cast<std::uint32_t>(found->bytes.size());
    if (asksForSize) {
        if (!pretendedName_.empty() && IsSameName(pretendedName_, name)) {
            sizeBytes = pretendedSizeBytes_;
        }
        if (change_ && IsSameName(changedName_, name)) {
            std::exchange(change_, nullptr)();
        }
        return 0;
    }
    if (sizeBytes > capacityBytes) {
        return call->code = store::kCodeMoreData;
    }
    std::copy(found->bytes.begin(), found->bytes.end(), static_cast<std::uint8_t*>(data));
    return 0;
}

std::uint32_t MemoryRegistry::Set(Key key, const std::wstring& name, std::uint32_t type, const void* data,
                                  std::uint32_t sizeBytes) {
    RegistryCall* const call = Enter(RegistryOperation::kSet, key, {}, name);
    if (call == nullptr) {
        return kCodeInvalidHandle;
    }
    const auto* const bytes = static_cast<const std::uint8_t*>(data);
    call->written = {type, {bytes, bytes + sizeBytes}};
    if (IsToldToFail()) {
        return call->code;
    }
    std::wstring path;
    const std::shared_ptr<StoredKey> stored = KeyBehind(key, path);
    if (stored->isDeleted) {
        return call->code = kCodeKeyDeleted;
    }
    stored->SetValue(name, call->written);
    return 0;
}

void MemoryRegistry::PutKey(std::wstring_view path) {
    std::shared_ptr<StoredKey> key = root_;
    for (const std::wstring& name : SplitPath(path)) {
        key = key->Subkey(name);
    }
}

void MemoryRegistry::Put(std::wstring_view path, std::wstring_view name, StoredData data) {
    PutKey(path);
    FindKey(path)->SetValue(name, std::move(data));
}

void MemoryRegistry::PutNumber(std::wstring_view path, std::wstring_view name, std::uint32_t number) {
    Put(path, name, Number(number));
}

void MemoryRegistry::PutText(std::wstring_view path, std::wstring_view name, std::wstring_view text) {
    Put(path, name, Text(text));
}

void MemoryRegistry::PutTextList(std::wstring_view path, std::wstring_view name,
                                 const std::vector<std::wstring>& list) {
    Put(path, name, MultiText(list));
}

void MemoryRegistry::PutAll(const RegistrySnapshot& snapshot) {
    for (const auto& [path, values] : snapshot) {
        PutKey(path);
        for (const auto& [name, data] : values) {
            Put(path, name, data);
        }
    }
}

void MemoryRegistry::RemoveValue(std::wstring_view path, std::wstring_view name) {
    if (const std::shared_ptr<StoredKey> key = FindKey(path)) {
        std::erase_if(key->values, [name](const auto& value) { return IsSameName(value.first, name); });
    }
}

void MemoryRegistry::PutSubkeysFirst(std::wstring_view path, const std::vector<std::wstring>& names) {
    const std::shared_ptr<StoredKey> key = FindKey(path);
    std::vector<std::shared_ptr<StoredKey>> ordered;
    for (const std::wstring& name : names) {
        ordered.push_back(key->Subkey(name));
        std::erase(key->subkeys, ordered.back());
    }
    key->subkeys.insert(key->subkeys.begin(), ordered.begin(), ordered.end());
}

bool MemoryRegistry::HasKey(std::wstring_view path) const {
    return FindKey(path) != nullptr;
}

std::optional<StoredData> MemoryRegistry::Find(std::wstring_view path, std::wstring_view name) const {
    const std::shared_ptr<StoredKey> key = FindKey(path);
    const StoredData* const found = key ? key->FindValue(name) : nullptr;
    return found == nullptr ? std::nullopt : std::optional(*found);
}

std::vector<std::wstring> MemoryRegistry::SubkeyNames(std::wstring_view path) const {
    std::vector<std::wstring> names;
    if (const std::shared_ptr<StoredKey> key = FindKey(path)) {
        for (const auto& subkey : key->subkeys) {
            names.push_back(subkey->name);
        }
    }
    return names;
}

RegistrySnapshot MemoryRegistry::Snapshot() const {
    RegistrySnapshot snapshot;
    for (const auto& subkey : root_->subkeys) {
        subkey->CopyTo(snapshot, subkey->name);
    }
    return snapshot;
}

std::string Describe(const RegistryCall& call) {
    constexpr const char* kNames[] = {"open",      "create",     "delete", "close",
                                      "enumerate", "query size", "query",  "set"};
    std::ostringstream text;
    text << kNames[static_cast<std::size_t>(call.operation)] << ' ' << Printable(call.keyPath);
    if (!call.name.empty()) {
        text << " [" << Printable(call.name) << ']';
    }
    text << " = " << call.code;
    return text.str();
}

}  // namespace corvane::test
