#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "store/records.h"

namespace corvane::app {

/// What the main window shows of a profile that was opened.
struct OpenedProfile {
    std::wstring name;
    std::size_t csProfileCount = 0;  ///< Number of the profile's CS profile entries.
    std::size_t position = 0;        ///< Position of the profile in the configuration.

    bool operator==(const OpenedProfile&) const = default;
};

/// Makes the text of a profile row the current profile name and finds the first profile of that name; none
/// where no profile has it, the name being the current one all the same.
std::optional<OpenedProfile> OpenProfileNamed(store::ConfigurationState& state, const std::wstring& rowText);

/// What is left to do when a profile has been deleted.
struct DeletedProfile {
    /// What becomes the current profile name when nothing shows the deleted profile any more.
    std::wstring nextCurrentName;

    bool operator==(const DeletedProfile&) const = default;
};

/// Deletes the profile of the selected row, once the user has confirmed it. `rowTexts` are the rows of the
/// profile list, the selected one included. No profile is opened, and none is the current one: while the
/// window still shows rules of the deleted profile, or has just thrown their rows away, no check box may be
/// taken for one of another profile. Returns none for the only profile: it stays, and so does the dirty flag.
/// A row that the list or the configuration lacks throws std::invalid_argument, with nothing changed.
std::optional<DeletedProfile> DeleteProfile(store::ConfigurationState& state, const store::TextList& rowTexts,
                                            std::size_t selectedRow);

/// Appends a new profile; the current one stays.
void AppendProfile(store::ConfigurationState& state, store::Profile profile);

/// Tells whether there is no profile at all that could be edited, and in that case marks the configuration
/// as changed.
[[nodiscard]] bool HasNoProfileToEdit(store::ConfigurationState& state);

/// Puts an edited profile in the place of the current one; it may have a new name, which then is the current
/// one. Rules that name a CS profile that was deleted meanwhile, as their own or as the one to resign to,
/// get the profile's first CS profile instead. Returns the profile's position in the configuration, or none
/// where there is no current profile and nothing happened. Deleted CS profiles with none left throw
/// std::invalid_argument, with nothing changed: the profile editor keeps the last one.
std::optional<std::size_t> ReplaceCurrentProfile(store::ConfigurationState& state, store::Profile edited,
                                                 const store::TextList& deletedCsProfiles);

/// The caption over the rule list.
[[nodiscard]] std::wstring RuleListCaption(std::size_t csProfileCount);

/// The caption over the profile list; with an empty name while no profile is open.
[[nodiscard]] std::wstring ProfileCaption(const std::wstring& name);

/// Shown by "Delete profile", after the confirmation, where the list has no other profile (refusal).
inline constexpr wchar_t kLastProfileText[] = L"Last profile cannot be deleted.";

/// The question of "Delete profile"; `currentProfileName` as it is before the deletion (confirmation).
[[nodiscard]] std::wstring DeleteProfileQuestion(const std::wstring& currentProfileName);

/// The question of "Delete rule", with the number of selected rows (confirmation).
[[nodiscard]] std::wstring DeleteRulesQuestion(std::size_t selectedCount);

}  // namespace corvane::app
