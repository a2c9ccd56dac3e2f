#include "desktop/tools/timing_button.h"

#include <QGridLayout>
#include <QMdiArea>

#include "core/screens/block_screen.h"
#include "desktop/windows/child_view.h"

namespace wb::desktop {

namespace {

/// The place of an input box in the panel that it stands in.
struct GridPlace {
    int row;
    int column;
    int rows;
    int columns;
};

QToolButton* makeButton(QWidget& box, QAction& command) {
    auto* button = new QToolButton(box.parentWidget());
    button->setText("CVT...");
    button->setAccessibleName("Timing calculator");
    button->setToolTip(command.toolTip() + " (" + command.shortcut().toString(QKeySequence::NativeText) + ')');
    button->setFocusPolicy(Qt::NoFocus);
    QObject::connect(button, &QToolButton::clicked, &command, &QAction::trigger);
    auto* grid = static_cast<QGridLayout*>(box.parentWidget()->layout());
    GridPlace place{};
    grid->getItemPosition(grid->indexOf(&box), &place.row, &place.column, &place.rows, &place.columns);
    grid->removeWidget(&box);
    auto* row = new QHBoxLayout;
    row->addWidget(&box);
    row->addWidget(button);
    row->addStretch(1);
    grid->addLayout(row, place.row, place.column, place.rows, place.columns);
    QSizePolicy policy = box.sizePolicy();
    policy.setRetainSizeWhenHidden(true); // fields without a box of their own hide it
    box.setSizePolicy(policy);
    return button;
}

} // namespace

void TimingButtons::refresh() {
    for (QMdiSubWindow* window : frame_.area().subWindowList()) {
        const ChildView& view = static_cast<ChildWindow*>(window)->view();
        Screen* screen = view.screen();
        if (screen == nullptr || (screen->id() != ScreenId::Edid && screen->id() != ScreenId::CeaExt)) {
            continue;
        }
        QPointer<QToolButton>& button = buttons_[screen->id() == ScreenId::Edid ? 0 : 1];
        if (button.isNull()) {
            button = makeButton(*view.viewOf(static_cast<BlockScreen*>(screen)->DTInput)->widget(), command_);
        }
    }
}

} // namespace wb::desktop
