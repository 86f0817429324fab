#include "store/registry/registry_calls.h"

#include <windows.h>

#include <utility>

#include "store/registry/registry_access.h"
#include "store/system_codes.h"
#include "toolkit/system/libraries.h"

namespace corvane::store {

namespace {

// What deciding code knows of the platform's numbers without its headers.
static_assert(kTypeText == REG_SZ && kTypeExpandableText == REG_EXPAND_SZ && kTypeBinary == REG_BINARY &&
              kTypeNumber == REG_DWORD && kTypeTextList == REG_MULTI_SZ);
static_assert(kCodeNotFound == ERROR_FILE_NOT_FOUND && kCodeInvalidData == ERROR_INVALID_DATA &&
              kCodeMoreData == ERROR_MORE_DATA && kCodeNoMoreItems == ERROR_NO_MORE_ITEMS);
static_assert(kCodePathNotFound == ERROR_PATH_NOT_FOUND && kCodeNotEnoughMemory == ERROR_NOT_ENOUGH_MEMORY &&
              kCodeFileExists == ERROR_FILE_EXISTS);
static_assert(kReadWriteAccess == (KEY_READ | KEY_WRITE));

/// What a transacted call gives where the system lacks it.
constexpr std::uint32_t kCodeInvalidFunction = ERROR_INVALID_FUNCTION;

HKEY SystemKey(RegistryCalls::Key key) {
    return key == nullptr ? HKEY_CURRENT_USER : static_cast<HKEY>(key);
}

std::uint32_t Code(LSTATUS status) {
    return static_cast<std::uint32_t>(status);
}

/// Hands an opened key on, on success only. The key is taken by reference, for the call that fills it may
/// well be evaluated after the argument.
std::uint32_t HandOver(LSTATUS status, const HKEY& opened, RegistryCalls::Key& key) {
    if (status == ERROR_SUCCESS) {
        key = opened;
    }
    return Code(status);
}

}  // namespace

WindowsRegistryCalls::WindowsRegistryCalls(std::wstring moduleName) : moduleName_(std::move(moduleName)) {}

std::uint32_t WindowsRegistryCalls::Open(Key parent, const std::wstring& path, std::uint32_t access,
                                         Transaction transaction, Key& key) {
    HKEY opened = nullptr;
    if (transaction == nullptr) {
        return HandOver(RegOpenKeyExW(SystemKey(parent), path.c_str(), 0, access, &opened), opened, key);
    }
    const auto openTransacted = toolkit::FindSystemFunction<decltype(&RegOpenKeyTransactedW)>(
        moduleName_.c_str(), "RegOpenKeyTransactedW");
    if (openTransacted == nullptr) {
        return kCodeInvalidFunction;
    }
    return HandOver(openTransacted(SystemKey(parent), path.c_str(), 0, access, &opened, transaction, nullptr),
                    opened, key);
}

std::uint32_t WindowsRegistryCalls::Create(Key parent, const std::wstring& path, std::uint32_t access,
                                           Transaction transaction, Key& key) {
    HKEY opened = nullptr;
    if (transaction == nullptr) {
        return HandOver(RegCreateKeyExW(SystemKey(parent), path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                        access, nullptr, &opened, nullptr),
                        opened, key);
    }
    const auto createTransacted = toolkit::FindSystemFunction<decltype(&RegCreateKeyTransactedW)>(
        moduleName_.c_str(), "RegCreateKeyTransactedW");
    if (createTransacted == nullptr) {
        return kCodeInvalidFunction;
    }
    return HandOver(createTransacted(SystemKey(parent), path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                     access, nullptr, &opened, nullptr, transaction, nullptr),
                    opened, key);
}

std::uint32_t WindowsRegistryCalls::Delete(Key parent, const std::wstring& name, std::uint32_t viewBits,
                                           Transaction transaction) {
    if (transaction != nullptr) {
        const auto deleteTransacted = toolkit::FindSystemFunction<decltype(&RegDeleteKeyTransactedW)>(
            moduleName_.c_str(), "RegDeleteKeyTransactedW");
        return deleteTransacted == nullptr ? kCodeInvalidFunction
                                           : Code(deleteTransacted(SystemKey(parent), name.c_str(), viewBits,
                                                                   0, transaction, nullptr));
    }
    const auto deleteInView =
        toolkit::FindSystemFunction<decltype(&RegDeleteKeyExW)>(moduleName_.c_str(), "RegDeleteKeyExW");
    // A system without the extended delete has one view only, so the plain one does the same there.
    return Code(deleteInView == nullptr ? RegDeleteKeyW(SystemKey(parent), name.c_str())
                                        : deleteInView(SystemKey(parent), name.c_str(), viewBits, 0));
}

std::uint32_t WindowsRegistryCalls::Close(Key key) {
    return Code(RegCloseKey(static_cast<HKEY>(key)));
}

std::uint32_t WindowsRegistryCalls::EnumerateSubkey(Key key, std::uint32_t index, std::uint32_t capacityChars,
                                                    std::wstring& name) {
    // The name's memory is the buffer: its elements and the NUL behind them.
    name.resize(capacityChars - 1);
    DWORD lengthChars = capacityChars;
    const LSTATUS status =
        RegEnumKeyExW(SystemKey(key), index, name.data(), &lengthChars, nullptr, nullptr, nullptr, nullptr);
    name.resize(status == ERROR_SUCCESS ? lengthChars : 0);
    return Code(status);
}

std::uint32_t WindowsRegistryCalls::Query(Key key, const std::wstring& name, void* data,
                                          std::uint32_t capacityBytes, std::uint32_t& type,
                                          std::uint32_t& sizeBytes) {
    DWORD foundType = 0;
    DWORD foundSize = capacityBytes;
    const LSTATUS status = RegQueryValueExW(SystemKey(key), name.c_str(), nullptr, &foundType,
                                            static_cast<BYTE*>(data), &foundSize);
    if (status == ERROR_SUCCESS) {
        type = foundType;
        sizeBytes = foundSize;
    }
    return Code(status);
}

std::uint32_t WindowsRegistryCalls::Set(Key key, const std::wstring& name, std::uint32_t type,
                                        const void* data, std::uint32_t sizeBytes) {
    return Code(
        RegSetValueExW(SystemKey(key), name.c_str(), 0, type, static_cast<const BYTE*>(data), sizeBytes));
}

}  // namespace corvane::store
