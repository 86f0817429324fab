// The picture of the wait window, which needs a library that takes its time.

#include <windows.h>

#include "res/ids.h"
#include "tests/kit/audit/picture.h"
#include "tests/kit/driver/waiting.h"
#include "tests/kit/fixtures/certificate_fixture.h"
#include "tests/kit/samples/worked_example.h"
#include "tests/kit/scriptable_library/held_call.h"

namespace corvane::test {
namespace {

class WaitWindowPicture : public CertificateTest {
  protected:
    /// The busy program's window may reach the screen a little later than the program has painted it.
    static void WaitForText(const Window& text) {
        const COLORREF colour = GetSysColor(COLOR_WINDOWTEXT);
        EXPECT_TRUE(WaitUntil([&] {
            const RECT place = text.Bounds();
            for (LONG y = place.top; y < place.bottom; ++y) {
                for (LONG x = place.left; x < place.right; ++x) {
                    if (ScreenColour({x, y}) == colour) {
                        return true;
                    }
                }
            }
            return false;
        })) << "the text is not on the screen";
    }
};

TEST_F(WaitWindowPicture, IsTakenWhileTheLibraryIsAtWork) {
    HeldCall held(script, "Initialize", 1);
    script.Status("Initialize", 1, 0xE0700010);
    ImportWorkedExample();
    StartEditor();
    Main().Control(IDC_ADD_RULE_BUTTON).PostClick();
    const Window ruleEditor = Program().WaitForDialog(Main());
    ruleEditor.Control(IDC_RULE_CERT_BUTTON).PostClick();
    const Window wait = WaitForWaitWindow(Program());
    WaitForText(wait.Control(IDC_WAIT_TEXT));
    KeepPictureAsPainted(wait, "wait");
    held.Release();
    wait.WaitUntilGone();
    const Window refusal = WaitForWarningBox(ruleEditor);
    refusal.Control(IDCANCEL).PostClick();
    refusal.WaitUntilGone();
}

}  // namespace
}  // namespace corvane::test
