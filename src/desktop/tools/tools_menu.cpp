#include "desktop/tools/tools_menu.h"

#include <QMenuBar>
#include <utility>

#include "adapters/cvt.h"
#include "desktop/base/text_codec.h"
#include "desktop/tools/image_file.h"

namespace wb::desktop {

ToolsMenu::ToolsMenu(MainView& frame)
    : frame_(frame),
      menu_(*new QMenu("&Tools", &frame.window())),
      compare_(*menu_.addAction("&Compare with File...")),
      calculate_(*menu_.addAction("&Timing Calculator")),
      buttons_(frame, calculate_) {
    menu_.setObjectName("menuTools");
    compare_.setObjectName("toolsCompare");
    calculate_.setObjectName("toolsTiming");
    calculate_.setShortcut(Qt::CTRL | Qt::Key_T);
    calculate_.setToolTip("Computes a timing by width, height and rate, and enters it");
    if (!adapters::missingCvtLibrary().empty()) {
        calculate_.setText("Timing Calculator (built without " + toUnicode(adapters::missingCvtLibrary()) + ")");
        calculate_.setEnabled(false);
    }
    frame.window().menuBar()->insertMenu(&frame.entry(frame.frame().mnuHelp), &menu_);
    QObject::connect(&compare_, &QAction::triggered, &frame,
                     [this] { frame_.act([this](Screen& screen) { chooseFile(screen.workbench()); }); });
    QObject::connect(&calculate_, &QAction::triggered, &frame, [this] { showCalculator(); });
    refresh();
}

void ToolsMenu::refresh() {
    compare_.setEnabled(frame_.screen()->workbench().EDIDLoaded != flagFalse);
    if (calculate_.isEnabled()) {
        buttons_.refresh();
    }
    if (!calculator_.isNull()) {
        calculator_->refresh();
    }
}

void ToolsMenu::chooseFile(const Workbench& workbench) {
    const std::string name = workbench.platform.dialogs.openFile({.title = "Compare with File",
                                                                  .folder = workbench.platform.programFolder,
                                                                  .filter = "EDID Images in any Form (*)|*",
                                                                  .name = {}});
    if (name.empty()) {
        return;
    }
    ImageFile file = readImageFile(name);
    if (file.images.empty()) {
        workbench.platform.messageBoxes.show({.text = fileNameBytes(file.refusal)});
        return;
    }
    // A window that opens inside a call would have the focus taken from it at the end.
    QMetaObject::invokeMethod(
        &frame_, [this, images = std::move(file.images)] { showDifferences(images); }, Qt::QueuedConnection);
}

void ToolsMenu::showDifferences(std::vector<Image> images) {
    if (differences_.isNull()) {
        differences_ = new CompareWindow(frame_);
    }
    differences_->show(std::move(images));
}

void ToolsMenu::showCalculator() {
    if (calculator_.isNull()) {
        calculator_ = new TimingCalculator(frame_);
    } else {
        calculator_->takeShownTiming();
    }
    calculator_->show();
    calculator_->raise();
    calculator_->activateWindow();
}

} // namespace wb::desktop
