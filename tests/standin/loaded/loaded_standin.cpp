#include "tests/standin/loaded/loaded_standin.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>

namespace corvane::standin {
namespace {

constexpr const wchar_t* kTestKey = L"SOFTWARE\\standin_test";
constexpr const wchar_t* kCatalogueKey = L"SOFTWARE\\HOLVAN\\tarn\\Profiles\\";
constexpr std::array<const wchar_t*, 3> kStores = {L"local\\", L"network\\", L"crl\\"};

/// The names of a folder's files.
std::vector<std::wstring> FileNames(const std::wstring& folder) {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW data = {};
    const HANDLE search = FindFirstFileW((folder + L"*").c_str(), &data);
    if (search == INVALID_HANDLE_VALUE) {
        return names;
    }
    do {
        if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
            names.emplace_back(data.cFileName);
        }
    } while (FindNextFileW(search, &data) != FALSE);
    FindClose(search);
    return names;
}

void RemoveFolder(const std::wstring& folder) {
    for (const std::wstring& name : FileNames(folder)) {
        DeleteFileW((folder + name).c_str());
    }
    RemoveDirectoryW(folder.c_str());
}

std::wstring MakeFolder() {
    std::array<wchar_t, MAX_PATH + 1> temporary = {};
    GetTempPathW(static_cast<DWORD>(temporary.size()), temporary.data());
    static int count = 0;
    std::wstring folder = temporary.data() + (L"standin_" + std::to_wstring(GetCurrentProcessId())) + L"_" +
                          std::to_wstring(++count) + L"\\";
    EXPECT_NE(CreateDirectoryW(folder.c_str(), nullptr), FALSE);
    return folder;
}

template <typename Function>
void Bind(HMODULE module, const char* name, Function& function) {
    const FARPROC found = GetProcAddress(module, name);
    ASSERT_NE(found, nullptr) << name;
    function = std::bit_cast<Function>(found);
}

}  // namespace

std::wstring PathFromEnvironment(const wchar_t* variable) {
    std::array<wchar_t, 4096> value = {};
    const DWORD length = GetEnvironmentVariableW(variable, value.data(), static_cast<DWORD>(value.size()));
    EXPECT_NE(length, 0U) << "CTest tells the test where things are";
    std::wstring path(value.data(), length);
    if (path.starts_with(L'/')) {
        path.insert(0, L"Z:");
        std::replace(path.begin(), path.end(), L'/', L'\\');
    }
    return path;
}

std::string ToCodePage(std::wstring_view text) {
    const int size = static_cast<int>(text.size());
    std::string narrow(text.size() * 2, '\0');
    const int length = WideCharToMultiByte(CP_ACP, 0, text.data(), size, narrow.data(),
                                           static_cast<int>(narrow.size()), nullptr, nullptr);
    narrow.resize(static_cast<std::size_t>(length));
    return narrow;
}

LoadedStandIn::LoadedStandIn() : folder_(MakeFolder()), certificates_(folder_ + L"certificates\\") {
    RegDeleteTreeW(HKEY_CURRENT_USER, kTestKey);
    // Not volatile: the system makes keys for certificate stores below it, which it could not do then.
    RegCreateKeyExW(HKEY_CURRENT_USER, kTestKey, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr,
                    &userKey_, nullptr);
    EXPECT_EQ(RegOverridePredefKey(HKEY_CURRENT_USER, userKey_), ERROR_SUCCESS);
    AddCsProfile(L"Profile01", L"Clearing");

    CreateDirectoryW(certificates_.c_str(), nullptr);
    const std::wstring made = PathFromEnvironment(L"STANDIN_CERTIFICATES") + L"\\";
    for (const wchar_t* store : kStores) {
        CreateDirectoryW((certificates_ + store).c_str(), nullptr);
        const std::vector<std::wstring> names = FileNames(made + store);
        EXPECT_FALSE(names.empty()) << "no certificates were made";
        for (const std::wstring& name : names) {
            EXPECT_NE(CopyFileW((made + store + name).c_str(), (certificates_ + store + name).c_str(), TRUE),
                      FALSE);
        }
    }

    const std::wstring library = folder_ + L"tarn1.dll";
    EXPECT_NE(CopyFileW(PathFromEnvironment(L"STANDIN_LIBRARY").c_str(), library.c_str(), TRUE), FALSE);
    module_ = LoadLibraryW(library.c_str());
    EXPECT_NE(module_, nullptr) << "error " << GetLastError();
    Bind(module_, "XSIG_Initialize", functions_.initialize);
    Bind(module_, "XSIG_Uninitialize", functions_.uninitialize);
    Bind(module_, "XSIG_Ctrl", functions_.control);
    Bind(module_, "XSIG_FindCert", functions_.findCert);
    Bind(module_, "XSIG_FreeFindResult", functions_.freeFindResult);
    Bind(module_, "XSIG_GetErrorText", functions_.getErrorText);
    Bind(module_, "XSIG_GetErrorLineEx", functions_.getErrorLine);
    Bind(module_, "XSIG_FreeMem", functions_.freeMem);
}

LoadedStandIn::~LoadedStandIn() {
    FreeLibrary(module_);
    for (const wchar_t* store : kStores) {
        RemoveFolder(certificates_ + store);
    }
    RemoveFolder(certificates_);
    RemoveFolder(folder_);
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegCloseKey(userKey_);
    RegDeleteTreeW(HKEY_CURRENT_USER, kTestKey);
}

void LoadedStandIn::AddCsProfile(const wchar_t* subkey, const wchar_t* name) {
    HKEY key = nullptr;
    const std::wstring path = std::wstring(kCatalogueKey) + subkey;
    ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                              KEY_ALL_ACCESS, nullptr, &key, nullptr),
              ERROR_SUCCESS);
    const auto sizeBytes = static_cast<DWORD>((std::wcslen(name) + 1) * sizeof(wchar_t));
    EXPECT_EQ(RegSetKeyValueW(key, nullptr, L"ProfileName", REG_SZ, name, sizeBytes), ERROR_SUCCESS);
    RegCloseKey(key);
}

provider::ProviderContext LoadedStandIn::Open(std::uint32_t flags) {
    provider::ProviderContext context = 0;
    EXPECT_EQ(functions_.initialize("Clearing", flags, &context), 0U);
    return context;
}

std::uint32_t LoadedStandIn::Search(provider::ProviderContext context, std::uint32_t flags,
                                    const char* pattern, std::vector<FoundCertificate>& found) {
    provider::CertQuery query;
    query.searchFlags = flags;
    query.matchMode = pattern == nullptr ? 0 : 4;
    query.ownerPattern = pattern;
    query.fieldsWanted = 0x28084;
    provider::CertFindResult result;
    const std::uint32_t status = functions_.findCert(context, &query, &result);
    found.clear();
    for (std::uint32_t index = 0; index < result.count; ++index) {
        const provider::CertEntry& entry = result.entries[index];
        found.push_back(
            {entry.owner, entry.issuer, entry.usage, {entry.serial, entry.serial + entry.serialLength}});
    }
    EXPECT_EQ(functions_.freeFindResult(context, &result), 0U);
    return status;
}

std::vector<FoundError> LoadedStandIn::PopErrors(provider::ProviderContext context) {
    std::vector<FoundError> errors;
    provider::XsigBlob text;
    provider::XsigBlob file;
    provider::XsigBlob data;
    std::uint32_t line = 0;
    while (functions_.getErrorLine(context, &text, &file, &line, &data) == 0) {
        errors.push_back({{text.data, text.length}, {data.data, data.length}});
        EXPECT_EQ(std::string(file.data, file.length), "standin_provider.cpp");
        EXPECT_GT(line, 0U);
        for (const provider::XsigBlob& blob : {text, file, data}) {
            EXPECT_EQ(functions_.freeMem(0, blob.data), 0U);
        }
    }
    return errors;
}

}  // namespace corvane::standin
