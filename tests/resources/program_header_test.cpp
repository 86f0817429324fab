#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <cstdint>
#include <memory>
#include <set>
#include <string>

// What the system reads of the built program before it runs it.

namespace {

std::wstring EditorFile() {
    std::array<wchar_t, 2048> path{};
    GetEnvironmentVariableW(L"CORVANE_EDITOR", path.data(), static_cast<DWORD>(path.size()));
    const std::wstring file = path.data();
    // A cross-built test sees the building machine's files through drive Z.
    return file.starts_with(L'/') ? L"Z:" + file : file;
}

struct ModuleFreer {
    using pointer = HMODULE;
    void operator()(HMODULE module) const { FreeLibrary(module); }
};
using Module = std::unique_ptr<HMODULE, ModuleFreer>;

IMAGE_OPTIONAL_HEADER64 OptionalHeader(HMODULE image) {
    // The low bits of the address say that the file is mapped as data.
    const auto* const base =
        reinterpret_cast<const unsigned char*>(reinterpret_cast<std::uintptr_t>(image) & ~std::uintptr_t{3});
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    return reinterpret_cast<const IMAGE_NT_HEADERS64*>(base + dos->e_lfanew)->OptionalHeader;
}

BOOL CALLBACK KeepName(HMODULE, LPCWSTR, LPWSTR name, LONG_PTR parameter) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the system hands the pointer on as a number.
    reinterpret_cast<std::set<ULONG_PTR>*>(parameter)->insert(reinterpret_cast<ULONG_PTR>(name));
    return TRUE;
}

std::string Manifest(HMODULE image) {
    const HRSRC found = FindResourceW(image, MAKEINTRESOURCEW(1), RT_MANIFEST);
    const HGLOBAL loaded = found == nullptr ? nullptr : LoadResource(image, found);
    return loaded == nullptr
               ? std::string()
               : std::string(static_cast<const char*>(LockResource(loaded)), SizeofResource(image, found));
}

class ProgramHeader : public ::testing::Test {
  protected:
    ProgramHeader() : image_(LoadLibraryExW(EditorFile().c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE)) {}
    void SetUp() override { ASSERT_TRUE(image_) << "CTest tells where the program is"; }

    [[nodiscard]] HMODULE Image() const { return image_.get(); }

  private:
    Module image_;
};

TEST_F(ProgramHeader, SaysThatTheProgramKnowsOfTerminalServers) {
    EXPECT_NE(OptionalHeader(Image()).DllCharacteristics & IMAGE_DLLCHARACTERISTICS_TERMINAL_SERVER_AWARE, 0);
}

TEST_F(ProgramHeader, HasTheProtectionsOfTheSystem) {
    constexpr int kProtections = IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE | IMAGE_DLLCHARACTERISTICS_NX_COMPAT |
                                 IMAGE_DLLCHARACTERISTICS_HIGH_ENTROPY_VA;
    EXPECT_EQ(OptionalHeader(Image()).DllCharacteristics & kProtections, kProtections);
}

TEST_F(ProgramHeader, AsksForTheOldestWindowsThatTheManifestNames) {
    const std::string manifest = Manifest(Image());
    constexpr const char* kWindows7 = "{35138b9a-5d96-4fbd-8e2d-a2440225f93a}";
    EXPECT_NE(manifest.find(kWindows7), std::string::npos);
    const IMAGE_OPTIONAL_HEADER64 header = OptionalHeader(Image());
    EXPECT_EQ(header.MajorSubsystemVersion, 6);
    EXPECT_EQ(header.MinorSubsystemVersion, 1);
    EXPECT_EQ(header.Subsystem, IMAGE_SUBSYSTEM_WINDOWS_GUI);
}

TEST_F(ProgramHeader, HasOneManifestWithTheCommonControlsThatDrawCaptions) {
    std::set<ULONG_PTR> manifests;
    EnumResourceNamesW(Image(), RT_MANIFEST, KeepName, reinterpret_cast<LONG_PTR>(&manifests));
    EXPECT_EQ(manifests, std::set<ULONG_PTR>{1});
    const std::string manifest = Manifest(Image());
    EXPECT_NE(manifest.find("name=\"Microsoft.Windows.Common-Controls\" version=\"6.0.0.0\""),
              std::string::npos);
    EXPECT_NE(manifest.find("PerMonitorV2"), std::string::npos);
}

}  // namespace
