#pragma once

#include <string>

#include "tests/kit/driver/window.h"

namespace corvane::test {

/// The system's dialog for saving or opening a file, open in the driven program.
class FileDialog : public Window {
  public:
    explicit FileDialog(const Window& window) : Window(window) {}

    [[nodiscard]] std::wstring FileName() const;
    void SetFileName(const std::wstring& path) const;
    /// The entries of the choice of file types.
    [[nodiscard]] std::vector<std::wstring> FileTypes() const;
    /// Presses the button that saves or opens; does not wait, as a question may follow.
    void Confirm() const;
    /// Gives up and waits until the dialog is gone.
    void GiveUp() const;

  private:
    [[nodiscard]] Window FileNameField() const;
};

}  // namespace corvane::test
