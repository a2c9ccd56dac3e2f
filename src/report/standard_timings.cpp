#include "report/standard_timings.h"

#include <array>

#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/cells.h"
#include "report/decoder.h"
#include "report/standard_timings_layout.h"

namespace wb::report {

namespace {

constexpr int unusedSize = 256; ///< pixels; what the size byte of an unused pair, 1, stands for

/// The height of a picture: width x factor / divisor.
struct Aspect {
    int factor;
    double divisor;
};

/// By aspect ratio code (VESA E-EDID Standard, Release A, section 3.9).
constexpr auto aspects = std::to_array<Aspect>({{10, 16}, {3, 4}, {4, 5}, {9, 16}});

void convertPairs(Workbench& workbench, FrmEdid& screen) {
    for (int i = 0; i < standardTimingCount; ++i) {
        const int sizeByte = byteAt(screen, standardTimingCell(i));
        const int rateByte = byteAt(screen, standardTimingCell(i) + 1);
        workbench.StandardTimingText(i) = standardTimingText(sizeByte, rateByte);
        screen.STOpt(i).setCaption(workbench.StandardTimingText(i));
    }
}

} // namespace

int aspectCode(int rateByte) {
    return bits(rateByte, aspectBits);
}

std::string standardTimingText(int sizeByte, int rateByte) {
    const int width = (sizeByte + widthOffset) * widthUnit;
    if (width == unusedSize) {
        return "Not Used";
    }
    const Aspect& aspect = aspects[static_cast<std::size_t>(aspectCode(rateByte))];
    const int height = roundToInt16(int16From(std::int64_t{width} * aspect.factor) / aspect.divisor);
    const int rate = bits(rateByte, rateBits) + lowestRate;
    return joined(
        {formatNumber(width, "####"), " X ", formatNumber(height, "####"), " @", formatNumber(rate, "##"), "Hz"});
}

void ConvertStandardTimings(Workbench& workbench) {
    const auto decode = [&](FrmEdid& screen) {
        workbench.StandardTimingText.create(standardTimingCount);
        for (int i = 0; i < standardTimingCount; ++i) {
            screen.STOpt(i).setCaption({});
        }
        convertPairs(workbench, screen);
        screen.STAOptb(aspectCode(byteAt(screen, screen.CurrentBlockBase))).setValue(1);
    };
    controlDecoder(workbench, decode, [&](FrmEdid& screen) {
        if (screen.STAInput.visible() && seeks(workbench)) {
            workbench.focus.moveTo(screen.STAInput);
        }
    });
}

} // namespace wb::report
