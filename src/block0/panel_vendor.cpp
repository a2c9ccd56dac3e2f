#include "block0/panel_vendor.h"

#include <array>

#include "block0/cell_writing.h"
#include "block0/panel.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/cells.h"
#include "report/identity.h"
#include "report/identity_layout.h"

namespace wb::block0 {

namespace {

/// An identity field, by the index of its label lbVendor, which is the tag of its cells.
struct IdentityField {
    CellRange cells;
    int maxLength; ///< of an entry
    void (*decode)(Workbench&);
    void (*encode)(Workbench&, const std::string& entry);
};

void encodeManufacturer(Workbench& workbench, const std::string& entry) {
    // Missing letters count as 0; a character before "@" as a negative number, which then takes four digits.
    std::array<int, 3> letters{};
    for (std::size_t i = 0; i < letters.size() && i < entry.size(); ++i) {
        letters[i] = static_cast<unsigned char>(entry[i]) - report::letterBase;
    }
    FrmEdid& screen = workbench.frmEDID();
    const BitRange upper = report::secondLetter.upper.range;
    const BitRange lower = report::secondLetter.lower.range;
    // The first and the third letter are not cut to their five bits.
    writeByte(screen, cells::manufacturer.first,
              (letters[0] << report::firstLetterBits.low) + withBits(0, upper, letters[1] >> lower.width()));
    writeByte(screen, cells::manufacturer.last, withBits(0, lower, letters[1]) + letters[2]);
    report::ConvertManufacturer(workbench);
}

/// Writes the entry in reading order, whereas the decoder reads the second cell first: "1234" comes back as "3412".
void encodeProductCode(Workbench& workbench, const std::string& entry) {
    FrmEdid& screen = workbench.frmEDID();
    if (!entry.empty() && entry.size() <= 4) {
        screen.txtEdit(cells::productCode.first).setText(leftPart(zeroFilled(entry, 4), 2));
        screen.txtEdit(cells::productCode.last).setText(rightPart(entry, 2));
    }
    report::ConvertProductCode(workbench);
}

void encodeSerialNumber(Workbench& workbench, const std::string& entry) {
    FrmEdid& screen = workbench.frmEDID();
    const std::string digits = zeroFilled(hexadecimal32(roundToInt32(Value(workbench, entry))), 8);
    int cell = cells::serialNumber.last; // the first digits are the highest and stand in the last cell
    for (std::size_t position = 0; position < digits.size(); position += 2) {
        screen.txtEdit(cell--).setText(digits.substr(position, 2));
    }
    report::ConvertSerialNumber(workbench);
}

void encodeWeek(Workbench& workbench, const std::string& entry) {
    const int week = roundToInt16(Value(workbench, entry));
    if (week >= 53) {
        workbench.showMessage("Max value is 52");
        return;
    }
    writeByte(workbench.frmEDID(), cells::week, week);
    report::ConvertWeek(workbench);
}

void encodeYear(Workbench& workbench, const std::string& entry) {
    if (entry.size() < 4) {
        workbench.showMessage("Please enter in the full year (1999)");
        return;
    }
    const int year = roundToInt16(Value(workbench, entry));
    if (year < report::firstYear) {
        workbench.showMessage("The Range is 1990-2155"); // the upper end is told but not tested
        return;
    }
    writeByte(workbench.frmEDID(), cells::year, year - report::firstYear);
    report::ConvertYear(workbench);
}

constexpr auto identityFields = std::to_array<IdentityField>({
    {cells::manufacturer, 3, &report::ConvertManufacturer, &encodeManufacturer},
    {cells::productCode, 4, &report::ConvertProductCode, &encodeProductCode},
    {cells::serialNumber, 20, &report::ConvertSerialNumber, &encodeSerialNumber},
    {oneCell(cells::week), 2, &report::ConvertWeek, &encodeWeek},
    {oneCell(cells::year), 4, &report::ConvertYear, &encodeYear},
});
constexpr int manufacturer = 0;
constexpr int productCode = 1;
constexpr int serialNumber = 2;
constexpr int noField = -1;

const IdentityField& fieldOf(int tag) {
    return identityFields[static_cast<std::size_t>(tag)];
}

/// The field being edited is kept nowhere else: it is that of the first bold label.
int activeField(FrmEdid& screen) {
    for (int i = 0; i < static_cast<int>(identityFields.size()); ++i) {
        if (screen.lbVendor(i).fontBold()) {
            return i;
        }
    }
    return noField;
}

/// Passes a key from `first` to `last` by its code; tells about any other and drops it.
void filterKey(Workbench& workbench, int& keyAscii, char first, char last, const char* message) {
    const int key = static_cast<unsigned char>(upperCase(static_cast<char>(keyAscii)));
    if (key >= first && key <= last) {
        keyAscii = key;
    } else {
        workbench.showMessage(message);
        keyAscii = 0;
    }
}

} // namespace

CellRange identityField(int index) {
    for (const IdentityField& field : identityFields) {
        if (field.cells.contains(index)) {
            return field.cells;
        }
    }
    return noCells;
}

void openVendorPanel(Workbench& workbench, int index) {
    FrmEdid& screen = workbench.frmEDID();
    for (int i = 0; i < static_cast<int>(identityFields.size()); ++i) {
        screen.lbVendor(i).setFontBold(false);
    }
    const int tag = screen.txtEdit(index).tag();
    screen.lbVendor(tag).setFontBold(true);
    for (const IdentityField& field : identityFields) {
        field.decode(workbench);
    }
    screen.VendorInfo.setMaxLength(fieldOf(tag).maxLength);
    fieldOf(tag).decode(workbench); // each decoder leaves its own text in VendorInfo
    if (seeks(workbench)) {
        workbench.focus.moveTo(screen.VendorInfo);
    }
}

void openVersionPanel(Workbench& workbench, int index) {
    FrmEdid& screen = workbench.frmEDID();
    report::ConvertVersion(workbench);
    report::ConvertRevision(workbench);
    screen.lbEDID(0).setFontBold(index == cells::version);
    screen.lbEDID(1).setFontBold(index != cells::version);
    screen.VerRev.setText(formatNumber(byteAt(screen, index), "0"));
    if (seeks(workbench)) {
        workbench.focus.moveTo(screen.VerRev);
    }
}

void VendorInfo_GotFocus(Workbench& workbench, int) {
    SelectAllInControl(workbench.frmEDID().VendorInfo);
}

void VendorInfo_KeyPress(Workbench& workbench, int, int& keyAscii) {
    constexpr int tabulator = 9;
    constexpr int deleteKey = 46; // the full stop has the same code and passes in every field
    if (keyAscii == tabulator || keyAscii == enterKey || keyAscii == backspaceKey || keyAscii == deleteKey) {
        return;
    }
    switch (activeField(workbench.frmEDID())) {
        case manufacturer:
            filterKey(workbench, keyAscii, 'A', 'Z', "A-Z Only");
            break;
        case serialNumber:
            filterKey(workbench, keyAscii, '0', '9', "0-9 Only");
            break;
        case productCode: // by code: the seven characters between "9" and "A" pass
            filterKey(workbench, keyAscii, '0', 'F', "Hexadecimal Only");
            break;
        default:
            break;
    }
}

void VendorInfo_KeyUp(Workbench& workbench, int, int keyCode) {
    onEnter(workbench, keyCode, [&](FrmEdid& screen) {
        const int field = activeField(screen);
        if (field != noField) {
            fieldOf(field).encode(workbench, screen.VendorInfo.text());
        }
    });
}

void VerRev_GotFocus(Workbench& workbench, int) {
    SelectAllInControl(workbench.frmEDID().VerRev);
}

void VerRev_KeyUp(Workbench& workbench, int, int keyCode) {
    onEnter(workbench, keyCode, [&](FrmEdid& screen) {
        const double entry = Value(workbench, screen.VerRev.text());
        if (entry > 255) {
            workbench.showMessage("This value must value between 0 and 255");
            return;
        }
        writeByte(screen, screen.lbEDID(0).fontBold() ? cells::version : cells::revision, patternInt16(entry));
        report::ConvertVersion(workbench);
        report::ConvertRevision(workbench);
    });
}

} // namespace wb::block0
