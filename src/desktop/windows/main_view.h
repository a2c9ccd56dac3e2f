#pragma once

#include <QDialog>
#include <QMainWindow>
#include <QPointer>
#include <QRect>
#include <memory>
#include <vector>

#include "core/screens/frm_main.h"
#include "core/view.h"
#include "desktop/windows/frame_size.h"
#include "desktop/windows/screen_view.h"

class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QMenu;
class QVBoxLayout;

namespace wb::desktop {

class MainView;
class MenuView;

/// The frame's window. It closes when the model says so, and tells the model where it stands.
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

/// The frame: menu, tool bar, command buttons, child windows and status bar.
class MainView : public ScreenView {
public:
    MainView(Screen& screen, UserActions& actions);
    ~MainView() override;

    QMainWindow& window() override { return *window_; }
    QMdiArea& area() const { return *area_; }
    void refresh() override;
    void refreshStates() override;
    /// Tells in the status bar what has been written, and when.
    void tellWritten(const WrittenFile& file);
    /// A file that the user has dropped.
    void openDropped(const QString& name);
    /// Lists the shown children, the active one first, in the Window menu.
    void listChildren(const std::vector<ScreenView*>& children);
    /// Notes where the window stands; a place that the model asked for is kept as it was asked for, and that of a
    /// maximised or minimised window is not noted.
    void notePosition();
    /// The same when the events at hand are through.
    void notePositionSoon();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Position {
        float left = 0;
        float top = 0;
        float width = 0;
        float height = 0;
        bool operator==(const Position&) const = default;
    };

    FrmMain& frame() const;
    const Screen* activeChild() const;
    void makeMenus();
    /// The entry behind those that the program has.
    void makeKeysEntry(QMenu& helpMenu);
    void makeToolBar();
    void makeButtons(QVBoxLayout& column);
    void makeArea(QVBoxLayout& column);
    void makeNotice();
    void makeClock();
    void showPressed(const Control& button, bool pressed);
    MenuView& makeEntry(Control& control);
    void applyPosition();
    QRect geometryOf(const Position& asked) const;
    QSize wholeSize();
    void noteMaximised();

    MainWindow* window_;
    QMdiArea* area_ = nullptr;
    QMenu* windowMenu_ = nullptr;
    QLabel* notice_ = nullptr;
    QPointer<QDialog> keys_;
    std::vector<QAction*> childEntries_;
    std::vector<std::unique_ptr<ControlView>> own_;
    FrameSize size_;
    Position shownPosition_;
    QRect shownGeometry_;
    bool placing_ = false;   ///< the window moves because the model says so
    bool willNote_ = false;  ///< where the window stands
    bool maximised_ = false; ///< the window, or it is to be when it shows
};

} // namespace wb::desktop
