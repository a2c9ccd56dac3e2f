#pragma once

#include <QMdiSubWindow>
#include <QPointer>

#include "desktop/windows/screen_view.h"

class QMdiArea;

namespace wb::desktop {

class ChildView;

/// A child window of the frame. Its close button asks the model and never closes by itself.
class ChildWindow : public QMdiSubWindow {
public:
    explicit ChildWindow(ChildView& view);

    ChildView& view() const { return view_; }

protected:
    void closeEvent(QCloseEvent* event) override;
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
    /// A press on the title bar.
    void activate();
    void refresh() override;
    void fit() override;

private:
    void changeSide();

    QPointer<ChildWindow> window_; ///< belongs to the area too
    ScreenPage* page_;
    QSize fitting_;
};

} // namespace wb::desktop
