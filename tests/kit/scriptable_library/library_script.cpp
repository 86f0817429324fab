#include "tests/kit/scriptable_library/library_script.h"

#include "tests/kit/scriptable_library/strict_json.h"

namespace corvane::test {
namespace {

using nlohmann::json;

CallNumber CallOf(const json& entry) {
    return {entry.at("function").get<std::string>(), entry.at("call").get<unsigned>()};
}

json Written(const ScriptError& error) {
    return {{"text", BytesToJson(error.text)},
            {"file", BytesToJson(error.file)},
            {"line", error.line},
            {"data", BytesToJson(error.data)}};
}

ScriptError ErrorOf(const json& value) {
    RequireMembers(value, {"text", "file", "line", "data"});
    return {BytesFromJson(value.at("text")), BytesFromJson(value.at("file")),
            value.at("line").get<std::uint32_t>(), BytesFromJson(value.at("data"))};
}

json Written(const ScriptCertificate& certificate) {
    return {{"owner", BytesToJson(certificate.owner)},
            {"usage", certificate.usage},
            {"issuer", BytesToJson(certificate.issuer)},
            {"serial", BytesToJson(certificate.serial)}};
}

ScriptCertificate CertificateOf(const json& value) {
    RequireMembers(value, {"owner", "usage", "issuer", "serial"});
    return {BytesFromJson(value.at("owner")), value.at("usage").get<std::uint8_t>(),
            BytesFromJson(value.at("issuer")), BytesFromJson(value.at("serial"))};
}

template <typename Entry>
json WrittenList(const std::vector<Entry>& entries) {
    json list = json::array();
    for (const Entry& entry : entries) {
        list.push_back(Written(entry));
    }
    return list;
}

}  // namespace

void WriteLibraryScript(const LibraryScript& script, const std::filesystem::path& file) {
    json written = {{"statuses", json::array()},
                    {"holds", json::array()},
                    {"error_texts", json::array()},
                    {"error_stacks", json::array()},
                    {"control_text", BytesToJson(script.controlText)},
                    {"searches", json::array()}};
    for (const auto& [call, status] : script.statuses) {
        written["statuses"].push_back({{"function", call.first}, {"call", call.second}, {"status", status}});
    }
    for (const auto& [call, hold] : script.holds) {
        written["holds"].push_back({{"function", call.first},
                                    {"call", call.second},
                                    {"event", hold.eventName},
                                    {"handles_messages", hold.handlesMessages}});
    }
    for (const auto& [status, text] : script.errorTexts) {
        written["error_texts"].push_back({{"status", status}, {"text", BytesToJson(text)}});
    }
    for (const auto& [context, errors] : script.errorStacks) {
        written["error_stacks"].push_back({{"context", context}, {"errors", WrittenList(errors)}});
    }
    for (const auto& [search, certificates] : script.searches) {
        written["searches"].push_back(
            {{"search", BytesToJson(search)}, {"certificates", WrittenList(certificates)}});
    }
    WriteJson(written, file);
}

LibraryScript ReadLibraryScript(const std::filesystem::path& file) {
    LibraryScript script;
    if (!std::filesystem::exists(file)) {
        return script;
    }
    const json written = ReadJson(file);
    RequireMembers(written, {"statuses", "holds", "error_texts", "error_stacks", "control_text", "searches"});
    for (const json& entry : written.at("statuses")) {
        RequireMembers(entry, {"function", "call", "status"});
        script.statuses[CallOf(entry)] = entry.at("status").get<std::uint32_t>();
    }
    for (const json& entry : written.at("holds")) {
        RequireMembers(entry, {"function", "call", "event", "handles_messages"});
        script.holds[CallOf(entry)] = {.eventName = entry.at("event").get<std::string>(),
                                       .handlesMessages = entry.at("handles_messages").get<bool>()};
    }
    for (const json& entry : written.at("error_texts")) {
        RequireMembers(entry, {"status", "text"});
        script.errorTexts[entry.at("status").get<std::uint32_t>()] =
            BytesFromJson(entry.at("text")).value_or("");
    }
    for (const json& entry : written.at("error_stacks")) {
        RequireMembers(entry, {"context", "errors"});
        for (const json& error : entry.at("errors")) {
            script.errorStacks[entry.at("context").get<unsigned>()].push_back(ErrorOf(error));
        }
    }
    script.controlText = BytesFromJson(written.at("control_text")).value_or("");
    for (const json& entry : written.at("searches")) {
        RequireMembers(entry, {"search", "certificates"});
        std::vector<ScriptCertificate>& found =
            script.searches[BytesFromJson(entry.at("search")).value_or("")];
        for (const json& certificate : entry.at("certificates")) {
            found.push_back(CertificateOf(certificate));
        }
    }
    return script;
}

}  // namespace corvane::test
