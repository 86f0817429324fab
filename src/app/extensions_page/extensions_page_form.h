#pragma once

#include <optional>
#include <string>

#include "reporting/error_reporter.h"
#include "store/records.h"
#include "toolkit/system/window_handle.h"

namespace corvane::app {

/// The texts of the file name extensions page.
inline constexpr wchar_t kConfigPageTitle[] = L"Configurations";
inline constexpr wchar_t kConfigPageExitText[] = L"Exit";
inline constexpr wchar_t kConfigPageApplyText[] = L"Apply";
inline constexpr wchar_t kAddExtensionText[] = L"Add";
inline constexpr wchar_t kDeleteExtensionText[] = L"Delete";

/// A basic extension of the settings.
using ExtensionField = store::FieldOf<store::AppSettings, std::wstring>;

/// What the file name extensions page edits and decides. The dialog copies the eight basic extensions of
/// `settings` from and to its controls; its list box keeps the additional ones, sorted.
class ConfigPageForm {
  public:
    explicit ConfigPageForm(store::AppSettings settingsInForce);

    /// The settings as edited. The additional extensions are those of the last Apply; whoever takes the
    /// settings after OK gets them so, the basic ones as they stand.
    store::AppSettings settings;

    /// Something was changed since the opening or the last Apply.
    [[nodiscard]] bool IsModified() const { return isModified_; }

    /// The user changed the text of a basic extension.
    void OnExtensionEdited() { isModified_ = true; }

    /// The user entered an additional extension. Returns whether it is to be added; one that is listed
    /// already is dropped without a message.
    [[nodiscard]] bool AddExtension(bool isListed);

    /// The user wants to delete the selected additional extension, if there is one. Returns whether it is to
    /// be removed; question and refusal are owned by `dialog`.
    [[nodiscard]] bool DeleteExtension(const std::optional<std::wstring>& selected,
                                       reporting::ErrorReporter& reporter, toolkit::WindowHandle dialog);

    /// The user pressed Apply; `listed` are the entries of the list box, in its order. Returns the basic
    /// extension that is missing, which was told, owned by `dialog`; none where nothing is to be mended.
    std::optional<ExtensionField> Apply(const store::TextList& listed, reporting::ErrorReporter& reporter,
                                        toolkit::WindowHandle dialog);

    /// The user pressed OK. Returns whether the dialog may end. Nothing is checked here; but changes that
    /// were not applied want the user's consent.
    [[nodiscard]] bool Confirm(reporting::ErrorReporter& reporter, toolkit::WindowHandle dialog) const;

  private:
    bool isModified_ = false;
};

}  // namespace corvane::app
