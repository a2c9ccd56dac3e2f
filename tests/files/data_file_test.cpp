#include "files/data_file.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/program.h"
#include "support/temporary_folder.h"

namespace wb::files {
namespace {

using Boxes = std::vector<std::string>;

class DataFile : public testing::Test {
protected:
    /// Reads a file of that content.
    bool read(std::string_view content) {
        program.workbench.CurrentFileName = folder.write("image.DAT", content);
        return ReadEDIDDataFile(program.workbench);
    }
    std::string entry(int index) { return program.workbench.EDIDCells(index); }

    test::TemporaryFolder folder;
    test::Program program;
};

TEST_F(DataFile, TakesThePairsBehindTheFirstBarOfEachRow) {
    EXPECT_TRUE(
        read("Brand | 99\r\n128 BYTES OF EDID CODE:\r\nheader | 98\r\nrule | 97\r\n0    |00  FF  0a\r\nno bar "
             "55\r\n1|7 7\t4|4\r\n"));
    EXPECT_EQ(entry(0), "00");
    EXPECT_EQ(entry(1), "FF");
    EXPECT_EQ(entry(2), "0a");
    EXPECT_EQ(entry(3), "77") << "blanks may stand between the halves of a pair";
    EXPECT_EQ(entry(4), "44") << "further bars are skipped";
    EXPECT_EQ(entry(5), "");
}

TEST_F(DataFile, TheMarkerCountsInAnyLetterCaseAndInsideALine) {
    EXPECT_TRUE(read("x 128 bytes Of edid code: y\na\nb\n|01"));
    EXPECT_EQ(entry(0), "01");
}

TEST_F(DataFile, WithoutMarkerTheEntriesStayEmpty) {
    program.workbench.EDIDCells(0) = "55";
    EXPECT_FALSE(read("0 |00 01\r\n"));
    EXPECT_EQ(program.takeBoxes(), Boxes{"This File is not a Valid EDID/DDC File"});
    EXPECT_EQ(entry(0), "");
}

TEST_F(DataFile, OneThatIsTooLargeIsToldWithItsSize) {
    program.workbench.CurrentFileName = folder.write("image.DAT", "128 BYTES OF EDID CODE:\r\n\r\n\r\n|01\r\n");
    std::filesystem::resize_file(program.workbench.CurrentFileName, 33554433);
    EXPECT_FALSE(ReadEDIDDataFile(program.workbench));
    EXPECT_EQ(program.takeBoxes(),
              Boxes{"This File has 33554433 bytes, more than 33554432 bytes, which is the most that is read"});
    program.workbench.CurrentFileName = "/dev/zero";
    EXPECT_FALSE(ReadEDIDDataFile(program.workbench));
    EXPECT_EQ(program.takeBoxes(), Boxes{"This File has more than 33554432 bytes, which is the most that is read"});
}

TEST_F(DataFile, AMarkerWithoutRowsIsValid) {
    EXPECT_TRUE(read("128 BYTES OF EDID CODE:\r\n\r\n\r\n"));
    EXPECT_EQ(entry(0), "");
    EXPECT_TRUE(program.boxes.empty());
}

TEST_F(DataFile, ASecondMarkerIsOfferedToTheParserAndCostsTwoLines) {
    EXPECT_TRUE(read("128 BYTES OF EDID CODE:\n-\n-\n|01\n128 BYTES OF EDID CODE: |02\n|03\n|04\n|05\n"));
    EXPECT_EQ(entry(0), "01");
    EXPECT_EQ(entry(1), "02");
    EXPECT_EQ(entry(2), "05");
}

TEST_F(DataFile, AFileCutInTheSkippedLinesIsAFailure) {
    for (const std::string_view cut :
         {"128 BYTES OF EDID CODE:", "128 BYTES OF EDID CODE:\n", "128 BYTES OF EDID CODE:\r\nx"}) {
        EXPECT_FALSE(read(cut));
        EXPECT_EQ(program.takeBoxes(), Boxes{"Input past end of file"}) << cut;
    }
}

TEST_F(DataFile, ALineEndsAtLineFeedOnly) {
    EXPECT_TRUE(read("128 BYTES OF EDID CODE:\n\n\n|01\r|02\n"));
    EXPECT_EQ(entry(0), "01");
    EXPECT_EQ(entry(1), "02") << "a lone carriage return is a control character inside the line";
}

TEST_F(DataFile, ARowWithoutItsBlanksReadsTheSame) {
    EXPECT_TRUE(read("128 BYTES OF EDID CODE:\n\n\n0  |00  FF  A5  \n10|5A0F7E\n"));
    const Boxes cells{"00", "FF", "A5", "5A", "0F", "7E", ""};
    for (std::size_t i = 0; i < cells.size(); ++i) {
        EXPECT_EQ(entry(static_cast<int>(i)), cells[i]) << i;
    }
}

TEST_F(DataFile, ALeftOverCharacterIsDropped) {
    EXPECT_TRUE(read("128 BYTES OF EDID CODE:\n\n\n|01 2\n|34\n"));
    EXPECT_EQ(entry(0), "01");
    EXPECT_EQ(entry(1), "34");
}

TEST_F(DataFile, CharactersAboveTheBlankCountWhateverTheyAre) {
    EXPECT_TRUE(
        read("128 BYTES OF EDID CODE:\n\n\n|\xE4\xFF \x7F"
             "Z\x1A"
             "1\n"));
    EXPECT_EQ(entry(0), "\xE4\xFF");
    EXPECT_EQ(entry(1), "\x7FZ");
    EXPECT_EQ(entry(2), "") << "1A is a control character and ends nothing";
}

TEST_F(DataFile, PairsPastTheArrayAreToldOncePerLineAndTheFirst256Stay) {
    std::string content = "128 BYTES OF EDID CODE:\n\n\n";
    for (int i = 0; i < 256; ++i) {
        content += "|12\n";
    }
    EXPECT_TRUE(read(content + "|34 56\n|\n|78\n"));
    EXPECT_EQ(program.takeBoxes(), Boxes(2, "Subscript out of range"));
    EXPECT_EQ(entry(255), "12");
}

TEST_F(DataFile, WhatIsNoFileIsTold) {
    program.workbench.CurrentFileName = folder.file("missing.DAT");
    EXPECT_FALSE(ReadEDIDDataFile(program.workbench));
    EXPECT_EQ(program.takeBoxes(), Boxes{"File not found"});
    for (const std::string& name : {folder.file(""), folder.file("no/such/folder.DAT"), std::string()}) {
        program.workbench.CurrentFileName = name;
        EXPECT_FALSE(ReadEDIDDataFile(program.workbench));
        EXPECT_EQ(program.takeBoxes(), Boxes{"Path/File access error"}) << name;
    }
}

TEST_F(DataFile, EveryByteValueAndNoLineEndAreRead) {
    std::string content;
    for (int i = 0; i < 256; ++i) {
        content += static_cast<char>(i);
    }
    EXPECT_FALSE(read(content));
    EXPECT_FALSE(read(""));
    EXPECT_FALSE(read(std::string(5'000'000, '|')));
    EXPECT_EQ(program.takeBoxes(), Boxes(3, "This File is not a Valid EDID/DDC File"));
}

TEST_F(DataFile, ContentInMemoryReadsAsItsFileDoes) {
    const std::string valid = "128 BYTES OF EDID CODE:\r\n-\r\n-\r\n0 |00  FF\r\n";
    EXPECT_TRUE(readDataFile(program.workbench, valid));
    EXPECT_EQ(entry(0), "00");
    EXPECT_EQ(entry(1), "FF");
    EXPECT_EQ(entry(2), "");
    EXPECT_FALSE(readDataFile(program.workbench, "0 |00  FF\r\n"));
    EXPECT_EQ(entry(0), "");
    EXPECT_FALSE(readDataFile(program.workbench, valid.substr(0, valid.find('-'))));
    EXPECT_EQ(program.takeBoxes(), (Boxes{"This File is not a Valid EDID/DDC File", "Input past end of file"}));
}

TEST(DataFileText, LeavesOutEmptyEntriesAndStopsAtTheSentinel) {
    TextArray lines(8);
    lines(1) = "\r\n";
    lines(2) = "a\r\n";
    lines(3) = "b\r\n\r\nc\r\n\r\n";
    lines(4) = "d";
    lines(5) = "END REPORT";
    lines(6) = "e";
    EXPECT_EQ(dataFileText(lines), "a\r\nb\r\n\r\nc\r\n\r\nd\r\n");
}

TEST(DataFileText, WithoutSentinelRunsToTheEnd) {
    TextArray lines(2);
    lines(1) = "a";
    EXPECT_EQ(dataFileText(lines), "a\r\n");
}

} // namespace
} // namespace wb::files
