#include "certificates/search/certificate_search.h"

#include <cstdint>
#include <string_view>
#include <unordered_set>

#include "certificates/search/found_certificates.h"

namespace corvane::certificates {

namespace {

constexpr std::uint8_t kEncryptionUsage = 0x1C;
constexpr std::uint32_t kSignerFlag = 0x100;
constexpr std::uint32_t kPatternMatch = 4;
constexpr std::uint32_t kOwnerFields = 0x84;
constexpr std::uint32_t kCertificateFields = 0x28084;
constexpr char kSearchOperation[] = "Searching for certificate %s";

std::wstring TextOf(const char* text, const toolkit::SystemText& systemText) {
    return text == nullptr ? std::wstring() : systemText.Widen(text);
}

bool IsUsable(const provider::CertEntry& entry, const CertSearchSettings& settings) {
    return settings.signerMode != 0 || (entry.usage & kEncryptionUsage) != 0;
}

// With tens of thousands of certificates each owner must be known at a glance.
void AppendOwners(const FoundCertificates& found, const CertSearchSettings& settings,
                  const toolkit::SystemText& systemText, store::TextList& owners) {
    std::unordered_set<std::wstring_view> known;
    // There is room for all of them at once: no owner that is known moves.
    owners.reserve(owners.size() + found.Entries().size());
    for (const provider::CertEntry& entry : found.Entries()) {
        if (!IsUsable(entry, settings)) {
            continue;
        }
        owners.push_back(TextOf(entry.owner, systemText));
        if (!known.insert(owners.back()).second) {
            owners.pop_back();
        }
    }
}

std::wstring SerialText(const provider::CertEntry& entry) {
    if (entry.serial == nullptr) {
        return {};
    }
    constexpr std::wstring_view kDigits = L"0123456789ABCDEF";
    std::wstring text;
    for (std::uint32_t i = 0; i < entry.serialLength; ++i) {
        if (i > 0) {
            text += L':';
        }
        text += kDigits[entry.serial[i] >> 4U];
        text += kDigits[entry.serial[i] & 0xFU];
    }
    return text;
}

provider::ProviderContext ReportedContext(const CertSearchSettings& settings, const Cryptocontext& context) {
    return settings.reportWithContext != 0 ? context.Get() : provider::ProviderContext{};
}

}  // namespace

bool FindAllLocal(toolkit::WindowHandle owner, const CertSearchSettings& settings,
                  const Cryptocontext& context, reporting::ErrorReporter& reporter, store::TextList& owners) {
    owners.clear();
    provider::CertQuery query;
    query.searchFlags = settings.signerMode != 0 ? kSignerFlag : 0;
    query.fieldsWanted = kOwnerFields;
    std::uint32_t status = 0;
    {
        const FoundCertificates found(context, query);
        status = found.Status();
        AppendOwners(found, settings, reporter.Text(), owners);
    }
    if (status != 0) {
        reporter.ReportError(owner, ReportedContext(settings, context), reporting::kShowReport, status,
                             "Searching of all certificate in local store", nullptr, nullptr);
    }
    return status == 0;
}

bool FindByPattern(toolkit::WindowHandle owner, const CertSearchSettings& settings,
                   const Cryptocontext& context, const std::wstring& pattern,
                   reporting::ErrorReporter& reporter, store::TextList& owners) {
    owners.clear();
    // The provider knows no pattern for an owner without any attribute.
    const std::string ownerPattern = pattern == L"*" ? "*=*" : reporter.Text().Narrow(pattern);
    provider::CertQuery query;
    query.searchFlags = settings.signerMode != 0 ? 0xF04 : 0xE04;
    query.matchMode = kPatternMatch;
    query.ownerPattern = ownerPattern.c_str();
    query.fieldsWanted = kOwnerFields;
    std::uint32_t status = 0;
    {
        const FoundCertificates found(context, query);
        status = found.Status();
        AppendOwners(found, settings, reporter.Text(), owners);
    }
    if (status == 0 || status == provider::kStatusNothingFound) {
        return true;
    }
    reporter.ReportError(owner, context.Get(), reporting::kShowReport, status, kSearchOperation, nullptr,
                         reporter.Text().Narrow(pattern).c_str());
    return false;
}

bool FindByOwner(toolkit::WindowHandle owner, const CertSearchSettings& settings,
                 const Cryptocontext& context, const std::wstring& ownerName,
                 reporting::ErrorReporter& reporter, store::TextList& issuers, store::TextList& serials) {
    issuers.clear();
    serials.clear();
    const toolkit::SystemText& systemText = reporter.Text();
    const std::wstring wantedOwner = systemText.UpperCase(ownerName);
    const std::string ownerPattern = systemText.Narrow(ownerName);
    provider::CertQuery query;
    query.searchFlags =
        (settings.notUseDirectory == 0 ? 4U : 0U) | (settings.signerMode != 0 ? kSignerFlag : 0U);
    query.matchMode = kPatternMatch;
    query.ownerPattern = ownerPattern.c_str();
    query.fieldsWanted = kCertificateFields;
    std::uint32_t status = 0;
    {
        const FoundCertificates found(context, query);
        status = found.Status();
        for (const provider::CertEntry& entry : found.Entries()) {
            if (IsUsable(entry, settings) &&
                systemText.UpperCase(TextOf(entry.owner, systemText)) == wantedOwner) {
                issuers.push_back(TextOf(entry.issuer, systemText));
                serials.push_back(SerialText(entry));
            }
        }
    }
    if (status != 0) {
        reporter.ReportError(owner, ReportedContext(settings, context), reporting::kShowReport, status,
                             kSearchOperation, nullptr, ownerPattern.c_str());
    }
    return status == 0;
}

}  // namespace corvane::certificates
