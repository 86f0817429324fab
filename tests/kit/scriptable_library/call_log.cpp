#include "tests/kit/scriptable_library/call_log.h"

#include <fstream>

#include "tests/kit/scriptable_library/strict_json.h"

namespace corvane::test {

void CallLog::WriteLine(const std::string& line) const {
    // In one piece, so that a test never reads half a line.
    const std::string text = line + "\n";
    DWORD written = 0;
    WriteFile(file_.Get(), text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
}

void CallLog::Write(const LoggedCall& call) const {
    WriteLine(nlohmann::json{{"function", call.function},
                             {"arguments", call.arguments},
                             {"status", call.status},
                             {"contexts", call.out.contexts},
                             {"results", call.out.results},
                             {"texts", call.out.texts},
                             {"wrong", call.out.wrong}}
                  .dump());
}

void CallLog::WriteFailure(const std::string& what) const {
    WriteLine(nlohmann::json{{"failure", BytesToJson(what)}}.dump());
}

std::vector<LoggedCall> ReadCallLog(const std::filesystem::path& folder) {
    std::vector<LoggedCall> calls;
    std::ifstream stream(folder / kCallLogFile, std::ios::binary);
    for (std::string line; std::getline(stream, line);) {
        const nlohmann::json value = nlohmann::json::parse(line);
        RequireMembers(value, {"function", "arguments", "status", "contexts", "results", "texts", "wrong"});
        calls.push_back({.function = value.at("function").get<std::string>(),
                         .arguments = value.at("arguments").get<std::string>(),
                         .status = value.at("status").get<std::uint32_t>(),
                         .out = {.contexts = value.at("contexts").get<std::size_t>(),
                                 .results = value.at("results").get<std::size_t>(),
                                 .texts = value.at("texts").get<std::size_t>(),
                                 .wrong = value.at("wrong").get<unsigned>()}});
    }
    return calls;
}

}  // namespace corvane::test
