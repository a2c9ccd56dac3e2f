#include "report/chromaticity.h"

#include <array>

#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/cells.h"
#include "report/chromaticity_layout.h"
#include "report/decoder.h"

namespace wb::report {

namespace {

/// By coordinate.
constexpr std::array<std::string_view, chromaticityFields.size()> coordinateWords = {
    "Red X - ", "Red Y - ", "Green X - ", "Green Y - ", "Blue X - ", "Blue Y - ", "White X - ", "White Y - ",
};

constexpr int bitCount = 10;

using Coordinates = std::array<std::string, chromaticityFields.size()>;

/// The last ten binary digits of a number.
std::string tenBits(std::int16_t number) {
    return rightPart(std::string(bitCount, '0') + HexToBinaryText(hexadecimal16(number)), std::size_t{bitCount});
}

/// Puts the coordinates of one axis, from `first` on, into one line of the report.
void putAxis(std::string& text, const Coordinates& texts, std::size_t first) {
    text.clear();
    for (std::size_t k = first; k < coordinateWords.size(); k += 2) {
        append(text, {k == first ? "" : " ", coordinateWords[k], texts[k]});
    }
}

Coordinates showCoordinates(Workbench& workbench, FrmEdid& screen) {
    Coordinates texts;
    for (std::size_t k = 0; k < coordinateWords.size(); ++k) {
        const SplitField& field = chromaticityFields[k];
        const int low = bits(byteAt(screen, field.lower.cell), field.lower.range);
        const int high = byteAt(screen, field.upper.cell);
        texts[k] = chromaText(ChromaBitsToFraction(workbench, high, low));
        screen.chkChroma(static_cast<int>(k)).setCaption({coordinateWords[k], texts[k]});
    }
    return texts;
}

} // namespace

std::string chromaText(double coordinate) {
    return formatNumber(coordinate, "##0.000");
}

double ChromaBitsToFraction(Workbench& workbench, int high, int low) {
    return trappedOr(workbench, 0.0, [&] {
        constexpr BitRange fraction{bitCount - 1, 0};
        constexpr double one = 1U << bitCount;
        return bits(int16From(high * 4 + low), fraction) / one;
    });
}

std::string FractionToChromaBits(Workbench& workbench, double value) {
    return trappedOr(workbench, std::string(), [&] {
        double rest = value;
        double weight = 0.5;
        std::string digits;
        for (int i = 0; i < bitCount; ++i) {
            // Strictly less: an exact power of two takes the lower bits and comes back by the rounding below.
            const bool set = weight < rest;
            digits += set ? '1' : '0';
            rest -= set ? weight : 0;
            weight /= 2;
        }
        if (rest * 10000 >= 5) {
            digits = tenBits(roundToInt16(strictNumber(BinaryTextToDecimal(workbench, digits)) + 1));
        }
        return digits;
    });
}

void ConvertChromaticity(Workbench& workbench) {
    decoder(workbench, [&](FrmEdid& screen) {
        const Coordinates texts = showCoordinates(workbench, screen);
        putAxis(workbench.ChromaText1, texts, 0);
        putAxis(workbench.ChromaText2, texts, 1);
        const int selected = screen.chkChroma.firstSelected();
        if (selected >= 0) {
            screen.ChromaValue.setText(texts[static_cast<std::size_t>(selected)]);
        }
    });
}

} // namespace wb::report
