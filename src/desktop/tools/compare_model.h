#pragma once

#include <QAbstractTableModel>
#include <optional>
#include <vector>

#include "fields/difference.h"

namespace wb::desktop {

/// The fields of two images beside each other, as a view shows them. Keeps what it shows, and no reading.
class CompareModel : public QAbstractTableModel {
public:
    enum Column { Label, Mine, Theirs, Path, columns };
    enum class Rows { Differences, All };

    using QAbstractTableModel::QAbstractTableModel;

    /// Shows the fields of both, or none where one is null.
    void show(const fields::Reading* mine, const fields::Reading* theirs, Rows rows);
    /// How many of the fields differ, be they shown or not.
    int differences() const { return differences_; }
    /// The first byte that the field of a row has in the first image; nothing where that has no such field.
    std::optional<int> byteOf(int row) const;
    QString pathOf(int row) const { return rows_[static_cast<std::size_t>(row)].path; }
    /// The row of that path, or -1.
    int rowOf(const QString& path) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Row {
        QString label;
        QString mine;
        QString theirs;
        QString path;
        std::optional<int> byte;
        bool differs;

        bool operator==(const Row&) const = default;
    };

    static Row rowFor(const fields::FieldPair& pair);

    std::vector<Row> rows_;
    int differences_ = 0;
};

} // namespace wb::desktop
