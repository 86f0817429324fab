// The smallest program that shows the main window's template: what corvane.exe is measured against. It uses
// the same static runtime and the library's strings and vectors, which no program of this kind does without.

#include <windows.h>

#include <commctrl.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "res/ids.h"

namespace {

INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM /*lParam*/) {
    if (message == WM_COMMAND && LOWORD(wParam) == IDCANCEL) {
        EndDialog(dialog, IDCANCEL);
        return TRUE;
    }
    return message == WM_INITDIALOG ? TRUE : FALSE;
}

/// Something for the strings and vectors to do that no compiler can foresee.
std::size_t CountWords(const std::wstring& text) {
    std::vector<std::wstring> words;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = text.find(L' ', start);
        words.push_back(text.substr(start, end - start));
        start = end == std::wstring::npos ? text.size() : end + 1;
    }
    if (words.size() > text.size()) {
        throw std::length_error("more words than characters");
    }
    return words.size();
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE /*previous*/, PWSTR commandLine, int /*show*/) {
    INITCOMMONCONTROLSEX classes = {};
    classes.dwSize = sizeof classes;
    classes.dwICC = 0xFF;
    InitCommonControlsEx(&classes);
    const std::size_t words = CountWords(commandLine);
    DialogBoxParamW(instance, MAKEINTRESOURCEW(IDD_MAIN_WINDOW), nullptr, &DialogProcedure, 0);
    return static_cast<int>(words);
}
