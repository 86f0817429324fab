#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/code_pages.h"
#include "fuzz/require.h"
#include "fuzz/silent_reporting.h"
#include "provider/provider_library.h"
#include "store/registry/load_configuration.h"
#include "store/registry/registry_access.h"
#include "store/registry/save_configuration.h"
#include "tests/kit/fakes/memory_registry.h"

// An input builds a whole registry: keys of any names, and values of any type, size and bytes under the names
// that the program reads. Whatever it is, a load ends, closes its keys, and what it has loaded is saved and
// loaded again as it is.

namespace corvane::fuzz {
namespace {

using fuzz::Require;
using test::MemoryRegistry;

const std::wstring kCatalogue = L"SOFTWARE\\HOLVAN\\tarn\\Profiles";
const std::wstring kProgram = L"SOFTWARE\\HOLVAN\\tarntray";

constexpr const wchar_t* kValueNames[] = {L"ProfileName",
                                          L"Window_top",
                                          L"Window_left",
                                          L"SigExt",
                                          L"GZIPArchiveExt",
                                          L"ExtExt",
                                          L"LogPath",
                                          L"Log filesize",
                                          L"ServerTSP",
                                          L"ZCSProfile",
                                          L"NotUseLDAP",
                                          L"NotLoadCrl",
                                          L"CrlUpdatePeriod",
                                          L"UseAIA",
                                          L"Verify File",
                                          L"Handler timeout",
                                          L"Rename conf files",
                                          L"Operation",
                                          L"Path In",
                                          L"Path Out 2",
                                          L"Descryption",
                                          L"ResignProfile",
                                          L"ArchCount",
                                          L"ZipFile",
                                          L"Is on",
                                          L"In format det",
                                          L"Mask num",
                                          L"Mask",
                                          L"M0",
                                          L"M1",
                                          L"M2",
                                          L"Ext num",
                                          L"C0",
                                          L"C1",
                                          L"Signer Num",
                                          L"S0",
                                          L"S1",
                                          L"Another"};

class NoLibrary : public provider::ProviderLibrary {
  public:
    [[nodiscard]] const provider::ProviderFunctions* Functions() override { return nullptr; }
    [[nodiscard]] const provider::ProviderBindFailure& LastFailure() const override { return failure_; }

  private:
    provider::ProviderBindFailure failure_;
};

// Builds a registry from an input.
class Builder {
  public:
    Builder(std::string_view bytes, MemoryRegistry& registry) : rest_(bytes), registry_(registry) {}

    void Build() {
        while (!rest_.empty()) {
            Step();
        }
    }

  private:
    void Step() {
        switch (Byte() % 6) {
            case 0:
                GoToKey(Byte() % 6);
                break;
            case 1:
                names_[Byte() % names_.size()] = Name();
                break;
            case 2: {
                const std::wstring name = ValueName();
                const unsigned type = Byte() % 12;
                registry_.Put(key_, name, test::Bytes(type, RawBytes()));
                break;
            }
            case 3: {
                const std::wstring name = ValueName();
                PutText(name, Byte());
                break;
            }
            case 4: {
                const std::wstring name = ValueName();
                registry_.PutNumber(key_, name, Count());
                break;
            }
            default: {
                const std::wstring name = ValueName();
                registry_.PretendSize(name, Byte() * 257U);
                break;
            }
        }
    }

    void GoToKey(unsigned depth) {
        const std::wstring profile = kProgram + L"\\" + names_[0];
        const std::wstring paths[] = {kCatalogue + L"\\" + names_[1],
                                      kProgram,
                                      profile,
                                      profile + L"\\rules",
                                      profile + L"\\rules\\" + names_[1],
                                      profile + L"\\rules\\" + names_[1] + L"\\" + names_[2]};
        key_ = paths[depth];
        registry_.PutKey(key_);
    }

    void PutText(const std::wstring& name, unsigned form) {
        std::wstring text;
        for (const std::uint8_t byte : RawBytes()) {
            text += static_cast<wchar_t>(byte);
        }
        if (form % 4 == 0) {
            text.resize(std::size_t{form} * 4, L'x');  // Also longer than what can be read.
        }
        if (form % 2 == 0) {
            registry_.PutText(key_, name, text);
            return;
        }
        std::vector<std::wstring> list;
        for (const wchar_t unit : text) {
            if (unit == L';' || list.empty()) {
                list.emplace_back();
            }
            list.back() += unit;
        }
        registry_.PutTextList(key_, name, list);
    }

    // A number that may be a count: few, none, or more than is believed, but not so many elements that are
    // read one by one that a run takes minutes.
    std::uint32_t Count() {
        constexpr std::uint32_t kMany = 500;
        constexpr std::uint32_t kUnbelievable = 0x7FFFFFFF;
        std::uint32_t number = 0;
        for (int i = 0; i < 4; ++i) {
            number = number << 8U | Byte();
        }
        const bool isNegative = number > kUnbelievable;
        if (isNegative || (number == kUnbelievable && !hasUnbelievable_)) {
            hasUnbelievable_ = hasUnbelievable_ || !isNegative;
            return number;
        }
        return number % kMany;
    }

    std::wstring ValueName() { return kValueNames[Byte() % std::size(kValueNames)]; }

    // The name of a key: 1 to 255 characters, none of them a backslash or NUL.
    std::wstring Name() {
        std::wstring name;
        for (const std::uint8_t byte : RawBytes()) {
            name +=
                byte == 0 || byte == '\\' ? L'_' : static_cast<wchar_t>(byte < 0xC0 ? byte : byte + 0x350);
        }
        name.resize(std::min<std::size_t>(name.size(), 255));
        return name.empty() ? L"Rule 0" : name;
    }

    std::uint8_t Byte() {
        if (rest_.empty()) {
            return 0;
        }
        const auto byte = static_cast<std::uint8_t>(rest_.front());
        rest_.remove_prefix(1);
        return byte;
    }

    std::vector<std::uint8_t> RawBytes() {
        const std::size_t length = Byte();
        const std::string_view bytes = rest_.substr(0, length);
        rest_.remove_prefix(bytes.size());
        return {bytes.begin(), bytes.end()};
    }

    std::string_view rest_;
    MemoryRegistry& registry_;
    std::vector<std::wstring> names_ = {L"Mail", L"Rule 0", L"Officers"};
    std::wstring key_ = kProgram;
    bool hasUnbelievable_ = false;
};

// One start of the program, or its end.
class Program {
  public:
    explicit Program(MemoryRegistry& registry) : registry_(registry) {}

    bool Load() {
        store::RegistryAccess access(registry_, reporter_);
        return store::LoadConfiguration(state, access, reporter_, nullptr);
    }
    void Save() {
        store::RegistryAccess access(registry_, reporter_);
        state.isDirty = true;
        store::SaveConfiguration(state, state.settings.window, access, reporter_, nullptr);
    }
    [[nodiscard]] std::size_t ReportCount() const { return presenter_.count; }

    store::ConfigurationState state;

  private:
    MemoryRegistry& registry_;
    fuzz::SilentPresenter presenter_;
    fuzz::NoMessages messages_;
    NoLibrary provider_;
    fuzz::SingleByteText text_;
    reporting::ErrorReporter reporter_{presenter_, messages_, provider_, text_};
};

// What of a configuration the layout can hold: rules with an operation, and no rule without a mask.
store::ConfigurationState Storable(store::ConfigurationState state) {
    for (store::Profile& profile : state.profiles) {
        std::erase_if(profile.rules, [](const store::Rule& rule) { return rule.operation.empty(); });
        for (store::Rule& rule : profile.rules) {
            rule.legacyMask.clear();
            if (rule.masks.empty()) {
                rule.masks.emplace_back();
            }
        }
    }
    return state;
}

void RequireClosed(const MemoryRegistry& registry) {
    Require(registry.OpenKeys() == 0 && registry.Misuses() == 0, "every key is closed once");
}

void CheckLoad(std::string_view bytes) {
    MemoryRegistry registry;
    registry.PutKey(kCatalogue);
    Builder(bytes, registry).Build();
    Program first(registry);
    bool isLoaded = false;
    try {
        isLoaded = first.Load();
    } catch (const std::invalid_argument&) {
        Require(first.state.csProfileCatalogue.empty() && registry.SubkeyNames(kProgram).empty(),
                "only where there is neither a profile nor a CS profile no program starts without a word");
    }
    RequireClosed(registry);
    Require(isLoaded || first.ReportCount() > 0 || first.state.csProfileCatalogue.empty(),
            "a load that ends the program says why");
    if (!isLoaded) {
        return;
    }
    Require(first.state.profiles.size() == first.state.profileNames.size() && !first.state.profiles.empty(),
            "every profile is there");
    Require(!first.state.isDirty && first.state.settings.logFileSize >= 400, "what is loaded is in bounds");

    MemoryRegistry other;
    other.PutKey(kCatalogue);
    other.PutKey(kProgram);
    for (std::size_t i = 0; i < first.state.csProfileCatalogue.size(); ++i) {
        other.PutText(kCatalogue + L"\\" + std::to_wstring(i), L"ProfileName",
                      first.state.csProfileCatalogue[i]);
    }
    Program saving(other);
    saving.state = first.state;
    saving.Save();
    Require(saving.ReportCount() == 0 && !saving.state.isDirty, "what was loaded can be saved");
    Program second(other);
    Require(second.Load() && second.ReportCount() == 0, "what was saved can be loaded");
    RequireClosed(other);
    Require(Storable(second.state) == Storable(first.state), "what was saved is loaded as it was");
}

}  // namespace
}  // namespace corvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t sizeBytes) {
    corvane::fuzz::CheckLoad(std::string_view(reinterpret_cast<const char*>(data), sizeBytes));
    return 0;
}
