#include "desktop/services/shell.h"

#include <QProcess>

#include "desktop/base/text_codec.h"

namespace wb::desktop {

bool QtShell::start(const platform::ShellCommand& command) {
    if (command.program == platform::deviceToolName) {
        return deviceTool_.start(command);
    }
    return QProcess::startDetached(fromFileNameBytes(command.program),
                                   QProcess::splitCommand(toUnicode(command.arguments)),
                                   fromFileNameBytes(command.folder));
}

} // namespace wb::desktop
