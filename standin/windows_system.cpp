#include "standin/windows_system.h"

#include <algorithm>
#include <array>
#include <memory>
#include <type_traits>

#include "standin/crypt_decoding.h"
#include "standin/folder_files.h"

namespace corvane::standin {
namespace {

const std::vector<std::wstring_view> kCertificateExtensions = {L".cer", L".crt", L".pem"};
const std::vector<std::wstring_view> kRevocationListExtensions = {L".crl"};

struct StoreCloser {
    void operator()(void* store) const { CertCloseStore(store, 0); }
};
using StoreHandle = std::unique_ptr<void, StoreCloser>;

struct KeyCloser {
    void operator()(HKEY key) const { RegCloseKey(key); }
};
using KeyHandle = std::unique_ptr<std::remove_pointer_t<HKEY>, KeyCloser>;

std::wstring Widen(std::string_view text) {
    const int size = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');
    const int length = size == 0 ? 0 : MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), size);
    wide.resize(static_cast<std::size_t>(length));
    return wide;
}

/// The folder of this library, wherever the program that loaded it stands.
std::wstring OwnFolder() {
    HMODULE self = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<const wchar_t*>(&OwnFolder), &self);
    std::wstring path(MAX_PATH, L'\0');
    DWORD length = GetModuleFileNameW(self, path.data(), static_cast<DWORD>(path.size()));
    while (length == path.size()) {
        path.resize(path.size() * 2);
        length = GetModuleFileNameW(self, path.data(), static_cast<DWORD>(path.size()));
    }
    path.resize(length);
    return path.substr(0, path.find_last_of(L'\\') + 1);
}

/// A store that the user does not have yet holds no certificates; it is not made for the asking.
void AddSystemStore(const wchar_t* name, std::vector<DecodedCertificate>& certificates) {
    const StoreHandle store(CertOpenStore(
        CERT_STORE_PROV_SYSTEM_W, 0, 0,
        CERT_SYSTEM_STORE_CURRENT_USER | CERT_STORE_READONLY_FLAG | CERT_STORE_OPEN_EXISTING_FLAG, name));
    if (store == nullptr) {
        return;
    }
    const CERT_CONTEXT* certificate = nullptr;
    while ((certificate = CertEnumCertificatesInStore(store.get(), certificate)) != nullptr) {
        certificates.push_back(DecodeCertificate(*certificate));
    }
}

std::vector<CertificateHandle> CertificatesOfFile(const std::wstring& path) {
    std::vector<CertificateHandle> certificates;
    for (const Bytes& encoded : ObjectsOfFile(ReadWholeFile(path).value_or(""), "CERTIFICATE")) {
        if (CertificateHandle certificate = OpenCertificate(encoded); certificate != nullptr) {
            certificates.push_back(std::move(certificate));
        }
    }
    return certificates;
}

/// False when the folder does not exist.
bool AddFolder(const std::wstring& folder, std::vector<DecodedCertificate>& certificates) {
    const auto files = FilesOfFolder(folder, kCertificateExtensions);
    if (!files) {
        return false;
    }
    for (const std::wstring& file : *files) {
        for (const CertificateHandle& certificate : CertificatesOfFile(folder + file)) {
            certificates.push_back(DecodeCertificate(*certificate));
        }
    }
    return true;
}

std::wstring ProfileNameOf(HKEY catalogue, const wchar_t* subkey) {
    constexpr DWORD kLongestNameChars = 520;
    std::array<wchar_t, kLongestNameChars> name = {};
    DWORD sizeBytes = sizeof name;
    const LSTATUS status =
        RegGetValueW(catalogue, subkey, L"ProfileName", RRF_RT_REG_SZ, nullptr, name.data(), &sizeBytes);
    return status == ERROR_SUCCESS ? name.data() : std::wstring();
}

}  // namespace

WindowsSystem::WindowsSystem() : folder_(OwnFolder() + L"certificates\\") {}

bool WindowsSystem::HasCsProfile(std::string_view name) const {
    HKEY opened = nullptr;
    if (name.empty() || RegOpenKeyExW(HKEY_CURRENT_USER, L"SOFTWARE\\HOLVAN\\tarn\\Profiles", 0, KEY_READ,
                                      &opened) != ERROR_SUCCESS) {
        return false;
    }
    const KeyHandle catalogue(opened);
    constexpr DWORD kLongestKeyNameChars = 256;
    std::array<wchar_t, kLongestKeyNameChars> subkey = {};
    for (DWORD index = 0;; ++index) {
        DWORD lengthChars = kLongestKeyNameChars;
        if (RegEnumKeyExW(catalogue.get(), index, subkey.data(), &lengthChars, nullptr, nullptr, nullptr,
                          nullptr) != ERROR_SUCCESS) {
            return false;
        }
        // Compared as the caller can write it: a name with letters that the code page lacks is still found.
        if (Narrow(ProfileNameOf(catalogue.get(), subkey.data())) == name) {
            return true;
        }
    }
}

std::optional<std::vector<DecodedCertificate>> WindowsSystem::Certificates(CertificateStore store) const {
    std::vector<DecodedCertificate> certificates;
    if (store == CertificateStore::kNetwork) {
        return AddFolder(folder_ + L"network\\", certificates) ? std::optional(std::move(certificates))
                                                               : std::nullopt;
    }
    AddSystemStore(L"MY", certificates);
    AddSystemStore(L"AddressBook", certificates);
    // Without a local folder the user's own stores are the local store.
    static_cast<void>(AddFolder(folder_ + L"local\\", certificates));
    return certificates;
}

std::optional<std::vector<RevocationFile>> WindowsSystem::RevocationFiles() const {
    const std::wstring folder = folder_ + L"crl\\";
    const auto lists = FilesOfFolder(folder, kRevocationListExtensions);
    const auto issuerFiles = FilesOfFolder(folder, kCertificateExtensions);
    if (!lists || !issuerFiles) {
        return std::nullopt;
    }
    std::vector<CertificateHandle> issuers;
    for (const std::wstring& name : *issuerFiles) {
        std::ranges::move(CertificatesOfFile(folder + name), std::back_inserter(issuers));
    }
    std::vector<RevocationFile> files;
    for (const std::wstring& name : *lists) {
        RevocationFile file;
        file.fileName = Narrow(name);
        const std::vector<Bytes> objects =
            ObjectsOfFile(ReadWholeFile(folder + name).value_or(""), "X509 CRL");
        DecodeRevocationList(objects.empty() ? Bytes() : objects.front(), issuers, file);
        files.push_back(std::move(file));
    }
    return files;
}

std::string WindowsSystem::NetworkFolder() const {
    return Narrow(folder_ + L"network");
}

std::string WindowsSystem::RevocationFolder() const {
    return Narrow(folder_ + L"crl");
}

std::string WindowsSystem::Narrow(std::wstring_view text) const {
    const int size = static_cast<int>(text.size());
    const int length =
        size == 0 ? 0 : WideCharToMultiByte(CP_ACP, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<std::size_t>(length), '\0');
    if (length > 0) {
        WideCharToMultiByte(CP_ACP, 0, text.data(), size, narrow.data(), length, nullptr, nullptr);
    }
    return narrow;
}

std::wstring WindowsSystem::WidenUpper(std::string_view text) const {
    std::wstring wide = Widen(text);
    CharUpperBuffW(wide.data(), static_cast<DWORD>(wide.size()));
    return wide;
}

}  // namespace corvane::standin
