#pragma once

#include <QMainWindow>
#include <QObject>
#include <QRect>

#include "core/screens/frm_main.h"
#include "desktop/windows/frame_size.h"
#include "desktop/windows/screen_view.h"

namespace wb::desktop {

/// Where the frame's window stands and whether it is maximised, in line with the model both ways.
class FramePosition : public QObject {
public:
    /// Both must outlive it.
    FramePosition(const ScreenView& frame, QMainWindow& window) : frame_(frame), window_(window) {}

    /// The size in which the whole of the largest screen shows, and how the last session has left the window.
    void begin(QSize whole);
    /// Puts the window where the model asks for.
    void apply();
    /// Shows the window, maximised if it was so the last time.
    void showWindow();
    /// Notes where the window stands; a place that the model asked for is kept as it was asked for, and that of a
    /// maximised or minimised window is not noted.
    void note();
    /// The same when the events at hand are through.
    void noteSoon();

private:
    struct Position {
        float left = 0;
        float top = 0;
        float width = 0;
        float height = 0;
        bool operator==(const Position&) const = default;
    };

    FrmMain& model() const { return static_cast<FrmMain&>(*frame_.screen()); }
    QRect geometryOf(const Position& asked) const;
    void noteMaximised();

    const ScreenView& frame_;
    QMainWindow& window_;
    FrameSize size_;
    Position shownPosition_;
    QRect shownGeometry_;
    bool placing_ = false;   ///< the window moves because the model says so
    bool willNote_ = false;  ///< where the window stands
    bool maximised_ = false; ///< the window, or it is to be when it shows
};

} // namespace wb::desktop
