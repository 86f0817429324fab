#include "editors/rule/rule_opening.h"

#include <algorithm>

#include "store/records.h"

namespace corvane::editors {

namespace {

/// The index of the entry that equals `text`, or 0 where none does.
int IndexOf(const store::TextList& entries, const std::wstring& text) {
    const auto found = std::find(entries.begin(), entries.end(), text);
    return found == entries.end() ? 0 : static_cast<int>(found - entries.begin());
}

void SetUpButtons(RuleForm& form) {
    form.inputButton = {RuleIcon::kInputFolder, L"Input folder"};
    form.outputButton = {RuleIcon::kOutputFolder, L"Output folder"};
    form.errorButton = {RuleIcon::kErrorFolder, L"Error folder"};
    form.addMaskButton = {RuleIcon::kAddMask, L"Add"};
    form.editMaskButton = {RuleIcon::kEditMask, L"Edit"};
    form.deleteMaskButton = {RuleIcon::kDeleteMask, L"Delete"};
}

void FillLists(RuleForm& form) {
    form.operation.entries = store::SplitEntries(store::kOperationNames);
    form.csProfile.entries = form.profile.csProfiles;
    FillSignatureFormats(form.choices[0]);
    FillSignatureFormats(form.choices[1]);
    form.choices[2].entries = form.profile.csProfiles;
}

/// The index of a stored archive format in the choice; a format that the choice does not hold shows as its
/// first entry.
int ArchiverIndex(const ChoiceField& choice, std::int32_t archiveFormat) {
    // Compared before anything is taken away: a stored number can be the smallest there is.
    const std::int32_t first = HoldsNoArchiver(choice) ? 0 : 1;
    const auto last = first + static_cast<std::int32_t>(choice.entries.size()) - 1;
    return archiveFormat < first || archiveFormat > last ? 0 : archiveFormat - first;
}

/// The index of a stored signature format. Deliberate: only 1 counts as detached here, although the client
/// takes every number but 0 for it; users see such a rule as attached until they set it right.
int SignatureFormatIndex(std::int32_t isDetached) {
    return isDetached == 1 ? 1 : 0;
}

std::wstring ShownPath(const std::wstring& stored) {
    return IsNotSet(stored) ? std::wstring() : stored;
}

void LoadPackRows(RuleForm& form, const store::Rule& rule) {
    form.numbers[0].number = std::max(rule.archiveFileCount, 0);
    form.numbers[1].number = std::max(rule.archiveSize, 0);
    form.numbers[2].number = std::max(rule.archiveTimeout, 0);
    form.texts[3].text = rule.archiveName;
}

void LoadMoveRows(RuleForm& form, const store::Rule& rule) {
    form.cert.text = ShownPath(rule.secondOutput);
    form.texts[0].text = rule.deleteExtension;
    form.texts[1].text = rule.addExtension;
    form.texts[2].text = rule.folders;
    form.texts[3].text = rule.copyFolders;
}

void LoadResignRows(RuleForm& form, const store::Rule& rule) {
    form.choices[0].index = SignatureFormatIndex(rule.inputDetached);
    form.choices[1].index = SignatureFormatIndex(rule.outputDetached);
    form.choices[2].index = IndexOf(form.choices[2].entries, rule.resignProfile);
}

void LoadRows(RuleForm& form, Operation operation, const store::Rule& rule) {
    if (operation == Operation::kMove) {
        LoadMoveRows(form, rule);
    } else if (operation == Operation::kPack) {
        LoadPackRows(form, rule);
    } else if (operation == Operation::kExecute) {
        form.cert.text = ShownPath(rule.executable);
        form.numbers[0].number = std::max(rule.executionTimeout, 0);
    } else if (operation == Operation::kResign) {
        LoadResignRows(form, rule);
    } else if (ArchiverUse(LayoutOf(operation)) != RowUse::kNone) {
        form.choices[kArchiverRow].index = ArchiverIndex(form.choices[kArchiverRow], rule.archiveFormat);
    }
}

void LoadRule(RuleForm& form, Operation operation, const store::Rule& rule) {
    form.inputFolder.text = rule.inputFolder;
    if (LayoutOf(operation).usesOutputFolder) {
        form.outputFolder.text = rule.outputFolder;
    }
    form.errorFolder.text = rule.errorFolder;
    form.description.text = rule.description;
    form.result.masks = rule.masks;
    const CertUse use = LayoutOf(operation).cert;
    if (use == CertUse::kRecipients) {
        form.recipients = rule.recipients;
    } else if (use == CertUse::kSigners) {
        form.result.signerGroups = rule.signerGroups;
    }
    ShowCertCount(form, operation);
    LoadRows(form, operation, rule);
    form.csProfile.index = IndexOf(form.csProfile.entries, rule.csProfile);
}

/// The operation of a code; a text that is no code gives the first one.
Operation OperationOf(const std::wstring& code) {
    const auto found = std::find_if(kOperationLayouts.begin(), kOperationLayouts.end(),
                                    [&code](const OperationLayout& layout) { return layout.code == code; });
    return found == kOperationLayouts.end() ? Operation::kEncrypt
                                            : static_cast<Operation>(found - kOperationLayouts.begin());
}

}  // namespace

RuleForm OpenRule(const store::Profile& profile, const store::Rule& rule, AcceptedCsProfile& accepted) {
    RuleForm form;
    form.isNew = rule.operation.empty();
    form.profile = profile;
    form.title = form.isNew ? L"Add rule" : L"Edit rule";
    form.exitText = L"Exit";
    form.descriptionLabel = L"Descrip\ntion";
    form.cert.text = L"0";
    SetUpButtons(form);
    FillLists(form);

    const Operation operation = OperationOf(rule.operation);
    form.operation.index = static_cast<int>(operation);
    FillArchivers(form.choices[kArchiverRow], LayoutOf(operation));
    ShowLayout(form, operation);
    if (!form.isNew) {
        LoadRule(form, operation, rule);
        // Deliberate: a new rule does not set it. There it is still that of the last rule that was opened,
        // so users are asked about a new rule's certificates only when they go beyond that one.
        accepted.index = form.csProfile.index;
    }
    form.settledCsProfile = form.csProfile.index;
    return form;
}

}  // namespace corvane::editors
