#include "tests/kit/fakes/scripted_provider.h"

#include <algorithm>
#include <stdexcept>

namespace corvane::test {

namespace {

ScriptedProvider* currentProvider = nullptr;

constexpr std::uint32_t kModuleNotFound = 126;
constexpr std::uint32_t kNotScripted = 0xE07000FF;
constexpr std::uint32_t kStackIsEmpty = 0xE0700001;

}  // namespace

ScriptedProvider::HandedOutText::HandedOutText(const std::string& text)
    : memory_(std::make_unique<char[]>(text.size())), length_(text.size()) {
    std::copy_n(text.data(), length_, memory_.get());
}

ScriptedProvider::ScriptedProvider() {
    if (currentProvider != nullptr) {
        throw std::logic_error("Two scripted providers at once");
    }
    currentProvider = this;
}

ScriptedProvider::~ScriptedProvider() {
    currentProvider = nullptr;
}

const provider::ProviderFunctions* ScriptedProvider::Functions() {
    lastFailure_ = isMissing_ ? provider::ProviderBindFailure{kModuleNotFound, "tarn1.dll"}
                              : provider::ProviderBindFailure{};
    return isMissing_ ? nullptr : &functions_;
}

provider::ProviderFunctions ScriptedProvider::Table() {
    provider::ProviderFunctions table{};
    table.initialize = [](const char*, std::uint32_t, provider::ProviderContext*) {
        return RefuseUnexpected();
    };
    table.uninitialize = [](provider::ProviderContext) { return RefuseUnexpected(); };
    table.control = [](provider::ProviderContext, std::uint32_t, provider::XsigBlob*) {
        return RefuseUnexpected();
    };
    table.findCert = [](provider::ProviderContext, provider::CertQuery*, provider::CertFindResult*) {
        return RefuseUnexpected();
    };
    table.freeFindResult = [](provider::ProviderContext, provider::CertFindResult*) {
        return RefuseUnexpected();
    };
    table.getErrorText = [](std::uint32_t status, char* buffer, std::uint32_t capacity) {
        return currentProvider->GetErrorText(status, buffer, capacity);
    };
    table.getErrorLine = [](provider::ProviderContext context, provider::XsigBlob* text,
                            provider::XsigBlob* file, std::uint32_t* line, provider::XsigBlob* data) {
        return currentProvider->GetErrorLine(context, text, file, line, data);
    };
    table.freeMem = [](provider::ProviderContext context, void* memory) {
        return currentProvider->FreeMem(context, memory);
    };
    return table;
}

std::uint32_t ScriptedProvider::RefuseUnexpected() {
    ++currentProvider->unexpectedCalls_;
    return kNotScripted;
}

std::uint32_t ScriptedProvider::GetErrorText(std::uint32_t status, char* buffer, std::uint32_t capacity) {
    askedCapacities_.push_back(capacity);
    const auto found = errorTexts_.find(status);
    if (found == errorTexts_.end()) {
        return 0;
    }
    const std::string& text = found->second;
    const std::size_t length = std::min<std::size_t>(text.size(), capacity);
    std::copy_n(text.data(), length, buffer);
    if (length < capacity) {
        buffer[length] = '\0';
    }
    return 1;
}

std::uint32_t ScriptedProvider::GetErrorLine(provider::ProviderContext context, provider::XsigBlob* text,
                                             provider::XsigBlob* file, std::uint32_t* line,
                                             provider::XsigBlob* data) {
    ++errorLineCalls_;
    std::deque<ScriptedError>& stack = errorStacks_[context];
    if (stack.empty()) {
        if (bringsTextsAtTheEnd_) {
            HandOut("no more", *text);
            HandOut("no file", *file);
            HandOut("no data", *data);
        }
        return kStackIsEmpty;
    }
    const ScriptedError error = stack.front();
    if (popsErrors_) {
        stack.pop_front();
    }
    HandOut(error.text, *text);
    HandOut(error.file, *file);
    *line = error.line;
    HandOut(error.data, *data);
    return 0;
}

std::uint32_t ScriptedProvider::FreeMem(provider::ProviderContext context, void* memory) {
    const auto found = std::find_if(textsOut_.begin(), textsOut_.end(),
                                    [memory](const HandedOutText& text) { return text.Memory() == memory; });
    if (found == textsOut_.end()) {
        ++wrongReleases_;
        return kNotScripted;
    }
    released_.push_back({context, found->Text()});
    textsOut_.erase(found);
    return 0;
}

void ScriptedProvider::HandOut(const std::optional<std::string>& text, provider::XsigBlob& blob) {
    blob = {};
    if (!text) {
        return;
    }
    blob.length = static_cast<std::uint32_t>(text->size());
    blob.data = textsOut_.emplace_back(*text).Memory();
}

}  // namespace corvane::test
