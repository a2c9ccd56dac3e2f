#include "desktop/tools/field_filter.h"

#include <algorithm>

#include "desktop/tools/field_model.h"

namespace wb::desktop {

void FieldFilter::look(const QString& words) {
    words_ = words.toLower().split(' ', Qt::SkipEmptyParts);
    invalidateFilter();
}

bool FieldFilter::filterAcceptsRow(int row, const QModelIndex& parent) const {
    const FieldNode& node = *FieldModel::nodeAt(sourceModel()->index(row, 0, parent));
    return words_.isEmpty() || (node.isField() && std::all_of(words_.begin(), words_.end(), [&](const QString& word) {
                                    return node.words.contains(word);
                                }));
}

} // namespace wb::desktop
