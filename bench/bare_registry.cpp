#include "bench/bare_registry.h"

#include <windows.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "config/registry_layout.h"

namespace {

using corvane::StoredAs;
using corvane::StoredValue;

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
            const OpenKey provider(HKEY_CURRENT_USER, corvane::kProviderProfilesKey);
            for (const std::wstring& name : Subkeys(provider.Get())) {
                const OpenKey key(provider.Get(), name);
                Read(key.Get(), corvane::ProviderProfileLayout());
            }
        }
        const OpenKey program(HKEY_CURRENT_USER, corvane::kProgramKey);
        const std::vector<std::wstring> profiles = Subkeys(program.Get());
        Read(program.Get(), corvane::WindowLayout());
        Read(program.Get(), corvane::SettingsLayout());
        for (const std::wstring& name : profiles) {
            const OpenKey profile(program.Get(), name);
            Read(profile.Get(), corvane::ProfileLayout());
            const OpenKey rules(profile.Get(), corvane::kRulesSubkey);
            for (const std::wstring& ruleName : Subkeys(rules.Get())) {
                ReadRule(rules.Get(), ruleName);
            }
        }
    }

  private:
    void ReadRule(HKEY rules, const std::wstring& name) {
        const OpenKey rule(rules, name);
        Read(rule.Get(), corvane::RuleLayout());
        for (const std::wstring& groupName : Subkeys(rule.Get())) {
            const OpenKey group(rule.Get(), groupName);
            Read(group.Get(), corvane::SignerGroupLayout());
        }
    }

    template <typename Layout>
    void Read(HKEY key, const Layout& layout) {
        DWORD count = 0;
        for (const auto& row : layout) {
            if (row.storedAs == StoredAs::kElements) {
                for (DWORD index = 0; index < count; ++index) {
                    Query(key, corvane::ElementName(row.name, index).c_str());
                }
            } else if (row.storedAs != StoredAs::kOldElement || count == 0) {
                Query(key, row.name.Literal());
                if (row.storedAs == StoredAs::kCount) {
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

std::wstring Joined(const corvane::TextList& list) {
    std::wstring joined;
    for (const std::wstring& element : list) {
        joined += element;
        joined += L'\0';
    }
    return joined;
}

std::wstring Joined(const corvane::NumberList& list) {
    std::wstring joined;
    for (const std::int32_t number : list) {
        joined += std::to_wstring(number);
        joined += L'\0';
    }
    return joined;
}

template <typename Record>
void Write(HKEY key, std::span<const StoredValue<Record>> layout, const Record& record) {
    for (const StoredValue<Record>& row : layout) {
        switch (row.storedAs) {
            case StoredAs::kNumber:
                SetNumber(key, row.name.Literal(), record.*row.number);
                break;
            case StoredAs::kText:
                SetText(key, row.name.Literal(), record.*row.text);
                break;
            case StoredAs::kTextList:
            case StoredAs::kTextArray:
                SetText(key, row.name.Literal(), Joined(record.*row.texts), REG_MULTI_SZ);
                break;
            case StoredAs::kNumberList:
                SetText(key, row.name.Literal(), Joined(record.*row.numbers), REG_MULTI_SZ);
                break;
            case StoredAs::kCount:
                SetNumber(key, row.name.Literal(), static_cast<std::int32_t>((record.*row.texts).size()));
                break;
            case StoredAs::kElements:
                for (std::size_t index = 0; index < (record.*row.texts).size(); ++index) {
                    SetText(key, corvane::ElementName(row.name, index).c_str(), (record.*row.texts)[index]);
                }
                break;
            case StoredAs::kOldElement:
                break;
        }
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

void WriteWithBareCalls(const corvane::ConfigurationState& state) {
    const OpenKey program(HKEY_CURRENT_USER, corvane::kProgramKey);
    Write(program.Get(), corvane::WindowLayout(), state.settings.window);
    Write(program.Get(), corvane::SettingsLayout(), state.settings);
    for (const corvane::Profile& record : state.profiles) {
        const OpenKey profile(program.Get(), record.name, true);
        Write(profile.Get(), corvane::ProfileLayout(), record);
        DeleteTree(profile.Get(), corvane::kRulesSubkey);
        const OpenKey rules(profile.Get(), corvane::kRulesSubkey, true);
        for (std::size_t position = 0; position < record.rules.size(); ++position) {
            const OpenKey rule(rules.Get(), corvane::RuleKeyName(position), true);
            Write(rule.Get(), corvane::RuleLayout(), record.rules[position]);
            for (const corvane::SignerGroup& list : record.rules[position].signerGroups) {
                const OpenKey group(rule.Get(), list.name, true);
                Write(group.Get(), corvane::SignerGroupLayout(), list);
            }
        }
    }
}

void PrepareRegistry() {
    const OpenKey provider(HKEY_CURRENT_USER, kSampleProvider, true);
    SetText(provider.Get(), L"ProfileName", L"Signature 2012");
    const OpenKey program(HKEY_CURRENT_USER, corvane::kProgramKey, true);
}

void CleanRegistry() {
    const OpenKey software(HKEY_CURRENT_USER, L"SOFTWARE");
    DeleteTree(software.Get(), L"HOLVAN");
}
