#include "desktop/views/menu_view.h"

#include "core/input.h"
#include "core/screen.h"
#include "desktop/base/text_codec.h"

namespace wb::desktop {

namespace {

constexpr Place nowhere = {};

} // namespace

MenuView::MenuView(Control& control, UserActions& actions)
    : ControlView(control, nowhere, actions), action_(new QAction(this)) {
    action_->setObjectName(toUnicode(control.fullName()));
    action_->setSeparator(control.caption() == "-");
    // None of the roles that one platform moves to another menu: the entries stay where the program has them.
    action_->setMenuRole(QAction::NoRole);
    QObject::connect(action_, &QAction::triggered, this, [this] {
        if (this->control() != nullptr) {
            act([](Control& c) { input::choose(c); });
        }
    });
}

void MenuView::refresh() {
    const Control& model = *control();
    if (!action_->isSeparator()) { // whose mark is no text to draw or to speak
        action_->setText(toUnicode(model.caption()));
    }
    action_->setEnabled(model.enabled() && !idle_);
    action_->setVisible(model.ownVisible());
}

void MenuView::setIdle(bool idle) {
    idle_ = idle;
    action_->setEnabled(control()->enabled() && !idle_);
}

} // namespace wb::desktop
