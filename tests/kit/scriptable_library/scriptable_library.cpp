#include "tests/kit/scriptable_library/scriptable_library.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace corvane::test {
namespace {

// More than 32 bits, so that a caller that keeps half of a handle is found out.
constexpr provider::ProviderContext kContextBase = 0x7000000000000000;
// A test that forgets its event shall fail, not hang.
constexpr DWORD kLongestHoldMilliseconds = 120000;

std::string Hex(std::uint32_t number) {
    char digits[16];
    std::snprintf(digits, sizeof digits, "%X", static_cast<unsigned>(number));
    return digits;
}

void WaitForEvent(const LibraryScript::Hold& hold) {
    const toolkit::UniqueKernelHandle event(OpenEventA(SYNCHRONIZE, FALSE, hold.eventName.c_str()));
    if (!event) {
        return;
    }
    if (!hold.handlesMessages) {
        WaitForSingleObject(event.Get(), kLongestHoldMilliseconds);
        return;
    }
    const HANDLE handle = event.Get();
    while (MsgWaitForMultipleObjects(1, &handle, FALSE, kLongestHoldMilliseconds, QS_ALLINPUT) ==
           WAIT_OBJECT_0 + 1) {
        for (MSG message = {}; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE;) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
}

ScriptText TextAt(const char* text) {
    return text == nullptr ? ScriptText() : ScriptText(text);
}

bool IsRestZero(const provider::CertQuery& query) {
    provider::CertQuery rest = query;
    rest.searchFlags = 0;
    rest.matchMode = 0;
    rest.ownerPattern = nullptr;
    rest.fieldsWanted = 0;
    static constexpr provider::CertQuery kZero{};
    return std::memcmp(&rest, &kZero, sizeof rest) == 0;
}

}  // namespace

ScriptableLibrary::ScriptableLibrary(const std::filesystem::path& folder)
    : script_(ReadLibraryScript(folder / kLibraryScriptFile)), log_(folder) {}

// Counts the call, lets it wait where the script says so, and gives the status that it is to answer.
std::uint32_t ScriptableLibrary::Enter(const std::string& function) {
    const unsigned number = ++callCounts_[function];
    for (const unsigned wanted : {number, 0U}) {
        if (const auto hold = script_.holds.find({function, wanted}); hold != script_.holds.end()) {
            WaitForEvent(hold->second);
        }
    }
    for (const unsigned wanted : {number, 0U}) {
        if (const auto status = script_.statuses.find({function, wanted}); status != script_.statuses.end()) {
            return status->second;
        }
    }
    return 0;
}

std::uint32_t ScriptableLibrary::Leave(const std::string& function, const std::string& arguments,
                                       std::uint32_t status) const {
    log_.Write({.function = function,
                .arguments = arguments,
                .status = status,
                .out = {.contexts = open_.size(),
                        .results = handedOut_.ResultCount(),
                        .texts = handedOut_.TextCount(),
                        .wrong = wrongCount_}});
    return status;
}

unsigned ScriptableLibrary::ContextNumber(provider::ProviderContext context) const {
    return context > kContextBase && context <= kContextBase + contextCount_
               ? static_cast<unsigned>(context - kContextBase)
               : 0;
}

std::string ScriptableLibrary::NameOpen(provider::ProviderContext context) {
    if (!open_.contains(context)) {
        ++wrongCount_;
        return "context=unknown";
    }
    return "context=" + std::to_string(ContextNumber(context));
}

std::uint32_t ScriptableLibrary::Initialize(const char* csProfileName, std::uint32_t flags,
                                            provider::ProviderContext* context) {
    const std::uint32_t status = Enter("Initialize");
    if (status == 0) {
        *context = kContextBase + ++contextCount_;
        open_.insert(*context);
    }
    return Leave("Initialize", "name=" + Quoted(TextAt(csProfileName)) + " flags=" + Hex(flags), status);
}

std::uint32_t ScriptableLibrary::Uninitialize(provider::ProviderContext context) {
    const std::uint32_t status = Enter("Uninitialize");
    const std::string name = NameOpen(context);
    open_.erase(context);
    return Leave("Uninitialize", name, status);
}

std::uint32_t ScriptableLibrary::Control(provider::ProviderContext context, std::uint32_t code,
                                         provider::XsigBlob* buffer) {
    const std::uint32_t status = Enter("Ctrl");
    const bool isZero =
        std::all_of(buffer->data, buffer->data + buffer->length, [](char c) { return c == 0; });
    const std::string arguments = NameOpen(context) + " code=" + Hex(code) +
                                  " capacity=" + std::to_string(buffer->length) +
                                  (isZero ? " zero" : " not zero");
    script_.controlText.copy(buffer->data, buffer->length);
    return Leave("Ctrl", arguments, status);
}

const std::vector<ScriptCertificate>& ScriptableLibrary::Found(const ScriptText& pattern) const {
    static const std::vector<ScriptCertificate> kNothing;
    for (const std::string& search :
         {std::to_string(callCounts_.at("FindCert")), "=" + pattern.value_or(""), std::string("0")}) {
        if (const auto found = script_.searches.find(search); found != script_.searches.end()) {
            return found->second;
        }
    }
    return kNothing;
}

std::uint32_t ScriptableLibrary::FindCert(provider::ProviderContext context, const provider::CertQuery* query,
                                          provider::CertFindResult* result) {
    const std::uint32_t status = Enter("FindCert");
    const ScriptText pattern = TextAt(query->ownerPattern);
    // A failed search hands out what it has found so far.
    *result = handedOut_.Result(Found(pattern));
    return Leave("FindCert",
                 NameOpen(context) + " flags=" + Hex(query->searchFlags) + " mode=" + Hex(query->matchMode) +
                     " pattern=" + Quoted(pattern) + " fields=" + Hex(query->fieldsWanted) +
                     (IsRestZero(*query) ? " rest=zero" : " rest=other"),
                 status);
}

std::uint32_t ScriptableLibrary::FreeFindResult(provider::ProviderContext context,
                                                provider::CertFindResult* result) {
    const std::uint32_t status = Enter("FreeFindResult");
    const std::string arguments = NameOpen(context) + " count=" + std::to_string(result->count);
    wrongCount_ += handedOut_.TakeResult(*result) ? 0U : 1U;
    return Leave("FreeFindResult", arguments, status);
}

std::uint32_t ScriptableLibrary::FreeMem(provider::ProviderContext context, const void* memory) {
    const std::uint32_t status = Enter("FreeMem");
    const std::string arguments = context == 0 ? "context=0" : NameOpen(context);
    wrongCount_ += handedOut_.TakeText(memory) ? 0U : 1U;
    return Leave("FreeMem", arguments, status);
}

std::uint32_t ScriptableLibrary::GetErrorText(std::uint32_t status, char* buffer, std::uint32_t capacity) {
    const auto text = script_.errorTexts.find(status);
    const bool isKnown = text != script_.errorTexts.end();
    if (isKnown && capacity > 0) {
        const std::size_t length = text->second.copy(buffer, capacity - 1);
        buffer[length] = '\0';
    }
    return Leave("GetErrorText", "status=" + Hex(status) + " capacity=" + std::to_string(capacity),
                 isKnown ? 1 : 0);
}

std::uint32_t ScriptableLibrary::GetErrorLine(provider::ProviderContext context, provider::XsigBlob* text,
                                              provider::XsigBlob* file, std::uint32_t* line,
                                              provider::XsigBlob* data) {
    const std::string arguments = context == 0 ? "context=0" : NameOpen(context);
    const unsigned number = ContextNumber(context);
    const std::vector<ScriptError>& stack = script_.errorStacks[number];
    std::size_t& popped = poppedErrors_[number];
    if (popped == stack.size()) {
        return Leave("GetErrorLineEx", arguments, 1);
    }
    const ScriptError& error = stack[popped++];
    *text = handedOut_.Text(error.text);
    *file = handedOut_.Text(error.file);
    *line = error.line;
    *data = handedOut_.Text(error.data);
    return Leave("GetErrorLineEx", arguments, 0);
}

}  // namespace corvane::test
