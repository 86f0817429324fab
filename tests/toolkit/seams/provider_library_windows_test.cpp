#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <system_error>

#include "certs/provider/provider_library_windows.h"
#include "tests/toolkit/seams/own_folder.h"
#include "tests/toolkit/seams/temporary_folder.h"

namespace corvane {
namespace {

using toolkit::testing::OwnFolder;
using toolkit::testing::TemporaryFolder;

constexpr const char* kFunctionNames[] = {"XSIG_Initialize",   "XSIG_Uninitialize",   "XSIG_Ctrl",
                                          "XSIG_FindCert",     "XSIG_FreeFindResult", "XSIG_FreeMem",
                                          "XSIG_GetErrorText", "XSIG_GetErrorLineEx"};

// A provider library in a folder under its real name, taken away again at the end.
class PlacedLibrary {
  public:
    PlacedLibrary(const std::filesystem::path& folder, const std::string& missingFunction)
        : path_(folder / "tarn1.dll") {
        std::filesystem::copy_file(
            OwnFolder().parent_path() / "providers" / ("without_" + missingFunction + ".dll"), path_,
            std::filesystem::copy_options::overwrite_existing);
    }
    PlacedLibrary(const PlacedLibrary&) = delete;
    PlacedLibrary& operator=(const PlacedLibrary&) = delete;
    PlacedLibrary(PlacedLibrary&&) = delete;
    PlacedLibrary& operator=(PlacedLibrary&&) = delete;
    ~PlacedLibrary() {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }

  private:
    std::filesystem::path path_;
};

class CurrentFolder {
  public:
    explicit CurrentFolder(const std::filesystem::path& path) : former_(std::filesystem::current_path()) {
        std::filesystem::current_path(path);
    }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;
    CurrentFolder(CurrentFolder&&) = delete;
    CurrentFolder& operator=(CurrentFolder&&) = delete;
    ~CurrentFolder() {
        std::error_code ignored;
        std::filesystem::current_path(former_, ignored);
    }

  private:
    std::filesystem::path former_;
};

bool IsLoaded() {
    return GetModuleHandleW(L"tarn1.dll") != nullptr;
}

class SystemProviderLibraryTest : public ::testing::Test {
  protected:
    // A run that was ended in the middle may have left its library, which every test here would find.
    void SetUp() override { std::filesystem::remove(OwnFolder() / "tarn1.dll"); }
};

TEST_F(SystemProviderLibraryTest, AMissingLibraryIsAFailureThatNamesIt) {
    SystemProviderLibrary library;
    EXPECT_EQ(library.Functions(), nullptr);
    EXPECT_EQ(library.LastFailure().code, static_cast<std::uint32_t>(ERROR_MOD_NOT_FOUND));
    EXPECT_EQ(library.LastFailure().missing, "tarn1.dll");
}

TEST_F(SystemProviderLibraryTest, NothingIsLoadedBeforeTheFirstUse) {
    const PlacedLibrary placed(OwnFolder(), "nothing");
    SystemProviderLibrary library;
    EXPECT_FALSE(IsLoaded());
    EXPECT_NE(library.Functions(), nullptr);
    EXPECT_TRUE(IsLoaded());
}

TEST_F(SystemProviderLibraryTest, EachNameIsBoundToItsOwnPlace) {
    const PlacedLibrary placed(OwnFolder(), "nothing");
    SystemProviderLibrary library;
    const ProviderFunctions* functions = library.Functions();
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
        const PlacedLibrary placed(OwnFolder(), missing);
        SystemProviderLibrary library;
        EXPECT_EQ(library.Functions(), nullptr) << missing;
        EXPECT_EQ(library.LastFailure().code, static_cast<std::uint32_t>(ERROR_PROC_NOT_FOUND)) << missing;
        EXPECT_EQ(library.LastFailure().missing, missing);
        EXPECT_FALSE(IsLoaded()) << missing;
    }
}

TEST_F(SystemProviderLibraryTest, ALibraryThatIsInstalledMeanwhileIsFoundByTheNextCall) {
    SystemProviderLibrary library;
    const ProviderFunctions* before = library.Functions();
    const PlacedLibrary placed(OwnFolder(), "nothing");
    EXPECT_EQ(before, nullptr);
    EXPECT_NE(library.Functions(), nullptr);
    EXPECT_EQ(library.LastFailure().code, 0U);
    // Released here, because the file goes before the object that was made first.
    library = SystemProviderLibrary();
}

TEST_F(SystemProviderLibraryTest, ABoundLibraryStaysBound) {
    const PlacedLibrary placed(OwnFolder(), "nothing");
    SystemProviderLibrary library;
    const ProviderFunctions* first = library.Functions();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(library.Functions(), first);
}

TEST_F(SystemProviderLibraryTest, TheLibraryGoesWithItsOwner) {
    const PlacedLibrary placed(OwnFolder(), "nothing");
    {
        SystemProviderLibrary library;
        ASSERT_NE(library.Functions(), nullptr);
    }
    EXPECT_FALSE(IsLoaded());
}

TEST_F(SystemProviderLibraryTest, ALibraryInTheCurrentFolderIsNeverTaken) {
    const TemporaryFolder folder;
    const PlacedLibrary placed(folder.Path(), "nothing");
    const CurrentFolder current(folder.Path());
    SystemProviderLibrary library;
    EXPECT_EQ(library.Functions(), nullptr);
    EXPECT_EQ(library.LastFailure().code, static_cast<std::uint32_t>(ERROR_MOD_NOT_FOUND));
    EXPECT_FALSE(IsLoaded());
}

TEST_F(SystemProviderLibraryTest, ALibraryInAFolderOfThePathIsNeverTaken) {
    const TemporaryFolder folder;
    const PlacedLibrary placed(folder.Path(), "nothing");
    std::wstring former(GetEnvironmentVariableW(L"PATH", nullptr, 0), L'\0');
    former.resize(GetEnvironmentVariableW(L"PATH", former.data(), static_cast<DWORD>(former.size())));
    SetEnvironmentVariableW(L"PATH", (folder.Path().wstring() + L";" + former).c_str());
    SystemProviderLibrary library;
    const ProviderFunctions* functions = library.Functions();
    SetEnvironmentVariableW(L"PATH", former.c_str());
    EXPECT_EQ(functions, nullptr);
}

TEST_F(SystemProviderLibraryTest, AFileThatIsNoLibraryIsAFailureWithTheSystemsCode) {
    const PlacedLibrary placed(OwnFolder(), "nothing");
    std::filesystem::resize_file(OwnFolder() / "tarn1.dll", 100);
    SystemProviderLibrary library;
    EXPECT_EQ(library.Functions(), nullptr);
    EXPECT_NE(library.LastFailure().code, 0U);
    EXPECT_EQ(library.LastFailure().missing, "tarn1.dll");
}

TEST_F(SystemProviderLibraryTest, BindingLeavesTheThreadsErrorModeAsItWas) {
    DWORD former = 0;
    SetThreadErrorMode(SEM_NOGPFAULTERRORBOX, &former);
    SystemProviderLibrary library;
    EXPECT_EQ(library.Functions(), nullptr);
    EXPECT_EQ(GetThreadErrorMode(), static_cast<DWORD>(SEM_NOGPFAULTERRORBOX));
    SetThreadErrorMode(former, nullptr);
}

}  // namespace
}  // namespace corvane
