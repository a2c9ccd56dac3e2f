#include "desktop/windows/main_view.h"

#include <QApplication>
#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTime>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "core/input.h"
#include "core/workbench.h"
#include "desktop/base/own_focus.h"
#include "desktop/base/text_codec.h"
#include "desktop/base/titles.h"
#include "desktop/base/tool_tip.h"
#include "desktop/drawing/icons.h"
#include "desktop/drawing/pictures.h"
#include "desktop/views/menu_view.h"
#include "desktop/windows/child_view.h"
#include "desktop/windows/flow_layout.h"
#include "desktop/windows/idle_entries.h"
#include "desktop/windows/main_window.h"
#include "desktop/windows/screen_page.h"
#include "desktop/windows/visibility.h"
#include "shell/lifecycle.h"

namespace wb::desktop {

namespace {

struct StandardKey {
    std::string_view entry;
    QKeySequence::StandardKey key;
};

constexpr StandardKey standardKeys[] = {
    {"mnuFileNew", QKeySequence::New},   {"mnuFileOpen", QKeySequence::Open},     {"mnuFileClose", QKeySequence::Close},
    {"mnuFileSave", QKeySequence::Save}, {"mnuFileSaveAs", QKeySequence::SaveAs}, {"mnuFilePrint", QKeySequence::Print},
    {"mnuFileExit", QKeySequence::Quit}, {"Info", QKeySequence::HelpContents},
};

void giveStandardKey(QAction& action, std::string_view entry) {
    for (const StandardKey& standard : standardKeys) {
        if (standard.entry == entry) {
            QList<QKeySequence> keys = QKeySequence::keyBindings(standard.key);
            keys.removeAll(QKeySequence(Qt::CTRL | Qt::Key_F4)); // which closes the child alone
            action.setShortcuts(keys);
        }
    }
}

} // namespace

MainView::MainView(Screen& screen, UserActions& actions)
    : ScreenView(screen, actions), window_(new MainWindow(*this)), position_(*this, *window_) {
    window_->setObjectName("frmMain");
    window_->setWindowIcon(programIcon());
    auto* inside = new QWidget;
    auto* column = new QVBoxLayout(inside);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    window_->setCentralWidget(inside);
    makeMenus();
    makeToolBar();
    makeButtons(*column);
    makeArea(*column);
    makeNotice();
    makeClock();
    for (const auto& view : own_) {
        view->refresh();
    }
    position_.begin(wholeSize());
}

MainView::~MainView() {
    additions_.clear();
    own_.clear();
    delete window_;
}

QMainWindow& MainView::window() {
    return *window_;
}

FrmMain& MainView::frame() const {
    return static_cast<FrmMain&>(*screen());
}

const Screen* MainView::activeChild() const {
    return screen() != nullptr ? screen()->workbench().windows.activeChild() : nullptr;
}

MenuView& MainView::makeEntry(Control& control) {
    own_.push_back(std::make_unique<MenuView>(control, actions()));
    add(*own_.back());
    return static_cast<MenuView&>(*own_.back());
}

QMenu& MainView::menu(const Control& top) const {
    return *entry(top).menu();
}

QAction& MainView::entry(const Control& control) const {
    return static_cast<MenuView&>(*viewOf(control)).action();
}

void MainView::attach(std::unique_ptr<FrameAddition> addition) {
    additions_.push_back(std::move(addition));
}

void MainView::fitChildren() {
    for (QMdiSubWindow* window : area_->subWindowList()) {
        static_cast<ChildWindow*>(window)->view().fit();
    }
}

void MainView::giveFocusBack() {
    QWidget* holder = QApplication::focusWidget();
    if (keepsOwnFocus(holder)) {
        holder->clearFocus();
    }
    actions().windowsSettled();
}

void MainView::refreshAdditions() {
    if (screen() == nullptr) {
        return;
    }
    for (const auto& addition : additions_) {
        addition->refresh();
    }
}

void MainView::makeMenus() {
    for (Control* control : screen()->controls()) {
        if (control->kind() != ControlKind::Menu || control->array() != nullptr) {
            continue;
        }
        QAction& action = makeEntry(*control).action();
        if (control->container() == nullptr) {
            action.setMenu(new QMenu(window_));
            window_->menuBar()->addAction(&action);
        } else {
            giveStandardKey(action, control->name());
            menu(*control->container()).addAction(&action);
        }
    }
    windowMenu_ = &menu(frame().mnuWindow);
    // Minimised windows are the view's alone, and no call tells of them.
    QObject::connect(windowMenu_, &QMenu::aboutToShow, this, [this] {
        if (screen() != nullptr) {
            refreshStates();
        }
    });
}

void MainView::makeToolBar() {
    QToolBar* bar = window_->addToolBar("Tool bar");
    bar->setObjectName("tbToolBar");
    bar->setMovable(false);
    ControlArray& buttons = frame().tbToolBar;
    int index = buttons.first();
    for (const FrmMain::ToolBarKey& key : FrmMain::toolBarKeys) {
        QAction& action = makeEntry(buttons(index++)).action();
        action.setIcon(toolBarIcon(key.picture));
        action.setToolTip(toUnicode(key.toolTip));
        bar->addAction(&action);
    }
}

void MainView::makeButtons(QVBoxLayout& column) {
    auto* buttons = new QWidget;
    auto* flow = new FlowLayout(buttons);
    for (const Place& place : layoutOf(ScreenId::Main).at("").places) {
        own_.push_back(makeView(controlAt(*screen(), place.name, place.first), place, actions()));
        add(*own_.back());
        QWidget* widget = own_.back()->widget();
        if (own_.back()->control()->kind() == ControlKind::Button) {
            flow->addWidget(widget);
        } else {
            window_->statusBar()->addWidget(widget, 1);
        }
    }
    column.addWidget(buttons);
}

void MainView::makeArea(QVBoxLayout& column) {
    area_ = new QMdiArea;
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setFocusPolicy(Qt::NoFocus);
    area_->viewport()->installEventFilter(this);
    column.addWidget(area_, 1);
    QObject::connect(area_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* window) {
        auto* child = dynamic_cast<ChildWindow*>(window);
        // Qt tells it again when the frame itself becomes active.
        if (child != nullptr && child->view().screen() != activeChild()) {
            actions().activationArrived(child->view(), Qt::ActiveWindowFocusReason);
        }
    });
}

void MainView::makeNotice() {
    notice_ = new QLabel;
    notice_->setTextFormat(Qt::PlainText);
    notice_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long name must not widen the frame
    window_->statusBar()->addWidget(notice_, 2);
    notice_->hide();
}

void MainView::tellWritten(const WrittenFile& file) {
    const QString name = fromFileNameBytes(file.name);
    const bool isData = file.kind == WrittenFile::Kind::DataFile;
    notice_->setText(QString(isData ? "Saved %1 (%2 bytes) at %3" : "Exported %1 (%2 bytes) at %3")
                         .arg(QFileInfo(name).fileName(), QString::number(file.blocks * BlockScreen::cellCount),
                              QLocale::system().toString(QTime::currentTime(), QLocale::ShortFormat)));
    notice_->setToolTip(toolTipOf(name));
    notice_->show();
}

void MainView::tell(const QString& notice) {
    notice_->setText(notice);
    notice_->setToolTip({});
    notice_->setVisible(!notice.isEmpty()); // the byte beside it has the room
}

void MainView::makeClock() {
    auto* clock = new QLabel;
    clock->setAccessibleName("Clock");
    window_->statusBar()->addPermanentWidget(clock);
    const auto show = [clock] {
        clock->setText(QLocale::system().toString(QTime::currentTime(), QLocale::ShortFormat));
    };
    show();
    auto* timer = new QTimer(clock);
    QObject::connect(timer, &QTimer::timeout, clock, show);
    constexpr int second = 1000;
    timer->start(second);
}

void MainView::refresh() {
    setTitle(*window_, screen()->caption(), ChangeMark::WhenModified);
    position_.apply();
    if (window_->isHidden() == screen()->shown()) {
        if (screen()->shown()) {
            position_.showWindow();
        } else {
            window_->hide();
        }
    }
}

void MainView::showPressed(const Control& button, bool pressed) {
    auto* widget = static_cast<QPushButton*>(viewOf(button)->widget());
    widget->setCheckable(true);
    widget->setChecked(pressed);
}

void MainView::refreshStates() {
    const Workbench& workbench = screen()->workbench();
    setModified(*window_, workbench.EDIDModified != flagFalse);
    showPressed(frame().Command2, workbench.ModifyEDIDOn != flagFalse);
    showPressed(frame().Command3, workbench.AutoCellSeekOn != flagFalse);
    const QList<QMdiSubWindow*> children = area_->subWindowList();
    const bool icons = std::any_of(children.begin(), children.end(), [](const QMdiSubWindow* child) {
        return child->isMinimized() && !child->isHidden();
    });
    for (const auto& view : own_) {
        if (auto* entry = dynamic_cast<MenuView*>(view.get())) {
            entry->setIdle(isIdle(*entry->control(), icons));
        }
    }
}

/// The size in which the whole of block 0 shows.
QSize MainView::wholeSize() {
    const std::unique_ptr<Screen> example = screen()->workbench().makeScreen(ScreenId::Edid);
    const ChildView child(*example, actions(), *area_);
    const int border = 2 * area_->frameWidth();
    const QSize inside = child.subWindow().sizeHint() + QSize(border, border);
    const QSize least = window_->minimumSizeHint();
    const int around = least.height() - area_->minimumSizeHint().height();
    return {std::max(inside.width(), least.width()), inside.height() + around};
}

bool MainView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && watched == area_->viewport()) {
        fitChildren();
    }
    return ScreenView::eventFilter(watched, event);
}

void MainView::listChildren(const std::vector<ScreenView*>& children) {
    for (QAction* entry : std::exchange(childEntries_, {})) {
        windowMenu_->removeAction(entry);
        entry->deleteLater(); // it may be the one whose choice has led here
    }
    if (!children.empty()) {
        childEntries_.push_back(windowMenu_->addSeparator());
    }
    int number = 1;
    for (ScreenView* child : children) {
        const QString title = titleText(child->screen()->caption()).replace('&', QLatin1String("&&"));
        QAction* entry = windowMenu_->addAction(QString("&%1 %2").arg(number++).arg(title));
        entry->setCheckable(true);
        entry->setChecked(child == children.front());
        QObject::connect(entry, &QAction::triggered, child, [child, entry] {
            entry->setChecked(!entry->isChecked()); // the model decides
            child->act([child](Screen& screen) {
                restoreWindowOf(child->window()); // the model knows no icons
                input::activate(screen);
            });
        });
        childEntries_.push_back(entry);
    }
}

void MainView::openNamed(const QString& name) {
    for (const auto& addition : additions_) {
        if (addition->openNamed(name)) {
            return;
        }
    }
}

void MainView::openDropped(const QString& name) {
    act([name = fileNameBytes(name)](Screen& screen) { shell::dropDataFile(screen.workbench(), name); });
}

} // namespace wb::desktop
