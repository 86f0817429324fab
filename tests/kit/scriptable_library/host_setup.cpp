#include "tests/kit/scriptable_library/host_setup.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>

#include "tests/kit/scriptable_library/strict_json.h"

namespace corvane::test {
namespace {

struct NamedFlag {
    const char* name;
    store::FieldOf<store::CsProfile, std::int32_t> field;
};

constexpr std::array kFlags = {
    NamedFlag{"auto_use_time_stamp", &store::CsProfile::autoUseTimeStamp},
    NamedFlag{"auto_verify_time_stamp", &store::CsProfile::autoVerifyTimeStamp},
    NamedFlag{"no_time_stamp_is_error", &store::CsProfile::noTimeStampIsError},
    NamedFlag{"not_add_certificate", &store::CsProfile::notAddCertificate},
    NamedFlag{"not_copy_to_local", &store::CsProfile::notCopyToLocal},
    NamedFlag{"not_load_crl", &store::CsProfile::notLoadCrl},
    NamedFlag{"crl_update_period", &store::CsProfile::crlUpdatePeriod},
    NamedFlag{"not_use_directory", &store::CsProfile::notUseDirectory},
    NamedFlag{"use_authority_access", &store::CsProfile::useAuthorityAccess},
};

std::string Utf8(const std::wstring& text) {
    const int size = static_cast<int>(text.size());
    std::string bytes(text.size() * 3, '\0');
    bytes.resize(static_cast<std::size_t>(WideCharToMultiByte(
        CP_UTF8, 0, text.data(), size, bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr)));
    return bytes;
}

std::wstring Wide(const std::string& bytes) {
    const int size = static_cast<int>(bytes.size());
    std::wstring text(bytes.size(), L'\0');
    text.resize(
        static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, bytes.data(), size, text.data(), size)));
    return text;
}

constexpr std::array kDialogs = {"recipients", "signer_lists", "wait_window"};

nlohmann::json Written(const store::TextList& texts) {
    nlohmann::json list = nlohmann::json::array();
    for (const std::wstring& text : texts) {
        list.push_back(Utf8(text));
    }
    return list;
}

std::wstring TextOf(const nlohmann::json& value) {
    return Wide(value.get<std::string>());
}

store::TextList TextsOf(const nlohmann::json& value) {
    store::TextList texts;
    for (const nlohmann::json& text : value) {
        texts.push_back(TextOf(text));
    }
    return texts;
}

HostSetup::Dialog DialogOf(const nlohmann::json& value) {
    const auto name = value.get<std::string>();
    const auto found = std::find(kDialogs.begin(), kDialogs.end(), name);
    if (found == kDialogs.end()) {
        throw std::invalid_argument("The host has no such dialog: " + name);
    }
    return static_cast<HostSetup::Dialog>(found - kDialogs.begin());
}

std::wstring FirstLine(int run, const wchar_t* outcome) {
    return L"run " + std::to_wstring(run) + L": " + outcome;
}

}  // namespace

void WriteHostSetup(const HostSetup& setup, const std::filesystem::path& file) {
    nlohmann::json flags = nlohmann::json::object();
    for (const NamedFlag& flag : kFlags) {
        flags[flag.name] = setup.csProfile.*flag.field;
    }
    nlohmann::json lists = nlohmann::json::array();
    for (const store::SignerGroup& list : setup.lists) {
        lists.push_back({{"name", Utf8(list.name)}, {"signers", Written(list.signers)}});
    }
    WriteJson({{"dialog", kDialogs.at(static_cast<std::size_t>(setup.dialog))},
               {"cs_profile", Utf8(setup.csProfile.name)},
               {"time_stamp_server", Utf8(setup.csProfile.timeStampServer)},
               {"flags", std::move(flags)},
               {"recipients", Written(setup.recipients)},
               {"lists", std::move(lists)}},
              file);
}

HostSetup ReadHostSetup(const std::filesystem::path& file) {
    HostSetup setup;
    if (!std::filesystem::exists(file)) {
        return setup;
    }
    const nlohmann::json written = ReadJson(file);
    RequireMembers(written, {"dialog", "cs_profile", "time_stamp_server", "flags", "recipients", "lists"});
    setup.dialog = DialogOf(written.at("dialog"));
    setup.csProfile.name = TextOf(written.at("cs_profile"));
    setup.csProfile.timeStampServer = TextOf(written.at("time_stamp_server"));
    const nlohmann::json& flags = written.at("flags");
    for (const NamedFlag& flag : kFlags) {
        setup.csProfile.*flag.field = flags.at(flag.name).get<std::int32_t>();
    }
    if (flags.size() != kFlags.size()) {
        throw std::invalid_argument("A flag that is not known: " + flags.dump());
    }
    setup.recipients = TextsOf(written.at("recipients"));
    for (const nlohmann::json& list : written.at("lists")) {
        RequireMembers(list, {"name", "signers"});
        setup.lists.push_back({TextOf(list.at("name")), TextsOf(list.at("signers"))});
    }
    return setup;
}

std::wstring HostResult(int run, const store::TextList& recipients) {
    std::wstring result = FirstLine(run, L"ok");
    for (const std::wstring& recipient : recipients) {
        result += L"\r\n" + recipient;
    }
    return result;
}

std::wstring HostResult(int run, const std::vector<store::SignerGroup>& lists) {
    std::wstring result = FirstLine(run, L"ok");
    for (const store::SignerGroup& list : lists) {
        result += L"\r\nlist " + list.name;
        for (const std::wstring& signer : list.signers) {
            result += L"\r\n\t" + signer;
        }
    }
    return result;
}

std::wstring HostCancelled(int run) {
    return FirstLine(run, L"cancelled");
}

}  // namespace corvane::test
