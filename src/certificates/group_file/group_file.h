#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "certificates/selection/selection_form.h"
#include "reporting/error_reporter.h"
#include "reporting/refusal.h"
#include "store/records.h"
#include "toolkit/files/file_calls.h"
#include "toolkit/system/window_handle.h"
#include "toolkit/text/system_text.h"

// A user group file: one owner per line, each line ended by CR LF, in the system's ANSI code page.

namespace corvane::certificates {

inline constexpr wchar_t kGroupFileExtension[] = L"grx";

/// The owners of a file, in file order. A line counts only when it is ended by CR LF, is not empty and holds
/// "="; a lone CR or LF belongs to its line, and a zero byte ends the file.
[[nodiscard]] store::TextList ParseGroupFile(std::string_view bytes, const toolkit::SystemText& systemText);

/// The bytes of a file with these owners. Characters that the code page lacks are lost.
[[nodiscard]] std::string FormatGroupFile(const store::TextList& owners,
                                          const toolkit::SystemText& systemText);

/// What the file dialogs of the selection dialog offer.
struct GroupFileOffer {
    std::wstring fileName;  ///< Proposed path or name; empty for none.
    std::wstring folder;    ///< Where the dialog starts when there is no proposed path; empty for none.
    std::wstring filter;    ///< Descriptions and patterns in turn, each ended by "|", one more at the end.
};

/// The offer for opening a group file.
[[nodiscard]] GroupFileOffer OfferToOpenGroup(const RecipientSelectionForm& form);

/// The offer for saving one.
[[nodiscard]] GroupFileOffer OfferToSaveGroup(const RecipientSelectionForm& form);

/// Why there is nothing to save: nobody is checked. Else none.
[[nodiscard]] std::optional<reporting::Refusal> CheckGroupToSave(const RecipientSelectionForm& form);

/// Remembers the path that the user chose and adds the file's owners to the upper list. False after a
/// failure, which has been reported and left the lists as they were.
bool LoadGroupFile(RecipientSelectionForm& form, const std::wstring& path, toolkit::FileCalls& files,
                   reporting::ErrorReporter& reporter, toolkit::WindowHandle dialog);

/// Remembers the path that the user chose and writes the checked owners of the upper list, as shown. False
/// after a failure, which has been reported.
bool SaveGroupFile(RecipientSelectionForm& form, const std::wstring& path, toolkit::FileCalls& files,
                   reporting::ErrorReporter& reporter, toolkit::WindowHandle dialog);

}  // namespace corvane::certificates
