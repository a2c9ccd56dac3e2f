#include "desktop/windows/find_bar.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>
#include <functional>

#include "desktop/base/own_focus.h"
#include "desktop/drawing/colours.h"

namespace wb::desktop {

namespace {

void addKey(QWidget& owner, const QKeySequence& keys, const std::function<void()>& act) {
    auto* shortcut = new QShortcut(keys, &owner);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(shortcut, &QShortcut::activated, &owner, act);
}

} // namespace

FindBar::FindBar(QPlainTextEdit& text)
    : text_(text), box_(new QLineEdit), case_(new QCheckBox("Match &case")), outcome_(new QLabel) {
    markOwnFocus(*this);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(row->spacing(), row->spacing(), row->spacing(), row->spacing());
    // Alt+F is the File menu of the frame.
    auto* words = new QLabel("Fin&d:");
    words->setBuddy(box_);
    box_->setAccessibleName("Find in the report");
    box_->setClearButtonEnabled(true);
    auto* next = new QPushButton("&Next");
    auto* previous = new QPushButton("&Previous");
    auto* close = new QPushButton("Close");
    for (QWidget* widget : {static_cast<QWidget*>(words), static_cast<QWidget*>(box_), static_cast<QWidget*>(next),
                            static_cast<QWidget*>(previous), static_cast<QWidget*>(case_),
                            static_cast<QWidget*>(outcome_), static_cast<QWidget*>(close)}) {
        row->addWidget(widget);
    }
    row->setStretchFactor(box_, 1);
    QObject::connect(box_, &QLineEdit::textChanged, this, [this] { look(); });
    QObject::connect(case_, &QCheckBox::toggled, this, [this] { look(); });
    QObject::connect(box_, &QLineEdit::returnPressed, this, [this] { step(1); });
    QObject::connect(next, &QPushButton::clicked, this, [this] { step(1); });
    QObject::connect(previous, &QPushButton::clicked, this, [this] { step(-1); });
    QObject::connect(close, &QPushButton::clicked, this, [this] { this->close(); });
    addKey(*this, Qt::SHIFT | Qt::Key_Return, [this] { step(-1); });
    addKey(*this, Qt::Key_Escape, [this] { this->close(); });
    // The report is set anew while it is open.
    QObject::connect(text_.document(), &QTextDocument::contentsChanged, this, [this] {
        if (isVisible()) {
            look();
        }
    });
    hide();
}

void FindBar::open() {
    show();
    box_->setFocus(Qt::ShortcutFocusReason);
    box_->selectAll();
    look();
}

void FindBar::close() {
    hide();
    text_.setFocus(Qt::ShortcutFocusReason);
}

void FindBar::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    text_.setExtraSelections({});
}

void FindBar::collect() {
    places_.clear();
    QTextCursor place(text_.document());
    const QTextDocument::FindFlags how =
        case_->isChecked() ? QTextDocument::FindCaseSensitively : QTextDocument::FindFlags();
    while (!box_->text().isEmpty() && !(place = text_.document()->find(box_->text(), place, how)).isNull()) {
        places_.append(place);
    }
}

/// Looks for the text and selects the place at the cursor or the next one.
void FindBar::look() {
    collect();
    mark();
    const int from = text_.textCursor().selectionStart();
    for (int i = 0; i < places_.size(); ++i) {
        if (places_[i].selectionStart() >= from) {
            select(i);
            return;
        }
    }
    select(0);
}

/// Goes on to the next or the previous place, and from the last one to the first. While the bar is hidden nothing
/// follows the text.
void FindBar::step(int by) {
    if (!isVisible()) {
        collect();
    }
    const auto count = static_cast<int>(places_.size());
    if (count == 0) {
        return;
    }
    const QTextCursor now = text_.textCursor();
    int place = by > 0 ? 0 : count - 1;
    for (int i = 0; i < count; ++i) {
        const int candidate = by > 0 ? i : count - 1 - i;
        const int start = places_[candidate].selectionStart();
        if (by > 0 ? start > now.selectionStart() : start < now.selectionStart()) {
            place = candidate;
            break;
        }
    }
    select(place);
}

void FindBar::select(int place) {
    if (places_.isEmpty()) {
        outcome_->setText(box_->text().isEmpty() ? QString() : QString("Not found"));
        return;
    }
    text_.setTextCursor(places_[place]);
    outcome_->setText(QString("%1 of %2").arg(place + 1).arg(places_.size()));
}

void FindBar::mark() {
    QList<QTextEdit::ExtraSelection> marks;
    for (const QTextCursor& place : places_) {
        QTextEdit::ExtraSelection found;
        found.cursor = place;
        found.format.setBackground(QColor(fieldColour));
        found.format.setForeground(Qt::black);
        marks.append(found);
    }
    text_.setExtraSelections(marks);
}

} // namespace wb::desktop
