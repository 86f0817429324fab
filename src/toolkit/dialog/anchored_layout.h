#pragma once

#include <windows.h>

#include <vector>

namespace corvane::toolkit {

/// A share of what a dialog has grown: the half and the rest make the whole, to the pixel.
enum class GrowthShare { kNone, kHalf, kRest, kAll };

/// How a control follows the size of its dialog.
struct Anchor {
    int controlId = 0;
    GrowthShare moveX = GrowthShare::kNone;
    GrowthShare moveY = GrowthShare::kNone;
    GrowthShare growX = GrowthShare::kNone;
    GrowthShare growY = GrowthShare::kNone;
};

/// Keeps the controls of a dialog in their places while the dialog is resized. Every place is reckoned from
/// the one in the template, so that nothing drifts, however often the size changes.
class AnchoredLayout {
  public:
    /// Remembers the dialog and its controls as the template made them.
    void Remember(HWND dialog, const std::vector<Anchor>& anchors);
    /// The dialog has come to another scale, at which its template has this client area and every control is
    /// where the template has it: that is remembered from now on, and the controls are put where they belong
    /// in the dialog's present size. A minimised dialog has none; it tells its size when it is restored.
    void Rescale(const SIZE& templateClient);
    /// Puts the controls where they belong in a client area of this size, in pixels.
    void Arrange(int width, int height) const;
    /// Keeps the user from making the dialog smaller than its template (WM_GETMINMAXINFO).
    void LimitSize(MINMAXINFO& info) const;

  private:
    struct AnchoredControl {
        Anchor anchor;
        RECT place = {};
    };

    HWND dialog_ = nullptr;
    SIZE client_ = {};  ///< Of the template, at the present scale.
    std::vector<AnchoredControl> controls_;
};

}  // namespace corvane::toolkit
