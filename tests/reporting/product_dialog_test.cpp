#include "reporting/product_dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <commctrl.h>

#include <array>
#include <functional>
#include <initializer_list>
#include <stdexcept>
#include <type_traits>

#include "app/about/about_dialog.h"
#include "app/extensions_page/extensions_page_dialog.h"
#include "app/log_settings/log_settings_dialog.h"
#include "app/main_window/main_window_dialog.h"
#include "certificates/search/filter_dialog.h"
#include "certificates/selection/selection_dialog.h"
#include "certificates/session/wait_dialog.h"
#include "editors/extension/extension_dialog.h"
#include "editors/mask/mask_dialog.h"
#include "editors/profile/cs_profile_choice_dialog.h"
#include "editors/profile/profile_editor_dialog.h"
#include "editors/rule/rule_editor_dialog.h"
#include "reporting/error_box.h"
#include "reporting/warning_box.h"
#include "res/ids.h"
#include "tests/kit/fixtures/reporter_fixture.h"
#include "toolkit/dialog/window_geometry.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// What is thrown in any of them is reported under the program's title.
template <typename... Dialogs>
constexpr bool kAreProductDialogs = (std::is_base_of_v<reporting::ProductDialog, Dialogs> && ...);
static_assert(
    kAreProductDialogs<app::CAboutDlg, app::CConfigPage, app::CConflictDlg, app::CCorvaneDlg,
                       certificates::AwaitDlg, certificates::CFilterDlg, certificates::CPreEncryptDlg,
                       editors::AddMask, editors::CAddCSProfDlg, editors::CAddExtDlg, editors::CAddProfile,
                       editors::CAddRule, reporting::ErrBox, reporting::WarningBox>);

class ProbeDialog final : public reporting::ProductDialog {
  public:
    ProbeDialog(int templateId, reporting::ErrorReporter& reporter)
        : reporting::ProductDialog(templateId, nullptr, reporter) {}

    using reporting::ProductDialog::Control;
    using reporting::ProductDialog::CorrectTypedText;
    using reporting::ProductDialog::DotsPerInch;
    using reporting::ProductDialog::IsAgreed;
    using reporting::ProductDialog::LargeIcon;
    using reporting::ProductDialog::LetControlsFollow;
    using reporting::ProductDialog::SetIconButton;
    using reporting::ProductDialog::SetWindowIcon;
    using reporting::ProductDialog::Show;

    std::function<void()> onCommand;
    int arranged = 0;

  protected:
    bool OnCommand(int controlId, UINT notificationCode) override {
        if (onCommand && controlId == IDOK) {
            onCommand();
        }
        return reporting::ProductDialog::OnCommand(controlId, notificationCode);
    }
    void OnArranged() override { ++arranged; }
};

class ProductDialogTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(dialog_.CreateModeless());
        fixture_.presenter.MakeLive(dialog_.Window());
    }

    // Tells the dialog that it is on a screen of another scale now, as the system does.
    void ChangeScale(UINT dotsPerInch) {
        RECT place = {};
        GetWindowRect(dialog_.Window(), &place);
        SendMessageW(dialog_.Window(), WM_DPICHANGED, MAKEWPARAM(dotsPerInch, dotsPerInch),
                     reinterpret_cast<LPARAM>(&place));
    }
    [[nodiscard]] HWND Tips() const {
        HWND tips = nullptr;
        EnumThreadWindows(
            GetCurrentThreadId(),
            [](HWND window, LPARAM found) -> BOOL {
                std::array<wchar_t, 64> name = {};
                GetClassNameW(window, name.data(), static_cast<int>(name.size()));
                if (std::wstring(name.data()) != TOOLTIPS_CLASSW) {
                    return TRUE;
                }
                // NOLINTNEXTLINE(performance-no-int-to-ptr): the platform hands the pointer over as a number.
                *reinterpret_cast<HWND*>(found) = window;
                return FALSE;
            },
            reinterpret_cast<LPARAM>(&tips));
        return tips;
    }
    [[nodiscard]] std::wstring TipOf(int controlId) const {
        std::array<wchar_t, 500> text = {};
        TTTOOLINFOW tool = {};
        tool.cbSize = sizeof tool;
        tool.hwnd = dialog_.Window();
        tool.uId = reinterpret_cast<UINT_PTR>(dialog_.Control(controlId));
        tool.lpszText = text.data();
        SendMessageW(Tips(), TTM_GETTEXTW, text.size(), reinterpret_cast<LPARAM>(&tool));
        return text.data();
    }
    [[nodiscard]] int IconWidth(int buttonId) const {
        const auto icon =
            reinterpret_cast<HICON>(SendMessageW(dialog_.Control(buttonId), BM_GETIMAGE, IMAGE_ICON, 0));
        ICONINFO info = {};
        if (GetIconInfo(icon, &info) == FALSE) {
            return 0;
        }
        BITMAP bitmap = {};
        GetObjectW(info.hbmMask, sizeof bitmap, &bitmap);
        DeleteObject(info.hbmMask);
        DeleteObject(info.hbmColor);
        return static_cast<int>(bitmap.bmWidth);
    }
    [[nodiscard]] RECT PlaceOf(int controlId) const { return toolkit::PlaceOf(dialog_.Control(controlId)); }
    void LetOkFollow() {
        dialog_.LetControlsFollow(
            {{.controlId = IDOK, .moveX = toolkit::GrowthShare::kAll, .moveY = toolkit::GrowthShare::kAll}});
    }

    ReporterFixture fixture_;
    ProbeDialog dialog_{IDD_SIGNER_LISTS, fixture_.reporter};
};

TEST_F(ProductDialogTest, WhatAHandlerThrowsIsReportedUnderTheProgramsTitle) {
    dialog_.onCommand = [] { throw std::runtime_error("Something is missing."); };
    SendMessageW(dialog_.Window(), WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED),
                 reinterpret_cast<LPARAM>(dialog_.Control(IDOK)));
    EXPECT_THAT(fixture_.presenter.Boxes(), ElementsAre(ShownBox{.owner = dialog_.Window(),
                                                                 .text = L"Something is missing.",
                                                                 .title = reporting::AppTitle,
                                                                 .style = reporting::kErrorStyle}));
}

TEST_F(ProductDialogTest, ARefusalIsShownAndTheFocusGoesToWhatIsToBeMended) {
    ShowWindow(dialog_.Window(), SW_SHOWNORMAL);
    SetFocus(dialog_.Control(IDCANCEL));
    dialog_.Show(reporting::Refuse(L"No.", IDC_SIGNER_LISTS_ADD_BUTTON));
    EXPECT_THAT(fixture_.presenter.Boxes(), ElementsAre(ShownBox{.owner = dialog_.Window(),
                                                                 .text = L"No.",
                                                                 .title = reporting::AppTitle,
                                                                 .style = reporting::kRefusalStyle}));
    EXPECT_EQ(GetFocus(), dialog_.Control(IDC_SIGNER_LISTS_ADD_BUTTON));
}

TEST_F(ProductDialogTest, ARefusalWithoutAControlLeavesTheFocus) {
    ShowWindow(dialog_.Window(), SW_SHOWNORMAL);
    SetFocus(dialog_.Control(IDCANCEL));
    dialog_.Show(reporting::Refuse(L"No."));
    EXPECT_EQ(GetFocus(), dialog_.Control(IDCANCEL));
}

TEST_F(ProductDialogTest, ASilentRefusalOnlyMovesTheFocus) {
    ShowWindow(dialog_.Window(), SW_SHOWNORMAL);
    SetFocus(dialog_.Control(IDCANCEL));
    dialog_.Show(reporting::Refusal{.wording = reporting::SilentRefusal(), .controlId = IDOK});
    EXPECT_THAT(fixture_.presenter.Boxes(), IsEmpty());
    EXPECT_EQ(GetFocus(), dialog_.Control(IDOK));
}

TEST_F(ProductDialogTest, AnInformationHasItsOwnTitle) {
    dialog_.Show(reporting::Information{.text = L"CN=A", .title = L"Signer"});
    EXPECT_THAT(fixture_.presenter.Boxes(), ElementsAre(ShownBox{.owner = dialog_.Window(),
                                                                 .text = L"CN=A",
                                                                 .title = L"Signer",
                                                                 .style = reporting::kInformationStyle}));
}

TEST_F(ProductDialogTest, OnlyYesAgrees) {
    const reporting::Question question = {.text = L"Delete?", .style = reporting::kWarningQuestionStyle};
    fixture_.presenter.AnswerNext(reporting::kAnswerYes);
    EXPECT_TRUE(dialog_.IsAgreed(question));
    for (const int answer : {reporting::kAnswerNo, reporting::kAnswerOk, reporting::kAnswerCancel, 0}) {
        fixture_.presenter.AnswerNext(answer);
        EXPECT_FALSE(dialog_.IsAgreed(question)) << answer;
    }
}

TEST_F(ProductDialogTest, AnIconButtonHasOneNameATipAndAPictureAtEveryScale) {
    dialog_.SetIconButton(IDOK, L"Add", IDI_ADD_ITEM);
    EXPECT_EQ(toolkit::WindowText(dialog_.Control(IDOK)), L"Add");
    EXPECT_EQ(TipOf(IDOK), L"Add");
    EXPECT_EQ(IconWidth(IDOK), MulDiv(32, static_cast<int>(dialog_.DotsPerInch()), 96));
    ChangeScale(288);
    EXPECT_EQ(IconWidth(IDOK), 96);
}

TEST_F(ProductDialogTest, AnIconButtonThatGetsAnotherNameHasOneTipStill) {
    dialog_.SetIconButton(IDOK, L"Add recipients", IDI_ADD_ITEM);
    dialog_.SetIconButton(IDCANCEL, L"Delete", IDI_DELETE_ITEM);
    dialog_.SetIconButton(IDOK, L"Add signers", IDI_EDIT_ITEM);
    EXPECT_EQ(toolkit::WindowText(dialog_.Control(IDOK)), L"Add signers");
    EXPECT_EQ(TipOf(IDOK), L"Add signers");
    EXPECT_EQ(TipOf(IDCANCEL), L"Delete");
    EXPECT_EQ(SendMessageW(Tips(), TTM_GETTOOLCOUNT, 0, 0), 2);
}

TEST_F(ProductDialogTest, TheWindowIconIsLoadedAgainForAnotherScale) {
    dialog_.SetWindowIcon(IDI_MAIN_WINDOW);
    const HICON before = dialog_.LargeIcon();
    EXPECT_NE(before, nullptr);
    EXPECT_EQ(reinterpret_cast<HICON>(SendMessageW(dialog_.Window(), WM_GETICON, ICON_BIG, 0)), before);
    ChangeScale(288);
    EXPECT_EQ(reinterpret_cast<HICON>(SendMessageW(dialog_.Window(), WM_GETICON, ICON_BIG, 0)),
              dialog_.LargeIcon());
    EXPECT_NE(dialog_.LargeIcon(), nullptr);
}

TEST_F(ProductDialogTest, ControlsFollowTheSizeOfTheRestoredWindow) {
    LetOkFollow();
    const RECT before = PlaceOf(IDOK);
    RECT client = {};
    GetClientRect(dialog_.Window(), &client);
    SendMessageW(dialog_.Window(), WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.right + 30, client.bottom + 20));
    EXPECT_EQ(PlaceOf(IDOK).left, before.left + 30);
    EXPECT_EQ(PlaceOf(IDOK).top, before.top + 20);
    EXPECT_EQ(dialog_.arranged, 1);
}

TEST_F(ProductDialogTest, ControlsStayWhereTheWindowIsMinimisedOrHasNoMaximiseBox) {
    LetOkFollow();
    const RECT before = PlaceOf(IDOK);
    for (const WPARAM kind :
         std::initializer_list<WPARAM>{SIZE_MINIMIZED, SIZE_MAXIMIZED, SIZE_MAXSHOW, SIZE_MAXHIDE}) {
        SendMessageW(dialog_.Window(), WM_SIZE, kind, MAKELPARAM(3000, 2000));
        EXPECT_EQ(PlaceOf(IDOK).left, before.left) << kind;
        EXPECT_EQ(dialog_.arranged, 0) << kind;
    }
}

TEST_F(ProductDialogTest, AMaximisedWindowWithAMaximiseBoxIsArrangedToo) {
    ProbeDialog selection(IDD_RECIPIENT_SELECTION, fixture_.reporter);
    ASSERT_TRUE(selection.CreateModeless());
    selection.LetControlsFollow({{.controlId = IDOK, .moveX = toolkit::GrowthShare::kAll}});
    SendMessageW(selection.Window(), WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(3000, 2000));
    EXPECT_EQ(selection.arranged, 1);
}

TEST_F(ProductDialogTest, ADialogThatIsNotToBeResizedIsLeftAlone) {
    const RECT before = PlaceOf(IDOK);
    SendMessageW(dialog_.Window(), WM_SIZE, SIZE_RESTORED, MAKELPARAM(3000, 2000));
    MINMAXINFO info = {};
    SendMessageW(dialog_.Window(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(PlaceOf(IDOK).left, before.left);
    EXPECT_EQ(dialog_.arranged, 0);
    EXPECT_EQ(info.ptMinTrackSize.x, 0);
}

TEST_F(ProductDialogTest, NobodyMakesItSmallerThanItsTemplate) {
    RECT frame = {};
    GetWindowRect(dialog_.Window(), &frame);
    LetOkFollow();
    MINMAXINFO info = {};
    SendMessageW(dialog_.Window(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(info.ptMinTrackSize.x, frame.right - frame.left);
    EXPECT_EQ(info.ptMinTrackSize.y, frame.bottom - frame.top);
}

TEST_F(ProductDialogTest, AnotherScaleArrangesWhatDependsOnTheWidth) {
    LetOkFollow();
    ChangeScale(288);
    EXPECT_EQ(dialog_.arranged, 1);
}

TEST_F(ProductDialogTest, ACorrectedTextHasTheCaretAtItsEnd) {
    ProbeDialog extension(IDD_EXTENSION, fixture_.reporter);
    ASSERT_TRUE(extension.CreateModeless());
    const HWND edit = extension.Control(IDC_EXTENSION_EDIT);
    SetWindowTextW(edit, L"1");
    extension.CorrectTypedText(IDC_EXTENSION_EDIT, L"400");
    EXPECT_EQ(toolkit::WindowText(edit), L"400");
    EXPECT_EQ(SendMessageW(edit, EM_GETSEL, 0, 0), MAKELRESULT(3, 3));
    SendMessageW(edit, EM_SETSEL, 1, 1);
    extension.CorrectTypedText(IDC_EXTENSION_EDIT, L"400");
    EXPECT_EQ(SendMessageW(edit, EM_GETSEL, 0, 0), MAKELRESULT(1, 1)) << "what is right stays as it is";
}

}  // namespace
}  // namespace corvane::test
