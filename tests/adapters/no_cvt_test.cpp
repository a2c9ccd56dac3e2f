#include <gtest/gtest.h>

#include "adapters/cvt.h"

namespace wb::adapters {
namespace {

TEST(NoCvt, TellsWhatIsMissing) {
    EXPECT_EQ(missingCvtLibrary(), "libxcvt");
    try {
        cvtModeline({.width = 1920, .height = 1080});
        FAIL() << "a timing without a library";
    } catch (const fields::ModelineError& error) {
        EXPECT_STREQ(error.what(), "this program was built without libxcvt, which computes CVT timings");
    }
}

} // namespace
} // namespace wb::adapters
