#pragma once

#include <QMainWindow>
#include <memory>
#include <vector>

#include "core/screens/frm_main.h"
#include "core/view.h"
#include "desktop/windows/frame_addition.h"
#include "desktop/windows/frame_position.h"
#include "desktop/windows/screen_view.h"

class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QMenu;
class QVBoxLayout;

namespace wb::desktop {

class MainWindow;
class MenuView;

/// The frame: menu, tool bar, command buttons, child windows and status bar.
class MainView : public ScreenView {
public:
    MainView(Screen& screen, UserActions& actions);
    ~MainView() override;

    QMainWindow& window() override;
    QMdiArea& area() const { return *area_; }
    void refresh() override;
    void refreshStates() override;
    /// Tells in the status bar what has been written, and when.
    void tellWritten(const WrittenFile& file);
    /// Tells something else there.
    void tell(const QString& notice);
    /// To be told by what runs an event loop of its own inside a call.
    ModelGate& gate() { return actions().gate(); }
    /// A file that the user has dropped.
    void openDropped(const QString& name);
    /// Lists the shown children, the active one first, in the Window menu.
    void listChildren(const std::vector<ScreenView*>& children);
    FramePosition& position() { return position_; }

    /// The frame of the program, whose controls the menus and their entries belong to.
    FrmMain& frame() const;
    /// Of one of the top entries: the menu below it.
    QMenu& menu(const Control& top) const;
    /// Of a menu, an entry or a tool bar button, before which additions are inserted.
    QAction& entry(const Control& control) const;
    LiveReading& liveReading() const { return actions().liveReading(); }
    void attach(std::unique_ptr<FrameAddition> addition);
    /// Loads the file that the program was started with, in whatever form it is.
    void openNamed(const QString& name);
    /// Makes room in the child windows for what they show, as far as the user has not chosen their sizes.
    void fitChildren();
    /// Takes Qt's focus from a box of the view itself, and gives it to where the model has it.
    void giveFocusBack();
    void refreshAdditions();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const Screen* activeChild() const;
    void makeMenus();
    void makeToolBar();
    void makeButtons(QVBoxLayout& column);
    void makeArea(QVBoxLayout& column);
    void makeNotice();
    void makeClock();
    void showPressed(const Control& button, bool pressed);
    MenuView& makeEntry(Control& control);
    QSize wholeSize();

    MainWindow* window_;
    FramePosition position_;
    QMdiArea* area_ = nullptr;
    QMenu* windowMenu_ = nullptr;
    QLabel* notice_ = nullptr;
    std::vector<QAction*> childEntries_;
    std::vector<std::unique_ptr<ControlView>> own_;
    std::vector<std::unique_ptr<FrameAddition>> additions_;
};

} // namespace wb::desktop
