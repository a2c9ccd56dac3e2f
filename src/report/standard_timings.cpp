#include "report/standard_timings.h"

#include <array>

#include "core/base/numbers.h"
#include "core/edid_image.h"

namespace wb::report {

namespace {

constexpr int timingCount = 8;
constexpr int unusedSize = 256; ///< pixels; what the size byte of an unused pair, 1, stands for

/// The height of a picture: width x factor / divisor.
struct Aspect {
    int factor;
    double divisor;
};

/// By aspect ratio code (VESA E-EDID Standard, Release A, section 3.9).
constexpr std::array<Aspect, 4> aspects = {{{10, 16}, {3, 4}, {4, 5}, {9, 16}}};

void convertPairs(Workbench& workbench, FrmEdid& screen) {
    for (int i = 0; i < timingCount; ++i) {
        const int sizeByte = byteAt(screen, 38 + 2 * i);
        const int rateByte = byteAt(screen, 39 + 2 * i);
        workbench.StandardTimingText(i) = standardTimingText(sizeByte, rateByte);
        screen.STOpt(i).setCaption(workbench.StandardTimingText(i));
    }
}

} // namespace

int aspectCode(int rateByte) {
    return (rateByte & 192) / 64;
}

std::string standardTimingText(int sizeByte, int rateByte) {
    const int width = (sizeByte + 31) * 8;
    if (width == unusedSize) {
        return "Not Used";
    }
    const Aspect& aspect = aspects[static_cast<std::size_t>(aspectCode(rateByte))];
    const int height = roundToInt16(int16From(std::int64_t{width} * aspect.factor) / aspect.divisor);
    const int rate = (rateByte & 63) + 60;
    return formatNumber(width, "####") + " X " + formatNumber(height, "####") + " @" + formatNumber(rate, "##") + "Hz";
}

void ConvertStandardTimings(Workbench& workbench) {
    trapped(workbench, [&] {
        FrmEdid& screen = workbench.frmEDID();
        workbench.StandardTimingText.create(timingCount);
        for (int i = 0; i < timingCount; ++i) {
            screen.STOpt(i).setCaption({});
        }
        screen.InFocusDispatch = flagTrue;
        convertPairs(workbench, screen);
        screen.STAOptb(aspectCode(byteAt(screen, screen.CurrentBlockBase))).setValue(1);
        RecalcBlock0Checksum(workbench);
        screen.InFocusDispatch = flagFalse;
        if (screen.STAInput.visible() && seeks(workbench)) {
            workbench.focus.moveTo(screen.STAInput);
        }
    });
}

} // namespace wb::report
