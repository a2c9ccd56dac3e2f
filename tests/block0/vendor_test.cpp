#include "block0/editor.h"

namespace wb::test {
namespace {

/// An entry into the panel of a cell, and what cells 8 to 19 are afterwards. Before, they are
/// 04 43 41 42 01 00 00 00 0A 0B 01 03.
struct Entry {
    int cell;
    const char* typed;
    const char* cells;
    const char* box;
};

class Vendor : public Editor {
protected:
    Vendor() {
        switchModify();
        reset();
    }
    void reset() { program.setCells(8, {"04", "43", "41", "42", "01", "00", "00", "00", "0A", "0B", "01", "03"}); }

    template <std::size_t count>
    void expectEntries(const Entry (&rows)[count], Control& box) {
        for (const Entry& row : rows) {
            SCOPED_TRACE(entryName(row.cell, row.typed));
            reset();
            visit(row.cell);
            program.takeBoxes();
            enter(box, row.typed);
            EXPECT_EQ(cells(8, 19), row.cells);
            EXPECT_EQ(program.takeBoxes(), *row.box == '\0' ? Texts{} : Texts{row.box});
            EXPECT_EQ(workbench.focus.current(), &box);
            if (*row.box != '\0') {
                EXPECT_EQ(box.text(), row.typed) << "a refused entry stays";
            } else {
                EXPECT_EQ(blockSum(), 0);
            }
        }
    }
};

const Entry manufacturerEntries[] = {
    {8, "ABC", "04 43 41 42 01 00 00 00 0A 0B 01 03", ""},
    {9, "ZZZ", "6B 5A 41 42 01 00 00 00 0A 0B 01 03", ""},
    {8, "abc", "04 43 41 42 01 00 00 00 0A 0B 01 03", ""},
    {8, "A", "04 00 41 42 01 00 00 00 0A 0B 01 03", ""},
    {8, "AB", "04 40 41 42 01 00 00 00 0A 0B 01 03", ""},
    {8, "", "00 00 41 42 01 00 00 00 0A 0B 01 03", ""},
    // A full stop has the code of the delete key and counts 46 - 64 = -18.
    {8, ".", "FFB8 00 41 42 01 00 00 00 0A 0B 01 03", ""},
    {8, "A.C", "05 C3 41 42 01 00 00 00 0A 0B 01 03", ""},
    {8, "AB.", "04 2E 41 42 01 00 00 00 0A 0B 01 03", ""},
    {8, "A..", "05 AE 41 42 01 00 00 00 0A 0B 01 03", ""},
    {8, "ABCD", "04 43 41 42 01 00 00 00 0A 0B 01 03", ""}, // no room for the fourth
};

TEST_F(Vendor, Manufacturer) {
    expectEntries(manufacturerEntries, screen().VendorInfo);
}

TEST_F(Vendor, ManufacturersComeBack) {
    visit(8);
    for (const std::string name : {"ABC", "HLV", "ZRQ", "AAA", "ZZZ", "QPO"}) {
        enter(screen().VendorInfo, name);
        EXPECT_EQ(screen().lbVendor(0).caption(), "Manufacturer - " + name);
        EXPECT_EQ(screen().VendorInfo.text(), name);
    }
}

const Entry productEntries[] = {
    {10, "", "04 43 41 42 01 00 00 00 0A 0B 01 03", ""},
    {10, "7", "04 43 00 7 01 00 00 00 0A 0B 01 03", ""},
    {10, "12", "04 43 00 12 01 00 00 00 0A 0B 01 03", ""},
    {11, "ABC", "04 43 0A BC 01 00 00 00 0A 0B 01 03", ""},
    {11, "1234", "04 43 12 34 01 00 00 00 0A 0B 01 03", ""},
    {11, "12345", "04 43 12 34 01 00 00 00 0A 0B 01 03", ""}, // no room for the fifth
    {10, "9:0F", "04 43 9: 0F 01 00 00 00 0A 0B 01 03", ""},
};

TEST_F(Vendor, ProductCode) {
    expectEntries(productEntries, screen().VendorInfo);
}

TEST_F(Vendor, AProductCodeComesBackSwapped) {
    visit(10);
    enter(screen().VendorInfo, "1234");
    EXPECT_EQ(screen().lbVendor(1).caption(), "Product Code - 3412");
    EXPECT_EQ(workbench.ProductCodeHex, "3412");
}

TEST_F(Vendor, AnEmptyProductCodeRefreshesThePanel) {
    visit(10);
    screen().lbVendor(1).setCaption("stale");
    enter(screen().VendorInfo, "");
    EXPECT_EQ(screen().lbVendor(1).caption(), "Product Code - 4241(AB)");
    EXPECT_EQ(screen().VendorInfo.text(), "AB");
}

const Entry serialEntries[] = {
    {12, "1", "04 43 41 42 01 00 00 00 0A 0B 01 03", ""},
    {13, "305419896", "04 43 41 42 78 56 34 12 0A 0B 01 03", ""},
    {14, "2147483647", "04 43 41 42 FF FF FF 7F 0A 0B 01 03", ""},
    {15, "1.5", "04 43 41 42 02 00 00 00 0A 0B 01 03", ""},
    {15, "2.5", "04 43 41 42 02 00 00 00 0A 0B 01 03", ""},
    {12, "", "04 43 41 42 00 00 00 00 0A 0B 01 03", ""},
    {12, "2147483648", "04 43 41 42 01 00 00 00 0A 0B 01 03", "Overflow"},
    {12, "4294967295", "04 43 41 42 01 00 00 00 0A 0B 01 03", "Overflow"},
};

TEST_F(Vendor, SerialNumber) {
    expectEntries(serialEntries, screen().VendorInfo);
}

TEST_F(Vendor, SerialNumbersComeBack) {
    visit(12);
    for (const std::string number : {"00002", "65536", "12345678", "2147483647"}) {
        enter(screen().VendorInfo, number);
        EXPECT_EQ(screen().lbVendor(2).caption(), "Serial Number - " + number);
    }
    enter(screen().VendorInfo, "16843009"); // four times 01
    EXPECT_EQ(screen().lbVendor(2).caption(), "Serial Number - Not Used");
    EXPECT_EQ(screen().lbVendor(6).caption(), "See Descriptor Block");
}

const Entry dateEntries[] = {
    {16, "0", "04 43 41 42 01 00 00 00 00 0B 01 03", ""},
    {16, "52", "04 43 41 42 01 00 00 00 34 0B 01 03", ""},
    {16, "53", "04 43 41 42 01 00 00 00 0A 0B 01 03", "Max value is 52"},
    {16, "1a", "04 43 41 42 01 00 00 00 01 0B 01 03", ""},
    {16, "", "04 43 41 42 01 00 00 00 00 0B 01 03", ""},
    {16, "-1", "04 43 41 42 01 00 00 00 FFFF 0B 01 03", ""},
    {16, "99", "04 43 41 42 01 00 00 00 0A 0B 01 03", "Max value is 52"},
    {17, "99", "04 43 41 42 01 00 00 00 0A 0B 01 03", "Please enter in the full year (1999)"},
    {17, "", "04 43 41 42 01 00 00 00 0A 0B 01 03", "Please enter in the full year (1999)"},
    {17, "1989", "04 43 41 42 01 00 00 00 0A 0B 01 03", "The Range is 1990-2155"},
    {17, "19x5", "04 43 41 42 01 00 00 00 0A 0B 01 03", "The Range is 1990-2155"},
    {17, "1990", "04 43 41 42 01 00 00 00 0A 00 01 03", ""},
    {17, "2155", "04 43 41 42 01 00 00 00 0A A5 01 03", ""},
    {17, "2156", "04 43 41 42 01 00 00 00 0A A6 01 03", ""},
    {17, "2245", "04 43 41 42 01 00 00 00 0A FF 01 03", ""},
    {17, "2246", "04 43 41 42 01 00 00 00 0A 100 01 03", ""},
    {17, "9999", "04 43 41 42 01 00 00 00 0A 1F49 01 03", ""},
};

TEST_F(Vendor, WeekAndYear) {
    expectEntries(dateEntries, screen().VendorInfo);
}

TEST_F(Vendor, DatesComeBack) {
    visit(16);
    for (int week = 0; week <= 52; ++week) {
        enter(screen().VendorInfo, std::to_string(week));
        EXPECT_EQ(workbench.ManufactureWeek, (week < 10 ? "0" : "") + std::to_string(week));
    }
    visit(17);
    for (int year = 1990; year <= 2245; ++year) {
        enter(screen().VendorInfo, std::to_string(year));
        EXPECT_EQ(screen().lbVendor(4).caption(), "Year Manufacture - " + std::to_string(year));
    }
}

const Entry versionEntries[] = {
    {18, "255", "04 43 41 42 01 00 00 00 0A 0B FF 03", ""},
    {18, "256", "04 43 41 42 01 00 00 00 0A 0B 01 03", "This value must value between 0 and 255"},
    {18, "1.5", "04 43 41 42 01 00 00 00 0A 0B 02 03", ""},
    {18, "2.5", "04 43 41 42 01 00 00 00 0A 0B 03 03", ""}, // a pattern rounds halves away from zero
    {18, "", "04 43 41 42 01 00 00 00 0A 0B 00 03", ""},
    {18, "-5", "04 43 41 42 01 00 00 00 0A 0B FFFB 03", ""},
    {19, "4", "04 43 41 42 01 00 00 00 0A 0B 01 04", ""},
    {19, "999", "04 43 41 42 01 00 00 00 0A 0B 01 03", "This value must value between 0 and 255"},
    {19, "1234", "04 43 41 42 01 00 00 00 0A 0B 01 7B", ""}, // three characters at most
};

TEST_F(Vendor, VersionAndRevision) {
    expectEntries(versionEntries, screen().VerRev);
}

TEST_F(Vendor, VersionsComeBack) {
    for (int number = 0; number <= 255; ++number) {
        const std::string text = std::to_string(number);
        visit(18);
        enter(screen().VerRev, text);
        visit(19);
        enter(screen().VerRev, text);
        EXPECT_EQ(screen().lbEDID(3).caption(), text + "." + text);
    }
}

TEST_F(Vendor, AfterARevisionTheBoxHoldsTheVersion) {
    visit(19);
    enter(screen().VerRev, "4");
    EXPECT_EQ(screen().VerRev.text(), "1") << "the version decoder leaves its text";
}

/// Keys typed into the box of a cell, what of them arrives, and the message each refused one gives.
struct Filtered {
    int cell;
    const char* typed;
    const char* text;
    const char* message;
    std::size_t messages;
};

const Filtered filters[] = {
    {8, "a1Z", "AZ", "A-Z Only", 1},
    {8, "[@ ", "", "A-Z Only", 3},
    {9, ".", ".", "", 0},
    {12, "1a2/:", "12", "0-9 Only", 3},
    {12, "-5", "5", "0-9 Only", 1},
    {15, "1.", "1.", "", 0},
    {10, "a/g", "A", "Hexadecimal Only", 2},
    {11, "0:;?", "0:;?", "", 0}, // the characters between "9" and "A" pass by their code
    {11, "<=>@", "<=>@", "", 0},
    {11, "F`", "F", "Hexadecimal Only", 1},
    {16, "x-", "x-", "", 0},
    {17, "ab c", "ab c", "", 0},
};

TEST_F(Vendor, KeyFilters) {
    for (const Filtered& row : filters) {
        SCOPED_TRACE(entryName(row.cell, row.typed));
        visit(row.cell);
        moveFocus(screen().VendorInfo);
        ASSERT_TRUE(input::edit(screen().VendorInfo, "", 0, 0, 0));
        program.type(row.typed);
        EXPECT_EQ(screen().VendorInfo.text(), row.text);
        EXPECT_EQ(program.takeBoxes(), Texts(row.messages, row.message));
    }
}

TEST_F(Vendor, TabulatorAndBackspacePassInEveryField) {
    for (const int index : {8, 10, 12}) {
        visit(index);
        moveFocus(screen().VendorInfo);
        ASSERT_TRUE(input::edit(screen().VendorInfo, "", 0, 0, 0));
        program.type(index == 12 ? "12\b" : "AB\b");
        EXPECT_EQ(screen().VendorInfo.text(), index == 12 ? "1" : "A");
        program.type("\t");
        EXPECT_TRUE(program.takeBoxes().empty());
    }
}

TEST_F(Vendor, OtherKeysWriteNothing) {
    visit(8);
    moveFocus(screen().VendorInfo);
    program.type("XYZ");
    EXPECT_EQ(cells(8, 9), "04 43");
    visit(18);
    moveFocus(screen().VerRev);
    program.type("9");
    EXPECT_EQ(cell(18), "01");
}

TEST_F(Vendor, WithoutAnActiveFieldEnterDoesNothing) {
    visit(8);
    screen().lbVendor(0).setFontBold(false);
    enter(screen().VendorInfo, "XYZ");
    EXPECT_EQ(cells(8, 9), "04 43");
}

TEST_F(Vendor, TheBoxesSelectTheirTextOnFocus) {
    visit(12);
    moveFocus(screen().VendorInfo);
    EXPECT_EQ(screen().VendorInfo.selLength(), 5);
    visit(18);
    moveFocus(screen().VerRev);
    EXPECT_EQ(screen().VerRev.selLength(), 1);
}

} // namespace
} // namespace wb::test
