#include "cli/boxes.h"

#include <gtest/gtest.h>

#include "cli/cli_error.h"
#include "cli/program.h"
#include "cli/samples.h"

namespace wb::cli {
namespace {

/// The lines that would be told.
std::vector<std::string> linesOf(const Boxes& boxes) {
    std::vector<std::string> lines;
    for (const Box& box : boxes.distinct()) {
        lines.push_back(boxText(box));
    }
    return lines;
}

using Lines = std::vector<std::string>;

Image imageOf(const std::string& bytes) {
    return *Image::fromBytes(bytes);
}

TEST(Boxes, AreToldOnceAStepWithHowOftenTheyCame) {
    Boxes boxes;
    EXPECT_TRUE(boxes.empty());
    boxes.add("Overflow", "decoding block 0");
    boxes.add("Type mismatch", "decoding block 0");
    boxes.add("Overflow", "decoding block 0");
    boxes.add("Overflow", "building the report");
    boxes.add("Not\r\nfound", "");
    boxes.add("Type mismatch", "decoding block 0");
    EXPECT_EQ(linesOf(boxes),
              (Lines{"Overflow (2 times, decoding block 0)", "Type mismatch (2 times, decoding block 0)",
                     "Overflow (building the report)", "Not found"}));
    EXPECT_EQ(boxes.count(), 6U);
    EXPECT_EQ(boxes.last(), "Type mismatch");
    boxes.add("Not\r\nfound", "");
    EXPECT_EQ(linesOf(boxes).back(), "Not found (2 times)");
    boxes.clear();
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(boxes.count(), 0U);
}

TEST(Boxes, NameTheLoadingWhereAnAnnouncedBlockIsMissing) {
    Program program;
    program.load(imageOf(test::sample("zarqo-z40.bin").substr(0, Image::blockSize)));
    EXPECT_EQ(linesOf(program.boxes()), Lines{"Invalid procedure call or argument (loading the image)"});
}

TEST(Boxes, NameTheOpeningOfADataFileWithAPairTooMany) {
    Program program;
    program.loadDataFile({"a.DAT", test::sample("zarqo-z40.DAT") + "| AA\r\n| AA\r\n"});
    EXPECT_EQ(linesOf(program.boxes()), Lines{"Subscript out of range (2 times, opening the data file)"});
}

TEST(Boxes, NameTheDecodingOfTheBlockThatCausesThem) {
    Program program;
    program.load(imageOf(test::sample("quillmere-q15.bin")));
    EXPECT_EQ(linesOf(program.boxes()), Lines{"Control array element does not exist (decoding block 0)"});

    std::string image = test::sample("zarqo-z40.bin");
    image[130] = '\x7F'; // the detailed timings of the extension begin at its last cell and run past it
    Program other;
    other.load(imageOf(image));
    ASSERT_EQ(other.boxes().distinct().size(), 1U);
    EXPECT_EQ(other.boxes().distinct().front().text, "Control array element does not exist");
    EXPECT_EQ(other.boxes().distinct().front().step, "decoding the extension");
    EXPECT_GT(other.boxes().distinct().front().times, 1U);
}

TEST(Boxes, NameTheReportWhereItCannotBeBuilt) {
    Program program;
    program.load(imageOf(test::sample("halvorine-hv19.bin")));
    program.workbench().StandardTimingText.create(30); // more than the report has room for
    program.report();
    EXPECT_EQ(linesOf(program.boxes()), Lines{"Subscript out of range (5 times, building the report)"})
        << "it is built five times";
    program.clearBoxes();
    EXPECT_THROW(program.dataFile(), CliError);
    EXPECT_EQ(linesOf(program.boxes()), Lines{"Subscript out of range (5 times, building the report)"});
}

TEST(Boxes, OfTheUserNameNoStepThatIsOver) {
    Program program;
    program.load(imageOf(test::sample("halvorine-hv19.bin")));
    program.workbench().showMessage("Later");
    EXPECT_EQ(linesOf(program.boxes()), Lines{"Later"});
}

} // namespace
} // namespace wb::cli
