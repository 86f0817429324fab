#include "tests/kit/driver/icon.h"

#include "tests/kit/driver/probe.h"

namespace corvane::test {

IconView IconOf(const Window& window, IconPlace place, int resource) {
    ProbeRequest request{};
    request.question = ProbeQuestion::kIcon;
    request.iconPlace = place;
    request.iconResource = resource;
    const ProbeRequest answer = Probe(window, request);
    IconView view;
    view.isThere = answer.hasIcon != 0;
    view.width = answer.iconWidth;
    view.height = answer.iconHeight;
    view.showsResource = answer.showsResource != 0;
    view.systemIcon = answer.systemIcon;
    return view;
}

}  // namespace corvane::test
