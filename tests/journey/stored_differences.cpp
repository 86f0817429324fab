#include "tests/journey/stored_differences.h"

#include <algorithm>
#include <iterator>
#include <set>

#include "tests/driver/failure.h"

namespace corvane::test {

namespace {

std::wstring Words(const driver::RegistryData& data) {
    if (const auto* const number = std::get_if<std::uint32_t>(&data)) {
        return std::to_wstring(*number);
    }
    if (const auto* const text = std::get_if<std::wstring>(&data)) {
        return L"\"" + *text + L"\"";
    }
    std::wstring words = L"list";
    for (const std::wstring& element : std::get<driver::Texts>(data)) {
        words += L" \"" + element + L"\"";
    }
    return words;
}

std::set<std::string> LinesOf(const StoredTree& tree) {
    std::set<std::string> lines;
    for (const auto& [key, values] : tree) {
        const std::wstring place = L"\"" + key + L"\" ";
        lines.insert(driver::Utf8(L"key " + place));
        for (const auto& [name, data] : values) {
            std::wstring line = place;
            line.append(name).append(L" = ").append(Words(data));
            lines.insert(driver::Utf8(line));
        }
    }
    return lines;
}

void AppendMissing(const std::string& prefix, const std::set<std::string>& from,
                   const std::set<std::string>& in, std::vector<std::string>& lines) {
    std::set<std::string> missing;
    std::set_difference(from.begin(), from.end(), in.begin(), in.end(),
                        std::inserter(missing, missing.end()));
    for (const std::string& line : missing) {
        lines.push_back(prefix + line);
    }
}

}  // namespace

std::vector<std::string> DifferencesOf(const StoredTree& expected, const StoredTree& stored) {
    const std::set<std::string> wanted = LinesOf(expected);
    const std::set<std::string> found = LinesOf(stored);
    std::vector<std::string> lines;
    AppendMissing("not stored: ", wanted, found, lines);
    AppendMissing("not expected: ", found, wanted, lines);
    return lines;
}

}  // namespace corvane::test
