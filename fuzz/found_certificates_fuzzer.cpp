#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "certificates/search/certificate_search.h"
#include "certificates/session/cryptocontext.h"
#include "fuzz/code_pages.h"
#include "fuzz/require.h"
#include "fuzz/silent_reporting.h"
#include "reporting/error_reporter.h"
#include "tests/kit/fakes/recording_input_gate.h"

// An input lays down what the library answers to a search (entries without texts, empty texts, odd bytes, a
// count without entries, entries without a count, a status that says that there is nothing) and to the
// question for the text of a status (any bytes, with a terminator or without one, or none at all). Every
// search gives what the entries say, nothing outside of them is read, and every result goes back exactly
// once.

namespace corvane::fuzz {
namespace {

using fuzz::Require;

constexpr provider::ProviderContext kContext = 0x7000000000000001;

/// The library; its functions are plain functions, so what they use has no other place.
struct CertLibrary {
    std::uint32_t status = 0;
    std::uint32_t count = 0;
    bool hasEntries = true;
    std::vector<provider::CertEntry> entries;
    std::deque<std::string> texts;
    std::deque<std::vector<std::uint8_t>> serials;
    std::size_t resultsOut = 0;

    std::uint32_t textAnswer = 0;
    std::string errorText;
    bool terminates = true;
};

CertLibrary& Library() {
    static CertLibrary library;
    return library;
}

std::uint32_t Find(provider::ProviderContext context, provider::CertQuery* query,
                   provider::CertFindResult* result) {
    CertLibrary& library = Library();
    Require(context == kContext && query != nullptr, "a search is asked in its context");
    result->count = library.count;
    result->entries = library.hasEntries ? library.entries.data() : nullptr;
    ++library.resultsOut;
    return library.status;
}

std::uint32_t FreeResult(provider::ProviderContext context, provider::CertFindResult* result) {
    CertLibrary& library = Library();
    Require(context == kContext && library.resultsOut == 1, "a result goes back once, in its context");
    Require(result->count == library.count, "a result goes back as it came");
    --library.resultsOut;
    return 0;
}

std::uint32_t GetErrorText(std::uint32_t /*status*/, char* buffer, std::uint32_t capacity) {
    const CertLibrary& library = Library();
    Require(capacity == 1024, "the room for a text is told");
    const std::size_t length = std::min<std::size_t>(library.errorText.size(), capacity);
    std::copy_n(library.errorText.data(), length, buffer);
    if (library.terminates && length < capacity) {
        buffer[length] = '\0';
    }
    return library.textAnswer;
}

std::uint32_t NoErrorLine(provider::ProviderContext /*context*/, provider::XsigBlob* /*text*/,
                          provider::XsigBlob* /*file*/, std::uint32_t* /*line*/,
                          provider::XsigBlob* /*data*/) {
    return 1;
}

class FuzzedLibrary : public provider::ProviderLibrary {
  public:
    FuzzedLibrary() {
        functions_.findCert = &Find;
        functions_.freeFindResult = &FreeResult;
        functions_.getErrorText = &GetErrorText;
        functions_.getErrorLine = &NoErrorLine;
        functions_.uninitialize = [](provider::ProviderContext) { return std::uint32_t{0}; };
    }
    [[nodiscard]] const provider::ProviderFunctions* Functions() override { return &functions_; }
    [[nodiscard]] const provider::ProviderBindFailure& LastFailure() const override { return failure_; }

  private:
    provider::ProviderFunctions functions_{};
    provider::ProviderBindFailure failure_;
};

// Takes an input apart.
class Input {
  public:
    explicit Input(std::string_view bytes) : rest_(bytes) {}

    [[nodiscard]] bool IsAtEnd() const { return rest_.empty(); }
    std::uint8_t Byte() {
        if (rest_.empty()) {
            return 0;
        }
        const auto byte = static_cast<std::uint8_t>(rest_.front());
        rest_.remove_prefix(1);
        return byte;
    }
    std::string Bytes(std::size_t length) {
        std::string bytes(rest_.substr(0, length));
        rest_.remove_prefix(bytes.size());
        return bytes;
    }

  private:
    std::string_view rest_;
};

// A text of the library, null where its length says so. It ends where its first zero byte stands.
const char* TakeText(Input& input) {
    constexpr unsigned kNull = 0xFF;
    const unsigned length = input.Byte();
    if (length == kNull) {
        return nullptr;
    }
    std::string& text = Library().texts.emplace_back(input.Bytes(length % 32));
    text.shrink_to_fit();
    return text.c_str();
}

void LayDown(Input& input) {
    constexpr std::array<std::uint32_t, 6> kStatuses = {
        0, 0, 1, provider::kStatusNothingFound, 0xE0000005, 0xFFFFFFFF};
    CertLibrary& library = Library();
    library = {};
    library.status = kStatuses[input.Byte() % kStatuses.size()];
    const unsigned shape = input.Byte();
    library.hasEntries = shape % 4 != 0;
    library.textAnswer = input.Byte() % 3;
    library.terminates = input.Byte() % 2 == 0;
    // Long enough to fill the room for it, or nothing at all.
    const std::string piece = input.Bytes(input.Byte());
    for (unsigned times = input.Byte() % 8 * 20; times > 0; --times) {
        library.errorText += piece;
    }
    while (!input.IsAtEnd()) {
        provider::CertEntry& entry = library.entries.emplace_back();
        entry.owner = TakeText(input);
        entry.usage = input.Byte();
        entry.issuer = TakeText(input);
        const unsigned serial = input.Byte();
        entry.serialLength = serial % 16;
        if (serial < 0x80) {
            const std::string bytes = input.Bytes(entry.serialLength);
            entry.serialLength = static_cast<std::uint32_t>(bytes.size());
            entry.serial = library.serials.emplace_back(bytes.begin(), bytes.end()).data();
        }
    }
    library.entries.shrink_to_fit();
    // A count is believed where there are entries, so it may not be higher than they are many; without any it
    // may be whatever it is.
    library.count = shape / 4 % 4 == 1 ? 0 : static_cast<std::uint32_t>(library.entries.size());
    if (!library.hasEntries) {
        library.count += shape;
    }
}

std::wstring Seen(const char* text, const toolkit::SystemText& systemText) {
    return text == nullptr ? std::wstring() : systemText.Widen(text);
}

// What a search gives, told a second time.
struct Expected {
    store::TextList owners;  // Each once.
    store::TextList issuers;
    store::TextList serials;
};

Expected Expect(bool isForSigners, const std::wstring& wanted, const toolkit::SystemText& systemText) {
    const CertLibrary& library = Library();
    Expected expected;
    for (std::size_t i = 0; library.status == 0 && library.hasEntries && i < library.count; ++i) {
        const provider::CertEntry& entry = library.entries[i];
        if (!isForSigners && (entry.usage & 0x1CU) == 0) {
            continue;
        }
        const std::wstring owner = Seen(entry.owner, systemText);
        if (std::find(expected.owners.begin(), expected.owners.end(), owner) == expected.owners.end()) {
            expected.owners.push_back(owner);
        }
        if (owner != wanted) {
            continue;
        }
        expected.issuers.push_back(Seen(entry.issuer, systemText));
        std::wstring serial;
        for (std::uint32_t byte = 0; entry.serial != nullptr && byte < entry.serialLength; ++byte) {
            constexpr wchar_t kDigits[] = L"0123456789ABCDEF";
            serial += byte == 0 ? L"" : L":";
            serial += kDigits[entry.serial[byte] / 16];
            serial += kDigits[entry.serial[byte] % 16];
        }
        expected.serials.push_back(serial);
    }
    return expected;
}

std::wstring ExpectedDescription(const toolkit::SystemText& systemText) {
    const CertLibrary& library = Library();
    std::string bytes = library.errorText.substr(0, 1024);
    bytes = bytes.substr(0, bytes.find('\0'));
    if (library.textAnswer == 0 || bytes.empty()) {
        return L"Error description not found";
    }
    std::wstring text = systemText.Widen(bytes);
    while (!text.empty() && std::wstring_view(L".\r\n").find(text.back()) != std::wstring_view::npos) {
        text.pop_back();
    }
    return text;
}

void CheckSearches(std::string_view bytes, const toolkit::SystemText& systemText) {
    FuzzedLibrary provider;
    fuzz::SilentPresenter presenter;
    const fuzz::NoMessages messages;
    reporting::ErrorReporter reporter(presenter, messages, provider, systemText);
    test::RecordingInputGate gate;
    const certificates::Cryptocontext context(*provider.Functions(), kContext, reporter, nullptr, gate);
    Input input(bytes);
    LayDown(input);
    const std::uint32_t status = Library().status;

    std::wstring description;
    reporter.DescribeErrorCode(0xE0000005, description, 0);
    Require(description == ExpectedDescription(systemText), "a status is described by its text");

    for (const bool isForSigners : {false, true}) {
        certificates::CertSearchSettings settings;
        settings.signerMode = isForSigners ? 1 : 0;
        std::wstring wanted =
            Library().entries.empty() ? std::wstring(L"CN=A") : Seen(Library().entries[0].owner, systemText);
        const Expected expected = Expect(isForSigners, wanted, systemText);

        store::TextList owners = {L"gone"};
        Require(certificates::FindAllLocal(nullptr, settings, context, reporter, owners) == (status == 0) &&
                    owners == expected.owners,
                "the local store gives every owner once");
        owners = {L"gone"};
        Require(certificates::FindByPattern(nullptr, settings, context, L"*", reporter, owners) ==
                        (status == 0 || status == provider::kStatusNothingFound) &&
                    owners == expected.owners,
                "a pattern gives every owner once");
        store::TextList issuers = {L"gone"};
        store::TextList serials = {L"gone"};
        Require(certificates::FindByOwner(nullptr, settings, context, wanted, reporter, issuers, serials) ==
                        (status == 0) &&
                    issuers == expected.issuers && serials == expected.serials,
                "an owner gives the issuer and the number of each certificate");
        Require(Library().resultsOut == 0, "every result has gone back");
    }
    const std::size_t reports = status == 0 ? 0 : status == provider::kStatusNothingFound ? 4 : 6;
    Require(presenter.count == reports, "every search that fails is reported once");
}

}  // namespace
}  // namespace corvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t sizeBytes) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), sizeBytes);
    corvane::fuzz::CheckSearches(bytes, corvane::fuzz::SingleByteText());
    corvane::fuzz::CheckSearches(bytes, corvane::fuzz::DoubleByteText());
    return 0;
}
