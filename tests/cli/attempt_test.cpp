#include "cli/attempt.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace wb::cli {
namespace {

/// What attempt() tells of work on "a.bin".
template <class Work>
std::string toldOf(const Work& work) {
    testing::internal::CaptureStderr();
    const bool good = attempt("a.bin", work);
    const std::string told = testing::internal::GetCapturedStderr();
    EXPECT_EQ(good, told.empty());
    return told;
}

TEST(Attempt, TellsWhatStopsTheWorkUnderItsName) {
    EXPECT_EQ(toldOf([] {}), "");
    EXPECT_EQ(toldOf([] { throw CliError("is empty"); }), "edidwb: a.bin: is empty\n");
}

TEST(Attempt, TakesWantOfMemoryForTheTroubleOfAFile) {
    EXPECT_EQ(toldOf([] { throw std::bad_alloc(); }), "edidwb: a.bin: not enough memory\n");
    EXPECT_EQ(toldOf([] { std::string().reserve(std::string().max_size() + 1); }),
              "edidwb: a.bin: not enough memory\n");
}

TEST(Attempt, LeavesToOthersWhatIsNoTroubleOfAFile) {
    EXPECT_THROW(attempt("a.bin", [] { throw UsageError("no such option"); }), UsageError);
    EXPECT_THROW(attempt("a.bin", [] { throw OutputError("standard output", false); }), OutputError);
    EXPECT_THROW(attempt("a.bin", [] { throw std::logic_error("a mistake"); }), std::logic_error);
}

TEST(Attempt, GivesWhatTheWorkGives) {
    EXPECT_EQ(withinMemory([] { return std::string("done"); }), "done");
    EXPECT_THROW(withinMemory([]() -> int { throw std::bad_alloc(); }), CliError);
}

} // namespace
} // namespace wb::cli
