#include "certs/recipient_selection_dialog.h"

namespace corvane {

std::optional<TextList> EditRecipients(toolkit::WindowHandle /*owner*/, const Profile& /*profile*/,
                                       std::size_t /*csProfileIndex*/, const TextList& /*recipients*/,
                                       const CertServices& /*services*/, toolkit::FileCalls& /*files*/) {
    return std::nullopt;
}

}  // namespace corvane
