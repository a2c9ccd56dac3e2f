#include "desktop/windows/report_zoom.h"

#include <QFontInfo>
#include <QKeyEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <optional>

#include "desktop/drawing/fonts.h"

namespace wb::desktop {

namespace {

constexpr double step = 1.1;
constexpr int mostSteps = 15; ///< about four times as large

/// The step that a key stands for, 0 for the usual size; nothing for other keys.
std::optional<int> stepOf(const QKeyEvent& event) {
    const Qt::KeyboardModifiers others = Qt::ShiftModifier | Qt::KeypadModifier; // which the plus may need
    if ((event.modifiers() & ~others) != Qt::ControlModifier) {
        return std::nullopt;
    }
    switch (event.key()) {
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            return 1;
        case Qt::Key_Minus:
            return -1;
        case Qt::Key_0:
            return 0;
        default:
            return std::nullopt;
    }
}

} // namespace

ReportZoom::ReportZoom(QPlainTextEdit& report, QWidget& window) : QObject(&report), report_(report) {
    report.viewport()->installEventFilter(this);
    report.parentWidget()->installEventFilter(this);
    window.installEventFilter(this);
}

bool ReportZoom::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Wheel: {
            const auto& wheel = static_cast<QWheelEvent&>(*event);
            if (watched == report_.viewport() && wheel.modifiers() == Qt::ControlModifier) {
                turn(wheel);
                return true;
            }
            break;
        }
        case QEvent::ShortcutOverride: // these keys may have another meaning elsewhere in the frame
            if (stepOf(static_cast<QKeyEvent&>(*event))) {
                event->accept();
                return true;
            }
            break;
        case QEvent::KeyPress:
            return takeKey(static_cast<QKeyEvent&>(*event));
        case QEvent::FontChange:
            if (watched == report_.parentWidget()) {
                apply();
            }
            break;
        default:
            break;
    }
    return false;
}

bool ReportZoom::takeKey(QKeyEvent& event) {
    const std::optional<int> by = stepOf(event);
    if (!by) {
        return false;
    }
    event.accept();
    zoomTo(*by == 0 ? 0 : steps_ + *by);
    return true;
}

/// Wheels of fine resolution tell of parts of a notch.
void ReportZoom::turn(const QWheelEvent& wheel) {
    turned_ += wheel.angleDelta().y();
    const int notches = turned_ / QWheelEvent::DefaultDeltasPerStep;
    turned_ -= notches * QWheelEvent::DefaultDeltasPerStep;
    zoomTo(steps_ + notches);
}

void ReportZoom::zoomTo(int steps) {
    const int wanted = std::clamp(steps, -mostSteps / 2, mostSteps);
    if (wanted != steps_) {
        steps_ = wanted;
        apply();
    }
}

void ReportZoom::apply() {
    QFont font = fixedPitchFont();
    if (steps_ != 0) {
        font.setPointSizeF(QFontInfo(report_.parentWidget()->font()).pointSizeF() * std::pow(step, steps_));
    }
    report_.setFont(font);
}

} // namespace wb::desktop
