#include "store/records.h"

#include <gtest/gtest.h>

#include "tests/kit/samples/operation_witness.h"

namespace corvane::test {
namespace {

TEST(OperationCodes, OnlyArchAndUnarHaveAnArchiveFormatThatIsNeverZero) {
    for (const std::wstring code : kCodes) {
        EXPECT_EQ(store::IsArchiveOperation(code), code == L"ARCH" || code == L"UNAR");
    }
}

}  // namespace
}  // namespace corvane::test
