#include "report/monitor_descriptor.h"

#include "descriptor_fixture.h"

namespace wb::report {
namespace {

struct TagCase {
    std::string_view tag;
    int option;
    std::string_view heading;
};

class DescriptorTag : public Descriptor, public testing::WithParamInterface<TagCase> {};

TEST_P(DescriptorTag, HasItsOptionAndHeading) {
    // A colour point moves the focus.
    workbench.windows.show(screen);
    screen.Hints(11).setVisible(true);
    screen.Hints(11).setEnabled(true);
    decode(GetParam().tag, {"41", "0A"});
    EXPECT_EQ(screen.DTa.firstSelected(), GetParam().option);
    const std::string heading = "\r\n" + blanks(9) + std::string(GetParam().heading) + "\r\n";
    EXPECT_EQ(report().substr(0, heading.size()), heading);
    EXPECT_EQ(screen.InFocusDispatch, flagFalse);
    EXPECT_TRUE(boxes().empty());
}

INSTANTIATE_TEST_SUITE_P(Rows, DescriptorTag,
                         testing::Values(TagCase{"FF", 0, "Monitor Serial Number:"}, TagCase{"FE", 1, "ASCII Data:"},
                                         TagCase{"FD", 2, "Monitor Range Limits:"}, TagCase{"FC", 3, "Monitor Name:"},
                                         TagCase{"FB", 4, "Color Point:"},
                                         TagCase{"FA", 5, "Standard Timing Identifiers:"},
                                         TagCase{"fd", 2, "Monitor Range Limits:"}));

TEST(DescriptorHeading, IsThatOfATagInUpperCase) {
    EXPECT_EQ(descriptorHeading("FC"), "Monitor Name:");
    EXPECT_EQ(descriptorHeading("fc"), "");
    EXPECT_EQ(descriptorHeading("00"), "");
}

TEST_F(Descriptor, ATagBelowEightRunsTheFamilyOfItsNumberWithoutHeading) {
    decode("00", {"41", "0A"});
    EXPECT_EQ(report(), "\r\n         A\r\n\r\n");
    EXPECT_TRUE(screen.DTa(0).selected());
    decode("01", {"42", "0A"});
    EXPECT_EQ(report(), "\r\n         B\r\n\r\n");
    EXPECT_TRUE(screen.DTa(1).selected());
}

TEST_F(Descriptor, TagsSixAndSevenDecodeNothingAndRunTheClosingSteps) {
    workbench.ModifyEDIDOn = flagTrue;
    for (const auto& [tag, option] : {std::pair{"06", 6}, std::pair{"07", 7}}) {
        set(127, {"AA"});
        screen.DTaInput.setText("before");
        decode(tag, {"41", "0A"});
        EXPECT_EQ(report(), "\r\n");
        EXPECT_TRUE(screen.DTa(option).selected());
        EXPECT_EQ(screen.DTaInput.text(), "");
        EXPECT_EQ(screen.InFocusDispatch, flagFalse);
        EXPECT_NE(cell(127), "AA");
        EXPECT_EQ(screen.DTaInput.bounds().height, 1200);
    }
}

TEST_F(Descriptor, AnyOtherTagFailsAtItsOption) {
    workbench.ModifyEDIDOn = flagTrue;
    decode("FF", {"41", "0A"});
    for (const std::string_view tag : {"10", "08", "F9", "0F", "1"}) {
        screen.DTAGTF.setVisible(true);
        set(127, {"AA"});
        decode(tag, {"41", "0A"});
        EXPECT_EQ(boxes(), Lines{"Control array element does not exist"}) << tag;
        EXPECT_EQ(report(), "\r\n");
        EXPECT_TRUE(screen.DTa(0).selected()) << "unchanged";
        EXPECT_EQ(screen.DTaInput.text(), "A");
        EXPECT_FALSE(screen.DTAGTF.ownVisible());
        EXPECT_EQ(screen.InFocusDispatch, flagTrue);
        EXPECT_EQ(cell(127), "AA");
    }
}

TEST_F(Descriptor, ATagThatCannotBeReadGivesTwoBoxes) {
    decode("ZZ", {"41", "0A"});
    EXPECT_EQ(boxes(), unreadable());
    EXPECT_EQ(report(), "\r\n");
    EXPECT_EQ(screen.InFocusDispatch, flagTrue);
}

TEST_F(Descriptor, OnlyALineFeedEndsAText) {
    decode("FF", {"41", "20", "42", "20", "0D", "0A", "43"});
    EXPECT_EQ(screen.DTaInput.text(), "A B \r");
    EXPECT_EQ(report(), "\r\n         Monitor Serial Number:\r\n         A B \r\r\n\r\n");
}

TEST_F(Descriptor, ATextMayFillAllThirteenCells) {
    decode("FE", {"41", "42", "43", "44", "45", "46", "47", "48", "49", "4A", "4B", "4C", "4D"});
    EXPECT_EQ(screen.DTaInput.text(), "ABCDEFGHIJKLM");
    set(72, {"41"});
    ConvertDetailedTiminga(workbench);
    EXPECT_EQ(screen.DTaInput.text(), "ABCDEFGHIJKLM");
}

TEST_F(Descriptor, NulsAreCharactersOfTheText) {
    decode("FE", {"00", "41", "0A"});
    EXPECT_EQ(screen.DTaInput.text(), std::string("\0A", 2));
}

TEST_F(Descriptor, ATextThatFailsInTheMiddleStandsInTheInputBox) {
    decode("FE", {"41", "42", "ZZ", "0A"});
    EXPECT_EQ(boxes(), unreadable());
    EXPECT_EQ(screen.DTaInput.text(), "AB");
    EXPECT_EQ(report(), "\r\n         ASCII Data:\r\n");
    EXPECT_EQ(screen.InFocusDispatch, flagTrue);
}

TEST_F(Descriptor, TheModelJoinsTheNamesOfAllBlocks) {
    set(93, {"FC", "00", "43", "44", "0A"});
    decode("FC", {"41", "42", "0A", "20"});
    EXPECT_EQ(screen.txtModel.text(), "ABCD");
    EXPECT_EQ(screen.DTaInput.text(), "AB");
    EXPECT_EQ(report(), "\r\n         Monitor Name:\r\n         AB\r\n\r\n");
}

TEST_F(Descriptor, TheModelLooksForTheTagExactly) {
    set(75, {"FC", "00", "43", "0A"});
    screen.txtModel.setText("before");
    decode("fc", {"41", "42", "0A"});
    EXPECT_EQ(screen.txtModel.text(), "C") << "a lower-case tag is decoded as a name but not found as one";
    decode("FE", {"41", "0A"});
    EXPECT_EQ(screen.txtModel.text(), "C") << "only a name sets the model";
}

TEST_F(Descriptor, AModelNameMayFillTheBlockAndGoOnInTheNext) {
    set(75, {"FC", "00", "4E", "0A"});
    decode("FC", {"41", "42", "43", "44", "45", "46", "47", "48", "49", "4A", "4B", "4C", "4D"});
    EXPECT_EQ(screen.txtModel.text(), "ABCDEFGHIJKLMN");
}

TEST_F(Descriptor, AModelThatCannotBeReadEndsTheDecoder) {
    screen.txtModel.setText("before");
    set(111, {"FC", "00", "41", "ZZ"});
    decode("FC", {"41", "0A"});
    EXPECT_EQ(boxes(), unreadable());
    EXPECT_EQ(screen.txtModel.text(), "before");
    EXPECT_EQ(screen.DTaInput.text(), "");
}

class StandardTimingDescriptor : public Descriptor {};

TEST_F(StandardTimingDescriptor, SixPairsOnThePanelOfTheirOwn) {
    screen.Hints(11).setVisible(true);
    decode("FA", {"81", "80", "01", "01", "D1", "C0", "31", "40", "00", "00", "01", "FF"});
    const Lines expected = {"1280 X 1024 @60Hz", "Not Used",        "1920 X 1080 @60Hz",
                            "640 X 480 @60Hz",   "248 X 155 @60Hz", "Not Used"};
    std::string lines = "\r\n         Standard Timing Identifiers:\r\n";
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(screen.ExtSTOpt(i).caption(), expected[static_cast<std::size_t>(i)]);
        lines += blanks(9) + expected[static_cast<std::size_t>(i)] + "\r\n";
    }
    EXPECT_EQ(report(), lines);
    EXPECT_FALSE(screen.Hints(11).ownVisible());
    EXPECT_TRUE(screen.Hints(12).ownVisible());
    EXPECT_EQ(screen.ExtSTAOptb.firstSelected(), 2) << "of the first pair, since none is selected";
}

TEST_F(StandardTimingDescriptor, TheAspectFollowsTheSelectedPair) {
    screen.ExtSTOpt(2).changeValue(1);
    decode("FA", {"81", "80", "01", "01", "D1", "C0"});
    EXPECT_EQ(screen.ExtSTAOptb.firstSelected(), 3);
}

TEST_F(StandardTimingDescriptor, TheDisablingOptionIsDeselected) {
    screen.ExtSTOpt(6).changeValue(1);
    decode("FA", {"81", "40"});
    EXPECT_FALSE(screen.ExtSTOpt(6).selected());
    EXPECT_EQ(screen.ExtSTAOptb.firstSelected(), 1);
}

TEST_F(StandardTimingDescriptor, TheSeekGoesToItsInputBox) {
    workbench.ModifyEDIDOn = flagTrue;
    workbench.AutoCellSeekOn = flagTrue;
    workbench.windows.show(screen);
    decode("FA", {"81", "40"});
    EXPECT_EQ(workbench.focus.current()->fullName(), "frmEDID.ExtStaInput");
}

TEST_F(Descriptor, EachBlockHasItsText) {
    select(2);
    set(93, {"FE", "00", "41", "0A"});
    ConvertDetailedTiminga(workbench);
    EXPECT_EQ(workbench.DetailedBlockText(2), "\r\n         ASCII Data:\r\n         A\r\n\r\n");
    EXPECT_EQ(workbench.DetailedBlockText(0), "");
}

} // namespace
} // namespace wb::report
