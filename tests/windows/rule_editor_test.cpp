#include "tests/windows/rule_editor_test.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "tests/driver/failure.h"
#include "tests/driver/icon.h"
#include "tests/driver/tool_tips.h"
#include "tests/driver/waiting.h"

namespace corvane::test {

using driver::Texts;
using driver::Window;

namespace {

std::wstring IconName(const Window& button) {
    const std::vector<std::pair<int, std::wstring>> names = {{IDI_CERTIFICATES, L"certificates"},
                                                             {IDI_SECOND_OUTPUT_FOLDER, L"folder"},
                                                             {IDI_EXECUTABLE, L"program"}};
    for (const auto& [resource, name] : names) {
        if (driver::IconOf(button, driver::IconPlace::kButton, resource).showsResource) {
            return name;
        }
    }
    return L"unknown";
}

std::wstring ShownChoice(const Window& combo) {
    std::wstring words;
    for (const std::wstring& entry : Entries(combo)) {
        words += (words.empty() ? L"" : L"/") + entry;
    }
    return L"(" + words + L") " + SelectedEntry(combo);
}

std::wstring ShownRow(const Window& dialog, int label, const std::vector<int>& fields) {
    std::wstring words = dialog.Control(label).Text();
    for (const int id : fields) {
        const Window field = dialog.Control(id);
        if (!field.IsVisible()) {
            continue;
        }
        const bool isChoice = field.IsOfClass(L"ComboBox");
        const bool isNumber = (field.Style() & ES_NUMBER) != 0;
        words += L" " + (isChoice   ? ShownChoice(field)
                         : isNumber ? field.Text()
                                    : L"'" + field.Text() + L"'");
        if (!field.IsEnabled()) {
            words += L" disabled";
        }
    }
    return words;
}

}  // namespace

Texts OperationNames() {
    return {L"Encrypt",
            L"Decrypt",
            L"Hash file",
            L"Encode b64",
            L"Decode b64",
            L"Attached signature",
            L"Verify attached signature",
            L"Verify and delete attached signature",
            L"Move",
            L"Delete",
            L"Encrypt long file",
            L"Decrypt long file",
            L"Create detached signature",
            L"Add detached signature",
            L"Verify detached signature",
            L"Delete signatures without verification",
            L"Resign",
            L"Create attached signature and encrypt",
            L"Decrypt, verify and delete attached signatures",
            L"Archivate file",
            L"Unarchivate file",
            L"Pack files",
            L"Unpack files",
            L"Execute"};
}

Texts OperationCodes() {
    return {L"ENCR", L"DECR", L"HASH", L"B64E", L"B64D", L"SIGN", L"CHCK", L"CHKX",
            L"MOVE", L"DELE", L"LENC", L"LDEC", L"CDSG", L"DSIG", L"DCHK", L"DELS",
            L"RESG", L"SGEN", L"DCCX", L"ARCH", L"UNAR", L"PACK", L"UNPK", L"EXEC"};
}

int OperationIndex(const std::wstring& code) {
    const Texts codes = OperationCodes();
    const auto found = std::find(codes.begin(), codes.end(), code);
    if (found == codes.end()) {
        throw driver::Failure(L"\"" + code + L"\" is no operation.");
    }
    return static_cast<int>(found - codes.begin());
}

StoredRule FullRule(const std::wstring& code) {
    StoredRule rule;
    rule.values = {{L"Operation", code},
                   {L"Descryption", L"Rule of " + code},
                   {L"Path In", kInFolder},
                   {L"Path Out", kOutFolder},
                   {L"Path Out 2", kSecondFolder},
                   {L"Path Error", kErrorFolder},
                   {L"ZCSProfile", L"CS two"},
                   {L"ResignProfile", L"CS two"},
                   {L"In format det", 1U},
                   {L"Out format det", 1U},
                   {L"DelExt", L"del"},
                   {L"AddExt", L"add"},
                   {L"Folders", L"fol"},
                   {L"Copyfolders", L"cop"},
                   {L"ZipFile", 2U},
                   {L"ArchCount", 11U},
                   {L"ArchSize", 12U},
                   {L"ArchTimeout", 13U},
                   {L"ArchName", L"arch"},
                   {L"ExecName", L"C:\\tool.exe"},
                   {L"ExecTimeout", 14U},
                   {L"Is on", 0U}};
    rule.masks = {L"*.one", L"*.two"};
    rule.recipients = {L"CN=First", L"CN=Second"};
    rule.signerLists = {{L"Board", {L"CN=Chair"}}, {L"Staff", {L"CN=Clerk"}}, {L"Guests", {L"CN=Guest"}}};
    return rule;
}

Texts Entries(const Window& combo) {
    Texts entries;
    const LRESULT count = combo.Send(CB_GETCOUNT);
    for (LRESULT i = 0; i < count; ++i) {
        const auto index = static_cast<WPARAM>(i);
        std::wstring entry(static_cast<std::size_t>(combo.Send(CB_GETLBTEXTLEN, index)) + 1, L'\0');
        combo.Send(CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(entry.data()));
        entry.pop_back();
        entries.push_back(entry);
    }
    return entries;
}

std::wstring SelectedEntry(const Window& combo) {
    const LRESULT index = combo.Send(CB_GETCURSEL);
    return index < 0 ? L"nothing" : Entries(combo).at(static_cast<std::size_t>(index));
}

Texts ShownFields(const Window& dialog) {
    const Window csProfile = dialog.Control(IDC_RULE_CS_PROFILE_COMBO);
    const Window output = dialog.Control(IDC_RULE_OUTPUT_EDIT);
    const Window cert = dialog.Control(IDC_RULE_CERT_EDIT);
    const Window certButton = dialog.Control(IDC_RULE_CERT_BUTTON);
    const auto enabled = [](const Window& window) {
        return std::wstring(window.IsEnabled() ? L"enabled" : L"disabled");
    };
    return {
        SelectedEntry(dialog.Control(IDC_RULE_OPERATION_COMBO)),
        dialog.Control(IDC_RULE_CS_PROFILE_LABEL).Text() +
            (csProfile.IsVisible() ? ShownChoice(csProfile) : L"hidden"),
        L"OUT " + enabled(dialog.Control(IDC_RULE_OUTPUT_BUTTON)) + L", field " + enabled(output) + L" '" +
            output.Text() + L"'",
        L"CERT " + enabled(certButton) + L" '" + driver::ToolTipTexts(dialog)[IDC_RULE_CERT_BUTTON] + L"' " +
            IconName(certButton) + ((cert.Style() & ES_READONLY) != 0 ? L", read-only '" : L", field '") +
            cert.Text() + L"'",
        ShownRow(dialog, IDC_RULE_ROW1_LABEL,
                 {IDC_RULE_ROW1_COMBO, IDC_RULE_ROW1_EDIT, IDC_RULE_ROW1_NUMBER_EDIT}),
        ShownRow(dialog, IDC_RULE_ROW2_LABEL,
                 {IDC_RULE_ROW2_COMBO, IDC_RULE_ROW2_EDIT, IDC_RULE_ROW2_NUMBER_EDIT}),
        ShownRow(dialog, IDC_RULE_ROW3_LABEL,
                 {IDC_RULE_ROW3_COMBO, IDC_RULE_ROW3_EDIT, IDC_RULE_ROW3_NUMBER_EDIT}),
        ShownRow(dialog, IDC_RULE_ROW4_LABEL, {IDC_RULE_ROW4_EDIT}),
    };
}

void RuleEditorTest::StartWithRules(const std::vector<StoredRule>& rules) {
    WriteCatalogue({L"CS one", L"CS two"});
    WriteProfile(L"alpha", {L"CS one", L"CS two"});
    for (std::size_t i = 0; i < rules.size(); ++i) {
        WriteRule(L"alpha", static_cast<int>(i), rules[i]);
    }
    Start();
}

Window RuleEditorTest::OpenNew() const {
    Control(IDC_ADD_RULE_BUTTON).PostClick();
    return Editor().WaitForDialog(Main());
}

Window RuleEditorTest::OpenStored(int row) const {
    Rules().Select({row});
    Control(IDC_EDIT_RULE_BUTTON).PostClick();
    return Editor().WaitForDialog(Main());
}

Window RuleEditorTest::StartAndOpen(const StoredRule& rule) {
    StartWithRules({rule});
    return OpenStored();
}

void RuleEditorTest::SettleEditor(const Window& dialog) {
    // As in the main window: posted messages are handled in order, and nothing depends on the hover time.
    const Window list = dialog.Control(IDC_RULE_MASK_LIST);
    const LRESULT mark = list.Send(LVM_GETHOVERTIME) == 500 ? 501 : 500;
    list.Post(LVM_SETHOVERTIME, 0, mark);
    if (!driver::WaitUntil([&] { return list.Send(LVM_GETHOVERTIME) == mark; })) {
        throw driver::Failure(L"The rule editor was expected to handle its messages, and does not.");
    }
}

void RuleEditorTest::WaitForEditor(const Window& dialog) {
    dialog.WaitUntilEnabled();
    SettleEditor(dialog);
}

void RuleEditorTest::Close(const Window& dialog, int buttonId) const {
    dialog.Control(buttonId).PostClick();
    dialog.WaitUntilGone();
    WaitForMain();
}

void RuleEditorTest::SelectOperation(const Window& dialog, const std::wstring& code) {
    const Window combo = dialog.Control(IDC_RULE_OPERATION_COMBO);
    combo.Send(CB_SETCURSEL, static_cast<WPARAM>(OperationIndex(code)));
    dialog.Send(WM_COMMAND, MAKEWPARAM(IDC_RULE_OPERATION_COMBO, CBN_SELCHANGE),
                reinterpret_cast<LPARAM>(combo.Handle()));
}

void RuleEditorTest::PostCsProfile(const Window& dialog, int index) {
    const Window combo = dialog.Control(IDC_RULE_CS_PROFILE_COMBO);
    combo.Send(CB_SETCURSEL, static_cast<WPARAM>(index));
    dialog.Post(WM_COMMAND, MAKEWPARAM(IDC_RULE_CS_PROFILE_COMBO, CBN_SELCHANGE),
                reinterpret_cast<LPARAM>(combo.Handle()));
}

void RuleEditorTest::FillFolders(const Window& dialog) {
    dialog.Control(IDC_RULE_INPUT_EDIT).SetText(kInFolder);
    dialog.Control(IDC_RULE_OUTPUT_EDIT).SetText(kOutFolder);
    dialog.Control(IDC_RULE_ERROR_EDIT).SetText(kErrorFolder);
}

void RuleEditorTest::AddMaskByDialog(const Window& dialog, const std::wstring& mask) const {
    dialog.Control(IDC_RULE_ADD_MASK_BUTTON).PostClick();
    const Window maskDialog = Editor().WaitForDialog(dialog);
    maskDialog.Control(IDC_MASK_COMBO).SetText(mask);
    maskDialog.Control(IDOK).PostClick();
    maskDialog.WaitUntilGone();
    WaitForEditor(dialog);
}

void RuleEditorTest::ExpectErrorBox(const Window& dialog, const std::wstring& text, int icon,
                                    int focusId) const {
    dialog.Control(IDOK).PostClick();
    const Window box = Editor().WaitForWindow(dialog);
    EXPECT_EQ(box.Text(), L"Error");
    EXPECT_EQ(box.Control(IDC_ERROR_BOX_TEXT).Text(), text);
    EXPECT_TRUE(
        driver::IconOf(box.Control(IDC_ERROR_BOX_ICON), driver::IconPlace::kStatic, icon).showsResource)
        << "icon " << icon << " was expected";
    EXPECT_EQ(LOWORD(box.Send(DM_GETDEFID)), IDOK);
    box.Control(IDOK).PostClick();
    box.WaitUntilGone();
    WaitForEditor(dialog);
    EXPECT_TRUE(dialog.IsVisible());
    ExpectFocusToMend(dialog, focusId);
}

void RuleEditorTest::ExpectRefusal(const Window& dialog, const std::wstring& text, unsigned style,
                                   int focusId) const {
    dialog.Control(IDOK).PostClick();
    AnswerBox(dialog, text, style, IDOK);
    dialog.WaitUntilEnabled();
    EXPECT_TRUE(dialog.IsVisible());
    ExpectFocusToMend(dialog, focusId);
}

void RuleEditorTest::ExpectFocusToMend(const Window& dialog, int focusId) {
    SettleEditor(dialog);
    const Window control = dialog.Control(focusId);
    EXPECT_EQ(dialog.FocusOfThread(), control)
        << "the focus is on " << driver::Utf8(dialog.FocusOfThread().Name());
    const bool isButton = control.IsOfClass(L"Button");
    EXPECT_EQ((dialog.Control(IDOK).Style() & BS_TYPEMASK) == BS_DEFPUSHBUTTON, !isButton);
    if (isButton) {
        EXPECT_EQ(control.Style() & BS_TYPEMASK, static_cast<DWORD>(BS_DEFPUSHBUTTON));
    }
}

void RuleEditorTest::AnswerBox(const Window& dialog, const std::wstring& text, unsigned style, int answer,
                               const std::wstring& title) const {
    ExpectMessageBox(dialog, text, style, answer, title);
    SettleEditor(dialog);
}

std::map<std::wstring, driver::RegistryValues> RuleEditorTest::SaveAndRead(int number) {
    SaveAndLeave();
    return driver::ReadRegistryTree(RuleKey(L"alpha", number));
}

}  // namespace corvane::test
