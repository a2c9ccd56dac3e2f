#include "desktop/windows/child_view.h"

#include <QCloseEvent>
#include <QMdiArea>
#include <QMenu>
#include <QMouseEvent>
#include <QScrollArea>
#include <QShortcut>
#include <QStyle>
#include <algorithm>

#include "core/input.h"
#include "core/workbench.h"
#include "desktop/base/titles.h"
#include "desktop/drawing/pictures.h"
#include "desktop/views/keys.h"
#include "desktop/windows/child_placing.h"
#include "desktop/windows/document_page.h"
#include "desktop/windows/find_bar.h"
#include "desktop/windows/frame_size.h"
#include "desktop/windows/report_pane.h"
#include "desktop/windows/screen_page.h"
#include "shell/go_to_byte.h"

namespace wb::desktop {

namespace {

/// The page of a screen, which scrolls where the window is too small for it.
class PageScroller : public QScrollArea {
public:
    explicit PageScroller(ScreenPage& page) {
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setWidgetResizable(true);
        setWidget(&page);
    }
    QSize sizeHint() const override { return widget()->sizeHint(); }
};

ScreenPage* makePage(Screen& screen, UserActions& actions) {
    if (screen.id() == ScreenId::Document) {
        return new DocumentPage(screen, actions);
    }
    return new ScreenPage(screen, actions);
}

} // namespace

ChildWindow::ChildWindow(ChildView& view) : view_(view) {
    // A click beside the controls activates the window and leaves the focus where it is.
    setFocusPolicy(Qt::NoFocus);
    setWindowIcon(programIcon());
    for (QAction* action : systemMenu()->actions()) {
        action->setShortcuts({}); // the menu of the frame has the key of Close
    }
}

void ChildWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    view_.askToClose();
}

void ChildWindow::keyPressEvent(QKeyEvent* event) {
    QMdiSubWindow::keyPressEvent(event); // has a use for it while the window is moved by the keyboard
    if (!event->isAccepted() && event->key() == Qt::Key_Escape) {
        view_.leavePanel();
    }
}

void ChildWindow::mousePressEvent(QMouseEvent* event) {
    QMdiSubWindow::mousePressEvent(event);
    if (!widget()->geometry().contains(event->pos())) {
        view_.activate();
    }
}

ChildView::ChildView(Screen& screen, UserActions& actions, QMdiArea& area)
    : ScreenView(screen, actions), window_(new ChildWindow(*this)), page_(makePage(screen, actions)) {
    addPage(*page_);
    window_->setWidget(inside());
    area.addSubWindow(window_);
    window_->hide();
    QObject::connect(window_, &QMdiSubWindow::windowStateChanged, this, [this] { this->actions().windowsSettled(); });
    addKey(Qt::Key_F6, [this] { changeSide(); });
}

/// The page, that of the report with what helps to read it.
QWidget* ChildView::inside() {
    auto* scroller = new PageScroller(*page_);
    if (screen()->id() != ScreenId::Document) {
        return scroller;
    }
    auto& report = static_cast<QPlainTextEdit&>(*page_->views().front()->widget());
    auto* pane = new ReportPane(*scroller, report, [this](int byte) {
        act([byte](Screen& target) { shell::goToByte(target.workbench(), byte); });
    });
    findBar_ = &pane->findBar();
    addKey(Qt::Key_F3, [this] { findBar_->next(); });
    addKey(Qt::SHIFT | Qt::Key_F3, [this] { findBar_->previous(); });
    return pane;
}

void ChildView::addKey(const QKeySequence& keys, const std::function<void()>& act) {
    auto* shortcut = new QShortcut(keys, window_);
    QObject::connect(shortcut, &QShortcut::activated, this, act);
}

void ChildView::find() {
    if (findBar_ != nullptr) {
        act([](Screen& target) { input::activate(target); });
        findBar_->open();
    }
}

ChildView::~ChildView() {
    delete window_;
}

void ChildView::detach() {
    ScreenView::detach();
    lentRoom_.giveBack();
}

void ChildView::refresh() {
    setTitle(*window_, screen()->caption(), ChangeMark::WhenModified);
    if (window_->isHidden() == screen()->shown()) {
        if (screen()->shown()) {
            takePlace();
        }
        window_->setVisible(screen()->shown());
    } else if (screen()->shown()) {
        lentRoom_.noteArrangement();
    }
}

void ChildView::refreshStates() {
    const bool showsImage = screen()->id() == ScreenId::Edid || screen()->id() == ScreenId::CeaExt;
    setModified(*window_, showsImage && screen()->workbench().EDIDModified != flagFalse);
    page_->refreshPicture();
}

QList<QMdiSubWindow*> ChildView::neighbours() const {
    QList<QMdiSubWindow*> windows = window_->mdiArea()->subWindowList(QMdiArea::StackingOrder);
    std::reverse(windows.begin(), windows.end());
    windows.removeIf([this](const QMdiSubWindow* window) {
        return window == window_ || window->isHidden() || window->isMinimized() || window->isMaximized();
    });
    return windows;
}

void ChildView::takePlace() {
    const QSize area = window_->mdiArea()->viewport()->size();
    if (window_->isMaximized() || window_->isMinimized()) {
        return;
    }
    if (chosen_.isValid()) { // it comes back to where it was
        window_->setGeometry(movedInside(window_->geometry(), QRect(QPoint(0, 0), area)));
        return;
    }
    const QList<QMdiSubWindow*> others = neighbours();
    QList<QRect> taken;
    for (const QMdiSubWindow* other : others) {
        taken.append(other->geometry());
    }
    const int step = window_->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, window_);
    window_->setGeometry(openingPlace(area, window_->sizeHint(), taken, step));
    chosen_ = window_->size();
    if (screen()->id() == ScreenId::HexCalculator) {
        lentRoom_.open(others);
    }
}

void ChildView::fit() {
    if (window_->size() != chosen_) {
        return;
    }
    const QSize wanted = window_->sizeHint();
    // With bars or without them: a size that brings bars which then change the size would do so for ever.
    const QSize area = window_->mdiArea()->maximumViewportSize();
    const QSize room = area - QSize(window_->x(), window_->y());
    chosen_ = wanted.boundedTo(room.expandedTo(area / 2));
    window_->resize(chosen_);
}

void ChildView::activate() {
    // Qt tells a change of the active child only; the focus may be on a button of the frame.
    const Control* holder = screen() != nullptr ? screen()->workbench().focus.current() : nullptr;
    if (screen() != nullptr && (holder == nullptr || &holder->screen() != screen())) {
        actions().activationArrived(*this, Qt::MouseFocusReason);
    }
}

void ChildView::leavePanel() {
    act([this](Screen& target) {
        Control* control = page_->otherSide(target.workbench().focus.current());
        if (control != nullptr && control->backColor() == CellColour::Field) {
            input::moveFocus(*control);
        }
    });
}

void ChildView::changeSide() {
    showFocus(*window_);
    act([this](Screen& target) {
        if (Control* control = page_->otherSide(target.workbench().focus.current())) {
            input::moveFocus(*control);
        }
    });
}

} // namespace wb::desktop
