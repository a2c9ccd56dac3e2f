#include "desktop/tools/compare_model.h"

#include <QFont>
#include <algorithm>
#include <array>
#include <utility>

#include "desktop/base/text_codec.h"
#include "desktop/base/tool_tip.h"

namespace wb::desktop {

CompareModel::Row CompareModel::rowFor(const fields::FieldPair& pair) {
    const auto [mine, theirs] = pair.texts();
    Row row{fromUtf8(pair.any().label),
            fromUtf8(mine).simplified(),
            fromUtf8(theirs).simplified(),
            fromUtf8(pair.any().path),
            std::nullopt,
            pair.differ()};
    if (pair.first.field != nullptr) {
        row.byte = static_cast<int>(pair.first.field->where.firstByte());
    }
    return row;
}

void CompareModel::show(const fields::Reading* mine, const fields::Reading* theirs, Rows wanted) {
    std::vector<Row> rows;
    int differences = 0;
    if (mine != nullptr && theirs != nullptr) {
        for (const fields::FieldPair& pair : fields::pairsOf(*mine, *theirs)) {
            Row row = rowFor(pair);
            differences += row.differs ? 1 : 0;
            if (row.differs || wanted == Rows::All) {
                rows.push_back(std::move(row));
            }
        }
    }
    differences_ = differences;
    if (rows == rows_) {
        return;
    }
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

std::optional<int> CompareModel::byteOf(int row) const {
    return row >= 0 && row < rowCount() ? rows_[static_cast<std::size_t>(row)].byte : std::nullopt;
}

int CompareModel::rowOf(const QString& path) const {
    const auto row = std::find_if(rows_.begin(), rows_.end(), [&](const Row& each) { return each.path == path; });
    return row == rows_.end() ? -1 : static_cast<int>(row - rows_.begin());
}

int CompareModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int CompareModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns;
}

QVariant CompareModel::data(const QModelIndex& index, int role) const {
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    const std::array<const QString*, columns> texts = {&row.label, &row.mine, &row.theirs, &row.path};
    switch (role) {
        case Qt::DisplayRole:
            return *texts[static_cast<std::size_t>(index.column())];
        case Qt::ToolTipRole:
            return toolTipOf(*texts[static_cast<std::size_t>(index.column())]);
        case Qt::FontRole:
            if (row.differs && (index.column() == Mine || index.column() == Theirs)) {
                QFont bold;
                bold.setBold(true);
                return bold;
            }
            return {};
        default:
            return {};
    }
}

QVariant CompareModel::headerData(int section, Qt::Orientation orientation, int role) const {
    constexpr std::array<const char*, columns> names = {"Field", "Open image", "File", "Path"};
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return QString(names[static_cast<std::size_t>(section)]);
}

} // namespace wb::desktop
