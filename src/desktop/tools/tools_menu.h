#pragma once

#include <QAction>
#include <QMenu>
#include <QPointer>

#include "desktop/tools/compare_window.h"
#include "desktop/tools/timing_button.h"
#include "desktop/tools/timing_calculator.h"
#include "desktop/windows/frame_addition.h"
#include "desktop/windows/main_view.h"

namespace wb::desktop {

/// The menu before Help, of what works beside the image and is no window of the program's own.
class ToolsMenu : public FrameAddition {
public:
    explicit ToolsMenu(MainView& frame);

    void refresh() override;

private:
    void chooseFile(const Workbench& workbench);
    void showDifferences(std::vector<Image> images);
    void showCalculator();

    MainView& frame_;
    QMenu& menu_;
    QAction& compare_;
    QAction& calculate_;
    TimingButtons buttons_;
    QPointer<CompareWindow> differences_;
    QPointer<TimingCalculator> calculator_;
};

} // namespace wb::desktop
