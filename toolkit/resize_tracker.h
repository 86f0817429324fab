#pragma once

namespace toolkit {

/// Remembers the size of a client area, in pixels, and tells by how much it changed.
class ResizeTracker {
  public:
    struct Change {
        int width = 0;
        int height = 0;
    };

    void Remember(int width, int height) {
        width_ = width;
        height_ = height;
    }

    /// The change since the remembered size; the new size is remembered from now on.
    Change ChangeTo(int width, int height) {
        const Change change = {width - width_, height - height_};
        Remember(width, height);
        return change;
    }

  private:
    int width_ = 0;
    int height_ = 0;
};

}  // namespace toolkit
