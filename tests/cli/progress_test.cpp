#include "cli/progress.h"

#include <gtest/gtest.h>

namespace wb::cli {
namespace {

TEST(Progress, TellsRateAndTimeLeft) {
    EXPECT_EQ(progressText(120, 820, 2.0), "120 of 820 files, 60 a second, 12 s left");
    EXPECT_EQ(progressText(820, 820, 4.0), "820 of 820 files, 205 a second, 0 s left");
}

TEST(Progress, TellsCountAndRateWhileTheTotalIsUnknown) {
    EXPECT_EQ(progressText(9000, std::nullopt, 3.0), "9000 files found, 3000 a second");
}

} // namespace
} // namespace wb::cli
