#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "editors/rule/rule_form.h"
#include "store/records.h"

namespace corvane::editors {

/// What the file picker for the executable offers. The file must exist.
inline constexpr wchar_t kExecutableFilter[] = L"All files (*.*)|*.*||";
inline constexpr wchar_t kExecutableDefaultExtension[] = L"*.*";

/// What the certificate button opens.
enum class CertCommand { kNone, kPickFolder, kPickExecutable, kEditSignerLists, kChooseRecipients };

/// What the certificate button opens for the operation whose fields are shown.
[[nodiscard]] CertCommand CertButtonCommand(const RuleForm& form);

/// The position of the CS profile under which certificates are searched: the selected one, or one beyond
/// the profile's, which has no settings but the defaults, where none is selected.
[[nodiscard]] std::size_t SelectedCsProfileIndex(const RuleForm& form);

// What the form takes when the opened dialog ended with OK. After a Cancel nothing is to be called.

/// Takes the folder or the executable that the user picked.
void TakeCertPath(RuleForm& form, const std::wstring& path);
/// Takes the recipients in place of those it has, and shows their number.
void TakeRecipients(RuleForm& form, store::TextList recipients);
/// Takes the signer lists in place of those it has, and shows their number.
void TakeSignerLists(RuleForm& form, std::vector<store::SignerGroup> signerLists);

}  // namespace corvane::editors
