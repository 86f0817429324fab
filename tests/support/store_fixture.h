#pragma once

#include <string>
#include <vector>

#include "store/registry/load_configuration.h"
#include "store/registry/registry_access.h"
#include "store/registry/save_configuration.h"
#include "tests/support/memory_registry.h"
#include "tests/support/reporter_fixture.h"

namespace corvane::test {

/// A configuration in memory above a registry in memory, with the reports that come of both.
struct StoreFixture {
    StoreFixture() { reports.presenter.MakeLive(owner); }

    [[nodiscard]] bool Load() { return store::LoadConfiguration(state, access, reports.reporter, owner); }
    void Save() { store::SaveConfiguration(state, restored, access, reports.reporter, owner); }
    /// The texts of the reports so far.
    [[nodiscard]] std::vector<std::wstring> ReportTexts() const;

    ReporterFixture reports;
    toolkit::WindowHandle owner = RecordingPresenter::Window(1);
    MemoryRegistry registry;
    store::RegistryAccess access{registry, reports.reporter};
    store::ConfigurationState state;
    store::WindowRectangle restored;
};

/// The text of a report: what was attempted, and the code with the text that the scripted system has for it.
[[nodiscard]] std::wstring ReportText(const std::wstring& operation, std::uint32_t code);

}  // namespace corvane::test
