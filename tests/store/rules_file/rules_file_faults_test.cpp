#include "store/rules_file/rules_file.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "tests/kit/fakes/memory_files.h"
#include "tests/kit/fixtures/reporter_fixture.h"
#include "toolkit/text/format_text.h"

// Export and import with each file call failing in turn, with the codes that users meet: the file is missing
// (2), may not be touched (5), is in use (32), the disk is full (112), the device is broken (1117).

namespace corvane::test {
namespace {

constexpr std::array<std::uint32_t, 5> kCodes = {2, 5, 32, 112, 1117};
constexpr wchar_t kPath[] = L"C:\\exchange\\rules.prx";
constexpr std::size_t kPieceBytes = 50;

std::vector<store::Rule> SomeRules() {
    store::Rule first;
    first.operation = L"ENCR";
    first.recipients = {L"CN=A", L"CN=B"};
    first.description = L"Letters to the bank";
    store::Rule second;
    second.operation = L"SIGN";
    second.signerGroups = {{L"chiefs", {L"CN=C", L"CN=D"}}};
    return {first, second};
}

// The file that an export of SomeRules leaves when nothing fails.
std::string WholeText() {
    const std::wstring text = store::FormatRulesFile(SomeRules());
    return {text.begin(), text.end()};
}

std::wstring OperationText(FileOperation operation) {
    switch (operation) {
        case FileOperation::kCreate:
            return L"Creating file %s";
        case FileOperation::kOpen:
            return L"Opening file %s";
        case FileOperation::kSize:
            return L"Getting size of file %s";
        case FileOperation::kRead:
            return L"Reading file %s";
        case FileOperation::kWrite:
            return L"Writing file %s";
        case FileOperation::kClose:
            return L"Closing file %s";
        case FileOperation::kCheckExists:
            break;
    }
    return L"no operation of a rules file";
}

// The one report that the failure of `operation` with `code` makes.
std::wstring ReportText(FileOperation operation, std::uint32_t code) {
    return toolkit::FormatText(OperationText(operation), {kPath}) +
           toolkit::FormatText(L".\r\nError 0x%X - System text %d.", {code, code});
}

// The operations of a run in which nothing fails, and the disk takes and gives pieces.
std::vector<FileOperation> OperationsOfUndisturbed(const MemoryFiles& files) {
    std::vector<FileOperation> operations;
    for (const FileCall& call : files.Calls()) {
        EXPECT_EQ(call.code, 0U);
        operations.push_back(call.operation);
    }
    return operations;
}

std::vector<FileOperation> ExportOperations() {
    MemoryFiles files;
    ReporterFixture reports;
    files.LimitWrites(kPieceBytes);
    EXPECT_TRUE(store::WriteRulesFile(kPath, SomeRules(), files, reports.reporter, nullptr));
    return OperationsOfUndisturbed(files);
}

std::vector<FileOperation> ImportOperations() {
    MemoryFiles files;
    ReporterFixture reports;
    files.contents[kPath] = WholeText();
    files.LimitReads(kPieceBytes);
    EXPECT_EQ(store::ReadRulesFile(kPath, files, reports.reporter, nullptr), WholeText());
    return OperationsOfUndisturbed(files);
}

void ExpectAllClosed(const MemoryFiles& files) {
    EXPECT_EQ(files.OpenHandles(), 0U);
    EXPECT_EQ(files.Misuses(), 0U);
}

// After the failed call at most the closing call follows.
void ExpectStoppedAt(const MemoryFiles& files, std::size_t failedCall, FileOperation operation) {
    const bool wasOpen = operation != FileOperation::kCreate && operation != FileOperation::kOpen &&
                         operation != FileOperation::kClose;
    ASSERT_EQ(files.Calls().size(), failedCall + (wasOpen ? 2 : 1));
    if (wasOpen) {
        EXPECT_EQ(files.Calls().back().operation, FileOperation::kClose);
    }
}

TEST(ExportFaults, EveryCallThatFailsIsReportedOnceAndTheFileIsClosed) {
    const std::vector<FileOperation> operations = ExportOperations();
    ASSERT_GE(operations.size(), 5U);
    for (const std::uint32_t code : kCodes) {
        for (std::size_t call = 0; call < operations.size(); ++call) {
            SCOPED_TRACE("call " + std::to_string(call) + " fails with " + std::to_string(code));
            MemoryFiles files;
            ReporterFixture reports;
            files.LimitWrites(kPieceBytes);
            files.FailCall(call, code);
            const std::vector<store::Rule> rules = SomeRules();
            EXPECT_FALSE(store::WriteRulesFile(kPath, rules, files, reports.reporter, nullptr));
            EXPECT_EQ(reports.presenter.OnlyText(), ReportText(operations[call], code));
            EXPECT_EQ(rules, SomeRules());
            ExpectStoppedAt(files, call, operations[call]);
            ExpectAllClosed(files);
        }
    }
}

TEST(ExportFaults, WhatWasWrittenBeforeTheFailureStays) {
    const std::vector<FileOperation> operations = ExportOperations();
    const std::string whole = WholeText();
    for (std::size_t call = 0; call < operations.size(); ++call) {
        SCOPED_TRACE("call " + std::to_string(call) + " fails");
        MemoryFiles files;
        ReporterFixture reports;
        files.contents[kPath] = "an older export";
        files.LimitWrites(kPieceBytes);
        files.FailCall(call, 112);
        EXPECT_FALSE(store::WriteRulesFile(kPath, SomeRules(), files, reports.reporter, nullptr));
        if (operations[call] == FileOperation::kCreate) {
            EXPECT_EQ(files.contents[kPath], "an older export");
        } else {
            EXPECT_EQ(files.contents[kPath], whole.substr(0, (call - 1) * kPieceBytes));
        }
    }
}

TEST(ExportFaults, AClosingThatFailsAfterAnotherFailureIsNotReported) {
    const std::vector<FileOperation> operations = ExportOperations();
    for (std::size_t call = 1; operations[call] == FileOperation::kWrite; ++call) {
        SCOPED_TRACE("call " + std::to_string(call) + " fails");
        MemoryFiles files;
        ReporterFixture reports;
        files.LimitWrites(kPieceBytes);
        files.FailCall(call, 112);
        files.FailCall(call + 1, 6);
        EXPECT_FALSE(store::WriteRulesFile(kPath, SomeRules(), files, reports.reporter, nullptr));
        EXPECT_EQ(reports.presenter.OnlyText(), ReportText(FileOperation::kWrite, 112));
        ExpectAllClosed(files);
    }
}

TEST(ImportFaults, EveryCallThatFailsIsReportedOnceAndTheFileIsClosed) {
    const std::vector<FileOperation> operations = ImportOperations();
    ASSERT_GE(operations.size(), 6U);
    for (const std::uint32_t code : kCodes) {
        for (std::size_t call = 0; call < operations.size(); ++call) {
            SCOPED_TRACE("call " + std::to_string(call) + " fails with " + std::to_string(code));
            MemoryFiles files;
            ReporterFixture reports;
            files.contents[kPath] = WholeText();
            files.LimitReads(kPieceBytes);
            files.FailCall(call, code);
            EXPECT_EQ(store::ReadRulesFile(kPath, files, reports.reporter, nullptr), std::nullopt);
            EXPECT_EQ(reports.presenter.OnlyText(), ReportText(operations[call], code));
            EXPECT_EQ(files.contents[kPath], WholeText());
            ExpectStoppedAt(files, call, operations[call]);
            ExpectAllClosed(files);
        }
    }
}

TEST(ImportFaults, AClosingThatFailsAfterAnotherFailureIsNotReported) {
    const std::vector<FileOperation> operations = ImportOperations();
    for (std::size_t call = 1; operations[call] != FileOperation::kClose; ++call) {
        SCOPED_TRACE("call " + std::to_string(call) + " fails");
        MemoryFiles files;
        ReporterFixture reports;
        files.contents[kPath] = WholeText();
        files.LimitReads(kPieceBytes);
        files.FailCall(call, 1117);
        files.FailCall(call + 1, 6);
        EXPECT_EQ(store::ReadRulesFile(kPath, files, reports.reporter, nullptr), std::nullopt);
        EXPECT_EQ(reports.presenter.OnlyText(), ReportText(operations[call], 1117));
        ExpectAllClosed(files);
    }
}

}  // namespace
}  // namespace corvane::test
