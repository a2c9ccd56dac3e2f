#pragma once

#include <QAbstractItemModel>
#include <memory>

#include "desktop/tools/field_tree.h"

namespace wb::desktop {

/// The tree of the fields as a view shows it. A new reading is worked into the lines that are there, so that a view
/// keeps what is open and selected, and draws anew only what has changed.
class FieldModel : public QAbstractItemModel {
public:
    enum Column { Label, Value, Bytes, columns };

    FieldModel();

    /// Shows the fields of the image, or none.
    void show(const fields::Reading* reading);
    /// The line of an index, or null.
    static const FieldNode* nodeAt(const QModelIndex& index);
    QModelIndex indexOf(const fields::Field& field) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    FieldNode& nodeOf(const QModelIndex& index) const;
    void merge(FieldNode& shown, FieldNode& fresh, const QModelIndex& index);
    void replaceChildren(FieldNode& shown, FieldNode& fresh, const QModelIndex& index, std::size_t before,
                         std::size_t after);

    std::unique_ptr<FieldNode> root_;
};

} // namespace wb::desktop
