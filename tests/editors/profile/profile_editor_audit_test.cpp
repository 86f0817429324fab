#include "tests/kit/audit/dialog_audit.h"
#include "tests/kit/audit/picture.h"
#include "tests/kit/driver/failure.h"
#include "tests/kit/fixtures/profile_editor_fixture.h"

namespace corvane::test {
namespace {

class ProfileEditorAudit : public ProfileEditorTest {
  protected:
    static void ExpectSound(const Window& dialog, const std::string& name) {
        dialog.Send(WM_NULL);
        KeepPicture(dialog, name);
        for (const std::wstring& fault : AllFaults(dialog)) {
            ADD_FAILURE() << Utf8(fault);
        }
    }
    /// Escape must do what "Exit" does.
    static void LeaveByEscape(const Window& dialog, const Window& owner) {
        dialog.FocusOfThread().PostKey(VK_ESCAPE);
        dialog.WaitUntilGone();
        owner.WaitUntilEnabled();
    }
};

TEST_F(ProfileEditorAudit, ANewProfile) {
    StartWithSample();
    const Window dialog = OpenNew();
    ExpectSound(dialog, "profile_editor_new");
    LeaveByEscape(dialog, Main());
}

TEST_F(ProfileEditorAudit, AProfileWithEverythingSet) {
    StartWithSample();
    const Window dialog = OpenCurrent();
    for (const int id :
         {IDC_PROFILE_USE_TSP_CHECK, IDC_PROFILE_VERIFY_TSP_CHECK, IDC_PROFILE_NO_TSP_ERROR_CHECK,
          IDC_PROFILE_VERIFY_REPORT_CHECK, IDC_PROFILE_RENAME_CHECK}) {
        PressIn(dialog, id);
    }
    dialog.Control(IDC_PROFILE_TSP_EDIT).SetText(L"http://time.example.org/stamp");
    dialog.Control(IDC_PROFILE_FREQUENCY_EDIT).SetText(L"8760");
    ExpectSound(dialog, "profile_editor");
    LeaveByEscape(dialog, Main());
}

TEST_F(ProfileEditorAudit, CsProfileWithALongName) {
    const std::wstring name = L"Directory of the second department, office 17";
    WriteCatalogue({name});
    WriteProfile(L"alpha", {name});
    Start();
    const Window dialog = OpenCurrent();
    ExpectSound(dialog, "profile_editor_long_name");
    LeaveByEscape(dialog, Main());
}

TEST_F(ProfileEditorAudit, CsProfileChoice) {
    StartWithSample();
    const Window dialog = OpenCurrent();
    const Window choice = OpenChoice(dialog);
    ExpectSound(choice, "cs_profile_choice");
    LeaveByEscape(choice, dialog);
    LeaveByEscape(dialog, Main());
}

TEST_F(ProfileEditorAudit, Configurations) {
    WriteSampleConfiguration();
    WriteRegistryValue(kProgramKey, L"ExtExt", Texts{L"docx", L"pdf", L"tar.gz", L"xml"});
    Start();
    Main().PostMenuCommand(IDM_CONFIGURATIONS);
    const Window dialog = Editor().WaitForDialog(Main());
    EXPECT_EQ(dialog.Control(IDC_CONFIG_ADDITIONAL_LIST).Send(LB_GETCOUNT), 4);
    ExpectSound(dialog, "configurations");
    LeaveByEscape(dialog, Main());
}

TEST_F(ProfileEditorAudit, ExtensionDialog) {
    StartWithSample();
    Main().PostMenuCommand(IDM_CONFIGURATIONS);
    const Window dialog = Editor().WaitForDialog(Main());
    dialog.Control(IDC_CONFIG_ADD_BUTTON).PostClick();
    const Window extension = Editor().WaitForDialog(dialog);
    ExpectSound(extension, "extension");
    LeaveByEscape(extension, dialog);
    LeaveByEscape(dialog, Main());
}

}  // namespace
}  // namespace corvane::test
