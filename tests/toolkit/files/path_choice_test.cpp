#include "toolkit/files/paths.h"

#include <gtest/gtest.h>

#include <utility>

namespace corvane::test {
namespace {

TEST(CommonDialogFailure, TheSystemsCodeSaysTheSameAsNearAsItCan) {
    const std::pair<std::uint32_t, std::uint32_t> expected[] = {{0x0009, 8},    {0x000A, 8},   {0x3001, 8},
                                                                {0x3002, 123},  {0x3003, 111}, {0xFFFF, 1359},
                                                                {0x0002, 1359}, {0x0001, 1359}};
    for (const auto& [commonDialogError, code] : expected) {
        EXPECT_EQ(toolkit::CommonDialogFailure(commonDialogError).code, code)
            << std::hex << commonDialogError;
    }
}

TEST(CommonDialogFailure, TheDetailHasTheNumberOfTheCommonDialog) {
    EXPECT_EQ(
        toolkit::CommonDialogFailure(0x300A),
        (toolkit::DialogFailure{toolkit::kShowFileDialogOperation, "common dialog error 0x300A", 1359}));
}

}  // namespace
}  // namespace corvane::test
