#include "block0/descriptor_fixture.h"

namespace wb::test {
namespace {

using Descriptor = DescriptorEditor;

TEST_F(Descriptor, ATextEndsWithALineFeedAndBlanks) {
    for (const char* tag : {"FF", "FE", "FC"}) {
        SCOPED_TRACE(tag);
        makeBlock(tag);
        visit(base + 8);
        enter(screen().DTaInput, "ABC");
        EXPECT_EQ(payload(), "41 42 43 0A 20 20 20 20 20 20 20 20 20");
        EXPECT_EQ(screen().DTaInput.text(), "ABC");
        EXPECT_EQ(blockSum(), 0);
        EXPECT_EQ(cells(base, base + 4), std::string("00 00 00 ") + tag + " 11");
    }
}

TEST_F(Descriptor, TextsOfEveryLengthComeBack) {
    makeBlock("FC");
    visit(base);
    const std::string longest = "Halvorine 17x";
    for (std::size_t length = 0; length <= longest.size(); ++length) {
        const std::string name = longest.substr(0, length);
        enter(screen().DTaInput, name);
        EXPECT_EQ(screen().txtModel.text(), name);
        EXPECT_EQ(screen().DTaInput.text(), name);
    }
    EXPECT_EQ(payload(), "48 61 6C 76 6F 72 69 6E 65 20 31 37 78") << "a full text has no end";
}

TEST_F(Descriptor, AnEmptyTextIsAllBlank) {
    makeBlock("FE");
    visit(base);
    enter(screen().DTaInput, "");
    EXPECT_EQ(payload(), "0A 20 20 20 20 20 20 20 20 20 20 20 20");
}

TEST_F(Descriptor, ATextTakesNoFourteenthCharacter) {
    makeBlock("FE");
    visit(base);
    enter(screen().DTaInput, "01234567890123");
    EXPECT_EQ(payload(), "30 31 32 33 34 35 36 37 38 39 30 31 32");
}

TEST_F(Descriptor, ATextKeepsItsCase) {
    makeBlock("FE");
    visit(base);
    enter(screen().DTaInput, "aZ\xE9");
    EXPECT_EQ(payload().substr(0, 11), "61 5A E9 0A");
}

TEST_F(Descriptor, TagsWithoutFieldsWriteNothing) {
    makeBlock("FF");
    visit(base);
    for (const int tag : {5, 6, 7}) {
        screen().InFocusDispatch = flagTrue;
        screen().DTa(tag).setValue(-1);
        screen().InFocusDispatch = flagFalse;
        enter(screen().DTaInput, "5");
        EXPECT_EQ(payload(), "11 11 11 11 11 11 11 11 11 11 11 11 11");
        EXPECT_TRUE(screen().DTa(0).selected()) << "the decoder has run";
    }
}

TEST_F(Descriptor, WithoutATagEnterDoesNothing) {
    makeBlock("FF");
    visit(base);
    screen().DTa(0).setValue(0);
    enter(screen().DTaInput, "5");
    EXPECT_EQ(payload(), "11 11 11 11 11 11 11 11 11 11 11 11 11");
    EXPECT_EQ(screen().DTa.firstSelected(), -1) << "not even the decoder";
}

TEST_F(Descriptor, TagOptions) {
    const char* tags[] = {"FF", "FE", "FD", "FC", "FB", "FA"};
    for (int i = 0; i <= 5; ++i) {
        SCOPED_TRACE(screen().DTa(i).fullName());
        makeBlock(i == 0 ? "FE" : "FF");
        visit(base);
        click(screen().DTa(i));
        EXPECT_TRUE(program.takeBoxes().empty());
        EXPECT_EQ(cells(base + 3, base + 4), std::string(tags[i]) + " 00");
        const char* const end = i == 5 ? "0A" : i == 4 ? "20" : "11"; // the decoder of a colour point fills up
        EXPECT_EQ(at(17), end);
        EXPECT_EQ(screen().Hints(12).visible(), i == 5);
        EXPECT_EQ(blockSum(), 0);
    }
}

TEST_F(Descriptor, TheUndefinedTagFailsInItsDecoder) {
    makeBlock("FF");
    visit(base);
    click(screen().DTa(6));
    EXPECT_EQ(cells(base + 3, base + 4), "F9 00");
    EXPECT_EQ(program.takeBoxes(), Texts{"Control array element does not exist"});
    EXPECT_EQ(screen().InFocusDispatch, flagTrue);
    click(screen().DTa(1));
    EXPECT_EQ(at(3), "F9") << "the flag stands until the next visit";
}

TEST_F(Descriptor, TheManufacturersTagIsDecodedAsASerialNumber) {
    makeBlock("FF");
    visit(base);
    click(screen().DTa(7));
    EXPECT_EQ(cells(base + 3, base + 4), "00 11") << "the fill byte stays";
    EXPECT_TRUE(screen().DTa(0).selected());
    EXPECT_TRUE(program.takeBoxes().empty());
}

TEST_F(Descriptor, TheFieldOptionsDoNothingWhileTheFlagStands) {
    makeBlock("FD");
    program.setCells(base + 10, {"00"});
    visit(base);
    screen().InFocusDispatch = flagTrue;
    click(screen().DtaOpt(2));
    EXPECT_EQ(focused(), "frmEDID.DtaOpt(2)");
    click(screen().DTa(0));
    EXPECT_EQ(at(3), "FD");
}

TEST_F(Descriptor, TheBoxSelectsItsTextOnFocus) {
    makeBlock("FC");
    program.setCells(base + 5, {"41", "42", "0A"});
    visit(base);
    moveFocus(screen().DTaInput);
    EXPECT_EQ(screen().DTaInput.selLength(), 2);
}

} // namespace
} // namespace wb::test
