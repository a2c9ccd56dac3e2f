#include "cea/checksum.h"

#include "cea/procedure.h"
#include "core/base/image_layout.h"
#include "core/edid_image.h"

namespace wb::cea {

void CalcCheckSum(Workbench& workbench) {
    procedure(workbench, [](const Procedure& run) {
        if (run.workbench.ModifyEDIDOn == flagFalse) {
            return;
        }
        int sum = 0;
        for (int i = 0; i < checksumCell; ++i) {
            sum += run.readByte(i);
            if (sum > 255) {
                sum -= 256;
            }
        }
        run.write(checksumCell, checksumTextFor(sum));
        noteChecksum(run.workbench, run.text(checksumCell));
    });
}

} // namespace wb::cea
