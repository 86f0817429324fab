#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "provider/provider_library.h"

namespace corvane::test {

/// One entry of a scripted error stack. A text that is none arrives as a null pointer.
struct ScriptedError {
    std::optional<std::string> text;
    std::optional<std::string> file;
    std::uint32_t line = 0;
    std::optional<std::string> data;
};

/// A text that came back through the freeing function.
struct ReleasedText {
    provider::ProviderContext context = 0;
    std::string text;

    bool operator==(const ReleasedText&) const = default;
};

/// A provider library of a test's making. Its error texts and error stacks are laid down by the test; every
/// text that it hands out is memory of its own, of exactly that length and without a terminator, and is
/// counted until it comes back.
///
/// The library's functions are plain functions, so one instance lives at a time; a second one throws.
class ScriptedProvider : public provider::ProviderLibrary {
  public:
    ScriptedProvider();
    ScriptedProvider(const ScriptedProvider&) = delete;
    ScriptedProvider& operator=(const ScriptedProvider&) = delete;
    ScriptedProvider(ScriptedProvider&&) = delete;
    ScriptedProvider& operator=(ScriptedProvider&&) = delete;
    ~ScriptedProvider() override;

    [[nodiscard]] const provider::ProviderFunctions* Functions() override;
    [[nodiscard]] const provider::ProviderBindFailure& LastFailure() const override { return lastFailure_; }

    /// From now on the library cannot be bound: code 126, "tarn1.dll".
    void MakeMissing() { isMissing_ = true; }

    /// The description of a status. One that does not fit the caller's buffer fills it and is not terminated.
    void SetErrorText(std::uint32_t status, std::string text) { errorTexts_[status] = std::move(text); }

    /// Puts one more entry at the end of the error stack of `context`.
    void PushError(provider::ProviderContext context, ScriptedError error) {
        errorStacks_[context].push_back(std::move(error));
    }
    /// From now on reading an entry does not take it from its stack, so that no stack that has one ends.
    void NeverPopErrors() { popsErrors_ = false; }
    /// From now on the answer that a stack is empty, too, brings texts that want to be released.
    void BringTextsAtTheEnd() { bringsTextsAtTheEnd_ = true; }

    /// The buffer sizes that error texts were asked with.
    [[nodiscard]] const std::vector<std::uint32_t>& AskedCapacities() const { return askedCapacities_; }
    /// How often the next entry of an error stack was asked for.
    [[nodiscard]] std::size_t ErrorLineCalls() const { return errorLineCalls_; }
    /// How many texts were handed out and have not come back.
    [[nodiscard]] std::size_t TextsOut() const { return textsOut_.size(); }
    /// What came back, in that order.
    [[nodiscard]] const std::vector<ReleasedText>& Released() const { return released_; }
    /// How many pointers came back that are not out: foreign ones, null, or a second time.
    [[nodiscard]] std::size_t WrongReleases() const { return wrongReleases_; }
    /// How often a function was called for which nothing can be laid down here.
    [[nodiscard]] std::size_t UnexpectedCalls() const { return unexpectedCalls_; }

  private:
    // A text that is out; its memory is as long as the text, so that reading past it is noticed.
    class HandedOutText {
      public:
        explicit HandedOutText(const std::string& text);

        [[nodiscard]] char* Memory() const { return memory_.get(); }
        [[nodiscard]] std::string Text() const { return {memory_.get(), length_}; }

      private:
        std::unique_ptr<char[]> memory_;
        std::size_t length_;
    };

    static provider::ProviderFunctions Table();
    static std::uint32_t RefuseUnexpected();

    std::uint32_t GetErrorText(std::uint32_t status, char* buffer, std::uint32_t capacity);
    std::uint32_t GetErrorLine(provider::ProviderContext context, provider::XsigBlob* text,
                               provider::XsigBlob* file, std::uint32_t* line, provider::XsigBlob* data);
    std::uint32_t FreeMem(provider::ProviderContext context, void* memory);
    void HandOut(const std::optional<std::string>& text, provider::XsigBlob& blob);

    provider::ProviderFunctions functions_ = Table();
    provider::ProviderBindFailure lastFailure_;
    bool isMissing_ = false;
    bool popsErrors_ = true;
    bool bringsTextsAtTheEnd_ = false;
    std::map<std::uint32_t, std::string> errorTexts_;
    std::map<provider::ProviderContext, std::deque<ScriptedError>> errorStacks_;
    std::list<HandedOutText> textsOut_;
    std::vector<ReleasedText> released_;
    std::vector<std::uint32_t> askedCapacities_;
    std::size_t errorLineCalls_ = 0;
    std::size_t wrongReleases_ = 0;
    std::size_t unexpectedCalls_ = 0;
};

}  // namespace corvane::test
