#include "tests/kit/fakes/scripted_sessions.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>
#include <utility>

namespace corvane::test {

namespace {

ScriptedSessions* currentSessions = nullptr;

bool IsRestZero(const provider::CertQuery& query) {
    provider::CertQuery named{};
    named.searchFlags = query.searchFlags;
    named.matchMode = query.matchMode;
    named.ownerPattern = query.ownerPattern;
    named.fieldsWanted = query.fieldsWanted;
    return std::memcmp(&named, &query, sizeof query) == 0;
}

provider::CertEntry EntryOf(const ScriptedCertificate& certificate) {
    provider::CertEntry entry;
    entry.owner = certificate.owner ? certificate.owner->c_str() : nullptr;
    entry.usage = certificate.usage;
    entry.issuer = certificate.issuer ? certificate.issuer->c_str() : nullptr;
    if (certificate.serial) {
        entry.serialLength = static_cast<std::uint32_t>(certificate.serial->size());
        entry.serial = certificate.serial->data();
    }
    return entry;
}

}  // namespace

ScriptedSessions::ScriptedSessions(ScriptedProvider& errors) : errors_(errors) {
    if (currentSessions != nullptr) {
        throw std::logic_error("Two scripted libraries at once");
    }
    currentSessions = this;
}

ScriptedSessions::~ScriptedSessions() {
    currentSessions = nullptr;
}

const provider::ProviderFunctions* ScriptedSessions::Functions() {
    const provider::ProviderFunctions* const errors = errors_.Functions();
    if (errors == nullptr) {
        return nullptr;
    }
    functions_ = *errors;
    functions_.initialize = [](const char* name, std::uint32_t flags, provider::ProviderContext* context) {
        return currentSessions->Initialize(name, flags, context);
    };
    functions_.uninitialize = [](provider::ProviderContext context) {
        return currentSessions->Uninitialize(context);
    };
    functions_.control = [](provider::ProviderContext context, std::uint32_t code,
                            provider::XsigBlob* buffer) {
        return currentSessions->Control(context, code, buffer);
    };
    functions_.findCert = [](provider::ProviderContext context, provider::CertQuery* query,
                             provider::CertFindResult* result) {
        return currentSessions->Find(context, *query, *result);
    };
    functions_.freeFindResult = [](provider::ProviderContext context, provider::CertFindResult* result) {
        return currentSessions->FreeResult(context, *result);
    };
    return &functions_;
}

std::uint32_t ScriptedSessions::Enter(const std::string& name, std::uint32_t status) {
    log.push_back(name);
    if (during) {
        during(name);
    }
    const std::size_t index = callCount_++;
    if (index >= firstFailure_) {
        return lastingStatus_;
    }
    const auto failure = failures_.find(index);
    return failure == failures_.end() ? status : failure->second;
}

std::uint32_t ScriptedSessions::EnterWith(provider::ProviderContext context, const std::string& name,
                                          std::uint32_t status) {
    misuses_ += open_.contains(context) ? 0U : 1U;
    return Enter(name, status);
}

std::uint32_t ScriptedSessions::Initialize(const char* csProfileName, std::uint32_t flags,
                                           provider::ProviderContext* context) {
    const std::uint32_t status = Enter("initialize", initializeStatus);
    initializations_.push_back({csProfileName, flags});
    if (status == 0) {
        *context = nextContext_++;
        open_.insert(*context);
    }
    return status;
}

std::uint32_t ScriptedSessions::Uninitialize(provider::ProviderContext context) {
    const std::uint32_t status = EnterWith(context, "uninitialize", uninitializeStatus);
    closed_.push_back(context);
    open_.erase(context);
    return status;
}

std::uint32_t ScriptedSessions::Control(provider::ProviderContext context, std::uint32_t code,
                                        provider::XsigBlob* buffer) {
    const std::uint32_t status = EnterWith(context, "control", controlStatus);
    controls_.push_back(
        {context, code, buffer->length,
         std::all_of(buffer->data, buffer->data + buffer->length, [](char byte) { return byte == '\0'; })});
    const std::size_t length = std::min<std::size_t>(controlText.size(), buffer->length);
    std::copy_n(controlText.data(), length, buffer->data);
    return status;
}

std::uint32_t ScriptedSessions::Find(provider::ProviderContext context, const provider::CertQuery& query,
                                     provider::CertFindResult& result) {
    const std::uint32_t status = EnterWith(context, "find", findStatus);
    searches_.push_back(
        {context, query.searchFlags, query.matchMode,
         query.ownerPattern == nullptr ? std::nullopt : std::optional<std::string>(query.ownerPattern),
         query.fieldsWanted, IsRestZero(query)});
    if (status != 0 && !failedSearchesHandOut) {
        return status;
    }
    auto found = std::make_unique<Result>();
    found->certificates = answer ? answer(searches_.back()) : certificates;
    for (const ScriptedCertificate& certificate : found->certificates) {
        found->entries.push_back(EntryOf(certificate));
    }
    result.count = static_cast<std::uint32_t>(found->entries.size());
    result.entries = found->entries.empty() ? nullptr : found->entries.data();
    if (result.entries != nullptr) {
        ++resultsHandedOut_;
        results_[result.entries] = std::move(found);
    }
    return status;
}

std::uint32_t ScriptedSessions::FreeResult(provider::ProviderContext context,
                                           provider::CertFindResult& result) {
    log.emplace_back("free result");
    misuses_ += open_.contains(context) ? 0U : 1U;
    if (result.entries != nullptr) {
        misuses_ += results_.erase(result.entries) == 1 ? 0U : 1U;
    }
    result = {};
    return 0;
}

}  // namespace corvane::test
