#include "toolkit/kept_current_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/toolkit/seams/temporary_folder.h"

namespace toolkit {
namespace {

TEST(KeptCurrentFolder, IsPutBackAtTheEnd) {
    const testing::TemporaryFolder first;
    const testing::TemporaryFolder second;
    const KeptCurrentFolder ofTheTests;
    std::filesystem::current_path(first.Path());
    {
        const KeptCurrentFolder kept;
        std::filesystem::current_path(second.Path());
    }
    EXPECT_TRUE(std::filesystem::equivalent(std::filesystem::current_path(), first.Path()))
        << std::filesystem::current_path();
}

}  // namespace
}  // namespace toolkit
