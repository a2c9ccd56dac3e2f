#include "desktop/windows/report_bytes.h"

#include <QApplication>
#include <QMouseEvent>
#include <QShortcut>
#include <QTextBlock>
#include <utility>

#include "desktop/windows/report_places.h"

namespace wb::desktop {

ReportBytes::ReportBytes(QPlainTextEdit& report, Go go) : QObject(&report), report_(report), go_(std::move(go)) {
    report.viewport()->setMouseTracking(true);
    report.viewport()->installEventFilter(this);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* shortcut = new QShortcut(Qt::CTRL | key, &report);
        shortcut->setContext(Qt::WidgetShortcut);
        QObject::connect(shortcut, &QShortcut::activated, this, [this] {
            const QTextCursor cursor = report_.textCursor();
            goTo(byteInReport(report_.document()->findBlock(cursor.selectionStart()),
                              cursor.selectionStart() - cursor.block().position()));
        });
    }
}

bool ReportBytes::eventFilter(QObject* /*watched*/, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonPress: {
            const auto& press = static_cast<QMouseEvent&>(*event);
            pressed_.reset();
            if (press.button() == Qt::LeftButton && press.modifiers() == Qt::NoModifier) {
                pressed_ = press.pos();
            }
            break;
        }
        case QEvent::MouseButtonRelease: {
            const QPoint place = static_cast<QMouseEvent*>(event)->pos();
            const auto from = std::exchange(pressed_, std::nullopt);
            // A longer way selects text.
            if (from && (place - *from).manhattanLength() < QApplication::startDragDistance()) {
                goTo(byteAt(place));
            }
            break;
        }
        case QEvent::MouseMove:
            showPointer(static_cast<QMouseEvent*>(event)->pos());
            break;
        default:
            break;
    }
    return false;
}

/// The byte under the pointer.
std::optional<int> ReportBytes::byteAt(const QPoint& place) const {
    QTextCursor cursor = report_.cursorForPosition(place);
    if (!report_.cursorRect(cursor).adjusted(-report_.width(), 0, report_.width(), 0).contains(place)) {
        return std::nullopt; // below the last line
    }
    // A cursor stands between two characters.
    const int right = report_.cursorRect(cursor).left() > place.x() ? 1 : 0;
    return byteInReport(cursor.block(), cursor.positionInBlock() - right);
}

void ReportBytes::showPointer(const QPoint& place) {
    report_.viewport()->setCursor(byteAt(place) ? Qt::PointingHandCursor : Qt::IBeamCursor);
}

void ReportBytes::goTo(std::optional<int> byte) {
    if (byte) {
        // The text is to have done with the event first.
        QMetaObject::invokeMethod(
            this, [this, number = *byte] { go_(number); }, Qt::QueuedConnection);
    }
}

} // namespace wb::desktop
