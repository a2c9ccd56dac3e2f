#include "desktop/services/desktop_services.h"

#include <QCoreApplication>

#include "desktop/base/text_codec.h"

namespace wb::desktop {

DesktopServices::DesktopServices(ModelGate& gate, System& system)
    : messageBoxes_(gate),
      dialogs_(gate, printer_),
      eventLoop_(gate),
      arranger_(gate),
      services_{messageBoxes_, dialogs_,          printer_,
                settings_,     system.registry(), operatingSystem_,
                edidReader_,   system.shell(),    clock_,
                eventLoop_,    arranger_,         fileNameBytes(QCoreApplication::applicationDirPath())} {}

} // namespace wb::desktop
