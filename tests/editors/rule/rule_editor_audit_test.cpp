#include "tests/kit/audit/dialog_audit.h"
#include "tests/kit/audit/picture.h"
#include "tests/kit/driver/failure.h"
#include "tests/kit/fixtures/rule_editor_fixture.h"

namespace corvane::test {
namespace {

class RuleEditorAudit : public RuleEditorTest {
  protected:
    static void ExpectSound(const Window& dialog, const std::string& name) {
        SettleEditor(dialog);
        ExpectSoundDialog(dialog, name);
    }
    static void ExpectSoundDialog(const Window& dialog, const std::string& name) {
        dialog.Send(WM_NULL);
        KeepPicture(dialog, name);
        for (const std::wstring& fault : AllFaults(dialog)) {
            ADD_FAILURE() << Utf8(fault);
        }
    }
    /// Opens a stored rule of each of these operations, which look alike, and keeps a picture of the first.
    void ExpectSoundLayout(const Texts& codes, const std::string& name) {
        StartAndOpenEach(codes, [&name](const Window& dialog) { ExpectSound(dialog, name); });
    }
    template <typename Look>
    void StartAndOpenEach(const Texts& codes, const Look& look) {
        const Window dialog = StartAndOpen(FullRule(codes.front()));
        look(dialog);
        for (const std::wstring& code : codes) {
            SelectOperation(dialog, code);
            SettleEditor(dialog);
            for (const std::wstring& fault : CutOffTexts(dialog)) {
                ADD_FAILURE() << Utf8(code) << ": " << Utf8(fault);
            }
        }
        dialog.FocusOfThread().PostKey(VK_ESCAPE);
        dialog.WaitUntilGone();
        WaitForMain();
    }
};

TEST_F(RuleEditorAudit, ANewRule) {
    StartWithRules({});
    const Window dialog = OpenNew();
    ExpectSound(dialog, "rule_editor_new");
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorAudit, Recipients) {
    ExpectSoundLayout({L"ENCR", L"LENC", L"SGEN"}, "rule_editor_encrypt");
}

TEST_F(RuleEditorAudit, ArchiverWithoutCertificates) {
    ExpectSoundLayout({L"DECR", L"LDEC"}, "rule_editor_decrypt");
}

TEST_F(RuleEditorAudit, OnlyTheCsProfile) {
    ExpectSoundLayout({L"HASH", L"SIGN", L"CDSG", L"DSIG", L"DELS"}, "rule_editor_hash");
}

TEST_F(RuleEditorAudit, OnlyFolders) {
    ExpectSoundLayout({L"B64E", L"B64D", L"UNPK"}, "rule_editor_encode");
}

TEST_F(RuleEditorAudit, Signers) {
    ExpectSoundLayout({L"CHCK", L"CHKX", L"DCHK"}, "rule_editor_verify");
}

TEST_F(RuleEditorAudit, SignersWithArchiver) {
    ExpectSoundLayout({L"DCCX"}, "rule_editor_decrypt_verify");
}

TEST_F(RuleEditorAudit, Move) {
    ExpectSoundLayout({L"MOVE"}, "rule_editor_move");
}

TEST_F(RuleEditorAudit, Delete) {
    ExpectSoundLayout({L"DELE"}, "rule_editor_delete");
}

TEST_F(RuleEditorAudit, Resign) {
    ExpectSoundLayout({L"RESG"}, "rule_editor_resign");
}

TEST_F(RuleEditorAudit, Archive) {
    ExpectSoundLayout({L"ARCH", L"UNAR"}, "rule_editor_archive");
}

TEST_F(RuleEditorAudit, Pack) {
    ExpectSoundLayout({L"PACK"}, "rule_editor_pack");
}

TEST_F(RuleEditorAudit, Execute) {
    ExpectSoundLayout({L"EXEC"}, "rule_editor_execute");
}

TEST_F(RuleEditorAudit, ManyMasks) {
    StoredRule rule = FullRule(L"HASH");
    rule.masks.assign(40, L"invoice_????_*.xml");
    const Window dialog = StartAndOpen(rule);
    AddMaskByDialog(dialog, L"*.last");
    ExpectSound(dialog, "rule_editor_masks");
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorAudit, ErrorBox) {
    StartWithRules({});
    const Window dialog = OpenNew();
    dialog.Control(IDOK).PostClick();
    const Window box = Editor().WaitForWindow(dialog);
    ExpectSoundDialog(box, "rule_editor_error_box");
    box.FocusOfThread().PostKey(VK_ESCAPE);
    box.WaitUntilGone();
    WaitForEditor(dialog);
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorAudit, MaskDialog) {
    const Window dialog = StartAndOpen(FullRule(L"HASH"));
    Masks(dialog).Select({0});
    dialog.Control(IDC_RULE_EDIT_MASK_BUTTON).PostClick();
    const Window mask = Editor().WaitForDialog(dialog);
    ExpectSoundDialog(mask, "mask");
    mask.FocusOfThread().PostKey(VK_ESCAPE);
    mask.WaitUntilGone();
    WaitForEditor(dialog);
    Close(dialog, IDCANCEL);
}

}  // namespace
}  // namespace corvane::test
