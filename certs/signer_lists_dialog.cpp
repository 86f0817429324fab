#include "certs/signer_lists_dialog.h"

namespace corvane {

std::optional<std::vector<SignerGroup>> EditSignerLists(toolkit::WindowHandle /*owner*/,
                                                        const Profile& /*profile*/,
                                                        std::size_t /*csProfileIndex*/,
                                                        const std::vector<SignerGroup>& /*lists*/,
                                                        const CertServices& /*services*/,
                                                        toolkit::FileCalls& /*files*/) {
    return std::nullopt;
}

}  // namespace corvane
