#pragma once

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>

#include "desktop/desktop_program.h"

namespace wb::test {

/// Drags a text to the middle of the widget and lets go there; whether the widget takes it.
inline bool dropText(QWidget& target, const QString& text) {
    QMimeData data;
    data.setText(text);
    const QPoint place = target.rect().center();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &enter);
    QDragMoveEvent move(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &move);
    QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &event);
    DesktopProgram::settle();
    return enter.isAccepted();
}

} // namespace wb::test
