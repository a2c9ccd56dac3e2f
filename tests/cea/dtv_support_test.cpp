#include "cea/dtv_support.h"

#include "cea/extension_fixture.h"

namespace wb::cea {
namespace {

using test::ExtensionTest;
using test::selectedOf;

constexpr const char* noUnderscan = "DTV Does Not Support Underscan";
constexpr const char* noAudio = "DTV Does Not Support Basic Audio";
constexpr const char* no444 = "DTV Does Not Support YCbCr 4:4:4";
constexpr const char* no422 = "DTV Does Not Support YCbCr 4:2:2";

std::string textOf(const std::string& b7, const std::string& b6, const std::string& b5, const std::string& b4,
                   const std::string& native) {
    return b7 + ", " + b6 + "\r\n   , " + b5 + ", " + b4 + "\r\n   " + native;
}

struct SupportCase {
    std::string cell;
    std::vector<int> checks;
    int row;
    std::string text;
};

class DtvSupport : public ExtensionTest, public testing::WithParamInterface<SupportCase> {};

TEST_P(DtvSupport, Decodes) {
    setCell(3, GetParam().cell);
    screen().NativeCBox.changeValue(7);
    BuildDTVSupport(wb);
    EXPECT_EQ(selectedOf(screen().NativeChk), GetParam().checks);
    EXPECT_EQ(screen().NativeCBox.value(), GetParam().row);
    EXPECT_EQ(wb.DTVSupportText, GetParam().text);
    EXPECT_EQ(cell(3), GetParam().cell);
    EXPECT_TRUE(boxes().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Cells, DtvSupport,
    testing::Values(
        SupportCase{"F2",
                    {0, 1, 2, 3},
                    2,
                    "DTV Supports Underscan, DTV Supports Basic Audio\r\n"
                    "   , DTV Supports YCbCr 4:4:4, DTV Supports YCbCr 4:2:2\r\n"
                    "   , Native Format: 2"},
        SupportCase{"00", {}, 0, textOf(noUnderscan, noAudio, no444, no422, ", There are no Native Format Specified.")},
        SupportCase{"81", {0}, 1, textOf("DTV Supports Underscan", noAudio, no444, no422, ", Native Format: 1")},
        SupportCase{
            "4F", {1}, 15, textOf(noUnderscan, "DTV Supports Basic Audio", no444, no422, ", Native Format: 15")},
        SupportCase{
            "2A", {2}, 10, textOf(noUnderscan, noAudio, "DTV Supports YCbCr 4:4:4", no422, ", Native Format: 10")},
        SupportCase{
            "19", {3}, 9, textOf(noUnderscan, noAudio, no444, "DTV Supports YCbCr 4:2:2", ", Native Format: 9")},
        SupportCase{"8g", {0}, 7, textOf("DTV Supports Underscan", noAudio, no444, no422, "")},
        SupportCase{"Z3", {}, 3, textOf(noUnderscan, noAudio, no444, no422, ", Native Format: 3")},
        SupportCase{"8", {0}, 7, textOf("DTV Supports Underscan", noAudio, no444, no422, "")}),
    [](const auto& support) { return test::cellName(support.param.cell); });

class DtvPanel : public ExtensionTest {
protected:
    void decode(const std::string& text) {
        setCell(3, text);
        BuildDTVSupport(wb);
    }
};

TEST_F(DtvPanel, ADigitWithoutBitsClearsTheFlags) {
    decode("F0");
    EXPECT_EQ(selectedOf(screen().NativeChk), (std::vector<int>{0, 1, 2, 3}));
    decode("Z0");
    EXPECT_TRUE(selectedOf(screen().NativeChk).empty());
}

TEST_F(DtvPanel, AFlagReplacesTheFirstDigit) {
    decode("81");
    visit(3);
    const std::string before = wb.DTVSupportText;
    choose(screen().NativeChk(2), 1);
    EXPECT_EQ(cell(3), "A1");
    choose(screen().NativeChk(0), 0);
    EXPECT_EQ(cell(3), "21");
    choose(screen().NativeChk(1), 1);
    choose(screen().NativeChk(3), 1);
    EXPECT_EQ(cell(3), "71");
    EXPECT_EQ(wb.DTVSupportText, before); // follows with the next decoding
}

TEST_F(DtvPanel, TheNumberReplacesTheSecondDigit) {
    decode("81");
    visit(3);
    choose(screen().NativeCBox, 15);
    EXPECT_EQ(cell(3), "8F");
    choose(screen().NativeCBox, 0);
    EXPECT_EQ(cell(3), "80");
}

TEST_F(DtvPanel, ATextOfNoRowLeavesOneDigit) {
    decode("81");
    screen().NativeCBox.setText("16");
    NativeCBox_Click(wb, 0);
    EXPECT_EQ(cell(3), "8");
}

TEST_F(DtvPanel, TheCheckSumFollows) {
    modify();
    decode("00");
    EXPECT_EQ(cell(127), "FB");
    visit(3);
    choose(screen().NativeChk(0), 1);
    EXPECT_EQ(cell(127), "7B");
    choose(screen().NativeCBox, 11);
    EXPECT_EQ(cell(127), "70");
}

TEST_F(DtvPanel, TheHandlersRestWhileADecoderRuns) {
    decode("81");
    screen().InFocusDispatch = flagTrue;
    screen().NativeChk(2).changeValue(1);
    NativeChk_Click(wb, 2);
    screen().NativeCBox.changeValue(15);
    NativeCBox_Click(wb, 0);
    EXPECT_EQ(cell(3), "81");
}

} // namespace
} // namespace wb::cea
