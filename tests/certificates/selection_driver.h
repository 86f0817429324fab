#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

#include "res/ids.h"
#include "tests/certificates/certificate_test.h"
#include "tests/driver/failure.h"
#include "tests/driver/waiting.h"

namespace corvane::test {

/// A test of the choice of recipients, or of the signers of a list, shown by the host as the rule editor
/// shows it. No revocation lists are loaded before it, so the calls in the log are the dialog's own.
class SelectionTest : public CertificateTest {
  protected:
    SelectionTest() {
        setup.csProfile.notUseDirectory = 0;
        setup.csProfile.notLoadCrl = 1;
    }

    /// Shows the dialog on `recipients`.
    void OpenRecipients(const store::TextList& recipients = {}, Library library = Library::kScriptable) {
        setup.recipients = recipients;
        StartHost(library);
        dialog_ = OpenDialog();
    }

    /// Shows the dialog that adds a signer list to `lists`.
    void OpenNewList(const std::vector<store::SignerGroup>& lists = {},
                     Library library = Library::kScriptable) {
        OpenLists(lists, library);
        lists_.Control(IDC_SIGNER_LISTS_ADD_BUTTON).PostClick();
        WaitForSelection();
    }

    /// Shows the dialog that edits the first of `lists`.
    void OpenFirstList(const std::vector<store::SignerGroup>& lists, Library library = Library::kScriptable) {
        OpenLists(lists, library);
        driver::ListView(lists_.Control(IDC_SIGNER_LISTS_LIST)).Select({0});
        lists_.Control(IDC_SIGNER_LISTS_EDIT_BUTTON).PostClick();
        WaitForSelection();
    }

    [[nodiscard]] const driver::Window& Dialog() const { return dialog_; }
    [[nodiscard]] driver::Window Control(int id) const { return dialog_.Control(id); }
    [[nodiscard]] driver::ListView Found() const {
        return driver::ListView(Control(IDC_SELECTION_FOUND_LIST));
    }
    [[nodiscard]] driver::ListView Chosen() const {
        return driver::ListView(Control(IDC_SELECTION_CHOSEN_LIST));
    }

    void SettleDialog() const { Settle(dialog_); }
    /// Presses a button whose command shows nothing, and waits until it is through.
    void Press(int buttonId) const {
        Control(buttonId).Click();
        SettleDialog();
    }
    /// Writes the filter and waits until the list follows it.
    void Filter(const std::wstring& text) const {
        Control(IDC_SELECTION_FILTER_EDIT).SetText(text);
        SettleDialog();
    }
    /// Chooses a sort field as a user does, and waits until the list follows it.
    void SortBy(int field) const {
        const driver::Window combo = Control(IDC_SELECTION_SORT_COMBO);
        combo.Send(CB_SETCURSEL, static_cast<WPARAM>(field));
        dialog_.Send(WM_COMMAND, MAKEWPARAM(IDC_SELECTION_SORT_COMBO, CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(combo.Handle()));
        SettleDialog();
    }
    [[nodiscard]] static driver::Window HeaderOf(const driver::ListView& list) {
        return driver::Window(reinterpret_cast<HWND>(list.Send(LVM_GETHEADER)));
    }
    void ClickHeader(const driver::ListView& list) const {
        HeaderOf(list).PostLeftClick({30, 8});
        SettleDialog();
    }
    /// Checks exactly these rows.
    static void Check(const driver::ListView& list, const std::vector<int>& rows) {
        const int count = list.RowCount();
        for (int row = 0; row < count; ++row) {
            bool isWanted = false;
            for (const int wanted : rows) {
                isWanted = isWanted || wanted == row;
            }
            list.SetChecked(row, isWanted);
        }
    }
    /// Waits for a message box of the dialog, compares all of it, answers it and waits until the command has
    /// gone on, to its end or to the next box. Not for an answer after which the dialog closes.
    void ExpectBox(const std::wstring& text, unsigned style, int answer,
                   const std::wstring& title = kProgramTitle) const {
        ExpectMessageBox(dialog_, text, style, answer, title);
        SettleDialog();
    }
    /// No window of the dialog is open, and it goes on.
    void ExpectStaysOpen() const {
        SettleDialog();
        EXPECT_TRUE(dialog_.IsLive());
        EXPECT_TRUE(dialog_.IsEnabled());
    }

    /// Presses OK and waits for what comes back to the one who asked.
    [[nodiscard]] std::wstring Confirm() const {
        Control(IDOK).PostClick();
        return ResultOfDialog();
    }
    [[nodiscard]] std::wstring ResultOfDialog() const {
        dialog_.WaitUntilGone();
        if (lists_.Handle() != nullptr) {
            lists_.WaitUntilEnabled();
            Settle(lists_);
            lists_.Control(IDOK).PostClick();
        }
        return Result();
    }

    /// The window that the dialog belongs to.
    [[nodiscard]] driver::Window Parent() const { return lists_.Handle() != nullptr ? lists_ : Main(); }

  private:
    void OpenLists(const std::vector<store::SignerGroup>& lists, Library library) {
        setup.dialog = HostSetup::Dialog::kSignerLists;
        setup.lists = lists;
        StartHost(library);
        lists_ = OpenDialog();
    }
    void WaitForSelection() {
        if (!driver::WaitUntil([&] {
                for (const driver::Window& window : Program().TopLevelWindows()) {
                    if (window.Owner() == lists_ && window.IsEnabled() &&
                        window.HasControl(IDC_SELECTION_FOUND_LIST)) {
                        dialog_ = window;
                    }
                }
                return dialog_.Handle() != nullptr;
            })) {
            throw driver::Failure(L"The choice of signers was expected, and did not come.");
        }
        SettleDialog();
    }

    driver::Window lists_;
    driver::Window dialog_;
};

}  // namespace corvane::test
