#include "tests/kit/driver/scale_change.h"

#include "tests/kit/driver/remote_block.h"

namespace corvane::test {

namespace {

std::wstring InWords(const RECT& place) {
    return std::to_wstring(place.left) + L", " + std::to_wstring(place.top) + L" to " +
           std::to_wstring(place.right) + L", " + std::to_wstring(place.bottom);
}

}  // namespace

void MoveToScreenOfScale(const Window& window, UINT from, UINT to) {
    RECT suggested = window.Bounds();
    suggested.right = suggested.left +
                      MulDiv(suggested.right - suggested.left, static_cast<int>(to), static_cast<int>(from));
    suggested.bottom = suggested.top +
                       MulDiv(suggested.bottom - suggested.top, static_cast<int>(to), static_cast<int>(from));
    RemoteBlock block(window.Handle(), sizeof suggested);
    block.Put(suggested);
    window.Send(WM_DPICHANGED, MAKEWPARAM(to, to), block.Parameter());
}

DialogPlaces PlacesIn(const Window& dialog) {
    const RECT bounds = dialog.Bounds();
    DialogPlaces places = {{bounds.right - bounds.left, bounds.bottom - bounds.top}, {}};
    for (const Window& child : dialog.Children()) {
        places.children.push_back(child.BoundsInParent());
    }
    return places;
}

std::vector<std::wstring> Moved(const Window& dialog, const DialogPlaces& expected) {
    std::vector<std::wstring> moved;
    const DialogPlaces places = PlacesIn(dialog);
    if (places.size.cx != expected.size.cx || places.size.cy != expected.size.cy) {
        moved.push_back(dialog.Name() + L" is " + std::to_wstring(places.size.cx) + L" by " +
                        std::to_wstring(places.size.cy) + L" instead of " +
                        std::to_wstring(expected.size.cx) + L" by " + std::to_wstring(expected.size.cy) +
                        L".");
    }
    const std::vector<Window> children = dialog.Children();
    if (children.size() != expected.children.size()) {
        moved.push_back(dialog.Name() + L" has other controls than before.");
        return moved;
    }
    for (std::size_t i = 0; i < children.size(); ++i) {
        if (EqualRect(&places.children[i], &expected.children[i]) == FALSE) {
            moved.push_back(children[i].Name() + L" is at " + InWords(places.children[i]) + L" instead of " +
                            InWords(expected.children[i]) + L".");
        }
    }
    return moved;
}

}  // namespace corvane::test
