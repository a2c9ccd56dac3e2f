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
/// A hair that is added to a quotient, which rounding may put below a whole number.
constexpr qreal roundingSlack = 0.01;

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

/// How much of the line from that place on goes into one of so many columns: up to the last blank, or as much as there
/// is room for where one word fills it.
qsizetype pieceLength(const QString& line, qsizetype from, qsizetype columns) {
    if (line.size() - from <= columns) {
        return line.size() - from;
    }
    const qsizetype blank = line.lastIndexOf(' ', from + columns);
    return blank > from ? blank + 1 - from : columns;
}

QStringList brokenLines(const std::string& text, qsizetype columns) {
    QStringList result;
    for (const QString& line : reportLines(text).split('\n')) {
        qsizetype from = 0;
        do {
            const qsizetype length = pieceLength(line, from, columns);
            result.append(line.mid(from, length));
            from += length;
        } while (from < line.size());
    }
    if (!result.isEmpty() && result.last().isEmpty()) {
        result.removeLast(); // the line end of the last line
    }
    return result;
}

/// Lines on pages whose last line is the foot.
class Pages {
public:
    Pages(const QStringList& lines, const QRectF& page, const QFontMetricsF& metrics)
        : lines_(lines), page_(page), metrics_(metrics) {
        constexpr qsizetype foot = 2; // with the line that sets it off
        const auto room = static_cast<qsizetype>(page.height() / metrics.lineSpacing() + roundingSlack);
        perPage_ = std::max<qsizetype>(1, room - foot);
        count_ = std::max<qsizetype>(1, (lines.size() + perPage_ - 1) / perPage_);
    }

    qsizetype count() const { return count_; }
    void paint(QPainter& painter, qsizetype number, const QString& title) const {
        qreal baseline = page_.top() + metrics_.ascent();
        for (const QString& line : lines_.mid(number * perPage_, perPage_)) {
            painter.drawText(QPointF(page_.left(), baseline), line);
            baseline += metrics_.lineSpacing();
        }
        const QString pageNumber = QString("Page %1 of %2").arg(number + 1).arg(count_);
        const QRectF foot(page_.left(), page_.bottom() - metrics_.height(), page_.width(), metrics_.height());
        painter.drawText(foot, Qt::AlignRight | Qt::AlignBottom, pageNumber);
        const qreal room = page_.width() - metrics_.horizontalAdvance(pageNumber + "  ");
        painter.drawText(foot, Qt::AlignLeft | Qt::AlignBottom, metrics_.elidedText(title, Qt::ElideMiddle, room));
    }

private:
    const QStringList& lines_;
    QRectF page_;
    QFontMetricsF metrics_;
    qsizetype perPage_ = 1;
    qsizetype count_ = 1;
};

} // namespace

void printText(const std::string& text, const QString& title, QPagedPaintDevice& device) {
    QPainter painter;
    if (!painter.begin(&device)) {
        return;
    }
    const QRectF page = painter.viewport();
    painter.setFont(fittingFont(device, page.width()));
    const QFontMetricsF metrics(painter.font(), &device);
    const qreal columnWidth = metrics.horizontalAdvance(QLatin1Char('0'));
    const auto columns = std::max<qsizetype>(1, static_cast<qsizetype>(page.width() / columnWidth + roundingSlack));
    const QStringList lines = brokenLines(text, columns);
    const Pages pages(lines, page, metrics);
    for (qsizetype number = 0; number < pages.count(); ++number) {
        if (number > 0) {
            device.newPage();
        }
        pages.paint(painter, number, title);
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
    const QString name = title ? title() : QString();
    device().setDocName(name);
    printText(text, name, device());
}

} // namespace wb::desktop
