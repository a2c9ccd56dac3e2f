#pragma once

#include <QMainWindow>

namespace wb::desktop {

class MainView;

/// The frame's window. It closes when the model says so, tells the model where it stands, and takes dropped files.
class MainWindow : public QMainWindow {
public:
    explicit MainWindow(MainView& view) : view_(view) { setAcceptDrops(true); }

protected:
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    MainView& view_;
};

} // namespace wb::desktop
