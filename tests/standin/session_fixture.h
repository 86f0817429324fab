#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "standin/standin_provider.h"
#include "standin/status_texts.h"
#include "tests/standin/fake_system.h"

namespace corvane::standin {

inline constexpr std::uint32_t kListFields = 0x84;
inline constexpr std::uint32_t kCertificateFields = 0x28084;

/// A provider with an open cryptocontext, and searches in it.
class Session {
  public:
    explicit Session(const FakeSystem& system, std::uint32_t flags = 0x80000040) : provider(system) {
        EXPECT_EQ(provider.Initialize("Clearing", flags, &context), kStatusOk);
    }

    /// The status of a search; the owners found are in `owners`. With the match mode 4 unless said otherwise.
    std::uint32_t Search(std::uint32_t flags, const char* pattern, std::uint32_t matchMode = 4) {
        provider::CertQuery query;
        query.searchFlags = flags;
        query.matchMode = pattern == nullptr ? 0 : matchMode;
        query.ownerPattern = pattern;
        query.fieldsWanted = kListFields;
        provider::CertFindResult result;
        const std::uint32_t status = provider.FindCert(context, &query, &result);
        owners.clear();
        for (std::uint32_t index = 0; index < result.count; ++index) {
            owners.emplace_back(result.entries[index].owner);
        }
        EXPECT_EQ(provider.FreeFindResult(context, &result), kStatusOk);
        return status;
    }

    StandInProvider provider;
    provider::ProviderContext context = 0;
    std::vector<std::string> owners;
};

/// Pops the whole error stack of `context` as "text|data" lines and releases its texts.
inline std::vector<std::string> PopErrors(StandInProvider& provider, provider::ProviderContext context) {
    std::vector<std::string> lines;
    provider::XsigBlob text;
    provider::XsigBlob file;
    provider::XsigBlob data;
    std::uint32_t line = 0;
    while (provider.GetErrorLine(context, &text, &file, &line, &data) == 0) {
        EXPECT_EQ(std::string(file.data, file.length), "standin_provider.cpp");
        EXPECT_GT(line, 0U);
        lines.push_back(std::string(text.data, text.length) + "|" + std::string(data.data, data.length));
        for (const provider::XsigBlob& blob : {text, file, data}) {
            EXPECT_EQ(provider.FreeMem(0, blob.data), kStatusOk);
        }
    }
    return lines;
}

}  // namespace corvane::standin
