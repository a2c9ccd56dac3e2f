#include "desktop/windows/screen_view.h"

#include "core/input.h"
#include "desktop/windows/screen_page.h"

namespace wb::desktop {

ScreenView::ScreenView(Screen& screen, UserActions& actions)
    : screen_(std::make_shared<Screen*>(&screen)), actions_(actions) {}

ScreenView::~ScreenView() = default;

void ScreenView::addPage(ScreenPage& page) {
    page_ = &page;
    for (const auto& view : page.views()) {
        add(*view);
    }
}

void ScreenView::refreshControls() {
    if (!stale_ || screen() == nullptr) {
        return;
    }
    stale_ = false;
    for (ControlView* view : views_) {
        if (view->stale) {
            view->stale = false;
            view->refresh();
        }
    }
    if (page_ != nullptr) {
        page_->refreshTabStops();
    }
    fit();
}

void ScreenView::detach() {
    for (ControlView* view : views_) {
        view->detach();
    }
    *screen_ = nullptr;
}

ControlView* ScreenView::viewOf(const Control& control) const {
    for (ControlView* view : views_) {
        if (view->control() == &control) {
            return view;
        }
    }
    return nullptr;
}

void ScreenView::markStale(const Control& control) {
    if (ControlView* view = viewOf(control)) {
        view->stale = true;
        stale_ = true;
    }
}

void ScreenView::act(std::function<void(Screen&)> action) {
    actions_.settleFocus();
    actions_.gate().run([screen = screen_, action = std::move(action)] {
        if (*screen != nullptr) {
            action(**screen);
        }
    });
}

void ScreenView::askToClose() {
    act([](Screen& screen) { input::close(screen); });
}

} // namespace wb::desktop
