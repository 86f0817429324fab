#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::store {

/// What stands for "not set" in stored paths, profile names and lists of texts.
inline constexpr wchar_t kNotSetText[] = L"0";

using TextList = std::vector<std::wstring>;
using NumberList = std::vector<std::int32_t>;

/// A field of a record: where in any Record the Value stands. Tables of fields are made of these.
template <class Record, class Value>
using FieldOf = Value Record::*;

/// The smallest log size that loading and the log settings dialog let stand, in KB.
inline constexpr std::int32_t kSmallestLogFileSize = 400;

/// A rectangle in screen pixels.
struct WindowRectangle {
    std::int32_t top = 0;
    std::int32_t bottom = 0;
    std::int32_t left = 0;
    std::int32_t right = 0;

    bool operator==(const WindowRectangle&) const = default;
};

/// The global settings of the processing client and of this editor. Extensions stand without their point.
struct AppSettings {
    WindowRectangle window;  ///< The main window's restored rectangle.
    std::wstring signedExtension = L"p7s";
    std::wstring detachedSignatureExtension = L"p7d";
    std::wstring encryptedExtension = L"p7e";
    std::wstring base64Extension = L"b64";
    std::wstring hashExtension = L"hsh";
    std::wstring verificationExtension = L"vrf";
    std::wstring zipExtension = L"zip";
    std::wstring gzipExtension = L"gz";
    TextList additionalExtensions;
    std::wstring logPath;
    std::int32_t logFileSize = 4000;  ///< KB; never below kSmallestLogFileSize after loading.

    bool operator==(const AppSettings&) const = default;
};

/// A named list of signers, each the text of a subject distinguished name.
struct SignerGroup {
    std::wstring name;  ///< Also the name of its registry key.
    TextList signers;

    bool operator==(const SignerGroup&) const = default;
};

/// What the client does with the files of one input folder.
struct Rule {
    std::wstring csProfile;        ///< "ZCSProfile"
    std::wstring resignProfile;    ///< "ResignProfile"
    std::wstring operation;        ///< A four-letter code; a rule without one is not saved.
    std::wstring inputFolder;      ///< "Path In"
    std::wstring outputFolder;     ///< "Path Out"
    std::wstring secondOutput;     ///< "Path Out 2"
    std::wstring errorFolder;      ///< "Path Error"
    std::wstring legacyMask;       ///< "Mask": only read, never saved or exported.
    std::wstring description;      ///< "Descryption"
    std::wstring deleteExtension;  ///< "DelExt"
    std::wstring addExtension;     ///< "AddExt"
    std::wstring folders;          ///< "Folders": accounting format
    std::wstring copyFolders;      ///< "Copyfolders": accounting copy format
    std::wstring archiveName;      ///< "ArchName"
    std::wstring executable;       ///< "ExecName"
    TextList recipients;           ///< "Ext num", "C%d"
    TextList masks;                ///< "Mask num", "M%d"
    std::int32_t isOn = 0;
    std::int32_t inputDetached = 0;   ///< "In format det": 0 attached, else detached
    std::int32_t outputDetached = 0;  ///< "Out format det"
    std::vector<SignerGroup> signerGroups;
    std::int32_t archiveFormat = 0;     ///< "ZipFile": 1 ZIP, 2 GZIP
    std::int32_t archiveFileCount = 0;  ///< "ArchCount"
    std::int32_t archiveSize = 0;       ///< "ArchSize", KB
    std::int32_t archiveTimeout = 0;    ///< "ArchTimeout", minutes
    std::int32_t executionTimeout = 0;  ///< "ExecTimeout", minutes

    bool operator==(const Rule&) const = default;
};

/// The settings of one CS profile that a processing profile uses: entry i of the profile's eleven lists.
struct CsProfile {
    std::wstring name;                           ///< "ZCSProfile"
    std::wstring timeStampServer = kNotSetText;  ///< "ServerTSP"
    std::int32_t autoUseTimeStamp = 0;           ///< "AutoUseTSP"
    std::int32_t autoVerifyTimeStamp = 0;        ///< "AutoVerifyTSP"
    std::int32_t noTimeStampIsError = 0;         ///< "NoTSPisError"
    std::int32_t notAddCertificate = 0;          ///< "NotAddCert"
    std::int32_t notCopyToLocal = 0;             ///< "NotCopyToLocal"
    std::int32_t notLoadCrl = 0;                 ///< "NotLoadCrl"
    std::int32_t crlUpdatePeriod = 1;            ///< "CrlUpdatePeriod", hours
    std::int32_t notUseDirectory = 1;            ///< "NotUseLDAP"
    std::int32_t useAuthorityAccess = 0;         ///< "UseAIA"

    bool operator==(const CsProfile&) const = default;
};

/// One processing profile. Its CS profile settings are eleven parallel lists, as they are stored; entry i of
/// each belongs to the i-th CS profile. Stored lists may differ in length, so whoever reads entry i uses
/// CsProfileAt, which tolerates a shorter list.
struct Profile {
    std::wstring name;  ///< Also the name of its registry key.
    std::vector<Rule> rules;
    TextList timeStampServers;            ///< "ServerTSP"
    TextList csProfiles;                  ///< "ZCSProfile"
    NumberList notUseDirectory;           ///< "NotUseLDAP"
    NumberList notAddCertificate;         ///< "NotAddCert"
    NumberList notCopyToLocal;            ///< "NotCopyToLocal"
    NumberList autoVerifyTimeStamp;       ///< "AutoVerifyTSP"
    NumberList noTimeStampIsError;        ///< "NoTSPisError"
    NumberList useAuthorityAccess;        ///< "UseAIA"
    NumberList autoUseTimeStamp;          ///< "AutoUseTSP"
    NumberList notLoadCrl;                ///< "NotLoadCrl"
    NumberList crlUpdatePeriods;          ///< "CrlUpdatePeriod", hours
    std::int32_t handlerTimeout = 15;     ///< "Handler timeout"
    std::int32_t verifyFile = 0;          ///< "Verify File"
    std::int32_t verifyXFile = 0;         ///< "Verify x file"
    std::int32_t verifyDetachedFile = 0;  ///< "Verify det file"
    std::int32_t verifyResignFile = 0;    ///< "Verify resign file"
    std::int32_t renameConfFiles = 0;     ///< "Rename conf files"

    bool operator==(const Profile&) const = default;
};

/// The view of entry `index` of the profile's eleven lists; a list that is too short gives the default.
[[nodiscard]] CsProfile CsProfileAt(const Profile& profile, std::size_t index);

/// The whole configuration while the editor runs: one instance, owned by the main window.
struct ConfigurationState {
    AppSettings settings;
    TextList csProfileCatalogue;  ///< Display names of the provider's CS profiles; only read.
    TextList profileNames;        ///< Same order and index as profiles.
    std::vector<Profile> profiles;
    std::wstring currentProfileName;
    bool isDirty = false;

    bool operator==(const ConfigurationState&) const = default;
};

/// The first profile whose name equals the current profile name, or null.
[[nodiscard]] Profile* FindCurrentProfile(ConfigurationState& state);
[[nodiscard]] const Profile* FindCurrentProfile(const ConfigurationState& state);

/// True for ARCH and UNAR, whose archive format is never 0 once loaded or imported.
[[nodiscard]] bool IsArchiveOperation(std::wstring_view code);

}  // namespace corvane::store
