// Leads the editor through its main dialogs, for whoever takes the pictures: for each dialog it writes a line
// with a name and the id of the display's window, and goes on when it is sent a line in answer.
#include <windows.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>

#include "res/ids.h"
#include "tests/driver/failure.h"
#include "tests/driver/list_view.h"
#include "tests/driver/message_box.h"
#include "tests/driver/program.h"
#include "tests/driver/window.h"

namespace {

constexpr int kMasksColumn = 6;
constexpr int kExtraColumn = 8;

void Show(const char* name, const driver::Window& window) {
    // Wine keeps the id of the display's window as a property of its own.
    const auto id = reinterpret_cast<std::uintptr_t>(GetPropW(window.Handle(), L"__wine_x11_whole_window"));
    if (id == 0) {
        throw driver::Failure(L"The display was expected to have a window for " + window.Name());
    }
    std::printf("%s %llu\n", name, static_cast<unsigned long long>(id));
    std::fflush(stdout);
    if (std::getchar() == EOF) {
        throw driver::Failure(L"Nobody takes the pictures any more.");
    }
}

void Close(const driver::Window& dialog) {
    dialog.Post(WM_CLOSE);
    dialog.WaitUntilGone();
}

/// The row with the longest text in a column: the one that has most to show.
int FullestRow(const driver::ListView& list, int column) {
    int fullest = 0;
    for (int row = 1; row < list.RowCount(); ++row) {
        if (list.Cell(row, column).size() > list.Cell(fullest, column).size()) {
            fullest = row;
        }
    }
    return fullest;
}

void LeadThrough(const std::wstring& editorFile) {
    driver::UseScreenPixels();
    const driver::Program editor(editorFile);
    const driver::Window main = editor.WaitForDialog(driver::Window());
    const driver::ListView rules(main.Control(IDC_RULE_LIST));
    Show("main_window", main);

    main.Post(WM_SYSCOMMAND, IDM_ABOUT);
    const driver::Window about = editor.WaitForDialog(main);
    Show("about_box", about);
    Close(about);

    main.PostMenuCommand(IDM_LOG_PATH);
    const driver::Window logSettings = editor.WaitForDialog(main);
    Show("log_settings", logSettings);
    Close(logSettings);

    rules.PostRightClick(rules.CellCentre(FullestRow(rules, kExtraColumn), kExtraColumn));
    const driver::Window description = editor.WaitForDialog(main);
    Show("rule_description", description);
    Close(description);

    rules.PostRightClick(rules.CellCentre(FullestRow(rules, kMasksColumn), kMasksColumn));
    const driver::MessageBoxWindow masks = editor.WaitForMessageBox(main);
    Show("rule_masks", masks);
    masks.Dismiss();

    rules.Select({0});
    main.PostMenuCommand(IDM_DELETE_RULE);
    const driver::MessageBoxWindow question = editor.WaitForMessageBox(main);
    Show("delete_question", question);
    question.Answer(IDNO);

    main.Post(WM_CLOSE);
    editor.WaitForEnd();
}

}  // namespace

int wmain(int argumentCount, wchar_t** arguments) {
    try {
        if (argumentCount != 2) {
            throw driver::Failure(L"Expected one argument, the program file of the editor.");
        }
        LeadThrough(arguments[1]);
        return EXIT_SUCCESS;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return EXIT_FAILURE;
    }
}
