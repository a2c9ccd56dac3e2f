#pragma once

#include <QFont>
#include <QMenu>

#include "desktop/windows/main_view.h"

namespace wb::desktop {

/// The size of everything in the frame, in proportion to the font of the system, with its entries of the View menu;
/// remembered from one session to the next.
class Zoom : public QObject {
public:
    /// Takes the size of the last session.
    Zoom(MainView& frame, QMenu& menu);
    ~Zoom() override;

    int percent() const { return percent_; }

private:
    void step(int by);
    void choose(int percent);
    void apply();
    void refreshEntries();

    MainView& frame_;
    QFont normal_; ///< of the system, while there is no zoom
    QSize normalIcons_;
    QAction* in_;
    QAction* out_;
    QAction* back_;
    int percent_ = 100;
};

} // namespace wb::desktop
