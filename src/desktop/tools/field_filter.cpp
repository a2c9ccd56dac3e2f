#include "desktop/tools/field_filter.h"

#include <algorithm>

#include "desktop/tools/field_model.h"

namespace wb::desktop {

void FieldFilter::look(const QString& words) {
    words_ = words.toLower().split(' ', Qt::SkipEmptyParts);
    invalidateFilter();
}

bool FieldFilter::filterAcceptsRow(int row, const QModelIndex& parent) const {
    return words_.isEmpty() || accepts(*FieldModel::nodeAt(sourceModel()->index(row, 0, parent)));
}

bool FieldFilter::accepts(const FieldNode& node) const {
    if (!node.isField()) {
        return std::any_of(node.children.begin(), node.children.end(),
                           [this](const auto& child) { return accepts(*child); });
    }
    return std::all_of(words_.begin(), words_.end(),
                       [&node](const QString& word) { return node.words.contains(word); });
}

} // namespace wb::desktop
