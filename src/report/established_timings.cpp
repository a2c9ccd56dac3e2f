#include "report/established_timings.h"

#include <array>

#include "core/base/bits.h"
#include "core/base/image_layout.h"
#include "core/base/text.h"
#include "core/cells.h"
#include "report/decoder.h"
#include "report/report_lines.h"

namespace wb::report {

namespace {

/// By check (VESA E-EDID Standard, Release A, section 3.8).
using TimingWords = std::array<std::string_view, 8>;

constexpr TimingWords timings1 = {
    "720 X 400 @ 70Hz (IBM,VGA)",      "720 X 400 @ 88Hz (IBM,XGA2)", "640 X 480 @ 60Hz (IBM,VGA)",
    "640 X 480 @ 67Hz (Apple,Mac II)", "640 X 480 @ 72Hz (VESA)",     "640 X 480 @ 75Hz (VESA)",
    "800 X 600 @ 56Hz (VESA)",         "800 X 600 @ 60Hz (VESA)",
};

constexpr TimingWords timings2 = {
    "800 X 600 @ 72Hz (VESA)",         "800 X 600 @ 75Hz (VESA)",
    "832 X 624 @ 75Hz (Apple,Mac II)", "1024 X 768 @ 87Hz(Interlaced 8514a, IBM)",
    "1024 X 768 @ 60Hz (VESA)",        "1024 X 768 @ 70Hz (VESA)",
    "1024 X 768 @ 75Hz (VESA)",        "1280 X 1024 @ 75Hz (VESA)",
};

constexpr std::string_view reservedTiming = "1152 X 870 @ 75Hz (Apple,Mac II)";

void convertTimings(Workbench& workbench, int cell, const TimingWords& words, ControlArray FrmEdid::*checksOf,
                    std::string& text) {
    controlDecoder(workbench, [&](FrmEdid& screen) {
        ControlArray& checks = screen.*checksOf;
        text.clear();
        checks.deselect();
        const int byte = byteAt(screen, cell);
        for (int i = 0; i < static_cast<int>(words.size()); ++i) {
            if (!bit(byte, establishedTimingBit(i))) {
                continue;
            }
            checks(i).setValue(1);
            if (!text.empty()) {
                text += crLf;
            }
            append(text, {blanks(reportIndent), words[static_cast<std::size_t>(i)]});
        }
    });
}

} // namespace

void ConvertEstablishedTiming1(Workbench& workbench) {
    convertTimings(workbench, cells::establishedTimings1, timings1, &FrmEdid::ET1, workbench.EstablishedTiming1Text);
}

void ConvertEstablishedTiming2(Workbench& workbench) {
    convertTimings(workbench, cells::establishedTimings2, timings2, &FrmEdid::ET2, workbench.EstablishedTiming2Text);
}

void ConvertReservedTiming(Workbench& workbench) {
    controlDecoder(workbench, [&](FrmEdid& screen) {
        workbench.ReservedTimingText.clear();
        screen.ET3(7).setValue(0);
        if (bit(byteAt(screen, cells::reservedTimings), reservedTimingBit)) {
            screen.ET3(7).setValue(1);
            join(workbench.ReservedTimingText, {blanks(reportIndent), reservedTiming});
        }
    });
}

} // namespace wb::report
