#include "desktop/views/document_view.h"

#include <QKeyEvent>
#include <QScrollBar>

#include "core/input.h"
#include "core/screen.h"
#include "desktop/base/report_text.h"
#include "desktop/drawing/fonts.h"
#include "desktop/drawing/twips.h"
#include "desktop/views/keys.h"
#include "report/report_lines.h"

namespace wb::desktop {

namespace {

constexpr int visibleColumns = report::reportWidth + 4; // room for a dump row that a long cell pushes out
constexpr int visibleLines = 30;

} // namespace

DocumentView::DocumentView(Control& control, const Place& place, UserActions& actions)
    : ControlView(control, place, actions), box_(new ReportBox(*this)) {
    box_->setFont(fixedPitchFont());
    box_->setLineWrapMode(QPlainTextEdit::NoWrap);
    box_->setUndoRedoEnabled(false);
    box_->setReadOnly(true);
    // A read-only text has no cursor of its own accord, and without one there is no selecting by keyboard.
    box_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    QObject::connect(box_, &QPlainTextEdit::selectionChanged, this, [this] { tellSelection(); });
    adopt(*box_);
}

void DocumentView::refresh() {
    ControlView::refresh();
    const Control& model = *control();
    if (shown_ != model.text()) {
        shown_ = model.text();
        const QSignalBlocker quiet(box_);
        box_->setPlainText(reportLines(shown_));
    }
    const Bounds& bounds = model.bounds();
    if (bounds.width > 0 && bounds.height > 0) {
        box_->setGeometry(pixelsOf(*box_, bounds));
    }
}

void DocumentView::tellSelection() {
    if (control() == nullptr || actions().gate().running()) {
        return;
    }
    const QTextCursor cursor = box_->textCursor();
    const int start = placeInText(shown_, cursor.selectionStart());
    const int end = placeInText(shown_, cursor.selectionEnd());
    tell([start, end](Control& c) { input::select(c, start, end - start); });
}

QSize ReportBox::sizeHint() const {
    // In the usual size of the face, whatever it is shown in.
    const QFontMetrics metrics(fixedPitchFont().resolve(parentWidget() != nullptr ? parentWidget()->font() : font()));
    const int margins = 2 * (frameWidth() + static_cast<int>(document()->documentMargin()));
    return {metrics.horizontalAdvance('0') * visibleColumns + margins + verticalScrollBar()->sizeHint().width(),
            metrics.lineSpacing() * visibleLines + margins};
}

void ReportBox::keyPressEvent(QKeyEvent* event) {
    // A report is only read: what types goes to the model, what moves scrolls.
    if ((isEnter(*event) || typedCharacter(*event)) && view_.typeInto(*event)) {
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

} // namespace wb::desktop
