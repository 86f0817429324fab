#include "config/rules_file.h"

#include "config/rules_file_text.h"
#include "config/whole_file.h"

namespace corvane {

bool WriteRulesFile(const std::wstring& path, const std::vector<Rule>& rules, toolkit::FileCalls& files,
                    ErrorReporter& reporter, toolkit::WindowHandle owner) {
    // The bytes are ready before the file is created, so that an existing file is not lost to a lack of
    // memory.
    const std::string bytes = reporter.Text().Narrow(FormatRulesFile(rules));
    return bytes.empty() || WholeFile(path, files, reporter, owner).Write(bytes);
}

std::optional<std::string> ReadRulesFile(const std::wstring& path, toolkit::FileCalls& files,
                                         ErrorReporter& reporter, toolkit::WindowHandle owner) {
    return WholeFile(path, files, reporter, owner).Read();
}

}  // namespace corvane
