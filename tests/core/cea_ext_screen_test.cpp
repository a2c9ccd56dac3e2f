// The screen of the extension as it comes into being: names, captions, containers and lists.

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>

#include "core/screen_rows.h"
#include "core/screens/frm_cea_ext.h"
#include "support/program.h"

namespace wb {
namespace {

constexpr int single = Control::noIndex;
const Captions noCaption = {""};

const ScreenRow rows[] = {
    {"Cmd_Return", single, {"Return to Main"}, ""},
    {"Hints",
     0,
     {"Audio Channels ( )", "Speaker ( )", "Version Number (1)", "Detailed Timing Offset (2)", "Speaker ( )",
      "Audio Sampling Frequency ( )", "Audio Sampling bit rate ( )", "Vendor Specific Data Block (  )",
      "VSDB Extension ( )", "Detailed Timing (54-71)", "Detailed Timing (54-71)", "Detailed Timing (54-71)",
      "Ext .Standard Timing", "Vendor Specific Data Block ( )", "Native Formats (3)", "Data Block Tag Codes (4)",
      "Video Data Block (5)"},
     ""},
    {"AudChCBox", single, noCaption, "Hints(0)"},
    {"lbAudioCh", single, {"Maximum Number of Audio Channels."}, "Hints(0)"},
    {"FrmAudFormCode", single, noCaption, "Hints(0)"},
    {"AudFormCode",
     0,
     {"Reserved", "Linear PCM (IEC60958)", "AC-3", "MPEG1 (Layers 1 and 2)", "MP3 (MPEG1 Layer 3)",
      "MPEG2 (multichannel)", "AAC", "DTS", "ATRAC", "One Bit Audio", "Dolby Digital +", "DTS-HD", "MAT (MLP)", "DST",
      "WMA Pro"},
     "FrmAudFormCode"},
    {"lbSpeaker", single, {"This value should be 00H."}, "Hints(1)"},
    {"VerRev", single, noCaption, "Hints(2)"},
    {"VerRel", single, noCaption, "Hints(2)"},
    {"lbEDID", 0, {"", "", "", ""}, "Hints(2)"},
    {"lbEDID", 4, noCaption, "Hints(13)"},
    {"lbEDID", 5, {"Detailed Timing Start at - "}, "Hints(3)"},
    {"DetailOffset", single, noCaption, "Hints(3)"},
    {"speaker", 0, {"FL / FR", "LFE", "FC", "RL / RR", "RC", "FLC / FRC", "RLC / RRC"}, "Hints(4)"},
    {"SampFreq", 0, {"32 KHz", "44.1 KHz", "48 KHz", "88.2 KHz", "96 KHz", "176.4 KHz", "192 KHz"}, "Hints(5)"},
    {"bitrateCBox", single, noCaption, "Hints(6)"},
    {"lbbitrate", single, {"Maximum Sampling bit rate."}, "Hints(6)"},
    {"Frmbitrate", single, noCaption, "Hints(6)"},
    {"bitrate", 0, {"16 bit", "20 bit", "24 bit"}, "Frmbitrate"},
    {"txtBoxVendorData", single, noCaption, "Hints(7)"},
    {"lbVendorBlock", single, noCaption, "Hints(7)"},
    {"VSDBExt", 0, {"Supports_AI", "DC_48bit", "DC_36bit", "DC_30bit", "DC_Y444", "DVI_Dual"}, "Hints(8)"},
    {"txtBoxVendorID", single, noCaption, "Hints(13)"},
    {"lbVendorData", single, {"Enter your vendor 3 byte IEEE Registration ID in Hexadecimal"}, "Hints(13)"},
    {"NativeChk",
     0,
     {"DTV Supports Underscan", "DTV Supports Basic Audio", "DTV Supports YCbCr 4:4:4", "DTV Supports YCbCr 4:2:2"},
     "Hints(14)"},
    {"NativeCBox", single, noCaption, "Hints(14)"},
    {"lbNativeNum", single, {"Total Native Formats to Follow"}, "Hints(14)"},
    {"optButTag",
     0,
     {"Reserved", "Audio Data Block", "Video Data Block", "Vendor Specific Block", "Speaker Data Block"},
     "Hints(15)"},
    {"TagCBox", single, noCaption, "Hints(15)"},
    {"lbTagCode", single, {"Total Number of Data Byte to Follow"}, "Hints(15)"},
    {"FrmAudioFormat", single, {"Audio Format"}, "Hints(15)"},
    {"AudioFormat", 0, {"Uncompressed", "Compressed"}, "FrmAudioFormat"},
    {"VideoBlkCBox", single, noCaption, "Hints(16)"},
    {"NativeChkBox", single, {"Native"}, "Hints(16)"},
};

class CeaExtScreen : public testing::Test {
protected:
    test::Program program;
    const std::unique_ptr<Screen> made = program.workbench.makeScreen(ScreenId::CeaExt);
    FrmCeaExt& screen = static_cast<FrmCeaExt&>(*made);
};

TEST_F(CeaExtScreen, HasItsCaptionsAndContainers) {
    EXPECT_EQ(screen.caption(), "CEA-EXT Decoding Screen");
    for (const ScreenRow& row : rows) {
        expectRow(screen, row);
    }
}

/// Unlike block 0, which has two more labels.
TEST_F(CeaExtScreen, ItsLabelsEndAt5) {
    EXPECT_NE(screen.find("lbEDID", 5), nullptr);
    EXPECT_EQ(screen.find("lbEDID", 6), nullptr);
    EXPECT_THROW(screen.lbEDID(6), Failure);
}

TEST_F(CeaExtScreen, ItsListsCountInTwoDigits) {
    struct List {
        std::size_t rows;
        std::string first;
        std::string last;
    };
    const std::map<std::string, List> lists = {{"AudChCBox", {8, "01", "08"}},
                                               {"bitrateCBox", {256, "00", "2040"}},
                                               {"NativeCBox", {16, "00", "15"}},
                                               {"TagCBox", {32, "00", "31"}}};
    for (const auto& [name, list] : lists) {
        const Control* const box = screen.find(name, single);
        ASSERT_NE(box, nullptr) << name;
        ASSERT_EQ(box->rows().size(), list.rows) << name;
        EXPECT_EQ(box->rows().front(), list.first) << name;
        EXPECT_EQ(box->rows().back(), list.last) << name;
    }
    EXPECT_EQ(screen.bitrateCBox.rows()[1], "08");
    EXPECT_EQ(screen.bitrateCBox.rows()[2], "16");
    EXPECT_EQ(screen.bitrateCBox.rows()[13], "104");
}

} // namespace
} // namespace wb
