#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/extensions_page/extensions_page_form.h"
#include "certificates/selection/selection_form.h"
#include "certificates/signer_lists/signer_lists_form.h"
#include "editors/profile/cs_profile_commands.h"
#include "editors/profile/profile_form.h"
#include "editors/rule/rule_cs_profile_change.h"
#include "editors/rule/rule_form.h"
#include "reporting/message_styles.h"
#include "store/cs_profile_settings.h"
#include "store/registry/load_configuration.h"
#include "store/registry/save_configuration.h"
#include "store/rules_file/rules_file.h"
#include "tests/app/failing_memory.h"
#include "tests/kit/fakes/memory_files.h"
#include "tests/kit/fakes/memory_registry.h"
#include "tests/kit/fakes/recording_presenter.h"
#include "tests/kit/fakes/scripted_provider.h"
#include "tests/kit/fakes/scripted_sessions.h"
#include "tests/kit/fakes/scripted_system_messages.h"
#include "tests/kit/fakes/test_system_text.h"
#include "tests/kit/fixtures/store_fixture.h"
#include "tests/kit/samples/stored_configuration.h"

// Memory runs out at each allocation of a load, a save, an export, an import and of what the forms do.
// Whoever catches the exception shows it and goes on with the records and the form at hand, so those must be
// as they were, or whole; and nothing may leak.

namespace corvane::test {
namespace {

// The stand-ins for the system, whose own memory is never short.

class UncountedPresenter : public RecordingPresenter {
  public:
    int Show(toolkit::WindowHandle owner, const std::wstring& text, const std::wstring& title,
             std::uint32_t style) override {
        const UncountedMemory uncounted;
        return RecordingPresenter::Show(owner, text, title, style);
    }
};

class UncountedRegistry : public store::RegistryCalls {
  public:
    std::uint32_t Open(Key parent, const std::wstring& path, std::uint32_t access, Transaction transaction,
                       Key& key) override {
        const UncountedMemory uncounted;
        return memory.Open(parent, path, access, transaction, key);
    }
    std::uint32_t Create(Key parent, const std::wstring& path, std::uint32_t access, Transaction transaction,
                         Key& key) override {
        const UncountedMemory uncounted;
        return memory.Create(parent, path, access, transaction, key);
    }
    std::uint32_t Delete(Key parent, const std::wstring& name, std::uint32_t viewBits,
                         Transaction transaction) override {
        const UncountedMemory uncounted;
        return memory.Delete(parent, name, viewBits, transaction);
    }
    std::uint32_t Close(Key key) override {
        const UncountedMemory uncounted;
        return memory.Close(key);
    }
    std::uint32_t EnumerateSubkey(Key key, std::uint32_t index, std::uint32_t capacityChars,
                                  std::wstring& name) override {
        const UncountedMemory uncounted;
        return memory.EnumerateSubkey(key, index, capacityChars, name);
    }
    std::uint32_t Query(Key key, const std::wstring& name, void* data, std::uint32_t capacityBytes,
                        std::uint32_t& type, std::uint32_t& sizeBytes) override {
        const UncountedMemory uncounted;
        return memory.Query(key, name, data, capacityBytes, type, sizeBytes);
    }
    std::uint32_t Set(Key key, const std::wstring& name, std::uint32_t type, const void* data,
                      std::uint32_t sizeBytes) override {
        const UncountedMemory uncounted;
        return memory.Set(key, name, type, data, sizeBytes);
    }

    MemoryRegistry memory;
};

class UncountedFiles : public toolkit::FileCalls {
  public:
    std::uint32_t Create(const std::wstring& path, Handle& file) override {
        const UncountedMemory uncounted;
        return memory.Create(path, file);
    }
    std::uint32_t Open(const std::wstring& path, Handle& file) override {
        const UncountedMemory uncounted;
        return memory.Open(path, file);
    }
    std::uint32_t Size(Handle file, std::uint64_t& sizeBytes) override {
        const UncountedMemory uncounted;
        return memory.Size(file, sizeBytes);
    }
    std::uint32_t Read(Handle file, char* data, std::size_t sizeBytes, std::size_t& readBytes) override {
        const UncountedMemory uncounted;
        return memory.Read(file, data, sizeBytes, readBytes);
    }
    std::uint32_t Write(Handle file, const char* data, std::size_t sizeBytes,
                        std::size_t& writtenBytes) override {
        const UncountedMemory uncounted;
        return memory.Write(file, data, sizeBytes, writtenBytes);
    }
    std::uint32_t Close(Handle file) override {
        const UncountedMemory uncounted;
        return memory.Close(file);
    }
    std::uint32_t CheckExists(const std::wstring& path) override {
        const UncountedMemory uncounted;
        return memory.CheckExists(path);
    }

    MemoryFiles memory;
};

// What every case has at hand.
struct World {
    UncountedPresenter presenter;
    ScriptedSystemMessages messages;
    ScriptedProvider provider;
    TestSystemText text{CodePage::kCyrillic};
    reporting::ErrorReporter reporter{presenter, messages, provider, text};
};

// Runs `act` on a fresh `Case` again and again; each time the next allocation fails. `check` then looks at
// the case; it is told whether the failure was thrown, or dealt with by `act`. Returns how many failed.
template <typename Case>
std::size_t FailAllocations(const std::function<void(Case&)>& act,
                            const std::function<void(Case&, bool isThrown)>& check) {
    act(*std::make_unique<Case>());  // What is made once and kept is made now.
    std::size_t failures = 0;
    for (bool hasFailed = true; hasFailed && !::testing::Test::HasFailure(); ++failures) {
        SCOPED_TRACE("allocation " + std::to_string(failures));
        const std::size_t live = LiveAllocations();
        {
            Case subject;
            bool isThrown = false;
            {
                const FailingMemory memory(failures);
                try {
                    act(subject);
                } catch (const std::bad_alloc&) {
                    isThrown = true;
                }
                hasFailed = memory.HasFailed();
            }
            if (hasFailed) {
                check(subject, isThrown);
            }
        }
        EXPECT_EQ(LiveAllocations(), live) << "something was not given back";
    }
    return failures - 1;
}

template <typename Case>
void FailEachAllocation(const std::function<void(Case&)>& act,
                        const std::function<void(Case&, bool isThrown)>& check) {
    EXPECT_GT(FailAllocations(act, check), 0U) << "nothing was allocated";
}

constexpr wchar_t kOutOfMemory[] = L"Memory allocation";

struct StoredCase : World {
    StoredCase() { PutStoredConfiguration(registry.memory); }

    bool Load() {
        store::RegistryAccess access(registry, reporter);
        return store::LoadConfiguration(state, access, reporter, nullptr);
    }
    void Save() {
        store::RegistryAccess access(registry, reporter);
        store::SaveConfiguration(state, {.top = 1, .bottom = 2, .left = 3, .right = 4}, access, reporter,
                                 nullptr);
    }
    void ExpectKeysClosed() const {
        EXPECT_EQ(registry.memory.OpenKeys(), 0U);
        EXPECT_EQ(registry.memory.Misuses(), 0U);
    }

    UncountedRegistry registry;
    store::ConfigurationState state;
};

TEST(AllocationFaults, ALoadLeavesWholeProfilesAndClosedKeys) {
    store::ConfigurationState clean;
    {
        StoredCase undisturbed;
        ASSERT_TRUE(undisturbed.Load());
        clean = undisturbed.state;
    }
    FailEachAllocation<StoredCase>(
        [](StoredCase& subject) { static_cast<void>(subject.Load()); },
        [&clean](StoredCase& subject, bool isThrown) {
            subject.ExpectKeysClosed();
            EXPECT_FALSE(subject.state.isDirty);
            if (!isThrown && subject.presenter.Boxes().empty()) {
                // The standard library's stable sort does without its buffer where there is none.
                EXPECT_EQ(subject.state, clean);
                return;
            }
            if (!isThrown) {
                EXPECT_EQ(subject.presenter.OnlyText(), ReportText(kOutOfMemory, 8));
                return;
            }
            const std::vector<store::Profile>& profiles = subject.state.profiles;
            ASSERT_LE(profiles.size(), clean.profiles.size());
            EXPECT_TRUE(std::equal(profiles.begin(), profiles.end(), clean.profiles.begin()))
                << "a profile that was not read whole";
        });
}

struct ChangedCase : StoredCase {
    ChangedCase() { state = ChangedConfiguration(); }
};

TEST(AllocationFaults, ASaveThatEndsEarlyKeepsTheRecordsAndStaysDirtyAndCanBeRepeated) {
    RegistrySnapshot clean;
    {
        ChangedCase undisturbed;
        undisturbed.Save();
        clean = undisturbed.registry.memory.Snapshot();
    }
    FailEachAllocation<ChangedCase>([](ChangedCase& subject) { subject.Save(); },
                                    [&clean](ChangedCase& subject, bool isThrown) {
                                        subject.ExpectKeysClosed();
                                        store::ConfigurationState records = ChangedConfiguration();
                                        records.isDirty = isThrown;
                                        EXPECT_TRUE(subject.state == records);
                                        if (!isThrown) {
                                            EXPECT_EQ(subject.presenter.OnlyText(),
                                                      ReportText(kOutOfMemory, 8));
                                        }
                                        subject.Save();
                                        EXPECT_EQ(Differences(clean, subject.registry.memory.Snapshot()), "");
                                    });
}

constexpr wchar_t kPath[] = L"C:\\exchange\\the rules of the profile.prx";

std::vector<store::Rule> ExportedRules() {
    return ChangedConfiguration().profiles[0].rules;
}

struct FileCase : World {
    FileCase() { files.memory.contents[kPath] = "an older export"; }

    std::vector<store::Rule> rules = ExportedRules();
    UncountedFiles files;
};

TEST(AllocationFaults, AnExportThatFailsLeavesTheOlderFile) {
    FailEachAllocation<FileCase>(
        [](FileCase& subject) {
            static_cast<void>(
                store::WriteRulesFile(kPath, subject.rules, subject.files, subject.reporter, nullptr));
        },
        [](FileCase& subject, bool isThrown) {
            EXPECT_TRUE(isThrown);
            EXPECT_EQ(subject.files.memory.contents[kPath], "an older export");
            EXPECT_EQ(subject.files.memory.OpenHandles(), 0U);
            EXPECT_EQ(subject.rules, ExportedRules());
        });
}

struct ImportCase : FileCase {
    ImportCase() {
        const std::wstring content = store::FormatRulesFile(rules);
        files.memory.contents[kPath] = {content.begin(), content.end()};
    }
};

TEST(AllocationFaults, AnImportThatFailsClosesItsFile) {
    FailEachAllocation<ImportCase>(
        [](ImportCase& subject) {
            const std::optional<std::string> bytes =
                store::ReadRulesFile(kPath, subject.files, subject.reporter, nullptr);
            if (bytes) {
                subject.rules = store::ParseRulesFile(*bytes, subject.text);
            }
        },
        [](ImportCase& subject, bool isThrown) {
            EXPECT_EQ(subject.files.memory.OpenHandles(), 0U);
            EXPECT_EQ(subject.rules, ExportedRules());
            EXPECT_TRUE(isThrown || subject.presenter.Boxes().size() == 1);
        });
}

store::Profile EditedProfile() {
    store::Profile profile;
    profile.name = L"A profile with a name that is not short";
    profile.csProfiles = {L"The first CS profile of all", L"The second CS profile of all",
                          L"The third CS profile of all"};
    profile.timeStampServers = {L"http://one.example/time-stamps", L"http://two.example/time-stamps"};
    profile.notLoadCrl = {1};
    profile.crlUpdatePeriods = {24, 48, 72};
    return profile;
}

store::Rule EditedRule() {
    store::Rule rule;
    rule.operation = L"ENCR";
    rule.csProfile = L"The second CS profile of all";
    rule.inputFolder = L"C:\\a folder of incoming files";
    rule.outputFolder = L"C:\\a folder of outgoing files";
    rule.masks = {L"*.a mask that is not short", L"*.another mask that is not"};
    rule.recipients = {L"CN=A recipient, whose name is long", L"CN=B"};
    return rule;
}

struct RuleCase : World {
    store::Profile profile = EditedProfile();
    store::Rule rule = EditedRule();
    editors::AcceptedCsProfile accepted{.index = 7};
    editors::RuleForm form;
};

TEST(AllocationFaults, ARuleThatCannotBeOpenedLeavesTheAcceptedCsProfile) {
    FailEachAllocation<RuleCase>(
        [](RuleCase& subject) {
            subject.form = editors::OpenRule(subject.profile, subject.rule, subject.accepted);
        },
        [](RuleCase& subject, bool isThrown) {
            EXPECT_TRUE(isThrown);
            EXPECT_EQ(subject.accepted.index, 7);
            EXPECT_TRUE(subject.form == editors::RuleForm());
        });
}

struct OpenedRuleCase : RuleCase {
    OpenedRuleCase() {
        form = editors::OpenRule(profile, rule, accepted);
        form.result.signerGroups = {{L"A list of signers with a long name", {L"CN=Signer"}}};
        for (editors::TextField& field : form.texts) {
            field.text = L"a text that is not short at all";
        }
    }
};

TEST(AllocationFaults, AChangeOfTheOperationThatFailsIsMadeGoodByTheNextOne) {
    constexpr editors::Operation kOperations[] = {
        editors::Operation::kEncrypt, editors::Operation::kVerify,  editors::Operation::kMove,
        editors::Operation::kDelete,  editors::Operation::kResign,  editors::Operation::kArchive,
        editors::Operation::kPack,    editors::Operation::kExecute, editors::Operation::kSign};
    std::size_t failures = 0;
    for (const editors::Operation previous : kOperations) {
        for (const editors::Operation next : kOperations) {
            SCOPED_TRACE(std::to_string(static_cast<int>(previous)) + " to " +
                         std::to_string(static_cast<int>(next)));
            const auto prepare = [previous](OpenedRuleCase& subject) {
                subject.form.operation.index = static_cast<int>(previous);
                editors::ChangeOperation(subject.form);
                for (editors::ChoiceField& choice : subject.form.choices) {
                    choice.index = 1;
                }
            };
            const auto change = [next](OpenedRuleCase& subject) {
                subject.form.operation.index = static_cast<int>(next);
                editors::ChangeOperation(subject.form);
            };
            editors::RuleForm clean;
            {
                OpenedRuleCase undisturbed;
                prepare(undisturbed);
                change(undisturbed);
                clean = undisturbed.form;
            }
            failures += FailAllocations<OpenedRuleCase>(
                [&](OpenedRuleCase& subject) {
                    {
                        const UncountedMemory uncounted;
                        prepare(subject);
                    }
                    change(subject);
                },
                [&](OpenedRuleCase& subject, bool /*isThrown*/) {
                    change(subject);
                    EXPECT_TRUE(subject.form == clean);
                });
            if (::testing::Test::HasFailure()) {
                return;
            }
        }
    }
    EXPECT_GT(failures, 100U);
}

TEST(AllocationFaults, AChangeOfTheCsProfileThatFailsAcceptsNothing) {
    FailEachAllocation<OpenedRuleCase>(
        [](OpenedRuleCase& subject) {
            {
                const UncountedMemory uncounted;
                subject.presenter.AnswerNext(reporting::kAnswerYes);
                subject.presenter.AnswerNext(reporting::kAnswerYes);
                subject.form.csProfile.index = 2;
            }
            editors::ChangeCsProfile(subject.form, subject.accepted, subject.reporter, nullptr);
        },
        [](OpenedRuleCase& subject, bool isThrown) {
            EXPECT_TRUE(isThrown);
            EXPECT_EQ(subject.accepted.index, 1);
            EXPECT_FALSE(subject.form.result.signerGroups.empty());
        });
}

TEST(AllocationFaults, ACommittedRuleThatFailsLeavesTheForm) {
    const editors::RuleForm opened = OpenedRuleCase().form;
    FailEachAllocation<OpenedRuleCase>(
        [](OpenedRuleCase& subject) { subject.rule = editors::CommitRule(subject.form); },
        [&opened](OpenedRuleCase& subject, bool isThrown) {
            EXPECT_TRUE(isThrown);
            EXPECT_TRUE(subject.form == opened);
            EXPECT_EQ(subject.rule, EditedRule());
        });
}

struct ProfileCase : World {
    ProfileCase() : form(editors::OpenProfileForm(EditedProfile(), {}, shown)) {
        form.selectedCsProfile = 1;
        editors::ChangeShownCsProfile(form, shown);
        form.shown.timeStampServer = L"http://changed.example/time-stamps";
    }

    // The settings that are shown are kept for the CS profile whose index is remembered: it must be theirs.
    void ExpectConsistent() const {
        const std::size_t count = form.result.csProfiles.size();
        store::ForEachCsProfileSetting(
            form.result, form.shown,
            [count](const auto& list, const auto& /*field*/) { EXPECT_EQ(list.size(), count); });
        ASSERT_LT(static_cast<std::size_t>(shown.index), count);
        EXPECT_EQ(form.result.csProfiles[static_cast<std::size_t>(shown.index)], form.shown.name);
    }

    editors::ShownCsProfile shown;
    editors::ProfileForm form;
};

void FailProfileCommand(const std::function<void(ProfileCase&)>& command) {
    FailEachAllocation<ProfileCase>(command, [](ProfileCase& subject, bool isThrown) {
        EXPECT_TRUE(isThrown);
        subject.ExpectConsistent();
    });
}

TEST(AllocationFaults, AnotherCsProfileThatCannotBeShownLeavesTheShownOne) {
    FailProfileCommand([](ProfileCase& subject) {
        subject.form.selectedCsProfile = 2;
        editors::ChangeShownCsProfile(subject.form, subject.shown);
    });
}

TEST(AllocationFaults, ACsProfileThatCannotBeAddedLeavesAWholeProfile) {
    FailProfileCommand([](ProfileCase& subject) {
        editors::AddCsProfile(subject.form, L"One more CS profile than there was", subject.shown,
                              subject.text);
    });
}

TEST(AllocationFaults, ACsProfileThatCannotBeDeletedLeavesAWholeProfile) {
    FailProfileCommand([](ProfileCase& subject) {
        {
            const UncountedMemory uncounted;
            subject.presenter.AnswerNext(reporting::kAnswerYes);
        }
        if (!editors::CheckCsProfileDeletion(subject.form) &&
            reporting::IsAgreedTo(editors::CsProfileDeletionQuestion(subject.form), subject.reporter,
                                  nullptr)) {
            editors::DeleteCsProfile(subject.form, subject.shown);
        }
    });
}

TEST(AllocationFaults, AProfileThatCannotBeCommittedIsWhole) {
    FailProfileCommand([](ProfileCase& subject) { editors::CommitProfile(subject.form); });
}

std::vector<std::wstring> Rows(const certificates::RecipientSelectionForm& form) {
    std::vector<std::wstring> rows;
    for (std::size_t i = 0; i < form.FoundRowCount(); ++i) {
        rows.emplace_back(form.FoundRow(i).owner);
    }
    rows.emplace_back(form.FoundSortMark() == certificates::SortMark::kUp ? L"up" : L"not up");
    for (std::size_t i = 0; i < form.ChosenRowCount(); ++i) {
        rows.emplace_back(form.ChosenRow(i).owner);
    }
    rows.emplace_back(form.ChosenSortMark() == certificates::SortMark::kUp ? L"up" : L"not up");
    return rows;
}

struct SelectionCase : World {
    SelectionCase() {
        settings.signerMode = 1;
        certificates::SelectionStart start;
        start.chosen = {L"CN=Zoe, chosen before all others", L"CN=Other, who signs elsewhere"};
        start.existingLists = {{L"Another list of signers", {L"CN=Ben, found and not chosen yet"}}};
        form.emplace(settings, std::move(start), text);
        form->AddFound({L"CN=Ben, found and not chosen yet", L"CN=Ann, found and not chosen yet"});
        form->ClickFoundHeader();
        form->ClickChosenHeader();
        form->CheckAllFound(true);
        form->CheckChosen(0, true);
    }

    certificates::CertSearchSettings settings;
    std::optional<certificates::RecipientSelectionForm> form;
};

class SelectionUnderFailure : public ::testing::TestWithParam<
                                  std::pair<const char*, void (*)(certificates::RecipientSelectionForm&)>> {};

TEST_P(SelectionUnderFailure, ShowsItsListsAsTheyWereOrAsTheyShallBe) {
    const auto command = GetParam().second;
    std::vector<std::wstring> before;
    std::vector<std::wstring> after;
    {
        SelectionCase undisturbed;
        before = Rows(*undisturbed.form);
        command(*undisturbed.form);
        after = Rows(*undisturbed.form);
    }
    FailEachAllocation<SelectionCase>([command](SelectionCase& subject) { command(*subject.form); },
                                      [&](SelectionCase& subject, bool isThrown) {
                                          EXPECT_TRUE(isThrown);
                                          const std::vector<std::wstring> rows = Rows(*subject.form);
                                          EXPECT_TRUE(rows == before || rows == after)
                                              << ::testing::PrintToString(rows);
                                      });
}

INSTANTIATE_TEST_SUITE_P(
    Commands, SelectionUnderFailure,
    ::testing::Values(
        std::pair(
            "AddFound",
            +[](certificates::RecipientSelectionForm& form) {
                form.AddFound({L"CN=Cid, who was found just now", L"CN=Dan, who was found just now",
                               L"CN=Eve, who was found just now"});
            }),
        std::pair(
            "SetFilter",
            +[](certificates::RecipientSelectionForm& form) { form.SetFilter(L"ann, found and not"); }),
        std::pair(
            "SetSortField", +[](certificates::RecipientSelectionForm& form) { form.SetSortField(1); }),
        std::pair(
            "ClickFoundHeader", +[](certificates::RecipientSelectionForm& form) { form.ClickFoundHeader(); }),
        std::pair(
            "ClickChosenHeader",
            +[](certificates::RecipientSelectionForm& form) { form.ClickChosenHeader(); }),
        std::pair(
            "AddChecked",
            +[](certificates::RecipientSelectionForm& form) { static_cast<void>(form.AddChecked()); }),
        std::pair(
            "RemoveChecked", +[](certificates::RecipientSelectionForm& form) { form.RemoveChecked(); })),
    [](const auto& row) { return row.param.first; });

std::vector<store::SignerGroup> EditedLists() {
    return {{L"The first list of signers", {L"CN=A signer with a long name", L"CN=B"}},
            {L"The second list of signers", {L"CN=C"}},
            {L"The third list of signers", {L"CN=D"}},
            {L"The fourth list of signers", {L"CN=E"}}};
}

struct ListsCase : SelectionCase {
    ListsCase() { form->listName = L"A new name for a list of signers"; }

    certificates::SignerListsForm lists{EditedLists()};
};

void FailListsCommand(const std::function<void(ListsCase&)>& command) {
    FailEachAllocation<ListsCase>(command, [](ListsCase& subject, bool isThrown) {
        EXPECT_TRUE(isThrown);
        EXPECT_EQ(subject.lists.Lists(), EditedLists());
    });
}

TEST(AllocationFaults, SignerListsThatCannotBeChangedAreAsTheyWere) {
    FailListsCommand([](ListsCase& subject) { subject.lists.Add(*subject.form); });
    FailListsCommand([](ListsCase& subject) { subject.lists.Replace(1, *subject.form); });
    FailListsCommand([](ListsCase& subject) {
        {
            const UncountedMemory uncounted;
            subject.presenter.AnswerNext(reporting::kAnswerYes);
        }
        const auto question = subject.lists.DeletionQuestion({1});
        if (question && reporting::IsAgreedTo(*question, subject.reporter, nullptr)) {
            subject.lists.Delete({1});
        }
    });
}

struct ConfigPageCase : World {
    static store::AppSettings Stored() {
        store::AppSettings settings;
        settings.additionalExtensions = {L"the first of all extensions", L"the second of all extensions"};
        return settings;
    }

    app::ConfigPageForm form{Stored()};
    corvane::store::TextList listed{L"another extension than the first one",
                                    L"another extension than the second"};
};

TEST(AllocationFaults, ExtensionsThatCannotBeAppliedAreAsTheyWereAndCanBeAppliedAgain) {
    FailEachAllocation<ConfigPageCase>(
        [](ConfigPageCase& subject) {
            subject.form.OnExtensionEdited();
            static_cast<void>(subject.form.Apply(subject.listed));
        },
        [](ConfigPageCase& subject, bool isThrown) {
            EXPECT_TRUE(isThrown);
            EXPECT_EQ(subject.form.settings, ConfigPageCase::Stored());
            EXPECT_TRUE(subject.form.IsModified());
        });
}

}  // namespace
}  // namespace corvane::test
