#include "report/monitor_descriptor.h"

#include <array>

#include "core/edid_image.h"
#include "core/numbers.h"
#include "core/text.h"
#include "report/basic_display.h"
#include "report/chromaticity.h"
#include "report/report_lines.h"
#include "report/standard_timings.h"

namespace wb::report {

namespace {

constexpr int lineFeed = 10;
constexpr int tagCell = 3;
constexpr int firstPayloadCell = 5;
constexpr int lastPayloadCell = 17;

struct Family {
    std::string_view tag;
    std::string_view heading;
};

enum FamilyNumber { SerialNumber, AsciiData, RangeLimits, MonitorName, ColorPoint, StandardTimings };

/// By number of the family, which is that of its option.
constexpr std::array<Family, 6> families = {{
    {"FF", "Monitor Serial Number:"},
    {"FE", "ASCII Data:"},
    {"FD", "Monitor Range Limits:"},
    {"FC", "Monitor Name:"},
    {"FB", "Color Point:"},
    {"FA", "Standard Timing Identifiers:"},
}};

struct RangeField {
    std::string_view words;
    std::string_view unit;
    int factor;
};

/// Cells 5 to 9 of the block.
constexpr std::array<RangeField, 5> rangeFields = {{
    {"Min Vertical Freq - ", " Hz", 1},
    {"Max Vertical Freq - ", " Hz", 1},
    {"Min Horiz. Freq - ", " KHz", 1},
    {"Max Horiz. Freq - ", " KHz", 1},
    {"Pixel Clock  - ", " MHz", 10},
}};
constexpr int clockField = 4;
constexpr int unspecifiedClock = 255;

constexpr int inputTop = 120;            ///< twips
constexpr int inputHeight = 1200;        ///< twips
constexpr int inputHeightColours = 1095; ///< twips, beside the colour point panel

constexpr int timingCount = 6;

/// One run over one block.
class DescriptorDecoder {
public:
    explicit DescriptorDecoder(Workbench& workbench)
        : workbench_(workbench),
          screen_(workbench.frmEDID()),
          base_(screen_.CurrentBlockBase),
          number_(screen_.CurrentBlockNumber) {}

    void run() {
        text() = line();
        screen_.InFocusDispatch = flagTrue;
        screen_.DTAGTF.setVisible(false);
        const int family = readTag();
        screen_.DTa(family).setValue(1);
        clearPanel();
        convertFamily(family);
        finish();
    }

private:
    std::string& text() { return workbench_.DetailedBlockText(number_); }
    Control& cell(int offset) { return screen_.txtEdit(base_ + offset); }
    int cellValue(int offset) { return byteAt(screen_, base_ + offset); }
    bool seeking() const { return workbench_.ModifyEDIDOn != flagFalse && workbench_.AutoCellSeekOn != flagFalse; }

    void report(std::string_view words, int indent = reportIndent) { text() += line(IndentText(words, indent)); }

    void showAndReport(Control& control, const std::string& words, int indent) {
        control.setCaption(words);
        report(words, indent);
    }

    /// The family of a tag of the table, whose heading it puts into the report, or else the value of the tag.
    int readTag() {
        const int value = cellValue(tagCell);
        const std::string tag = upperCase(cell(tagCell).text());
        for (std::size_t family = 0; family < families.size(); ++family) {
            if (families[family].tag == tag) {
                text() = line();
                report(families[family].heading);
                screen_.DTAGTF.setVisible(family == RangeLimits);
                return static_cast<int>(family);
            }
        }
        return value;
    }

    void clearPanel() {
        screen_.DTaInput.setText({});
        screen_.DTAGTF.setEnabled(false);
        screen_.DTAFrame(0).setEnabled(false);
        screen_.DTAFrame(1).setEnabled(false);
        screen_.Windex(0).setEnabled(false);
        screen_.Windex(1).setEnabled(false);
        screen_.frmS_GTF(0).setEnabled(false);
    }

    void convertFamily(int family) {
        switch (family) {
            case SerialNumber:
            case AsciiData:
                convertText();
                break;
            case RangeLimits:
                convertRangeLimits();
                break;
            case MonitorName:
                showModelName();
                convertText();
                break;
            case ColorPoint:
                convertColorPoint();
                break;
            case StandardTimings:
                convertStandardTimings();
                break;
            default:
                break;
        }
    }

    void convertText() {
        for (int i = firstPayloadCell; i <= lastPayloadCell; ++i) {
            const int code = cellValue(i);
            if (code == lineFeed) {
                break;
            }
            screen_.DTaInput.setText(screen_.DTaInput.text() + static_cast<char>(code));
        }
        report(screen_.DTaInput.text());
        text() += line();
    }

    /// Joins the names of all name descriptors of the image, whichever block is being decoded.
    void showModelName() {
        std::string name;
        for (int tag = 57; tag <= 111; tag += 18) {
            if (screen_.txtEdit(tag).text() != "FC") {
                continue;
            }
            for (int j = 2; j <= 14; ++j) {
                const int code = byteAt(screen_, tag + j);
                if (code == lineFeed) {
                    break;
                }
                name += static_cast<char>(code);
            }
        }
        screen_.txtModel.setText(name);
    }

    void convertRangeLimits() {
        screen_.DTAFrame(0).setEnabled(true);
        for (int i = 0; i < static_cast<int>(rangeFields.size()); ++i) {
            showAndReport(screen_.DtaOpt(i), rangeText(i, cellValue(5 + i)), reportIndent);
        }
        screen_.DTaInput.setTop(inputTop);
        screen_.DTAGTF.setEnabled(true);
        const std::string& support = cell(10).text();
        if (support == "00") {
            report("Secondary GTF - Not Supported");
            screen_.DTAGTF.setValue(0);
        } else if (support == "04") {
            report("Reserved for EDID 1.4 Timings");
            screen_.DTAGTF.setValue(0);
            screen_.frmS_GTF(0).setEnabled(false);
        } else {
            convertSecondaryGtf();
        }
    }

    static std::string rangeText(int i, int value) {
        const RangeField& field = rangeFields[static_cast<std::size_t>(i)];
        if (i == clockField && value == unspecifiedClock) {
            return "Pixel Clock - Not Specified";
        }
        return std::string(field.words) + std::to_string(value * field.factor) + std::string(field.unit);
    }

    void convertSecondaryGtf() {
        screen_.DTAFrame(0).setEnabled(false);
        report("Secondary GTF - Supported");
        screen_.DTAGTF.setValue(1);
        screen_.frmS_GTF(0).setEnabled(true);
        showCurveField(0, "Start Hor Freq - " + std::to_string(cellValue(12) * 2) + " KHz");
        showCurveField(1, "C - " + formatNumber(cellValue(13) / 2.0, "0"));
        showCurveField(2, "M - " + formatNumber(hexToDecimalText(workbench_, cell(15).text() + cell(14).text()), "0"));
        showCurveField(3, "K - " + std::to_string(cellValue(16)));
        showCurveField(4, "J - " + formatNumber(cellValue(17) / 2.0, "0"));
        screen_.DTaInput.setTop(inputTop);
        if (screen_.frmS_GTF(0).enabled() && seeking()) {
            workbench_.focus.moveTo(screen_.DTaInput);
        }
        if (workbench_.ModifyEDIDOn == flagFalse) {
            for (int i = 10; i <= 17; ++i) {
                cell(i).setLocked(true);
            }
        }
    }

    void showCurveField(int i, const std::string& words) { showAndReport(screen_.S_GTF(i), words, 12); }

    void convertColorPoint() {
        screen_.DTAFrame(1).setEnabled(true);
        screen_.Windex(0).setEnabled(true);
        screen_.Windex(1).setEnabled(true);
        for (int i = 0; i <= 5; ++i) {
            screen_.DtaOptWhite(i).setEnabled(true);
            workbench_.focus.moveTo(screen_.DTaInput);
        }
        screen_.NotUsed(0).setEnabled(false);
        screen_.NotUsed(1).setEnabled(false);
        convertWhitePoint(0);
        convertWhitePoint(1);
        if (cellValue(5) != 0 && cellValue(10) != 0) {
            cell(15).setText("0A");
            cell(16).setText("20");
            cell(17).setText("20");
        }
        showSelectedWhiteValue();
    }

    void convertWhitePoint(int point) {
        const int first = 5 + 5 * point; // index, low bits, X, Y, gamma
        const int option = 3 * point;
        report("White Point #" + std::to_string(point + 1), 15);
        if (cellValue(first) > 0) {
            const int lowX = (cellValue(first + 1) & 12) / 4;
            showWhite(option, "White X - " + coordinate(cellValue(first + 2), lowX));
            const int lowY = cellValue(first + 1) & 3;
            showWhite(option + 1, "White Y - " + coordinate(cellValue(first + 3), lowY));
            showWhite(option + 2, "Gamma  - " + gammaText(cellValue(first + 4)));
            return;
        }
        for (int i = 1; i <= 4; ++i) {
            cell(first + i).setText("00");
        }
        for (int i = 0; i <= 2; ++i) {
            screen_.DtaOptWhite(option + i).setEnabled(false);
        }
        screen_.NotUsed(point).setEnabled(true);
        report("Not Used", 20);
    }

    std::string coordinate(int high, int low) { return chromaText(ChromaBitsToFraction(workbench_, high, low)); }

    void showWhite(int option, const std::string& words) { showAndReport(screen_.DtaOptWhite(option), words, 20); }

    void showSelectedWhiteValue() {
        for (int i = 0; i <= 5; ++i) {
            const std::string& caption = screen_.DtaOptWhite(i).caption();
            const auto dash = caption.find('-');
            if (!screen_.DtaOptWhite(i).selected() || dash == std::string::npos) {
                continue;
            }
            const auto start = caption.find_first_not_of(' ', dash + 1);
            screen_.DTaInput.setText(start == std::string::npos ? std::string() : caption.substr(start));
            return;
        }
    }

    void convertStandardTimings() {
        screen_.Hints(11).setVisible(false);
        screen_.Hints(12).setVisible(true);
        for (int i = 0; i < timingCount; ++i) {
            screen_.ExtSTOpt(i).setCaption({});
        }
        for (int i = 0; i < timingCount; ++i) {
            const int sizeByte = cellValue(5 + 2 * i);
            const int rateByte = cellValue(6 + 2 * i);
            showAndReport(screen_.ExtSTOpt(i), standardTimingText(sizeByte, rateByte), reportIndent);
        }
        const int shown = screen_.ExtSTOpt.firstSelected(0, timingCount - 1, 0);
        screen_.ExtSTAOptb(aspectCode(cellValue(6 + 2 * shown))).setValue(1);
        if (screen_.ExtSTOpt(6).selected()) {
            screen_.ExtSTOpt(6).setValue(0);
        }
    }

    void finish() {
        screen_.InFocusDispatch = flagFalse;
        RecalcBlock0Checksum(workbench_);
        screen_.DTaInput.setHeight(screen_.DTAFrame(1).enabled() ? inputHeightColours : inputHeight);
        if (screen_.ExtStaInput.visible() && seeking()) {
            workbench_.focus.moveTo(screen_.ExtStaInput);
        }
    }

    Workbench& workbench_;
    FrmEdid& screen_;
    const int base_;
    const int number_;
};

} // namespace

void ConvertDetailedTiminga(Workbench& workbench) {
    trapped(workbench, [&] { DescriptorDecoder(workbench).run(); });
}

} // namespace wb::report
