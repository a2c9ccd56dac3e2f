#include "desktop/services/printing.h"

#include <QDir>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrinterInfo>
#include <QStandardPaths>
#include <algorithm>

#include "desktop/base/report_text.h"
#include "desktop/drawing/fonts.h"
#include "report/report_lines.h"

namespace wb::desktop {

namespace {

constexpr qreal largestPointSize = 10;

/// The largest size up to ten points in which a report's line fits the width.
QFont fittingFont(QPaintDevice& device, qreal width) {
    QFont font = fixedPitchFont();
    font.setPointSizeF(largestPointSize);
    const qreal line = QFontMetricsF(font, &device).horizontalAdvance(QString(report::reportWidth, QLatin1Char('0')));
    if (line > width) {
        font.setPointSizeF(largestPointSize * width / line);
    }
    return font;
}

QDir documentsFolder() {
    const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    return documents.exists() ? documents : QDir::home();
}

QStringList brokenLines(const std::string& text, qsizetype columns) {
    QStringList result;
    for (const QString& line : reportLines(text).split('\n')) {
        qsizetype from = 0;
        do {
            result.append(line.mid(from, columns));
            from += columns;
        } while (from < line.size());
    }
    if (!result.isEmpty() && result.last().isEmpty()) {
        result.removeLast(); // the line end of the last line
    }
    return result;
}

} // namespace

void printText(const std::string& text, QPagedPaintDevice& device) {
    QPainter painter;
    if (!painter.begin(&device)) {
        return;
    }
    const QRectF page = painter.viewport();
    painter.setFont(fittingFont(device, page.width()));
    const QFontMetricsF metrics(painter.font(), &device);
    const qreal columnWidth = metrics.horizontalAdvance(QLatin1Char('0'));
    // A hair more than the quotient, which rounding may put below a whole number.
    const auto columns = std::max<qsizetype>(1, static_cast<qsizetype>(page.width() / columnWidth + 0.01));

    qreal bottom = 0;
    for (const QString& line : brokenLines(text, columns)) {
        if (bottom + metrics.lineSpacing() > page.height()) {
            device.newPage();
            bottom = 0;
        }
        painter.drawText(QPointF(0, bottom + metrics.ascent()), line);
        bottom += metrics.lineSpacing();
    }
}

QPrinter& QtPrinter::device() {
    if (device_ == nullptr) {
        constexpr int margin = 15; // millimetres
        device_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
        device_->setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter);
        if (QPrinterInfo::availablePrinterNames().isEmpty()) {
            device_->setOutputFormat(QPrinter::PdfFormat);
            device_->setOutputFileName(documentsFolder().filePath("report.pdf"));
        }
    }
    return *device_;
}

void QtPrinter::print(const std::string& text) {
    printText(text, device());
}

} // namespace wb::desktop
