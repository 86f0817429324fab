#include "toolkit/dialog/anchored_layout.h"

#include <algorithm>

#include "toolkit/dialog/window_geometry.h"

namespace corvane::toolkit {

namespace {

int ShareOf(GrowthShare share, int growth) {
    switch (share) {
        case GrowthShare::kHalf:
            return growth / 2;
        case GrowthShare::kRest:
            return growth - growth / 2;
        case GrowthShare::kAll:
            return growth;
        default:
            return 0;
    }
}

}  // namespace

void AnchoredLayout::Remember(HWND dialog, const std::vector<Anchor>& anchors) {
    dialog_ = dialog;
    RECT client = {};
    GetClientRect(dialog, &client);
    client_ = {client.right, client.bottom};
    controls_.clear();
    for (const Anchor& anchor : anchors) {
        controls_.push_back({anchor, PlaceOf(GetDlgItem(dialog, anchor.controlId))});
    }
}

void AnchoredLayout::Rescale(const SIZE& templateClient) {
    if (dialog_ == nullptr) {
        return;
    }
    client_ = templateClient;
    for (AnchoredControl& control : controls_) {
        control.place = PlaceOf(GetDlgItem(dialog_, control.anchor.controlId));
    }
    if (IsIconic(dialog_) == FALSE) {
        RECT client = {};
        GetClientRect(dialog_, &client);
        Arrange(client.right, client.bottom);
    }
}

void AnchoredLayout::Arrange(int width, int height) const {
    const int growthX = width - static_cast<int>(client_.cx);
    const int growthY = height - static_cast<int>(client_.cy);
    // Where the dialog is smaller than its template, what would grow gives way.
    const auto grown = [](LONG size, int growth) { return std::max(0, static_cast<int>(size) + growth); };
    for (const AnchoredControl& control : controls_) {
        const Anchor& anchor = control.anchor;
        const RECT& place = control.place;
        // The height of a combo box is that of its open list; it is left alone where nothing grows.
        const bool keepsSize = anchor.growX == GrowthShare::kNone && anchor.growY == GrowthShare::kNone;
        SetWindowPos(GetDlgItem(dialog_, anchor.controlId), nullptr,
                     place.left + ShareOf(anchor.moveX, growthX), place.top + ShareOf(anchor.moveY, growthY),
                     grown(place.right - place.left, ShareOf(anchor.growX, growthX)),
                     grown(place.bottom - place.top, ShareOf(anchor.growY, growthY)),
                     SWP_NOZORDER | SWP_NOACTIVATE | (keepsSize ? SWP_NOSIZE : 0U));
    }
}

void AnchoredLayout::LimitSize(MINMAXINFO& info) const {
    // The frame of a minimised dialog is not the one that it gets back.
    if (dialog_ == nullptr || IsIconic(dialog_) != FALSE) {
        return;
    }
    // What the frame adds to the client area, at this scale and whatever the frame looks like.
    RECT frame = {};
    RECT client = {};
    GetWindowRect(dialog_, &frame);
    GetClientRect(dialog_, &client);
    info.ptMinTrackSize.x = client_.cx + (frame.right - frame.left) - client.right;
    info.ptMinTrackSize.y = client_.cy + (frame.bottom - frame.top) - client.bottom;
}

}  // namespace corvane::toolkit
