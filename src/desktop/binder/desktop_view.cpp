#include "desktop/binder/desktop_view.h"

#include <QApplication>
#include <QMdiArea>
#include <QShortcut>
#include <utility>

#include "core/input.h"
#include "desktop/tools/additions.h"
#include "desktop/windows/child_view.h"
#include "desktop/windows/modal_view.h"
#include "desktop/windows/splash_view.h"
#include "shell/history.h"

namespace wb::desktop {

DesktopView::DesktopView(Workbench& workbench, ModelGate& gate)
    : workbench_(workbench),
      gate_(gate),
      focus_(workbench, gate, [this](const Control& control) { return viewOf(control); }),
      reading_(workbench),
      cellNames_([this](const Control& control) { return viewOf(control); }) {
    reading_.listen(*this, [this] { cellNames_.refresh(workbench_, reading_); });
    workbench_.view = this;
    shell::keepHistory(workbench_);
    gate_.setObserver(this);
    makeMissing();
}

DesktopView::~DesktopView() {
    workbench_.view = nullptr;
    gate_.setObserver(nullptr);
    dropGone();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    // The frame's window holds those of its children.
    std::unique_ptr<ScreenView> frame;
    for (auto& [screen, view] : screens_) {
        if (view.get() == main_) {
            frame = std::move(view);
        }
    }
    screens_.clear();
}

ScreenView* DesktopView::viewOf(const Screen& screen) const {
    const auto found = screens_.find(&screen);
    return found == screens_.end() ? nullptr : found->second.get();
}

ControlView* DesktopView::viewOf(const Control& control) const {
    ScreenView* screen = viewOf(control.screen());
    return screen != nullptr ? screen->viewOf(control) : nullptr;
}

void DesktopView::controlChanged(Control& control) {
    if (ScreenView* view = viewOf(control.screen())) {
        view->markStale(control);
    }
}

void DesktopView::screenChanged(Screen&) {
    windowsStale_ = true;
}

void DesktopView::screenLoaded(Screen&) {
    windowsStale_ = true;
}

void DesktopView::screenUnloaded(Screen& screen) {
    wayBack_.forget(screen);
    const auto found = screens_.find(&screen);
    if (found != screens_.end()) {
        found->second->detach();
        if (found->second.get() == main_) {
            main_ = nullptr;
        }
        gone_.push_back(std::move(found->second));
        screens_.erase(found);
    }
    windowsStale_ = true;
}

void DesktopView::windowsChanged() {
    windowsStale_ = true;
}

void DesktopView::focusChanged() {
    focusMoved_ = true;
    wayBack_.focusMoved(workbench_.focus.current());
}

void DesktopView::fileWritten(const WrittenFile& file) {
    if (main_ != nullptr) {
        main_->tellWritten(file);
    }
}

void DesktopView::callReturned() {
    showChanges();
    if (std::exchange(focusMoved_, false)) {
        focus_.follow();
    } else {
        focus_.align();
    }
    if (workbench_.ended) {
        QApplication::quit();
    }
}

void DesktopView::eventLoopStarts() {
    showChanges();
}

void DesktopView::showChanges() {
    reading_.noteCall(); // before the pictures, which are made once then
    dropGone();
    makeMissing();
    for (const auto& [screen, view] : screens_) {
        view->refreshControls();
    }
    for (const auto& [screen, view] : screens_) {
        view->refreshStates();
    }
    if (windowsStale_) {
        windowsStale_ = false;
        for (const auto& [screen, view] : screens_) {
            view->refresh();
        }
        arrangeChildren();
    }
    if (main_ != nullptr) {
        main_->refreshAdditions();
    }
}

void DesktopView::dropGone() {
    for (auto& view : gone_) {
        view->window().hide();
        view.release()->deleteLater(); // an event of one of its widgets may still be on its way out
    }
    gone_.clear();
}

void DesktopView::makeMissing() {
    for (Screen* screen : workbench_.loadedInOrder()) {
        if (viewOf(*screen) == nullptr) {
            screens_[screen] = makeView(*screen);
            reading_.forget();
        }
    }
}

std::unique_ptr<ScreenView> DesktopView::makeView(Screen& screen) {
    if (screen.id() == ScreenId::Main) {
        auto view = std::make_unique<MainView>(screen, *this);
        main_ = view.get();
        addTools(*view);
        addKey(Qt::ALT | Qt::Key_0, [this] { goBack(); });
        addKey(Qt::CTRL | Qt::Key_F4, [this] { closeActiveChild(); });
        addKey(QKeySequence::Find, [this] { findInReport(); });
        return view;
    }
    if (screen.id() == ScreenId::Splash) {
        return std::make_unique<SplashView>(screen, *this);
    }
    if (screen.isChild() && main_ != nullptr) {
        return std::make_unique<ChildView>(screen, *this, main_->area());
    }
    return std::make_unique<ModalView>(screen, *this, main_ != nullptr ? &main_->window() : nullptr);
}

void DesktopView::addKey(const QKeySequence& keys, const std::function<void()>& act) {
    auto* shortcut = new QShortcut(keys, &main_->window());
    QObject::connect(shortcut, &QShortcut::activated, this, act);
}

void DesktopView::closeActiveChild() {
    if (const Screen* child = workbench_.windows.activeChild()) {
        viewOf(*child)->askToClose();
    }
}

void DesktopView::findInReport() {
    const Screen* report = workbench_.loaded(ScreenId::Document);
    if (report != nullptr && report->shown()) {
        static_cast<ChildView*>(viewOf(*report))->find();
    }
}

void DesktopView::goBack() {
    focus_.settle();
    gate_.run([this] {
        if (Control* cell = wayBack_.cell()) {
            input::moveFocus(*cell);
        }
    });
}

/// Puts the child windows in the model's order and activates the first.
void DesktopView::arrangeChildren() {
    if (main_ == nullptr) {
        return;
    }
    std::vector<ScreenView*> children;
    for (const Screen* screen : workbench_.windows.children()) {
        children.push_back(viewOf(*screen));
    }
    for (auto child = children.rbegin(); child != children.rend(); ++child) {
        (*child)->window().raise();
    }
    QMdiSubWindow* active = children.empty() ? nullptr : &static_cast<ChildView*>(children.front())->subWindow();
    if (main_->area().activeSubWindow() != active) {
        main_->area().setActiveSubWindow(active);
    }
    main_->listChildren(children);
}

} // namespace wb::desktop
