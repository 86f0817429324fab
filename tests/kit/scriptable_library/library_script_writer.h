#pragma once

#include <cstdint>
#include <string>

#include "tests/kit/scriptable_library/library_script.h"

namespace corvane::test {

/// Puts the script of the scriptable library together, entry by entry; library_script.h tells what each does.
/// Texts are bytes in the code page of the test, none is a null pointer.
class LibraryScriptWriter {
  public:
    using Text = ScriptText;

    /// Stands for every call of a function, and for every search that nothing else is said of.
    static constexpr unsigned kEvery = 0;

    /// Lets call `number` (from 1) of a function answer `status`; "Initialize", "FindCert" and so on.
    void Status(const std::string& function, unsigned number, std::uint32_t status);
    /// Lets call `number` wait until the event of the system with this name is set.
    void Hold(const std::string& function, unsigned number, const std::string& eventName);
    /// The same, and lets it handle messages meanwhile, as a library does that shows something.
    void Pump(const std::string& function, unsigned number, const std::string& eventName);
    /// The description of a status.
    void ErrorText(std::uint32_t status, const std::string& text);
    /// One more entry of the error stack of context `number` (from 1; 0: of a failed opening).
    void Error(unsigned number, const Text& text, const Text& file, std::uint32_t line, const Text& data);
    /// What the control call writes into its buffer.
    void ControlText(const std::string& text);
    /// One more certificate that search `number` finds, kEvery for all searches without one of their own.
    void Certificate(unsigned number, const Text& owner, std::uint8_t usage = 0x1C,
                     const Text& issuer = "CN=Root,C=GB", const Text& serial = "\x0A\x1B\xFF");
    /// The same for all searches with this pattern.
    void CertificateFor(const std::string& pattern, const Text& owner, std::uint8_t usage = 0x1C,
                        const Text& issuer = "CN=Root,C=GB", const Text& serial = "\x0A\x1B\xFF");
    /// Search `number` finds no entry: count 0, no array.
    void Nothing(unsigned number);
    void NothingFor(const std::string& pattern);

    [[nodiscard]] const LibraryScript& Script() const { return script_; }

  private:
    LibraryScript script_;
};

}  // namespace corvane::test
