#include "report/checksum.h"

#include "core/base/numbers.h"
#include "core/edid_image.h"
#include "report/report_lines.h"

namespace wb::report {

std::int16_t ComputeCheckSum(Workbench& workbench) {
    std::int16_t sum = 0;
    trapped(workbench, [&] {
        for (int cell = 0; cell < BlockScreen::cellCount; ++cell) {
            sum = static_cast<std::int16_t>((sum + byteAt(workbench.frmEDID(), cell)) % 256);
        }
    });
    return sum;
}

void ConvertExtCheckSum(Workbench& workbench) {
    FrmEdid& screen = workbench.frmEDID();
    const int extensions = byteAt(screen, extensionCountCell);
    const std::string count = formatNumber(extensions, "0");
    screen.lbEDID(6).setCaption({"Extended Flag = ", count});
    screen.lbEDID(7).setCaption(ComputeCheckSum(workbench) != 0 ? "CheckSum Is Invalid" : "CheckSum OK");
    if (extensions != 0) {
        putLine(workbench.ExtensionFlagText, {"Extension EDID Block(s): ", count});
    } else {
        putLine(workbench.ExtensionFlagText, {"No Extension EDID Block(s)"});
    }
    putLine(workbench.Block0ChecksumText, {screen.lbEDID(7).caption()});
}

} // namespace wb::report
