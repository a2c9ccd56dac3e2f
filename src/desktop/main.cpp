#include <QApplication>
#include <QTimer>

#include "desktop/base/report_text.h"
#include "desktop/binder/desktop_view.h"
#include "desktop/drawing/pictures.h"
#include "desktop/services/desktop_services.h"
#include "shell/startup.h"
#include "shell/wiring.h"

int main(int argc, char** argv) {
    using namespace wb;

    QApplication application(argc, argv);
    QApplication::setApplicationName("EDID / DDC Field Workbench"); // also the title of boxes that have none
    QApplication::setWindowIcon(desktop::programIcon());
    // The model ends the program, not the last window, which at first is the splash.
    QApplication::setQuitOnLastWindowClosed(false);

    const auto system = desktop::System::make();
    desktop::ModelGate gate;
    desktop::DesktopServices services(gate, *system);
    Workbench workbench(services.services(), shell::wiring());
    desktop::DesktopView view(workbench, gate);
    services.arranger().area = [&view] { return view.mainView() != nullptr ? &view.mainView()->area() : nullptr; };

    services.printer().title = [&workbench] { return desktop::reportTitle(workbench.CurrentFileName); };

    QTimer::singleShot(0, &view, [&] { gate.run([&] { workbench.runAction([&] { shell::Main(workbench); }); }); });
    return QApplication::exec();
}
