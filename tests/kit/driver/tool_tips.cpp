#include "tests/kit/driver/tool_tips.h"

#include <commctrl.h>

#include "tests/kit/driver/failure.h"
#include "tests/kit/driver/remote_block.h"
#include "tests/kit/driver/waiting.h"

namespace corvane::test {
namespace {

constexpr std::size_t kToolTipRoomChars = 256;

HWND FindToolTip(const Window& dialog) {
    struct Search {
        HWND owner;
        HWND found;
    } search{dialog.Handle(), nullptr};
    EnumThreadWindows(
        dialog.ThreadId(),
        [](HWND candidate, LPARAM parameter) -> BOOL {
            auto& wanted = *reinterpret_cast<Search*>(parameter);
            if (Window(candidate).IsOfClass(TOOLTIPS_CLASSW) &&
                GetWindow(candidate, GW_OWNER) == wanted.owner &&
                Window(candidate).Send(TTM_GETTOOLCOUNT) > 0) {
                wanted.found = candidate;
                return FALSE;
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    if (search.found == nullptr) {
        throw Failure(L"A tooltip control was expected of " + dialog.Name() + L", and there is none.");
    }
    return search.found;
}

/// The tool whose tip a tooltip control shows.
struct ShownTool {
    Window control;
    std::wstring text;
};

ShownTool CurrentTool(const Window& toolTip) {
    RemoteBlock block(toolTip.Handle(), sizeof(TTTOOLINFOW) + kToolTipRoomChars * sizeof(wchar_t));
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.lpszText = static_cast<wchar_t*>(block.Address(sizeof tool));
    block.Put(tool);
    if (!toolTip.Send(TTM_GETCURRENTTOOLW, 0, block.Parameter())) {
        return {};
    }
    const auto window = reinterpret_cast<HWND>(block.Get<TTTOOLINFOW>().uId);
    return {Window(window), block.Text(sizeof tool, kToolTipRoomChars)};
}

/// Begins in the control or right below it, where the pointer does not hide it.
bool IsRightAt(const Window& control, const Window& tip) {
    RECT around = control.Bounds();
    InflateRect(&around, GetSystemMetrics(SM_CXCURSOR), GetSystemMetrics(SM_CYCURSOR));
    const RECT bounds = tip.Bounds();
    return PtInRect(&around, {bounds.left, bounds.top}) != FALSE;
}

/// The pointer rests on a point of the screen while this object is there; then it goes where nothing is.
class RestingMouse {
  public:
    explicit RestingMouse(POINT place) { SetCursorPos(place.x, place.y); }
    ~RestingMouse() { SetCursorPos(0, 0); }
    RestingMouse(const RestingMouse&) = delete;
    RestingMouse& operator=(const RestingMouse&) = delete;
    RestingMouse(RestingMouse&&) = delete;
    RestingMouse& operator=(RestingMouse&&) = delete;
};

}  // namespace

std::map<int, std::wstring> ToolTipTexts(const Window& dialog) {
    const Window toolTip(FindToolTip(dialog));
    std::map<int, std::wstring> texts;
    const auto count = toolTip.Send(TTM_GETTOOLCOUNT);
    RemoteBlock block(toolTip.Handle(), sizeof(TTTOOLINFOW) + kToolTipRoomChars * sizeof(wchar_t));
    for (LRESULT i = 0; i < count; ++i) {
        TTTOOLINFOW tool{};
        tool.cbSize = sizeof tool;
        tool.lpszText = static_cast<wchar_t*>(block.Address(sizeof tool));
        block.Put(tool);
        block.Put(L'\0', sizeof tool);
        if (!toolTip.Send(TTM_ENUMTOOLSW, static_cast<WPARAM>(i), block.Parameter())) {
            throw Failure(L"Tool " + std::to_wstring(i) + L" was wanted of the tooltips of " + dialog.Name() +
                          L".");
        }
        tool = block.Get<TTTOOLINFOW>();
        tool.lpszText = static_cast<wchar_t*>(block.Address(sizeof tool));
        block.Put(tool);
        toolTip.Send(TTM_GETTEXTW, kToolTipRoomChars, block.Parameter());
        const bool isWindow = (tool.uFlags & TTF_IDISHWND) != 0;
        const int id = isWindow ? Window(reinterpret_cast<HWND>(tool.uId)).Id() : static_cast<int>(tool.uId);
        texts[id] = block.Text(sizeof tool, kToolTipRoomChars);
    }
    return texts;
}

std::wstring ToolTipUnderTheMouse(const Window& dialog, const Window& control) {
    const Window toolTip(FindToolTip(dialog));
    const RECT bounds = control.Bounds();
    const RestingMouse mouse({(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2});
    ShownTool shown;
    if (!WaitUntil([&] {
            shown = toolTip.IsVisible() ? CurrentTool(toolTip) : ShownTool{};
            return shown.control == control;
        })) {
        throw Failure(L"A tip was expected at " + control.Name() + L" when the mouse rests there" +
                      (shown.text.empty() ? L", and none came." : L"; it is \"" + shown.text + L"\"."));
    }
    if (!IsRightAt(control, toolTip)) {
        throw Failure(L"The tip of " + control.Name() + L" was expected at it, and is elsewhere.");
    }
    return shown.text;
}

}  // namespace corvane::test
