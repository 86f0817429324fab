#include "bench/list_window.h"

ListWindow::ListWindow() {
    INITCOMMONCONTROLSEX classes = {};
    classes.dwSize = sizeof classes;
    classes.dwICC = 0xFF;
    InitCommonControlsEx(&classes);
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = &WindowProcedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = L"CorvaneBench";
    RegisterClassW(&windowClass);
    window_ = CreateWindowW(L"CorvaneBench", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 900, 400, nullptr,
                            nullptr, windowClass.hInstance, nullptr);
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

HWND ListWindow::MakeList() const {
    return CreateWindowW(WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SHOWSELALWAYS, 0, 0, 880,
                         360, window_, nullptr, nullptr, nullptr);
}

LRESULT CALLBACK ListWindow::WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto* const self = reinterpret_cast<const ListWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_NOTIFY && self != nullptr && self->answer_) {
        self->answer_(*reinterpret_cast<NMHDR*>(lParam));
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}
