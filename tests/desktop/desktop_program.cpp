#include "desktop/desktop_program.h"

#include <QApplication>

#include "core/base/text.h"
#include "core/input.h"
#include "desktop/services/message_boxes.h"
#include "files/image_loading.h"
#include "shell/startup.h"
#include "shell/wiring.h"
#include "support/temporary_folder.h"

namespace wb::test {

namespace {

/// The services of the headless platform, with another arranger, and other boxes if there are any.
platform::Services with(const platform::Services& base, platform::MessageBoxes* boxes,
                        platform::WindowArranger& arranger) {
    return {boxes != nullptr ? *boxes : base.messageBoxes,
            base.dialogs,
            base.printer,
            base.settings,
            base.registry,
            base.operatingSystem,
            base.edidReader,
            base.shell,
            base.clock,
            base.eventLoop,
            arranger,
            base.programFolder};
}

} // namespace

DesktopProgram::DesktopProgram(bool startNow, Boxes kind)
    : realBoxes_(kind == Boxes::Real ? std::make_unique<desktop::QtMessageBoxes>(gate) : nullptr),
      services_(with(platform.services(), realBoxes_.get(), arranger_)),
      workbench(services_, shell::wiring()),
      view(workbench, gate) {
    arranger_.area = [this] { return view.mainView() != nullptr ? &frame().area() : nullptr; };
    platform.onBox = [this](const std::string& text) { boxes.push_back(text); };
    if (startNow) {
        start();
    }
}

void DesktopProgram::start() {
    act([this] { workbench.runAction([this] { shell::Main(workbench); }); });
}

namespace {

/// Without a window manager nobody makes a window active again when a menu has closed.
void activateSomeWindow() {
    const QWidget* active = QApplication::activeWindow();
    const bool alive = active != nullptr && active->isVisible() && active->windowType() != Qt::Popup;
    if (alive || QApplication::activePopupWidget() != nullptr) {
        return;
    }
    QWidget* wanted = QApplication::activeModalWidget();
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (wanted == nullptr && window->isVisible() && window->objectName() == "frmMain") {
            wanted = window;
        }
    }
    if (wanted != nullptr) {
        wanted->activateWindow();
    }
}

} // namespace

void DesktopProgram::settle() {
    constexpr int rounds = 3; // an event may post another
    for (int i = 0; i < rounds; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        activateSomeWindow();
    }
}

void DesktopProgram::act(const std::function<void()>& action) {
    gate.run(action);
    settle();
}

void DesktopProgram::sync() {
    act([] {});
}

QWidget* DesktopProgram::widget(const Control& control) const {
    desktop::ControlView* found = view.viewOf(control);
    return found != nullptr ? found->widget() : nullptr;
}

void DesktopProgram::newImage(bool extension) {
    platform.queueAnswer(extension ? platform::Answer::Yes : platform::Answer::No);
    act([this] { input::choose(workbench.frmMain().mnuFileNew); });
    boxes.clear();
}

void DesktopProgram::openSample(const std::string& name) {
    const std::string bytes = TemporaryFolder::read(WORKBENCH_SOURCE_DIR "/samples/" + name);
    newImage(bytes.size() > 128);
    act([&] {
        for (std::size_t i = 0; i < bytes.size() && i < 256; ++i) {
            workbench.EDIDCells(static_cast<int>(i)) = ByteToHex2(static_cast<unsigned char>(bytes[i]));
        }
        files::LoadBlock0Cells(workbench);
        if (bytes.size() > 128) {
            files::LoadExtensionCells(workbench);
        }
    });
}

} // namespace wb::test
