#include "desktop/windows/report_pane.h"

#include <QEvent>
#include <QVBoxLayout>
#include <utility>

#include "desktop/windows/find_bar.h"
#include "desktop/windows/report_zoom.h"

namespace wb::desktop {

ReportPane::ReportPane(QWidget& page, QPlainTextEdit& report, ReportBytes::Go goToByte)
    : findBar_(new FindBar(report)), heads_(new ReportHeads(*report.document())) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(&page, 1);
    column->addWidget(findBar_);
    heads_->setColours(report.palette());
    new ReportZoom(report, *this);
    new ReportBytes(report, std::move(goToByte));
}

void ReportPane::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        heads_->setColours(palette());
    }
}

} // namespace wb::desktop
