#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "certificates/session/provider_call_message.h"
#include "fuzz/code_pages.h"
#include "fuzz/require.h"
#include "fuzz/silent_reporting.h"
#include "reporting/error_reporter.h"
#include "reporting/provider_error_stack.h"

// An input lays down an error stack: each of its entries has three texts of any bytes, with zeros inside,
// with a length and no memory, or none at all. Whatever it is, both layouts show it, nothing outside of the
// texts is read, and every text goes back to the library exactly once.

namespace corvane::fuzz {
namespace {

using fuzz::Require;

constexpr provider::ProviderContext kContext = 0x7000000000000001;

// One text of the stack. Its memory is as long as the text, so that reading past it is seen.
struct StackText {
    std::string bytes;
    bool hasMemory = true;
};

struct StackEntry {
    StackText text;
    StackText file;
    std::uint32_t line = 0;
    StackText data;
};

/// The library; its functions are plain functions, so what they use has no other place.
struct StackLibrary {
    std::vector<StackEntry> entries;
    std::size_t next = 0;
    bool bringsTextsAtTheEnd = false;
    provider::ProviderContext context = 0;
    provider::ProviderContext releaseContext = 0;
    std::set<const void*> out;
};

StackLibrary& Library() {
    static StackLibrary library;
    return library;
}

provider::XsigBlob HandOut(const StackText& text) {
    provider::XsigBlob blob;
    blob.length = static_cast<std::uint32_t>(text.bytes.size());
    if (text.hasMemory) {
        auto memory = std::make_unique<char[]>(text.bytes.size());
        std::copy(text.bytes.begin(), text.bytes.end(), memory.get());
        blob.data = memory.release();
        Library().out.insert(blob.data);
    }
    return blob;
}

std::uint32_t GetErrorLine(provider::ProviderContext context, provider::XsigBlob* text,
                           provider::XsigBlob* file, std::uint32_t* line, provider::XsigBlob* data) {
    StackLibrary& library = Library();
    Require(context == library.context, "the stack that was asked for is read");
    if (library.next == library.entries.size()) {
        if (library.bringsTextsAtTheEnd) {
            *text = HandOut({"not an entry", true});
        }
        return 1;
    }
    const StackEntry& entry = library.entries[library.next++];
    *text = HandOut(entry.text);
    *file = HandOut(entry.file);
    *line = entry.line;
    *data = HandOut(entry.data);
    return 0;
}

std::uint32_t FreeMem(provider::ProviderContext context, void* memory) {
    Require(context == Library().releaseContext, "texts go back under the context that is laid down");
    Require(Library().out.erase(memory) == 1, "what goes back was handed out and is out");
    const std::unique_ptr<char[]> released(static_cast<char*>(memory));
    return 0;
}

class FuzzedLibrary : public provider::ProviderLibrary {
  public:
    [[nodiscard]] const provider::ProviderFunctions* Functions() override {
        functions_.getErrorLine = &GetErrorLine;
        functions_.freeMem = &FreeMem;
        return &functions_;
    }
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
    unsigned Byte() {
        if (rest_.empty()) {
            return 0;
        }
        const auto byte = static_cast<unsigned char>(rest_.front());
        rest_.remove_prefix(1);
        return byte;
    }
    StackText Text() {
        // Every eighth length stands for a text without memory.
        const unsigned code = Byte();
        const std::string_view bytes = rest_.substr(0, code / 8);
        rest_.remove_prefix(bytes.size());
        return {std::string(bytes), code % 8 != 7};
    }

  private:
    std::string_view rest_;
};

void LayDown(std::string_view bytes) {
    StackLibrary& library = Library();
    library = {};
    Input input(bytes);
    library.bringsTextsAtTheEnd = input.Byte() % 2 == 1;
    while (!input.IsAtEnd()) {
        StackEntry entry;
        entry.text = input.Text();
        entry.file = input.Text();
        entry.line = input.Byte() << 24U;
        entry.data = input.Text();
        library.entries.push_back(std::move(entry));
    }
}

// What is seen of a text, told a second time: all up to its first zero.
std::wstring Seen(const StackText& text, const toolkit::SystemText& systemText) {
    return text.hasMemory ? systemText.Widen(text.bytes.substr(0, text.bytes.find('\0'))) : std::wstring();
}

std::wstring ExpectedStack(const toolkit::SystemText& systemText) {
    std::wstring expected;
    const std::vector<StackEntry>& entries = Library().entries;
    for (std::size_t i = 0; i < std::min(entries.size(), reporting::kMostProviderErrors); ++i) {
        expected += L"XSIG stek, error number " + std::to_wstring(i + 1) + L"\r\nError: " +
                    Seen(entries[i].text, systemText) + L"\r\nFile: " + Seen(entries[i].file, systemText) +
                    L"\r\nData: " + Seen(entries[i].data, systemText) + L"\r\n";
    }
    return expected;
}

std::wstring ExpectedDescription(const toolkit::SystemText& systemText) {
    std::wstring expected = L"description\r\n";
    const std::vector<StackEntry>& entries = Library().entries;
    for (std::size_t i = 0; i < std::min(entries.size(), reporting::kMostProviderErrors); ++i) {
        expected += Seen(entries[i].text, systemText) + L",\r\nfile: " + Seen(entries[i].file, systemText) +
                    L", line " + std::to_wstring(static_cast<std::int32_t>(entries[i].line)) + L", data: " +
                    Seen(entries[i].data, systemText) + L".\r\n";
    }
    return expected;
}

void CheckStack(std::string_view bytes, const toolkit::SystemText& systemText) {
    FuzzedLibrary provider;
    fuzz::SilentPresenter presenter;
    const fuzz::NoMessages messages;
    reporting::ErrorReporter reporter(presenter, messages, provider, systemText);

    LayDown(bytes);
    Library().context = kContext;
    const std::wstring stack = certificates::FormatErrorStack(*provider.Functions(), kContext, systemText);
    Require(stack == ExpectedStack(systemText), "a warning shows the stack entry by entry");
    Require(Library().out.empty(), "every text of a warning has gone back");

    LayDown(bytes);
    Library().context = kContext;
    Library().releaseContext = kContext;
    std::wstring description = L"description";
    reporter.AppendProviderErrorStack(kContext, description);
    Require(description == ExpectedDescription(systemText), "a report shows the stack entry by entry");
    Require(Library().out.empty(), "every text of a report has gone back");
}

}  // namespace
}  // namespace corvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t sizeBytes) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), sizeBytes);
    corvane::fuzz::CheckStack(bytes, corvane::fuzz::SingleByteText());
    corvane::fuzz::CheckStack(bytes, corvane::fuzz::DoubleByteText());
    return 0;
}
