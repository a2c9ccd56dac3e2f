#pragma once

#include <QObject>
#include <QPlainTextEdit>

namespace wb::desktop {

/// Shows a report larger or smaller: by the wheel with Ctrl, and by Ctrl with plus, minus and 0 wherever the focus is
/// in its window. Nothing but the size of its face changes.
class ReportZoom : public QObject {
public:
    /// Both live as long as the zoom, which belongs to the report.
    ReportZoom(QPlainTextEdit& report, QWidget& window);

    /// How many steps it is from the usual size.
    int steps() const { return steps_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool takeKey(QKeyEvent& event);
    void turn(const QWheelEvent& wheel);
    void zoomTo(int steps);
    void apply();

    QPlainTextEdit& report_;
    int steps_ = 0;
    int turned_ = 0; ///< of the wheel, since the last step
};

} // namespace wb::desktop
