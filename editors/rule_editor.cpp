#include "editors/rule_editor.h"

#include "editors/rule_editor_dialog.h"

namespace corvane {

std::optional<Rule> EditRule(toolkit::WindowHandle owner, const Profile& profile,
                             const TextList& maskSuggestions, const Rule& rule,
                             const EditorServices& services) {
    CAddRule dialog(owner, profile, maskSuggestions, rule, services);
    return dialog.RunModal() == IDOK ? std::optional(dialog.Result()) : std::nullopt;
}

}  // namespace corvane
