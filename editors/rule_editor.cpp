#include "editors/rule_editor.h"

namespace corvane {

std::optional<Rule> EditRule(toolkit::WindowHandle /*owner*/, const Profile& /*profile*/,
                             const TextList& /*maskSuggestions*/, const Rule& /*rule*/,
                             const EditorServices& /*services*/) {
    // The program has no dialog for this yet, so the command ends like a cancelled one.
    return std::nullopt;
}

}  // namespace corvane
