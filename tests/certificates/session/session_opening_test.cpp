#include <filesystem>

#include "tests/kit/fixtures/session_fixture.h"
#include "tests/kit/samples/stored_sample.h"
#include "toolkit/files/path_pickers.h"

namespace corvane::test {
namespace {

class OpeningTest : public SessionTest {
  protected:
    OpeningTest() { CheckNothing(); }

    /// Starts with a library whose Initialize fails, and compares the warning box.
    void ExpectFailure(std::uint32_t status, const std::wstring& text) {
        script.Status("Initialize", 1, status);
        StartHost();
        PressOpen();
        ExpectWarningBox(Main(), L"Warning:", text);
        EXPECT_EQ(Result(), HostCancelled(1));
        // What failed to open is not closed, and nothing else is asked of the library.
        EXPECT_EQ(MainCalls(Calls()).size(), 1U);
        ExpectNothingOut();
    }
};

TEST_F(OpeningTest, PassesTheFlagsOfTheSettings) {
    for (unsigned combination = 0; combination < 16; ++combination) {
        const bool notCopyToLocal = (combination & 1) != 0;
        const bool useAuthorityAccess = (combination & 2) != 0;
        const bool notUseDirectory = (combination & 4) != 0;
        const bool notLoadCrl = (combination & 8) != 0;
        setup.csProfile.notCopyToLocal = notCopyToLocal ? 1 : 0;
        setup.csProfile.useAuthorityAccess = useAuthorityAccess ? 1 : 0;
        setup.csProfile.notUseDirectory = notUseDirectory ? 1 : 0;
        setup.csProfile.notLoadCrl = notLoadCrl ? 1 : 0;
        const unsigned flags = (notCopyToLocal ? 0x80000060 : 0x80000040) | (useAuthorityAccess ? 0x400 : 0) |
                               (notUseDirectory ? 4 : 0) | (notLoadCrl ? 1 : 0);
        char expected[80];
        std::snprintf(expected, sizeof expected, "Initialize name=\"Clearing\" flags=%X -> E0700010", flags);

        script.Status("Initialize", LibraryScriptWriter::kEvery, 0xE0700010);
        ForgetCalls();
        StartHost();
        PressOpen();
        WaitForWarningBox(Main()).Control(IDCANCEL).PostClick();
        EXPECT_EQ(Result(), HostCancelled(1));
        EXPECT_EQ(Calls("Initialize"), std::vector<std::string>{expected}) << "combination " << combination;
    }
}

TEST_F(OpeningTest, PassesTheSameFlagsForSignerLists) {
    setup.dialog = HostSetup::Dialog::kSignerLists;
    setup.csProfile.notCopyToLocal = 1;
    setup.csProfile.useAuthorityAccess = 1;
    StartHost();
    const Window lists = OpenDialog();
    lists.Control(IDC_SIGNER_LISTS_ADD_BUTTON).PostClick();
    static_cast<void>(WaitForDialogOf(lists));
    EXPECT_EQ(MainCalls(Calls()),
              std::vector<std::string>{"Initialize name=\"Clearing\" flags=80000465 -> 0"});
}

TEST_F(OpeningTest, PassesTheNameInTheCodePage) {
    setup.csProfile.name = L"caf\u00E9 \u0416";
    StartHost();
    OpenAndCancel();
    const std::string name = Escaped(ToCodePage(setup.csProfile.name));
    EXPECT_EQ(Calls("Initialize"),
              std::vector<std::string>{"Initialize name=\"" + name + "\" flags=80000045 -> 0"});
}

TEST_F(OpeningTest, ShowsAProviderStatusWithTheStackOfNoContext) {
    script.ErrorText(0xE0700010, "The CS profile does not exist");
    script.Error(0, "no such profile", "init.c", 12, "Clearing");
    script.Error(0, "key not found", std::nullopt, 0, "");
    ExpectFailure(0xE0700010,
                  ProviderReport(kOpeningOperation, L"0xE0700010", L"The CS profile does not exist",
                                 L"\r\n\r\n"
                                 L"XSIG stek, error number 1\r\n"
                                 L"Error: no such profile\r\nFile: init.c\r\nData: Clearing\r\n"
                                 L"XSIG stek, error number 2\r\n"
                                 L"Error: key not found\r\nFile: \r\nData: \r\n"));
    EXPECT_EQ(Calls("GetErrorLineEx"),
              (std::vector<std::string>{"GetErrorLineEx context=0 -> 0", "GetErrorLineEx context=0 -> 0",
                                        "GetErrorLineEx context=0 -> 1"}));
    // Three texts and two; a null pointer is nothing to release.
    EXPECT_EQ(Calls("FreeMem"), std::vector<std::string>(5, "FreeMem context=0 -> 0"));
    EXPECT_EQ(Calls("GetErrorText"),
              std::vector<std::string>{"GetErrorText status=E0700010 capacity=1024 -> 1"});
}

TEST_F(OpeningTest, AddsNothingForAnEmptyStack) {
    script.ErrorText(0xE0000005, "Access to the key is denied");
    ExpectFailure(0xE0000005, ProviderReport(kOpeningOperation, L"0xE0000005", L"Access to the key is denied",
                                             L"\r\n\r\n"));
}

TEST_F(OpeningTest, ShowsASystemStatusInTheSystemsWords) {
    ExpectFailure(0x80070005, ReportText(kOpeningOperation, 0x80070005, L"\r\n\r\n"));
}

TEST_F(OpeningTest, ShowsASmallSystemCode) {
    ExpectFailure(2, ReportText(kOpeningOperation, 2, L"\r\n\r\n"));
}

TEST_F(OpeningTest, ShowsTheBadParameterStatus) {
    ExpectFailure(0xFFFFFFFF,
                  std::wstring(kOpeningOperation) + L".\r\nError 0xFFFFFFFF - Bad parameter.\r\n\r\n");
}

TEST_F(OpeningTest, ShowsAProviderStatusWithoutDescription) {
    ExpectFailure(0xE0700099, ProviderReport(kOpeningOperation, L"0xE0700099", L"Error description not found",
                                             L"\r\n\r\n"));
}

TEST_F(OpeningTest, ShowsBytesOutsideTheCodePage) {
    const std::string bytes = "\x81\x98\xFF\x01|";
    script.ErrorText(0xE0700010, "text");
    script.Error(0, bytes, "", 0, "");
    ExpectFailure(0xE0700010, ProviderReport(kOpeningOperation, L"0xE0700010", L"text",
                                             L"\r\n\r\nXSIG stek, error number 1\r\nError: " +
                                                 FromCodePage(bytes) + L"\r\nFile: \r\nData: \r\n"));
}

TEST_F(OpeningTest, ShowsAStackOfAThousandEntries) {
    script.ErrorText(0xE0700010, "text");
    std::wstring stack = L"\r\n\r\n";
    for (int i = 1; i <= 1000; ++i) {
        const std::string number = std::to_string(i);
        script.Error(0, "error " + number, "file.c", 1, "data");
        const std::wstring wideNumber = std::to_wstring(i);
        stack += L"XSIG stek, error number " + wideNumber;
        stack += L"\r\nError: error " + wideNumber;
        stack += L"\r\nFile: file.c\r\nData: data\r\n";
    }
    ExpectFailure(0xE0700010, ProviderReport(kOpeningOperation, L"0xE0700010", L"text", stack));
    EXPECT_EQ(Calls("GetErrorLineEx").size(), 1001U);
    EXPECT_EQ(Calls("FreeMem").size(), 3000U);
}

TEST_F(OpeningTest, GoesOnAfterAFailure) {
    script.Status("Initialize", 1, 0xE0700010);
    StartHost();
    PressOpen();
    WaitForWarningBox(Main()).Control(IDCANCEL).PostClick();
    EXPECT_EQ(Result(), HostCancelled(1));
    EXPECT_EQ(Leave(OpenDialog(), IDCANCEL), HostCancelled(2));
}

TEST_F(OpeningTest, ReportsAMissingLibraryOncePerAttempt) {
    StartHost(Library::kNone);
    for (int run = 1; run <= 2; ++run) {
        PressOpen();
        ExpectMessageBox(Main(),
                         ReportText(L"Loading crypto provider library (tarn1.dll)", ERROR_MOD_NOT_FOUND),
                         kBoxReport, IDOK);
        EXPECT_EQ(Result(), HostCancelled(run));
    }
    // One that is installed meanwhile is found without a new start.
    InstallLibrary(Library::kScriptable);
    EXPECT_EQ(Leave(OpenDialog(), IDCANCEL), HostCancelled(3));
}

TEST_F(OpeningTest, ReportsAMissingFunctionByItsName) {
    StartHost(Library::kIncomplete);
    PressOpen();
    ExpectMessageBox(
        Main(), ReportText(L"Loading crypto provider library (XSIG_GetErrorLineEx)", ERROR_PROC_NOT_FOUND),
        kBoxReport, IDOK);
    EXPECT_EQ(Result(), HostCancelled(1));
    EXPECT_EQ(Calls(), std::vector<std::string>{"Unload -> 0"}) << "not called, and let go";
    // It is not held on to: it can be replaced while the program runs.
    InstallLibrary(Library::kScriptable);
    EXPECT_EQ(Leave(OpenDialog(), IDCANCEL), HostCancelled(2));
}

/// The library, in a folder of its own beside that of the program.
class ElsewhereTest : public OpeningTest {
  protected:
    ElsewhereTest() : folder_(std::filesystem::path(Folder()) / L"elsewhere") {
        std::filesystem::create_directory(folder_);
        InstallLibrary(Library::kScriptable);
        for (const std::filesystem::path file : {L"tarn1.dll", kLibraryScriptFile}) {
            std::filesystem::rename(std::filesystem::path(Folder()) / file, folder_ / file);
        }
    }
    [[nodiscard]] const std::filesystem::path& Elsewhere() const { return folder_; }

  private:
    std::filesystem::path folder_;
};

TEST_F(ElsewhereTest, IsFoundOnTheSearchPath) {
    std::wstring former(GetEnvironmentVariableW(L"PATH", nullptr, 0), L'\0');
    former.resize(GetEnvironmentVariableW(L"PATH", former.data(), static_cast<DWORD>(former.size())));
    SetEnvironmentVariableW(L"PATH", (former + L";" + Elsewhere().wstring()).c_str());
    StartHost(Library::kNone);
    SetEnvironmentVariableW(L"PATH", former.c_str());
    EXPECT_EQ(Leave(OpenDialog(), IDCANCEL), HostCancelled(1));
}

TEST_F(ElsewhereTest, IsNeverTakenByTheEditorFromTheCurrentFolder) {
    WriteCatalogue({L"CS one"});
    WriteProfile(L"alpha", {L"CS one"});
    {
        const toolkit::KeptCurrentFolder ofTheTests;
        std::filesystem::current_path(Elsewhere());
        StartEditor(Library::kNone);
    }
    Main().Control(IDC_ADD_RULE_BUTTON).PostClick();
    const Window editor = WaitForDialogOf(Main());
    editor.Control(IDC_RULE_CERT_BUTTON).PostClick();
    ExpectMessageBox(editor, ReportText(L"Loading crypto provider library (tarn1.dll)", ERROR_MOD_NOT_FOUND),
                     kBoxReport, IDOK);
}

TEST_F(OpeningTest, ReportsToTheSignerListsDialog) {
    setup.dialog = HostSetup::Dialog::kSignerLists;
    StartHost(Library::kNone);
    const Window lists = OpenDialog();
    lists.Control(IDC_SIGNER_LISTS_ADD_BUTTON).PostClick();
    ExpectMessageBox(lists, ReportText(L"Loading crypto provider library (tarn1.dll)", ERROR_MOD_NOT_FOUND),
                     kBoxReport, IDOK);
    lists.WaitUntilEnabled();
    EXPECT_EQ(Leave(lists, IDOK), HostResult(1, std::vector<store::SignerGroup>{}));
}

}  // namespace
}  // namespace corvane::test
