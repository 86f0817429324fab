#include "store/registry/registry_access.h"

#include <algorithm>
#include <limits>
#include <string>

#include "store/system_codes.h"
#include "toolkit/text/format_text.h"

namespace corvane::store {

namespace {

/// The bits of an access mask that choose the 64-bit or the 32-bit view.
constexpr std::uint32_t kViewMask = 0x300;
constexpr std::uint32_t kKeyNameCapacityChars = 260;
constexpr std::uint32_t kDeletedKeyNameCapacityChars = 256;
/// The flags with which the operations on lists report.
constexpr std::uint32_t kListFlags = 3;
/// What a value of more bytes than the system counts would be refused with.
constexpr std::uint32_t kCodeInvalidParameter = 87;

constexpr char kReadStringOperation[] = "Reading string value '%s' from register";
constexpr char kReadListOperation[] = "Reading multistring value '%s' from register";
constexpr char kWriteIntOperation[] = "Writing integer value '%s' into register";
constexpr char kWriteStringOperation[] = "Writing string value '%s' into register";
constexpr char kWriteListOperation[] = "Writing multistring value '%s' into register";
constexpr char kAllocateOperation[] = "Memory allocation";

bool IsMissingOrWrong(std::uint32_t code) {
    return code == kCodeNotFound || code == kCodeInvalidData;
}

}  // namespace

RegistryAccess::RegistryAccess(RegistryCalls& calls, reporting::ErrorReporter& reporter)
    : calls_(calls), reporter_(reporter), current_(calls) {}

std::uint32_t RegistryAccess::OpenKey(const std::wstring& path, std::uint32_t access) {
    RegistryCalls::Key key = nullptr;
    const std::uint32_t code = calls_.Open(nullptr, path, access, transaction_, key);
    if (code == 0) {
        current_.Replace(key);
        viewBits_ = access & kViewMask;
    }
    return code;
}

std::uint32_t RegistryAccess::CreateKey(const std::wstring& path) {
    RegistryCalls::Key key = nullptr;
    const std::uint32_t code = calls_.Create(nullptr, path, kReadWriteAccess, transaction_, key);
    if (code == 0) {
        current_.Replace(key);
        viewBits_ = kReadWriteAccess & kViewMask;
    }
    return code;
}

std::uint32_t RegistryAccess::RecurseDeleteKey(const std::wstring& name) {
    return RecurseDelete(current_.Get(), name);
}

std::uint32_t RegistryAccess::RecurseDelete(RegistryCalls::Key parent, const std::wstring& name) {
    RegistryCalls::Key opened = nullptr;
    const std::uint32_t openCode =
        calls_.Open(parent, name, kReadWriteAccess | viewBits_, transaction_, opened);
    if (openCode != 0) {
        return openCode;
    }
    RegistryKey key(calls_);
    key.Replace(opened);
    // Always the first one: with each deletion the next subkey takes its place.
    std::wstring subkey;
    while (calls_.EnumerateSubkey(opened, 0, kDeletedKeyNameCapacityChars, subkey) == 0) {
        const std::uint32_t code = RecurseDelete(opened, subkey);
        if (code != 0) {
            return code;
        }
    }
    static_cast<void>(key.Close());
    return calls_.Delete(parent, name, viewBits_, transaction_);
}

std::uint32_t RegistryAccess::EnumerateSubkeys(TextList& names) {
    std::wstring name;
    for (std::uint32_t index = 0;; ++index) {
        const std::uint32_t code = calls_.EnumerateSubkey(current_.Get(), index, kKeyNameCapacityChars, name);
        if (code != 0) {
            return code == kCodeNoMoreItems ? 0 : code;
        }
        names.push_back(name);
    }
}

bool RegistryAccess::ReadInt(std::wstring_view name, std::int32_t& value, toolkit::WindowHandle owner,
                             std::uint32_t flags, std::int32_t defaultValue) {
    std::array<std::byte, sizeof(std::int32_t)> data{};
    std::uint32_t type = 0;
    std::uint32_t sizeBytes = 0;
    std::uint32_t code =
        calls_.Query(current_.Get(), NameText(name), data.data(), data.size(), type, sizeBytes);
    std::int32_t stored = defaultValue;
    if (code == 0) {
        code = DecodeNumber(type, RegistryBytes(data).first(std::min<std::size_t>(sizeBytes, data.size())),
                            stored);
    }
    if (code != 0 && !IsMissingOrWrong(code)) {
        return Report(owner, flags, code, kReadIntOperation, name);
    }
    value = stored;
    return true;
}

bool RegistryAccess::ReadString(std::wstring_view name, std::wstring& value, toolkit::WindowHandle owner,
                                std::uint32_t flags, std::wstring_view defaultValue) {
    std::uint32_t type = 0;
    std::uint32_t sizeBytes = 0;
    std::uint32_t code =
        calls_.Query(current_.Get(), NameText(name), textBuffer_.data(), kTextBufferBytes, type, sizeBytes);
    if (code == 0) {
        code =
            DecodeText(type, RegistryBytes(textBuffer_).first(std::min(sizeBytes, kTextBufferBytes)), value);
    }
    if (IsMissingOrWrong(code)) {
        value = defaultValue;
        code = 0;
    }
    return code == 0 || Report(owner, flags, code, kReadStringOperation, name);
}

bool RegistryAccess::ReadStringList(std::wstring_view name, TextList& list, toolkit::WindowHandle owner) {
    list.clear();
    return ReadStringArray(name, list, owner);
}

bool RegistryAccess::ReadIntList(std::wstring_view name, NumberList& list, toolkit::WindowHandle owner) {
    TextList elements;
    if (!ReadStringArray(name, elements, owner)) {
        return false;
    }
    // By way of 8-bit text, because there some foreign digits become the usual ones.
    for (const std::wstring& element : elements) {
        list.push_back(toolkit::ParseDecimal(reporter_.Text().Narrow(element)));
    }
    return true;
}

bool RegistryAccess::ReadStringArray(std::wstring_view name, TextList& list, toolkit::WindowHandle owner) {
    std::uint32_t type = 0;
    std::uint32_t sizeBytes = 0;
    std::uint32_t code = calls_.Query(current_.Get(), NameText(name), nullptr, 0, type, sizeBytes);
    if (IsMissingOrWrong(code)) {
        return true;
    }
    if (code != 0) {
        return Report(owner, kListFlags, code, kReadListOperation, name);
    }
    // Room for one wide character per byte and one more: a value that grows by less until it is read is
    // still read whole.
    const std::size_t roomBytes = (std::size_t{sizeBytes} + 1) * 2;
    const auto capacityBytes = static_cast<std::uint32_t>(
        std::min<std::size_t>(roomBytes, std::numeric_limits<std::uint32_t>::max()));
    const std::unique_ptr<std::byte[]> data = AllocateBytes(roomBytes);
    if (!data) {
        return Report(owner, kListFlags, kCodeNotEnoughMemory, kAllocateOperation, name);
    }
    code = calls_.Query(current_.Get(), name_, data.get(), capacityBytes, type, sizeBytes);
    if (code == 0) {
        code = DecodeTextList(type, RegistryBytes(data.get(), std::min(sizeBytes, capacityBytes)), list);
    }
    return code == 0 || Report(owner, kListFlags, code, kReadListOperation, name);
}

bool RegistryAccess::WriteInt(std::wstring_view name, std::int32_t value, toolkit::WindowHandle owner,
                              std::uint32_t flags) {
    const auto number = static_cast<std::uint32_t>(value);
    const std::array<std::byte, sizeof number> data{
        static_cast<std::byte>(number & 0xFFU), static_cast<std::byte>((number >> 8U) & 0xFFU),
        static_cast<std::byte>((number >> 16U) & 0xFFU), static_cast<std::byte>(number >> 24U)};
    const std::uint32_t code = Write(name, kTypeNumber, data.data(), data.size());
    return code == 0 || Report(owner, flags, code, kWriteIntOperation, name);
}

bool RegistryAccess::WriteString(std::wstring_view name, std::wstring_view value, toolkit::WindowHandle owner,
                                 std::uint32_t flags) {
    const RegistryData data = EncodeText(value);
    if (!data.bytes) {
        return Report(owner, flags, kCodeNotEnoughMemory, kAllocateOperation, name);
    }
    const std::uint32_t code = Write(name, kTypeText, data.bytes.get(), data.sizeBytes);
    return code == 0 || Report(owner, flags, code, kWriteStringOperation, name);
}

bool RegistryAccess::WriteIntList(std::wstring_view name, const NumberList& list,
                                  toolkit::WindowHandle owner) {
    TextList elements;
    elements.reserve(list.size());
    for (const std::int32_t number : list) {
        elements.push_back(std::to_wstring(number));
    }
    return WriteList(name, elements, owner);
}

bool RegistryAccess::WriteStringList(std::wstring_view name, const TextList& list,
                                     toolkit::WindowHandle owner) {
    TextList elements = list;
    std::replace(elements.begin(), elements.end(), std::wstring(), std::wstring(kNotSetText));
    return WriteList(name, elements, owner);
}

bool RegistryAccess::WriteStringArray(std::wstring_view name, const TextList& list,
                                      toolkit::WindowHandle owner) {
    return WriteList(name, list, owner);
}

bool RegistryAccess::WriteList(std::wstring_view name, const TextList& list, toolkit::WindowHandle owner) {
    const RegistryData data = EncodeTextList(list);
    if (!data.bytes) {
        return Report(owner, kListFlags, kCodeNotEnoughMemory, kAllocateOperation, name);
    }
    const std::uint32_t code = Write(name, kTypeTextList, data.bytes.get(), data.sizeBytes);
    return code == 0 || Report(owner, kListFlags, code, kWriteListOperation, name);
}

std::uint32_t RegistryAccess::Write(std::wstring_view name, std::uint32_t type, const void* data,
                                    std::size_t sizeBytes) {
    if (sizeBytes > std::numeric_limits<std::uint32_t>::max()) {
        return kCodeInvalidParameter;
    }
    return calls_.Set(current_.Get(), NameText(name), type, data, static_cast<std::uint32_t>(sizeBytes));
}

bool RegistryAccess::Report(toolkit::WindowHandle owner, std::uint32_t flags, std::uint32_t code,
                            const char* operation, std::wstring_view name) {
    reporter_.ReportError(owner, provider::ProviderContext{}, flags, code, operation, nullptr,
                          reporter_.Text().Narrow(name).c_str());
    return false;
}

const std::wstring& RegistryAccess::NameText(std::wstring_view name) {
    name_.assign(name);
    return name_;
}

bool ReportKeyResult(reporting::ErrorReporter& reporter, toolkit::WindowHandle owner, std::uint32_t code,
                     const char* operation, std::wstring_view path) {
    if (code == 0) {
        return true;
    }
    std::wstring fullPath = L"HKEY_CURRENT_USER\\";
    fullPath += path;
    reporter.ReportError(owner, provider::ProviderContext{}, reporting::kShowReport, code, operation, nullptr,
                         reporter.Text().Narrow(fullPath).c_str());
    return false;
}

}  // namespace corvane::store
