#include "tests/driver/tool_tips.h"

#include <commctrl.h>

#include "tests/driver/failure.h"
#include "tests/driver/remote_block.h"

namespace driver {
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

}  // namespace driver
