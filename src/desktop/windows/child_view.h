#pragma once

#include <QMdiSubWindow>
#include <QPointer>

#include "desktop/windows/lent_room.h"
#include "desktop/windows/screen_view.h"

class QMdiArea;

namespace wb::desktop {

class ChildView;
class FindBar;

/// A child window of the frame. Its close button asks the model and never closes by itself.
class ChildWindow : public QMdiSubWindow {
public:
    explicit ChildWindow(ChildView& view);

    ChildView& view() const { return view_; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    ChildView& view_;
};

class ChildView : public ScreenView {
public:
    ChildView(Screen& screen, UserActions& actions, QMdiArea& area);
    ~ChildView() override;

    QWidget& window() override { return *window_; }
    QMdiSubWindow& subWindow() const { return *window_; }
    /// From inside the panel, gives the focus back to the cell of the field shown.
    void leavePanel();
    /// Opens the search of the report; the other children have none.
    void find();
    /// A press on the title bar.
    void activate();
    void refresh() override;
    void refreshStates() override;
    void detach() override;
    /// A window whose size is still the program's own choice gets the room that its page asks for, as far as the area
    /// has it.
    void fit() override;

private:
    void changeSide();
    /// A key that works while the focus is inside the window.
    void addKey(const QKeySequence& keys, const std::function<void()>& act);
    QWidget* inside();
    void takePlace();
    /// The shown windows beside this one, the active one first; without those that fill the area or are icons.
    QList<QMdiSubWindow*> neighbours() const;

    QPointer<ChildWindow> window_; ///< belongs to the area too
    ScreenPage* page_;
    FindBar* findBar_ = nullptr; ///< of the report
    QSize chosen_;               ///< the last size that the user has not chosen; none before the window has opened
    LentRoom lentRoom_;
};

} // namespace wb::desktop
