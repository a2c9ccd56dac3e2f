#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>

#include "core/version.h"
#include "desktop/base/report_text.h"
#include "desktop/base/text_codec.h"
#include "desktop/binder/desktop_view.h"
#include "desktop/drawing/pictures.h"
#include "desktop/services/desktop_services.h"
#include "shell/lifecycle.h"
#include "shell/startup.h"
#include "shell/wiring.h"

namespace {

/// The files that the command line names. Ends the program where help, the version or what there is not is asked for.
QStringList namedFiles(const QApplication& application) {
    QCommandLineParser parser;
    parser.setApplicationDescription("Reads, explains and edits the EDID of monitors.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument("file", "Data file to be opened, or image in any form to be imported.", "[file]");
    parser.process(application);
    return parser.positionalArguments();
}

} // namespace

int main(int argc, char** argv) {
    using namespace wb;

    QApplication application(argc, argv);
    QApplication::setApplicationName("EDID / DDC Field Workbench"); // also the title of boxes that have none
    QApplication::setApplicationVersion(programVersion());
    QApplication::setDesktopFileName("edid-workbench"); // by which a desktop knows whose window it is
    QApplication::setWindowIcon(desktop::programIcon());
    const QStringList files = namedFiles(application);
    // The model ends the program, not the last window, which at first is the splash.
    QApplication::setQuitOnLastWindowClosed(false);

    const auto system = desktop::System::make();
    desktop::ModelGate gate;
    desktop::DesktopServices services(gate, *system);
    Workbench workbench(services.services(), shell::wiring());
    desktop::DesktopView view(workbench, gate);
    services.arranger().area = [&view] { return view.mainView() != nullptr ? &view.mainView()->area() : nullptr; };

    services.printer().title = [&workbench] { return desktop::reportTitle(workbench.CurrentFileName); };

    QTimer::singleShot(0, &view, [&] {
        gate.run([&] { workbench.runAction([&] { shell::Main(workbench); }); });
        if (!files.isEmpty() && view.mainView() != nullptr) {
            view.mainView()->openNamed(files.first());
        }
    });
    return QApplication::exec();
}
