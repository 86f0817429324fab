#include "store/registry/registry_calls.h"

#include <gtest/gtest.h>

#include <array>

#include "tests/store/registry/real/own_registry_root.h"

namespace corvane::test {
namespace {

constexpr std::uint32_t kAccess = 0x2001F;

class RealCalls : public ::testing::Test {
  protected:
    void TearDown() override {
        for (const store::RegistryCalls::Key key : opened_) {
            EXPECT_EQ(calls.Close(key), 0U);
        }
    }

    store::RegistryCalls::Key OpenKey(const std::wstring& path) {
        store::RegistryCalls::Key key = nullptr;
        EXPECT_EQ(calls.Open(nullptr, path, kAccess, nullptr, key), 0U);
        opened_.push_back(key);
        return key;
    }

    OwnRegistryRoot root;
    store::WindowsRegistryCalls calls;

  private:
    std::vector<store::RegistryCalls::Key> opened_;
};

TEST_F(RealCalls, OpenGivesNotFoundAndLeavesTheKey) {
    int untouched = 0;
    store::RegistryCalls::Key key = &untouched;
    EXPECT_EQ(calls.Open(nullptr, L"None", kAccess, nullptr, key), 2U);
    EXPECT_EQ(key, &untouched);
}

TEST_F(RealCalls, CreateMakesTheWholePathAndOpensItTheNextTime) {
    for (int round = 0; round < 2; ++round) {
        store::RegistryCalls::Key key = nullptr;
        ASSERT_EQ(calls.Create(nullptr, L"One\\Two", kAccess, nullptr, key), 0U);
        EXPECT_EQ(calls.Set(key, L"Name", store::kTypeText, L"x", 4), 0U);
        EXPECT_EQ(calls.Close(key), 0U);
    }
    EXPECT_EQ(root.Find(L"One\\Two", L"Name"), Text(L"x"));
}

TEST_F(RealCalls, SubkeysAreOpenedUnderTheirParent) {
    root.PutKey(L"One\\Two");
    store::RegistryCalls::Key key = nullptr;
    ASSERT_EQ(calls.Open(OpenKey(L"One"), L"Two", kAccess, nullptr, key), 0U);
    EXPECT_EQ(calls.Close(key), 0U);
}

TEST_F(RealCalls, EnumerateEndsWith259AndWantsRoomForTheNul) {
    root.PutKey(L"One\\abc");
    const store::RegistryCalls::Key key = OpenKey(L"One");
    std::wstring name;
    EXPECT_EQ(calls.EnumerateSubkey(key, 0, 4, name), 0U);
    EXPECT_EQ(name, L"abc");
    EXPECT_EQ(calls.EnumerateSubkey(key, 0, 3, name), 234U);
    EXPECT_EQ(calls.EnumerateSubkey(key, 1, 260, name), 259U);
}

TEST_F(RealCalls, ANameOf255CharactersIsGivenWhole) {
    const std::wstring longest(255, L'n');
    root.PutKey(L"One\\" + longest);
    std::wstring name;
    EXPECT_EQ(calls.EnumerateSubkey(OpenKey(L"One"), 0, 256, name), 0U);
    EXPECT_EQ(name, longest);
}

TEST_F(RealCalls, QueryGivesTypeSizeAndData) {
    root.Put(L"One", L"Name", Bytes(store::kTypeBinary, {1, 2, 3}));
    const store::RegistryCalls::Key key = OpenKey(L"One");
    std::uint32_t type = 0;
    std::uint32_t size = 0;
    EXPECT_EQ(calls.Query(key, L"Name", nullptr, 0, type, size), 0U);
    EXPECT_EQ(type, store::kTypeBinary);
    EXPECT_EQ(size, 3U);
    std::array<std::uint8_t, 3> data{};
    size = 0;
    EXPECT_EQ(calls.Query(key, L"Name", data.data(), 3, type, size), 0U);
    EXPECT_EQ(size, 3U);
    EXPECT_EQ(data, (std::array<std::uint8_t, 3>{1, 2, 3}));
    EXPECT_EQ(calls.Query(key, L"Name", data.data(), 2, type, size), 234U);
    EXPECT_EQ(calls.Query(key, L"None", data.data(), 3, type, size), 2U);
    EXPECT_EQ(calls.Query(key, L"None", nullptr, 0, type, size), 2U);
}

TEST_F(RealCalls, DeleteRefusesAKeyWithSubkeys) {
    root.PutKey(L"One\\Two\\Three");
    const store::RegistryCalls::Key key = OpenKey(L"One");
    EXPECT_NE(calls.Delete(key, L"Two", 0, nullptr), 0U);
    EXPECT_EQ(calls.Delete(key, L"Two\\Three", 0, nullptr), 0U);
    EXPECT_EQ(calls.Delete(key, L"Two", 0, nullptr), 0U);
    EXPECT_EQ(calls.Delete(key, L"Two", 0, nullptr), 2U);
}

TEST_F(RealCalls, TransactedCallsGive1WhereTheSystemLacksThem) {
    store::WindowsRegistryCalls lacking(L"ntdll.dll");
    root.PutKey(L"One");
    int transaction = 0;
    store::RegistryCalls::Key key = nullptr;
    EXPECT_EQ(lacking.Open(nullptr, L"One", kAccess, &transaction, key), 1U);
    EXPECT_EQ(lacking.Create(nullptr, L"One", kAccess, &transaction, key), 1U);
    EXPECT_EQ(lacking.Delete(nullptr, L"One", 0, &transaction), 1U);
    EXPECT_EQ(key, nullptr);
    EXPECT_EQ(root.SubkeyNames(L""), std::vector<std::wstring>{L"One"});
}

TEST_F(RealCalls, DeleteDoesWithoutTheExtendedOneWhereTheSystemLacksIt) {
    store::WindowsRegistryCalls lacking(L"ntdll.dll");
    root.PutKey(L"One");
    EXPECT_EQ(lacking.Delete(nullptr, L"One", 0, nullptr), 0U);
    EXPECT_TRUE(root.SubkeyNames(L"").empty());
}

TEST_F(RealCalls, TransactedCallsRefuseWhatIsNoTransaction) {
    root.PutKey(L"One");
    store::RegistryCalls::Key key = nullptr;
    EXPECT_NE(calls.Open(nullptr, L"One", kAccess, INVALID_HANDLE_VALUE, key), 0U);
    EXPECT_EQ(key, nullptr);
}

}  // namespace
}  // namespace corvane::test
