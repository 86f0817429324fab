#include "tests/kit/driver/menu.h"

#include <algorithm>

#include "tests/kit/driver/failure.h"
#include "tests/kit/driver/probe.h"

namespace corvane::test {
namespace {

std::vector<MenuItem> Items(const Window& window, ProbeQuestion question) {
    ProbeRequest request{};
    request.question = question;
    const ProbeRequest answer = Probe(window, request);
    std::vector<MenuItem> items;
    for (std::uint32_t i = 0; i < answer.itemCount; ++i) {
        const ProbeMenuItem& found = answer.items[i];
        MenuItem item;
        item.depth = found.depth;
        item.id = static_cast<int>(found.id);
        item.text = found.text.data();
        item.isSeparator = (found.type & MFT_SEPARATOR) != 0;
        item.isEnabled = (found.state & MFS_DISABLED) == 0;
        item.isGrey = (found.state & MF_GRAYED) != 0;
        items.push_back(item);
    }
    return items;
}

}  // namespace

std::vector<MenuItem> MenuBarOf(const Window& window) {
    return Items(window, ProbeQuestion::kMenuBar);
}

std::vector<MenuItem> SystemMenuOf(const Window& window) {
    return Items(window, ProbeQuestion::kSystemMenu);
}

MenuItem MenuItemOf(const Window& window, int id) {
    const std::vector<MenuItem> items = MenuBarOf(window);
    const auto found =
        std::find_if(items.begin(), items.end(), [id](const MenuItem& item) { return item.id == id; });
    if (found == items.end()) {
        throw Failure(L"A menu item with command " + std::to_wstring(id) + L" was expected in " +
                      window.Name() + L", and there is none.");
    }
    return *found;
}

}  // namespace corvane::test
