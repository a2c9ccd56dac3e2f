#include "desktop/services/desktop_services.h"

#include <QCoreApplication>

#include "desktop/text_codec.h"

namespace wb::desktop {

DesktopServices::DesktopServices(ModelGate& gate, const SystemServices& system)
    : messageBoxes_(gate),
      dialogs_(gate, printer_),
      shell_(system.deviceTool),
      eventLoop_(gate),
      arranger_(gate),
      services_{messageBoxes_,     dialogs_,        printer_,
                settings_,         system.registry, system.operatingSystem,
                system.edidReader, shell_,          clock_,
                eventLoop_,        arranger_,       fileNameBytes(QCoreApplication::applicationDirPath())} {}

} // namespace wb::desktop
