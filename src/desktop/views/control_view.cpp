#include "desktop/views/control_view.h"

#include <QApplication>
#include <QFocusEvent>
#include <QShortcut>

#include "core/input.h"
#include "core/screen.h"
#include "desktop/base/text_codec.h"
#include "desktop/base/tool_tip.h"
#include "desktop/drawing/colours.h"
#include "desktop/views/keys.h"

namespace wb::desktop {

namespace {

QString spokenName(const Place& place, int index) {
    QString name = QString::fromLatin1(place.spoken.data(), static_cast<qsizetype>(place.spoken.size()));
    return name.contains(QLatin1String("%1")) ? name.arg(index) : name;
}

bool hasCaption(ControlKind kind) {
    return kind != ControlKind::Text && kind != ControlKind::Combo && kind != ControlKind::Document;
}

/// What the key of a place does: a click, or on a frame, which has none, a double click.
void pressByKey(Control& control) {
    if (control.kind() == ControlKind::Frame) {
        input::doubleClick(control);
    } else {
        input::click(control);
    }
}

bool isPanel(const Control& control) {
    return control.name() == "Hints";
}

bool isInPanel(const Control& control) {
    const Control* container = control.container();
    return container != nullptr && (isPanel(*container) || isInPanel(*container));
}

QString spokenCaption(const Control& control) {
    return toUnicode(control.caption()).remove('&').trimmed();
}

} // namespace

ControlView::ControlView(Control& control, const Place& place, UserActions& actions)
    : control_(std::make_shared<Control*>(&control)), place_(place), actions_(actions) {}

void ControlView::adopt(QWidget& widget) {
    const Control& model = *control();
    widget.setObjectName(toUnicode(model.fullName()));
    QString tip = spokenName(place_, model.index());
    widget.setAccessibleName(tip);
    if (!place_.shortcut.empty()) {
        const QKeySequence keys(toUnicode(place_.shortcut));
        auto* shortcut = new QShortcut(keys, &widget);
        QObject::connect(shortcut, &QShortcut::activated, this, [this] {
            showFocus(*this->widget());
            act(&pressByKey);
        });
        tip += " (" + keys.toString(QKeySequence::NativeText) + ')';
    }
    if (model.kind() != ControlKind::Frame) { // one would stand over all that is inside
        widget.setToolTip(toolTipOf(tip));
    }
    widget.installEventFilter(this);
}

void ControlView::refresh() {
    const Control& model = *control();
    QWidget& target = *widget();
    if (hasCaption(model.kind())) {
        const QString spoken = spokenName(place_, model.index());
        const QString caption = spokenCaption(model);
        target.setAccessibleName(caption.isEmpty() ? spoken : caption);
        target.setAccessibleDescription(caption.isEmpty() ? QString() : spoken);
    }
    refreshPalette();
    target.setEnabled(model.enabled());
    target.setVisible(model.ownVisible());
}

void ControlView::refreshPalette() {
    if (control() == nullptr) {
        return; // a window that is on its way out gets the colours of the desktop too
    }
    const Control& model = *control();
    if (isPanel(model)) {
        widget()->setPalette(disabledTextsOf(withLiveDisabledText(QApplication::palette())));
    } else if (isInPanel(model)) {
        widget()->setPalette(model.enabled() ? QPalette()
                                             : disabledTextsOf(withReadableDisabledText(QApplication::palette())));
    }
}

void ControlView::speakAlso(const QString& what, const QString& description) {
    const QString name = spokenName(place_, control()->index());
    widget()->setAccessibleName(what.isEmpty() ? name : name + ", " + what);
    widget()->setAccessibleDescription(description);
}

void ControlView::act(std::function<void(Control&)> action) {
    actions_.settleFocus();
    tell(std::move(action));
}

void ControlView::tell(std::function<void(Control&)> action) {
    actions_.gate().run([control = control_, action = std::move(action)] {
        if (*control != nullptr) {
            action(**control);
        }
    });
}

bool ControlView::typeInto(const QKeyEvent& event) {
    if (isEnter(event)) {
        if (!event.isAutoRepeat()) {
            act([](Control& c) { input::enter(c.screen().workbench()); });
        }
        return true;
    }
    if (const auto character = typedCharacter(event)) {
        act([typed = *character, code = typedKeyCode(event, *character)](Control& c) {
            input::typeCharacter(c.screen().workbench(), typed, code);
        });
        return true;
    }
    const int code = commandKeyCode(event);
    if (code == 0 || event.modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) {
        return false;
    }
    act([code](Control& c) { input::keyCode(c.screen().workbench(), code); });
    return true;
}

bool ControlView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn && watched == widget() && control() != nullptr) {
        actions_.focusArrived(*this, static_cast<QFocusEvent*>(event)->reason());
    }
    return false;
}

} // namespace wb::desktop
