#include "desktop/tools/findings_dock.h"

#include <QStatusBar>
#include <QStringList>
#include <QStyle>
#include <algorithm>

#include "desktop/base/byte_words.h"
#include "desktop/base/counted.h"
#include "shell/go_to_byte.h"

namespace wb::desktop {

namespace {

constexpr int byteRole = Qt::UserRole;

QStyle::StandardPixmap pictureOf(fields::Severity severity) {
    switch (severity) {
        case fields::Severity::Error:
            return QStyle::SP_MessageBoxCritical;
        case fields::Severity::Warning:
            return QStyle::SP_MessageBoxWarning;
        case fields::Severity::Note:
            break;
    }
    return QStyle::SP_MessageBoxInformation;
}

QString severityText(fields::Severity severity) {
    const std::string_view name = fields::severityName(severity);
    return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
}

QString lineOf(const fields::Finding& finding) {
    QString severity = severityText(finding.severity);
    severity[0] = severity[0].toUpper();
    return severity + ": " + bytePlace(finding.byte) + ". " + QString::fromStdString(finding.text);
}

QListWidgetItem* makeItem(const fields::Finding& finding, const QStyle& style) {
    auto* item = new QListWidgetItem(style.standardIcon(pictureOf(finding.severity)), lineOf(finding));
    item->setData(byteRole, static_cast<qulonglong>(finding.byte));
    return item;
}

} // namespace

std::vector<fields::Finding> gravestFirst(const std::vector<fields::Finding>& findings) {
    std::vector<fields::Finding> sorted = findings;
    std::stable_sort(sorted.begin(), sorted.end(), [](const fields::Finding& a, const fields::Finding& b) {
        return static_cast<int>(a.severity) > static_cast<int>(b.severity);
    });
    return sorted;
}

QString countText(const std::vector<fields::Finding>& findings) {
    const auto count = [&](fields::Severity severity) {
        return std::count_if(findings.begin(), findings.end(),
                             [severity](const fields::Finding& finding) { return finding.severity == severity; });
    };
    QStringList parts;
    for (const fields::Severity severity : {fields::Severity::Error, fields::Severity::Warning}) {
        if (const auto number = count(severity); number > 0) {
            parts += counted(number, severityText(severity));
        }
    }
    if (!parts.isEmpty()) {
        return parts.join(", ");
    }
    return findings.empty() ? "no findings" : counted(count(fields::Severity::Note), "note");
}

FindingsDock::FindingsDock(MainView& frame)
    : ToolDock(frame, "dockFindings", "Findings"), list_(new QListWidget), count_(new QToolButton) {
    makeList();
    makeCount();
}

void FindingsDock::makeList() {
    constexpr int lines = 8; // beside the fields, which ask for all the room there is
    list_->setMinimumHeight(lines * list_->fontMetrics().lineSpacing());
    list_->setAccessibleName("Findings");
    list_->setFocusPolicy(Qt::TabFocus); // a click leads to a cell, which has the focus then
    list_->setWordWrap(true);
    list_->setTextElideMode(Qt::ElideNone);
    list_->setResizeMode(QListView::Adjust);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list_->setAlternatingRowColors(true);
    const auto go = [this](const QListWidgetItem* item) {
        goToByte(static_cast<std::size_t>(item->data(byteRole).toULongLong()));
    };
    QObject::connect(list_, &QListWidget::itemClicked, this, go);
    QObject::connect(list_, &QListWidget::itemActivated, this, go);
    column().addWidget(list_);
}

void FindingsDock::makeCount() {
    count_->setAutoRaise(true);
    count_->setFocusPolicy(Qt::NoFocus);
    count_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored); // the status bar stays as low as it is
    count_->setToolTip("Shows what is wrong with the image");
    count_->hide();
    frame().window().statusBar()->addPermanentWidget(count_);
    QObject::connect(count_, &QToolButton::clicked, this, [this] {
        show();
        raise();
    });
    frame().liveReading().listen(*this, [this] { showCount(); });
}

void FindingsDock::showCount() {
    const LiveReading& live = frame().liveReading();
    count_->setVisible(live.readingBesides() != nullptr);
    count_->setText(live.reading() != nullptr ? countText(live.reading()->findings) : "a cell holds no byte");
    count_->setAccessibleName("Findings: " + count_->text());
}

void FindingsDock::showImage(const LiveReading& live) {
    const std::vector<fields::Finding> findings =
        live.reading() != nullptr ? gravestFirst(live.reading()->findings) : std::vector<fields::Finding>();
    const auto same = [this](const fields::Finding& finding, int row) {
        return row < list_->count() && list_->item(row)->text() == lineOf(finding);
    };
    int row = 0;
    for (const fields::Finding& finding : findings) {
        if (!same(finding, row)) {
            delete list_->takeItem(row);
            list_->insertItem(row, makeItem(finding, *style()));
        }
        list_->item(row)->setData(byteRole, static_cast<qulonglong>(finding.byte));
        ++row;
    }
    while (list_->count() > row) {
        delete list_->takeItem(row);
    }
}

void FindingsDock::step(int by) {
    const fields::Reading* reading = frame().liveReading().reading();
    if (reading == nullptr || reading->findings.empty()) {
        return;
    }
    std::vector<std::size_t> bytes;
    for (const fields::Finding& finding : reading->findings) {
        if (finding.byte < Image::blockSize * Image::editedBlocks) {
            bytes.push_back(finding.byte);
        }
    }
    std::sort(bytes.begin(), bytes.end());
    if (bytes.empty()) {
        return;
    }
    const std::optional<int> focused = shell::focusedByte(frame().screen()->workbench());
    const auto here = focused ? std::optional(static_cast<std::size_t>(*focused)) : std::nullopt;
    if (by > 0) {
        const auto next = std::upper_bound(bytes.begin(), bytes.end(), here.value_or(bytes.back()));
        goToByte(next == bytes.end() ? bytes.front() : *next);
    } else {
        const auto next = std::lower_bound(bytes.begin(), bytes.end(), here.value_or(bytes.front()));
        goToByte(next == bytes.begin() ? bytes.back() : *(next - 1));
    }
}

} // namespace wb::desktop
