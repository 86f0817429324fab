#include "certs/certificate_search.h"

#include <cstdint>
#include <string_view>
#include <unordered_set>

#include "certs/found_certificates.h"

namespace corvane {

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

bool IsUsable(const CertEntry& entry, const CertSearchSettings& settings) {
    return settings.signerMode != 0 || (entry.usage & kEncryptionUsage) != 0;
}

// With tens of thousands of certificates each owner must be known at a glance.
void AppendOwners(const FoundCertificates& found, const CertSearchSettings& settings,
                  const toolkit::SystemText& systemText, TextList& owners) {
    std::unordered_set<std::wstring_view> known;
    // There is room for all of them at once: no owner that is known moves.
    owners.reserve(owners.size() + found.Entries().size());
    for (const CertEntry& entry : found.Entries()) {
        if (!IsUsable(entry, settings)) {
            continue;
        }
        owners.push_back(TextOf(entry.owner, systemText));
        if (!known.insert(owners.back()).second) {
            owners.pop_back();
        }
    }
}

std::wstring SerialText(const CertEntry& entry) {
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

ProviderContext ReportedContext(const CertSearchSettings& settings, const Cryptocontext& context) {
    return settings.reportWithContext != 0 ? context.Get() : ProviderContext{};
}

}  // namespace

bool FindAllLocal(toolkit::WindowHandle owner, const CertSearchSettings& settings,
                  const Cryptocontext& context, ErrorReporter& reporter, TextList& owners) {
    owners.clear();
    CertQuery query;
    query.searchFlags = settings.signerMode != 0 ? kSignerFlag : 0;
    query.fieldsWanted = kOwnerFields;
    std::uint32_t status = 0;
    {
        const FoundCertificates found(context, query);
        status = found.Status();
        AppendOwners(found, settings, reporter.Text(), owners);
    }
    if (status != 0) {
        reporter.ReportError(owner, ReportedContext(settings, context), kShowReport, status,
                             "Searching of all certificate in local store", nullptr, nullptr);
    }
    return status == 0;
}

bool FindByPattern(toolkit::WindowHandle owner, const CertSearchSettings& settings,
                   const Cryptocontext& context, const std::wstring& pattern, ErrorReporter& reporter,
                   TextList& owners) {
    owners.clear();
    // The provider knows no pattern for an owner without any attribute.
    const std::string ownerPattern = pattern == L"*" ? "*=*" : reporter.Text().Narrow(pattern);
    CertQuery query;
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
    if (status == 0 || status == kStatusNothingFound) {
        return true;
    }
    reporter.ReportError(owner, context.Get(), kShowReport, status, kSearchOperation, nullptr,
                         reporter.Text().Narrow(pattern).c_str());
    return false;
}

bool FindByOwner(toolkit::WindowHandle owner, const CertSearchSettings& settings,
                 const Cryptocontext& context, const std::wstring& ownerName, ErrorReporter& reporter,
                 TextList& issuers, TextList& serials) {
    issuers.clear();
    serials.clear();
    const toolkit::SystemText& systemText = reporter.Text();
    const std::wstring wantedOwner = systemText.UpperCase(ownerName);
    const std::string ownerPattern = systemText.Narrow(ownerName);
    CertQuery query;
    query.searchFlags =
        (settings.notUseDirectory == 0 ? 4U : 0U) | (settings.signerMode != 0 ? kSignerFlag : 0U);
    query.matchMode = kPatternMatch;
    query.ownerPattern = ownerPattern.c_str();
    query.fieldsWanted = kCertificateFields;
    std::uint32_t status = 0;
    {
        const FoundCertificates found(context, query);
        status = found.Status();
        for (const CertEntry& entry : found.Entries()) {
            if (IsUsable(entry, settings) &&
                systemText.UpperCase(TextOf(entry.owner, systemText)) == wantedOwner) {
                issuers.push_back(TextOf(entry.issuer, systemText));
                serials.push_back(SerialText(entry));
            }
        }
    }
    if (status != 0) {
        reporter.ReportError(owner, ReportedContext(settings, context), kShowReport, status, kSearchOperation,
                             nullptr, ownerPattern.c_str());
    }
    return status == 0;
}

}  // namespace corvane
