#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "certificates/session/cert_services.h"
#include "certificates/session/cryptocontext.h"
#include "certificates/session/wait_window.h"
#include "tests/kit/fakes/memory_registry.h"
#include "tests/kit/fakes/recording_input_gate.h"
#include "tests/kit/fakes/scripted_sessions.h"
#include "tests/kit/fixtures/reporter_fixture.h"

namespace corvane::test {

/// A warning box as it was asked for.
struct ShownWarning {
    toolkit::WindowHandle owner = nullptr;
    std::wstring text;
    std::wstring title;
    certificates::WarningMode mode = certificates::WarningMode::kWarning;

    bool operator==(const ShownWarning&) const = default;
};

/// Keeps every warning instead of showing it, and tells the log of the provider when.
class RecordingWarnings : public certificates::WarningPresenter {
  public:
    explicit RecordingWarnings(std::vector<std::string>& log) : log_(log) {}

    void Show(toolkit::WindowHandle owner, const std::wstring& text, const std::wstring& title,
              certificates::WarningMode mode) override {
        log_.emplace_back("warning");
        warnings.push_back({owner, text, title, mode});
        if (onShow) {
            onShow();
        }
    }

    /// Done while the box stands.
    std::function<void()> onShow;

    std::vector<ShownWarning> warnings;

  private:
    std::vector<std::string>& log_;
};

/// Tells the log when the wait window comes and goes.
class RecordingWaitWindow : public certificates::WaitWindow {
  public:
    explicit RecordingWaitWindow(std::vector<std::string>& log) : log_(log) {}

    void Show(toolkit::WindowHandle parent, const std::wstring& text) override {
        log_.emplace_back("show wait window");
        lastParent = parent;
        lastText = text;
    }
    void Destroy() override { log_.emplace_back("destroy wait window"); }

    toolkit::WindowHandle lastParent = nullptr;
    std::wstring lastText;

  private:
    std::vector<std::string>& log_;
};

/// A clock that stands.
class SetClock : public certificates::Clock {
  public:
    [[nodiscard]] std::int64_t SecondsSince1970() const override { return seconds; }

    std::int64_t seconds = 1'600'000'000;
};

/// The provider, the registry and all that the certificate code uses, all of it the test's own.
class CertsFixture : public ::testing::Test {
  protected:
    static constexpr wchar_t kProgramKeyPath[] = L"SOFTWARE\\HOLVAN\\tarntray";

    CertsFixture() { Reports().presenter.MakeLive(owner_); }

    // Nothing that the provider handed out is kept, whatever a test does.
    void TearDown() override {
        EXPECT_EQ(sessions_.ResultsOut(), 0U);
        EXPECT_EQ(sessions_.Misuses(), 0U);
        EXPECT_EQ(Reports().provider.TextsOut(), 0U);
        EXPECT_EQ(Reports().provider.WrongReleases(), 0U);
        EXPECT_EQ(registry_.OpenKeys(), 0U);
        EXPECT_EQ(registry_.Misuses(), 0U);
        EXPECT_EQ(Reports().presenter.UnusedAnswers(), 0U);
        EXPECT_TRUE(input_.IsBalanced()) << "the user is kept out for good";
    }

    ReporterFixture& Reports() { return reports_; }
    reporting::ErrorReporter& Reporter() { return reports_.reporter; }
    [[nodiscard]] const std::vector<ShownBox>& Boxes() const { return reports_.presenter.Boxes(); }

    // A context that is open already, as most of the code finds it.
    certificates::Cryptocontext OpenContext() {
        const provider::ProviderFunctions& provider = *sessions_.Functions();
        provider::ProviderContext context = 0;
        EXPECT_EQ(provider.initialize("any", 0, &context), 0U);
        return {provider, context, reports_.reporter, owner_, input_};
    }

    static ScriptedCertificate Certificate(const std::string& owner, std::uint8_t usage = 0x1C) {
        return {owner, usage, "CN=Authority", std::vector<std::uint8_t>{1}};
    }

    toolkit::WindowHandle owner_ = RecordingPresenter::Window(3);
    ReporterFixture reports_;
    ScriptedSessions sessions_{reports_.provider};
    MemoryRegistry registry_;
    SetClock clock_;
    RecordingInputGate input_;
    certificates::SessionOpening opening_;
    RecordingWarnings warnings_{sessions_.log};
    RecordingWaitWindow waitWindow_{sessions_.log};
    certificates::CertServices services_{sessions_, reports_.reporter, warnings_, registry_, clock_,
                                         input_,    opening_};
};

}  // namespace corvane::test
