#include "desktop/tools/byte_panel.h"

#include <QEvent>
#include <QStatusBar>
#include <QTextDocument>

#include "desktop/base/byte_words.h"
#include "shell/go_to_byte.h"

namespace wb::desktop {

CutLabel::CutLabel() {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long text must not widen the frame
}

void CutLabel::show(const QString& text) {
    if (text != whole_) {
        whole_ = text;
        cut();
    }
}

void CutLabel::cut() {
    const QString part = fontMetrics().elidedText(whole_, Qt::ElideRight, contentsRect().width());
    setText(part);
    setToolTip(part == whole_ ? QString() : Qt::convertFromPlainText(whole_, Qt::WhiteSpaceNormal));
    setAccessibleName(whole_);
}

void CutLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    cut();
}

void CutLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        cut();
    }
}

BytePanel::BytePanel(MainView& frame) : frame_(frame), label_(new CutLabel) {
    constexpr int share = 5; // of the room, in which the two panels before it have 1 and 2
    label_->setObjectName("bytePanel");
    frame.window().statusBar()->addWidget(label_, share);
    frame.liveReading().listen(*this, [this] { refresh(); });
}

void BytePanel::refresh() {
    if (frame_.screen() != nullptr) {
        const auto now = shell::focusedByte(frame_.screen()->workbench());
        byte_ = now ? now : byte_;
        label_->show(words());
    }
}

QString BytePanel::words() const {
    const fields::Reading* reading = frame_.liveReading().readingBesides();
    const Control* cell = byte_ ? shell::cellOf(frame_.screen()->workbench(), *byte_) : nullptr;
    return reading != nullptr && cell != nullptr
               ? byteWords(*reading, static_cast<std::size_t>(*byte_), cell->text()).line()
               : QString();
}

} // namespace wb::desktop
