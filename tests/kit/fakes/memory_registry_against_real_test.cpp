#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "store/registry/registry_calls.h"
#include "tests/kit/fakes/memory_registry.h"
#include "tests/store/registry/real/own_registry_root.h"

// Most tests have their registry in memory. Here the same calls go to it and to the system's own, and both
// must answer alike: a test that passes on a registry that is kinder than the real one shows nothing.

namespace corvane::test {
namespace {

constexpr std::uint32_t kReadWrite = 0x2001F;

// What a sequence of calls comes to: a line for each call, with its code and what it gave.
class Transcript {
  public:
    explicit Transcript(store::RegistryCalls& calls) : calls_(calls) {}

    store::RegistryCalls::Key Create(const std::wstring& path, store::RegistryCalls::Key parent = nullptr) {
        store::RegistryCalls::Key key = nullptr;
        Note("create", path, calls_.Create(parent, path, kReadWrite, nullptr, key));
        return key;
    }
    store::RegistryCalls::Key Open(const std::wstring& path, store::RegistryCalls::Key parent = nullptr) {
        store::RegistryCalls::Key key = nullptr;
        Note("open", path, calls_.Open(parent, path, kReadWrite, nullptr, key));
        return key;
    }
    void Delete(const std::wstring& name, store::RegistryCalls::Key parent = nullptr) {
        Note("delete", name, calls_.Delete(parent, name, 0, nullptr));
    }
    void Set(store::RegistryCalls::Key key, const std::wstring& name, const std::wstring& text) {
        const StoredData data = Text(text);
        Note("set", name,
             calls_.Set(key, name, data.type, data.bytes.data(),
                        static_cast<std::uint32_t>(data.bytes.size())));
    }
    void Query(store::RegistryCalls::Key key, const std::wstring& name) {
        StoredData data;
        data.bytes.resize(64);
        std::uint32_t sizeBytes = 0;
        const std::uint32_t code = calls_.Query(key, name, data.bytes.data(), 64, data.type, sizeBytes);
        data.bytes.resize(code == 0 ? sizeBytes : 0);
        Note("query", name, code);
        lines_ += ::testing::PrintToString(data) + '\n';
        std::uint32_t type = 0;
        std::uint32_t askedBytes = 0;
        Note("query size", name, calls_.Query(key, name, nullptr, 0, type, askedBytes));
        lines_ += "type " + std::to_string(type) + ", " + std::to_string(askedBytes) + " bytes\n";
    }
    void Enumerate(store::RegistryCalls::Key key, std::uint32_t capacityChars = 260) {
        for (std::uint32_t index = 0, code = 0; code == 0; ++index) {
            std::wstring name;
            code = calls_.EnumerateSubkey(key, index, capacityChars, name);
            Note("enumerate", code == 0 ? name : L"", code);
        }
    }
    void Close(store::RegistryCalls::Key key) {
        if (key != nullptr) {
            Note("close", L"", calls_.Close(key));
        }
    }

    [[nodiscard]] const std::string& Lines() const { return lines_; }

  private:
    void Note(const char* operation, const std::wstring& name, std::uint32_t code) {
        lines_ += std::string(operation) + " [" + Printable(name) + "] = " + std::to_string(code) + '\n';
    }

    store::RegistryCalls& calls_;
    std::string lines_;
};

struct ComparedCalls {
    const char* name;
    std::function<void(Transcript&)> run;
};

void PrintTo(const ComparedCalls& row, std::ostream* out) {
    *out << row.name;
}

// Makes a key of the name under "One", finds it again and deletes it.
std::function<void(Transcript&)> ComeAndGo(const std::wstring& name) {
    return [name](Transcript& calls) {
        const store::RegistryCalls::Key one = calls.Create(L"One");
        const store::RegistryCalls::Key made = calls.Create(name, one);
        if (made != nullptr) {
            calls.Set(made, L"Name", L"text");
        }
        calls.Close(made);
        calls.Enumerate(one);
        const store::RegistryCalls::Key found = calls.Open(name, one);
        if (found != nullptr) {
            calls.Query(found, L"Name");
            calls.Enumerate(found);
        }
        calls.Close(found);
        calls.Delete(name, one);
        calls.Enumerate(one);
        calls.Close(one);
        calls.Close(calls.Open(L"One\\" + name));
    };
}

// Sets a value of the name, reads it again, and sets another whose name differs in letter case.
std::function<void(Transcript&)> SetAndRead(const std::wstring& name, const std::wstring& otherCase) {
    return [name, otherCase](Transcript& calls) {
        const store::RegistryCalls::Key one = calls.Create(L"One");
        calls.Query(one, name);
        calls.Set(one, name, L"first");
        calls.Query(one, otherCase);
        calls.Set(one, otherCase, L"second");
        calls.Query(one, name);
        calls.Close(one);
    };
}

const std::vector<ComparedCalls>& Cases() {
    static const std::vector<ComparedCalls> kCases = {
        {"EmptyPath", ComeAndGo(L"")},
        {"PlainName", ComeAndGo(L"Two")},
        {"TwoNames", ComeAndGo(L"Two\\Three")},
        {"EmptyPart", ComeAndGo(L"Two\\\\Three")},
        {"EmptyParts", ComeAndGo(L"Two\\\\\\Three")},
        {"BackslashBehind", ComeAndGo(L"Two\\")},
        {"BackslashesBehind", ComeAndGo(L"Two\\\\")},
        {"BackslashInFront", ComeAndGo(L"\\Two")},
        {"BackslashesInFront", ComeAndGo(L"\\\\Two")},
        {"BackslashOnly", ComeAndGo(L"\\")},
        {"Slash", ComeAndGo(L"Two/Three")},
        {"Blank", ComeAndGo(L" ")},
        {"BlanksAround", ComeAndGo(L" Two ")},
        {"Point", ComeAndGo(L".")},
        {"TwoPoints", ComeAndGo(L"..")},
        {"PointBehind", ComeAndGo(L"Two.")},
        {"OddCharacters", ComeAndGo(L"*?<>|:\";,%~\x01\x1F\x7F\xA0\x2028\xFFFF")},
        {"LoneSurrogate", ComeAndGo(L"\xD800")},
        {"LongestName", ComeAndGo(std::wstring(255, L'n'))},
        {"LongPathOfShortNames", ComeAndGo(std::wstring(200, L'a') + L"\\" + std::wstring(200, L'b'))},
        {"EmptyValueName", SetAndRead(L"", L"")},
        {"ValueNameInOtherCase", SetAndRead(L"Path In", L"pATH iN")},
        {"ValueNameInOtherCyrillicCase", SetAndRead(L"\x0416\x0443\x0440\x043D\x0430\x043B \x0401",
                                                    L"\x0436\x0423\x0420\x041D\x0410\x041B \x0451")},
        {"ValueNameInOtherLatinCase", SetAndRead(L"\xC4\xD6\xDC", L"\xE4\xF6\xFC")},
        {"ValueNameWithBackslash", SetAndRead(L"a\\b", L"A\\B")},
        {"ValueNameWithOddCharacters", SetAndRead(L"*?/ \x01", L"*?/ \x01")},
        {"LongValueName", SetAndRead(std::wstring(1000, L'v'), std::wstring(1000, L'V'))},
        {"KeyInOtherCase",
         [](Transcript& calls) {
             const store::RegistryCalls::Key one = calls.Create(L"One");
             calls.Close(calls.Create(L"Two\\Three", one));
             calls.Close(calls.Create(L"tWO\\tHREE", one));
             calls.Close(calls.Open(L"TWO\\THREE", one));
             calls.Enumerate(one);
             calls.Delete(L"two\\three", one);
             calls.Delete(L"two", one);
             calls.Enumerate(one);
             calls.Close(one);
         }},
        {"KeyInOtherCyrillicCase",
         [](Transcript& calls) {
             const store::RegistryCalls::Key one = calls.Create(L"One");
             calls.Close(calls.Create(L"\x041F\x043E\x0447\x0442\x0430 \x0401", one));
             calls.Close(calls.Open(L"\x043F\x041E\x0427\x0422\x0410 \x0451", one));
             calls.Close(calls.Create(L"\x043F\x041E\x0427\x0422\x0410 \x0451", one));
             calls.Enumerate(one);
             calls.Close(one);
         }},
        {"NamesThatDifferInMoreThanCase",
         [](Transcript& calls) {
             const store::RegistryCalls::Key one = calls.Create(L"One");
             calls.Close(calls.Create(L"\x0401", one));
             calls.Close(calls.Open(L"\x0415", one));
             calls.Close(calls.Open(L"\x00D7", one));
             calls.Close(calls.Create(L"\x00D7", one));
             calls.Close(calls.Open(L"\x00F7", one));
             calls.Close(one);
         }},
        {"CapacityOfEnumeration",
         [](Transcript& calls) {
             const store::RegistryCalls::Key one = calls.Create(L"One");
             calls.Close(calls.Create(L"abc", one));
             calls.Enumerate(one, 4);
             calls.Enumerate(one, 3);
             calls.Close(one);
         }},
        {"KeyWithSubkeysIsNotDeleted",
         [](Transcript& calls) {
             const store::RegistryCalls::Key one = calls.Create(L"One");
             calls.Close(calls.Create(L"Two\\Three", one));
             calls.Delete(L"Two", one);
             calls.Delete(L"Two\\Three", one);
             calls.Delete(L"Two", one);
             calls.Delete(L"Two", one);
             calls.Close(one);
         }},
        {"DeletedKeyThatIsStillOpen",
         [](Transcript& calls) {
             const store::RegistryCalls::Key one = calls.Create(L"One");
             const store::RegistryCalls::Key two = calls.Create(L"Two", one);
             calls.Set(two, L"Name", L"text");
             calls.Delete(L"Two", one);
             calls.Query(two, L"Name");
             calls.Set(two, L"Name", L"text");
             calls.Enumerate(two);
             calls.Close(calls.Open(L"", two));
             calls.Close(calls.Open(L"Three", two));
             calls.Close(calls.Create(L"Three", two));
             calls.Delete(L"Three", two);
             calls.Close(two);
             calls.Close(calls.Create(L"Two", one));
             calls.Close(one);
         }},
        {"DeletingByAnEmptyName",
         [](Transcript& calls) {
             const store::RegistryCalls::Key one = calls.Create(L"One\\Two");
             calls.Delete(L"", one);
             calls.Close(one);
             calls.Close(calls.Open(L"One\\Two"));
             calls.Close(calls.Open(L"One"));
         }},
    };
    return kCases;
}

class MemoryRegistryIsLikeTheSystems : public ::testing::TestWithParam<ComparedCalls> {};

TEST_P(MemoryRegistryIsLikeTheSystems, CallByCall) {
    const OwnRegistryRoot root;
    store::WindowsRegistryCalls systemCalls;
    Transcript system(systemCalls);
    GetParam().run(system);

    MemoryRegistry memory;
    Transcript inMemory(memory);
    GetParam().run(inMemory);

    EXPECT_EQ(system.Lines(), inMemory.Lines()) << "the system's registry first, then the one in memory";
    EXPECT_EQ(Differences(root.Snapshot(), memory.Snapshot()), "");
    EXPECT_EQ(memory.OpenKeys(), 0U);
}

INSTANTIATE_TEST_SUITE_P(Names, MemoryRegistryIsLikeTheSystems, ::testing::ValuesIn(Cases()),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace corvane::test
