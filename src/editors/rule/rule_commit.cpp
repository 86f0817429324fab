#include "editors/rule/rule_commit.h"

#include <algorithm>

namespace corvane::editors {

namespace {

void CommitMove(const RuleForm& form, store::Rule& rule) {
    rule.secondOutput = form.cert.text;
    rule.deleteExtension = form.texts[0].text;
    rule.addExtension = form.texts[1].text;
    rule.folders = form.texts[2].text;
    rule.copyFolders = form.texts[3].text;
}

void CommitPack(const RuleForm& form, store::Rule& rule) {
    rule.archiveFileCount = form.numbers[0].number;
    rule.archiveSize = form.numbers[1].number;
    rule.archiveTimeout = form.numbers[2].number;
    rule.archiveName = form.texts[3].text;
}

void CommitResign(const RuleForm& form, store::Rule& rule) {
    rule.inputDetached = form.choices[0].index;
    rule.outputDetached = form.choices[1].index;
    rule.resignProfile = SelectedEntry(form.choices[2]);
}

void CommitArchiver(const RuleForm& form, RowUse use, store::Rule& rule) {
    if (use != RowUse::kNone) {
        const std::int32_t first = use == RowUse::kArchiver ? 1 : 0;
        rule.archiveFormat = std::max(form.choices[kArchiverRow].index, 0) + first;
    }
}

}  // namespace

store::Rule CommitRule(const RuleForm& form) {
    store::Rule rule;
    const std::optional<Operation> operation = SelectedOperation(form);
    if (!operation) {
        return rule;
    }
    const OperationLayout& layout = LayoutOf(*operation);
    rule.operation = layout.code;
    rule.inputFolder = form.inputFolder.text;
    rule.errorFolder = form.errorFolder.text;
    rule.description = form.description.text;
    rule.masks = form.result.masks;
    rule.isOn = 1;
    if (layout.usesOutputFolder) {
        rule.outputFolder = form.outputFolder.text;
    }
    if (layout.usesCsProfile) {
        rule.csProfile = SelectedEntry(form.csProfile);
    }
    if (layout.cert == CertUse::kRecipients) {
        rule.recipients = form.recipients;
    } else if (layout.cert == CertUse::kSigners) {
        rule.signerGroups = form.result.signerGroups;
    }
    CommitArchiver(form, ArchiverUse(layout), rule);
    if (operation == Operation::kResign) {
        CommitResign(form, rule);
    } else if (operation == Operation::kMove) {
        CommitMove(form, rule);
    } else if (operation == Operation::kPack) {
        CommitPack(form, rule);
    } else if (operation == Operation::kExecute) {
        rule.executable = form.cert.text;
        rule.executionTimeout = form.numbers[0].number;
    }
    return rule;
}

}  // namespace corvane::editors
