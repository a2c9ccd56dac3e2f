#include "desktop/windows/flow_layout.h"

#include <QMargins>
#include <algorithm>

namespace wb::desktop {

QLayoutItem* FlowLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
    if (itemAt(index) == nullptr) {
        return nullptr;
    }
    QLayoutItem* item = items_[static_cast<std::size_t>(index)].release();
    items_.erase(items_.begin() + index);
    return item;
}

int FlowLayout::heightForWidth(int width) const {
    return arrange(QRect(0, 0, width, 0), false);
}

QSize FlowLayout::sizeHint() const {
    return minimumSize();
}

QSize FlowLayout::minimumSize() const {
    QSize size;
    for (const auto& item : items_) {
        size = size.expandedTo(item->minimumSize());
    }
    return size.grownBy(contentsMargins());
}

void FlowLayout::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    arrange(rect, true);
}

int FlowLayout::arrange(const QRect& rect, bool apply) const {
    const QRect inner = rect.marginsRemoved(contentsMargins());
    const int gap = std::max(spacing(), 0);
    int x = inner.left();
    int y = inner.top();
    int rowHeight = 0;
    for (const auto& item : items_) {
        const QSize size = item->sizeHint();
        if (x > inner.left() && x + size.width() > inner.right() + 1) {
            x = inner.left();
            y += rowHeight + gap;
            rowHeight = 0;
        }
        if (apply) {
            item->setGeometry(QRect(QPoint(x, y), size));
        }
        x += size.width() + gap;
        rowHeight = std::max(rowHeight, size.height());
    }
    return y + rowHeight - rect.top() + contentsMargins().bottom();
}

} // namespace wb::desktop
