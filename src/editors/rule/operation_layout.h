#pragma once

#include <array>
#include <cstddef>
#include <string_view>

// Which fields of the rule editor each operation uses: the one table that opening, changing the operation,
// checking and committing all read.

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
};

/// What the certificate button and its field are for.
enum class CertUse { kNone, kRecipients, kSigners, kSecondOutputFolder, kExecutable };

/// What an option row holds.
enum class RowUse {
    kNone,
    kSignatureFormat,  ///< Choice: attached or detached.
    kResignProfile,    ///< Choice of the profile's CS profiles.
    kArchiverOrNone,   ///< Choice that begins with "No".
    kArchiver,         ///< The same choice without "No".
    kText,
    kNumber,
};

/// One option row: its label, empty where there is no row, and what stands behind the label.
struct RowLayout {
    std::wstring_view label;
    RowUse use = RowUse::kNone;
};

inline constexpr std::size_t kRowCount = 4;

/// The fields of one operation. Input folder, error folder, description and masks belong to all of them.
struct OperationLayout {
    std::wstring_view code;
    bool usesCsProfile = false;
    bool usesOutputFolder = true;
    CertUse cert = CertUse::kNone;
    std::array<RowLayout, kRowCount> rows{};
};

namespace layout_rows {

using Rows = std::array<RowLayout, kRowCount>;

inline constexpr Rows kNoRows{};
inline constexpr Rows kArchiverOrNone{
    {{}, {L"Use archivation:", RowUse::kArchiverOrNone}, {}, {}},
};
inline constexpr Rows kArchiver{
    {{}, {L"Use archivation:", RowUse::kArchiver}, {}, {}},
};
inline constexpr Rows kMove{{
    {L"Delete extension:", RowUse::kText},
    {L"Add extension:", RowUse::kText},
    {L"Accounting format:", RowUse::kText},
    {L"Accounting copy format:", RowUse::kText},
}};
inline constexpr Rows kResign{{
    {L"Input signature format:", RowUse::kSignatureFormat},
    {L"Output signature format:", RowUse::kSignatureFormat},
    {L"New signature profile:", RowUse::kResignProfile},
    {},
}};
inline constexpr Rows kPack{{
    {L"File count:", RowUse::kNumber},
    {L"Archive size (KB.):", RowUse::kNumber},
    {L"Archivation timeout (min.):", RowUse::kNumber},
    {L"Archives name format:", RowUse::kText},
}};
inline constexpr Rows kExecute{
    {{L"Execution timeout (min.):", RowUse::kNumber}, {}, {}, {}},
};

}  // namespace layout_rows

/// The layout of every operation, index for index with Operation.
inline constexpr std::array kOperationLayouts{
    OperationLayout{L"ENCR", true, true, CertUse::kRecipients, layout_rows::kArchiverOrNone},
    OperationLayout{L"DECR", true, true, CertUse::kNone, layout_rows::kArchiverOrNone},
    OperationLayout{L"HASH", true, true, CertUse::kNone, layout_rows::kNoRows},
    OperationLayout{L"B64E", false, true, CertUse::kNone, layout_rows::kNoRows},
    OperationLayout{L"B64D", false, true, CertUse::kNone, layout_rows::kNoRows},
    OperationLayout{L"SIGN", true, true, CertUse::kNone, layout_rows::kNoRows},
    OperationLayout{L"CHCK", true, true, CertUse::kSigners, layout_rows::kNoRows},
    OperationLayout{L"CHKX", true, true, CertUse::kSigners, layout_rows::kNoRows},
    OperationLayout{L"MOVE", false, true, CertUse::kSecondOutputFolder, layout_rows::kMove},
    OperationLayout{L"DELE", false, false, CertUse::kNone, layout_rows::kNoRows},
    OperationLayout{L"LENC", true, true, CertUse::kRecipients, layout_rows::kArchiverOrNone},
    OperationLayout{L"LDEC", true, true, CertUse::kNone, layout_rows::kArchiverOrNone},
    OperationLayout{L"CDSG", true, true, CertUse::kNone, layout_rows::kNoRows},
    OperationLayout{L"DSIG", true, true, CertUse::kNone, layout_rows::kNoRows},
    OperationLayout{L"DCHK", true, true, CertUse::kSigners, layout_rows::kNoRows},
    OperationLayout{L"DELS", true, true, CertUse::kNone, layout_rows::kNoRows},
    OperationLayout{L"RESG", true, true, CertUse::kSigners, layout_rows::kResign},
    OperationLayout{L"SGEN", true, true, CertUse::kRecipients, layout_rows::kArchiverOrNone},
    OperationLayout{L"DCCX", true, true, CertUse::kSigners, layout_rows::kArchiverOrNone},
    OperationLayout{L"ARCH", false, true, CertUse::kNone, layout_rows::kArchiver},
    OperationLayout{L"UNAR", false, true, CertUse::kNone, layout_rows::kArchiver},
    OperationLayout{L"PACK", false, true, CertUse::kNone, layout_rows::kPack},
    OperationLayout{L"UNPK", false, true, CertUse::kNone, layout_rows::kNoRows},
    OperationLayout{L"EXEC", false, true, CertUse::kExecutable, layout_rows::kExecute},
};

/// The option row in which the archiver is chosen.
inline constexpr std::size_t kArchiverRow = 1;

/// The layout of the operation.
[[nodiscard]] constexpr const OperationLayout& LayoutOf(Operation operation) {
    return kOperationLayouts[static_cast<std::size_t>(operation)];
}

/// The archiver choice that the operation offers; kNone where it offers none.
[[nodiscard]] constexpr RowUse ArchiverUse(const OperationLayout& layout) {
    const RowUse use = layout.rows[kArchiverRow].use;
    return use == RowUse::kArchiverOrNone || use == RowUse::kArchiver ? use : RowUse::kNone;
}

}  // namespace corvane::editors
