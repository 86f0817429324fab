#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "store/registry/load_configuration.h"
#include "store/registry/registry_access.h"
#include "store/registry/registry_calls.h"
#include "store/registry/save_configuration.h"
#include "tests/kit/fixtures/reporter_fixture.h"
#include "tests/store/registry/real/own_registry_root.h"

namespace corvane::test {

/// A configuration in memory above the system's registry, under a root of the test's own.
class RealStore : public ::testing::Test {
  protected:
    [[nodiscard]] bool Load() { return store::LoadConfiguration(state, access, reports.reporter, nullptr); }
    void Save() { store::SaveConfiguration(state, restored, access, reports.reporter, nullptr); }

    [[nodiscard]] std::vector<std::wstring> ReportTexts() const {
        std::vector<std::wstring> texts;
        for (const ShownBox& box : reports.presenter.Boxes()) {
            texts.push_back(box.text);
        }
        return texts;
    }

    OwnRegistryRoot root;
    ReporterFixture reports;
    store::WindowsRegistryCalls calls;
    store::RegistryAccess access{calls, reports.reporter};
    store::ConfigurationState state;
    store::WindowRectangle restored;
};

// Written out here, as other programs know them.
inline const std::wstring kCatalogue = L"SOFTWARE\\HOLVAN\\tarn\\Profiles";
inline const std::wstring kProgram = L"SOFTWARE\\HOLVAN\\tarntray";

}  // namespace corvane::test
