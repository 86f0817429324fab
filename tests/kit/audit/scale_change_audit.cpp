#include "tests/kit/audit/scale_change_audit.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "tests/kit/audit/dialog_audit.h"
#include "tests/kit/audit/picture.h"
#include "tests/kit/driver/failure.h"
#include "tests/kit/driver/icon.h"
#include "tests/kit/driver/scale_change.h"

namespace corvane::test {

namespace {

void ExpectNothing(const std::vector<std::wstring>& faults, const std::string& when) {
    for (const std::wstring& fault : faults) {
        ADD_FAILURE() << when << ": " << Utf8(fault);
    }
}

/// A picture in a static control has the size of the scale that is shown.
void ExpectPictures(const Window& dialog, UINT scale) {
    for (const Window& control : dialog.Children()) {
        if (!control.IsOfClass(L"Static") || (control.Style() & SS_TYPEMASK) != SS_ICON) {
            continue;
        }
        const IconView icon = IconOf(control, IconPlace::kStatic);
        EXPECT_EQ(icon.width, MulDiv(32, static_cast<int>(scale), 96)) << "at " << scale << " dots per inch";
    }
}

void Resize(const Window& dialog, SIZE size) {
    SetWindowPos(dialog.Handle(), nullptr, 0, 0, size.cx, size.cy,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    dialog.Send(WM_NULL);
}

/// From the dialog's own scale to larger and smaller ones and back. At each the dialog is looked at.
void GoRound(const Window& dialog, const std::string& name, const std::function<void()>& atHome) {
    const auto own = static_cast<UINT>(ScreenDpi());
    for (const UINT scale : {96U, 120U, 144U, 168U}) {
        if (scale == own) {
            continue;
        }
        MoveToScreenOfScale(dialog, own, scale);
        const std::string when = name + " at " + std::to_string(scale) + " dots per inch";
        if (scale == 96 || scale == 144) {
            KeepPicture(dialog, name + "_brought_to_another_scale_from");
        }
        ExpectNothing(CutOffTexts(dialog), when);
        ExpectNothing(MisplacedControls(dialog), when);
        ExpectPictures(dialog, scale);
        MoveToScreenOfScale(dialog, scale, own);
        ExpectPictures(dialog, own);
        atHome();
    }
    for (const UINT scale : {own * 3 / 2, own * 2 / 3}) {
        MoveToScreenOfScale(dialog, own, scale);
        MoveToScreenOfScale(dialog, scale, own * 5 / 4);
        MoveToScreenOfScale(dialog, own * 5 / 4, own);
    }
    atHome();
}

}  // namespace

void ExpectScaleChangesKeepPlaces(const Window& dialog, const std::string& name) {
    dialog.Send(WM_NULL);
    const DialogPlaces places = PlacesIn(dialog);
    GoRound(dialog, name, [&] { ExpectNothing(Moved(dialog, places), name + " back home"); });
}

void ExpectScaleChangesKeepResizablePlaces(const Window& dialog, const std::string& name) {
    dialog.Send(WM_NULL);
    const DialogPlaces places = PlacesIn(dialog);
    const SIZE larger = {places.size.cx + 61, places.size.cy + 47};
    Resize(dialog, larger);
    const DialogPlaces largerPlaces = PlacesIn(dialog);
    GoRound(dialog, name, [&] {
        // By rounding, the way back may end a pixel beside the first size.
        Resize(dialog, larger);
        ExpectNothing(Moved(dialog, largerPlaces), name + " back home");
    });
    Resize(dialog, places.size);
    ExpectNothing(Moved(dialog, places), name + " at its first size");
}

}  // namespace corvane::test
