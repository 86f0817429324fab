#include "tests/kit/scriptable_library/library_script.h"

#include <cstdlib>
#include <fstream>

namespace scriptable {
namespace {

std::uint32_t Number(const ScriptText& word, int base) {
    return static_cast<std::uint32_t>(std::strtoul(word.value_or("").c_str(), nullptr, base));
}

ScriptText BytesOfHex(const ScriptText& digits) {
    if (!digits) {
        return std::nullopt;
    }
    std::string bytes;
    for (std::size_t i = 0; i + 1 < digits->size(); i += 2) {
        bytes += static_cast<char>(std::strtoul(digits->substr(i, 2).c_str(), nullptr, 16));
    }
    return bytes;
}

void ReadLine(const std::vector<ScriptText>& words, LibraryScript& script) {
    const std::string command = words.empty() ? "" : words[0].value_or("");
    const auto word = [&](std::size_t i) { return words[i].value_or(""); };
    const auto call = [&] { return CallNumber{word(1), Number(words[2], 10)}; };
    if (command == "status" && words.size() == 4) {
        script.statuses[call()] = Number(words[3], 16);
    } else if ((command == "hold" || command == "pump") && words.size() == 4) {
        script.holds[call()] = {.eventName = word(3), .handlesMessages = command == "pump"};
    } else if (command == "errortext" && words.size() == 3) {
        script.errorTexts[Number(words[1], 16)] = word(2);
    } else if (command == "error" && words.size() == 6) {
        script.errorStacks[Number(words[1], 10)].push_back(
            {words[2], words[3], Number(words[4], 10), words[5]});
    } else if (command == "control" && words.size() == 2) {
        script.controlText = word(1);
    } else if (command == "certificate" && words.size() == 6) {
        script.searches[word(1)].push_back(
            {words[2], static_cast<std::uint8_t>(Number(words[3], 16)), words[4], BytesOfHex(words[5])});
    } else if (command == "nothing" && words.size() == 2) {
        script.searches[word(1)];
    }
}

}  // namespace

LibraryScript ReadLibraryScript(const std::filesystem::path& file) {
    LibraryScript script;
    std::ifstream stream(file, std::ios::binary);
    for (std::string line; std::getline(stream, line);) {
        ReadLine(WordsOf(line), script);
    }
    return script;
}

}  // namespace scriptable
