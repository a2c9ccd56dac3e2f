#pragma once

#include <QByteArray>
#include <QDockWidget>
#include <QList>
#include <QObject>

#include "desktop/windows/main_view.h"

namespace wb::desktop {

/// Remembers from one session to the next which docks are open, where and how wide. Nothing is stored before the user
/// has opened one.
class DockPlaces : public QObject {
public:
    explicit DockPlaces(MainView& frame) : frame_(frame) {}

    void watch(QDockWidget& dock);
    /// Puts the docks where the last session has left them; to be called when the frame is on view.
    void restore();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void noteSoon();
    void note();

    MainView& frame_;
    QByteArray stored_;
    bool restored_ = false;
    bool willNote_ = false;
};

} // namespace wb::desktop
