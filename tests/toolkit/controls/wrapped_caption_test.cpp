#include "toolkit/controls/wrapped_caption.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "tests/toolkit/test_dialog.h"

namespace corvane::test {
namespace {

constexpr COLORREF kPaper = RGB(255, 0, 255);

// A bitmap of one colour to draw on.
class Canvas {
  public:
    Canvas(int width, int height) : width_(width), height_(height), context_(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        bitmap_ = CreateDIBSection(context_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        before_ = SelectObject(context_, bitmap_);
        const RECT all = {0, 0, width, height};
        const HBRUSH paper = CreateSolidBrush(kPaper);
        FillRect(context_, &all, paper);
        DeleteObject(paper);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    Canvas(Canvas&&) = delete;
    Canvas& operator=(Canvas&&) = delete;
    ~Canvas() {
        SelectObject(context_, before_);
        DeleteObject(bitmap_);
        DeleteDC(context_);
    }

    [[nodiscard]] HDC Context() const { return context_; }

    /// The smallest rectangle that holds all that was drawn.
    [[nodiscard]] RECT Drawn() const {
        RECT drawn = {width_, height_, 0, 0};
        for (int y = 0; y < height_; ++y) {
            for (int x = 0; x < width_; ++x) {
                if (GetPixel(context_, x, y) != kPaper) {
                    drawn = {std::min<LONG>(drawn.left, x), std::min<LONG>(drawn.top, y),
                             std::max<LONG>(drawn.right, x + 1), std::max<LONG>(drawn.bottom, y + 1)};
                }
            }
        }
        return drawn;
    }

    [[nodiscard]] int Count(COLORREF color, LONG top, LONG bottom) const {
        int count = 0;
        for (LONG y = top; y < bottom; ++y) {
            for (int x = 0; x < width_; ++x) {
                count += GetPixel(context_, x, y) == color ? 1 : 0;
            }
        }
        return count;
    }
    [[nodiscard]] int Count(COLORREF color) const { return Count(color, 0, height_); }

  private:
    int width_;
    int height_;
    HDC context_;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ before_ = nullptr;
};

// Wine always says that everything is to be seen; this answers what the test wants.
LRESULT CALLBACK AnswerUiState(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*subclass*/,
                               DWORD_PTR answer) {
    if (message == WM_QUERYUISTATE) {
        // NOLINTNEXTLINE(performance-no-int-to-ptr): the platform keeps the pointer as a number.
        return *reinterpret_cast<const LRESULT*>(answer);
    }
    return DefSubclassProc(window, message, wParam, lParam);
}

class WrappedCaption : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(dialog_.CreateModeless());
        button_ = dialog_.Control(IDC_TALL_BUTTON);
        GetClientRect(button_, &client_);
        draw_.hdr = {button_, IDC_TALL_BUTTON, NM_CUSTOMDRAW};
        draw_.dwDrawStage = CDDS_PREPAINT;
        // Without smoothing every pixel is either drawn or not.
        LOGFONTW description = {};
        GetObjectW(reinterpret_cast<HFONT>(SendMessageW(button_, WM_GETFONT, 0, 0)), sizeof description,
                   &description);
        description.lfQuality = NONANTIALIASED_QUALITY;
        font_ = CreateFontIndirectW(&description);
        SendMessageW(button_, WM_SETFONT, reinterpret_cast<WPARAM>(font_), FALSE);
    }
    void TearDown() override {
        dialog_.DestroyDialogWindow();
        DeleteObject(font_);
    }

    LRESULT DrawOn(const Canvas& canvas, const wchar_t* caption) {
        SetWindowTextW(button_, caption);
        draw_.hdc = canvas.Context();
        draw_.rc = client_;
        return toolkit::DrawWrappedCaption(draw_);
    }
    // The canvas is larger than the button, so that what leaves the button is seen.
    [[nodiscard]] int Width() const { return static_cast<int>(client_.right) + 40; }
    [[nodiscard]] int Height() const { return static_cast<int>(client_.bottom) + 40; }

    TestDialog dialog_;
    HWND button_ = nullptr;
    HFONT font_ = nullptr;
    RECT client_ = {};
    NMCUSTOMDRAW draw_ = {};
    LRESULT uiState_ = 0;
};

TEST_F(WrappedCaption, DrawsAllWordsOfALongCaptionWithinTheButton) {
    const COLORREF ink = GetSysColor(COLOR_BTNTEXT);
    const Canvas whole(Width(), Height());
    EXPECT_EQ(DrawOn(whole, L"Import profile rules"), CDRF_SKIPDEFAULT);
    const RECT drawn = whole.Drawn();
    EXPECT_GE(drawn.left, 0);
    EXPECT_GE(drawn.top, 0);
    EXPECT_LE(drawn.right, client_.right);
    EXPECT_LE(drawn.bottom, client_.bottom);
    const LONG middle = client_.bottom / 2;
    EXPECT_GT(whole.Count(ink, 0, middle), 0) << "the first line";
    EXPECT_GT(whole.Count(ink, middle, client_.bottom), 0) << "the second line";

    // Line by line it is as much ink as the words have on their own.
    const Canvas first(Width(), Height());
    const Canvas second(Width(), Height());
    DrawOn(first, L"Import profile");
    DrawOn(second, L"rules");
    EXPECT_EQ(whole.Count(ink), first.Count(ink) + second.Count(ink)) << "No word is lost.";
}

TEST_F(WrappedCaption, IsInTheMiddle) {
    const Canvas canvas(Width(), Height());
    DrawOn(canvas, L"H");
    const RECT drawn = canvas.Drawn();
    constexpr LONG kTolerance = 4;
    EXPECT_LE(std::labs(drawn.left - (client_.right - drawn.right)), kTolerance);
    EXPECT_LE(std::labs(drawn.top - (client_.bottom - drawn.bottom)), kTolerance);
}

TEST_F(WrappedCaption, HasTheColourOfDisabledTextWhileTheButtonIsDisabled) {
    ASSERT_NE(GetSysColor(COLOR_GRAYTEXT), GetSysColor(COLOR_BTNTEXT));
    draw_.uItemState = CDIS_DISABLED;
    const Canvas canvas(Width(), Height());
    DrawOn(canvas, L"Import profile rules");
    EXPECT_GT(canvas.Count(GetSysColor(COLOR_GRAYTEXT)), 0);
    EXPECT_EQ(canvas.Count(GetSysColor(COLOR_BTNTEXT)), 0);
}

TEST(CaptionColorTest, IsTheOneOfButtonTextWhateverIsDoneToTheButton) {
    for (const int state : {0, CDIS_HOT, CDIS_SELECTED, CDIS_FOCUS, CDIS_DEFAULT}) {
        EXPECT_EQ(toolkit::CaptionColor(static_cast<UINT>(state), false), COLOR_BTNTEXT) << "state " << state;
    }
    EXPECT_EQ(toolkit::CaptionColor(CDIS_DISABLED, false), COLOR_GRAYTEXT);
}

TEST(CaptionColorTest, InHighContrastIsThatOfSelectedTextUnderTheMouseAndWhilePressed) {
    EXPECT_EQ(toolkit::CaptionColor(CDIS_HOT, true), COLOR_HIGHLIGHTTEXT);
    EXPECT_EQ(toolkit::CaptionColor(CDIS_SELECTED | CDIS_FOCUS, true), COLOR_HIGHLIGHTTEXT);
    EXPECT_EQ(toolkit::CaptionColor(CDIS_FOCUS | CDIS_DEFAULT, true), COLOR_BTNTEXT);
    EXPECT_EQ(toolkit::CaptionColor(CDIS_DISABLED | CDIS_HOT, true), COLOR_GRAYTEXT);
}

TEST_F(WrappedCaption, ShowsTheFocusWhereTheUserWantsToSeeIt) {
    uiState_ = 0;
    SetWindowSubclass(button_, &AnswerUiState, 1, reinterpret_cast<DWORD_PTR>(&uiState_));
    const Canvas without(Width(), Height());
    DrawOn(without, L"H");
    draw_.uItemState = CDIS_FOCUS;
    const Canvas with(Width(), Height());
    DrawOn(with, L"H");
    EXPECT_GT(with.Drawn().right, without.Drawn().right);
    EXPECT_LT(with.Drawn().right, client_.right);
    uiState_ = UISF_HIDEFOCUS;
    const Canvas hidden(Width(), Height());
    DrawOn(hidden, L"H");
    EXPECT_EQ(hidden.Drawn().right, without.Drawn().right);
}

TEST_F(WrappedCaption, LeavesTheContextAsItWas) {
    const Canvas canvas(Width(), Height());
    SetTextColor(canvas.Context(), RGB(1, 2, 3));
    SetBkMode(canvas.Context(), OPAQUE);
    const HGDIOBJ fontBefore = GetCurrentObject(canvas.Context(), OBJ_FONT);
    DrawOn(canvas, L"Import profile rules");
    EXPECT_EQ(GetTextColor(canvas.Context()), RGB(1, 2, 3));
    EXPECT_EQ(GetBkMode(canvas.Context()), OPAQUE);
    EXPECT_EQ(GetCurrentObject(canvas.Context(), OBJ_FONT), fontBefore);
}

TEST_F(WrappedCaption, LeavesOtherStagesToTheButton) {
    const Canvas canvas(Width(), Height());
    for (const int stage : {CDDS_PREERASE, CDDS_POSTERASE, CDDS_POSTPAINT}) {
        draw_.dwDrawStage = static_cast<DWORD>(stage);
        EXPECT_EQ(DrawOn(canvas, L"Import profile rules"), CDRF_DODEFAULT) << "stage " << stage;
    }
    EXPECT_EQ(canvas.Count(kPaper), Width() * Height());
}

TEST(WrappedCaptionOfAButton, IsWhatTheButtonShows) {
    TestDialog dialog(IDD_FORM);
    int drawings = 0;
    dialog.onNotify = [&](NMHDR& header, LRESULT& result) {
        if (header.code != NM_CUSTOMDRAW || header.idFrom != IDC_TALL_BUTTON) {
            return false;
        }
        result = toolkit::DrawWrappedCaption(reinterpret_cast<NMCUSTOMDRAW&>(header));
        drawings += result == CDRF_SKIPDEFAULT ? 1 : 0;
        return true;
    };
    ASSERT_TRUE(dialog.CreateModeless());
    const HWND button = dialog.Control(IDC_TALL_BUTTON);
    InvalidateRect(button, nullptr, TRUE);
    UpdateWindow(button);
    EXPECT_GT(drawings, 0) << "The button asks who draws its caption.";
}

}  // namespace
}  // namespace corvane::test
