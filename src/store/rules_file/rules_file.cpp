#include "store/rules_file/rules_file.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <variant>

#include "store/records.h"
#include "store/whole_file.h"
#include "toolkit/text/format_text.h"

namespace corvane::store {

namespace {

constexpr std::wstring_view kFieldSeparator = L"\n";
// LF before CR, not the usual order: deliberately kept for everybody who has rules files already.
constexpr std::wstring_view kRecordEnd = L"\n\r";
constexpr std::string_view kRecordEndBytes = "\n\r";
constexpr std::wstring_view kElementSeparator = L";;";
constexpr std::wstring_view kGroupSeparator = L";\\;";
constexpr std::wstring_view kEmptyList = L"0";

using SignerGroups = std::vector<SignerGroup>;
using RecordField = std::variant<FieldOf<Rule, std::wstring>, FieldOf<Rule, std::int32_t>,
                                 FieldOf<Rule, TextList>, FieldOf<Rule, SignerGroups>>;

// Every field of a record in the order of the file, for writing and reading alike. The order is the file's
// own; it is not that of the values in the registry.
constexpr std::array<RecordField, 25> kRecordFields = {
    &Rule::operation,
    &Rule::inputFolder,
    &Rule::outputFolder,
    &Rule::errorFolder,
    &Rule::masks,
    &Rule::recipients,
    &Rule::isOn,
    &Rule::csProfile,
    &Rule::inputDetached,
    &Rule::outputDetached,
    &Rule::resignProfile,
    &Rule::secondOutput,
    &Rule::description,
    &Rule::signerGroups,
    &Rule::archiveFormat,
    &Rule::deleteExtension,
    &Rule::addExtension,
    &Rule::folders,
    &Rule::copyFolders,
    &Rule::archiveFileCount,
    &Rule::archiveSize,
    &Rule::archiveTimeout,
    &Rule::archiveName,
    &Rule::executable,
    &Rule::executionTimeout,
};

constexpr std::size_t kFewestFields = 12;
constexpr std::size_t kArchiveFormatField = 14;

// The parts of `text` between the separators, empty ones included; an empty text has one, empty part.
std::vector<std::wstring_view> Split(std::wstring_view text, std::wstring_view separator) {
    std::vector<std::wstring_view> parts;
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::wstring_view::npos) {
            return parts;
        }
        text.remove_prefix(end + separator.size());
    }
}

// Appends the fields of one rule, each in its own form.
class FieldWriter {
  public:
    FieldWriter(const Rule& rule, std::wstring& text) : rule_(rule), text_(text) {}

    void operator()(FieldOf<Rule, std::wstring> field) const { text_ += rule_.*field; }

    void operator()(FieldOf<Rule, std::int32_t> field) const { text_ += std::to_wstring(rule_.*field); }

    void operator()(FieldOf<Rule, TextList> field) const {
        const TextList& list = rule_.*field;
        if (list.empty()) {
            text_ += kEmptyList;
            return;
        }
        text_ += list.front();
        AppendElements(list.begin() + 1, list.end());
    }

    void operator()(FieldOf<Rule, SignerGroups> field) const {
        const SignerGroups& groups = rule_.*field;
        if (groups.empty()) {
            text_ += kEmptyList;
        }
        for (std::size_t index = 0; index < groups.size(); ++index) {
            if (index != 0) {
                text_ += kGroupSeparator;
            }
            text_ += groups[index].name;
            AppendElements(groups[index].signers.begin(), groups[index].signers.end());
        }
    }

  private:
    void AppendElements(TextList::const_iterator element, TextList::const_iterator end) const {
        for (; element != end; ++element) {
            text_ += kElementSeparator;
            text_ += *element;
        }
    }

    const Rule& rule_;
    std::wstring& text_;
};

// Sets one field of a new rule from its text in the record.
class FieldReader {
  public:
    FieldReader(std::wstring_view text, Rule& rule) : text_(text), rule_(rule) {}

    void operator()(FieldOf<Rule, std::wstring> field) const { rule_.*field = text_; }

    void operator()(FieldOf<Rule, std::int32_t> field) const { rule_.*field = toolkit::ParseDecimal(text_); }

    void operator()(FieldOf<Rule, TextList> field) const {
        if (text_ == kEmptyList) {
            return;
        }
        for (const std::wstring_view element : Split(text_, kElementSeparator)) {
            if (!element.empty()) {
                (rule_.*field).emplace_back(element);
            }
        }
    }

    void operator()(FieldOf<Rule, SignerGroups> field) const {
        if (text_ == kEmptyList) {
            return;
        }
        for (const std::wstring_view groupText : Split(text_, kGroupSeparator)) {
            if (groupText.empty()) {
                continue;
            }
            const std::vector<std::wstring_view> elements = Split(groupText, kElementSeparator);
            SignerGroup& group = (rule_.*field).emplace_back();
            group.name = elements.front();
            group.signers.assign(elements.begin() + 1, elements.end());
        }
    }

  private:
    std::wstring_view text_;
    Rule& rule_;
};

Rule ParseRule(const std::vector<std::wstring_view>& fields) {
    Rule rule;
    const std::size_t count = std::min(fields.size(), kRecordFields.size());
    for (std::size_t index = 0; index < count; ++index) {
        std::visit(FieldReader(fields[index], rule), kRecordFields[index]);
    }
    // A record that ends before this field keeps 0, deliberately so also for an archive operation: such
    // records come from files that are older than the choice of a format.
    if (fields.size() > kArchiveFormatField && IsArchiveOperation(rule.operation) &&
        rule.archiveFormat == 0) {
        rule.archiveFormat = 1;
    }
    return rule;
}

}  // namespace

std::wstring FormatRulesFile(const std::vector<Rule>& rules) {
    std::wstring text;
    for (const Rule& rule : rules) {
        for (std::size_t index = 0; index < kRecordFields.size(); ++index) {
            if (index != 0) {
                text += kFieldSeparator;
            }
            std::visit(FieldWriter(rule, text), kRecordFields[index]);
        }
        text += kRecordEnd;
    }
    return text;
}

TextList SplitRecords(std::string_view bytes, const toolkit::SystemText& systemText) {
    bytes = bytes.substr(0, bytes.find('\0'));
    TextList records;
    for (std::size_t end = bytes.find(kRecordEndBytes); end != std::string_view::npos;
         end = bytes.find(kRecordEndBytes)) {
        std::wstring record = systemText.Widen(bytes.substr(0, end));
        if (record.find(kFieldSeparator) != std::wstring::npos) {
            records.push_back(std::move(record));
        }
        bytes.remove_prefix(end + kRecordEndBytes.size());
    }
    return records;
}

std::vector<Rule> ParseRecords(const TextList& records) {
    std::vector<Rule> rules;
    for (const std::wstring& record : records) {
        const std::vector<std::wstring_view> fields = Split(record, kFieldSeparator);
        if (fields.size() >= kFewestFields) {
            rules.push_back(ParseRule(fields));
        }
    }
    return rules;
}

std::vector<Rule> ParseRulesFile(std::string_view bytes, const toolkit::SystemText& systemText) {
    return ParseRecords(SplitRecords(bytes, systemText));
}

bool WriteRulesFile(const std::wstring& path, const std::vector<Rule>& rules, toolkit::FileCalls& files,
                    reporting::ErrorReporter& reporter, toolkit::WindowHandle owner) {
    // The bytes are ready before the file is created, so that an existing file is not lost to a lack of
    // memory.
    const std::string bytes = reporter.Text().Narrow(FormatRulesFile(rules));
    return bytes.empty() || WholeFile(path, files, reporter, owner).Write(bytes);
}

std::optional<std::string> ReadRulesFile(const std::wstring& path, toolkit::FileCalls& files,
                                         reporting::ErrorReporter& reporter, toolkit::WindowHandle owner) {
    return WholeFile(path, files, reporter, owner).Read();
}

}  // namespace corvane::store
