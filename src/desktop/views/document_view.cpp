#include "desktop/views/document_view.h"

#include <QKeyEvent>
#include <QScrollBar>

#include "core/input.h"
#include "core/screen.h"
#include "core/text.h"
#include "desktop/binder/keys.h"
#include "desktop/drawing/twips.h"
#include "desktop/text_codec.h"
#include "desktop/views/sizes.h"

namespace wb::desktop {

namespace {

constexpr int reportColumns = 74; // the 70 of a report, and room for a dump row that a long cell pushes out
constexpr int visibleLines = 30;
constexpr char16_t firstControlPicture = 0x2400;
constexpr char16_t deletePicture = 0x2421;

bool isLineEnd(std::string_view text, std::size_t place) {
    return text.substr(place, crLf.size()) == crLf;
}

QChar drawn(QChar character) {
    const char16_t code = character.unicode();
    if (code < u' ') {
        return QChar(static_cast<char16_t>(firstControlPicture + code));
    }
    return code == u'\x7F' ? QChar(deletePicture) : character;
}

} // namespace

QString reportLines(std::string_view text) {
    const QString characters = toUnicode(text);
    QString result;
    result.reserve(characters.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (isLineEnd(text, i)) {
            result.append(QLatin1Char('\n'));
            i += crLf.size() - 1;
        } else {
            result.append(drawn(characters[static_cast<qsizetype>(i)]));
        }
    }
    return result;
}

int placeInText(std::string_view text, int drawn) {
    std::size_t place = 0;
    for (int i = 0; i < drawn && place < text.size(); ++i) {
        place += isLineEnd(text, place) ? crLf.size() : 1;
    }
    return static_cast<int>(place);
}

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
    const QFontMetrics metrics(font());
    const int margins = 2 * (frameWidth() + static_cast<int>(document()->documentMargin()));
    return {metrics.horizontalAdvance('0') * reportColumns + margins + verticalScrollBar()->sizeHint().width(),
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
