#pragma once

#include <QSortFilterProxyModel>
#include <QStringList>

namespace wb::desktop {

struct FieldNode;

/// The fields that a search finds, with the groups and blocks that they stand in: all words must be there, in any order
/// and case, in the field's label, value, bytes, path or in the titles of its groups. Of a field that changes it
/// notices itself, not of its groups, for which it must look again: the recursive filtering of Qt 6.4 loses count of
/// the lines below a hidden group that it has once been asked for, and crashes then.
class FieldFilter : public QSortFilterProxyModel {
public:
    /// Nothing to search for lets all lines through.
    void look(const QString& words);
    bool looks() const { return !words_.isEmpty(); }

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    bool accepts(const FieldNode& node) const;

    QStringList words_;
};

} // namespace wb::desktop
