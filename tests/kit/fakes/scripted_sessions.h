#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "tests/kit/fakes/scripted_provider.h"

namespace corvane::test {

/// A certificate of a test's making. A text that is none arrives as a null pointer.
struct ScriptedCertificate {
    std::optional<std::string> owner;
    std::uint8_t usage = 0x1C;
    std::optional<std::string> issuer;
    std::optional<std::vector<std::uint8_t>> serial;
};

/// A search as it reached the library.
struct FindCall {
    provider::ProviderContext context = 0;
    std::uint32_t searchFlags = 0;
    std::uint32_t matchMode = 0;
    std::optional<std::string> ownerPattern;
    std::uint32_t fieldsWanted = 0;
    bool isRestZero = true;  ///< All bytes of the query that have no name.

    bool operator==(const FindCall&) const = default;
};

/// The opening of a cryptocontext as it reached the library.
struct InitializeCall {
    std::string csProfileName;
    std::uint32_t flags = 0;

    bool operator==(const InitializeCall&) const = default;
};

/// A control call as it reached the library.
struct ControlCall {
    provider::ProviderContext context = 0;
    std::uint32_t code = 0;
    std::uint32_t capacity = 0;
    bool isBufferZero = true;

    bool operator==(const ControlCall&) const = default;
};

/// The part of a provider library that opens cryptocontexts, searches and loads, above a ScriptedProvider
/// that has the error texts and stacks. Any call can be told to fail; each is kept, and what is handed out is
/// counted until it comes back. One lives at a time.
class ScriptedSessions : public provider::ProviderLibrary {
  public:
    explicit ScriptedSessions(ScriptedProvider& errors);
    ScriptedSessions(const ScriptedSessions&) = delete;
    ScriptedSessions& operator=(const ScriptedSessions&) = delete;
    ScriptedSessions(ScriptedSessions&&) = delete;
    ScriptedSessions& operator=(ScriptedSessions&&) = delete;
    ~ScriptedSessions() override;

    [[nodiscard]] const provider::ProviderFunctions* Functions() override;
    [[nodiscard]] const provider::ProviderBindFailure& LastFailure() const override {
        return errors_.LastFailure();
    }

    /// The context that the first successful opening gives; each later one is one more.
    static constexpr provider::ProviderContext kFirstContext = 0x1122334455667788;

    /// What every search finds that succeeds, unless `answer` is set.
    std::vector<ScriptedCertificate> certificates;
    /// What a search finds.
    std::function<std::vector<ScriptedCertificate>(const FindCall&)> answer;
    /// A search that fails hands out what it would have found nonetheless.
    bool failedSearchesHandOut = false;
    /// What the control call writes into its buffer; longer ones fill it and are not terminated.
    std::string controlText;

    /// The statuses of all calls of one kind, 0 unless laid down.
    std::uint32_t initializeStatus = 0;
    std::uint32_t uninitializeStatus = 0;
    std::uint32_t controlStatus = 0;
    std::uint32_t findStatus = 0;
    /// Makes the call of this index answer `status`: openings, closings, searches and control calls are
    /// counted together, from 0.
    void FailCall(std::size_t index, std::uint32_t status) { failures_[index] = status; }
    /// Makes the call of this index and every one behind it answer `status`.
    void FailCallsFrom(std::size_t index, std::uint32_t status) {
        firstFailure_ = index;
        lastingStatus_ = status;
    }

    /// Done in the middle of each call that FailCall counts, with its name in the log; a library that handles
    /// messages may get anything done there.
    std::function<void(const std::string& name)> during;

    /// What was called, in order: "initialize", "uninitialize", "find", "free result", "control", and what
    /// the test adds.
    std::vector<std::string> log;
    [[nodiscard]] const std::vector<InitializeCall>& Initializations() const { return initializations_; }
    [[nodiscard]] const std::vector<provider::ProviderContext>& Closed() const { return closed_; }
    [[nodiscard]] const std::vector<FindCall>& Searches() const { return searches_; }
    [[nodiscard]] const std::vector<ControlCall>& Controls() const { return controls_; }
    /// How many calls there were that FailCall counts.
    [[nodiscard]] std::size_t CallCount() const { return callCount_; }
    [[nodiscard]] std::size_t OpenContexts() const { return open_.size(); }
    /// How many search results were handed out, and how many of them have not come back.
    [[nodiscard]] std::size_t ResultsHandedOut() const { return resultsHandedOut_; }
    [[nodiscard]] std::size_t ResultsOut() const { return results_.size(); }
    /// How many calls were made with a context that is not open, or a result that is not out.
    [[nodiscard]] std::size_t Misuses() const { return misuses_; }

  private:
    struct Result {
        std::vector<provider::CertEntry> entries;
        std::vector<ScriptedCertificate> certificates;
    };

    std::uint32_t Enter(const std::string& name, std::uint32_t status);
    std::uint32_t EnterWith(provider::ProviderContext context, const std::string& name, std::uint32_t status);
    std::uint32_t Initialize(const char* csProfileName, std::uint32_t flags,
                             provider::ProviderContext* context);
    std::uint32_t Uninitialize(provider::ProviderContext context);
    std::uint32_t Control(provider::ProviderContext context, std::uint32_t code, provider::XsigBlob* buffer);
    std::uint32_t Find(provider::ProviderContext context, const provider::CertQuery& query,
                       provider::CertFindResult& result);
    std::uint32_t FreeResult(provider::ProviderContext context, provider::CertFindResult& result);

    ScriptedProvider& errors_;
    provider::ProviderFunctions functions_{};
    std::map<std::size_t, std::uint32_t> failures_;
    std::size_t firstFailure_ = SIZE_MAX;
    std::uint32_t lastingStatus_ = 0;
    std::vector<InitializeCall> initializations_;
    std::vector<provider::ProviderContext> closed_;
    std::vector<FindCall> searches_;
    std::vector<ControlCall> controls_;
    std::set<provider::ProviderContext> open_;
    provider::ProviderContext nextContext_ = kFirstContext;
    std::map<const void*, std::unique_ptr<Result>> results_;
    std::size_t resultsHandedOut_ = 0;
    std::size_t callCount_ = 0;
    std::size_t misuses_ = 0;
};

}  // namespace corvane::test
