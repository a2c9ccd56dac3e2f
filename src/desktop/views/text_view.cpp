#include "desktop/views/text_view.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QScopeGuard>
#include <QSignalBlocker>
#include <limits>

#include "core/input.h"
#include "core/screen.h"
#include "desktop/base/text_codec.h"
#include "desktop/base/tool_tip.h"
#include "desktop/drawing/colours.h"
#include "desktop/drawing/fonts.h"
#include "desktop/views/cell_steps.h"
#include "desktop/views/keys.h"
#include "desktop/views/sizes.h"

namespace wb::desktop {

namespace {

constexpr int cellCharacters = 2;

struct Selection {
    int start;
    int length;
};

Selection selectionOf(const QLineEdit& box) {
    return box.hasSelectedText() ? Selection{box.selectionStart(), box.selectionLength()}
                                 : Selection{box.cursorPosition(), 0};
}

/// Whether the cursor stands at that edge of the text; a text that is selected as a whole touches both.
bool isAtEdge(const QLineEdit& box, TextEdge edge) {
    if (edge == TextEdge::Any || box.selectedText() == box.text()) {
        return true;
    }
    return !box.hasSelectedText() && box.cursorPosition() == (edge == TextEdge::Start ? 0 : box.text().size());
}

/// A letter held with Alt that no menu has taken: the toolkit would type it, past what keys let through.
bool isLeftOver(const QKeyEvent& event) {
    const QString text = event.text();
    return event.modifiers().testAnyFlags(Qt::AltModifier | Qt::MetaModifier) && !text.isEmpty() &&
           text.front().isPrint();
}

bool undoes(const QKeyEvent& event) {
    return event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo);
}

} // namespace

TextView::TextView(Control& control, const Place& place, UserActions& actions)
    : ControlView(control, place, actions), box_(new TextBox(*this)) {
    // Typing has a limit of its own in the model; one of the widget would cut assigned texts.
    box_->setMaxLength(std::numeric_limits<int>::max());
    QObject::connect(box_, &QLineEdit::textEdited, this, [this] {
        if (!editing_) {
            editByWidget([] {}, 0, true);
        }
    });
    shape();
    adopt(*box_);
    tip_ = box_->toolTip();
}

void TextView::shape() {
    const Look look = place().look;
    if (look == Look::Cell || look == Look::Value) {
        box_->setFont(fixedPitchFont());
    }
    if (look == Look::Value) {
        box_->setAlignment(Qt::AlignRight);
    }
    if (look == Look::Cell) {
        box_->setAlignment(Qt::AlignCenter);
        box_->setFixedWidth(widthOfText(*box_, cellCharacters + 1));
    } else if (place().characters > 0) {
        const int width =
            widthOfText(*box_, place().characters, place().capitals ? Measure::Capital : Measure::Average);
        box_->setMinimumWidth(width);
        box_->setMaximumWidth(look == Look::Value ? QWIDGETSIZE_MAX : width);
    }
}

void TextView::refresh() {
    ControlView::refresh();
    const Control& model = *control();
    refreshText();
    box_->setReadOnly(model.locked());
    // A drop is no way to type: a cell keeps what its keys let through.
    box_->setAcceptDrops(place().look != Look::Cell && !model.locked());
    if (box_->hasFocus()) {
        refreshSelection(); // elsewhere it is not drawn
    } else if (place().look != Look::Value) {
        box_->setCursorPosition(0); // what is longer than the box shows its beginning
    }
    refreshTip();
    refreshColours();
}

void TextView::refreshText() {
    const QString text = toUnicode(control()->text());
    if (box_->text() == text) {
        return;
    }
    const QSignalBlocker quiet(box_);
    if (keepHistory_) {
        box_->selectAll();
        box_->insert(text);
    } else {
        box_->setText(text);
    }
}

void TextView::setTip(const QString& tip) {
    tip_ = tip;
    refreshTip();
}

void TextView::refreshTip() {
    constexpr qsizetype longest = 200;
    const QString text = box_->text();
    const bool cut = place().look != Look::Cell && box_->fontMetrics().horizontalAdvance(text) > innerWidth(*box_);
    box_->setToolTip(toolTipOf(cut ? tip_ + ": " + text.left(longest) : tip_));
}

void TextView::refreshSelection() {
    const Control& model = *control();
    const Selection now = selectionOf(*box_);
    if (now.start == model.selStart() && now.length == model.selLength()) {
        return;
    }
    const QSignalBlocker quiet(box_);
    if (model.selLength() > 0) {
        box_->setSelection(model.selStart(), model.selLength());
    } else {
        box_->setCursorPosition(model.selStart());
        box_->deselect();
    }
}

void TextView::refreshColours() {
    if (place().look != Look::Cell || control() == nullptr) {
        return;
    }
    const CellColours colours = cellColours(control()->backColor(), QApplication::palette());
    if (colours == colours_) {
        return;
    }
    colours_ = colours;
    QPalette palette; // of these two alone: a box with all of a palette would hear of no other one
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        palette.setColor(group, QPalette::Base, colours.background);
        palette.setColor(group, QPalette::Text, colours.text);
    }
    box_->setPalette(palette);
}

bool TextView::sameAsModel() const {
    const Control& model = *control();
    const Selection now = selectionOf(*box_);
    return box_->text() == toUnicode(model.text()) && now.start == model.selStart() && now.length == model.selLength();
}

void TextView::tellSelection() {
    if (control() == nullptr || sameAsModel()) {
        return;
    }
    const Selection now = selectionOf(*box_);
    // Ahead of the focus move that a press of the mouse causes, whose GotFocus may select all.
    tell([now](Control& c) { input::select(c, now.start, now.length); });
}

template <class Editing>
void TextView::editByWidget(Editing&& editing, int code, bool alwaysTell) {
    editing_ = true;
    editing();
    editing_ = false;
    if (control() == nullptr || (!alwaysTell && sameAsModel())) {
        return;
    }
    const Selection now = selectionOf(*box_);
    act([text = fromUnicode(box_->text()), now, code](Control& c) {
        input::edit(c, text, now.start, now.length, code);
    });
}

void TextView::type(const QKeyEvent& event, char character) {
    actions().settleFocus();
    tellSelection();
    // The key may close the screen, and the view with it.
    act([view = QPointer<TextView>(this), character, code = typedKeyCode(event, character)](Control& c) {
        view->keepHistory_ = true;
        const auto worked = qScopeGuard([view] {
            if (view != nullptr) {
                view->keepHistory_ = false;
            }
        });
        input::typeCharacter(c.screen().workbench(), character, code);
        if (view != nullptr && view->control() != nullptr) {
            view->refreshText();
        }
    });
}

void TextView::enter(const QKeyEvent& event) {
    typeInto(event);
    // What Enter has written into the cells is not to be taken back in the box alone.
    const QSignalBlocker quiet(box_);
    box_->setText(box_->text()); // ends the history
    if (control() != nullptr) {
        refreshSelection();
    }
}

bool TextView::stepToCell(const QKeyEvent& event) {
    if (place().look != Look::Cell || control() == nullptr) {
        return false;
    }
    const Control& from = *control();
    const auto step = cellStep(event, from.index());
    if (!step || (!from.locked() && !isAtEdge(*box_, step->from))) {
        return isRowKey(event);
    }
    Control& to = *from.screen().find(from.name(), step->cell);
    act([&to](Control&) { input::moveFocus(to); });
    return true;
}

bool TextBox::undoesTyping(const QKeyEvent& event) const {
    const bool available = event.matches(QKeySequence::Undo) ? isUndoAvailable() : isRedoAvailable();
    return available && view_.place().look != Look::Cell;
}

bool TextBox::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = static_cast<QKeyEvent&>(*event);
        if (undoes(key) && !undoesTyping(key)) {
            event->ignore(); // the key is that of the Edit menu
            return true;
        }
    }
    return QLineEdit::event(event);
}

void TextBox::keyPressEvent(QKeyEvent* event) {
    if (undoes(*event) && !undoesTyping(*event)) {
        event->ignore();
        return;
    }
    if (isEnter(*event)) {
        view_.enter(*event);
        return;
    }
    if (types(*event)) {
        if (const auto character = typedCharacter(*event)) {
            view_.type(*event, *character);
        }
        return;
    }
    if (isLeftOver(*event)) {
        event->ignore();
        return;
    }
    if (view_.stepToCell(*event)) {
        return;
    }
    const int code = commandKeyCode(*event);
    const bool alwaysTell = code != 0 && event->modifiers() == Qt::NoModifier;
    view_.editByWidget([&] { QLineEdit::keyPressEvent(event); }, code, alwaysTell);
}

void TextBox::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->position();
    QLineEdit::mousePressEvent(event);
    view_.tellSelection();
}

void TextBox::mouseMoveEvent(QMouseEvent* event) {
    // A click that trembles must not undo the selection that GotFocus has made meanwhile.
    const bool drags = (event->position() - pressed_).manhattanLength() >= QApplication::startDragDistance();
    if (event->buttons() == Qt::NoButton || drags) {
        QLineEdit::mouseMoveEvent(event);
    }
}

void TextBox::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    view_.tellSelection();
}

void TextBox::inputMethodEvent(QInputMethodEvent* event) {
    const QString committed = event->commitString();
    const auto last = committed.isEmpty() ? std::nullopt : toCharacter(committed.back());
    view_.editByWidget([&] { QLineEdit::inputMethodEvent(event); }, last ? input::keyCodeOf(*last) : 0,
                       !committed.isEmpty());
}

void TextBox::contextMenuEvent(QContextMenuEvent* event) {
    QMenu* menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    // Edits are told like any other; "Select All" is none. The menu's own signal comes before the action has run.
    for (QAction* action : menu->actions()) {
        QObject::connect(action, &QAction::triggered, &view_, [this] { view_.tellSelection(); });
    }
    menu->popup(event->globalPos());
}

void TextBox::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls()) {
        event->ignore(); // files are for the frame
    } else {
        QLineEdit::dragEnterEvent(event);
    }
}

void TextBox::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    const bool comesBack = event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
    if (!comesBack) {
        setCursorPosition(0);
    }
}

void TextBox::resizeEvent(QResizeEvent* event) {
    QLineEdit::resizeEvent(event);
    view_.refreshTip();
}

void TextBox::changeEvent(QEvent* event) {
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        view_.refreshColours();
    } else if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        view_.shape();
    }
}

} // namespace wb::desktop
