#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "certificates/selection/selection_form.h"
#include "reporting/refusal.h"
#include "toolkit/controls/supplied_list_view.h"

namespace corvane::certificates {

/// One of the two lists of a selection form: its owners as they are shown, and what is done with them.
class OwnerRows : public toolkit::RowSource {
  public:
    [[nodiscard]] virtual OwnerRow Row(std::size_t row) const = 0;
    /// Sorts the rows.
    virtual void ClickHeader() = 0;
    [[nodiscard]] virtual SortMark Mark() const = 0;
    [[nodiscard]] virtual reporting::Information Details(std::size_t row) const = 0;

    [[nodiscard]] std::wstring CellText(std::size_t row, std::size_t /*column*/) const override {
        return std::wstring(Row(row).owner);
    }
    [[nodiscard]] bool IsTicked(std::size_t row) const override { return Row(row).isChecked; }
};

/// The owners that were found. The form must outlive this.
class FoundOwners final : public OwnerRows {
  public:
    explicit FoundOwners(RecipientSelectionForm& form) : form_(form) {}
    [[nodiscard]] std::size_t RowCount() const override { return form_.FoundRowCount(); }
    [[nodiscard]] OwnerRow Row(std::size_t row) const override { return form_.FoundRow(row); }
    void Tick(std::size_t row, bool isTicked) override { form_.CheckFound(row, isTicked); }
    void ClickHeader() override { form_.ClickFoundHeader(); }
    [[nodiscard]] SortMark Mark() const override { return form_.FoundSortMark(); }
    [[nodiscard]] reporting::Information Details(std::size_t row) const override {
        return form_.FoundDetails(row);
    }

  private:
    RecipientSelectionForm& form_;
};

/// The owners that are chosen. The form must outlive this.
class ChosenOwners final : public OwnerRows {
  public:
    explicit ChosenOwners(RecipientSelectionForm& form) : form_(form) {}
    [[nodiscard]] std::size_t RowCount() const override { return form_.ChosenRowCount(); }
    [[nodiscard]] OwnerRow Row(std::size_t row) const override { return form_.ChosenRow(row); }
    void Tick(std::size_t row, bool isTicked) override { form_.CheckChosen(row, isTicked); }
    void ClickHeader() override { form_.ClickChosenHeader(); }
    [[nodiscard]] SortMark Mark() const override { return form_.ChosenSortMark(); }
    [[nodiscard]] reporting::Information Details(std::size_t row) const override {
        return form_.ChosenDetails(row);
    }

  private:
    RecipientSelectionForm& form_;
};

/// A list of certificate owners with check boxes, in one column.
///
/// Beyond what the control does by itself, the space bar gives all selected rows the tick of the one with the
/// focus, and each half of a double click on a check box is a click.
class OwnerListView {
  public:
    /// `owners` must outlive the list.
    explicit OwnerListView(OwnerRows& owners) : owners_(owners), list_(owners) {}
    OwnerListView(const OwnerListView&) = delete;
    OwnerListView& operator=(const OwnerListView&) = delete;
    OwnerListView(OwnerListView&&) = delete;
    OwnerListView& operator=(OwnerListView&&) = delete;
    ~OwnerListView();

    /// Takes over the control, until it or this is gone, and shows the owners in it.
    void Attach(HWND control, const std::wstring& heading);
    /// Makes a change of the owners and shows what there is now. Selection and focus mark follow their
    /// owners, as far as these are still there, and the list stays where it is scrolled to.
    void Change(const std::function<void()>& change);
    /// Makes the column as wide as the client area.
    void FitColumn() const;
    /// Fits check boxes and column to the list's present scale.
    void Rescale();

    /// Takes a notification of the control. True when it is done with.
    bool Answer(NMHDR& header);

    [[nodiscard]] const OwnerRows& Owners() const { return owners_; }
    [[nodiscard]] const toolkit::ListView& Control() const { return list_; }

  private:
    /// What the user would miss after the owners have changed.
    struct Place {
        store::TextList selectedOwners;
        std::optional<std::wstring> focusedOwner;
        int topRow = 0;
    };

    static LRESULT CALLBACK Procedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam,
                                      UINT_PTR subclass, DWORD_PTR self);
    LRESULT PressSpace(WPARAM wParam, LPARAM lParam) const;
    [[nodiscard]] Place CurrentPlace() const;
    void Show(const Place& place);
    [[nodiscard]] std::vector<std::size_t> SelectedRows() const;
    void RestoreMarks(const Place& place) const;

    OwnerRows& owners_;
    toolkit::SuppliedListView list_;
};

}  // namespace corvane::certificates
