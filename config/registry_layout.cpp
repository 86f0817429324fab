#include "config/registry_layout.h"

#include <array>
#include <cstddef>

#include "toolkit/format_text.h"

namespace corvane {

namespace {

// ReportError's flags. Both show the report; which value has which is part of the layout.
constexpr std::uint8_t kShow = 1;
constexpr std::uint8_t kShowThree = 3;

template <typename Record>
constexpr StoredValue<Record> Number(ValueName name, std::int32_t Record::*field, std::int32_t defaultNumber,
                                     std::uint8_t loadFlags, std::uint8_t saveFlags) {
    return {{.name = name,
             .defaultNumber = defaultNumber,
             .storedAs = StoredAs::kNumber,
             .loadFlags = loadFlags,
             .saveFlags = saveFlags},
            {.number = field}};
}

template <typename Record>
constexpr StoredValue<Record> Text(ValueName name, std::wstring Record::*field, const wchar_t* defaultText,
                                   std::uint8_t loadFlags, std::uint8_t saveFlags) {
    return {{.name = name,
             .defaultText = defaultText,
             .storedAs = StoredAs::kText,
             .loadFlags = loadFlags,
             .saveFlags = saveFlags},
            {.text = field}};
}

template <typename Record>
constexpr StoredValue<Record> List(ValueName name, TextList Record::*field,
                                   StoredAs storedAs = StoredAs::kTextList) {
    return {{.name = name, .defaultNumber = 0, .storedAs = storedAs}, {}, field};
}

template <typename Record>
constexpr StoredValue<Record> List(ValueName name, NumberList Record::*field) {
    return {{.name = name, .defaultNumber = 0, .storedAs = StoredAs::kNumberList}, {.numbers = field}};
}

template <typename Record>
constexpr StoredValue<Record> Count(ValueName name, TextList Record::*field, std::uint8_t saveFlags) {
    return {{.name = name,
             .defaultNumber = 0,
             .storedAs = StoredAs::kCount,
             .loadFlags = kShowThree,
             .saveFlags = saveFlags},
            {},
            field};
}

template <typename Record>
constexpr StoredValue<Record> Elements(ValueName prefix, TextList Record::*field) {
    return {{.name = prefix,
             .defaultNumber = 0,
             .storedAs = StoredAs::kElements,
             .loadFlags = kShowThree,
             .saveFlags = kShow},
            {},
            field};
}

template <typename Record>
constexpr StoredValue<Record> OldElement(ValueName name, std::wstring Record::*field,
                                         TextList Record::*list) {
    return {{.name = name, .defaultText = L"", .storedAs = StoredAs::kOldElement, .loadFlags = kShowThree},
            {.text = field},
            list};
}

constexpr StoredValue<Rule> RuleText(ValueName name, std::wstring Rule::*field) {
    return Text(name, field, L"", kShowThree, kShowThree);
}

constexpr StoredValue<Rule> RuleNumber(ValueName name, std::int32_t Rule::*field) {
    return Number(name, field, 0, kShowThree, kShowThree);
}

constexpr std::array kProviderProfileRows{
    Text(L"ProfileName", &ProviderProfile::displayName, L"", kShow, 0),
};

constexpr std::array kWindowRows{
    Number(L"Window_top", &WindowRectangle::top, 0, kShow, kShow),
    Number(L"Window_bottom", &WindowRectangle::bottom, 0, kShow, kShow),
    Number(L"Window_left", &WindowRectangle::left, 0, kShow, kShow),
    Number(L"Window_right", &WindowRectangle::right, 0, kShow, kShow),
};

constexpr std::array kSettingsRows{
    Text(L"SigExt", &AppSettings::signedExtension, L"p7s", kShow, kShow),
    Text(L"DsigExt", &AppSettings::detachedSignatureExtension, L"p7d", kShow, kShow),
    Text(L"EncExt", &AppSettings::encryptedExtension, L"p7e", kShow, kShow),
    Text(L"B64Ext", &AppSettings::base64Extension, L"b64", kShow, kShow),
    Text(L"HashExt", &AppSettings::hashExtension, L"hsh", kShow, kShow),
    Text(L"VerifyFileExt", &AppSettings::verificationExtension, L"vrf", kShow, kShow),
    Text(L"ZIPArchiveExt", &AppSettings::zipExtension, L"zip", kShow, kShow),
    Text(L"GZIPArchiveExt", &AppSettings::gzipExtension, L"gz", kShow, kShow),
    List(L"ExtExt", &AppSettings::additionalExtensions, StoredAs::kTextArray),
    Text(L"LogPath", &AppSettings::logPath, L"", kShowThree, kShow),
    // Raised to kSmallestLogFileSize after reading.
    Number(L"Log filesize", &AppSettings::logFileSize, 4000, kShow, kShow),
};

constexpr std::array kProfileRows{
    List(L"ServerTSP", &Profile::timeStampServers),
    List(L"ZCSProfile", &Profile::csProfiles),
    List(L"NotUseLDAP", &Profile::notUseDirectory),
    List(L"NotCopyToLocal", &Profile::notCopyToLocal),
    List(L"AutoUseTSP", &Profile::autoUseTimeStamp),
    List(L"AutoVerifyTSP", &Profile::autoVerifyTimeStamp),
    List(L"NoTSPisError", &Profile::noTimeStampIsError),
    List(L"UseAIA", &Profile::useAuthorityAccess),
    List(L"NotAddCert", &Profile::notAddCertificate),
    List(L"NotLoadCrl", &Profile::notLoadCrl),
    // Padded with 1 to the length of "NotLoadCrl" after reading, for profiles from before it existed.
    List(L"CrlUpdatePeriod", &Profile::crlUpdatePeriods),
    Number(L"Verify File", &Profile::verifyFile, 0, kShowThree, kShowThree),
    Number(L"Verify x file", &Profile::verifyXFile, 0, kShowThree, kShowThree),
    Number(L"Verify det file", &Profile::verifyDetachedFile, 0, kShowThree, kShowThree),
    Number(L"Verify resign file", &Profile::verifyResignFile, 0, kShowThree, kShowThree),
    Number(L"Handler timeout", &Profile::handlerTimeout, 15, kShow, kShowThree),
    Number(L"Rename conf files", &Profile::renameConfFiles, 0, kShow, kShowThree),
};

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
    OldElement(L"Mask", &Rule::legacyMask, &Rule::masks),
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

constexpr std::array kFirstProfileRows{
    RowNamed(kProfileRows, L"AutoUseTSP"),      RowNamed(kProfileRows, L"AutoVerifyTSP"),
    RowNamed(kProfileRows, L"NotAddCert"),      RowNamed(kProfileRows, L"NotCopyToLocal"),
    RowNamed(kProfileRows, L"NotLoadCrl"),      RowNamed(kProfileRows, L"CrlUpdatePeriod"),
    RowNamed(kProfileRows, L"NoTSPisError"),    RowNamed(kProfileRows, L"NotUseLDAP"),
    RowNamed(kProfileRows, L"ServerTSP"),       RowNamed(kProfileRows, L"UseAIA"),
    RowNamed(kProfileRows, L"Verify File"),     RowNamed(kProfileRows, L"Verify x file"),
    RowNamed(kProfileRows, L"Verify det file"), RowNamed(kProfileRows, L"Verify resign file"),
    RowNamed(kProfileRows, L"Handler timeout"), RowNamed(kProfileRows, L"Rename conf files"),
    RowNamed(kProfileRows, L"ZCSProfile"),
};

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
    name += toolkit::DecimalText(static_cast<std::int64_t>(index));
    return name;
}

}  // namespace corvane
