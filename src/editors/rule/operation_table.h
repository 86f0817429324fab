#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "store/records.h"

// What is known about each operation, in one row of one table. The rule editor shows, opens, commits and
// changes rules by it; the rule list and the description of a rule read it too.

namespace corvane::editors {

/// The operations, in the order of the operation choice.
enum class Operation : std::size_t {
    kEncrypt,
    kDecrypt,
    kHash,
    kEncodeBase64,
    kDecodeBase64,
    kSign,
    kVerify,
    kVerifyAndDelete,
    kMove,
    kDelete,
    kEncryptLong,
    kDecryptLong,
    kCreateDetached,
    kAddDetached,
    kVerifyDetached,
    kDeleteSignatures,
    kResign,
    kSignAndEncrypt,
    kDecryptAndVerify,
    kArchive,
    kUnarchive,
    kPack,
    kUnpack,
    kExecute,
    kCount,  ///< How many there are; itself none.
};

/// What the picture of an icon button, or of an error box, stands for.
enum class RuleIcon {
    kInputFolder,
    kOutputFolder,
    kErrorFolder,
    kCertificates,
    kSecondOutputFolder,
    kExecutable,
    kAddMask,
    kEditMask,
    kDeleteMask,
};

/// What the certificate button and its field are for.
enum class CertUse { kNone, kRecipients, kSigners, kSecondOutputFolder, kExecutable };

/// How the certificate button and its field look for one use.
struct CertField {
    CertUse use = CertUse::kNone;
    std::wstring_view label;
    std::wstring_view toolTip;
    RuleIcon icon = RuleIcon::kCertificates;
    store::FieldOf<store::Rule, std::wstring> path =
        nullptr;  ///< What is typed into the field; else it shows a number.
};

inline constexpr std::array<CertField, 5> kCertFields{{
    {CertUse::kNone, L"Certificates:", L"Add recipients"},
    {CertUse::kRecipients, L"Recipients:", L"Add recipients"},
    {CertUse::kSigners, L"Signer lists:", L"Add signers"},
    // Deliberate: the blank at the end. Programs that drive this one find the button by this text.
    {CertUse::kSecondOutputFolder, L"Second output folder:", L"Second Output folder ",
     RuleIcon::kSecondOutputFolder, &store::Rule::secondOutput},
    {CertUse::kExecutable, L"Executable file:", L"Executable file:", RuleIcon::kExecutable,
     &store::Rule::executable},
}};

/// How the certificate button and its field look for a use.
[[nodiscard]] constexpr const CertField& CertFieldOf(CertUse use) {
    return kCertFields[static_cast<std::size_t>(use)];
}

/// A text that is typed.
struct TextOption {
    store::FieldOf<store::Rule, std::wstring> field;

    bool operator==(const TextOption&) const = default;
};

/// A number of digits.
struct NumberOption {
    store::FieldOf<store::Rule, std::int32_t> field;

    bool operator==(const NumberOption&) const = default;
};

/// A choice of attached or detached signatures.
struct SignatureFormatOption {
    store::FieldOf<store::Rule, std::int32_t> field;

    bool operator==(const SignatureFormatOption&) const = default;
};

/// A choice of the profile's CS profiles.
struct CsProfileOption {
    store::FieldOf<store::Rule, std::wstring> field;

    bool operator==(const CsProfileOption&) const = default;
};

/// A choice of archivers, with "No" as its first entry or without.
struct ArchiverOption {
    store::FieldOf<store::Rule, std::int32_t> field;
    bool hasNo;

    bool operator==(const ArchiverOption&) const = default;
};

/// The entries of the choice of a signature format, at the number that is stored.
inline constexpr std::array kSignatureFormatNames = {L"Attached signature", L"Detached signature"};
/// The entries of the choice of an archiver, at the number that is stored.
inline constexpr std::array kArchiverNames = {L"No", L"ZIP archivation", L"GZIP archivation"};

/// What an option row holds and which field of the rule it edits.
using Option = std::variant<std::monostate, TextOption, NumberOption, SignatureFormatOption, CsProfileOption,
                            ArchiverOption>;

/// Joins functions, one for each kind of option, to what std::visit takes.
template <typename... Functions>
struct OptionVisitor : Functions... {
    using Functions::operator()...;
};
template <typename... Functions>
OptionVisitor(Functions...) -> OptionVisitor<Functions...>;

/// One option row of the rule editor; without an option it is empty.
struct OptionRow {
    std::wstring_view label;
    Option option;
};

inline constexpr std::size_t kRowCount = 4;
using OptionRows = std::array<OptionRow, kRowCount>;

/// One operation. Input folder, error folder, description and masks belong to all of them.
struct OperationRow {
    Operation operation = Operation::kCount;
    std::wstring_view code;  ///< What a stored rule holds.
    std::wstring_view name;  ///< What users see.
    bool usesCsProfile = false;
    bool usesOutputFolder = true;
    CertUse cert = CertUse::kNone;
    OptionRows rows{};
};

namespace option_rows {

inline constexpr OptionRows kArchiverOrNone{{
    {},
    {L"Use archivation:", ArchiverOption{&store::Rule::archiveFormat, true}},
    {},
    {},
}};
inline constexpr OptionRows kArchiver{{
    {},
    {L"Use archivation:", ArchiverOption{&store::Rule::archiveFormat, false}},
    {},
    {},
}};
inline constexpr OptionRows kMove{{
    {L"Delete extension:", TextOption{&store::Rule::deleteExtension}},
    {L"Add extension:", TextOption{&store::Rule::addExtension}},
    {L"Accounting format:", TextOption{&store::Rule::folders}},
    {L"Accounting copy format:", TextOption{&store::Rule::copyFolders}},
}};
inline constexpr OptionRows kResign{{
    {L"Input signature format:", SignatureFormatOption{&store::Rule::inputDetached}},
    {L"Output signature format:", SignatureFormatOption{&store::Rule::outputDetached}},
    {L"New signature profile:", CsProfileOption{&store::Rule::resignProfile}},
    {},
}};
inline constexpr OptionRows kPack{{
    {L"File count:", NumberOption{&store::Rule::archiveFileCount}},
    {L"Archive size (KB.):", NumberOption{&store::Rule::archiveSize}},
    {L"Archivation timeout (min.):", NumberOption{&store::Rule::archiveTimeout}},
    {L"Archives name format:", TextOption{&store::Rule::archiveName}},
}};
inline constexpr OptionRows kExecute{{
    {L"Execution timeout (min.):", NumberOption{&store::Rule::executionTimeout}},
    {},
    {},
    {},
}};

}  // namespace option_rows

// clang-format off
/// Every operation, at the place that its enumerator numbers.
inline constexpr std::array<OperationRow, static_cast<std::size_t>(Operation::kCount)> kOperations{{
    {Operation::kEncrypt, L"ENCR", L"Encrypt",
     true, true, CertUse::kRecipients, option_rows::kArchiverOrNone},
    {Operation::kDecrypt, L"DECR", L"Decrypt",
     true, true, CertUse::kNone, option_rows::kArchiverOrNone},
    {Operation::kHash, L"HASH", L"Hash file", true, true, CertUse::kNone},
    {Operation::kEncodeBase64, L"B64E", L"Encode b64", false, true, CertUse::kNone},
    {Operation::kDecodeBase64, L"B64D", L"Decode b64", false, true, CertUse::kNone},
    {Operation::kSign, L"SIGN", L"Attached signature", true, true, CertUse::kNone},
    {Operation::kVerify, L"CHCK", L"Verify attached signature", true, true, CertUse::kSigners},
    {Operation::kVerifyAndDelete, L"CHKX", L"Verify and delete attached signature",
     true, true, CertUse::kSigners},
    {Operation::kMove, L"MOVE", L"Move",
     false, true, CertUse::kSecondOutputFolder, option_rows::kMove},
    {Operation::kDelete, L"DELE", L"Delete", false, false, CertUse::kNone},
    {Operation::kEncryptLong, L"LENC", L"Encrypt long file",
     true, true, CertUse::kRecipients, option_rows::kArchiverOrNone},
    {Operation::kDecryptLong, L"LDEC", L"Decrypt long file",
     true, true, CertUse::kNone, option_rows::kArchiverOrNone},
    {Operation::kCreateDetached, L"CDSG", L"Create detached signature", true, true, CertUse::kNone},
    {Operation::kAddDetached, L"DSIG", L"Add detached signature", true, true, CertUse::kNone},
    {Operation::kVerifyDetached, L"DCHK", L"Verify detached signature", true, true, CertUse::kSigners},
    {Operation::kDeleteSignatures, L"DELS", L"Delete signatures without verification",
     true, true, CertUse::kNone},
    {Operation::kResign, L"RESG", L"Resign",
     true, true, CertUse::kSigners, option_rows::kResign},
    {Operation::kSignAndEncrypt, L"SGEN", L"Create attached signature and encrypt",
     true, true, CertUse::kRecipients, option_rows::kArchiverOrNone},
    {Operation::kDecryptAndVerify, L"DCCX", L"Decrypt, verify and delete attached signatures",
     true, true, CertUse::kSigners, option_rows::kArchiverOrNone},
    {Operation::kArchive, L"ARCH", L"Archivate file",
     false, true, CertUse::kNone, option_rows::kArchiver},
    {Operation::kUnarchive, L"UNAR", L"Unarchivate file",
     false, true, CertUse::kNone, option_rows::kArchiver},
    {Operation::kPack, L"PACK", L"Pack files",
     false, true, CertUse::kNone, option_rows::kPack},
    {Operation::kUnpack, L"UNPK", L"Unpack files", false, true, CertUse::kNone},
    {Operation::kExecute, L"EXEC", L"Execute",
     false, true, CertUse::kExecutable, option_rows::kExecute},
}};
// clang-format on

/// The row of an operation.
[[nodiscard]] constexpr const OperationRow& RowOf(Operation operation) {
    return kOperations[static_cast<std::size_t>(operation)];
}

/// The operation of a code, or null for a text that is no code.
[[nodiscard]] const OperationRow* FindOperation(std::wstring_view code);

/// The display name of a code; a text that is no code is given back as it is.
[[nodiscard]] std::wstring_view OperationDisplayName(std::wstring_view code);

}  // namespace corvane::editors
