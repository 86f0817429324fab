#include "tests/kit/driver/registry.h"

#include <windows.h>

#include <cstring>
#include <memory>
#include <type_traits>

#include "tests/kit/driver/failure.h"

namespace corvane::test {
namespace {

constexpr wchar_t kAsideKey[] = L"SOFTWARE\\HOLVAN set aside by tests";

struct KeyCloser {
    using pointer = HKEY;
    void operator()(HKEY key) const { RegCloseKey(key); }
};
using UniqueKey = std::unique_ptr<HKEY, KeyCloser>;

std::wstring FullPath(const std::wstring& path) {
    return path.empty() ? std::wstring(kMakerKey) : std::wstring(kMakerKey) + L"\\" + path;
}

UniqueKey Open(const std::wstring& fullPath) {
    HKEY key = nullptr;
    RegOpenKeyExW(HKEY_CURRENT_USER, fullPath.c_str(), 0, KEY_READ, &key);
    return UniqueKey(key);
}

UniqueKey Create(const std::wstring& fullPath) {
    HKEY key = nullptr;
    const LSTATUS code = RegCreateKeyExW(HKEY_CURRENT_USER, fullPath.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                                         nullptr, &key, nullptr);
    if (code != ERROR_SUCCESS) {
        throw Failure(L"The registry key " + fullPath + L" could not be created (system code " +
                      std::to_wstring(code) + L").");
    }
    return UniqueKey(key);
}

UniqueKey OpenExisting(const std::wstring& path) {
    UniqueKey key = Open(FullPath(path));
    if (!key) {
        throw Failure(L"The registry key " + FullPath(path) + L" was expected, and there is none.");
    }
    return key;
}

std::wstring TextOf(const std::vector<BYTE>& bytes) {
    std::wstring text(bytes.size() / sizeof(wchar_t), L'\0');
    std::memcpy(text.data(), bytes.data(), text.size() * sizeof(wchar_t));
    return text;
}

RegistryData DataOf(DWORD type, const std::vector<BYTE>& bytes, const std::wstring& name) {
    if (type == REG_DWORD && bytes.size() == sizeof(std::uint32_t)) {
        std::uint32_t number = 0;
        std::memcpy(&number, bytes.data(), sizeof number);
        return number;
    }
    if (type == REG_SZ) {
        const std::wstring text = TextOf(bytes);
        return text.substr(0, text.find(L'\0'));
    }
    if (type == REG_MULTI_SZ) {
        const std::wstring text = TextOf(bytes);
        Texts elements;
        for (std::size_t start = 0; start < text.size() && text[start] != L'\0';) {
            const std::size_t end = text.find(L'\0', start);
            elements.push_back(text.substr(start, end - start));
            start = end == std::wstring::npos ? text.size() : end + 1;
        }
        return elements;
    }
    throw Failure(L"The registry value \"" + name + L"\" is of type " + std::to_wstring(type) + L" with " +
                  std::to_wstring(bytes.size()) + L" bytes, which no value of this program is.");
}

void CopyTree(const wchar_t* from, const wchar_t* to) {
    const UniqueKey source = Open(from);
    if (source) {
        RegCopyTreeW(source.get(), nullptr, Create(to).get());
    }
}

}  // namespace

RegistryOfTest::RegistryOfTest() {
    // What an interrupted run has set aside is the developer's, not what it left in the key itself.
    if (!Open(kAsideKey)) {
        CopyTree(kMakerKey, kAsideKey);
    }
    RegDeleteTreeW(HKEY_CURRENT_USER, kMakerKey);
}

RegistryOfTest::~RegistryOfTest() {
    RegDeleteTreeW(HKEY_CURRENT_USER, kMakerKey);
    CopyTree(kAsideKey, kMakerKey);
    RegDeleteTreeW(HKEY_CURRENT_USER, kAsideKey);
}

void CreateRegistryKey(const std::wstring& path) {
    Create(FullPath(path));
}

void DeleteRegistryKey(const std::wstring& path) {
    RegDeleteTreeW(HKEY_CURRENT_USER, FullPath(path).c_str());
}

void WriteRegistryValue(const std::wstring& path, const std::wstring& name, const RegistryData& data) {
    const UniqueKey key = Create(FullPath(path));
    DWORD type = REG_DWORD;
    std::vector<BYTE> bytes;
    const auto append = [&bytes](const void* source, std::size_t size) {
        const auto* start = static_cast<const BYTE*>(source);
        bytes.insert(bytes.end(), start, start + size);
    };
    if (const auto* number = std::get_if<std::uint32_t>(&data)) {
        append(number, sizeof *number);
    } else if (const auto* text = std::get_if<std::wstring>(&data)) {
        type = REG_SZ;
        append(text->c_str(), (text->size() + 1) * sizeof(wchar_t));
    } else {
        type = REG_MULTI_SZ;
        for (const std::wstring& element : std::get<Texts>(data)) {
            append(element.c_str(), (element.size() + 1) * sizeof(wchar_t));
        }
        append(L"", sizeof(wchar_t));
    }
    RegSetValueExW(key.get(), name.c_str(), 0, type, bytes.data(), static_cast<DWORD>(bytes.size()));
}

bool RegistryKeyExists(const std::wstring& path) {
    return Open(FullPath(path)) != nullptr;
}

RegistryData ReadRegistryValue(const std::wstring& path, const std::wstring& name) {
    const UniqueKey key = OpenExisting(path);
    DWORD type = 0;
    DWORD size = 0;
    if (RegQueryValueExW(key.get(), name.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS) {
        throw Failure(L"The registry value \"" + name + L"\" was expected in " + FullPath(path) +
                      L", and there is none.");
    }
    std::vector<BYTE> bytes(size);
    RegQueryValueExW(key.get(), name.c_str(), nullptr, &type, bytes.data(), &size);
    return DataOf(type, bytes, name);
}

RegistryValues ReadRegistryValues(const std::wstring& path) {
    const UniqueKey key = OpenExisting(path);
    RegistryValues values;
    std::wstring name(512, L'\0');
    for (DWORD index = 0;; ++index) {
        auto length = static_cast<DWORD>(name.size());
        if (RegEnumValueW(key.get(), index, name.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS) {
            return values;
        }
        const std::wstring found = name.substr(0, length);
        values[found] = ReadRegistryValue(path, found);
    }
}

Texts RegistrySubkeys(const std::wstring& path) {
    const UniqueKey key = OpenExisting(path);
    Texts names;
    std::wstring name(512, L'\0');
    for (DWORD index = 0;; ++index) {
        auto length = static_cast<DWORD>(name.size());
        if (RegEnumKeyExW(key.get(), index, name.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS) {
            return names;
        }
        names.push_back(name.substr(0, length));
    }
}

std::map<std::wstring, RegistryValues> ReadRegistryTree(const std::wstring& path) {
    std::map<std::wstring, RegistryValues> tree;
    tree[L""] = ReadRegistryValues(path);
    for (const std::wstring& name : RegistrySubkeys(path)) {
        const std::wstring below = path.empty() ? name : path + L"\\" + name;
        for (auto& [key, values] : ReadRegistryTree(below)) {
            tree[key.empty() ? name : name + L"\\" + key] = std::move(values);
        }
    }
    return tree;
}

}  // namespace corvane::test
