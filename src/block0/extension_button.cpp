#include "block0/extension_button.h"

#include "core/base/image_layout.h"
#include "core/cells.h"

namespace wb::block0 {

bool UpdateExtensionButton(Workbench& workbench) {
    const bool extension = byteAt(workbench.frmEDID(), extensionCountCell) != 0;
    Control& button = workbench.frmMain().Command4;
    button.setEnabled(extension);
    button.setCaption(extension ? "See Ext Block" : "No Ext Block");
    return extension;
}

} // namespace wb::block0
