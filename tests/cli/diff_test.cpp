#include <gmock/gmock.h>

#include <algorithm>

#include "cli/edidwb.h"

namespace wb::test {
namespace {

using testing::HasSubstr;
using DiffTest = Edidwb;

TEST_F(DiffTest, TellsTheFieldsThatDiffer) {
    std::string image = sample("halvorine-hv19.bin");
    write("a.bin", image);
    image[54] = static_cast<char>(image[54] + 1); // a hundredth of a megahertz
    image[127] = static_cast<char>(image[127] - 1);
    write("b.bin", image);
    const Outcome outcome = shell("edidwb diff a.bin b.bin");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output.substr(0, 37), "base.detailed[1].pixel_clock: 157.50 "); // 3D86 hexadecimal
    EXPECT_THAT(outcome.output, HasSubstr("157.50 MHz -> 157.51 MHz\nbase.checksum: "));
    EXPECT_EQ(std::count(outcome.output.begin(), outcome.output.end(), '\n'), 2) << outcome.output;
}

TEST_F(DiffTest, TheSameImageInTwoFormsIsTheSame) {
    shell("edidwb convert --to hex $SAMPLES/zarqo-z40.bin z.hex");
    const Outcome outcome = shell("edidwb diff $SAMPLES/zarqo-z40.bin z.hex");
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(outcome.output, "");
}

TEST_F(DiffTest, TellsFieldsThatOnlyOneHas) {
    const std::string image = sample("zarqo-z40.bin");
    write("short.bin", image.substr(0, 128));
    const Outcome longer = shell("edidwb diff short.bin $SAMPLES/zarqo-z40.bin");
    EXPECT_EQ(longer.status, 1);
    EXPECT_THAT(longer.output, HasSubstr(": (none) -> "));
    const Outcome json = shell("edidwb diff --format json $SAMPLES/zarqo-z40.bin short.bin");
    EXPECT_EQ(json.status, 1);
    EXPECT_THAT(json.output, HasSubstr("\"b\":null}"));
}

TEST_F(DiffTest, TroubleHasStatus2) {
    for (const char* arguments : {"missing $SAMPLES/zarqo-z40.bin", "$SAMPLES/zarqo-z40.bin missing", "a", "- -"}) {
        EXPECT_EQ(shell("edidwb diff " + std::string(arguments)).status, 2) << arguments;
    }
}

} // namespace
} // namespace wb::test
