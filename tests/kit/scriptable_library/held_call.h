#pragma once

#include <windows.h>

#include <string>

#include "tests/kit/driver/program.h"
#include "tests/kit/scriptable_library/library_script_writer.h"

namespace corvane::test {

/// Holds one call of the scriptable library until the test has seen what it wants to see. It is let go with
/// this object at the latest.
class HeldCall {
  public:
    enum class Meanwhile {
        kBlocks,           ///< The thread does nothing else.
        kHandlesMessages,  ///< As a library does that shows something.
    };

    /// Writes it into a script that has not been installed yet.
    HeldCall(LibraryScriptWriter& script, const std::string& function, unsigned number,
             Meanwhile meanwhile = Meanwhile::kBlocks);
    ~HeldCall() { Release(); }
    HeldCall(const HeldCall&) = delete;
    HeldCall& operator=(const HeldCall&) = delete;
    HeldCall(HeldCall&&) = delete;
    HeldCall& operator=(HeldCall&&) = delete;

    void Release() const { SetEvent(event_.get()); }

  private:
    UniqueHandle event_;
};

/// The text of a window whose program is too busy to be asked.
[[nodiscard]] std::wstring StoredText(const Window& window);

/// Waits for the wait window of a program.
[[nodiscard]] Window WaitForWaitWindow(const Program& program);

}  // namespace corvane::test
