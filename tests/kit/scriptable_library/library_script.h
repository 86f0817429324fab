#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "tests/kit/scriptable_library/script_text.h"

namespace scriptable {

/// A certificate that a search finds.
struct ScriptCertificate {
    ScriptText owner;
    std::uint8_t usage = 0;
    ScriptText issuer;
    ScriptText serial;  ///< Bytes.
};

/// An entry of an error stack.
struct ScriptError {
    ScriptText text;
    ScriptText file;
    std::uint32_t line = 0;
    ScriptText data;
};

/// A call: the function without its prefix, and its number among the calls of that function, from 1; 0 stands
/// for every call.
using CallNumber = std::pair<std::string, unsigned>;

/// What the library is to do. Each line of the script file is one of
///
///     status FUNCTION NUMBER STATUS                      the answer of a call, 0 unless told
///     hold FUNCTION NUMBER EVENT                         the call waits until this event of the system is
///     set pump FUNCTION NUMBER EVENT                         the same, and handles messages meanwhile
///     errortext STATUS TEXT                              the description of a status
///     error CONTEXT TEXT FILE LINE DATA                  one more entry of the error stack of the n-th
///     context
///                                                        that was opened; 0: of a failed opening
///     control TEXT                                       what the control call writes into its buffer
///     certificate SEARCH OWNER USAGE ISSUER SERIAL       found by this search
///     nothing SEARCH                                     this search finds no entry at all
///
/// Numbers of calls are decimal, statuses, usages and serial numbers hexadecimal. SEARCH is the number of the
/// call, "=PATTERN" for all with this pattern, or 0 for all others.
struct LibraryScript {
    struct Hold {
        std::string eventName;
        bool handlesMessages = false;
    };

    std::map<CallNumber, std::uint32_t> statuses;
    std::map<CallNumber, Hold> holds;
    std::map<std::uint32_t, std::string> errorTexts;
    std::map<unsigned, std::vector<ScriptError>> errorStacks;
    std::string controlText;
    std::map<std::string, std::vector<ScriptCertificate>> searches;
};

/// Reads a script file; one that is missing is an empty script, a line that cannot be read is passed over.
[[nodiscard]] LibraryScript ReadLibraryScript(const std::filesystem::path& file);

}  // namespace scriptable
