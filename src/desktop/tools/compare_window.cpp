#include "desktop/tools/compare_window.h"

#include <QFileInfo>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPointer>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>
#include <utility>

#include "desktop/base/byte_words.h"
#include "desktop/base/own_focus.h"
#include "desktop/base/text_codec.h"
#include "desktop/base/tool_tip.h"
#include "desktop/tools/beside.h"
#include "shell/go_to_byte.h"

namespace wb::desktop {

namespace {

/// What tells the images of a file apart.
QString titleOf(const Image& image, std::size_t number) {
    const QString output = fromFileNameBytes(image.origin().output);
    const QString size = QString("%1 bytes").arg(image.bytes().size());
    return output.isEmpty() ? QString("Image %1, %2").arg(number + 1).arg(size) : output + ", " + size;
}

} // namespace

CompareWindow::CompareWindow(MainView& frame)
    : QDialog(&frame.window()),
      frame_(frame),
      file_(new QLabel),
      choice_(new QComboBox),
      only_(new QCheckBox("Only what &differs")),
      table_(new QTreeView),
      outcome_(new QLabel),
      go_(new QPushButton("&Go to Cell")) {
    markOwnFocus(*this);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle("Compare");
    auto* column = new QVBoxLayout(this);
    makeHead(*column);
    makeTable();
    column->addWidget(table_, 1);
    makeFoot(*column);
    frame.liveReading().listen(*this, [this] { refresh(); });

    constexpr int wide = 120;
    constexpr int high = 30;
    const QSize wanted(fontMetrics().averageCharWidth() * wide, fontMetrics().lineSpacing() * high);
    resize(wanted.boundedTo(frame.window().screen()->availableSize() * 0.9));
    placeBeside(*this, frame.window());
}

void CompareWindow::makeHead(QBoxLayout& column) {
    auto* row = new QHBoxLayout;
    file_->setTextFormat(Qt::PlainText);
    file_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long name must not widen the window
    row->addWidget(file_, 1);
    choice_->setAccessibleName("Image of the file");
    row->addWidget(choice_);
    only_->setChecked(true);
    row->addWidget(only_);
    column.addLayout(row);
    QObject::connect(choice_, &QComboBox::activated, this, [this] { takeImage(); });
    QObject::connect(only_, &QCheckBox::toggled, this, [this] { refresh(); });
}

void CompareWindow::makeTable() {
    table_->setModel(&model_);
    table_->setAccessibleName("Fields of both images");
    table_->setRootIsDecorated(false);
    table_->setUniformRowHeights(true);
    table_->setAllColumnsShowFocus(true);
    table_->setAlternatingRowColors(true);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    sizeColumns();
    QObject::connect(table_, &QTreeView::activated, this, [this] { goToCell(); });
    QObject::connect(table_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { refreshGo(); });
}

void CompareWindow::sizeColumns() {
    constexpr int labelCharacters = 30;
    constexpr int valueCharacters = 24;
    const int character = table_->fontMetrics().averageCharWidth();
    table_->header()->resizeSection(CompareModel::Label, labelCharacters * character);
    table_->header()->resizeSection(CompareModel::Mine, valueCharacters * character);
    table_->header()->resizeSection(CompareModel::Theirs, valueCharacters * character);
}

void CompareWindow::makeFoot(QBoxLayout& column) {
    auto* row = new QHBoxLayout;
    outcome_->setTextFormat(Qt::PlainText);
    outcome_->setWordWrap(true);
    row->addWidget(outcome_, 1);
    go_->setToolTip("Enter or a double click on a field does so too");
    row->addWidget(go_);
    auto* close = new QPushButton("Close");
    row->addWidget(close);
    column.addLayout(row);
    go_->setAutoDefault(false); // Enter in the table is that of its row
    close->setAutoDefault(false);
    QObject::connect(go_, &QPushButton::clicked, this, [this] { goToCell(); });
    QObject::connect(close, &QPushButton::clicked, this, &QDialog::close);
}

void CompareWindow::show(std::vector<Image> images) {
    images_ = std::move(images);
    const ImageOrigin& origin = images_.front().origin();
    const QFileInfo file(fromFileNameBytes(origin.file));
    file_->setText("The open image and " + file.fileName());
    file_->setToolTip(toolTipOf(file.filePath()));
    choice_->clear();
    for (std::size_t i = 0; i < images_.size(); ++i) {
        choice_->addItem(titleOf(images_[i], i));
    }
    choice_->setVisible(images_.size() > 1);
    takeImage();
    QDialog::show();
    raise();
    activateWindow();
    table_->setFocus();
}

void CompareWindow::takeImage() {
    theirs_.emplace(fields::read(images_[static_cast<std::size_t>(choice_->currentIndex())]));
    refresh();
}

void CompareWindow::refresh() {
    const QModelIndex current = table_->currentIndex();
    const QString path = current.isValid() ? model_.pathOf(current.row()) : QString();
    const int scrolled = table_->verticalScrollBar()->value();
    model_.show(frame_.liveReading().reading(), theirs_ ? &*theirs_ : nullptr,
                only_->isChecked() ? CompareModel::Rows::Differences : CompareModel::Rows::All);
    outcome_->setText(outcome());
    const int row = model_.rowOf(path);
    table_->setCurrentIndex(model_.index(row < 0 ? 0 : row, 0));
    table_->verticalScrollBar()->setValue(scrolled);
    refreshGo();
}

QString CompareWindow::outcome() const {
    const LiveReading& live = frame_.liveReading();
    if (live.readingBesides() == nullptr) {
        return "No image is open.";
    }
    if (!live.complaint().isEmpty()) {
        return live.complaint();
    }
    switch (model_.differences()) {
        case 0:
            return "The images are the same.";
        case 1:
            return "1 field differs.";
        default:
            return QString("%1 fields differ.").arg(model_.differences());
    }
}

void CompareWindow::refreshGo() {
    const auto byte = model_.byteOf(table_->currentIndex().row());
    go_->setEnabled(byte && *byte < imageSize);
}

void CompareWindow::goToCell() {
    if (const auto byte = model_.byteOf(table_->currentIndex().row())) {
        frame_.act([&frame = frame_, window = QPointer(this), number = *byte](Screen& screen) {
            const bool done = shell::goToByte(screen.workbench(), number);
            if (done) {
                frame.window().activateWindow();
            }
            if (window != nullptr) {
                window->outcome_->setText(done ? window->outcome() : outOfReach(static_cast<std::size_t>(number)));
            }
        });
    }
}

} // namespace wb::desktop
