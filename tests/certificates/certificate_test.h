#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "tests/certificates/host_setup.h"
#include "tests/certificates/library_script_writer.h"
#include "tests/driver/list_view.h"
#include "tests/driver/message_box.h"
#include "tests/driver/program.h"
#include "tests/driver/registry.h"

namespace corvane::test {

inline constexpr wchar_t kProgramTitle[] = L"QENT AC Velmaris - configuration";
inline constexpr unsigned kBoxRefusal = 0x30;
inline constexpr unsigned kBoxContinue = 0x31;
inline constexpr unsigned kBoxQuestion = 0x134;
inline constexpr unsigned kBoxReport = 0x10;
inline constexpr unsigned kBoxInformation = 0x40;

/// A folder among the temporary ones, gone with everything in it when this object goes.
class FolderOfTest {
  public:
    FolderOfTest();
    ~FolderOfTest();
    FolderOfTest(const FolderOfTest&) = delete;
    FolderOfTest& operator=(const FolderOfTest&) = delete;
    FolderOfTest(FolderOfTest&&) = delete;
    FolderOfTest& operator=(FolderOfTest&&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

  private:
    std::filesystem::path path_;
};

/// A test of the certificate dialogs: a folder of its own with a program and a provider library in it, and a
/// registry of its own. The program is the host, which shows one dialog at the press of a button, or the
/// editor itself.
class CertificateTest : public ::testing::Test {
  public:
    enum class Library {
        kScriptable,  ///< Does what `script` says.
        kIncomplete,  ///< The scriptable one without XSIG_GetErrorLineEx.
        kStandIn,     ///< The stand-in, with the made certificates.
        kNone,
    };

    /// What the library does, and what the host shows; to be filled in before the start.
    LibraryScriptWriter script;
    HostSetup setup;

  protected:
    CertificateTest();

    /// Puts library, script and setup into the folder, starts the host there and waits for its window. The
    /// CS profile of the setup, "Clearing" unless told, is in the provider's catalogue.
    void StartHost(Library library = Library::kScriptable);
    /// The same with the editor, on the configuration that the test has written to the registry.
    void StartEditor(Library library = Library::kScriptable);
    /// Puts another library, or the script as it is now, into the folder. One that the program has loaded
    /// stays as it is.
    void InstallLibrary(Library library);

    [[nodiscard]] const driver::Program& Program() const { return *program_; }
    [[nodiscard]] const driver::Window& Main() const { return main_; }
    /// The folder with everything in it, ending in a backslash.
    [[nodiscard]] std::wstring Folder() const { return folder_.Path().wstring() + L"\\"; }

    /// Presses the host's button and comes back at once.
    void PressOpen() const;
    /// Presses the host's button and waits for the dialog that comes after the wait window.
    [[nodiscard]] driver::Window OpenDialog() const;
    /// Waits for a dialog of `owner` that can be confirmed, and until it is ready for input. The wait window,
    /// which may have that owner too, is none; a message box or a warning box in its place is a failure.
    [[nodiscard]] driver::Window WaitForDialogOf(const driver::Window& owner) const;
    /// Waits for the end of what PressOpen began and gives what came of it (see HostResult).
    [[nodiscard]] std::wstring Result() const;
    /// Comes back when a dialog has handled everything that was posted to it so far; one without a list view,
    /// when it answers.
    static void Settle(const driver::Window& dialog);

    /// The calls that have reached the scriptable library, "FUNCTION arguments -> status", as
    /// scriptable/scriptable_library.h writes them; those of one function where one is named.
    [[nodiscard]] std::vector<std::string> Calls(const std::string& function = "") const;
    /// Ends the program and throws the log of its calls away, for another start.
    void ForgetCalls();
    /// What the scriptable library has handed out and not got back, after its last call, and how many
    /// calls were wrong: "contexts=0 results=0 texts=0 wrong=0".
    [[nodiscard]] std::string Out() const;
    /// Everything went back exactly once, and no context is open.
    void ExpectNothingOut() const { EXPECT_EQ(Out(), "contexts=0 results=0 texts=0 wrong=0"); }

    /// Waits for a message box of `owner`, while other windows of it may still be closing.
    [[nodiscard]] driver::MessageBoxWindow WaitForMessageBox(const driver::Window& owner) const;
    /// Waits for a message box of `owner`, compares all of it and answers it.
    void ExpectMessageBox(const driver::Window& owner, const std::wstring& text, unsigned style, int answer,
                          const std::wstring& title = kProgramTitle) const;
    /// Waits for a warning box of `owner` (none: an empty Window), compares caption and text, and closes it.
    void ExpectWarningBox(const driver::Window& owner, const std::wstring& title,
                          const std::wstring& text) const;
    /// Waits for it and leaves it open.
    [[nodiscard]] driver::Window WaitForWarningBox(const driver::Window& owner) const;

  private:
    void Start(const std::wstring& programVariable, const wchar_t* programFile, Library library);

    driver::RegistryOfTest registry_;
    FolderOfTest folder_;
    // Ended before the folder goes: it holds its own file and the library's.
    std::optional<driver::Program> program_;
    driver::Window main_;
};

/// A text in the code page of the test, as scripts and the library have it.
[[nodiscard]] std::string ToCodePage(const std::wstring& text);
/// The same, back.
[[nodiscard]] std::wstring FromCodePage(const std::string& bytes);

}  // namespace corvane::test
