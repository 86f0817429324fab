#pragma once

#include <optional>
#include <string>

#include "reporting/refusal.h"
#include "store/records.h"

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

    /// What is said when the user wants to delete an additional extension and none is selected.
    [[nodiscard]] static reporting::Refusal NothingToDelete();
    /// What is asked before the selected additional extension is deleted.
    [[nodiscard]] static reporting::Question DeletionQuestion(const std::wstring& extension);
    /// The user deleted an additional extension.
    void OnExtensionDeleted() { isModified_ = true; }

    /// The user pressed Apply; `listed` are the entries of the list box, in its order. Returns what is
    /// refused, or none where nothing is to be mended.
    [[nodiscard]] std::optional<reporting::Refusal> Apply(const store::TextList& listed);

  private:
    bool isModified_ = false;
};

}  // namespace corvane::app
