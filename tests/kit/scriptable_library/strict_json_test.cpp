// What the scriptable library, its host and the tests hand one another: nothing in it is passed over.
#include "tests/kit/scriptable_library/strict_json.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "tests/kit/scriptable_library/call_log.h"
#include "tests/kit/scriptable_library/host_setup.h"
#include "tests/kit/scriptable_library/library_script_writer.h"

namespace corvane::test {
namespace {

/// A folder of each test's own, gone afterwards.
class StrictJson : public ::testing::Test {
  protected:
    StrictJson()
        : folder_(std::filesystem::temp_directory_path() /
                  ("strict_json_" + std::to_string(GetCurrentProcessId()))) {
        std::filesystem::create_directories(folder_);
    }

  public:
    ~StrictJson() override { std::filesystem::remove_all(folder_); }
    StrictJson(const StrictJson&) = delete;
    StrictJson& operator=(const StrictJson&) = delete;
    StrictJson(StrictJson&&) = delete;
    StrictJson& operator=(StrictJson&&) = delete;

  protected:
    [[nodiscard]] const std::filesystem::path& Folder() const { return folder_; }
    [[nodiscard]] std::filesystem::path File() const { return folder_ / "file.json"; }
    [[nodiscard]] nlohmann::json WrittenScript() const {
        LibraryScriptWriter script;
        script.Status("FindCert", 2, 0xE0700005);
        script.Hold("Initialize", 1, "event");
        script.ErrorText(5, "Text");
        script.Error(1, "Text", std::nullopt, 7, "Data");
        script.Certificate(1, "CN=A");
        WriteLibraryScript(script.Script(), File());
        return ReadJson(File());
    }
    void ExpectRefusedScript(const nlohmann::json& script, const std::string& what) const {
        WriteJson(script, File());
        EXPECT_THROW(static_cast<void>(ReadLibraryScript(File())), std::exception) << what;
    }

  private:
    std::filesystem::path folder_;
};

TEST_F(StrictJson, AScriptIsReadAsItWasWritten) {
    LibraryScriptWriter script;
    script.Status("FindCert", 2, 0xE0700005);
    script.Hold("Initialize", 1, "first");
    script.Pump("Ctrl", 0, "second");
    script.ErrorText(0xE0700005, "\xCF\xF0\xE8 \"mark\" \\");
    script.Error(1, "Text", std::nullopt, 7, "");
    script.ControlText("time");
    script.Certificate(1, "CN=A", 0x0C, std::nullopt, std::string("\x00\x80\xFF", 3));
    script.CertificateFor("CN=\xFF", std::nullopt);
    script.NothingFor("O=*");
    WriteLibraryScript(script.Script(), File());
    const LibraryScript read = ReadLibraryScript(File());

    EXPECT_EQ(read.statuses.at({"FindCert", 2}), 0xE0700005);
    EXPECT_EQ(read.holds.at({"Initialize", 1}).eventName, "first");
    EXPECT_FALSE(read.holds.at({"Initialize", 1}).handlesMessages);
    EXPECT_TRUE(read.holds.at({"Ctrl", 0}).handlesMessages);
    EXPECT_EQ(read.errorTexts.at(0xE0700005), "\xCF\xF0\xE8 \"mark\" \\");
    const ScriptError& error = read.errorStacks.at(1).at(0);
    EXPECT_EQ(error.text, "Text");
    EXPECT_EQ(error.file, std::nullopt);
    EXPECT_EQ(error.line, 7U);
    EXPECT_EQ(error.data, "");
    EXPECT_EQ(read.controlText, "time");
    const ScriptCertificate& certificate = read.searches.at("1").at(0);
    EXPECT_EQ(certificate.owner, "CN=A");
    EXPECT_EQ(certificate.usage, 0x0C);
    EXPECT_EQ(certificate.issuer, std::nullopt);
    EXPECT_EQ(certificate.serial, std::string("\x00\x80\xFF", 3));
    EXPECT_EQ(read.searches.at("=CN=\xFF").at(0).owner, std::nullopt);
    EXPECT_TRUE(read.searches.at("=O=*").empty());
}

TEST_F(StrictJson, AScriptWithAMemberThatIsNotKnownIsRefused) {
    nlohmann::json script = WrittenScript();
    script["surprise"] = 1;
    ExpectRefusedScript(script, "in the script itself");
    for (const char* list : {"statuses", "holds", "error_texts", "error_stacks", "searches"}) {
        script = WrittenScript();
        script[list][0]["surprise"] = 1;
        ExpectRefusedScript(script, list);
    }
    script = WrittenScript();
    script["error_stacks"][0]["errors"][0]["surprise"] = 1;
    ExpectRefusedScript(script, "in an error");
    script = WrittenScript();
    script["searches"][0]["certificates"][0]["surprise"] = 1;
    ExpectRefusedScript(script, "in a certificate");
}

TEST_F(StrictJson, AScriptThatLacksAMemberIsRefused) {
    const nlohmann::json written = WrittenScript();
    for (const auto& [name, member] : written.items()) {
        nlohmann::json script = written;
        script.erase(name);
        ExpectRefusedScript(script, name);
    }
}

TEST_F(StrictJson, AScriptThatIsNoJsonIsRefused) {
    std::ofstream(File()) << "status FindCert 2 5\n";
    EXPECT_THROW(static_cast<void>(ReadLibraryScript(File())), std::exception);
}

TEST_F(StrictJson, AMissingScriptIsAnEmptyOne) {
    EXPECT_TRUE(ReadLibraryScript(File()).statuses.empty());
}

TEST_F(StrictJson, ASetupOfTheHostIsReadAsItWasWritten) {
    HostSetup setup;
    setup.dialog = HostSetup::Dialog::kSignerLists;
    setup.csProfile.name = L"\u041F\u0440\u0438";
    setup.csProfile.crlUpdatePeriod = 24;
    setup.recipients = {L"CN=A", L""};
    setup.lists = {{L"list", {L"CN=S"}}, {L"empty", {}}};
    WriteHostSetup(setup, File());
    const HostSetup read = ReadHostSetup(File());
    EXPECT_EQ(read.dialog, setup.dialog);
    EXPECT_EQ(read.csProfile.name, setup.csProfile.name);
    EXPECT_EQ(read.csProfile.crlUpdatePeriod, 24);
    EXPECT_EQ(read.recipients, setup.recipients);
    ASSERT_EQ(read.lists.size(), 2U);
    EXPECT_EQ(read.lists[0].name, L"list");
    EXPECT_EQ(read.lists[0].signers, store::TextList{L"CN=S"});
    EXPECT_TRUE(read.lists[1].signers.empty());
}

TEST_F(StrictJson, ASetupWithAMemberOrADialogThatIsNotKnownIsRefused) {
    HostSetup setup;
    setup.lists = {{L"list", {}}};
    WriteHostSetup(setup, File());
    const nlohmann::json written = ReadJson(File());
    for (const char* place : {"/surprise", "/flags/surprise", "/lists/0/surprise", "/dialog"}) {
        nlohmann::json changed = written;
        changed[nlohmann::json::json_pointer(place)] = "surprise";
        WriteJson(changed, File());
        EXPECT_THROW(static_cast<void>(ReadHostSetup(File())), std::exception) << place;
    }
}

TEST_F(StrictJson, ALogIsReadAsItWasWritten) {
    const CallLog log(Folder());
    log.Write({.function = "Initialize",
               .arguments = "name=\"A\"",
               .status = 5,
               .out = {.contexts = 1, .results = 2, .texts = 3, .wrong = 4}});
    log.Write({.function = "Unload", .arguments = {}, .out = {}});
    const std::vector<LoggedCall> calls = ReadCallLog(Folder());
    ASSERT_EQ(calls.size(), 2U);
    EXPECT_EQ(calls[0].arguments, "name=\"A\"");
    EXPECT_EQ(calls[0].status, 5U);
    EXPECT_EQ(calls[0].out.contexts, 1U);
    EXPECT_EQ(calls[0].out.results, 2U);
    EXPECT_EQ(calls[0].out.texts, 3U);
    EXPECT_EQ(calls[0].out.wrong, 4U);
    EXPECT_EQ(calls[1].function, "Unload");
}

TEST_F(StrictJson, ALineOfTheLogThatIsNoCallIsRefused) {
    CallLog(Folder()).WriteFailure("no script");
    EXPECT_THROW(static_cast<void>(ReadCallLog(Folder())), std::exception);
}

}  // namespace
}  // namespace corvane::test
