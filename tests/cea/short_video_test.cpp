#include "cea/short_video.h"

#include "cea/extension_fixture.h"
#include "core/base/text.h"

namespace wb::cea {
namespace {

using test::ExtensionTest;
using Texts = std::vector<std::string>;

struct FormatCase {
    std::string cell;
    std::string report;
    std::string row;
};

// clang-format off
const FormatCase formats[] = {
    {"00", "Reserved", "Reserved"},
    {"01", "640x480p 59.94/60Hz 4:3 861", "640x480p 59.94/60Hz 4:3 861"},
    {"02", "720x480p 59.94/60Hz 4:3 861", "720x480p 59.94/60Hz 4:3 861 "},
    {"03", "720x480p 59.94/60Hz 16:9 861", "720x480p 59.94/60Hz 16:9 861"},
    {"04", "1280x720p 59.94/60Hz 16:9 861", "1280x720p 59.94/60Hz 16:9 861"},
    {"05", "1920x1080i 59.94/60Hz 16:9 861", "1920x1080i 59.94/60Hz 16:9 861"},
    {"06", "720(1440)x480i 59.94/60Hz 4:3 861 Optional", "720(1440)x480i 59.94/60Hz 4:3 861 Opt"},
    {"07", "720(1440)x480i 59.94/60Hz 16:9 861", "720(1440)x480i 59.94/60Hz 16:9 861B"},
    {"08", "720(1440)x240p 59.94/60Hz 4:3 861B", "720(1440)x240p 59.94/60Hz 4:3 861B"},
    {"09", "720(1440)x240p 59.94/60Hz 16:9 861B", "720(1440)x240p 59.94/60Hz 16:9 861B"},
    {"0A", "(2880)x480i 59.94/60Hz 4:3 861B", "(2880)x480i 59.94/60Hz 4:3 861B"},
    {"0B", "(2880)x480i 59.94/60Hz 16:9 861B", "(2880)x480i 59.94/60Hz 16:9 861B"},
    {"0C", "(2880)x240p 59.94/60Hz 4:3 861B", "(2880)x240p 59.94/60Hz 4:3 861B"},
    {"0D", "(2880)x240p 59.94/60Hz 16:9 861B", "(2880)x240p 59.94/60Hz 16:9 861B"},
    {"0E", "1440x480p 59.94/60Hz 4:3 861B", "1440x480p 59.94/60Hz 4:3 861B"},
    {"0F", "1440x480p 59.94/60Hz 16:9 861B", "1440x480p 59.94/60Hz 16:9 861B"},
    {"10", "1920x1080p 59.94/60Hz 16:9 861B", "1920x1080p 59.94/60Hz 16:9 861B"},
    {"11", "720x576p 50Hz 4:3 861A", "720x576p 50Hz 4:3 861A"},
    {"12", "720x576p 50Hz 16:9 861A", "720x576p 50Hz 16:9 861A"},
    {"13", "1280x720p 50Hz 16:9 861A", "1280x720p 50Hz 16:9 861A"},
    {"14", "1920x1080i 50Hz 16:9 861A", "1920x1080i 50Hz 16:9 861A"},
    {"15", "720(1440)x576i 50Hz 4:3 861A Optional", "720(1440)x576i 50Hz 4:3 861A Opt"},
    {"16", "720(1440)x576i 50Hz 16:9 861A Optional", "720(1440)x576i 50Hz 16:9 861A Opt"},
    {"17", "720(1440)x288p 50Hz 4:3 861B", "720(1440)x288p 50Hz 4:3 861B"},
    {"18", "720(1440)x288p 50Hz 16:9 861B", "720(1440)x288p 50Hz 16:9 861B"},
    {"19", "(2880)x576i 50Hz 4:3 861B", "(2880)x576i 50Hz 4:3 861B"},
    {"1A", "(2880)x576i 50Hz 16:9 861B", "(2880)x576i 50Hz 16:9 861B"},
    {"1B", "(2880)x288p 50Hz 4:3 861B", "(2880)x288p 50Hz 4:3 861B"},
    {"1C", "(2880)x288p 50Hz 16:9 861B", "(2880)x288p 50Hz 16:9 861B"},
    {"1D", "1440x576p 50Hz 4:3 861B", "1440x576p 50Hz 4:3 861B"},
    {"1E", "1440x576p 50Hz 16:9 861B", "1440x576p 50Hz 16:9 861B"},
    {"1F", "1920x1080p 50Hz 16:9 861B", "1920x1080p 50Hz 16:9 861B"},
    {"20", "1920x1080p 24Hz 16:9 861B", "1920x1080p 23.97/24Hz 16:9 861B"},
    {"21", "1920x1080p 25Hz 16:9 861B", "1920x1080p 25Hz 16:9 861B"},
    {"22", "1920x1080p 30Hz 16:9 861B", "1920x1080p 29.97/30Hz 16:9 861B"},
    {"23", "2880x480p 59.94/60Hz 4:3 861C", "2880x480p 59.94/60Hz 4:3 861C"},
    {"24", "2880x480p 59.94/60Hz 16:9 861C", "2880x480p 59.94/60Hz 16:9 861C"},
    {"25", "2880x576p 50Hz 4:3 861C", "2880x576p 50Hz 4:3 861C"},
    {"26", "2880x576p 50Hz 16:9 861C", "2880x576p 50Hz 16:9 861C"},
    {"27", "1920x1080i(1250 total) 50Hz 16:9 861C", "1920x1080i(1250) 50Hz 16:9 861C"},
    {"28", "1920x1080i 100Hz 16:9 861C", "1920x1080i 100Hz 16:9 861C"},
    {"29", "1280x720p 100Hz 16:9 861C", "1280x720p 100Hz 16:9 861C"},
    {"2A", "720x576p 100Hz 4:3 861C", "720x576p 100Hz 4:3 861C"},
    {"2B", "720x576p 100Hz 16:9 861C", "720x576p 100Hz 16:9 861C"},
    {"2C", "720(1440)x576i 100Hz 4:3 861C", "720(1440)x576i 100Hz 4:3 861C"},
    {"2D", "720(1440)x576i 100Hz 16:9 861C", "720(1440)x576i 100Hz 16:9 861C"},
    {"2E", "1920x1080i 119.88/120Hz 16:9 861C", "1920x1080i 119.88/120Hz 16:9 861C"},
    {"2F", "1280x720p 119.88/120Hz 16:9 861C", "1280x720p 119.88/120Hz 16:9 861C"},
    {"30", "720x480p 119.88/120Hz 4:3 861C", "720x480p 119.88/120Hz 4:3 861C"},
    {"31", "720x480p 119.88/120Hz 16:9 861C", "720x480p 119.88/120Hz 16:9 861C"},
    {"32", "720(1440)x480i 119.88/120Hz 4:3 861C", "720(1440)x480i 119.88/120Hz 4:3 861C"},
    {"33", "720(1440)x480i 119.88/120Hz 16:9 861C", "720(1440)x480i 119.88/120Hz 16:9 861C"},
    {"34", "720x576p 200Hz 4:3 861C", "720x576p 200Hz 4:3 861C"},
    {"35", "720x576p 200Hz 16:9 861C", "720x576p 200Hz 16:9 861C"},
    {"36", "720(1440)x576i 200Hz 4:3 861C", "720(1440)x576i 200Hz 4:3 861C"},
    {"37", "720(1440)x576i 200Hz 16:9 861C", "720(1440)x576i 200Hz 16:9 861C"},
    {"38", "720x480p 239.76/240Hz 4:3 861C", "720x480p 239.76/240Hz 4:3 861C"},
    {"39", "720x480p 239.76/240Hz 16:9 861C", "720x480p 239.76/240Hz 16:9 861C"},
    {"3A", "720(1440)x480i 239.76/240Hz 4:3 861C", "720(1440)x480i 239.76/240Hz 4:3 861C"},
    {"3B", "720(1440)x480i 239.76/240Hz 16:9 861C", "720(1440)x480i 239.76/240Hz 16:9 861C"},
};
// clang-format on

class VideoFormat : public ExtensionTest, public testing::WithParamInterface<FormatCase> {};

TEST_P(VideoFormat, HasItsLineAndItsRow) {
    const int code = std::stoi(GetParam().cell, nullptr, 16);
    loadCollection({"41", GetParam().cell}, "10");
    EXPECT_EQ(wb.ShortVideoText.size(), 2);
    EXPECT_EQ(wb.ShortVideoText(1), GetParam().report + "   \r\n");
    visit(5);
    EXPECT_EQ(screen().VideoBlkCBox.value(), code);
    EXPECT_EQ(screen().VideoBlkCBox.text(), GetParam().row);
    EXPECT_EQ(screen().NativeChkBox.value(), 0);
    setCell(5, "FF");
    choose(screen().VideoBlkCBox, code);
    EXPECT_EQ(cell(5), ByteToHex2(128 + code));
    EXPECT_EQ(wb.ShortVideoText(1), GetParam().report + "   \r\n"); // follows with the next decoding
}

INSTANTIATE_TEST_SUITE_P(Codes, VideoFormat, testing::ValuesIn(formats),
                         [](const auto& format) { return test::cellName(format.param.cell); });

class ShortVideo : public ExtensionTest {};

TEST_F(ShortVideo, TheListHas60Rows) {
    EXPECT_EQ(screen().VideoBlkCBox.rows().size(), 60);
}

TEST_F(ShortVideo, NativeDescriptorsSaySo) {
    loadCollection({"43", "81", "80", "10"}, "10");
    EXPECT_EQ(wb.ShortVideoText(0), "");
    EXPECT_EQ(wb.ShortVideoText(1), "640x480p 59.94/60Hz 4:3 861   Native\r\n");
    EXPECT_EQ(wb.ShortVideoText(2), "Reserved   \r\n"); // never with the word
    EXPECT_EQ(wb.ShortVideoText(3), "1920x1080p 59.94/60Hz 16:9 861B   \r\n");
    EXPECT_EQ(wb.ShortVideoNativeText(1), "Native");
    EXPECT_EQ(wb.ShortVideoNativeText(2), "Native");
    EXPECT_EQ(wb.ShortVideoNativeText(3), "");
}

TEST_F(ShortVideo, AnUnknownCodeHasNoLine) {
    loadCollection({"42", "90", "3C"}, "10");
    screen().VideoBlkCBox.changeValue(3);
    focusOn(6);
    EXPECT_EQ(wb.ShortVideoText(1), "1920x1080p 59.94/60Hz 16:9 861B   Native\r\n");
    EXPECT_EQ(wb.ShortVideoText(2), "");
    EXPECT_EQ(screen().VideoBlkCBox.value(), 16); // of the descriptor that is known
    EXPECT_EQ(screen().NativeChkBox.value(), 0);
}

TEST_F(ShortVideo, CellZeroStandsInBeforeAnyFocus) {
    loadCollection({"42", "90", "84"}, "10");
    EXPECT_EQ(wb.ShortVideoCell, 0);
    EXPECT_EQ(screen().VideoBlkCBox.value(), 2); // cell 0 is 02
    EXPECT_EQ(screen().NativeChkBox.value(), 0);
}

TEST_F(ShortVideo, ThePanelFollowsTheFocus) {
    loadCollection({"42", "90", "04"}, "10");
    focusOn(5);
    EXPECT_EQ(wb.ShortVideoCell, 5);
    EXPECT_EQ(screen().VideoBlkCBox.value(), 16);
    EXPECT_EQ(screen().NativeChkBox.value(), 1);
    focusOn(6);
    EXPECT_EQ(screen().VideoBlkCBox.value(), 4);
    EXPECT_EQ(screen().NativeChkBox.value(), 0);
}

TEST_F(ShortVideo, AnEmptyBlockLeavesThePanel) {
    loadCollection({"41", "90"}, "10");
    focusOn(5);
    setCell(4, "40");
    wb.VideoBlockLength = 0;
    setCell(5, "04");
    BuildShortVideo(wb);
    EXPECT_EQ(wb.ShortVideoText.size(), 1);
    EXPECT_EQ(wb.ShortVideoNativeText.size(), 1);
    EXPECT_EQ(screen().VideoBlkCBox.value(), 16);
    EXPECT_EQ(screen().NativeChkBox.value(), 1);
}

TEST_F(ShortVideo, ADescriptorPastTheGridIsTold) {
    wb.VideoBlockStart = 126;
    wb.VideoBlockLength = 3;
    setCell(127, "04");
    BuildShortVideo(wb);
    EXPECT_EQ(boxes(), Texts(2, test::noElement));
    EXPECT_EQ(wb.ShortVideoText(1), "1280x720p 59.94/60Hz 16:9 861   \r\n");
    EXPECT_EQ(wb.ShortVideoText(2), "");
}

class VideoPanel : public ExtensionTest {
protected:
    void SetUp() override {
        loadCollection({"42", "90", "04"}, "10");
        visit(5);
    }
};

TEST_F(VideoPanel, AnEmptySelectionIsCode60) {
    screen().VideoBlkCBox.changeValue(-1);
    VideoBlkCBox_Click(wb, 0);
    EXPECT_EQ(cell(5), "BC");
}

TEST_F(VideoPanel, ATextOfNoRowLeavesTheNativeDigit) {
    screen().VideoBlkCBox.setText("640x480");
    VideoBlkCBox_Click(wb, 0);
    EXPECT_EQ(cell(5), "01");
    focusOn(6);
    screen().VideoBlkCBox.setText("640x480");
    VideoBlkCBox_Click(wb, 0);
    EXPECT_EQ(cell(6), "00");
}

TEST_F(VideoPanel, TheNativeFlagKeepsTheCode) {
    choose(screen().NativeChkBox, 0);
    EXPECT_EQ(cell(5), "10");
    choose(screen().NativeChkBox, 1);
    EXPECT_EQ(cell(5), "90");
    EXPECT_EQ(wb.ShortVideoText(1), "1920x1080p 59.94/60Hz 16:9 861B   Native\r\n");
}

TEST_F(VideoPanel, ASmallByteHasTwoDigits) {
    visit(6);
    choose(screen().VideoBlkCBox, 5);
    EXPECT_EQ(cell(6), "05");
}

TEST_F(VideoPanel, TheCheckSumFollows) {
    choose(screen().NativeChkBox, 0);
    // 02 03 10 42 10 04: 6B in all
    EXPECT_EQ(cell(127), "95");
    choose(screen().VideoBlkCBox, 17);
    EXPECT_EQ(cell(127), "94");
}

TEST_F(VideoPanel, TheHandlersRestWhileADecoderRuns) {
    screen().InFocusDispatch = flagTrue;
    screen().NativeChkBox.changeValue(0);
    NativeChkBox_Click(wb, 0);
    screen().VideoBlkCBox.changeValue(3);
    VideoBlkCBox_Click(wb, 0);
    EXPECT_EQ(cell(5), "90");
}

} // namespace
} // namespace wb::cea
