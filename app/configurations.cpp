#include "app/configurations.h"

namespace corvane {

std::optional<AppSettings> EditConfigurations(toolkit::WindowHandle /*owner*/,
                                              const AppSettings& /*settings*/, const Services& /*services*/) {
    // The program has no dialog for this yet, so the command ends like a cancelled one.
    return std::nullopt;
}

}  // namespace corvane
