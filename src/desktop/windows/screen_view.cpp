#include "desktop/windows/screen_view.h"

#include <utility>

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
    if (staleViews_.empty() || screen() == nullptr) {
        return;
    }
    for (ControlView* view : std::exchange(staleViews_, {})) {
        view->stale = false;
        view->refresh();
    }
    if (page_ != nullptr) {
        page_->refreshTabStops();
    }
    fit();
}

void ScreenView::detach() {
    for (const auto& [control, view] : views_) {
        view->detach();
    }
    *screen_ = nullptr;
}

ControlView* ScreenView::viewOf(const Control& control) const {
    const auto found = views_.find(&control);
    return found == views_.end() ? nullptr : found->second;
}

void ScreenView::markStale(const Control& control) {
    ControlView* view = viewOf(control);
    if (view != nullptr && !view->stale) {
        view->stale = true;
        staleViews_.push_back(view);
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
