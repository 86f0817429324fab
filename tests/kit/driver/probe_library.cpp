// The part of the driver that runs inside the driven program; see probe_protocol.h.
#include <windows.h>

#include <cstddef>
#include <cwchar>
#include <vector>

#include "tests/kit/driver/probe_protocol.h"

namespace corvane::test {
namespace {

void ListItems(HMENU menu, std::int32_t depth, ProbeRequest& request) {
    const int count = GetMenuItemCount(menu);
    for (int position = 0; position < count && request.itemCount < request.items.size(); ++position) {
        ProbeMenuItem& item = request.items[request.itemCount++];
        MENUITEMINFOW info{};
        info.cbSize = sizeof info;
        info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_STRING | MIIM_SUBMENU;
        info.dwTypeData = item.text.data();
        info.cch = static_cast<UINT>(item.text.size());
        GetMenuItemInfoW(menu, static_cast<UINT>(position), TRUE, &info);
        const bool isPlain = info.hSubMenu == nullptr && (info.fType & MFT_SEPARATOR) == 0;
        item.depth = depth;
        item.id = isPlain ? info.wID : 0;
        item.type = info.fType;
        item.state = info.fState;
        if (info.hSubMenu != nullptr) {
            ListItems(info.hSubMenu, depth + 1, request);
        }
    }
}

/// The picture of an icon: its size and all its pixels.
struct Picture {
    LONG width = 0;
    LONG height = 0;
    std::vector<std::byte> pixels;

    bool operator==(const Picture&) const = default;
};

Picture PictureOf(HICON icon) {
    Picture picture;
    ICONINFO info{};
    if (icon == nullptr || !GetIconInfo(icon, &info)) {
        return picture;
    }
    BITMAP bitmap{};
    const HBITMAP source = info.hbmColor != nullptr ? info.hbmColor : info.hbmMask;
    GetObjectW(source, sizeof bitmap, &bitmap);
    picture.width = bitmap.bmWidth;
    picture.height = bitmap.bmHeight;
    picture.pixels.resize(static_cast<std::size_t>(bitmap.bmWidth) *
                          static_cast<std::size_t>(bitmap.bmHeight) * 4);
    BITMAPINFO format{};
    format.bmiHeader.biSize = sizeof format.bmiHeader;
    format.bmiHeader.biWidth = bitmap.bmWidth;
    format.bmiHeader.biHeight = bitmap.bmHeight;
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    const HDC screen = GetDC(nullptr);
    GetDIBits(screen, source, 0, static_cast<UINT>(bitmap.bmHeight), picture.pixels.data(), &format,
              DIB_RGB_COLORS);
    ReleaseDC(nullptr, screen);
    if (info.hbmColor != nullptr) {
        DeleteObject(info.hbmColor);
    }
    DeleteObject(info.hbmMask);
    return picture;
}

HICON IconAt(HWND window, IconPlace place) {
    LRESULT icon = 0;
    switch (place) {
        case IconPlace::kStatic:
            icon = SendMessageW(window, STM_GETICON, 0, 0);
            break;
        case IconPlace::kButton:
            icon = SendMessageW(window, BM_GETIMAGE, IMAGE_ICON, 0);
            break;
        case IconPlace::kLargeWindowIcon:
            icon = SendMessageW(window, WM_GETICON, ICON_BIG, 0);
            break;
        case IconPlace::kSmallWindowIcon:
            icon = SendMessageW(window, WM_GETICON, ICON_SMALL, 0);
            break;
        case IconPlace::kDragIcon:
            icon = SendMessageW(window, WM_QUERYDRAGICON, 0, 0);
            break;
    }
    return reinterpret_cast<HICON>(icon);
}

void DescribeIcon(HWND window, ProbeRequest& request) {
    const HICON icon = IconAt(window, request.iconPlace);
    const Picture picture = PictureOf(icon);
    request.hasIcon = picture.pixels.empty() ? 0 : 1;
    request.iconWidth = picture.width;
    request.iconHeight = picture.height;
    if (request.hasIcon == 0) {
        return;
    }
    if (request.iconResource != 0) {
        const auto wanted = static_cast<HICON>(
            LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(request.iconResource), IMAGE_ICON,
                       static_cast<int>(picture.width), static_cast<int>(picture.height), LR_DEFAULTCOLOR));
        request.showsResource = wanted != nullptr && PictureOf(wanted) == picture ? 1 : 0;
        if (wanted != nullptr) {
            DestroyIcon(wanted);
        }
    }
    for (const wchar_t* number : {IDI_ERROR, IDI_QUESTION, IDI_WARNING, IDI_INFORMATION}) {
        const HICON known = LoadIconW(nullptr, number);
        if (known == icon || PictureOf(known) == picture) {
            request.systemIcon = static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(number));
        }
    }
}

void DescribePointer(ProbeRequest& request) {
    const HCURSOR shown = GetCursor();
    for (const wchar_t* number : {IDC_ARROW, IDC_IBEAM, IDC_WAIT}) {
        if (shown != nullptr && shown == LoadCursorW(nullptr, number)) {
            request.systemPointer = static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(number));
        }
    }
}

/// What is noted of the messages of one window; it lives as long as the hook keeps this library loaded.
struct Watch {
    HWND window = nullptr;
    ProbeRequest notes{};
};

Watch& TheWatch() {
    static Watch watch;
    return watch;
}

void NoteMessage(const CWPSTRUCT& call) {
    Watch& watch = TheWatch();
    if (call.hwnd != watch.window || call.message == 0) {
        return;
    }
    for (const std::uint32_t watched : watch.notes.watched) {
        if (watched == call.message && watch.notes.messageCount < watch.notes.messages.size()) {
            watch.notes.messages[watch.notes.messageCount++] = {call.message,
                                                                static_cast<std::uint32_t>(call.wParam)};
        }
    }
}

void Answer(HWND window, ProbeRequest& request) {
    switch (request.question) {
        case ProbeQuestion::kMenuBar:
            ListItems(GetMenu(window), 0, request);
            break;
        case ProbeQuestion::kSystemMenu:
            ListItems(GetSystemMenu(window, FALSE), 0, request);
            break;
        case ProbeQuestion::kIcon:
            DescribeIcon(window, request);
            break;
        case ProbeQuestion::kFont:
            GetObjectW(reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)), sizeof request.font,
                       &request.font);
            break;
        case ProbeQuestion::kPointer:
            DescribePointer(request);
            break;
        case ProbeQuestion::kWatch:
            TheWatch().window = window;
            TheWatch().notes = request;
            TheWatch().notes.messageCount = 0;
            break;
        case ProbeQuestion::kWatched:
            request = TheWatch().notes;
            break;
    }
    request.isAnswered = 1;
}

}  // namespace
}  // namespace corvane::test

extern "C" __declspec(dllexport) LRESULT CALLBACK ProbeHook(int code, WPARAM wParam, LPARAM lParam) {
    using namespace corvane::test;
    if (code == HC_ACTION) {
        const auto& call = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        static const UINT kProbeMessage = RegisterWindowMessageW(kProbeMessageName);
        if (call.message == kProbeMessage && call.lParam != 0) {
            Answer(call.hwnd, *reinterpret_cast<ProbeRequest*>(call.lParam));
        } else {
            NoteMessage(call);
        }
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}
