#include "report/identity.h"

#include <array>

#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/edid_image.h"

namespace wb::report {

namespace {

constexpr std::string_view unusedSerial = "Not Used";
constexpr int firstYear = 1990; ///< VESA E-EDID Standard, Release A, section 3.4

struct Brand {
    std::string_view manufacturer;
    std::string_view name;
};

constexpr std::array<Brand, 4> brands = {{
    {"HLV", "Halvorine"},
    {"BRN", "Brindleco"},
    {"TSM", "Tessaramond"},
    {"ZRQ", "Zarqo"},
}};

char letterOf(int fiveBits) {
    return static_cast<char>(fiveBits + 64);
}

std::string brandOf(const std::string& manufacturer) {
    for (const Brand& brand : brands) {
        if (brand.manufacturer == manufacturer) {
            return std::string(brand.name);
        }
    }
    return manufacturer;
}

/// The characters of the product code. Where that of cell 10 does not lie above the blank, cell 11 is not looked at.
std::string productLetters(FrmEdid& screen) {
    const int first = byteAt(screen, 10);
    if (first <= ' ') {
        return {};
    }
    std::string letters(1, static_cast<char>(first));
    const int second = byteAt(screen, 11);
    if (second > ' ') {
        letters += static_cast<char>(second);
    }
    return letters;
}

} // namespace

std::string GetManufacturer(Workbench& workbench) {
    return trappedOr(workbench, std::string(), [&] {
        FrmEdid& screen = workbench.frmEDID();
        const int a = byteAt(screen, 8);
        const int b = byteAt(screen, 9);
        return std::string{letterOf((a & 124) / 4), letterOf((a & 3) * 8 + (b & 224) / 32), letterOf(b & 31)};
    });
}

void ConvertManufacturer(Workbench& workbench) {
    trapped(workbench, [&] {
        FrmEdid& screen = workbench.frmEDID();
        workbench.IDManufacturerName = GetManufacturer(workbench);
        screen.VendorInfo.setText(workbench.IDManufacturerName);
        screen.lbVendor(0).setCaption("Manufacturer - " + workbench.IDManufacturerName);
        RecalcBlock0Checksum(workbench);
    });
}

std::string GetProductCode(Workbench& workbench) {
    return trappedOr(workbench, std::string(), [&] {
        FrmEdid& screen = workbench.frmEDID();
        const std::string letters = productLetters(screen);
        const std::string digits = screen.txtEdit(11).text() + screen.txtEdit(10).text();
        workbench.ProductCodeHex = digits;
        workbench.ProductHardwareCode = digits;
        workbench.EDIDProductCodeRaw = digits == "0000" ? "00" : letters;
        workbench.ProductIDCode = letters.empty() ? digits : digits + "(" + letters + ")";
        return workbench.ProductIDCode;
    });
}

void ConvertProductCode(Workbench& workbench) {
    trapped(workbench, [&] {
        FrmEdid& screen = workbench.frmEDID();
        screen.lbVendor(1).setCaption("Product Code - " + GetProductCode(workbench));
        screen.VendorInfo.setText(workbench.EDIDProductCodeRaw);
        CompleteSerialNumber(workbench);
        RecalcBlock0Checksum(workbench);
    });
}

void ConvertSerialNumber(Workbench& workbench) {
    trapped(workbench, [&] {
        FrmEdid& screen = workbench.frmEDID();
        std::string digits;
        for (int cell = 15; cell >= 12; --cell) {
            digits += screen.txtEdit(cell).text();
        }
        workbench.SerialLast5 = formatNumber(hexToDecimalText(workbench, digits), "00000");
        if (workbench.SerialLast5 == "00000" || workbench.SerialLast5 == "16843009") {
            workbench.SerialLast5 = unusedSerial;
        }
        screen.lbVendor(2).setCaption("Serial Number - " + workbench.SerialLast5);
        screen.VendorInfo.setText(workbench.SerialLast5);
        CompleteSerialNumber(workbench);
        RecalcBlock0Checksum(workbench);
    });
}

void ConvertWeek(Workbench& workbench) {
    trapped(workbench, [&] {
        FrmEdid& screen = workbench.frmEDID();
        workbench.ManufactureWeek = formatNumber(byteAt(screen, 16), "00");
        screen.lbVendor(3).setCaption("Week Manufacture - " + workbench.ManufactureWeek);
        screen.VendorInfo.setText(workbench.ManufactureWeek);
        CompleteSerialNumber(workbench);
        RecalcBlock0Checksum(workbench);
    });
}

void ConvertYear(Workbench& workbench) {
    trapped(workbench, [&] {
        FrmEdid& screen = workbench.frmEDID();
        workbench.ManufactureYear = formatNumber(byteAt(screen, 17) + firstYear, "0");
        screen.VendorInfo.setText(workbench.ManufactureYear);
        screen.lbVendor(4).setCaption("Year Manufacture - " + workbench.ManufactureYear);
        CompleteSerialNumber(workbench);
        RecalcBlock0Checksum(workbench);
    });
}

void CompleteSerialNumber(Workbench& workbench) {
    trapped(workbench, [&] {
        workbench.CompleteSerial = workbench.SerialLast5 == unusedSerial
                                       ? "See Descriptor Block"
                                       : workbench.EDIDProductCodeRaw + rightPart(workbench.ManufactureYear, 1) +
                                             workbench.ManufactureWeek + workbench.SerialLast5;
        workbench.frmEDID().lbVendor(6).setCaption(workbench.CompleteSerial);
    });
}

void ConvertVersion(Workbench& workbench) {
    trapped(workbench, [&] {
        FrmEdid& screen = workbench.frmEDID();
        workbench.EDIDVersionText = formatNumber(byteAt(screen, 18), "0");
        screen.lbEDID(0).setCaption("Version Number - " + workbench.EDIDVersionText);
        screen.txtVersion.setText(workbench.EDIDVersionText);
        screen.VerRev.setText(workbench.EDIDVersionText);
        screen.txtBrand.setText(brandOf(workbench.IDManufacturerName));
        ShowCompleteVersion(workbench);
        RecalcBlock0Checksum(workbench);
    });
}

void ConvertRevision(Workbench& workbench) {
    trapped(workbench, [&] {
        FrmEdid& screen = workbench.frmEDID();
        workbench.EDIDRevisionText = formatNumber(byteAt(screen, 19), "0");
        screen.lbEDID(1).setCaption("Revision Number - " + workbench.EDIDRevisionText);
        screen.txtRevision.setText(workbench.EDIDRevisionText);
        ShowCompleteVersion(workbench);
        RecalcBlock0Checksum(workbench);
    });
}

void ShowCompleteVersion(Workbench& workbench) {
    trapped(workbench, [&] {
        workbench.EDIDVersionRevisionText = workbench.EDIDVersionText + "." + workbench.EDIDRevisionText;
        workbench.frmEDID().lbEDID(3).setCaption(workbench.EDIDVersionRevisionText);
    });
}

} // namespace wb::report
