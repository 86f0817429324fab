#pragma once

#include <string_view>

#include "config/records.h"

namespace corvane {

/// The four-letter codes of the operations, in the order of the operation choice, and their display names,
/// index for index; one newline after each entry.
inline constexpr std::wstring_view OperationCode =
    L"ENCR\nDECR\nHASH\nB64E\nB64D\nSIGN\nCHCK\nCHKX\nMOVE\nDELE\nLENC\nLDEC\nCDSG\nDSIG\nDCHK\nDELS\n"
    L"RESG\nSGEN\nDCCX\nARCH\nUNAR\nPACK\nUNPK\nEXEC\n";
inline constexpr std::wstring_view kOperationNames =
    L"Encrypt\nDecrypt\nHash file\nEncode b64\nDecode b64\nAttached signature\nVerify attached signature\n"
    L"Verify and delete attached signature\nMove\nDelete\nEncrypt long file\nDecrypt long file\n"
    L"Create detached signature\nAdd detached signature\nVerify detached signature\n"
    L"Delete signatures without verification\nResign\nCreate attached signature and encrypt\n"
    L"Decrypt, verify and delete attached signatures\nArchivate file\nUnarchivate file\nPack files\n"
    L"Unpack files\nExecute\n";

/// The entries of one of the texts above, without their newlines.
[[nodiscard]] TextList SplitEntries(std::wstring_view entries);

/// The display name of a code; a text that is no code is given back as it is.
[[nodiscard]] std::wstring_view OperationDisplayName(std::wstring_view code);

/// True for ARCH and UNAR, whose archive format is never 0 once loaded or imported.
[[nodiscard]] bool IsArchiveOperation(std::wstring_view code);

}  // namespace corvane
