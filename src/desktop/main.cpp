#include <QApplication>
#include <QTimer>

#include "desktop/binder/desktop_view.h"
#include "desktop/drawing/pictures.h"
#include "desktop/services/desktop_services.h"
#include "platform/linux/device_tool.h"
#include "platform/linux/sysfs_registry.h"
#include "platform/stored_edid_system.h"
#include "shell/startup.h"
#include "shell/wiring.h"

int main(int argc, char** argv) {
    using namespace wb;

    QApplication application(argc, argv);
    QApplication::setApplicationName("edid-workbench");
    QApplication::setWindowIcon(desktop::programIcon());
    // The model ends the program, not the last window, which at first is the splash.
    QApplication::setQuitOnLastWindowClosed(false);

    const char* const sysfs = "/sys";
    platform::linux_system::SysfsRegistry registry(sysfs);
    platform::StoredEdidSystem system;
    platform::NoDirectReader reader;
    platform::linux_system::DeviceTool deviceTool(sysfs);

    desktop::ModelGate gate;
    desktop::DesktopServices services(gate, {registry, system, reader, deviceTool});
    Workbench workbench(services.services(), shell::wiring());
    desktop::DesktopView view(workbench, gate);
    services.arranger().area = [&view] { return view.mainView() != nullptr ? &view.mainView()->area() : nullptr; };

    QTimer::singleShot(0, &view, [&] { gate.run([&] { workbench.runAction([&] { shell::Main(workbench); }); }); });
    return QApplication::exec();
}
