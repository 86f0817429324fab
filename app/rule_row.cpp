#include "app/rule_row.h"

#include <initializer_list>
#include <stdexcept>

#include "app/rule_format_texts.h"
#include "config/operation_codes.h"
#include "toolkit/format_text.h"

namespace corvane {

namespace {

constexpr wchar_t kPartSeparator[] = L"; ";

/// Appends a part, with the separator before it unless it is the first one.
void AppendPart(std::wstring& text, const std::wstring& part) {
    if (!text.empty()) {
        text += kPartSeparator;
    }
    text += part;
}

std::wstring MovePartsText(const Rule& rule) {
    std::wstring text;
    for (const std::wstring* part :
         {&rule.secondOutput, &rule.deleteExtension, &rule.addExtension, &rule.folders, &rule.copyFolders}) {
        if (!part->empty()) {
            AppendPart(text, *part);
        }
    }
    return text;
}

std::wstring ResignPartsText(const Rule& rule) {
    std::wstring text;
    if (!rule.signerGroups.empty()) {
        text += std::to_wstring(rule.signerGroups.size());
        text += kPartSeparator;
    }
    text += rule.resignProfile;
    text += kPartSeparator;
    text += SignatureFormatsText(rule);
    return text;
}

void AppendArchiveFormat(std::wstring& text, const Rule& rule) {
    if (rule.archiveFormat == 0) {
        return;
    }
    // Deliberate: the separator also stands where recipients or signer lists exist whose number this
    // operation does not show; users read such rows so.
    if (!rule.recipients.empty() || !rule.signerGroups.empty()) {
        text += kPartSeparator;
    }
    text += ArchiveFormatText(rule);
}

void AppendPackParts(std::wstring& text, const Rule& rule) {
    for (const std::int32_t number : {rule.archiveFileCount, rule.archiveSize, rule.archiveTimeout}) {
        if (number > 0) {
            AppendPart(text, std::to_wstring(number));
        }
    }
    if (!rule.archiveName.empty()) {
        AppendPart(text, rule.archiveName);
    }
}

void AppendExecutionParts(std::wstring& text, const Rule& rule) {
    AppendPart(text, rule.executable);
    if (rule.executionTimeout > 0) {
        text += kPartSeparator;
        text += std::to_wstring(rule.executionTimeout);
    }
}

std::wstring OperationText(const Rule& rule) {
    // Deliberate: an output folder that is not set blanks the operation, not the folder. Users know such
    // rules by it.
    if (rule.outputFolder == kNotSetText) {
        return {};
    }
    return std::wstring(OperationDisplayName(rule.operation));
}

std::wstring ErrorFolderText(const Rule& rule) {
    // Deliberate: a CS profile that is not set blanks the error folder, not the profile. Users know such
    // rules by it.
    return rule.csProfile == kNotSetText ? std::wstring() : rule.errorFolder;
}

std::wstring MasksText(const Rule& rule) {
    return rule.masks.size() == 1 ? rule.masks.front() : std::to_wstring(rule.masks.size());
}

}  // namespace

std::wstring RuleCellText(const Rule& rule, std::size_t position, std::size_t column) {
    switch (column) {
        case kNumberColumn:
            return std::to_wstring(position + 1);
        case kDescriptionColumn:
            return rule.description;
        case kOperationColumn:
            return OperationText(rule);
        case kInputFolderColumn:
            return rule.inputFolder;
        case kOutputFolderColumn:
            return rule.outputFolder;
        case kErrorFolderColumn:
            return ErrorFolderText(rule);
        case kMasksColumn:
            return MasksText(rule);
        case kCsProfileColumn:
            return rule.csProfile;
        case kExtraColumn:
            return ExtraText(rule);
        default:
            throw std::invalid_argument("The rule list has no such column.");
    }
}

std::wstring ExtraText(const Rule& rule) {
    if (rule.operation == L"MOVE") {
        return MovePartsText(rule);
    }
    if (rule.operation == L"RESG") {
        return ResignPartsText(rule);
    }
    const std::size_t certificateCount =
        rule.operation == L"DCCX" ? rule.recipients.size() : rule.signerGroups.size();
    std::wstring text = certificateCount != 0 ? std::to_wstring(certificateCount) : std::wstring();
    AppendArchiveFormat(text, rule);
    if (rule.operation == L"PACK") {
        AppendPackParts(text, rule);
    } else if (rule.operation == L"EXEC") {
        AppendExecutionParts(text, rule);
    }
    return text;
}

}  // namespace corvane
