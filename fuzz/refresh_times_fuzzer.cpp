#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "certificates/store_checks/crl_update.h"
#include "fuzz/code_pages.h"
#include "fuzz/require.h"

// An input is the time, the period, the name of a CS profile and the entries of "LastCrlUpdate", one for each
// line. Whatever they say, an answer comes as laid down, and a time that was recorded is found again.

namespace corvane::fuzz {
namespace {

using fuzz::Require;

struct Question {
    std::int64_t nowSeconds = 0;
    std::int32_t periodHours = 0;
    std::wstring name;
    store::TextList entries;
};

// The fields between ";;", told a second time.
store::TextList FieldsOf(std::wstring entry) {
    store::TextList fields;
    for (std::size_t end = entry.find(L";;"); end != std::wstring::npos; end = entry.find(L";;")) {
        fields.push_back(entry.substr(0, end));
        entry.erase(0, end + 2);
    }
    fields.push_back(entry);
    return fields;
}

// The lower 32 bits of a number of any length.
std::int32_t WrappedNumber(const std::wstring& text) {
    std::size_t i = text.find_first_not_of(L" \t\n\v\f\r");
    i = std::min(i, text.size());
    const bool isNegative = i < text.size() && text[i] == L'-';
    i += i < text.size() && (text[i] == L'-' || text[i] == L'+') ? 1U : 0U;
    std::uint64_t number = 0;
    for (; i < text.size() && text[i] >= L'0' && text[i] <= L'9'; ++i) {
        number = (number * 10 + static_cast<std::uint64_t>(text[i] - L'0')) % (std::uint64_t{1} << 32U);
    }
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(isNegative ? 0 - number : number));
}

certificates::RefreshState ExpectedState(const Question& question) {
    certificates::RefreshState state;
    for (std::size_t i = 0; i < question.entries.size(); ++i) {
        const store::TextList fields = FieldsOf(question.entries[i]);
        if (fields.size() < 2 || fields[0] != question.name) {
            continue;
        }
        state.entry = i;
        const std::int64_t last = WrappedNumber(fields[1]);
        if (last / 60 + std::int64_t{question.periodHours} * 60 > question.nowSeconds / 60) {
            state.isDue = false;
        }
    }
    return state;
}

void CheckRecording(const Question& question, const certificates::RefreshState& state) {
    store::TextList recorded = question.entries;
    certificates::RecordRefresh(recorded, state.entry, question.name, question.nowSeconds);
    const std::size_t position = state.entry.value_or(question.entries.size());
    Require(recorded.size() == std::max(question.entries.size(), position + 1),
            "a time takes the place of its entry, or one at the end");
    Require(recorded[position] == question.name + L";;" + std::to_wstring(question.nowSeconds),
            "all 64 bits of the time are recorded");
    for (std::size_t i = 0; i < question.entries.size(); ++i) {
        Require(i == position || recorded[i] == question.entries[i], "the other entries stay");
    }
    const certificates::RefreshState after =
        certificates::FindRefreshState(recorded, question.name, question.periodHours, question.nowSeconds);
    // A name that holds the separator, or ends in half of it, is not told from what follows.
    if (FieldsOf(question.name + L";;").front() == question.name) {
        Require(after.entry == position, "a time that was recorded is found again");
        const bool fitsNumber = question.nowSeconds >= 0 && question.nowSeconds <= INT32_MAX;
        Require(!fitsNumber || question.periodHours < 1 || !after.isDue, "what was just loaded is not due");
    }
}

Question Read(const std::uint8_t* data, std::size_t sizeBytes) {
    Question question;
    std::memcpy(&question.nowSeconds, data, sizeof question.nowSeconds);
    // As far as the clock of the system goes, so that no sum leaves its bits.
    question.nowSeconds /= 1 << 12;
    std::memcpy(&question.periodHours, data + sizeof question.nowSeconds, sizeof question.periodHours);
    constexpr std::size_t kHead = sizeof question.nowSeconds + sizeof question.periodHours;
    std::wstring rest = fuzz::SingleByteText().Widen(
        std::string_view(reinterpret_cast<const char*>(data + kHead), sizeBytes - kHead));
    store::TextList lines;
    for (std::size_t end = rest.find(L'\n'); end != std::wstring::npos; end = rest.find(L'\n')) {
        lines.push_back(rest.substr(0, end));
        rest.erase(0, end + 1);
    }
    lines.push_back(rest);
    question.name = lines.front();
    question.entries.assign(lines.begin() + 1, lines.end());
    return question;
}

}  // namespace
}  // namespace corvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t sizeBytes) {
    using namespace corvane;
    using namespace corvane::fuzz;
    if (sizeBytes < sizeof(std::int64_t) + sizeof(std::int32_t)) {
        return 0;
    }
    const Question question = Read(data, sizeBytes);
    const certificates::RefreshState state = certificates::FindRefreshState(
        question.entries, question.name, question.periodHours, question.nowSeconds);
    const certificates::RefreshState expected = ExpectedState(question);
    Require(state.entry == expected.entry, "the last entry of the CS profile is found");
    Require(state.isDue == expected.isDue, "it is told whether the period is over");
    CheckRecording(question, state);
    return 0;
}
