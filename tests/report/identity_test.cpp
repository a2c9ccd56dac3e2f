#include "report/identity.h"

#include "block0_fixture.h"

namespace wb::report {
namespace {

struct LettersCase {
    std::string_view cell8, cell9, letters;
};

class Manufacturer : public Block0, public testing::WithParamInterface<LettersCase> {};

TEST_P(Manufacturer, IsThreeLettersOfFiveBits) {
    set(8, {GetParam().cell8, GetParam().cell9});
    EXPECT_EQ(GetManufacturer(workbench), GetParam().letters);
}

INSTANTIATE_TEST_SUITE_P(Rows, Manufacturer,
                         testing::Values(LettersCase{"04", "43", "ABC"}, LettersCase{"21", "96", "HLV"},
                                         LettersCase{"84", "43", "ABC"}, // bit 7 is ignored
                                         LettersCase{"00", "00", "@@@"}, LettersCase{"6B", "7B", "Z[["},
                                         LettersCase{"FF", "FF", "___"},
                                         LettersCase{"0", "4", "@B@"})); // a missing digit counts as 0

using Identity = Block0;

TEST_F(Identity, ManufacturerIsShown) {
    set(8, {"21", "96"});
    ConvertManufacturer(workbench);
    EXPECT_EQ(workbench.IDManufacturerName, "HLV");
    EXPECT_EQ(screen.VendorInfo.text(), "HLV");
    EXPECT_EQ(screen.lbVendor(0).caption(), "Manufacturer - HLV");
}

TEST_F(Identity, AManufacturerThatCannotBeReadIsEmpty) {
    workbench.IDManufacturerName = "HLV";
    set(8, {"ZZ"});
    ConvertManufacturer(workbench);
    EXPECT_EQ(boxes(), unreadable());
    EXPECT_EQ(workbench.IDManufacturerName, "");
    EXPECT_EQ(screen.lbVendor(0).caption(), "Manufacturer - ") << "the caller goes on";
}

struct ProductCase {
    std::string_view cell10, cell11, raw, shown;
};

class ProductCode : public Block0, public testing::WithParamInterface<ProductCase> {};

TEST_P(ProductCode, HasLettersAboveTheBlank) {
    set(10, {GetParam().cell10, GetParam().cell11});
    EXPECT_EQ(GetProductCode(workbench), GetParam().shown);
    EXPECT_EQ(workbench.ProductIDCode, GetParam().shown);
    EXPECT_EQ(workbench.EDIDProductCodeRaw, GetParam().raw);
    const std::string digits = std::string(GetParam().cell11) + std::string(GetParam().cell10);
    EXPECT_EQ(workbench.ProductCodeHex, digits);
    EXPECT_EQ(workbench.ProductHardwareCode, digits);
}

INSTANTIATE_TEST_SUITE_P(Rows, ProductCode,
                         testing::Values(ProductCase{"41", "42", "AB", "4241(AB)"},
                                         ProductCase{"00", "00", "00", "0000"}, ProductCase{"20", "41", "", "4120"},
                                         ProductCase{"41", "20", "A", "2041(A)"},
                                         ProductCase{"21", "00", "!", "0021(!)"}, ProductCase{"00", "41", "", "4100"},
                                         ProductCase{"0", "0", "", "00"},
                                         // Cell 11 is not looked at for letters, so that it may be anything.
                                         ProductCase{"10", "ZZ", "", "ZZ10"}));

TEST_F(Identity, ProductCodeIsShown) {
    set(10, {"41", "42"});
    ConvertProductCode(workbench);
    EXPECT_EQ(screen.lbVendor(1).caption(), "Product Code - 4241(AB)");
    EXPECT_EQ(screen.VendorInfo.text(), "AB");
    EXPECT_EQ(screen.lbVendor(6).caption(), "AB") << "the complete number, of what stands so far";
}

TEST_F(Identity, AProductCodeThatCannotBeReadKeepsTheOldOne) {
    set(10, {"41", "42"});
    ConvertProductCode(workbench);
    set(10, {"43", "ZZ"});
    ConvertProductCode(workbench);
    EXPECT_EQ(boxes(), unreadable());
    EXPECT_EQ(screen.lbVendor(1).caption(), "Product Code - ");
    EXPECT_EQ(screen.VendorInfo.text(), "AB");
    EXPECT_EQ(workbench.ProductIDCode, "4241(AB)");
    EXPECT_EQ(workbench.ProductCodeHex, "4241");
}

struct SerialCase {
    std::string_view cell12, cell13, cell14, cell15; // least significant first
    std::string_view serial;
};

class Serial : public Block0, public testing::WithParamInterface<SerialCase> {};

TEST_P(Serial, IsTheWholeNumber) {
    set(12, {GetParam().cell12, GetParam().cell13, GetParam().cell14, GetParam().cell15});
    ConvertSerialNumber(workbench);
    EXPECT_EQ(workbench.SerialLast5, GetParam().serial);
    EXPECT_EQ(screen.lbVendor(2).caption(), "Serial Number - " + std::string(GetParam().serial));
    EXPECT_EQ(screen.VendorInfo.text(), GetParam().serial);
    EXPECT_TRUE(boxes().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Serial,
    testing::Values(SerialCase{"00", "00", "00", "00", "Not Used"}, SerialCase{"01", "01", "01", "01", "Not Used"},
                    SerialCase{"01", "00", "00", "00", "00001"}, SerialCase{"FF", "FF", "FF", "FF", "4294967295"},
                    SerialCase{"9F", "86", "01", "00", "99999"}, SerialCase{"A0", "86", "01", "00", "100000"},
                    SerialCase{"ff", "02", "00", "00", "00002"}, // lower-case digits count for nothing
                    SerialCase{"ZZ", "", "--", "zz", "Not Used"}));

TEST_F(Identity, ASerialNumberBeyond32BitsGivesTwoBoxesAndStays) {
    set(12, {"01", "00", "00", "00"});
    ConvertSerialNumber(workbench);
    set(12, {"FF", "FF", "FF", "FFF"});
    ConvertSerialNumber(workbench);
    EXPECT_EQ(boxes(), (Lines{"Overflow", "Type mismatch"}));
    EXPECT_EQ(workbench.SerialLast5, "00001");
}

struct WeekYearCase {
    std::string_view cell, week, year;
};

class WeekAndYear : public Block0, public testing::WithParamInterface<WeekYearCase> {};

TEST_P(WeekAndYear, HaveNoRangeTest) {
    set(16, {GetParam().cell, GetParam().cell});
    ConvertWeek(workbench);
    EXPECT_EQ(workbench.ManufactureWeek, GetParam().week);
    EXPECT_EQ(screen.VendorInfo.text(), GetParam().week);
    EXPECT_EQ(screen.lbVendor(3).caption(), "Week Manufacture - " + std::string(GetParam().week));
    ConvertYear(workbench);
    EXPECT_EQ(workbench.ManufactureYear, GetParam().year);
    EXPECT_EQ(screen.VendorInfo.text(), GetParam().year);
    EXPECT_EQ(screen.lbVendor(4).caption(), "Year Manufacture - " + std::string(GetParam().year));
}

INSTANTIATE_TEST_SUITE_P(Rows, WeekAndYear,
                         testing::Values(WeekYearCase{"00", "00", "1990"}, WeekYearCase{"09", "09", "1999"},
                                         WeekYearCase{"0A", "10", "2000"}, WeekYearCase{"FF", "255", "2245"}));

TEST_F(Identity, TheCompleteSerialNumberJoinsWhatTheOthersLeft) {
    set(10, {"41", "42", "39", "30", "00", "00", "07", "0D"});
    ConvertProductCode(workbench);
    ConvertSerialNumber(workbench);
    ConvertWeek(workbench);
    EXPECT_EQ(workbench.CompleteSerial, "AB0712345") << "no year yet";
    ConvertYear(workbench);
    EXPECT_EQ(workbench.CompleteSerial, "AB30712345");
    EXPECT_EQ(screen.lbVendor(6).caption(), "AB30712345");
}

TEST_F(Identity, WithoutASerialNumberTheCompleteOneIsElsewhere) {
    ConvertSerialNumber(workbench);
    EXPECT_EQ(workbench.CompleteSerial, "See Descriptor Block");
    EXPECT_EQ(screen.lbVendor(6).caption(), "See Descriptor Block");
}

struct BrandCase {
    std::string_view manufacturer, brand;
};

class BrandOf : public Block0, public testing::WithParamInterface<BrandCase> {};

TEST_P(BrandOf, FollowsFromTheManufacturer) {
    workbench.IDManufacturerName = GetParam().manufacturer;
    ConvertVersion(workbench);
    EXPECT_EQ(screen.txtBrand.text(), GetParam().brand);
}

INSTANTIATE_TEST_SUITE_P(Rows, BrandOf,
                         testing::Values(BrandCase{"HLV", "Halvorine"}, BrandCase{"BRN", "Brindleco"},
                                         BrandCase{"TSM", "Tessaramond"}, BrandCase{"ZRQ", "Zarqo"},
                                         BrandCase{"ABC", "ABC"}, BrandCase{"zrq", "zrq"}, BrandCase{"", ""}));

TEST_F(Identity, VersionAndRevisionAreShown) {
    set(18, {"01", "FF"});
    ConvertVersion(workbench);
    EXPECT_EQ(workbench.EDIDVersionText, "1");
    EXPECT_EQ(screen.lbEDID(0).caption(), "Version Number - 1");
    EXPECT_EQ(screen.txtVersion.text(), "1");
    EXPECT_EQ(screen.VerRev.text(), "1");
    EXPECT_EQ(workbench.EDIDVersionRevisionText, "1.");
    ConvertRevision(workbench);
    EXPECT_EQ(workbench.EDIDRevisionText, "255");
    EXPECT_EQ(screen.lbEDID(1).caption(), "Revision Number - 255");
    EXPECT_EQ(screen.txtRevision.text(), "255");
    EXPECT_EQ(screen.VerRev.text(), "1") << "that of the version";
    EXPECT_EQ(workbench.EDIDVersionRevisionText, "1.255");
    EXPECT_EQ(screen.lbEDID(3).caption(), "1.255");
}

} // namespace
} // namespace wb::report
