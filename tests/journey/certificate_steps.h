#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/driver/list_view.h"
#include "tests/driver/program.h"
#include "tests/driver/registry.h"

namespace corvane::test {

/// Comes back when a dialog has handled everything that was posted to it so far; one with neither a list view
/// nor a field to write in, when it answers.
void SettleDialog(const driver::Window& dialog);
/// Waits for a dialog of `owner` that has this control, and settles it. The wait window, which has the same
/// owner, is passed over.
[[nodiscard]] driver::Window WaitForDialogWith(const driver::Program& program, const driver::Window& owner,
                                               int controlId);
/// Presses a button that ends a dialog, and waits until the dialog's owner has gone on after it.
void EndDialog(const driver::Window& dialog, int buttonId);

/// The row of a list whose first cell is this text; throws driver::Failure where there is none.
[[nodiscard]] int RowOf(const driver::ListView& list, const std::wstring& text);
/// Chooses an entry of a combo box as a user does; throws driver::Failure where there is none of this text.
void ChooseEntry(const driver::Window& dialog, int comboId, const std::wstring& entry);

/// In the choice of recipients or signers: takes what the local store has into the upper list.
void SearchLocalStore(const driver::Window& selection);
/// Opens the search of the network store, by a field and a sample.
[[nodiscard]] driver::Window OpenFilter(const driver::Program& program, const driver::Window& selection,
                                        const std::wstring& field, const std::wstring& sample);
/// Takes what the network store has of it into the upper list.
void SearchNetworkStore(const driver::Program& program, const driver::Window& selection,
                        const std::wstring& field, const std::wstring& sample);
/// Checks exactly these owners of the upper list.
void CheckOwners(const driver::Window& selection, const driver::Texts& owners);
/// Takes these owners of the upper list into the lower one, one after the other.
void TakeOwners(const driver::Window& selection, const driver::Texts& owners);

using NamedSigners = std::pair<std::wstring, driver::Texts>;

/// In the rule editor: presses the certificate button and chooses these recipients out of the local store.
void ChooseRecipients(const driver::Program& program, const driver::Window& ruleEditor,
                      const driver::Texts& owners);
/// In the dialog of the signer lists: adds one with signers out of the local store.
void AddSignerListByDialog(const driver::Program& program, const driver::Window& signerLists,
                           const NamedSigners& list);
/// In the rule editor: presses the certificate button, adds these lists and confirms.
void AddSignerLists(const driver::Program& program, const driver::Window& ruleEditor,
                    const std::vector<NamedSigners>& lists);

}  // namespace corvane::test
