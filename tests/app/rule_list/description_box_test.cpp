#include "tests/kit/driver/icon.h"
#include "tests/kit/driver/remote_block.h"
#include "tests/kit/driver/waiting.h"
#include "tests/kit/fixtures/editor_fixture.h"

namespace corvane::test {
namespace {

class RightClick : public EditorTest {
  protected:
    void ExpectCellBox(int row, int column, const std::wstring& title, const std::wstring& text) const {
        Rules().PostRightClick(Rules().CellCentre(row, column));
        ExpectMessageBox(Main(), text, kInformation, IDOK, title);
        WaitForMain();
    }
    [[nodiscard]] Window OpenExtra(int row) const {
        Rules().PostRightClick(Rules().CellCentre(row, kExtraColumn));
        return Editor().WaitForDialog(Main());
    }
    void CloseExtra(const Window& box) const {
        box.Control(IDCANCEL).PostClick();
        box.WaitUntilGone();
        WaitForMain();
    }
    void ExpectExtra(int row, const std::wstring& text) const {
        const Window box = OpenExtra(row);
        EXPECT_EQ(box.Text(), L"Extra");
        EXPECT_EQ(box.Control(IDC_WARNING_BOX_EDIT).Text(), text);
        CloseExtra(box);
    }
};

TEST_F(RightClick, ShowsEachOrdinaryCellUnderItsHeading) {
    StartWithSample();
    ExpectCellBox(kEncrypt, kNumberColumn, L"", L"1");
    ExpectCellBox(kEncrypt, kDescriptionColumn, L"Description", L"Encrypt orders");
    ExpectCellBox(kEncrypt, kOperationColumn, L"Rules", L"Encrypt");
    ExpectCellBox(kEncrypt, kInputColumn, L"Input folder", L"C:\\in");
    ExpectCellBox(kEncrypt, kOutputColumn, L"Output folder", L"C:\\out");
    ExpectCellBox(kEncrypt, kErrorColumn, L"Error folder", L"C:\\failed");
    ExpectCellBox(kEncrypt, kCsProfileColumn, L"CS profile", L"CS one");
    ExpectNothingToSave();
}

TEST_F(RightClick, ShowsABlankedCellAsItIsShown) {
    StartWithSample();
    ExpectCellBox(kMove, kErrorColumn, L"Error folder", L"");
    ExpectCellBox(kMove, kOutputColumn, L"Output folder", L"0");
}

TEST_F(RightClick, ListsAllMasksBelowAnEmptyLine) {
    StartWithSample();
    ExpectCellBox(kMove, kMasksColumn, L"Masks", L"\r\n*.a\r\n*.b");
    ExpectCellBox(kEncrypt, kMasksColumn, L"Masks", L"\r\n*.xml");
}

TEST_F(RightClick, OnExtraListsTheRecipients) {
    StartWithSample();
    ExpectExtra(kEncrypt,
                L"Recipient 1:\r\nCN=First\r\n\r\nRecipient 2:\r\nCN=Second\r\n\r\nZIP archivation\r\n\r\n");
}

// Deliberate: a second output folder replaces what stood before it, and a blank stands before its colon.
TEST_F(RightClick, OnExtraASecondOutputFolderReplacesWhatStoodBefore) {
    StartWithSample();
    ExpectExtra(kMove,
                L"Second Output folder : C:\\second\r\n\r\nDelete extension: tmp\r\n\r\nAdd extension: "
                L"done\r\n\r\n");
}

TEST_F(RightClick, OnExtraTellsTheResignSettingsAndTheSignerLists) {
    StartWithSample();
    ExpectExtra(kResign,
                L"Resign to CS profile: CS two\r\nDetached signature->Attached signature\r\n\r\nList name: "
                L"Board\r\nSigner 1:\r\nCN=Chair\r\nSigner 2:\r\nCN=Secretary\r\n\r\n");
}

TEST_F(RightClick, OnExtraTellsTheArchiveSettings) {
    StartWithSample();
    ExpectExtra(kPack,
                L"GZIP archivation\r\n\r\nFile count: 10\r\n\r\nArchive size (KB.): 2048\r\n\r\nArchivation "
                L"timeout (min.): 5\r\n\r\nArchives name format: pack\r\n\r\n");
}

TEST_F(RightClick, OnExtraTellsTheExecutionSettings) {
    StartWithSample();
    ExpectExtra(kExecute, L"Executable file: C:\\tool.exe\r\n\r\nExecution timeout (min.): 7\r\n\r\n");
}

TEST_F(RightClick, OnExtraOfAPlainRuleShowsAnEmptyText) {
    StartWithSample();
    ExpectExtra(kDelete, L"");
}

TEST_F(RightClick, FindsTheRuleByItsNumberAlsoUnderAFilter) {
    StartWithSample();
    Control(IDC_SEARCH_EDIT).SetText(L"tool");
    ASSERT_EQ(Rules().RowCount(), 1);
    ExpectExtra(0, L"Executable file: C:\\tool.exe\r\n\r\nExecution timeout (min.): 7\r\n\r\n");
}

TEST_F(RightClick, BelowTheLastRowDoesNothing) {
    StartWithSample();
    Rules().PostRightClick(Rules().PointBelowRows());
    ExpectNoDialog();
}

TEST_F(RightClick, ChangesNothing) {
    WriteSampleConfiguration();
    const auto before = ReadRegistryTree(L"");
    Start();
    ExpectCellBox(kMove, kMasksColumn, L"Masks", L"\r\n*.a\r\n*.b");
    CloseExtra(OpenExtra(kMove));
    ExpectNothingToSave();
    EXPECT_EQ(ReadRegistryTree(L""), before);
}

class DescriptionBox : public RightClick {};

TEST_F(DescriptionBox, OffersOkAlone) {
    StartWithSample();
    const Window box = OpenExtra(kEncrypt);
    EXPECT_FALSE(box.Control(IDOK).IsVisible());
    EXPECT_FALSE(box.Control(IDOK).IsEnabled());
    EXPECT_EQ(box.Control(IDOK).Text(), L"Continue");
    EXPECT_EQ(box.Control(IDCANCEL).Text(), L"OK");
    EXPECT_EQ(LOWORD(box.Send(DM_GETDEFID)), IDCANCEL);
    CloseExtra(box);
}

TEST_F(DescriptionBox, CarriesTheInformationIcon) {
    StartWithSample();
    const Window box = OpenExtra(kEncrypt);
    EXPECT_TRUE(IconOf(box, IconPlace::kLargeWindowIcon, IDI_INFO_MODE).showsResource);
    EXPECT_TRUE(IconOf(box, IconPlace::kSmallWindowIcon, IDI_INFO_MODE).showsResource);
    CloseExtra(box);
}

TEST_F(DescriptionBox, IsClosedByEscapeByEnterAndByItsCloseBox) {
    StartWithSample();
    for (const int key : {VK_ESCAPE, VK_RETURN}) {
        const Window box = OpenExtra(kEncrypt);
        box.FocusOfThread().PostKey(static_cast<WPARAM>(key));
        box.WaitUntilGone();
        WaitForMain();
    }
    const Window box = OpenExtra(kEncrypt);
    box.Post(WM_SYSCOMMAND, SC_CLOSE);
    box.WaitUntilGone();
    WaitForMain();
    ExpectNothingToSave();
}

TEST_F(DescriptionBox, ResizingMovesTheButtonsAndGrowsTheText) {
    StartWithSample();
    const Window box = OpenExtra(kEncrypt);
    const RECT window = box.Bounds();
    const RECT button = box.Control(IDCANCEL).BoundsInParent();
    const RECT hidden = box.Control(IDOK).BoundsInParent();
    const RECT edit = box.Control(IDC_WARNING_BOX_EDIT).BoundsInParent();
    SetWindowPos(box.Handle(), nullptr, 0, 0, window.right - window.left + 60,
                 window.bottom - window.top + 40, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_TRUE(WaitUntil([&] { return box.Control(IDCANCEL).BoundsInParent().left == button.left + 60; }));
    const RECT movedButton = box.Control(IDCANCEL).BoundsInParent();
    EXPECT_EQ(movedButton.left, button.left + 60);
    EXPECT_EQ(movedButton.top, button.top + 40);
    EXPECT_EQ(movedButton.right, button.right + 60);
    EXPECT_EQ(box.Control(IDOK).BoundsInParent().left, hidden.left + 60);
    const RECT grown = box.Control(IDC_WARNING_BOX_EDIT).BoundsInParent();
    EXPECT_EQ(grown.left, edit.left);
    EXPECT_EQ(grown.top, edit.top);
    EXPECT_EQ(grown.right, edit.right + 60);
    EXPECT_EQ(grown.bottom, edit.bottom + 40);
    CloseExtra(box);
}

// A minimised box has no client area, which must not be taken for the size that its controls stand in.
TEST_F(DescriptionBox, AnotherScaleAndBackWhileMinimisedMovesNothing) {
    StartWithSample();
    const Window box = OpenExtra(kEncrypt);
    const RECT button = box.Control(IDCANCEL).BoundsInParent();
    const RECT edit = box.Control(IDC_WARNING_BOX_EDIT).BoundsInParent();
    ShowWindow(box.Handle(), SW_SHOWMINNOACTIVE);
    ASSERT_TRUE(WaitUntil([&] { return box.IsMinimised(); }));
    for (const UINT dotsPerInch : {144U, 96U}) {
        RemoteBlock block(box.Handle(), sizeof(RECT));
        block.Put(box.Bounds());
        box.Send(WM_DPICHANGED, MAKEWPARAM(dotsPerInch, dotsPerInch), block.Parameter());
    }
    ShowWindow(box.Handle(), SW_RESTORE);
    ASSERT_TRUE(WaitUntil([&] { return !box.IsMinimised() && box.Bounds().left > -10000; }));
    box.Send(WM_NULL);
    const RECT buttonAfter = box.Control(IDCANCEL).BoundsInParent();
    const RECT editAfter = box.Control(IDC_WARNING_BOX_EDIT).BoundsInParent();
    EXPECT_TRUE(EqualRect(&buttonAfter, &button)) << buttonAfter.left << ", " << buttonAfter.top;
    EXPECT_TRUE(EqualRect(&editAfter, &edit)) << editAfter.right << ", " << editAfter.bottom;
    CloseExtra(box);
}

TEST_F(DescriptionBox, KeepsASmallestSize) {
    StartWithSample();
    const Window box = OpenExtra(kEncrypt);
    const POINT smallest = box.SmallestTrackingSize();
    const RECT button = box.Control(IDCANCEL).Bounds();
    EXPECT_EQ(smallest.x, 2 * (GetSystemMetrics(SM_CXVSCROLL) + 3 * (button.right - button.left)));
    EXPECT_EQ(smallest.y, 2 * (GetSystemMetrics(SM_CYVSCROLL) + 5 * (button.bottom - button.top)));
    CloseExtra(box);
}

}  // namespace
}  // namespace corvane::test
