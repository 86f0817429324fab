#include "toolkit/files/path_pickers.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/kit/fixtures/temporary_folder.h"

namespace corvane::test {
namespace {

TEST(KeptCurrentFolder, IsPutBackAtTheEnd) {
    const TemporaryFolder first;
    const TemporaryFolder second;
    const toolkit::KeptCurrentFolder ofTheTests;
    std::filesystem::current_path(first.Path());
    {
        const toolkit::KeptCurrentFolder kept;
        std::filesystem::current_path(second.Path());
    }
    EXPECT_TRUE(std::filesystem::equivalent(std::filesystem::current_path(), first.Path()))
        << std::filesystem::current_path();
}

}  // namespace
}  // namespace corvane::test
