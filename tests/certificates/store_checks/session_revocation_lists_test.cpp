#include <ctime>

#include "tests/kit/fixtures/session_fixture.h"

namespace corvane::test {
namespace {

constexpr std::int64_t kHour = 3600;

constexpr wchar_t kQuestion[] =
    L"The distribution point does not answer (0xE0700050).\r\nContinue without loading CRL?";

class RevocationListsTest : public SessionTest {
  protected:
    RevocationListsTest() {
        RefreshListsOnly();
        CreateRegistryKey(kRefreshTimesKey);
        script.ErrorText(0xE0700050, "The distribution point does not answer");
    }

    static std::int64_t Now() { return static_cast<std::int64_t>(std::time(nullptr)); }
    static std::wstring Entry(const std::wstring& name, std::int64_t seconds) {
        return name + L";;" + std::to_wstring(seconds);
    }
    static void StoreEntries(const Texts& entries) {
        WriteRegistryValue(kRefreshTimesKey, kRefreshTimesValue, entries);
    }
    static Texts StoredEntries() {
        return std::get<Texts>(ReadRegistryValue(kRefreshTimesKey, kRefreshTimesValue));
    }
    static bool HasEntries() { return ReadRegistryValues(kRefreshTimesKey).contains(kRefreshTimesValue); }

    /// The entry is the one of "Clearing" and was written between these two times.
    static void ExpectFreshEntry(const std::wstring& entry, std::int64_t earliest, std::int64_t latest) {
        const std::size_t separator = entry.find(L";;");
        ASSERT_NE(separator, std::wstring::npos) << Utf8(entry);
        EXPECT_EQ(Utf8(entry.substr(0, separator)), "Clearing");
        const std::int64_t seconds = std::stoll(entry.substr(separator + 2));
        EXPECT_GE(seconds, earliest);
        EXPECT_LE(seconds, latest);
    }

    void ExpectWarning(const std::wstring& diagnosis) const {
        ExpectWarningBox(Window(), L"Warning:",
                         ProviderReport(L"Connetion to CRL distribution point", L"0xE0700050",
                                        L"The distribution point does not answer", L"\r\n\r\n" + diagnosis));
    }
};

TEST_F(RevocationListsTest, AreLoadedTheFirstTimeAndTheTimeIsStored) {
    StartHost();
    EXPECT_FALSE(HasEntries());
    const std::int64_t before = Now();
    OpenAndCancel();
    EXPECT_EQ(Calls("Ctrl"), std::vector<std::string>{"Ctrl context=1 code=4 capacity=1024 zero -> 0"});
    ASSERT_EQ(StoredEntries().size(), 1U);
    ExpectFreshEntry(StoredEntries()[0], before, Now());
}

TEST_F(RevocationListsTest, AreNotLoadedAgainWithinThePeriod) {
    const Texts entries = {Entry(L"Clearing", Now() - 23 * kHour)};
    StoreEntries(entries);
    StartHost();
    OpenAndCancel();
    EXPECT_TRUE(Calls("Ctrl").empty());
    EXPECT_EQ(StoredEntries(), entries);
}

TEST_F(RevocationListsTest, AreLoadedAgainAfterThePeriodAndReplaceTheirEntry) {
    const std::wstring first = Entry(L"Archive", 17);
    const std::wstring last = Entry(L"Clearing2", 4);
    StoreEntries({first, Entry(L"Clearing", Now() - 24 * kHour), last});
    StartHost();
    const std::int64_t before = Now();
    OpenAndCancel();
    EXPECT_EQ(Calls("Ctrl").size(), 1U);
    const Texts stored = StoredEntries();
    ASSERT_EQ(stored.size(), 3U);
    EXPECT_EQ(stored[0], first);
    ExpectFreshEntry(stored[1], before, Now());
    EXPECT_EQ(stored[2], last);
}

TEST_F(RevocationListsTest, AreAppendedBehindTheEntriesOfOthers) {
    const Texts others = {Entry(L"clearing", Now()), L"Clearing", L"Archive;;5"};
    StoreEntries(others);
    StartHost();
    const std::int64_t before = Now();
    OpenAndCancel();
    const Texts stored = StoredEntries();
    ASSERT_EQ(stored.size(), 4U);
    EXPECT_EQ(Texts(stored.begin(), stored.begin() + 3), others);
    ExpectFreshEntry(stored[3], before, Now());
}

TEST_F(RevocationListsTest, AreNotLoadedWithAPeriodBelowOneHour) {
    setup.csProfile.crlUpdatePeriod = 0;
    StartHost();
    OpenAndCancel();
    EXPECT_TRUE(Calls("Ctrl").empty());
    EXPECT_FALSE(HasEntries());
}

TEST_F(RevocationListsTest, AreNotLoadedWhereTheCsProfileDoesWithout) {
    CheckNothing();
    setup.csProfile.crlUpdatePeriod = 24;
    StartHost();
    OpenAndCancel();
    EXPECT_TRUE(Calls("Ctrl").empty());
    EXPECT_FALSE(HasEntries());
}

TEST_F(RevocationListsTest, FailWithoutAWordWhereTheLibrarySaysNothing) {
    script.Status("Ctrl", 1, 0xE0700050);
    StartHost();
    const std::int64_t before = Now();
    OpenAndCancel();
    ExpectFreshEntry(StoredEntries().at(0), before, Now());
}

TEST_F(RevocationListsTest, AreNoFailureWhateverTheLibrarySays) {
    script.ControlText("two lists loaded");
    StartHost();
    OpenAndCancel();
    EXPECT_EQ(Calls("Ctrl").size(), 1U);
}

TEST_F(RevocationListsTest, FailAndAreDoneWithout) {
    script.Status("Ctrl", 1, 0xE0700050);
    script.ControlText("http://crl.example/a.crl: no answer\r\nhttp://crl.example/b.crl: no answer");
    script.Error(1, "not shown", "not shown", 1, "not shown");
    StartHost();
    const std::int64_t before = Now();
    PressOpen();
    ExpectWarning(L"http://crl.example/a.crl: no answer\r\nhttp://crl.example/b.crl: no answer");
    ExpectMessageBox(Main(), kQuestion, kBoxContinue, IDOK);
    static_cast<void>(WaitForDialogOf(Main()));
    EXPECT_TRUE(Calls("GetErrorLineEx").empty()) << "the error stack has no part in this message";
    // Stored after the failure too, so that the next try comes after a whole period.
    ExpectFreshEntry(StoredEntries().at(0), before, Now());
}

TEST_F(RevocationListsTest, FailAndTheUserStops) {
    script.Status("Ctrl", 1, 0xE0700050);
    script.ControlText("no answer");
    StartHost();
    const std::int64_t before = Now();
    PressOpen();
    ExpectWarning(L"no answer");
    ExpectMessageBox(Main(), kQuestion, kBoxContinue, IDCANCEL);
    EXPECT_EQ(Result(), HostCancelled(1));
    EXPECT_EQ(Calls("Uninitialize"), std::vector<std::string>{"Uninitialize context=1 -> 0"});
    ExpectNothingOut();
    ExpectFreshEntry(StoredEntries().at(0), before, Now());
}

TEST_F(RevocationListsTest, FailWithADiagnosisThatFillsTheBuffer) {
    script.Status("Ctrl", 1, 0xE0700050);
    script.ControlText(std::string(2000, 'x'));
    StartHost();
    PressOpen();
    ExpectWarning(std::wstring(1024, L'x'));
    ExpectMessageBox(Main(), kQuestion, kBoxContinue, IDCANCEL);
    EXPECT_EQ(Result(), HostCancelled(1));
}

TEST_F(RevocationListsTest, FailWithADiagnosisInTheCodePage) {
    const std::string bytes = "\xCD\xE5\xF2 \x98\x81";
    script.Status("Ctrl", 1, 0xE0700050);
    script.ControlText(bytes);
    StartHost();
    PressOpen();
    ExpectWarning(FromCodePage(bytes));
    ExpectMessageBox(Main(), kQuestion, kBoxContinue, IDCANCEL);
    EXPECT_EQ(Result(), HostCancelled(1));
}

TEST_F(RevocationListsTest, AreStoppedByAUserWhoIsToldThatClosingFailed) {
    script.Status("Ctrl", 1, 0xE0700050);
    script.ControlText("no answer");
    script.Status("Uninitialize", 1, 0xFFFFFFFF);
    StartHost();
    PressOpen();
    ExpectWarning(L"no answer");
    ExpectMessageBox(Main(), kQuestion, kBoxContinue, IDCANCEL);
    ExpectMessageBox(Main(), std::wstring(kClosingOperation) + L".\r\nError 0xFFFFFFFF - Bad parameter.",
                     kBoxReport, IDOK);
    EXPECT_EQ(Result(), HostCancelled(1));
}

TEST_F(RevocationListsTest, ReportAValueOfAnotherTypeAndStoreTheTimeInIt) {
    WriteRegistryValue(kRefreshTimesKey, kRefreshTimesValue, std::uint32_t{7});
    StartHost();
    const std::int64_t before = Now();
    PressOpen();
    WaitForMessageBox(Main()).Answer(IDOK);
    static_cast<void>(WaitForDialogOf(Main()));
    ASSERT_EQ(StoredEntries().size(), 1U);
    ExpectFreshEntry(StoredEntries()[0], before, Now());
}

TEST_F(RevocationListsTest, AreNotLoadedWithoutTheKeyOfTheProgram) {
    DeleteRegistryKey(kRefreshTimesKey);
    StartHost();
    PressOpen();
    ExpectMessageBox(Main(),
                     ReportText(L"Create (open) register key HKEY_CURRENT_USER\\SOFTWARE\\HOLVAN\\tarntray",
                                ERROR_FILE_NOT_FOUND),
                     kBoxReport, IDOK);
    EXPECT_EQ(Result(), HostCancelled(1));
    EXPECT_EQ(MainCalls(Calls()),
              (std::vector<std::string>{"Initialize name=\"Clearing\" flags=80000044 -> 0",
                                        "Uninitialize context=1 -> 0"}));
}

TEST_F(RevocationListsTest, ComeAfterTheNetworkStore) {
    setup.csProfile.notUseDirectory = 0;
    StartHost();
    OpenAndCancel();
    EXPECT_EQ(MainCalls(Calls()),
              (std::vector<std::string>{
                  "Initialize name=\"Clearing\" flags=80000040 -> 0", kLastSearchOfCheck + std::string("0"),
                  "FreeFindResult context=1 count=0 -> 0", "Ctrl context=1 code=4 capacity=1024 zero -> 0"}));
}

TEST_F(RevocationListsTest, AreLoadedForSignerListsToo) {
    setup.dialog = HostSetup::Dialog::kSignerLists;
    script.Status("Ctrl", 1, 0xE0700050);
    script.ControlText("no answer");
    StartHost();
    const Window lists = OpenDialog();
    lists.Control(IDC_SIGNER_LISTS_ADD_BUTTON).PostClick();
    ExpectWarning(L"no answer");
    ExpectMessageBox(lists, kQuestion, kBoxContinue, IDOK);
    static_cast<void>(WaitForDialogOf(lists));
}

}  // namespace
}  // namespace corvane::test
