#include "tests/windows/profile_editor_fixture.h"

#include <windows.h>

#include <algorithm>
#include <ostream>

#include "tests/driver/failure.h"
#include "tests/driver/waiting.h"

namespace corvane::test {

using driver::Texts;
using driver::Window;

void SettleDialogOf(const Window& edit) {
    // Posted messages are handled in order. Of these, the longest text can be asked for, and nothing here
    // comes near it.
    const LRESULT mark = edit.Send(EM_GETLIMITTEXT) == 20000 ? 20001 : 20000;
    edit.Post(EM_SETLIMITTEXT, static_cast<WPARAM>(mark));
    if (!driver::WaitUntil([&] { return edit.Send(EM_GETLIMITTEXT) == mark; })) {
        throw driver::Failure(L"The dialog of " + edit.Name() +
                              L" was expected to handle its messages, and does not.");
    }
}

Texts ListEntries(const Window& listBox) {
    Texts entries;
    const LRESULT count = listBox.Send(LB_GETCOUNT);
    for (LRESULT i = 0; i < count; ++i) {
        const auto index = static_cast<WPARAM>(i);
        std::wstring entry(static_cast<std::size_t>(listBox.Send(LB_GETTEXTLEN, index)) + 1, L'\0');
        listBox.Send(LB_GETTEXT, index, reinterpret_cast<LPARAM>(entry.data()));
        entry.pop_back();
        entries.push_back(entry);
    }
    return entries;
}

bool IsChecked(const Window& checkBox) {
    return checkBox.Send(BM_GETCHECK) == BST_CHECKED;
}

std::vector<int> TabStops(const Window& dialog) {
    std::vector<int> ids;
    HWND control = nullptr;
    while (true) {
        control = GetNextDlgTabItem(dialog.Handle(), control, FALSE);
        const int id = GetDlgCtrlID(control);
        if (control == nullptr || std::find(ids.begin(), ids.end(), id) != ids.end()) {
            return ids;
        }
        ids.push_back(id);
    }
}

ShownSettings SettingsOf(const Window& dialog) {
    ShownSettings settings;
    settings.title = dialog.Control(IDC_PROFILE_CS_PROFILE_GROUP).Text();
    for (const int id :
         {IDC_PROFILE_NO_NCS_CHECK, IDC_PROFILE_NOT_ADD_CERT_CHECK, IDC_PROFILE_NOT_COPY_CERT_CHECK,
          IDC_PROFILE_NOT_LOAD_CRL_CHECK, IDC_PROFILE_USE_TSP_CHECK, IDC_PROFILE_VERIFY_TSP_CHECK,
          IDC_PROFILE_NO_TSP_ERROR_CHECK, IDC_PROFILE_USE_AIA_CHECK}) {
        if (IsChecked(dialog.Control(id))) {
            settings.checked.push_back(id);
        }
    }
    settings.server = dialog.Control(IDC_PROFILE_TSP_EDIT).Text();
    settings.isServerEnabled = dialog.Control(IDC_PROFILE_TSP_EDIT).IsEnabled();
    settings.isNoTimeStampErrorEnabled = dialog.Control(IDC_PROFILE_NO_TSP_ERROR_CHECK).IsEnabled();
    settings.frequency = dialog.Control(IDC_PROFILE_FREQUENCY_EDIT).Text();
    return settings;
}

ShownSettings NewSettings(const std::wstring& csProfile) {
    return {.title = L"CS profile setting's: " + csProfile,
            .checked = {IDC_PROFILE_NO_NCS_CHECK},
            .server = L"0",
            .isServerEnabled = false,
            .isNoTimeStampErrorEnabled = false,
            .frequency = L"1"};
}

void PrintTo(const ShownSettings& settings, std::ostream* stream) {
    *stream << '"' << driver::Utf8(settings.title) << "\", checked";
    for (const int id : settings.checked) {
        *stream << ' ' << id;
    }
    *stream << ", server '" << driver::Utf8(settings.server)
            << (settings.isServerEnabled ? "' enabled" : "' disabled") << ", lack of a stamp "
            << (settings.isNoTimeStampErrorEnabled ? "enabled" : "disabled") << ", frequency "
            << driver::Utf8(settings.frequency);
}

Window ProfileEditorTest::OpenNew() const {
    Control(IDC_ADD_PROFILE_BUTTON).PostClick();
    return Editor().WaitForDialog(Main());
}

Window ProfileEditorTest::OpenCurrent() const {
    Control(IDC_EDIT_PROFILE_BUTTON).PostClick();
    return Editor().WaitForDialog(Main());
}

void ProfileEditorTest::Close(const Window& dialog, int buttonId) const {
    dialog.Control(buttonId).PostClick();
    dialog.WaitUntilGone();
    WaitForMain();
}

void ProfileEditorTest::PressIn(const Window& dialog, int controlId) {
    dialog.Control(controlId).Click();
    SettleEditor(dialog);
}

void ProfileEditorTest::TypeInto(const Window& dialog, int controlId, const std::wstring& text) {
    const Window edit = dialog.Control(controlId);
    edit.Send(EM_SETSEL, 0, -1);
    edit.Type(text);
}

void ProfileEditorTest::AnswerBox(const Window& dialog, const std::wstring& text, unsigned style,
                                  int answer) const {
    ExpectMessageBox(dialog, text, style, answer);
    dialog.WaitUntilEnabled();
    SettleEditor(dialog);
}

void ProfileEditorTest::ExpectRefusal(const Window& dialog, const std::wstring& text, int focusId) const {
    dialog.Control(IDOK).PostClick();
    AnswerBox(dialog, text, kRefusal, IDOK);
    EXPECT_TRUE(dialog.IsVisible());
    EXPECT_EQ(dialog.FocusOfThread(), dialog.Control(focusId))
        << "the focus is on " << driver::Utf8(dialog.FocusOfThread().Name());
}

int ProfileEditorTest::SelectedCsProfile(const Window& dialog) {
    return static_cast<int>(CsProfiles(dialog).Send(LB_GETCURSEL));
}

void ProfileEditorTest::PostSelection(const Window& dialog, int index) {
    CsProfiles(dialog).Send(LB_SETCURSEL, static_cast<WPARAM>(index));
    dialog.Post(WM_COMMAND, MAKEWPARAM(IDC_PROFILE_CS_PROFILE_LIST, LBN_SELCHANGE),
                reinterpret_cast<LPARAM>(CsProfiles(dialog).Handle()));
}

void ProfileEditorTest::SelectCsProfile(const Window& dialog, int index) {
    PostSelection(dialog, index);
    SettleEditor(dialog);
}

Window ProfileEditorTest::OpenChoice(const Window& dialog) const {
    dialog.Control(IDC_PROFILE_ADD_CS_PROFILE_BUTTON).PostClick();
    return Editor().WaitForDialog(dialog);
}

void ProfileEditorTest::AddCsProfile(const Window& dialog, int index) const {
    const Window choice = OpenChoice(dialog);
    choice.Control(IDC_CS_PROFILE_CHOICE_COMBO).Send(CB_SETCURSEL, static_cast<WPARAM>(index));
    choice.Control(IDOK).PostClick();
    choice.WaitUntilGone();
    dialog.WaitUntilEnabled();
    SettleEditor(dialog);
}

void ProfileEditorTest::DeleteCsProfile(const Window& dialog, const std::wstring& question,
                                        int answer) const {
    dialog.Control(IDC_PROFILE_DELETE_CS_PROFILE_BUTTON).PostClick();
    AnswerBox(dialog, question, kConfirmation, answer);
}

Texts ProfileEditorTest::StoredList(const std::wstring& profile, const std::wstring& value) {
    return std::get<Texts>(driver::ReadRegistryValue(std::wstring(kProgramKey) + L"\\" + profile, value));
}

std::map<std::wstring, Texts> ProfileEditorTest::StoredLists(const std::wstring& profile) {
    std::map<std::wstring, Texts> lists;
    for (const wchar_t* const value :
         {L"ZCSProfile", L"ServerTSP", L"NotUseLDAP", L"NotAddCert", L"NotCopyToLocal", L"AutoVerifyTSP",
          L"NoTSPisError", L"UseAIA", L"AutoUseTSP", L"NotLoadCrl", L"CrlUpdatePeriod"}) {
        lists[value] = StoredList(profile, value);
    }
    return lists;
}

}  // namespace corvane::test
