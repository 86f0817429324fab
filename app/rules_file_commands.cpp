#include "app/rules_file_commands.h"

#include <iterator>
#include <optional>
#include <string>
#include <utility>

#include "app/reporting/message_styles.h"
#include "config/rules_file.h"
#include "config/rules_file_text.h"
#include "toolkit/file_dialogs.h"
#include "toolkit/format_text.h"
#include "toolkit/wait_cursor.h"

namespace corvane {

namespace {

toolkit::FileDialogOffer RulesFileOffer(const std::wstring& proposedName) {
    return {.fileName = proposedName,
            .folder = L"",
            .defaultExtension = kRulesFileExtension,
            .filter = toolkit::FormatText(L"%s (*.%s)|*.%s|All files (*.*)|*.*||",
                                          {L"Profiles", kRulesFileExtension, kRulesFileExtension})};
}

}  // namespace

void ExportProfileRules(const ConfigurationState& state, toolkit::WindowHandle owner,
                        const Services& services) {
    const Profile* const profile = FindCurrentProfile(state);
    if (profile == nullptr) {
        return;
    }
    if (profile->rules.empty()) {
        services.reporter.ShowMessage(owner, std::wstring(L"Profile contains no rules."), kRefusalStyle);
        return;
    }
    const std::optional<std::wstring> path =
        PathOrReport(toolkit::AskWhereToSave(owner, RulesFileOffer(profile->name)), services.reporter, owner);
    if (path) {
        const toolkit::WaitCursor waiting;
        // A failure has been reported, and nothing but the file depends on the outcome.
        static_cast<void>(WriteRulesFile(*path, profile->rules, services.files, services.reporter, owner));
    }
}

bool ImportProfileRules(ConfigurationState& state, toolkit::WindowHandle owner, const Services& services) {
    const std::optional<std::wstring> path =
        PathOrReport(toolkit::AskWhatToOpen(owner, RulesFileOffer(L"")), services.reporter, owner);
    if (!path) {
        return false;
    }
    const toolkit::WaitCursor waiting;
    const std::optional<std::string> content = ReadRulesFile(*path, services.files, services.reporter, owner);
    Profile* const profile = FindCurrentProfile(state);
    if (!content || profile == nullptr) {
        return false;
    }
    const TextList records = SplitRecords(*content, services.reporter.Text());
    if (records.empty()) {
        return false;
    }
    std::vector<Rule> rules = ParseRecords(records);
    profile->rules.insert(profile->rules.end(), std::make_move_iterator(rules.begin()),
                          std::make_move_iterator(rules.end()));
    state.isDirty = true;
    return true;
}

}  // namespace corvane
