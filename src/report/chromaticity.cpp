#include "report/chromaticity.h"

#include <array>

#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/edid_image.h"

namespace wb::report {

namespace {

/// A coordinate of ten bits: its two low ones share a cell with those of three others.
struct Coordinate {
    std::string_view words;
    int lowCell, lowMask, lowDivisor;
    int highCell;
};

/// VESA E-EDID Standard, Release A, section 3.7.
constexpr std::array<Coordinate, 8> coordinates = {{
    {"Red X - ", 25, 192, 64, 27},
    {"Red Y - ", 25, 48, 16, 28},
    {"Green X - ", 25, 12, 4, 29},
    {"Green Y - ", 25, 3, 1, 30},
    {"Blue X - ", 26, 192, 64, 31},
    {"Blue Y - ", 26, 48, 16, 32},
    {"White X - ", 26, 12, 4, 33},
    {"White Y - ", 26, 3, 1, 34},
}};

constexpr std::size_t bitCount = 10;

using Texts = std::array<std::string, coordinates.size()>;

/// The last ten binary digits of a number.
std::string tenBits(std::int16_t number) {
    return rightPart(std::string(bitCount, '0') + HexToBinaryText(hexadecimal16(number)), bitCount);
}

/// The coordinates of one axis, from `first` on, in one line of the report.
std::string axisLine(const Texts& texts, std::size_t first) {
    std::string result;
    for (std::size_t k = first; k < coordinates.size(); k += 2) {
        result += (k == first ? "" : " ") + std::string(coordinates[k].words) + texts[k];
    }
    return result;
}

Texts showCoordinates(Workbench& workbench, FrmEdid& screen) {
    Texts texts;
    for (std::size_t k = 0; k < coordinates.size(); ++k) {
        const Coordinate& coordinate = coordinates[k];
        const int low = (byteAt(screen, coordinate.lowCell) & coordinate.lowMask) / coordinate.lowDivisor;
        const int high = byteAt(screen, coordinate.highCell);
        texts[k] = chromaText(ChromaBitsToFraction(workbench, high, low));
        screen.chkChroma(static_cast<int>(k)).setCaption(std::string(coordinate.words) + texts[k]);
    }
    return texts;
}

} // namespace

std::string chromaText(double coordinate) {
    return formatNumber(coordinate, "##0.000");
}

double ChromaBitsToFraction(Workbench& workbench, int high, int low) {
    return trappedOr(workbench, 0.0, [&] {
        const std::string bits = tenBits(int16From(high * 4 + low));
        double result = 0;
        double weight = 0.5;
        for (const char bit : bits) {
            result += bit == '1' ? weight : 0;
            weight /= 2;
        }
        return result;
    });
}

std::string FractionToChromaBits(Workbench& workbench, double value) {
    return trappedOr(workbench, std::string(), [&] {
        double rest = value;
        double weight = 0.5;
        std::string bits;
        for (std::size_t i = 0; i < bitCount; ++i) {
            // Strictly less: an exact power of two takes the lower bits and comes back by the rounding below.
            const bool set = weight < rest;
            bits += set ? '1' : '0';
            rest -= set ? weight : 0;
            weight /= 2;
        }
        if (rest * 10000 >= 5) {
            bits = tenBits(roundToInt16(strictNumber(BinaryTextToDecimal(workbench, bits)) + 1));
        }
        return bits;
    });
}

void ConvertChromaticity(Workbench& workbench) {
    trapped(workbench, [&] {
        FrmEdid& screen = workbench.frmEDID();
        const Texts texts = showCoordinates(workbench, screen);
        workbench.ChromaText1 = axisLine(texts, 0);
        workbench.ChromaText2 = axisLine(texts, 1);
        const int selected = screen.chkChroma.firstSelected();
        if (selected >= 0) {
            screen.ChromaValue.setText(texts[static_cast<std::size_t>(selected)]);
        }
        RecalcBlock0Checksum(workbench);
    });
}

} // namespace wb::report
