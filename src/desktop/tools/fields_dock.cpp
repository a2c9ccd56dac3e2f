#include "desktop/tools/fields_dock.h"

#include <QEvent>
#include <QHeaderView>

namespace wb::desktop {

FieldsDock::FieldsDock(MainView& frame)
    : ToolDock(frame, "dockFields", "Fields"), words_(new QLineEdit), tree_(new QTreeView) {
    words_->setPlaceholderText("Search");
    words_->setAccessibleName("Search in the fields");
    words_->setToolTip("Words of a name, a value or a path");
    words_->setClearButtonEnabled(true);
    QObject::connect(words_, &QLineEdit::textChanged, this, [this] { look(); });
    QObject::connect(words_, &QLineEdit::returnPressed, this, [this] { goToFound(); });
    column().setSpacing(0);
    column().addWidget(words_);
    makeTree();
    column().addWidget(tree_, 1);
}

void FieldsDock::makeTree() {
    found_.setSourceModel(&fields_);
    tree_->setModel(&found_);
    tree_->setAccessibleName("Fields of the image");
    tree_->setFocusPolicy(Qt::TabFocus); // a click leads to a cell, which has the focus then
    tree_->setUniformRowHeights(true);
    tree_->setAllColumnsShowFocus(true);
    tree_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tree_->setAlternatingRowColors(true);
    sizeColumns();
    QObject::connect(tree_, &QTreeView::clicked, this, [this](const QModelIndex& index) { goTo(index); });
    QObject::connect(tree_, &QTreeView::activated, this, [this](const QModelIndex& index) { goTo(index); });
}

void FieldsDock::sizeColumns() {
    constexpr int labelCharacters = 31;
    constexpr int valueCharacters = 18;
    const int character = tree_->fontMetrics().averageCharWidth();
    tree_->setIndentation(2 * character);
    tree_->header()->resizeSection(FieldModel::Label, labelCharacters * character);
    tree_->header()->resizeSection(FieldModel::Value, valueCharacters * character);
}

void FieldsDock::changeEvent(QEvent* event) {
    ToolDock::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        sizeColumns();
    }
}

void FieldsDock::find() {
    show();
    raise();
    words_->setFocus(Qt::ShortcutFocusReason);
    words_->selectAll();
}

void FieldsDock::showImage(const LiveReading& live) {
    fields_.show(live.readingBesides());
    if (found_.looks()) {
        found_.look(words_->text());
    }
    openBlocks();
    followed_.reset();
}

/// Opens the blocks of an image that has come, and leaves them as the user has them then.
void FieldsDock::openBlocks() {
    const bool there = fields_.rowCount() > 0;
    if (there && !opened_) {
        tree_->expandToDepth(0);
    }
    opened_ = there;
}

void FieldsDock::follow(std::size_t byte) {
    const fields::Reading* reading = frame().liveReading().readingBesides();
    if (followed_ == byte || reading == nullptr) {
        return;
    }
    followed_ = byte;
    const FieldNode* current = FieldModel::nodeAt(found_.mapToSource(tree_->currentIndex()));
    constexpr int highestBit = 7;
    const fields::Field* field = fields::fieldAt(*reading, byte, highestBit);
    if (field == nullptr || (current != nullptr && current->where.covers(byte))) {
        return;
    }
    const QModelIndex index = found_.mapFromSource(fields_.indexOf(*field));
    tree_->setCurrentIndex(index);
    if (index.isValid()) {
        tree_->scrollTo(index);
    }
}

void FieldsDock::look() {
    found_.look(words_->text());
    followed_.reset();
    if (found_.looks()) {
        tree_->expandAll();
    } else {
        tree_->collapseAll();
        tree_->expandToDepth(0);
        refresh();
    }
}

void FieldsDock::goTo(const QModelIndex& index) {
    const FieldNode* node = FieldModel::nodeAt(found_.mapToSource(index));
    if (node != nullptr && node->isField()) {
        goToByte(node->where.firstByte());
    }
}

/// From the search: to the first field that it has found, or back.
void FieldsDock::goToFound() {
    QModelIndex index = found_.looks() ? found_.index(0, 0) : QModelIndex();
    while (index.isValid() && found_.rowCount(index) > 0) {
        index = found_.index(0, 0, index);
    }
    if (index.isValid()) {
        tree_->setCurrentIndex(index);
        goTo(index);
    } else {
        frame().giveFocusBack();
    }
}

} // namespace wb::desktop
