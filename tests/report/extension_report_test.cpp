#include "report/extension_report.h"

#include <gtest/gtest.h>

#include <map>

#include "report/report_lines.h"
#include "support/program.h"

namespace wb::report {
namespace {

using Lines = std::vector<std::string>;
using Entries = std::map<int, std::string>;

const std::string rule = "______________________________________________________________________\r\n"; // 70 of them

class ExtensionReport : public testing::Test {
protected:
    ExtensionReport() {
        workbench.frmCEA_EXT();
        forgetBlocks();
    }
    void forgetBlocks() {
        for (std::int16_t SharedVariables::*place :
             {&SharedVariables::VideoBlockStart, &SharedVariables::VideoBlockLength, &SharedVariables::AudioBlockStart,
              &SharedVariables::AudioBlockLength, &SharedVariables::SpeakerBlockStart,
              &SharedVariables::SpeakerBlockLength, &SharedVariables::VendorBlockStart,
              &SharedVariables::VendorBlockLength}) {
            workbench.*place = 0;
        }
        workbench.ExtDetailedBlockText.create(7);
        workbench.ExtDtdOffsetText = "200";
        workbench.ExtDtdStart = 200;
        workbench.ExtDtdSlotCount = 0;
        workbench.Block0ChecksumText = "CheckSum OK\r\n";
    }
    FrmCeaExt& screen() { return workbench.frmCEA_EXT(); }
    void tag(const std::string& text) { screen().txtEdit(0).setText(text); }
    std::string entry(int index) { return workbench.ReportExtLines(index); }
    /// The entries from 63 on that are not empty, up to and with the end mark.
    Entries body() {
        Entries entries;
        for (int i = 63; i < workbench.ReportExtLines.size(); ++i) {
            if (!entry(i).empty()) {
                entries[i] = entry(i);
            }
            if (entry(i) == endOfReport) {
                break;
            }
        }
        return entries;
    }
    std::string text() const {
        std::string text;
        addEntries(text, workbench.ReportExtLines);
        return text;
    }
    static Entries withEnd(Entries entries, int at) {
        entries[at] = "\r\n";
        entries[at + 1] = "(200-126) No Data:\r\n";
        entries[at + 2] = "  (127)  CheckSum OK\r\n";
        entries[at + 3] = "END REPORT";
        return entries;
    }

    test::Program program;
    Workbench& workbench = program.workbench;
};

TEST_F(ExtensionReport, HeadAndDump) {
    program.platform.setClock({2024, 2, 5, 7, 8, 9});
    for (int i = 0; i < 128; ++i) {
        screen().txtEdit(i).setText(std::to_string(i));
    }
    screen().txtEdit(0).setText("02");
    screen().VerRev.setText("3");
    BuildExtensionReport(workbench);
    EXPECT_EQ(workbench.ReportExtLines.size(), 301);
    for (int i = 0; i < 30; ++i) {
        EXPECT_EQ(entry(i), "");
    }
    const std::string expected[] = {
        "\r\n",
        "\r\n",
        "\r\n",
        "                            Time:  07:08:09\r\n",
        "                        Date:  Mon Feb 05, 2024\r\n",
        rule,
        rule,
        "\r\n",
        "                        HALVORINE CORPORATION\r\n",
        "               EDID CEA-861B Timing Extension Version 3\r\n", // 40 characters
        rule,
        rule,
        "EDID Block 1, Bytes 128-255\r\n",
        "Block Type: CEA EDID Timing Extension\r\n",
        "\r\n",
        "      0   1   2   3   4   5   6   7   8   9   \r\n",
        "      ________________________________________\r\n",
        "0    |02  1   2   3   4   5   6   7   8   9   \r\n",
        "10   |10  11  12  13  14  15  16  17  18  19  \r\n",
        "20   |20  21  22  23  24  25  26  27  28  29  \r\n",
        "30   |30  31  32  33  34  35  36  37  38  39  \r\n",
        "40   |40  41  42  43  44  45  46  47  48  49  \r\n",
        "50   |50  51  52  53  54  55  56  57  58  59  \r\n",
        "60   |60  61  62  63  64  65  66  67  68  69  \r\n",
        "70   |70  71  72  73  74  75  76  77  78  79  \r\n",
        "80   |80  81  82  83  84  85  86  87  88  89  \r\n",
        "90   |90  91  92  93  94  95  96  97  98  99  \r\n",
        "100  |100 101 102 103 104 105 106 107 108 109 \r\n",
        "110  |110 111 112 113 114 115 116 117 118 119 \r\n",
        "120  |120 121 122 123 124 125 126 127 \r\n",
        "",
        rule,
        "\r\n",
    };
    for (int i = 0; i < 33; ++i) {
        EXPECT_EQ(entry(30 + i), expected[i]) << 30 + i;
    }
    EXPECT_TRUE(program.boxes.empty());
}

struct Kind {
    std::string tag;
    std::string title;
    std::string type;
};

class KindOfBlock : public ExtensionReport, public testing::WithParamInterface<Kind> {};

TEST_P(KindOfBlock, IsToldByItsTag) {
    tag(GetParam().tag);
    screen().VerRev.setText("1");
    BuildExtensionReport(workbench);
    EXPECT_EQ(entry(39), GetParam().title);
    EXPECT_EQ(entry(43), GetParam().type);
}

INSTANTIATE_TEST_SUITE_P(
    Tags, KindOfBlock,
    testing::Values(
        Kind{"02", "                EDID CEA-861 Timing Extension Version 1\r\n",
             "Block Type: CEA EDID Timing Extension\r\n"},
        Kind{"F0", "                       EDID Block Map Extension\r\n", "Block Type: EDID Block Map Extension\r\n"},
        Kind{"01", "                      EDID LCD Timings Extension\r\n",
             "Block Type: EDID LCD Timings Extension\r\n"},
        Kind{"20", "                          EDID 2.0 Extension\r\n", "Block Type: EDID 2.0 Extension\r\n"},
        Kind{"30", "                EDID Color Information Type 0 Extension\r\n",
             "Block Type: EDID Color Information Type 0 Extension\r\n"},
        Kind{"40", "                        EDID DI-EXT Extension\r\n", "Block Type: EDID DI-EXT Extension\r\n"},
        Kind{"FF", "                EDID Extension Defined by Manufacturer\r\n",
             "Block Type: EDID Extension Defined by Manufacturer\r\n"},
        Kind{"00", "                        Repeating Block 0 EDID\r\n", "Block Type: Illegal Block 0 EDID\r\n"},
        Kind{"ff", "", ""}, Kind{"03", "", ""}, Kind{"2", "", ""}),
    [](const auto& kind) { return "Tag" + kind.param.tag; });

TEST_F(ExtensionReport, VersionsHaveTheirTitles) {
    const std::pair<const char*, const char*> titles[] = {
        {"1", "                EDID CEA-861 Timing Extension Version 1\r\n"},
        {"2", "               EDID CEA-861A Timing Extension Version 2\r\n"},
        {"3", "               EDID CEA-861B Timing Extension Version 3\r\n"},
        {"4", ""},
        {"", ""}};
    for (const auto& [version, title] : titles) {
        screen().VerRev.setText(version);
        BuildExtensionReport(workbench);
        EXPECT_EQ(entry(39), title) << version;
        EXPECT_EQ(entry(43), "Block Type: CEA EDID Timing Extension\r\n");
    }
}

TEST_F(ExtensionReport, ARepeatedBlock0EndsUnderTheDump) {
    tag("00");
    workbench.VideoBlockStart = 4;
    workbench.VendorBlockStart = 9;
    BuildExtensionReport(workbench);
    EXPECT_EQ(entry(61), rule);
    EXPECT_EQ(entry(62), "\r\n");
    EXPECT_TRUE(body().empty());
    EXPECT_EQ(workbench.ExtDtdStart, 200);
    const std::string text = this->text();
    EXPECT_EQ(text.substr(text.size() - rule.size() - 2), rule + "\r\n");
}

TEST_F(ExtensionReport, ABlockMapTellsOfTwoBlocks) {
    const std::pair<const char*, const char*> kinds[] = {{"02", " is a CEA Timing Extension Block\r\n"},
                                                         {"F0", " is a Block Map Extension Block\r\n"},
                                                         {"01", " is a LCD Timings Extension Block\r\n"},
                                                         {"20", " is an EDID 2.0 Extension Block\r\n"},
                                                         {"30", " is a Color Information Type 0 Extension Block\r\n"},
                                                         {"40", " is a DI-EXT Extension Block\r\n"},
                                                         {"FF", " is an Extension Block Defined by Manufacturer\r\n"}};
    tag("F0");
    for (const auto& [cell, words] : kinds) {
        screen().txtEdit(1).setText(cell);
        screen().txtEdit(2).setText("00");
        BuildExtensionReport(workbench);
        EXPECT_EQ(entry(63), std::string("(1)     Block 1") + words);
        EXPECT_EQ(entry(64), "");
        screen().txtEdit(1).setText("00");
        screen().txtEdit(2).setText(cell);
        BuildExtensionReport(workbench);
        EXPECT_EQ(entry(63), "");
        EXPECT_EQ(entry(64), std::string("(2)     Block 2") + words);
    }
}

TEST_F(ExtensionReport, CeaHead) {
    screen().lbEDID(5).setCaption("Detailed Timing Start at - 26");
    workbench.DTVSupportText = "DTV";
    BuildExtensionReport(workbench);
    EXPECT_EQ(body(), withEnd({{63, "(2)Detailed Timing Start at - 26\r\n"}, {64, "(3)DTV\r\n"}}, 201));
    EXPECT_EQ(workbench.ExtDtdStart, 201);
}

TEST_F(ExtensionReport, AnotherTagPrintsTheBlocksToo) {
    tag("03");
    workbench.VendorBlockStart = 9;
    workbench.VendorBlockLength = 5;
    workbench.VendorTagText = "V\r\n";
    workbench.VendorIDText = "ID";
    workbench.VendorDataText = "Data";
    BuildExtensionReport(workbench);
    EXPECT_EQ(body(), withEnd({{73, "(9)V\r\n"}, {74, "(10-12)    ID\r\n"}, {75, "(13-14)    Data\r\n"}}, 201));
}

class DataBlocks : public ExtensionReport {
protected:
    DataBlocks() {
        tag("03");
        workbench.AudioTagText = "A, \r\n";
        workbench.AudioKindText = "Compressed";
        workbench.AudioChannelsText = "Audio Channels: 2";
        workbench.AudioFormatText = "DTS";
        workbench.SampFreqText = "32KHz,";
        workbench.BitRateText = "Rate";
        workbench.LastAudioKindText = "Uncompressed";
        workbench.LastAudioChannelsText = "Audio Channels: 8";
        workbench.LastAudioFormatText = "Linear PCM (IEC60958)";
        workbench.LastSampFreqText = " 96KHz,";
        workbench.LastBitRateText = "Last rate";
        workbench.LastAudioDescriptor = 14;
        workbench.SpeakerTagText = "S\r\n";
        workbench.SpeakerText = "FL/FR,";
        workbench.VendorTagText = "V\r\n";
        workbench.VendorIDText = "ID";
        workbench.VendorDataText = "Data";
        workbench.VSDBExtText = "Supports_AI,";
    }
    void audio(std::int16_t start, std::int16_t length, std::int16_t descriptors) {
        workbench.AudioBlockStart = start;
        workbench.AudioBlockLength = length;
        workbench.AudioDescriptorCount = descriptors;
    }
    void video(std::int16_t start, std::int16_t length) {
        workbench.VideoBlockStart = start;
        workbench.VideoBlockLength = length;
        workbench.VideoTagText = "Video\r\n";
        workbench.ShortVideoText.create(length + 1);
        for (int i = 1; i <= length; ++i) {
            workbench.ShortVideoText(i) = "Format " + std::to_string(i) + "\r\n";
        }
    }
    void speakers(std::int16_t start, std::int16_t length) {
        workbench.SpeakerBlockStart = start;
        workbench.SpeakerBlockLength = length;
    }
    void vendor(std::int16_t start, std::int16_t length) {
        workbench.VendorBlockStart = start;
        workbench.VendorBlockLength = length;
    }
    static Entries firstAudio(int at) {
        return {{at, "(10)A, \r\n"},
                {at + 1, "(11)       Compressed, Audio Channels: 2, DTS\r\n"},
                {at + 2, "(12)       Sampling Frequency: 32KHz,\r\n"},
                {at + 3, "(13)       Rate\r\n"}};
    }
    static Entries lastAudio(int at) {
        return {{at, "(14)       Uncompressed, Audio Channels: 8, Linear PCM (IEC60958)\r\n"},
                {at + 1, "(15)       Sampling Frequency:  96KHz,\r\n"},
                {at + 2, "(16)       Last rate\r\n"}};
    }
    static Entries joined(std::initializer_list<Entries> parts) {
        Entries all;
        for (const Entries& part : parts) {
            for (const auto& [at, text] : part) {
                all[at] = text;
            }
        }
        return all;
    }
};

TEST_F(DataBlocks, VideoOfACeaBlock) {
    tag("02");
    video(5, 2);
    workbench.ShortVideoText(2) = "";
    BuildExtensionReport(workbench);
    EXPECT_EQ(entry(65), "(4)Video\r\n");
    EXPECT_EQ(entry(66), "");
    EXPECT_EQ(entry(67), "(5)       Format 1\r\n\r\n");
    EXPECT_EQ(entry(68), "(6)       \r\n"); // an unknown format has no words
    EXPECT_EQ(entry(69), "");
}

TEST_F(DataBlocks, VideoOfAnotherBlockOnlyMovesTheRest) {
    video(4, 3);
    audio(10, 3, 1);
    BuildExtensionReport(workbench);
    EXPECT_EQ(body(), withEnd(firstAudio(70), 201));
}

TEST_F(DataBlocks, WithoutAVideoBlockItsLengthStillMovesTheRest) {
    tag("02");
    video(0, 3);
    audio(10, 3, 1);
    BuildExtensionReport(workbench);
    EXPECT_EQ(entry(65), "");
    EXPECT_EQ(entry(70), "(10)A, \r\n");
}

TEST_F(DataBlocks, AudioWithOneDescriptor) {
    audio(10, 5, 1);
    BuildExtensionReport(workbench);
    EXPECT_EQ(body(), withEnd(firstAudio(67), 201));
}

TEST_F(DataBlocks, AudioWithTheLastDescriptor) {
    audio(10, 6, 2);
    BuildExtensionReport(workbench);
    EXPECT_EQ(body(), withEnd(joined({firstAudio(67), lastAudio(71)}), 201));
    audio(10, 12, 4);
    workbench.ExtDtdStart = 200;
    BuildExtensionReport(workbench);
    EXPECT_EQ(body(), withEnd(joined({firstAudio(67), lastAudio(71)}), 201));
}

TEST_F(DataBlocks, LastAudioNeedsASecondDescriptorAndABlock) {
    audio(10, 6, 1); // the length was changed since the walk
    BuildExtensionReport(workbench);
    EXPECT_EQ(body(), withEnd(firstAudio(67), 201));
    audio(0, 6, 2);
    workbench.ExtDtdStart = 200;
    BuildExtensionReport(workbench);
    EXPECT_EQ(body(), withEnd({}, 201));
}

TEST_F(DataBlocks, Speakers) {
    speakers(20, 3);
    BuildExtensionReport(workbench);
    EXPECT_EQ(body(), withEnd({{71, "(20)S\r\n"}, {72, "(21-23)    FL/FR,\r\n"}}, 201));
    audio(0, 6, 2);
    workbench.ExtDtdStart = 200;
    BuildExtensionReport(workbench);
    EXPECT_EQ(body(), withEnd({{74, "(20)S\r\n"}, {75, "(21-23)    FL/FR,\r\n"}}, 201));
}

TEST_F(DataBlocks, LongVendorBlock) {
    vendor(30, 6);
    BuildExtensionReport(workbench);
    EXPECT_EQ(body(), withEnd({{76, "(30)V\r\n"},
                               {77, "(31-33)    ID\r\n"},
                               {78, "(34-35)    Data\r\n"},
                               {79, "(36)       VSDB Extension: Supports_AI,\r\n"}},
                              201));
}

TEST_F(DataBlocks, AShortVendorBlockOverwritesTheOthers) {
    audio(10, 6, 2);
    speakers(20, 3);
    vendor(30, 5);
    BuildExtensionReport(workbench);
    Entries expected = joined({firstAudio(67), lastAudio(71)});
    expected[73] = "(30)V\r\n";
    expected[74] = "(31-33)    ID\r\n";
    expected[75] = "(34-35)    Data\r\n";
    EXPECT_EQ(body(), withEnd(expected, 201));
}

class Timings : public ExtensionReport {
protected:
    Timings() {
        tag("03");
        workbench.ExtDtdStart = 100;
        workbench.ExtDtdOffsetText = "100";
    }
    Entries oneTiming(int at) {
        return {{at, rule},
                {at + 1, "\r\n"},
                {at + 2, "(100-117) Detailed Timing / Descriptor Block 1:\r\nT\r\n"},
                {at + 3, "\r\n"},
                {at + 4, "(100-126) No Data:\r\n"},
                {at + 5, "  (127)  CheckSum OK\r\n"},
                {at + 6, "END REPORT"}};
    }
};

TEST_F(Timings, TheEntryGrowsWithEachBuild) {
    workbench.ExtDetailedBlockText(0) = "T";
    BuildExtensionReport(workbench);
    EXPECT_EQ(body(), oneTiming(101));
    EXPECT_EQ(workbench.ExtDtdStart, 104);
    for (int build = 2; build <= 5; ++build) {
        BuildExtensionReport(workbench);
    }
    EXPECT_EQ(body(), oneTiming(117)); // 100 + 4 * 4 + 1
    EXPECT_EQ(workbench.ExtDtdStart, 120);
}

TEST_F(Timings, EmptySlotsAreLeftOut) {
    workbench.ExtDtdSlotCount = 2;
    workbench.ExtDetailedBlockText(0) = "A";
    workbench.ExtDetailedBlockText(2) = "C";
    BuildExtensionReport(workbench);
    EXPECT_EQ(body(), (Entries{{101, rule},
                               {102, "\r\n"},
                               {103, "(100-117) Detailed Timing / Descriptor Block 1:\r\nA\r\n"},
                               {104, rule},
                               {105, "\r\n"},
                               {106, "(136-153) Detailed Timing / Descriptor Block 3:\r\nC\r\n"},
                               {107, "\r\n"},
                               {108, "(136-126) No Data:\r\n"},
                               {109, "  (127)  CheckSum OK\r\n"},
                               {110, "END REPORT"}}));
}

TEST_F(Timings, ALowStartOverwritesTheHeadAndCutsTheReport) {
    tag("02");
    workbench.ExtDtdStart = 40;
    workbench.ExtDtdOffsetText = "40";
    workbench.ExtDetailedBlockText(0) = "T";
    BuildExtensionReport(workbench);
    EXPECT_EQ(entry(40), rule);
    EXPECT_EQ(entry(41), rule);
    EXPECT_EQ(entry(42), "\r\n");
    EXPECT_EQ(entry(43), "(40-57) Detailed Timing / Descriptor Block 1:\r\nT\r\n");
    EXPECT_EQ(entry(44), "\r\n");
    EXPECT_EQ(entry(45), "(40-126) No Data:\r\n");
    EXPECT_EQ(entry(46), "  (127)  CheckSum OK\r\n");
    EXPECT_EQ(entry(47), "END REPORT");
    EXPECT_EQ(entry(48).substr(0, 6), "10   |");
    const std::string text = this->text();
    EXPECT_EQ(text.substr(text.size() - 22), "  (127)  CheckSum OK\r\n");
}

TEST_F(Timings, AVeryLowStartPrintsBeforeTheHead) {
    workbench.ExtDtdStart = 4;
    workbench.ExtDtdOffsetText = "0";
    workbench.ExtDtdSlotCount = 6;
    BuildExtensionReport(workbench);
    EXPECT_EQ(text(), "\r\n(108-126) No Data:\r\n  (127)  CheckSum OK\r\n");
}

TEST_F(Timings, AnOffsetThatIsNoNumberEndsTheBuild) {
    workbench.ExtDtdOffsetText = "ten";
    BuildExtensionReport(workbench);
    EXPECT_EQ(program.takeBoxes(), Lines{"Type mismatch"});
    EXPECT_EQ(body(), (Entries{{101, "\r\n"}}));
    workbench.ExtDetailedBlockText(0) = "T";
    BuildExtensionReport(workbench);
    EXPECT_EQ(program.takeBoxes(), Lines{"Type mismatch"});
    EXPECT_EQ(body(), (Entries{{102, rule}, {103, "\r\n"}}));
    EXPECT_EQ(workbench.ExtDtdStart, 104);
}

TEST_F(Timings, AnEntryAbove300EndsTheBuild) {
    workbench.ExtDtdStart = 297;
    BuildExtensionReport(workbench);
    EXPECT_EQ(program.takeBoxes(), Lines{"Subscript out of range"});
    EXPECT_EQ(body(), (Entries{{298, "\r\n"}, {299, "(100-126) No Data:\r\n"}, {300, "  (127)  CheckSum OK\r\n"}}));
}

TEST_F(Timings, ASlotWithoutATextEndsTheBuild) {
    workbench.ExtDtdSlotCount = 7;
    BuildExtensionReport(workbench);
    EXPECT_EQ(program.takeBoxes(), Lines{"Subscript out of range"});
    EXPECT_TRUE(body().empty());
}

TEST_F(Timings, AVideoListShorterThanItsLengthEndsTheBuild) {
    tag("02");
    workbench.VideoBlockStart = 4;
    workbench.VideoBlockLength = 2;
    workbench.ShortVideoText.create(2);
    BuildExtensionReport(workbench);
    EXPECT_EQ(program.takeBoxes(), Lines{"Subscript out of range"});
    EXPECT_EQ(workbench.ExtDtdStart, 100);
}

} // namespace
} // namespace wb::report
