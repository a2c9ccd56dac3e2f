#include "desktop/views/choice_views.h"

#include <QKeyEvent>
#include <QSignalBlocker>
#include <type_traits>
#include <utility>

#include "core/input.h"
#include "core/screen.h"
#include "desktop/base/text_codec.h"
#include "desktop/views/keys.h"
#include "desktop/views/sizes.h"

namespace wb::desktop {

template <class Button>
void PassiveButton<Button>::keyPressEvent(QKeyEvent* event) {
    const bool isBoxButton = std::is_base_of_v<QPushButton, Button> && this->window()->isModal();
    if (isBoxButton && isEnter(*event)) { // as everywhere else where a window asks to be closed
        if (!event->isAutoRepeat()) {
            this->click();
        }
        return;
    }
    const bool presses = event->key() == Qt::Key_Space || event->key() == Qt::Key_Select;
    if (presses || !view_.typeInto(*event)) {
        Button::keyPressEvent(event);
    }
}

void OptionButton::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Up:
        case Qt::Key_Left:
            step(-1);
            return;
        case Qt::Key_Down:
        case Qt::Key_Right:
            step(1);
            return;
        default:
            PassiveButton::keyPressEvent(event);
    }
}

/// Clicks the next option of the array in that direction that is within reach.
void OptionButton::step(int direction) {
    Control* from = view().control();
    if (from == nullptr || from->array() == nullptr) {
        return;
    }
    ControlArray& options = *from->array();
    for (int i = from->index() + direction; i >= options.first() && i <= options.last(); i += direction) {
        Control& next = options(i);
        if (input::reachable(next)) {
            view().act([&next](Control&) { input::click(next); });
            return;
        }
    }
}

KeyButton::KeyButton(ControlView& view) : PassiveButton(view) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize KeyButton::minimumSizeHint() const {
    const QFontMetrics metrics(font());
    // As much room at the sides as above and below.
    return {metrics.horizontalAdvance(text()) + sizeHint().height() - metrics.height(), sizeHint().height()};
}

ButtonView::ButtonView(Control& control, const Place& place, UserActions& actions)
    : ControlView(control, place, actions), button_(make()) {
    QObject::connect(button_, &QAbstractButton::clicked, this, [this] {
        if (this->control() != nullptr) {
            act([](Control& c) { input::click(c); });
        }
    });
    adopt(*button_);
}

QAbstractButton* ButtonView::make() {
    switch (control()->kind()) {
        case ControlKind::Option:
            return new OptionButton(*this);
        case ControlKind::Check:
            return new PassiveButton<QCheckBox>(*this);
        default:
            break;
    }
    auto* button = place().look == Look::Key ? new KeyButton(*this) : new PassiveButton<QPushButton>(*this);
    button->setAutoDefault(false);
    return button;
}

void ButtonView::refresh() {
    ControlView::refresh();
    const Control& model = *control();
    button_->setText(toUnicode(model.caption()));
    if (model.kind() != ControlKind::Button) {
        button_->setChecked(model.selected());
    }
    keepWidth(*button_, place().characters);
    keepRoom();
}

void ButtonView::keepRoom() {
    if (place().longest.empty()) {
        return;
    }
    if (!longestFont_ || *longestFont_ != button_->font()) {
        const std::unique_ptr<QAbstractButton> example(make());
        example->setFont(button_->font());
        example->setText(toUnicode(place().longest));
        longestFont_ = button_->font();
        longestWidth_ = example->sizeHint().width();
    }
    button_->setMinimumWidth(qMax(button_->minimumWidth(), longestWidth_));
}

void ButtonView::refreshTabStop() {
    const Control& model = *control();
    if (model.kind() != ControlKind::Option || model.array() == nullptr) {
        return;
    }
    ControlArray& options = *model.array();
    const Control* stop = nullptr;
    for (int i = options.first(); i <= options.last(); ++i) {
        const Control& option = options(i);
        if (option.usable() && (stop == nullptr || option.selected())) {
            stop = &option;
        }
    }
    button_->setFocusPolicy(stop == &model || stop == nullptr ? Qt::TabFocus : Qt::NoFocus);
}

// The list opens before the focus moves, and the pick moves it: what the move causes must not come between. A list that
// closes without a pick was a click.

void RowBox::showPopup() {
    listOpen_ = true;
    QComboBox::showPopup();
}

void RowBox::hidePopup() {
    QComboBox::hidePopup();
    if (listOpen_) { // the pick, if there is one, follows at once
        QMetaObject::invokeMethod(
            this, [this] { clickUnlessPicked(); }, Qt::QueuedConnection);
    }
}

void RowBox::clickUnlessPicked() {
    if (std::exchange(listOpen_, false) && view_.control() != nullptr) {
        view_.act([](Control& c) { input::click(c); });
    }
}

void RowBox::keyPressEvent(QKeyEvent* event) {
    if (isEnter(*event)) {
        view_.typeInto(*event);
        return;
    }
    QComboBox::keyPressEvent(event);
}

ComboView::ComboView(Control& control, const Place& place, UserActions& actions)
    : ControlView(control, place, actions), box_(new RowBox(*this)) {
    QObject::connect(box_, &QComboBox::activated, this, [this](int row) {
        box_->notePick();
        if (this->control() != nullptr) {
            act([row](Control& c) { input::pick(c, row); });
        }
    });
    box_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    adopt(*box_);
}

void ComboView::refresh() {
    ControlView::refresh();
    const Control& model = *control();
    const QSignalBlocker quiet(box_);
    const std::span<const std::string_view> rows = model.rows();
    bool same = box_->count() == static_cast<int>(rows.size());
    for (int i = 0; same && i < box_->count(); ++i) {
        same = box_->itemText(i) == toUnicode(rows[static_cast<std::size_t>(i)]);
    }
    if (!same) {
        box_->clear();
        for (const std::string_view row : rows) {
            box_->addItem(toUnicode(row));
        }
    }
    box_->setCurrentIndex(model.value());
    // A text that is none of the rows.
    box_->setPlaceholderText(toUnicode(model.text()));
}

} // namespace wb::desktop
