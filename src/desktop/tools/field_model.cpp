#include "desktop/tools/field_model.h"

#include <algorithm>

#include "desktop/base/tool_tip.h"

namespace wb::desktop {

namespace {

using Children = std::vector<std::unique_ptr<FieldNode>>;

bool sameLine(const std::unique_ptr<FieldNode>& a, const std::unique_ptr<FieldNode>& b) {
    return a->key == b->key && a->isField() == b->isField();
}

void renumber(Children& children, std::size_t from) {
    for (std::size_t i = from; i < children.size(); ++i) {
        children[i]->row = static_cast<int>(i);
    }
}

std::ptrdiff_t offset(std::size_t number) {
    return static_cast<std::ptrdiff_t>(number);
}

} // namespace

FieldModel::FieldModel() : root_(std::make_unique<FieldNode>()) {}

void FieldModel::show(const fields::Reading* reading) {
    const auto fresh = reading != nullptr ? fieldTree(*reading) : std::make_unique<FieldNode>();
    merge(*root_, *fresh, {});
}

void FieldModel::merge(FieldNode& shown, FieldNode& fresh, const QModelIndex& index) {
    if (shown.take(fresh)) {
        emit dataChanged(index, index.siblingAtColumn(columns - 1));
    }
    Children& old = shown.children;
    Children& now = fresh.children;
    const auto [oldMiddle, nowMiddle] = std::mismatch(old.begin(), old.end(), now.begin(), now.end(), &sameLine);
    const auto before = static_cast<std::size_t>(oldMiddle - old.begin());
    const auto [oldEnd, nowEnd] = std::mismatch(old.rbegin(), std::make_reverse_iterator(oldMiddle), now.rbegin(),
                                                std::make_reverse_iterator(nowMiddle), &sameLine);
    const auto after = static_cast<std::size_t>(oldEnd - old.rbegin());
    replaceChildren(shown, fresh, index, before, after);
    for (std::size_t i = 0; i < old.size(); ++i) {
        if (now[i] != nullptr) { // else it has just been put in
            merge(*old[i], *now[i], this->index(static_cast<int>(i), 0, index));
        }
    }
}

/// Replaces the children between the first `before` and the last `after` ones by those of the fresh line, and takes
/// them away from it.
void FieldModel::replaceChildren(FieldNode& shown, FieldNode& fresh, const QModelIndex& index, std::size_t before,
                                 std::size_t after) {
    Children& old = shown.children;
    Children& now = fresh.children;
    const int first = static_cast<int>(before);
    if (old.size() > before + after) {
        beginRemoveRows(index, first, static_cast<int>(old.size() - after) - 1);
        old.erase(old.begin() + offset(before), old.end() - offset(after));
        renumber(old, before);
        endRemoveRows();
    }
    if (now.size() > before + after) {
        beginInsertRows(index, first, static_cast<int>(now.size() - after) - 1);
        old.insert(old.begin() + offset(before), std::make_move_iterator(now.begin() + offset(before)),
                   std::make_move_iterator(now.end() - offset(after)));
        for (const auto& child : old) {
            child->parent = &shown;
        }
        renumber(old, before);
        endInsertRows();
    }
}

FieldNode& FieldModel::nodeOf(const QModelIndex& index) const {
    return index.isValid() ? *static_cast<FieldNode*>(index.internalPointer()) : *root_;
}

const FieldNode* FieldModel::nodeAt(const QModelIndex& index) {
    return index.isValid() ? static_cast<const FieldNode*>(index.internalPointer()) : nullptr;
}

QModelIndex FieldModel::indexOf(const fields::Field& field) const {
    FieldNode* node = findField(*root_, field);
    return node != nullptr ? createIndex(node->row, 0, node) : QModelIndex();
}

QModelIndex FieldModel::index(int row, int column, const QModelIndex& parent) const {
    const Children& children = nodeOf(parent).children;
    const bool there = row >= 0 && static_cast<std::size_t>(row) < children.size() && column >= 0 && column < columns;
    return there ? createIndex(row, column, children[static_cast<std::size_t>(row)].get()) : QModelIndex();
}

QModelIndex FieldModel::parent(const QModelIndex& index) const {
    FieldNode* parent = nodeOf(index).parent;
    return parent == nullptr || parent == root_.get() ? QModelIndex() : createIndex(parent->row, 0, parent);
}

int FieldModel::rowCount(const QModelIndex& parent) const {
    return parent.column() > 0 ? 0 : static_cast<int>(nodeOf(parent).children.size());
}

int FieldModel::columnCount(const QModelIndex& /*parent*/) const {
    return columns;
}

QVariant FieldModel::data(const QModelIndex& index, int role) const {
    const FieldNode& node = nodeOf(index);
    if (role == Qt::ToolTipRole) { // the columns may be narrow
        return toolTipOf(node.value.isEmpty() ? node.label : node.label + ": " + node.value);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (index.column()) {
        case Label:
            return node.label;
        case Value:
            return node.value;
        default:
            return node.bytes;
    }
}

QVariant FieldModel::headerData(int section, Qt::Orientation orientation, int role) const {
    static constexpr const char* heads[columns] = {"Field", "Value", "Bytes"};
    if (orientation != Qt::Horizontal) {
        return {};
    }
    if (role == Qt::ToolTipRole && section == Bytes) {
        return "In hexadecimal, from the start of the block; bits in brackets";
    }
    return role == Qt::DisplayRole ? QVariant(heads[section]) : QVariant();
}

} // namespace wb::desktop
