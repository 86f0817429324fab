#include "bench/bare_registry.h"

#include <windows.h>

#include <array>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "store/registry/registry_layout.h"

namespace {

constexpr REGSAM kAccess = 0x2001F;
constexpr wchar_t kSampleProvider[] = L"SOFTWARE\\HOLVAN\\tarn\\Profiles\\bench";

/// A key that is open for as long as this object lives.
class OpenKey {
  public:
    OpenKey(HKEY parent, const std::wstring& path, bool isNew = false) {
        if (isNew) {
            RegCreateKeyExW(parent, path.c_str(), 0, nullptr, 0, kAccess, nullptr, &key_, nullptr);
        } else {
            RegOpenKeyExW(parent, path.c_str(), 0, kAccess, &key_);
        }
    }
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;
    OpenKey(OpenKey&&) = delete;
    OpenKey& operator=(OpenKey&&) = delete;
    ~OpenKey() { RegCloseKey(key_); }

    [[nodiscard]] HKEY Get() const { return key_; }

  private:
    HKEY key_ = nullptr;
};

class BareReader {
  public:
    void ReadAll() {
        {
            const OpenKey provider(HKEY_CURRENT_USER, corvane::store::kProviderProfilesKey);
            for (const std::wstring& name : Subkeys(provider.Get())) {
                const OpenKey key(provider.Get(), name);
                Read(key.Get(), corvane::store::ProviderProfileLayout());
            }
        }
        const OpenKey program(HKEY_CURRENT_USER, corvane::store::kProgramKey);
        const std::vector<std::wstring> profiles = Subkeys(program.Get());
        Read(program.Get(), corvane::store::WindowLayout());
        Read(program.Get(), corvane::store::SettingsLayout());
        for (const std::wstring& name : profiles) {
            const OpenKey profile(program.Get(), name);
            Read(profile.Get(), corvane::store::ProfileLayout());
            const OpenKey rules(profile.Get(), corvane::store::kRulesSubkey);
            for (const std::wstring& ruleName : Subkeys(rules.Get())) {
                ReadRule(rules.Get(), ruleName);
            }
        }
    }

  private:
    void ReadRule(HKEY rules, const std::wstring& name) {
        const OpenKey rule(rules, name);
        Read(rule.Get(), corvane::store::RuleLayout());
        for (const std::wstring& groupName : Subkeys(rule.Get())) {
            const OpenKey group(rule.Get(), groupName);
            Read(group.Get(), corvane::store::SignerGroupLayout());
        }
    }

    template <typename Record>
    void Read(HKEY key, std::span<const corvane::store::StoredValue<Record>> layout) {
        DWORD count = 0;
        for (const corvane::store::StoredValue<Record>& row : layout) {
            if (std::holds_alternative<corvane::store::StoredElements<Record>>(row.kind)) {
                for (DWORD index = 0; index < count; ++index) {
                    Query(key, corvane::store::ElementName(row.name, index).c_str());
                }
            } else if (!std::holds_alternative<corvane::store::StoredOldElement<Record>>(row.kind) ||
                       count == 0) {
                Query(key, row.name);
                if (std::holds_alternative<corvane::store::StoredCount<Record>>(row.kind)) {
                    count = buffer_[0];  // The sample has fewer than 256 of anything.
                }
            }
        }
    }

    void Query(HKEY key, const wchar_t* name) {
        DWORD type = 0;
        auto size = static_cast<DWORD>(buffer_.size());
        RegQueryValueExW(key, name, nullptr, &type, buffer_.data(), &size);
    }

    static std::vector<std::wstring> Subkeys(HKEY key) {
        std::vector<std::wstring> names;
        std::array<wchar_t, 260> name{};
        for (DWORD index = 0;; ++index) {
            auto length = static_cast<DWORD>(name.size());
            if (RegEnumKeyExW(key, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr) != 0) {
                return names;
            }
            names.emplace_back(name.data(), length);
        }
    }

    std::array<BYTE, 1040> buffer_{};
};

void SetNumber(HKEY key, const wchar_t* name, std::int32_t number) {
    RegSetValueExW(key, name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number), sizeof number);
}

void SetText(HKEY key, const wchar_t* name, const std::wstring& text, DWORD type = REG_SZ) {
    RegSetValueExW(key, name, 0, type, reinterpret_cast<const BYTE*>(text.c_str()),
                   static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

std::wstring Joined(const corvane::store::TextList& list) {
    std::wstring joined;
    for (const std::wstring& element : list) {
        joined += element;
        joined += L'\0';
    }
    return joined;
}

std::wstring Joined(const corvane::store::NumberList& list) {
    std::wstring joined;
    for (const std::int32_t number : list) {
        joined += std::to_wstring(number);
        joined += L'\0';
    }
    return joined;
}

/// Writes one value of a record the way its kind wants it.
template <typename Record>
struct ValueWriter {
    HKEY key;
    const wchar_t* name;
    const Record& record;

    void operator()(const corvane::store::StoredNumber<Record>& number) const {
        SetNumber(key, name, record.*number.field);
    }
    void operator()(const corvane::store::StoredText<Record>& text) const {
        SetText(key, name, record.*text.field);
    }
    void operator()(const corvane::store::StoredTextList<Record>& list) const {
        SetText(key, name, Joined(record.*list.field), REG_MULTI_SZ);
    }
    void operator()(const corvane::store::StoredTextArray<Record>& array) const {
        SetText(key, name, Joined(record.*array.field), REG_MULTI_SZ);
    }
    void operator()(const corvane::store::StoredNumberList<Record>& list) const {
        SetText(key, name, Joined(record.*list.field), REG_MULTI_SZ);
    }
    void operator()(const corvane::store::StoredCount<Record>& count) const {
        SetNumber(key, name, static_cast<std::int32_t>((record.*count.field).size()));
    }
    void operator()(const corvane::store::StoredElements<Record>& elements) const {
        const corvane::store::TextList& list = record.*elements.field;
        for (std::size_t index = 0; index < list.size(); ++index) {
            SetText(key, corvane::store::ElementName(name, index).c_str(), list[index]);
        }
    }
    void operator()(const corvane::store::StoredOldElement<Record>& /*old*/) const {}
};

template <typename Record>
void Write(HKEY key, std::span<const corvane::store::StoredValue<Record>> layout, const Record& record) {
    for (const corvane::store::StoredValue<Record>& row : layout) {
        std::visit(ValueWriter<Record>{key, row.name, record}, row.kind);
    }
}

/// Deletes a key and what is below it, key by key, as the layout makes a program without the extended
/// functions do.
void DeleteTree(HKEY parent, const std::wstring& name) {
    {
        const OpenKey key(parent, name);
        std::array<wchar_t, 256> subkey{};
        for (;;) {
            auto length = static_cast<DWORD>(subkey.size());
            if (RegEnumKeyExW(key.Get(), 0, subkey.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
                0) {
                break;
            }
            DeleteTree(key.Get(), subkey.data());
        }
    }
    RegDeleteKeyW(parent, name.c_str());
}

}  // namespace

void ReadWithBareCalls() {
    BareReader().ReadAll();
}

void WriteWithBareCalls(const corvane::store::ConfigurationState& state) {
    const OpenKey program(HKEY_CURRENT_USER, corvane::store::kProgramKey);
    Write(program.Get(), corvane::store::WindowLayout(), state.settings.window);
    Write(program.Get(), corvane::store::SettingsLayout(), state.settings);
    for (const corvane::store::Profile& record : state.profiles) {
        const OpenKey profile(program.Get(), record.name, true);
        Write(profile.Get(), corvane::store::ProfileLayout(), record);
        DeleteTree(profile.Get(), corvane::store::kRulesSubkey);
        const OpenKey rules(profile.Get(), corvane::store::kRulesSubkey, true);
        for (std::size_t position = 0; position < record.rules.size(); ++position) {
            const OpenKey rule(rules.Get(), corvane::store::RuleKeyName(position), true);
            Write(rule.Get(), corvane::store::RuleLayout(), record.rules[position]);
            for (const corvane::store::SignerGroup& list : record.rules[position].signerGroups) {
                const OpenKey group(rule.Get(), list.name, true);
                Write(group.Get(), corvane::store::SignerGroupLayout(), list);
            }
        }
    }
}

void PrepareRegistry() {
    const OpenKey provider(HKEY_CURRENT_USER, kSampleProvider, true);
    SetText(provider.Get(), L"ProfileName", L"Signature 2012");
    const OpenKey program(HKEY_CURRENT_USER, corvane::store::kProgramKey, true);
}

void CleanRegistry() {
    const OpenKey software(HKEY_CURRENT_USER, L"SOFTWARE");
    DeleteTree(software.Get(), L"HOLVAN");
}
