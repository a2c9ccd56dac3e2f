#include "desktop/tools/field_tree.h"

#include <QStringList>
#include <algorithm>
#include <array>
#include <string_view>
#include <tuple>

#include "desktop/base/text_codec.h"
#include "fields/place_text.h"

namespace wb::desktop {

namespace {

struct Title {
    std::string_view part; ///< of a path
    std::string_view title;
};

/// Groups whose part of the path, with blanks and a capital, is no good title.
constexpr auto titles = std::to_array<Title>({
    {"audio", "Audio format"},
    {"basic", "Basic display"},
    {"capability_map_420", "4:2:0 capability map"},
    {"cta", "CTA data blocks"},
    {"cvt", "CVT timing"},
    {"detailed", "Detailed timing"},
    {"established", "Established timings"},
    {"hdmi", "HDMI"},
    {"hdmi_forum", "HDMI Forum"},
    {"hdr", "HDR"},
    {"preference", "Preferred format"},
    {"range", "Range limits"},
    {"standard", "Standard timing"},
    {"three_d", "3D format"},
    {"three_d_all", "3D of all formats"},
    {"type_i", "Type I timings"},
    {"type_vii", "Type VII timings"},
    {"type_viii", "Type VIII timings"},
    {"type_ix", "Type IX timings"},
    {"video", "Video format"},
    {"video_420", "Video format in 4:2:0 only"},
});

/// "detailed[2]" is "Detailed timing 2".
QString titleOf(const QString& part) {
    const qsizetype bracket = part.indexOf('[');
    const QString name = bracket < 0 ? part : part.left(bracket);
    QString title = QString(name).replace('_', ' ');
    title[0] = title[0].toUpper();
    for (const Title& known : titles) {
        if (name == fromUtf8(known.part)) {
            title = fromUtf8(known.title);
        }
    }
    if (bracket >= 0) {
        title += ' ' + part.mid(bracket + 1).chopped(1);
    }
    return title;
}

QString sumText(fields::Sum sum) {
    switch (sum) {
        case fields::Sum::Ok:
            return "check sum ok";
        case fields::Sum::Wrong:
            return "check sum wrong";
        case fields::Sum::Missing:
            break;
    }
    return "announced, not there";
}

std::size_t blockOf(const fields::Field& field) {
    return field.where.front().byte / Image::blockSize;
}

/// The same bits with the bytes counted from the start of their block, as the cells of its screen are.
fields::Where inBlock(const fields::Where& where) {
    fields::Where counted;
    for (fields::BitRange range : where) {
        range.byte %= Image::blockSize;
        counted.add(range);
    }
    return counted;
}

/// What of a path stands below its block: all but the first part.
QStringList partsBelowBlock(const fields::Field& field) {
    QStringList parts = QString::fromStdString(field.path).split('.');
    if (parts.size() > 1) {
        parts.removeFirst();
    }
    return parts;
}

FieldNode& add(FieldNode& parent) {
    auto node = std::make_unique<FieldNode>();
    node->parent = &parent;
    node->row = static_cast<int>(parent.children.size());
    parent.children.push_back(std::move(node));
    return *parent.children.back();
}

FieldNode* childOf(FieldNode& parent, const QString& key) {
    // Fields of a group follow each other mostly.
    const auto found = std::find_if(parent.children.rbegin(), parent.children.rend(),
                                    [&](const auto& child) { return child->key == key; });
    return found == parent.children.rend() ? nullptr : found->get();
}

FieldNode& groupOf(FieldNode& parent, const QString& key) {
    if (FieldNode* found = childOf(parent, key)) {
        return *found;
    }
    FieldNode& group = add(parent);
    group.key = key;
    group.label = titleOf(key);
    return group;
}

void addField(FieldNode& block, const fields::Field& field) {
    const QStringList parts = partsBelowBlock(field);
    FieldNode* parent = &block;
    QString groups;
    for (const QString& part : parts.first(parts.size() - 1)) {
        parent = &groupOf(*parent, part);
        groups += ' ' + parent->label;
    }
    FieldNode& node = add(*parent);
    node.key = parts.back();
    node.label = fromUtf8(field.label);
    node.value = QString::fromStdString(field.text);
    node.bytes = QString::fromStdString(fields::placeText(inBlock(field.where)));
    node.where = field.where;
    node.words =
        QString(node.label + ' ' + node.value + ' ' + node.bytes + ' ' + QString::fromStdString(field.path) + groups)
            .toLower();
}

auto textsOf(const FieldNode& node) {
    return std::tie(node.key, node.label, node.value, node.bytes, node.words);
}

} // namespace

bool FieldNode::take(const FieldNode& other) {
    where = other.where;
    if (textsOf(*this) == textsOf(other)) {
        return false;
    }
    std::tie(key, label, value, bytes, words) = textsOf(other);
    return true;
}

std::unique_ptr<FieldNode> fieldTree(const fields::Reading& reading) {
    auto root = std::make_unique<FieldNode>();
    for (const fields::BlockInfo& info : reading.blocks) {
        FieldNode& block = add(*root);
        block.key = QString::number(info.index);
        block.label = QString("Block %1: %2").arg(info.index).arg(fromUtf8(info.name));
        block.value = sumText(info.sum);
    }
    for (const fields::Field& field : reading.fields) {
        addField(*root->children[blockOf(field)], field);
    }
    return root;
}

FieldNode* findField(FieldNode& root, const fields::Field& field) {
    FieldNode* node = childOf(root, QString::number(blockOf(field)));
    for (const QString& part : partsBelowBlock(field)) {
        node = node != nullptr ? childOf(*node, part) : nullptr;
    }
    return node;
}

} // namespace wb::desktop
