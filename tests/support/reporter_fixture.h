#pragma once

#include "reporting/error_reporter.h"
#include "tests/support/recording_presenter.h"
#include "tests/support/scripted_provider.h"
#include "tests/support/scripted_system_messages.h"
#include "tests/support/test_system_text.h"

namespace corvane::test {

/// An error reporter with everything that it needs, all of it the test's own. The code page is the Cyrillic
/// one unless another is wanted. One at a time, because of the provider.
struct ReporterFixture {
    explicit ReporterFixture(CodePage codePage = CodePage::kCyrillic) : text(codePage) {}

    RecordingPresenter presenter;
    ScriptedSystemMessages messages;
    ScriptedProvider provider;
    TestSystemText text;
    reporting::ErrorReporter reporter{presenter, messages, provider, text};
};

}  // namespace corvane::test
