#include "app/configurations.h"

#include "app/config_page_dialog.h"

namespace corvane {

std::optional<AppSettings> EditConfigurations(toolkit::WindowHandle owner, const AppSettings& settings,
                                              const Services& services) {
    CConfigPage dialog(owner, settings, services.reporter);
    return dialog.RunModal() == IDOK ? std::optional(dialog.Settings()) : std::nullopt;
}

}  // namespace corvane
