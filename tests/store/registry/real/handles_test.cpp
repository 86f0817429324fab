#include <gtest/gtest.h>
#include <windows.h>

#include <cstdint>

#include "tests/kit/fakes/registry_snapshot.h"
#include "tests/store/registry/real/real_store_fixture.h"

// A program that lives for weeks may lose no handle, whether a load or a save succeeds or not; and what it
// saves has to outlive the session.

namespace corvane::test {
namespace {

// The handles that this process has open. The system hands out the lowest free number, so a lost one is among
// these.
std::size_t OpenHandles() {
    constexpr std::uintptr_t kStep = 4;
    constexpr std::uintptr_t kEnd = 0x2000;
    std::size_t count = 0;
    for (std::uintptr_t number = kStep; number < kEnd; number += kStep) {
        DWORD flags = 0;
        // NOLINTNEXTLINE(performance-no-int-to-ptr): a handle is a number.
        count += GetHandleInformation(reinterpret_cast<HANDLE>(number), &flags) != 0 ? 1U : 0U;
    }
    return count;
}

// The registry's own calls, of which those told so fail.
class FailingCalls : public store::RegistryCalls {
  public:
    std::uint32_t Open(Key parent, const std::wstring& path, std::uint32_t access, Transaction transaction,
                       Key& key) override {
        return Enter() ? calls_.Open(parent, path, access, transaction, key) : kFailure;
    }
    std::uint32_t Create(Key parent, const std::wstring& path, std::uint32_t access, Transaction transaction,
                         Key& key) override {
        return Enter() ? calls_.Create(parent, path, access, transaction, key) : kFailure;
    }
    std::uint32_t Delete(Key parent, const std::wstring& name, std::uint32_t viewBits,
                         Transaction transaction) override {
        return Enter() ? calls_.Delete(parent, name, viewBits, transaction) : kFailure;
    }
    std::uint32_t EnumerateSubkey(Key key, std::uint32_t index, std::uint32_t capacityChars,
                                  std::wstring& name) override {
        return Enter() ? calls_.EnumerateSubkey(key, index, capacityChars, name) : kFailure;
    }

    std::uint32_t Close(Key key) override { return calls_.Close(key); }
    std::uint32_t Query(Key key, const std::wstring& name, void* data, std::uint32_t capacityBytes,
                        std::uint32_t& type, std::uint32_t& sizeBytes) override {
        return calls_.Query(key, name, data, capacityBytes, type, sizeBytes);
    }
    std::uint32_t Set(Key key, const std::wstring& name, std::uint32_t type, const void* data,
                      std::uint32_t sizeBytes) override {
        return calls_.Set(key, name, type, data, sizeBytes);
    }

    /// Makes the call of this index on keys, from 0, and every one behind it fail.
    void FailFrom(std::size_t index) {
        callCount = 0;
        firstFailure_ = index;
    }
    void Mend() { FailFrom(SIZE_MAX); }
    /// How many calls on keys there were since then.
    std::size_t callCount = 0;

  private:
    static constexpr std::uint32_t kFailure = ERROR_ACCESS_DENIED;

    bool Enter() { return callCount++ < firstFailure_; }

    store::WindowsRegistryCalls calls_;
    std::size_t firstFailure_ = SIZE_MAX;
};

class Handles : public ::testing::Test {
  protected:
    Handles() {
        root.Put(kCatalogue + L"\\{1}", L"ProfileName", Text(L"Main CSP"));
        for (const wchar_t* name : {L"Mail", L"Second"}) {
            const std::wstring profile = kProgram + L"\\" + name;
            root.Put(profile, L"ZCSProfile", MultiText({L"Main CSP"}));
            for (const wchar_t* rule : {L"Rule 0", L"Rule 1"}) {
                const std::wstring key = profile + L"\\rules\\" + rule;
                root.Put(key, L"Operation", Text(L"SIGN"));
                root.Put(key + L"\\Officers", L"Signer Num", Number(0));
            }
        }
        // Whatever the system opens once and keeps is open from here on.
        LoadAndSave();
        calls.FailFrom(0);
        LoadAndSave();
        calls.Mend();
        handles = OpenHandles();
    }

    void LoadAndSave() {
        store::RegistryAccess access(calls, reports.reporter);
        store::ConfigurationState loaded;
        static_cast<void>(store::LoadConfiguration(loaded, access, reports.reporter, nullptr));
        loaded.profiles.emplace_back().name = L"New";
        store::SaveConfiguration(loaded, {}, access, reports.reporter, nullptr);
    }

    OwnRegistryRoot root;
    ReporterFixture reports;
    FailingCalls calls;
    std::size_t handles = 0;
};

TEST_F(Handles, AreTheSameBeforeAndAfterLoadingAndSaving) {
    HKEY key = nullptr;
    ASSERT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, kProgram.c_str(), 0, KEY_READ, &key), ERROR_SUCCESS);
    ASSERT_EQ(OpenHandles(), handles + 1) << "one that stays open is seen";
    RegCloseKey(key);
    LoadAndSave();
    EXPECT_EQ(OpenHandles(), handles);
    EXPECT_FALSE(reports.presenter.Boxes().empty()) << "the failing run at the start";
}

TEST_F(Handles, AreTheSameAfterLoadsAndSavesThatFail) {
    calls.FailFrom(SIZE_MAX);
    LoadAndSave();
    const std::size_t count = calls.callCount;
    ASSERT_GT(count, 50U);
    for (std::size_t index = 0; index < count; ++index) {
        calls.FailFrom(index);
        LoadAndSave();
    }
    EXPECT_EQ(OpenHandles(), handles);
}

using SavedKeys = RealStore;

TEST_F(SavedKeys, OutliveTheSession) {
    root.PutKey(kProgram);
    state.profiles.emplace_back().name = L"Mail";
    store::Rule rule;
    rule.operation = L"SIGN";
    rule.signerGroups = {{L"Officers", {L"CN=A"}}};
    state.profiles.back().rules = {rule};
    Save();
    const RegistrySnapshot saved = root.Snapshot();
    ASSERT_TRUE(saved.contains(kProgram + L"\\Mail\\rules\\Rule 0\\Officers"));
    for (const auto& [path, values] : saved) {
        // A key that goes with the session takes no other one that stays.
        HKEY key = nullptr;
        EXPECT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, (path + L"\\stays").c_str(), 0, nullptr,
                                  REG_OPTION_NON_VOLATILE, KEY_READ, nullptr, &key, nullptr),
                  ERROR_SUCCESS)
            << Printable(path);
        RegCloseKey(key);
    }
}

}  // namespace
}  // namespace corvane::test
