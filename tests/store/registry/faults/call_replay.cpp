#include "tests/store/registry/faults/call_replay.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "store/registry/registry_calls.h"
#include "tests/kit/fixtures/store_fixture.h"

namespace corvane::test {

namespace {

// The name that an enumeration gave is its answer, not its question.
bool IsSameCall(const RegistryCall& left, const RegistryCall& right) {
    return left.operation == right.operation && left.keyPath == right.keyPath &&
           (left.operation == RegistryOperation::kEnumerate || left.name == right.name);
}

std::string Lines(const std::vector<RegistryCall>& calls) {
    std::string lines;
    for (const RegistryCall& call : calls) {
        lines += Describe(call) + '\n';
    }
    return lines;
}

}  // namespace

std::vector<RegistryCall> WithoutClosing(const std::vector<RegistryCall>& calls) {
    std::vector<RegistryCall> others;
    std::copy_if(calls.begin(), calls.end(), std::back_inserter(others),
                 [](const RegistryCall& call) { return call.operation != RegistryOperation::kClose; });
    return others;
}

std::size_t CountWithoutClosing(const std::vector<RegistryCall>& calls, std::size_t count) {
    const auto end = calls.begin() + static_cast<std::ptrdiff_t>(count);
    return static_cast<std::size_t>(std::count_if(calls.begin(), end, [](const RegistryCall& call) {
        return call.operation != RegistryOperation::kClose;
    }));
}

void ExpectSameCalls(const std::vector<RegistryCall>& expected, const std::vector<RegistryCall>& found) {
    auto next = expected.begin();
    bool isSame = true;
    for (const RegistryCall& call : found) {
        if (call.operation != RegistryOperation::kClose && isSame) {
            isSame = next != expected.end() && IsSameCall(*next++, call);
        }
    }
    if (!isSame || next != expected.end()) {
        EXPECT_EQ(Lines(expected), Lines(WithoutClosing(found)));
        ADD_FAILURE() << "the calls are others than those expected";
    }
}

RegistrySnapshot Replay(RegistrySnapshot before, const std::vector<RegistryCall>& calls) {
    for (const RegistryCall& call : calls) {
        if (call.code != 0) {
            continue;
        }
        if (call.operation == RegistryOperation::kSet) {
            before[call.keyPath][call.name] = call.written;
        } else if (call.operation == RegistryOperation::kDelete) {
            before.erase(call.keyPath);
        } else if (call.operation == RegistryOperation::kCreate) {
            for (std::size_t end = call.keyPath.size(); end != std::wstring::npos;
                 end = call.keyPath.rfind(L'\\', end - 1)) {
                before[call.keyPath.substr(0, end)];
            }
        }
    }
    return before;
}

std::wstring OpenReport(const std::wstring& path, std::uint32_t code) {
    return ReportText(L"Create (open) register key HKEY_CURRENT_USER\\" + path, code);
}

std::wstring SearchReport(const std::wstring& path, std::uint32_t code) {
    return ReportText(L"Search register key HKEY_CURRENT_USER\\" + path + L" subkeys", code);
}

std::wstring DeleteReport(const std::wstring& path, std::uint32_t code) {
    return ReportText(L"Delete register key HKEY_CURRENT_USER\\" + path, code);
}

std::wstring ReadReport(const std::wstring& kind, const std::wstring& name, std::uint32_t code) {
    return ReportText(L"Reading " + kind + L" value '" + name + L"' from register", code);
}

std::wstring WriteReport(const RegistryCall& set, std::uint32_t code) {
    std::wstring kind = L"multistring";
    if (set.written.type == store::kTypeNumber) {
        kind = L"integer";
    } else if (set.written.type == store::kTypeText) {
        kind = L"string";
    }
    return ReportText(L"Writing " + kind + L" value '" + set.name + L"' into register", code);
}

}  // namespace corvane::test
