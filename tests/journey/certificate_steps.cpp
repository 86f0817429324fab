#include "tests/journey/certificate_steps.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "res/ids.h"
#include "tests/driver/failure.h"
#include "tests/driver/waiting.h"

namespace corvane::test {

using driver::ListView;
using driver::Window;

namespace {

/// Posted messages are handled in order. When what one of them has set can be asked for, all that was posted
/// before it has been handled.
void WaitForMark(const Window& control, UINT get, UINT set, bool isInWParam, LRESULT first) {
    const LRESULT mark = control.Send(get) == first ? first + 1 : first;
    control.Post(set, isInWParam ? static_cast<WPARAM>(mark) : 0, isInWParam ? 0 : mark);
    if (!driver::WaitUntil([&] { return control.Send(get) == mark; })) {
        throw driver::Failure(L"The dialog of " + control.Name() +
                              L" was expected to handle its messages, and does not.");
    }
}

}  // namespace

void SettleDialog(const Window& dialog) {
    const std::vector<Window> children = dialog.Children();
    for (const Window& child : children) {
        if (child.IsOfClass(WC_LISTVIEWW)) {
            // Nothing depends on the hover time.
            WaitForMark(child, LVM_GETHOVERTIME, LVM_SETHOVERTIME, false, 500);
            return;
        }
    }
    for (const Window& child : children) {
        if (child.IsOfClass(WC_EDITW)) {
            // Nothing that is typed here comes near this length.
            WaitForMark(child, EM_GETLIMITTEXT, EM_SETLIMITTEXT, true, 20000);
            return;
        }
    }
    dialog.Send(WM_NULL);
}

Window WaitForDialogWith(const driver::Program& program, const Window& owner, int controlId) {
    Window found;
    std::wstring others;
    if (!driver::WaitUntil([&] {
            others.clear();
            for (const Window& window : program.TopLevelWindows()) {
                if (window.Owner() == owner && window.IsEnabled() && window.HasControl(controlId)) {
                    found = window;
                } else {
                    others += L" " + window.Name();
                }
            }
            return found.Handle() != nullptr || !program.IsRunning();
        }) ||
        found.Handle() == nullptr) {
        throw driver::Failure(L"A dialog with the control " + std::to_wstring(controlId) +
                              L" was expected; the windows are:" + others + L".");
    }
    SettleDialog(found);
    return found;
}

void EndDialog(const Window& dialog, int buttonId) {
    const Window owner = dialog.Owner();
    dialog.Control(buttonId).PostClick();
    dialog.WaitUntilGone();
    owner.WaitUntilEnabled();
    SettleDialog(owner);
}

int RowOf(const ListView& list, const std::wstring& text) {
    const driver::Texts texts = list.Column(0);
    const auto found = std::find(texts.begin(), texts.end(), text);
    if (found == texts.end()) {
        throw driver::Failure(list.Name() + L" was expected to hold \"" + text + L"\".");
    }
    return static_cast<int>(found - texts.begin());
}

void ChooseEntry(const Window& dialog, int comboId, const std::wstring& entry) {
    const Window combo = dialog.Control(comboId);
    const LRESULT count = combo.Send(CB_GETCOUNT);
    for (LRESULT i = 0; i < count; ++i) {
        const auto index = static_cast<WPARAM>(i);
        std::wstring text(static_cast<std::size_t>(combo.Send(CB_GETLBTEXTLEN, index)) + 1, L'\0');
        combo.Send(CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text.data()));
        text.pop_back();
        if (text == entry) {
            combo.Send(CB_SETCURSEL, index);
            dialog.Send(WM_COMMAND, MAKEWPARAM(comboId, CBN_SELCHANGE),
                        reinterpret_cast<LPARAM>(combo.Handle()));
            return;
        }
    }
    throw driver::Failure(combo.Name() + L" was expected to offer \"" + entry + L"\".");
}

void SearchLocalStore(const Window& selection) {
    selection.Control(IDC_SELECTION_FROM_STORE_BUTTON).Click();
    SettleDialog(selection);
}

Window OpenFilter(const driver::Program& program, const Window& selection, const std::wstring& field,
                  const std::wstring& sample) {
    selection.Control(IDC_SELECTION_FROM_NCS_BUTTON).PostClick();
    const Window filter = WaitForDialogWith(program, selection, IDC_FILTER_SAMPLE_EDIT);
    ChooseEntry(filter, IDC_FILTER_FIELD_COMBO, field);
    filter.Control(IDC_FILTER_SAMPLE_EDIT).SetText(sample);
    filter.Control(IDOK).WaitUntilEnabled();
    return filter;
}

void SearchNetworkStore(const driver::Program& program, const Window& selection, const std::wstring& field,
                        const std::wstring& sample) {
    EndDialog(OpenFilter(program, selection, field, sample), IDOK);
}

void CheckOwners(const Window& selection, const driver::Texts& owners) {
    const ListView found(selection.Control(IDC_SELECTION_FOUND_LIST));
    for (int row = 0; row < found.RowCount(); ++row) {
        found.SetChecked(row, false);
    }
    for (const std::wstring& owner : owners) {
        found.SetChecked(RowOf(found, owner), true);
    }
    SettleDialog(selection);
}

void TakeOwners(const Window& selection, const driver::Texts& owners) {
    // Several at a time would come in the order in which the store holds them, which is any.
    for (const std::wstring& owner : owners) {
        CheckOwners(selection, {owner});
        selection.Control(IDC_SELECTION_ADD_BUTTON).Click();
        SettleDialog(selection);
    }
}

void ChooseRecipients(const driver::Program& program, const Window& ruleEditor, const driver::Texts& owners) {
    ruleEditor.Control(IDC_RULE_CERT_BUTTON).PostClick();
    const Window selection = WaitForDialogWith(program, ruleEditor, IDC_SELECTION_CHOSEN_LIST);
    SearchLocalStore(selection);
    TakeOwners(selection, owners);
    EndDialog(selection, IDOK);
}

void AddSignerListByDialog(const driver::Program& program, const Window& signerLists,
                           const NamedSigners& list) {
    signerLists.Control(IDC_SIGNER_LISTS_ADD_BUTTON).PostClick();
    const Window selection = WaitForDialogWith(program, signerLists, IDC_SELECTION_CHOSEN_LIST);
    selection.Control(IDC_SELECTION_LIST_NAME_EDIT).SetText(list.first);
    SearchLocalStore(selection);
    TakeOwners(selection, list.second);
    EndDialog(selection, IDOK);
}

void AddSignerLists(const driver::Program& program, const Window& ruleEditor,
                    const std::vector<NamedSigners>& lists) {
    ruleEditor.Control(IDC_RULE_CERT_BUTTON).PostClick();
    const Window dialog = WaitForDialogWith(program, ruleEditor, IDC_SIGNER_LISTS_EDIT_BUTTON);
    for (const NamedSigners& list : lists) {
        AddSignerListByDialog(program, dialog, list);
    }
    EndDialog(dialog, IDOK);
}

}  // namespace corvane::test
