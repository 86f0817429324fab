#include "store/records.h"

#include <gtest/gtest.h>

#include "tests/kit/samples/sample_rules.h"

namespace corvane::test {
namespace {

TEST(OperationCodes, OnlyArchAndUnarHaveAnArchiveFormatThatIsNeverZero) {
    for (const std::wstring code : kCodes) {
        EXPECT_EQ(store::IsArchiveOperation(code), code == L"ARCH" || code == L"UNAR");
    }
}

}  // namespace
}  // namespace corvane::test
