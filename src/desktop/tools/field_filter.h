#pragma once

#include <QSortFilterProxyModel>
#include <QStringList>

namespace wb::desktop {

/// The fields that a search finds, with the groups and blocks that they stand in: all words must be there, in any order
/// and case, in the field's label, value, bytes, path or in the titles of its groups.
class FieldFilter : public QSortFilterProxyModel {
public:
    FieldFilter() { setRecursiveFilteringEnabled(true); }

    /// Nothing to search for lets all lines through.
    void look(const QString& words);
    bool looks() const { return !words_.isEmpty(); }

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    QStringList words_;
};

} // namespace wb::desktop
