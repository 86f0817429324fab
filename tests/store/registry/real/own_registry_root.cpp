#include "tests/store/registry/real/own_registry_root.h"

#include <stdexcept>

namespace corvane::test {

namespace {

void Check(LSTATUS status, const char* what) {
    if (status != ERROR_SUCCESS) {
        throw std::runtime_error(std::string(what) + " gave " + std::to_string(status));
    }
}

class OpenedKey {
  public:
    OpenedKey(HKEY parent, const std::wstring& path) {
        Check(RegOpenKeyExW(parent, path.c_str(), 0, KEY_READ, &key_), "opening a key");
    }
    ~OpenedKey() { RegCloseKey(key_); }
    OpenedKey(const OpenedKey&) = delete;
    OpenedKey& operator=(const OpenedKey&) = delete;
    OpenedKey(OpenedKey&&) = delete;
    OpenedKey& operator=(OpenedKey&&) = delete;

    [[nodiscard]] std::vector<std::wstring> SubkeyNames() const {
        std::vector<std::wstring> names;
        wchar_t name[256];
        for (DWORD index = 0;; ++index) {
            DWORD length = 256;
            const LSTATUS status =
                RegEnumKeyExW(key_, index, name, &length, nullptr, nullptr, nullptr, nullptr);
            if (status == ERROR_NO_MORE_ITEMS) {
                return names;
            }
            Check(status, "enumerating subkeys");
            names.emplace_back(name, length);
        }
    }

    [[nodiscard]] std::map<std::wstring, StoredData> Values() const {
        std::map<std::wstring, StoredData> values;
        std::vector<wchar_t> name(16384);
        for (DWORD index = 0;; ++index) {
            auto length = static_cast<DWORD>(name.size());
            StoredData data;
            data.bytes.resize(65536);
            auto size = static_cast<DWORD>(data.bytes.size());
            DWORD type = 0;
            const LSTATUS status =
                RegEnumValueW(key_, index, name.data(), &length, nullptr, &type, data.bytes.data(), &size);
            if (status == ERROR_NO_MORE_ITEMS) {
                return values;
            }
            Check(status, "enumerating values");
            data.type = type;
            data.bytes.resize(size);
            values[std::wstring(name.data(), length)] = data;
        }
    }

  private:
    HKEY key_ = nullptr;
};

void CopyTo(RegistrySnapshot& snapshot, const std::wstring& path) {
    const OpenedKey key(HKEY_CURRENT_USER, path);
    if (!path.empty()) {
        snapshot[path] = key.Values();
    }
    for (const std::wstring& name : key.SubkeyNames()) {
        CopyTo(snapshot, path.empty() ? name : path + L'\\' + name);
    }
}

}  // namespace

OwnRegistryRoot::OwnRegistryRoot()
    : name_(L"Software\\CorvaneTest" + std::to_wstring(GetCurrentProcessId())) {
    DWORD disposition = 0;
    Check(RegCreateKeyExW(HKEY_CURRENT_USER, name_.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                          KEY_ALL_ACCESS, nullptr, &key_, &disposition),
          "creating a root");
    if (disposition != REG_CREATED_NEW_KEY) {
        throw std::runtime_error("the root of the test exists already");
    }
    Check(RegOverridePredefKey(HKEY_CURRENT_USER, key_), "redirecting HKEY_CURRENT_USER");
}

OwnRegistryRoot::~OwnRegistryRoot() {
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegCloseKey(key_);
    RegDeleteTreeW(HKEY_CURRENT_USER, name_.c_str());
}

void OwnRegistryRoot::PutKey(const std::wstring& path) {
    HKEY key = nullptr;
    Check(RegCreateKeyW(HKEY_CURRENT_USER, path.c_str(), &key), "creating a key");
    RegCloseKey(key);
}

void OwnRegistryRoot::Put(const std::wstring& path, const std::wstring& name, const StoredData& data) {
    HKEY key = nullptr;
    Check(RegCreateKeyW(HKEY_CURRENT_USER, path.c_str(), &key), "creating a key");
    // The system looks behind the data of a text for the terminator that it lacks, and stores it too. Here it
    // shall find none.
    std::vector<std::uint8_t> guarded = data.bytes;
    guarded.insert(guarded.end(), {0xFF, 0xFF, 0xFF, 0xFF});
    const LSTATUS status = RegSetValueExW(key, name.c_str(), 0, data.type, guarded.data(),
                                          static_cast<DWORD>(data.bytes.size()));
    RegCloseKey(key);
    Check(status, "setting a value");
}

void OwnRegistryRoot::PutAll(const RegistrySnapshot& snapshot) {
    for (const auto& [path, values] : snapshot) {
        PutKey(path);
        for (const auto& [name, data] : values) {
            Put(path, name, data);
        }
    }
}

std::optional<StoredData> OwnRegistryRoot::Find(const std::wstring& path, const std::wstring& name) const {
    const std::map<std::wstring, StoredData> values = OpenedKey(HKEY_CURRENT_USER, path).Values();
    const auto found = values.find(name);
    return found == values.end() ? std::nullopt : std::optional(found->second);
}

std::vector<std::wstring> OwnRegistryRoot::SubkeyNames(const std::wstring& path) const {
    return OpenedKey(HKEY_CURRENT_USER, path).SubkeyNames();
}

RegistrySnapshot OwnRegistryRoot::Snapshot() const {
    RegistrySnapshot snapshot;
    CopyTo(snapshot, {});
    return snapshot;
}

}  // namespace corvane::test
