// Leads the editor through its main dialogs, for whoever takes the pictures: for each dialog it writes a line
// with a name and the id of the display's window, and goes on when it is sent a line in answer.
#include <windows.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>

#include "res/ids.h"
#include "tests/kit/driver/failure.h"
#include "tests/kit/driver/list_view.h"
#include "tests/kit/driver/message_box.h"
#include "tests/kit/driver/program.h"
#include "tests/kit/driver/window.h"
#include "tests/kit/fixtures/certificate_steps.h"

namespace corvane::test {
namespace {

constexpr int kMasksColumn = 6;
constexpr int kExtraColumn = 8;

// One of those who have a certificate of the stand-in library.
constexpr wchar_t kPerson[] = L"CN=Helen Marsh,OU=Settlement,O=Northgate Clearing,C=GB";

void Show(const char* name, const Window& window) {
    // Wine keeps the id of the display's window as a property of its own.
    const auto id = reinterpret_cast<std::uintptr_t>(GetPropW(window.Handle(), L"__wine_x11_whole_window"));
    if (id == 0) {
        throw Failure(L"The display was expected to have a window for " + window.Name());
    }
    std::printf("%s %llu\n", name, static_cast<unsigned long long>(id));
    std::fflush(stdout);
    if (std::getchar() == EOF) {
        throw Failure(L"Nobody takes the pictures any more.");
    }
}

void Close(const Window& dialog) {
    const Window owner = dialog.Owner();
    dialog.Post(WM_CLOSE);
    dialog.WaitUntilGone();
    owner.WaitUntilEnabled();
    corvane::test::SettleDialog(owner);
}

/// The row with the longest text in a column: the one that has most to show.
int FullestRow(const ListView& list, int column) {
    int fullest = 0;
    for (int row = 1; row < list.RowCount(); ++row) {
        if (list.Cell(row, column).size() > list.Cell(fullest, column).size()) {
            fullest = row;
        }
    }
    return fullest;
}

// Nothing of what is done here is confirmed in the end, so the configuration stays as it is.
void ShowRuleEditor(const Program& editor, const Window& main) {
    main.PostMenuCommand(IDM_ADD_RULE);
    const Window rule = corvane::test::WaitForDialogWith(editor, main, IDC_RULE_OPERATION_COMBO);
    Show("rule_editor", rule);

    rule.Control(IDC_RULE_CERT_BUTTON).PostClick();
    const Window recipients = corvane::test::WaitForDialogWith(editor, rule, IDC_SELECTION_CHOSEN_LIST);
    corvane::test::SearchLocalStore(recipients);
    // Those whose names every code page can write.
    recipients.Control(IDC_SELECTION_FILTER_EDIT).SetText(L"northgate");
    corvane::test::SettleDialog(recipients);
    corvane::test::TakeOwners(recipients, {kPerson});
    Show("recipients", recipients);
    Close(recipients);

    corvane::test::ChooseEntry(rule, IDC_RULE_OPERATION_COMBO, L"Verify attached signature");
    rule.Control(IDC_RULE_CERT_BUTTON).PostClick();
    const Window lists = corvane::test::WaitForDialogWith(editor, rule, IDC_SIGNER_LISTS_EDIT_BUTTON);
    corvane::test::AddSignerListByDialog(editor, lists, {L"Settlement desk", {kPerson}});
    Show("signer_lists", lists);
    Close(lists);
    Close(rule);
}

void ShowByMenu(const Program& editor, const Window& main, int command, const char* name) {
    main.PostMenuCommand(command);
    const Window dialog = editor.WaitForDialog(main);
    Show(name, dialog);
    Close(dialog);
}

void LeadThrough(const std::wstring& editorFile) {
    UseScreenPixels();
    const Program editor(editorFile);
    const Window main = editor.WaitForDialog(Window());
    const ListView rules(main.Control(IDC_RULE_LIST));
    Show("main_window", main);

    main.Post(WM_SYSCOMMAND, IDM_ABOUT);
    const Window about = editor.WaitForDialog(main);
    Show("about_box", about);
    Close(about);

    ShowRuleEditor(editor, main);
    ShowByMenu(editor, main, IDM_EDIT_PROFILE, "profile_editor");
    ShowByMenu(editor, main, IDM_CONFIGURATIONS, "configurations");
    ShowByMenu(editor, main, IDM_LOG_PATH, "log_settings");

    rules.PostRightClick(rules.CellCentre(FullestRow(rules, kExtraColumn), kExtraColumn));
    const Window description = editor.WaitForDialog(main);
    Show("rule_description", description);
    Close(description);

    rules.PostRightClick(rules.CellCentre(FullestRow(rules, kMasksColumn), kMasksColumn));
    const MessageBoxWindow masks = editor.WaitForMessageBox(main);
    Show("rule_masks", masks);
    masks.Dismiss();

    rules.Select({0});
    main.PostMenuCommand(IDM_DELETE_RULE);
    const MessageBoxWindow question = editor.WaitForMessageBox(main);
    Show("delete_question", question);
    question.Answer(IDNO);

    main.Post(WM_CLOSE);
    editor.WaitForEnd();
}

}  // namespace
}  // namespace corvane::test

int wmain(int argumentCount, wchar_t** arguments) {
    try {
        if (argumentCount != 2) {
            throw corvane::test::Failure(L"Expected one argument, the program file of the editor.");
        }
        corvane::test::LeadThrough(arguments[1]);
        return EXIT_SUCCESS;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return EXIT_FAILURE;
    }
}
