#pragma once

#include <QPlainTextEdit>

#include "desktop/windows/report_bytes.h"
#include "desktop/windows/report_heads.h"

namespace wb::desktop {

class FindBar;

/// The inside of the report window: the page with the report and, below it, the bar of its search; and what makes the
/// report easier to read.
class ReportPane : public QWidget {
public:
    ReportPane(QWidget& page, QPlainTextEdit& report, ReportBytes::Go goToByte);

    FindBar& findBar() const { return *findBar_; }

protected:
    void changeEvent(QEvent* event) override;

private:
    FindBar* findBar_;
    ReportHeads* heads_;
};

} // namespace wb::desktop
