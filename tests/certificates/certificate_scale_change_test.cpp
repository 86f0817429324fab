// The certificate dialogs come to a screen of another scale while they are open, and back.

#include "tests/kit/audit/scale_change_audit.h"
#include "tests/kit/fixtures/selection_fixture.h"
#include "tests/kit/fixtures/session_fixture.h"
#include "tests/kit/scriptable_library/held_call.h"

namespace corvane::test {
namespace {

constexpr wchar_t kAnn[] = L"CN=Ann,C=GB";
constexpr wchar_t kBob[] = L"CN=Bob,C=GB";

class CertificateScaleChange : public SelectionTest {};

TEST_F(CertificateScaleChange, Selection) {
    script.Certificate(LibraryScriptWriter::kEvery, "CN=Ann,C=GB");
    script.Certificate(LibraryScriptWriter::kEvery, "CN=Bob,C=GB");
    OpenRecipients({kAnn, kBob});
    Press(IDC_SELECTION_FROM_STORE_BUTTON);
    Check(Found(), {1});
    Check(Chosen(), {0});
    ExpectScaleChangesKeepResizablePlaces(Dialog(), "recipients");
    EXPECT_TRUE(Found().IsChecked(1));
    EXPECT_FALSE(Found().IsChecked(0));
    EXPECT_TRUE(Chosen().IsChecked(0));
}

TEST_F(CertificateScaleChange, SelectionOfSigners) {
    OpenFirstList({{L"Board", {kAnn}}});
    ExpectScaleChangesKeepResizablePlaces(Dialog(), "signers");
}

TEST_F(CertificateScaleChange, Filter) {
    OpenRecipients();
    Control(IDC_SELECTION_FROM_NCS_BUTTON).PostClick();
    ExpectScaleChangesKeepPlaces(Program().WaitForDialog(Dialog()), "filter");
}

TEST_F(CertificateScaleChange, SignerLists) {
    setup.dialog = HostSetup::Dialog::kSignerLists;
    setup.csProfile.notUseDirectory = 1;
    setup.csProfile.notLoadCrl = 1;
    setup.lists = {{L"Directors", {kAnn, kBob}}, {L"Auditors", {kAnn}}};
    StartHost();
    ExpectScaleChangesKeepResizablePlaces(OpenDialog(), "signer_lists");
}

class WaitWindowScaleChange : public SessionTest {};

TEST_F(WaitWindowScaleChange, WaitWindow) {
    CheckNothing();
    setup.dialog = HostSetup::Dialog::kWaitWindow;
    StartHost();
    PressOpen();
    EXPECT_EQ(Result(), HostCancelled(1));
    ExpectScaleChangesKeepPlaces(WaitForWaitWindow(Program()), "wait_window");
}

}  // namespace
}  // namespace corvane::test
