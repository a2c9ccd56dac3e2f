#include "core/edid_image.h"

#include "core/base/image.h"
#include "core/base/numbers.h"
#include "core/base/text.h"

namespace wb {

bool IsEDIDHeaderValid(std::string_view text) {
    return text.starts_with(imageHeader);
}

bool hasDescriptorMark(BlockScreen& screen, int base) {
    return joined({screen.txtEdit(base).text(), screen.txtEdit(base + 1).text(), screen.txtEdit(base + 2).text()}) ==
           "000000";
}

void noteChecksum(Workbench& workbench, const std::string& checksumText) {
    if (checksumText != workbench.Block0ChecksumAsLoaded) {
        workbench.EDIDModified = flagTrue;
    }
    if (checksumText != workbench.Block0ChecksumLast) {
        workbench.Block0ChecksumLast = checksumText;
        workbench.EDIDRedecodeNeeded = flagTrue;
    }
}

void noteLoaded(Workbench& workbench) {
    workbench.Block0ChecksumAsLoaded = workbench.frmEDID().txtEdit(checksumCell).text();
    workbench.Block0ChecksumLast = workbench.Block0ChecksumAsLoaded;
    if (workbench.history != nullptr) {
        workbench.history->imageLoaded();
    }
}

void noteSaved(Workbench& workbench) {
    workbench.EDIDModified = flagFalse;
    if (workbench.history != nullptr) {
        workbench.history->imageSaved();
    }
}

std::string checksumTextFor(int sum) {
    return ByteToHex2(sum == 0 ? 0 : 256 - sum);
}

void RecalcBlock0Checksum(Workbench& workbench) {
    trapped(workbench, [&] {
        if (workbench.ModifyEDIDOn == flagFalse) {
            return;
        }
        FrmEdid& screen = workbench.frmEDID();
        int sum = 0;
        for (int i = 0; i < checksumCell; ++i) {
            sum += byteAt(screen, i);
            if (sum > 255) {
                sum -= 256;
            }
        }
        screen.txtEdit(checksumCell).setText(checksumTextFor(sum));
        noteChecksum(workbench, screen.txtEdit(checksumCell).text());
    });
}

bool hasExtensionByDecimalText(Workbench& workbench) {
    return Value(workbench, workbench.frmEDID().txtEdit(extensionCountCell).text()) != 0;
}

std::int16_t timingOffset(const SharedVariables& variables) {
    return roundToInt16(strictNumber(variables.ExtDtdOffsetText));
}

} // namespace wb
