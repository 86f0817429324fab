#pragma once

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>

namespace corvane::test {

/// An operation as the tests know it.
struct WitnessedOperation {
    const wchar_t* code;  ///< What is stored.
    const wchar_t* name;  ///< What is shown.
};

/// The operations in the order of the choice, written down once more for the tests, so that none of them
/// takes the program's word for it.
inline constexpr std::array kWitnessedOperations = {
    WitnessedOperation{L"ENCR", L"Encrypt"},
    WitnessedOperation{L"DECR", L"Decrypt"},
    WitnessedOperation{L"HASH", L"Hash file"},
    WitnessedOperation{L"B64E", L"Encode b64"},
    WitnessedOperation{L"B64D", L"Decode b64"},
    WitnessedOperation{L"SIGN", L"Attached signature"},
    WitnessedOperation{L"CHCK", L"Verify attached signature"},
    WitnessedOperation{L"CHKX", L"Verify and delete attached signature"},
    WitnessedOperation{L"MOVE", L"Move"},
    WitnessedOperation{L"DELE", L"Delete"},
    WitnessedOperation{L"LENC", L"Encrypt long file"},
    WitnessedOperation{L"LDEC", L"Decrypt long file"},
    WitnessedOperation{L"CDSG", L"Create detached signature"},
    WitnessedOperation{L"DSIG", L"Add detached signature"},
    WitnessedOperation{L"DCHK", L"Verify detached signature"},
    WitnessedOperation{L"DELS", L"Delete signatures without verification"},
    WitnessedOperation{L"RESG", L"Resign"},
    WitnessedOperation{L"SGEN", L"Create attached signature and encrypt"},
    WitnessedOperation{L"DCCX", L"Decrypt, verify and delete attached signatures"},
    WitnessedOperation{L"ARCH", L"Archivate file"},
    WitnessedOperation{L"UNAR", L"Unarchivate file"},
    WitnessedOperation{L"PACK", L"Pack files"},
    WitnessedOperation{L"UNPK", L"Unpack files"},
    WitnessedOperation{L"EXEC", L"Execute"},
};

/// Their codes, in order.
inline constexpr auto kCodes = [] {
    std::array<const wchar_t*, kWitnessedOperations.size()> codes{};
    for (std::size_t i = 0; i < codes.size(); ++i) {
        codes.at(i) = kWitnessedOperations.at(i).code;
    }
    return codes;
}();

/// The position of a code; throws std::invalid_argument for what is none.
[[nodiscard]] inline int IndexOfCode(const std::wstring& code) {
    const auto found = std::find(kCodes.begin(), kCodes.end(), code);
    if (found == kCodes.end()) {
        throw std::invalid_argument("That is no operation.");
    }
    return static_cast<int>(found - kCodes.begin());
}

/// What is shown for a code; throws as IndexOfCode does.
[[nodiscard]] inline std::wstring NameOfCode(const std::wstring& code) {
    return kWitnessedOperations.at(static_cast<std::size_t>(IndexOfCode(code))).name;
}

}  // namespace corvane::test
