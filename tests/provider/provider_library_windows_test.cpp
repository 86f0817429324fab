#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <system_error>

#include "provider/provider_library.h"
#include "tests/kit/fixtures/own_folder.h"
#include "tests/kit/fixtures/temporary_folder.h"
#include "toolkit/files/path_pickers.h"
#include "toolkit/system/libraries.h"

namespace corvane::test {
namespace {

using corvane::test::OwnFolder;
using corvane::test::TemporaryFolder;

constexpr const char* kFunctionNames[] = {"XSIG_Initialize",   "XSIG_Uninitialize",   "XSIG_Ctrl",
                                          "XSIG_FindCert",     "XSIG_FreeFindResult", "XSIG_FreeMem",
                                          "XSIG_GetErrorText", "XSIG_GetErrorLineEx"};

constexpr wchar_t kLibraryFile[] = L"tarn1.dll";

bool IsLoaded() {
    return GetModuleHandleW(kLibraryFile) != nullptr;
}

// A provider library in a folder under its real name; in the end unloaded, which the program never does, and
// taken away.
class PlacedLibrary {
  public:
    /// `kind` is "without_nothing" for a whole one, or the name of another file among the made ones.
    PlacedLibrary(const std::filesystem::path& folder, const std::string& kind)
        : path_(folder / kLibraryFile) {
        std::filesystem::copy_file(OwnFolder() / "providers" / (kind + ".dll"), path_);
    }
    PlacedLibrary(const PlacedLibrary&) = delete;
    PlacedLibrary& operator=(const PlacedLibrary&) = delete;
    PlacedLibrary(PlacedLibrary&&) = delete;
    PlacedLibrary& operator=(PlacedLibrary&&) = delete;
    ~PlacedLibrary() {
        for (HMODULE module = GetModuleHandleW(kLibraryFile); module != nullptr;
             module = GetModuleHandleW(kLibraryFile)) {
            FreeLibrary(module);
        }
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }

  private:
    std::filesystem::path path_;
};

// A folder of each test's own is on the search path, so that tests that run at once do not meet. The current
// folder is out of the search, as the program takes it out.
class SystemProviderLibraryTest : public ::testing::Test {
  protected:
    SystemProviderLibraryTest() : formerPath_(GetEnvironmentVariableW(L"PATH", nullptr, 0), L'\0') {
        formerPath_.resize(
            GetEnvironmentVariableW(L"PATH", formerPath_.data(), static_cast<DWORD>(formerPath_.size())));
        SetEnvironmentVariableW(L"PATH", (formerPath_ + L";" + folder_.Path().wstring()).c_str());
        toolkit::LeaveCurrentFolderOutOfLibrarySearch();
    }
    void TearDown() override {
        SetDllDirectoryW(nullptr);
        SetEnvironmentVariableW(L"PATH", formerPath_.c_str());
    }

    [[nodiscard]] const std::filesystem::path& FolderOnThePath() const { return folder_.Path(); }

  private:
    TemporaryFolder folder_;
    std::wstring formerPath_;
};

TEST_F(SystemProviderLibraryTest, AMissingLibraryIsAFailureThatNamesIt) {
    provider::SystemProviderLibrary library;
    EXPECT_EQ(library.Functions(), nullptr);
    EXPECT_EQ(library.LastFailure().code, static_cast<std::uint32_t>(ERROR_MOD_NOT_FOUND));
    EXPECT_EQ(library.LastFailure().missing, "tarn1.dll");
}

TEST_F(SystemProviderLibraryTest, NothingIsLoadedBeforeTheFirstUse) {
    const PlacedLibrary placed(FolderOnThePath(), "without_nothing");
    provider::SystemProviderLibrary library;
    EXPECT_FALSE(IsLoaded());
    EXPECT_NE(library.Functions(), nullptr);
    EXPECT_TRUE(IsLoaded());
}

TEST_F(SystemProviderLibraryTest, EachNameIsBoundToItsOwnPlace) {
    const PlacedLibrary placed(FolderOnThePath(), "without_nothing");
    provider::SystemProviderLibrary library;
    const provider::ProviderFunctions* functions = library.Functions();
    ASSERT_NE(functions, nullptr) << library.LastFailure().missing;
    EXPECT_EQ(functions->initialize("", 0, nullptr), 1U);
    EXPECT_EQ(functions->uninitialize(0), 2U);
    EXPECT_EQ(functions->control(0, 0, nullptr), 3U);
    EXPECT_EQ(functions->findCert(0, nullptr, nullptr), 4U);
    EXPECT_EQ(functions->freeFindResult(0, nullptr), 5U);
    EXPECT_EQ(functions->freeMem(0, nullptr), 6U);
    EXPECT_EQ(functions->getErrorText(0, nullptr, 0), 7U);
    EXPECT_EQ(functions->getErrorLine(0, nullptr, nullptr, nullptr, nullptr), 8U);
    EXPECT_EQ(library.LastFailure().code, 0U);
    EXPECT_EQ(library.LastFailure().missing, "");
}

TEST_F(SystemProviderLibraryTest, ALibraryThatLacksAnyFunctionIsNotBoundAndNotKept) {
    for (const char* missing : kFunctionNames) {
        const PlacedLibrary placed(FolderOnThePath(), std::string("without_") + missing);
        provider::SystemProviderLibrary library;
        EXPECT_EQ(library.Functions(), nullptr) << missing;
        EXPECT_EQ(library.LastFailure().code, static_cast<std::uint32_t>(ERROR_PROC_NOT_FOUND)) << missing;
        EXPECT_EQ(library.LastFailure().missing, missing);
        EXPECT_FALSE(IsLoaded()) << missing;
    }
}

TEST_F(SystemProviderLibraryTest, ALibraryThatIsInstalledMeanwhileIsFoundByTheNextCall) {
    provider::SystemProviderLibrary library;
    const provider::ProviderFunctions* before = library.Functions();
    const PlacedLibrary placed(FolderOnThePath(), "without_nothing");
    EXPECT_EQ(before, nullptr);
    EXPECT_NE(library.Functions(), nullptr);
    EXPECT_EQ(library.LastFailure().code, 0U);
}

TEST_F(SystemProviderLibraryTest, ABoundLibraryStaysBound) {
    const PlacedLibrary placed(FolderOnThePath(), "without_nothing");
    provider::SystemProviderLibrary library;
    const provider::ProviderFunctions* first = library.Functions();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(library.Functions(), first);
}

// Contexts may still be open in it.
TEST_F(SystemProviderLibraryTest, ABoundLibraryStaysLoadedWhenItsOwnerIsGone) {
    const PlacedLibrary placed(FolderOnThePath(), "without_nothing");
    {
        provider::SystemProviderLibrary library;
        ASSERT_NE(library.Functions(), nullptr);
    }
    EXPECT_TRUE(IsLoaded());
}

TEST_F(SystemProviderLibraryTest, ALibraryInTheCurrentFolderIsNeverTaken) {
    const TemporaryFolder folder;
    const PlacedLibrary placed(folder.Path(), "without_nothing");
    const toolkit::KeptCurrentFolder ofTheTests;
    std::filesystem::current_path(folder.Path());
    provider::SystemProviderLibrary library;
    EXPECT_EQ(library.Functions(), nullptr);
    EXPECT_EQ(library.LastFailure().code, static_cast<std::uint32_t>(ERROR_MOD_NOT_FOUND));
    EXPECT_EQ(library.LastFailure().missing, "tarn1.dll");
    EXPECT_FALSE(IsLoaded());
}

TEST_F(SystemProviderLibraryTest, ALibraryThatLacksAnotherOneIsNotCalledMissing) {
    const PlacedLibrary placed(FolderOnThePath(), "with_needs");
    provider::SystemProviderLibrary library;
    EXPECT_EQ(library.Functions(), nullptr);
    EXPECT_EQ(library.LastFailure().code, static_cast<std::uint32_t>(ERROR_MOD_NOT_FOUND));
    EXPECT_EQ(library.LastFailure().missing, "a library that tarn1.dll needs");
    EXPECT_FALSE(IsLoaded());
}

TEST_F(SystemProviderLibraryTest, AFileThatIsNoLibraryIsAFailureWithTheSystemsCode) {
    const PlacedLibrary placed(FolderOnThePath(), "without_nothing");
    std::filesystem::resize_file(FolderOnThePath() / kLibraryFile, 100);
    provider::SystemProviderLibrary library;
    EXPECT_EQ(library.Functions(), nullptr);
    EXPECT_NE(library.LastFailure().code, 0U);
    EXPECT_EQ(library.LastFailure().missing, "tarn1.dll");
}

TEST_F(SystemProviderLibraryTest, BindingLeavesTheThreadsErrorModeAsItWas) {
    DWORD former = 0;
    SetThreadErrorMode(SEM_NOGPFAULTERRORBOX, &former);
    provider::SystemProviderLibrary library;
    EXPECT_EQ(library.Functions(), nullptr);
    EXPECT_EQ(GetThreadErrorMode(), static_cast<DWORD>(SEM_NOGPFAULTERRORBOX));
    SetThreadErrorMode(former, nullptr);
}

}  // namespace
}  // namespace corvane::test
