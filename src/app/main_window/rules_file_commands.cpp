#include "app/main_window/rules_file_commands.h"

#include <iterator>
#include <optional>
#include <string>
#include <utility>

#include "reporting/message_styles.h"
#include "store/rules_file/rules_file.h"
#include "toolkit/files/path_pickers.h"
#include "toolkit/system/wait_cursor.h"
#include "toolkit/text/format_text.h"

namespace corvane::app {

namespace {

toolkit::FileDialogOffer RulesFileOffer(const std::wstring& proposedName) {
    return {
        .fileName = proposedName,
        .folder = L"",
        .defaultExtension = store::kRulesFileExtension,
        .filter = toolkit::FormatText(L"%s (*.%s)|*.%s|All files (*.*)|*.*||",
                                      {L"Profiles", store::kRulesFileExtension, store::kRulesFileExtension}),
        .path = {}};
}

}  // namespace

void ExportProfileRules(const store::ConfigurationState& state, toolkit::WindowHandle owner,
                        const Services& services) {
    const store::Profile* const profile = store::FindCurrentProfile(state);
    if (profile == nullptr) {
        return;
    }
    if (profile->rules.empty()) {
        services.reporter.ShowMessage(owner, std::wstring(L"Profile contains no rules."),
                                      reporting::kRefusalStyle);
        return;
    }
    const std::optional<std::wstring> path = reporting::PathOrReport(
        toolkit::AskWhereToSave(owner, RulesFileOffer(profile->name)), services.reporter, owner);
    if (path) {
        const toolkit::WaitCursor waiting;
        // A failure has been reported, and nothing but the file depends on the outcome.
        static_cast<void>(
            store::WriteRulesFile(*path, profile->rules, services.files, services.reporter, owner));
    }
}

bool ImportProfileRules(store::ConfigurationState& state, toolkit::WindowHandle owner,
                        const Services& services) {
    const std::optional<std::wstring> path =
        reporting::PathOrReport(toolkit::AskWhatToOpen(owner, RulesFileOffer(L"")), services.reporter, owner);
    if (!path) {
        return false;
    }
    const toolkit::WaitCursor waiting;
    const std::optional<std::string> content =
        store::ReadRulesFile(*path, services.files, services.reporter, owner);
    store::Profile* const profile = store::FindCurrentProfile(state);
    if (!content || profile == nullptr) {
        return false;
    }
    const store::TextList records = store::SplitRecords(*content, services.reporter.Text());
    if (records.empty()) {
        return false;
    }
    std::vector<store::Rule> rules = store::ParseRecords(records);
    profile->rules.insert(profile->rules.end(), std::make_move_iterator(rules.begin()),
                          std::make_move_iterator(rules.end()));
    state.isDirty = true;
    return true;
}

}  // namespace corvane::app
