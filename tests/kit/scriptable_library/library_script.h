#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "tests/kit/scriptable_library/script_text.h"

namespace corvane::test {

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

/// The file beside the library that holds its script.
inline constexpr wchar_t kLibraryScriptFile[] = L"tarn1_script.json";

/// What the library is to do. The script file is one JSON object with a member for each of these, all of
/// which are there; a member or an entry that is not known is an error.
struct LibraryScript {
    struct Hold {
        std::string eventName;
        bool handlesMessages = false;
    };

    /// The answer of a call, 0 unless it is here.
    std::map<CallNumber, std::uint32_t> statuses;
    /// The call waits until this event of the system is set, and may handle messages meanwhile.
    std::map<CallNumber, Hold> holds;
    /// The description of a status.
    std::map<std::uint32_t, std::string> errorTexts;
    /// The error stack of the n-th context that was opened; 0: of a failed opening.
    std::map<unsigned, std::vector<ScriptError>> errorStacks;
    /// What the control call writes into its buffer.
    std::string controlText;
    /// What each search finds. A search is named by the number of its call, by "=PATTERN" for all with this
    /// pattern, or "0" for all others.
    std::map<std::string, std::vector<ScriptCertificate>> searches;
};

/// Writes a script file.
void WriteLibraryScript(const LibraryScript& script, const std::filesystem::path& file);

/// Reads a script file; one that is missing is an empty script. Throws std::exception for one that is no
/// script to the last member.
[[nodiscard]] LibraryScript ReadLibraryScript(const std::filesystem::path& file);

}  // namespace corvane::test
