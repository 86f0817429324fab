#include "standin/standin_provider.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "standin/search_plan.h"
#include "standin/status_texts.h"

namespace corvane::standin {
namespace {

constexpr std::uint32_t kLoadRevocationLists = 4;

}  // namespace

OpenContext* StandInProvider::Find(provider::ProviderContext context) {
    const auto found = contexts_.find(context);
    return found == contexts_.end() ? nullptr : found->second.get();
}

std::uint32_t StandInProvider::Initialize(const char* csProfileName, std::uint32_t flags,
                                          provider::ProviderContext* context) {
    initializeErrors_.clear();
    if (context == nullptr) {
        return StatusBadArgument(3);
    }
    *context = 0;
    if (csProfileName == nullptr) {
        return StatusBadArgument(1);
    }
    if (!system_.HasCsProfile(csProfileName)) {
        initializeErrors_.push_back(
            ErrorHere("The name is not in the catalogue of CS profiles", csProfileName));
        initializeErrors_.push_back(ErrorHere("The cryptocontext cannot be opened", csProfileName));
        return kStatusUnknownCsProfile;
    }
    auto open = std::make_unique<OpenContext>(flags);
    if (!open->Load(CertificateStore::kLocal, system_)) {
        initializeErrors_.push_back(ErrorHere("The local certificate store cannot be read", csProfileName));
        return kStatusLocalStoreClosed;
    }
    contexts_.emplace(++lastContext_, std::move(open));
    *context = lastContext_;
    return kStatusOk;
}

std::uint32_t StandInProvider::Uninitialize(provider::ProviderContext context) {
    return contexts_.erase(context) == 1 ? kStatusOk : kStatusUnknownContext;
}

std::uint32_t StandInProvider::Control(provider::ProviderContext context, std::uint32_t code,
                                       provider::XsigBlob* buffer) {
    OpenContext* open = Find(context);
    if (open == nullptr) {
        return kStatusUnknownContext;
    }
    open->Errors().clear();
    if (code != kLoadRevocationLists) {
        open->Errors().push_back(ErrorHere("The control code is not known", std::to_string(code)));
        return kStatusUnknownControlCode;
    }
    if (buffer == nullptr) {
        return StatusBadArgument(3);
    }
    return LoadRevocations(*open, *buffer);
}

std::uint32_t StandInProvider::LoadRevocations(OpenContext& open, provider::XsigBlob& buffer) {
    const std::optional<std::vector<RevocationFile>> files = system_.RevocationFiles();
    if (!files || files->empty()) {
        const std::string folder = system_.RevocationFolder();
        open.Errors().push_back(ErrorHere("No certificate revocation list is there", folder));
        WriteWholeLines("No certificate revocation list in " + folder + "\r\n", buffer.data, buffer.length);
        return kStatusDistributionPointSilent;
    }
    std::uint32_t status = kStatusOk;
    for (const RevocationFile& file : *files) {
        if (file.refusal.empty()) {
            revocations_.Take(file);
        } else {
            open.Errors().push_back(ErrorHere(file.refusal, file.fileName));
            status = kStatusRevocationListRefused;
        }
    }
    WriteWholeLines(DescribeLoading(*files), buffer.data, buffer.length);
    return status;
}

std::uint32_t StandInProvider::FindCert(provider::ProviderContext context, const provider::CertQuery* query,
                                        provider::CertFindResult* result) {
    if (result == nullptr) {
        return StatusBadArgument(3);
    }
    *result = {};
    OpenContext* open = Find(context);
    if (open == nullptr) {
        return kStatusUnknownContext;
    }
    open->Errors().clear();
    if (query == nullptr) {
        return StatusBadArgument(2);
    }
    const SearchPlan plan = PlanSearch(*query, open->OpenFlags());
    if (plan.includesNetwork && !open->Load(CertificateStore::kNetwork, system_)) {
        open->Errors().push_back(ErrorHere("The folder does not exist", system_.NetworkFolder()));
        open->Errors().push_back(ErrorHere("The network certificate store does not answer",
                                           query->ownerPattern == nullptr ? "" : query->ownerPattern));
        return kStatusNetworkStoreSilent;
    }
    std::vector<const ServedCertificate*> found = open->Find(*query, plan, system_);
    std::erase_if(found, [&](const ServedCertificate* certificate) {
        return revocations_.Contains(certificate->encodedIssuer, certificate->serial);
    });
    if (found.empty()) {
        return provider::kStatusNothingFound;
    }
    results_.HandOut(found, plan, *result);
    return kStatusOk;
}

std::uint32_t StandInProvider::FreeFindResult(provider::ProviderContext context,
                                              provider::CertFindResult* result) {
    if (result == nullptr) {
        return StatusBadArgument(2);
    }
    if (Find(context) == nullptr) {
        return kStatusUnknownContext;
    }
    return results_.Release(*result) ? kStatusOk : kStatusForeignMemory;
}

std::uint32_t StandInProvider::GetErrorText(std::uint32_t status, char* buffer, std::uint32_t capacity) {
    if (buffer == nullptr || capacity == 0) {
        return 0;
    }
    const std::string_view text = StatusText(status).substr(0, capacity - 1);
    std::copy(text.begin(), text.end(), buffer);
    buffer[text.size()] = '\0';
    return text.empty() ? 0 : 1;
}

std::uint32_t StandInProvider::GetErrorLine(provider::ProviderContext context, provider::XsigBlob* text,
                                            provider::XsigBlob* file, std::uint32_t* line,
                                            provider::XsigBlob* data) {
    if (text == nullptr || file == nullptr || line == nullptr || data == nullptr) {
        return StatusBadArgument(2);
    }
    OpenContext* open = Find(context);
    if (context != 0 && open == nullptr) {
        return kStatusUnknownContext;
    }
    ErrorStack& errors = open == nullptr ? initializeErrors_ : open->Errors();
    if (errors.empty()) {
        return kStatusStackEmpty;
    }
    const ErrorEntry entry = std::move(errors.back());
    errors.pop_back();
    const auto handOut = [this](const std::string& value) {
        return provider::XsigBlob{static_cast<std::uint32_t>(value.size()), texts_.Copy(value)};
    };
    *text = handOut(entry.text);
    *file = handOut(entry.file);
    *line = entry.line;
    *data = handOut(entry.data);
    return kStatusOk;
}

std::uint32_t StandInProvider::FreeMem(provider::ProviderContext context, void* memory) {
    if (context != 0 && Find(context) == nullptr) {
        return kStatusUnknownContext;
    }
    return memory == nullptr || texts_.Release(memory) ? kStatusOk : kStatusForeignMemory;
}

}  // namespace corvane::standin
