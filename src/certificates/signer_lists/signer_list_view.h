#pragma once

#include <windows.h>

#include <commctrl.h>

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "certificates/signer_lists/signer_lists_form.h"
#include "toolkit/controls/list_view.h"

namespace corvane::certificates {

/// The list of a rule's signer lists. Its rows hold no texts; the control asks for those that it shows.
class SignerListView {
  public:
    explicit SignerListView(const SignerListsForm& form) : form_(form) {}

    /// Takes over the control and makes its columns.
    void Attach(HWND control);
    /// Shares its width out among the columns, at the scale of its dialog.
    void LayOutColumns(UINT dotsPerInch) const;

    /// Appends the rows of the lists that have none yet, and shows the others as they are now. All keep their
    /// selection.
    void Update() const;
    /// Takes the rows away whose lists are gone.
    void Delete(const std::vector<std::size_t>& rows) const;
    /// Answers the control's question for a cell's text (LVN_GETDISPINFO).
    void AnswerDisplayRequest(NMLVDISPINFOW& request);

    [[nodiscard]] const toolkit::ListView& Control() const { return list_; }

  private:
    [[nodiscard]] std::wstring CellText(std::size_t row, int column) const;

    const SignerListsForm& form_;
    toolkit::ListView list_;
    // An answered text must outlive the next two questions.
    std::array<std::wstring, 4> answers_;
    std::size_t nextAnswer_ = 0;
};

}  // namespace corvane::certificates
