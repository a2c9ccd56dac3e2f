#include "desktop/windows/main_window.h"

#include <QCloseEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "desktop/windows/main_view.h"

namespace wb::desktop {

namespace {

/// The name of the one file that is dragged; empty where there are none or several.
QString droppedFile(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

} // namespace

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!droppedFile(*event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void MainWindow::dropEvent(QDropEvent* event) {
    const QString name = droppedFile(*event->mimeData());
    if (!name.isEmpty()) {
        event->acceptProposedAction();
        view_.openDropped(name);
    }
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    view_.position().note(); // which the model stores
    view_.askToClose();
}

void MainWindow::moveEvent(QMoveEvent* event) {
    QMainWindow::moveEvent(event);
    view_.position().noteSoon();
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    view_.position().noteSoon();
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) {
        view_.position().noteSoon();
    }
}

} // namespace wb::desktop
