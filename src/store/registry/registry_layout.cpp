#include "store/registry/registry_layout.h"

#include <array>
#include <cstddef>
#include <utility>
#include <variant>

#include "store/cs_profile_settings.h"
#include "toolkit/text/format_text.h"

namespace corvane::store {

namespace {

// ReportError's flags. Both show the report; which value has which is part of the layout.
constexpr std::uint32_t kShow = 1;
constexpr std::uint32_t kShowThree = 3;

template <typename Record>
constexpr StoredValue<Record> Number(const wchar_t* name, FieldOf<Record, std::int32_t> field,
                                     std::uint32_t loadFlags, std::uint32_t saveFlags) {
    return {name, StoredNumber<Record>{field}, loadFlags, saveFlags};
}

template <typename Record>
constexpr StoredValue<Record> Text(const wchar_t* name, FieldOf<Record, std::wstring> field,
                                   std::uint32_t loadFlags, std::uint32_t saveFlags) {
    return {name, StoredText<Record>{field}, loadFlags, saveFlags};
}

template <typename Record>
constexpr StoredValue<Record> Count(const wchar_t* name, FieldOf<Record, TextList> field,
                                    std::uint32_t saveFlags) {
    return {name, StoredCount<Record>{field}, kShowThree, saveFlags};
}

template <typename Record>
constexpr StoredValue<Record> Elements(const wchar_t* prefix, FieldOf<Record, TextList> field) {
    return {prefix, StoredElements<Record>{field}, kShowThree, kShow};
}

constexpr StoredValue<Rule> RuleText(const wchar_t* name, FieldOf<Rule, std::wstring> field) {
    return Text(name, field, kShowThree, kShowThree);
}

constexpr StoredValue<Rule> RuleNumber(const wchar_t* name, FieldOf<Rule, std::int32_t> field) {
    return Number(name, field, kShowThree, kShowThree);
}

constexpr std::array kProviderProfileRows{
    Text(L"ProfileName", &ProviderProfile::displayName, kShow, 0),
};

constexpr std::array kWindowRows{
    Number(L"Window_top", &WindowRectangle::top, kShow, kShow),
    Number(L"Window_bottom", &WindowRectangle::bottom, kShow, kShow),
    Number(L"Window_left", &WindowRectangle::left, kShow, kShow),
    Number(L"Window_right", &WindowRectangle::right, kShow, kShow),
};

constexpr std::array kSettingsRows{
    Text(L"SigExt", &AppSettings::signedExtension, kShow, kShow),
    Text(L"DsigExt", &AppSettings::detachedSignatureExtension, kShow, kShow),
    Text(L"EncExt", &AppSettings::encryptedExtension, kShow, kShow),
    Text(L"B64Ext", &AppSettings::base64Extension, kShow, kShow),
    Text(L"HashExt", &AppSettings::hashExtension, kShow, kShow),
    Text(L"VerifyFileExt", &AppSettings::verificationExtension, kShow, kShow),
    Text(L"ZIPArchiveExt", &AppSettings::zipExtension, kShow, kShow),
    Text(L"GZIPArchiveExt", &AppSettings::gzipExtension, kShow, kShow),
    StoredValue<AppSettings>{L"ExtExt", StoredTextArray<AppSettings>{&AppSettings::additionalExtensions}},
    Text(L"LogPath", &AppSettings::logPath, kShowThree, kShow),
    // Raised to kSmallestLogFileSize after reading.
    Number(L"Log filesize", &AppSettings::logFileSize, kShow, kShow),
};

constexpr StoredValue<Profile> StoredList(const CsProfileSetting& setting) {
    if (const auto* const texts = std::get_if<CsProfileTexts>(&setting.values)) {
        return {setting.name, StoredTextList<Profile>{texts->list}};
    }
    return {setting.name, StoredNumberList<Profile>{std::get<CsProfileNumbers>(setting.values).list}};
}

constexpr std::array kProfileOptionRows{
    Number(L"Verify File", &Profile::verifyFile, kShowThree, kShowThree),
    Number(L"Verify x file", &Profile::verifyXFile, kShowThree, kShowThree),
    Number(L"Verify det file", &Profile::verifyDetachedFile, kShowThree, kShowThree),
    Number(L"Verify resign file", &Profile::verifyResignFile, kShowThree, kShowThree),
    Number(L"Handler timeout", &Profile::handlerTimeout, kShow, kShowThree),
    Number(L"Rename conf files", &Profile::renameConfFiles, kShow, kShowThree),
};

using SettingPlaces = std::make_index_sequence<kCsProfileSettings.size()>;
using ProfileOptionPlaces = std::make_index_sequence<kProfileOptionRows.size()>;

template <std::size_t... setting, std::size_t... option>
consteval auto ProfileRows(std::index_sequence<setting...> /*settings*/,
                           std::index_sequence<option...> /*options*/) {
    return std::array{StoredList(kCsProfileSettings[setting])..., kProfileOptionRows[option]...};
}

constexpr std::array kProfileRows = ProfileRows(SettingPlaces(), ProfileOptionPlaces());

constexpr std::array kRuleRows{
    RuleText(L"Operation", &Rule::operation),
    RuleText(L"Path In", &Rule::inputFolder),
    RuleText(L"Path Out", &Rule::outputFolder),
    // Empty in a MOVE rule, it takes the first recipient, where older configurations keep that folder.
    RuleText(L"Path Out 2", &Rule::secondOutput),
    RuleText(L"Path Error", &Rule::errorFolder),
    RuleText(L"DelExt", &Rule::deleteExtension),
    RuleText(L"AddExt", &Rule::addExtension),
    RuleText(L"Folders", &Rule::folders),
    RuleText(L"Copyfolders", &Rule::copyFolders),
    RuleNumber(L"ArchCount", &Rule::archiveFileCount),
    RuleNumber(L"ArchSize", &Rule::archiveSize),
    RuleNumber(L"ArchTimeout", &Rule::archiveTimeout),
    RuleText(L"ArchName", &Rule::archiveName),
    RuleText(L"ExecName", &Rule::executable),
    RuleNumber(L"ExecTimeout", &Rule::executionTimeout),
    Count(L"Mask num", &Rule::masks, kShowThree),
    Elements(L"M", &Rule::masks),
    // From configurations whose rules had one mask each. So a rule without masks loads with one.
    StoredValue<Rule>{L"Mask", StoredOldElement<Rule>{&Rule::legacyMask, &Rule::masks}, kShowThree},
    Count(L"Ext num", &Rule::recipients, kShowThree),
    RuleNumber(L"Is on", &Rule::isOn),
    RuleText(L"ZCSProfile", &Rule::csProfile),
    // Empty in a RESG rule, it takes the first recipient, where older configurations keep that name.
    RuleText(L"ResignProfile", &Rule::resignProfile),
    RuleNumber(L"In format det", &Rule::inputDetached),
    RuleNumber(L"Out format det", &Rule::outputDetached),
    RuleText(L"Descryption", &Rule::description),  // Spelled so.
    // 0 becomes 1 in ARCH and UNAR rules, from when there was ZIP only.
    RuleNumber(L"ZipFile", &Rule::archiveFormat),
    Elements(L"C", &Rule::recipients),
};

constexpr std::array kSignerGroupRows{
    Count(L"Signer Num", &SignerGroup::signers, kShow),
    Elements(L"S", &SignerGroup::signers),
};

template <typename Rows>
consteval auto RowNamed(const Rows& rows, std::wstring_view name) {
    for (const auto& row : rows) {
        if (std::wstring_view(row.name) == name) {
            return row;
        }
    }
    throw "no such row";
}

consteval StoredValue<AppSettings> FirstSetting(std::wstring_view name) {
    StoredValue<AppSettings> row = RowNamed(kSettingsRows, name);
    row.saveFlags = kShowThree;
    return row;
}

constexpr std::array kFirstSettingsRows{
    FirstSetting(L"LogPath"),
    FirstSetting(L"Log filesize"),
};

consteval StoredValue<Profile> FirstStored(std::size_t place) {
    for (const CsProfileSetting& setting : kCsProfileSettings) {
        if (setting.firstPlace == place) {
            return StoredList(setting);
        }
    }
    throw "no setting has this place";
}

/// The names of the CS profiles come last, after the options.
template <std::size_t... setting, std::size_t... option>
consteval auto FirstProfileRows(std::index_sequence<setting...> /*all but the last*/,
                                std::index_sequence<option...> /*options*/) {
    return std::array{FirstStored(setting)..., kProfileOptionRows[option]...,
                      FirstStored(sizeof...(setting))};
}

constexpr std::array kFirstProfileRows =
    FirstProfileRows(std::make_index_sequence<kCsProfileSettings.size() - 1>(), ProfileOptionPlaces());
static_assert(kFirstProfileRows.size() == kProfileRows.size());

}  // namespace

std::span<const StoredValue<ProviderProfile>> ProviderProfileLayout() {
    return kProviderProfileRows;
}

std::span<const StoredValue<WindowRectangle>> WindowLayout() {
    return kWindowRows;
}

std::span<const StoredValue<AppSettings>> SettingsLayout() {
    return kSettingsRows;
}

std::span<const StoredValue<Profile>> ProfileLayout() {
    return kProfileRows;
}

std::span<const StoredValue<Rule>> RuleLayout() {
    return kRuleRows;
}

std::span<const StoredValue<SignerGroup>> SignerGroupLayout() {
    return kSignerGroupRows;
}

std::span<const StoredValue<AppSettings>> FirstSettingsLayout() {
    return kFirstSettingsRows;
}

std::span<const StoredValue<Profile>> FirstProfileLayout() {
    return kFirstProfileRows;
}

std::wstring KeyPath(std::wstring_view parent, std::wstring_view name) {
    std::wstring path;
    path.reserve(parent.size() + 1 + name.size());
    path += parent;
    path += L'\\';
    path += name;
    return path;
}

std::wstring ProfileKey(std::wstring_view profileName) {
    return KeyPath(kProgramKey, profileName);
}

std::wstring RulesKey(std::wstring_view profileName) {
    return KeyPath(ProfileKey(profileName), kRulesSubkey);
}

std::wstring RuleKeyName(std::size_t position) {
    return toolkit::FormatText(L"Rule %d", {static_cast<std::int64_t>(position)});
}

std::wstring ElementName(std::wstring_view prefix, std::size_t index) {
    std::wstring name(prefix);
    name += std::to_wstring(index);
    return name;
}

}  // namespace corvane::store
