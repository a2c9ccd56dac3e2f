#pragma once

#include <QObject>
#include <QPlainTextEdit>
#include <functional>
#include <optional>

namespace wb::desktop {

/// Leads from the dumps of a report to the cells: by a click on a byte, over which the pointer is a hand, and by
/// Ctrl+Enter on the one that the cursor stands at.
class ReportBytes : public QObject {
public:
    using Go = std::function<void(int byte)>;

    /// Lives as long as the report.
    ReportBytes(QPlainTextEdit& report, Go go);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::optional<int> byteAt(const QPoint& place) const;
    void showPointer(const QPoint& place);
    void goTo(std::optional<int> byte);

    QPlainTextEdit& report_;
    Go go_;
    std::optional<QPoint> pressed_; ///< where a press began that may become a click
};

} // namespace wb::desktop
