#include "desktop/windows/main_view.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QTime>
#include <QTimer>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>
#include <map>
#include <utility>

#include "core/input.h"
#include "core/workbench.h"
#include "desktop/base/text_codec.h"
#include "desktop/base/titles.h"
#include "desktop/drawing/icons.h"
#include "desktop/drawing/pictures.h"
#include "desktop/drawing/twips.h"
#include "desktop/views/menu_view.h"
#include "desktop/windows/child_view.h"
#include "desktop/windows/flow_layout.h"
#include "desktop/windows/idle_entries.h"
#include "desktop/windows/keys_window.h"
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

constexpr const char* maximisedSetting = "MainMaximised";

/// The screen that most of the rectangle is on, or null.
const QScreen* screenOf(const QRect& rectangle) {
    const QScreen* found = nullptr;
    int most = 0;
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect shared = screen->availableGeometry().intersected(rectangle);
        if (shared.width() * shared.height() > most) {
            most = shared.width() * shared.height();
            found = screen;
        }
    }
    return found;
}

/// The name of the one file that is dragged; empty where there are none or several.
QString droppedFile(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

} // namespace

MainView::MainView(Screen& screen, UserActions& actions) : ScreenView(screen, actions), window_(new MainWindow(*this)) {
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
    size_ = FrameSize(wholeSize());
    maximised_ = screen.workbench().platform.settings.read(maximisedSetting) == "1";
}

MainView::~MainView() {
    own_.clear();
    delete window_;
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

void MainView::makeMenus() {
    std::map<const Control*, QMenu*> menus;
    for (Control* control : screen()->controls()) {
        if (control->kind() != ControlKind::Menu || control->array() != nullptr) {
            continue;
        }
        QAction& action = makeEntry(*control).action();
        if (control->container() == nullptr) {
            auto* menu = new QMenu(window_);
            action.setMenu(menu);
            window_->menuBar()->addAction(&action);
            menus[control] = menu;
        } else {
            giveStandardKey(action, control->name());
            menus.at(control->container())->addAction(&action);
        }
    }
    makeKeysEntry(*menus.at(&frame().mnuHelp));
    windowMenu_ = menus.at(&frame().mnuWindow);
    // Minimised windows are the view's alone, and no call tells of them.
    QObject::connect(windowMenu_, &QMenu::aboutToShow, this, [this] {
        if (screen() != nullptr) {
            refreshStates();
        }
    });
}

void MainView::makeKeysEntry(QMenu& helpMenu) {
    QAction* entry = helpMenu.addAction("&Keys");
    QObject::connect(entry, &QAction::triggered, this, [this] {
        if (keys_.isNull()) {
            keys_ = new KeysWindow(*window_);
        }
        keys_->show();
        keys_->raise();
        keys_->activateWindow();
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
}

void MainView::tellWritten(const WrittenFile& file) {
    const QString name = fromFileNameBytes(file.name);
    const bool isData = file.kind == WrittenFile::Kind::DataFile;
    notice_->setText(QString(isData ? "Saved %1 (%2 bytes) at %3" : "Exported %1 (%2 bytes) at %3")
                         .arg(QFileInfo(name).fileName())
                         .arg(file.blocks * BlockScreen::cellCount)
                         .arg(QLocale::system().toString(QTime::currentTime(), QLocale::ShortFormat)));
    notice_->setToolTip(name.toHtmlEscaped());
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
    applyPosition();
    if (window_->isHidden() == screen()->shown()) {
        if (maximised_) {
            window_->setWindowState(Qt::WindowMaximized);
        }
        window_->setVisible(screen()->shown());
    }
}

void MainView::showPressed(const Control& button, bool pressed) {
    auto* widget = static_cast<QPushButton*>(viewOf(button)->widget());
    widget->setCheckable(true);
    widget->setChecked(pressed);
}

void MainView::refreshStates() {
    const Workbench& workbench = screen()->workbench();
    window_->setWindowModified(workbench.EDIDModified != flagFalse);
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

void MainView::applyPosition() {
    const FrmMain& model = frame();
    const Position asked{model.Left, model.Top, model.Width, model.Height};
    if (asked == shownPosition_) {
        return;
    }
    shownPosition_ = asked;
    const QRect geometry = geometryOf(asked);
    placing_ = true;
    window_->move(geometry.topLeft());
    window_->resize(geometry.size());
    placing_ = false;
    shownGeometry_ = QRect(window_->pos(), window_->size());
}

/// Where the window goes for that position: on a screen, and no larger than the free area there.
QRect MainView::geometryOf(const Position& asked) const {
    const QMargins decoration = likelyDecoration(*window_);
    const QPoint corner(toPixels(*window_, asked.left), toPixels(*window_, asked.top));
    const QSize size = size_.toPixels(asked.width, asked.height);
    const QRect outside(corner, size.grownBy(decoration));
    const QScreen* screen = screenOf(outside);
    const QRect room = (screen != nullptr ? screen : window_->screen())->availableGeometry();
    const QRect place = movedInside(outside, room);
    return {place.topLeft(), place.size().shrunkBy(decoration)};
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
        for (QMdiSubWindow* window : area_->subWindowList()) {
            static_cast<ChildWindow*>(window)->view().fit();
        }
    }
    return ScreenView::eventFilter(watched, event);
}

void MainView::notePositionSoon() {
    if (placing_ || std::exchange(willNote_, true)) {
        return;
    }
    // A window manager may tell of the size of a maximised window before it tells of the state.
    QMetaObject::invokeMethod(
        this, [this] { notePosition(); }, Qt::QueuedConnection);
}

void MainView::notePosition() {
    willNote_ = false;
    if (screen() == nullptr) {
        return;
    }
    FrmMain& model = frame();
    input::minimised(model, window_->isMinimized());
    noteMaximised();
    const QRect now(window_->pos(), window_->size());
    if (model.minimised || maximised_ || !window_->isVisible() || now == shownGeometry_) {
        return;
    }
    shownGeometry_ = now;
    input::placed(model, toTwips(*window_, now.left()), toTwips(*window_, now.top()), size_.widthInTwips(now.width()),
                  size_.heightInTwips(now.height()));
    shownPosition_ = {model.Left, model.Top, model.Width, model.Height};
}

/// Keeps in the settings whether the next start is to maximise the window; the place that goes with them is that of the
/// normal window.
void MainView::noteMaximised() {
    if (window_->isMinimized() || !window_->isVisible() || window_->isMaximized() == maximised_) {
        return;
    }
    maximised_ = !maximised_;
    screen()->workbench().platform.settings.write(maximisedSetting, maximised_ ? "1" : "0");
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

void MainView::openDropped(const QString& name) {
    act([name = fileNameBytes(name)](Screen& screen) { shell::dropDataFile(screen.workbench(), name); });
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!droppedFile(*event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void MainWindow::dropEvent(QDropEvent* event) {
    const QString name = droppedFile(*event->mimeData());
    if (!name.isEmpty()) {
        event->acceptProposedAction();
        view_.openDropped(name);
    }
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    view_.notePosition(); // which the model stores
    view_.askToClose();
}

void MainWindow::moveEvent(QMoveEvent* event) {
    QMainWindow::moveEvent(event);
    view_.notePositionSoon();
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    view_.notePositionSoon();
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) {
        view_.notePositionSoon();
    }
}

} // namespace wb::desktop
