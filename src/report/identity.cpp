#include "report/identity.h"

#include <array>

#include "core/base/image_layout.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/cells.h"
#include "report/decoder.h"
#include "report/identity_layout.h"

namespace wb::report {

namespace {

constexpr std::string_view unusedSerial = "Not Used";

struct Brand {
    std::string_view manufacturer;
    std::string_view name;
};

constexpr auto brands = std::to_array<Brand>({
    {"HLV", "Halvorine"},
    {"BRN", "Brindleco"},
    {"TSM", "Tessaramond"},
    {"ZRQ", "Zarqo"},
});

char letterOf(int fiveBits) {
    return static_cast<char>(letterBase + fiveBits);
}

std::string_view brandOf(std::string_view manufacturer) {
    for (const Brand& brand : brands) {
        if (brand.manufacturer == manufacturer) {
            return brand.name;
        }
    }
    return manufacturer;
}

/// The characters of the product code. Where that of the first cell does not lie above the blank, the second is not
/// looked at.
std::string productLetters(FrmEdid& screen) {
    const int first = byteAt(screen, cells::productCode.first);
    if (first <= ' ') {
        return {};
    }
    std::string letters(1, static_cast<char>(first));
    const int second = byteAt(screen, cells::productCode.last);
    if (second > ' ') {
        letters += static_cast<char>(second);
    }
    return letters;
}

} // namespace

std::string GetManufacturer(Workbench& workbench) {
    return trappedOr(workbench, std::string(), [&] {
        FrmEdid& screen = workbench.frmEDID();
        const int first = byteAt(screen, cells::manufacturer.first);
        const int second = byteAt(screen, cells::manufacturer.last);
        return std::string{letterOf(bits(first, firstLetterBits)), letterOf(secondLetter.join(first, second)),
                           letterOf(bits(second, thirdLetterBits))};
    });
}

void ConvertManufacturer(Workbench& workbench) {
    decoder(workbench, [&](FrmEdid& screen) {
        workbench.IDManufacturerName = GetManufacturer(workbench);
        screen.VendorInfo.setText(workbench.IDManufacturerName);
        screen.lbVendor(0).setCaption({"Manufacturer - ", workbench.IDManufacturerName});
    });
}

std::string GetProductCode(Workbench& workbench) {
    return trappedOr(workbench, std::string(), [&] {
        FrmEdid& screen = workbench.frmEDID();
        const std::string letters = productLetters(screen);
        const std::string digits =
            screen.txtEdit(cells::productCode.last).text() + screen.txtEdit(cells::productCode.first).text();
        workbench.ProductCodeHex = digits;
        workbench.ProductHardwareCode = digits;
        workbench.EDIDProductCodeRaw = digits == "0000" ? "00" : letters;
        workbench.ProductIDCode = letters.empty() ? digits : digits + "(" + letters + ")";
        return workbench.ProductIDCode;
    });
}

void ConvertProductCode(Workbench& workbench) {
    decoder(workbench, [&](FrmEdid& screen) {
        screen.lbVendor(1).setCaption({"Product Code - ", GetProductCode(workbench)});
        screen.VendorInfo.setText(workbench.EDIDProductCodeRaw);
        CompleteSerialNumber(workbench);
    });
}

void ConvertSerialNumber(Workbench& workbench) {
    decoder(workbench, [&](FrmEdid& screen) {
        std::string digits;
        for (int cell = cells::serialNumber.last; cell >= cells::serialNumber.first; --cell) {
            digits += screen.txtEdit(cell).text();
        }
        workbench.SerialLast5 = formatNumber(hexToDecimalText(workbench, digits), "00000");
        if (workbench.SerialLast5 == "00000" || workbench.SerialLast5 == "16843009") {
            workbench.SerialLast5 = unusedSerial;
        }
        screen.lbVendor(2).setCaption({"Serial Number - ", workbench.SerialLast5});
        screen.VendorInfo.setText(workbench.SerialLast5);
        CompleteSerialNumber(workbench);
    });
}

void ConvertWeek(Workbench& workbench) {
    decoder(workbench, [&](FrmEdid& screen) {
        workbench.ManufactureWeek = formatNumber(byteAt(screen, cells::week), "00");
        screen.lbVendor(3).setCaption({"Week Manufacture - ", workbench.ManufactureWeek});
        screen.VendorInfo.setText(workbench.ManufactureWeek);
        CompleteSerialNumber(workbench);
    });
}

void ConvertYear(Workbench& workbench) {
    decoder(workbench, [&](FrmEdid& screen) {
        workbench.ManufactureYear = formatNumber(byteAt(screen, cells::year) + firstYear, "0");
        screen.VendorInfo.setText(workbench.ManufactureYear);
        screen.lbVendor(4).setCaption({"Year Manufacture - ", workbench.ManufactureYear});
        CompleteSerialNumber(workbench);
    });
}

void CompleteSerialNumber(Workbench& workbench) {
    trapped(workbench, [&] {
        if (workbench.SerialLast5 == unusedSerial) {
            workbench.CompleteSerial = "See Descriptor Block";
        } else {
            join(workbench.CompleteSerial, {workbench.EDIDProductCodeRaw, rightPart(workbench.ManufactureYear, 1),
                                            workbench.ManufactureWeek, workbench.SerialLast5});
        }
        workbench.frmEDID().lbVendor(6).setCaption(workbench.CompleteSerial);
    });
}

void ConvertVersion(Workbench& workbench) {
    decoder(workbench, [&](FrmEdid& screen) {
        workbench.EDIDVersionText = formatNumber(byteAt(screen, cells::version), "0");
        screen.lbEDID(0).setCaption({"Version Number - ", workbench.EDIDVersionText});
        screen.txtVersion.setText(workbench.EDIDVersionText);
        screen.VerRev.setText(workbench.EDIDVersionText);
        screen.txtBrand.setText(brandOf(workbench.IDManufacturerName));
        ShowCompleteVersion(workbench);
    });
}

void ConvertRevision(Workbench& workbench) {
    decoder(workbench, [&](FrmEdid& screen) {
        workbench.EDIDRevisionText = formatNumber(byteAt(screen, cells::revision), "0");
        screen.lbEDID(1).setCaption({"Revision Number - ", workbench.EDIDRevisionText});
        screen.txtRevision.setText(workbench.EDIDRevisionText);
        ShowCompleteVersion(workbench);
    });
}

void ShowCompleteVersion(Workbench& workbench) {
    trapped(workbench, [&] {
        join(workbench.EDIDVersionRevisionText, {workbench.EDIDVersionText, ".", workbench.EDIDRevisionText});
        workbench.frmEDID().lbEDID(3).setCaption(workbench.EDIDVersionRevisionText);
    });
}

} // namespace wb::report
