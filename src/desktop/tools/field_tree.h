#pragma once

#include <QString>
#include <memory>
#include <vector>

#include "fields/reading.h"

namespace wb::desktop {

/// A line in the tree of the fields: a block, a group of fields that belong together, such as a detailed timing, or a
/// field. All texts are ready to be shown.
struct FieldNode {
    QString key; ///< part of the field's path; among its neighbours the same as long as it means the same
    QString label;
    QString value;
    QString bytes;       ///< in hexadecimal, counted from the start of the block
    QString words;       ///< of a field: all that a search is to find it by, in lower case
    fields::Where where; ///< of a field; else empty
    FieldNode* parent = nullptr;
    int row = 0; ///< among the children of its parent
    std::vector<std::unique_ptr<FieldNode>> children;

    bool isField() const { return where.begin() != where.end(); }
    /// Takes over all texts, not the children. False where they were the same.
    bool take(const FieldNode& other);
};

/// The fields of the image, in blocks and groups.
std::unique_ptr<FieldNode> fieldTree(const fields::Reading& reading);

/// The line of the field with that path, or null.
FieldNode* findField(FieldNode& root, const fields::Field& field);

} // namespace wb::desktop
