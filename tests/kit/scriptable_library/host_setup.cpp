#include "tests/kit/scriptable_library/host_setup.h"

#include <windows.h>

#include <array>
#include <cstdlib>
#include <fstream>
#include <utility>

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

void ReadField(const std::string& name, const std::string& value, HostSetup& setup) {
    if (name == "dialog") {
        setup.dialog =
            static_cast<HostSetup::Dialog>(static_cast<int>(std::strtol(value.c_str(), nullptr, 10)));
    } else if (name == "cs_profile") {
        setup.csProfile.name = Wide(value);
    } else if (name == "time_stamp_server") {
        setup.csProfile.timeStampServer = Wide(value);
    } else if (name == "recipient") {
        setup.recipients.push_back(Wide(value));
    } else if (name == "list") {
        setup.lists.push_back({Wide(value), {}});
    } else if (name == "signer" && !setup.lists.empty()) {
        setup.lists.back().signers.push_back(Wide(value));
    }
    for (const NamedFlag& flag : kFlags) {
        if (name == flag.name) {
            setup.csProfile.*flag.field = static_cast<int>(std::strtol(value.c_str(), nullptr, 10));
        }
    }
}

std::wstring FirstLine(int run, const wchar_t* outcome) {
    return L"run " + std::to_wstring(run) + L": " + outcome;
}

}  // namespace

void WriteHostSetup(const HostSetup& setup, const std::filesystem::path& file) {
    std::ofstream stream(file, std::ios::binary);
    stream << "dialog=" << static_cast<int>(setup.dialog) << "\ncs_profile=" << Utf8(setup.csProfile.name)
           << "\ntime_stamp_server=" << Utf8(setup.csProfile.timeStampServer) << '\n';
    for (const NamedFlag& flag : kFlags) {
        stream << flag.name << '=' << setup.csProfile.*flag.field << '\n';
    }
    for (const std::wstring& recipient : setup.recipients) {
        stream << "recipient=" << Utf8(recipient) << '\n';
    }
    for (const store::SignerGroup& list : setup.lists) {
        stream << "list=" << Utf8(list.name) << '\n';
        for (const std::wstring& signer : list.signers) {
            stream << "signer=" << Utf8(signer) << '\n';
        }
    }
}

HostSetup ReadHostSetup(const std::filesystem::path& file) {
    HostSetup setup;
    std::ifstream stream(file, std::ios::binary);
    for (std::string line; std::getline(stream, line);) {
        if (const std::size_t sign = line.find('='); sign != std::string::npos) {
            ReadField(line.substr(0, sign), line.substr(sign + 1), setup);
        }
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
