#include "platform/headless/registry_tree.h"

#include <unordered_map>

#include "core/base/text.h"
#include "platform/registry_path.h"

namespace wb::platform::headless {

struct RegistryTree::Node {
    std::string name;
    RegistryCode openCode = RegistryCode::Ok;
    std::vector<Node*> children;
    std::unordered_map<std::string, Node*> childByName; ///< by upper-case name
    std::vector<RegistryValue> values;
    std::unordered_map<std::string, std::size_t> valueByName;
};

RegistryTree::RegistryTree() {
    clear();
}

RegistryTree::~RegistryTree() = default;

void RegistryTree::clear() {
    open_.clear();
    nodes_.clear();
    nodes_.push_back(std::make_unique<Node>());
    root_ = nodes_.back().get();
}

/// Null where there is no key of that path below the node.
RegistryTree::Node* RegistryTree::find(Node* node, const std::string& path) {
    for (const std::string_view part : registryPathParts(path)) {
        const auto child = node->childByName.find(upperCase(part));
        if (child == node->childByName.end()) {
            return nullptr;
        }
        node = child->second;
    }
    return node;
}

RegistryTree::Node& RegistryTree::make(const std::string& path) {
    Node* node = root_;
    for (const std::string_view part : registryPathParts(path)) {
        Node*& child = node->childByName[upperCase(part)];
        if (child == nullptr) {
            nodes_.push_back(std::make_unique<Node>());
            child = nodes_.back().get();
            child->name = std::string(part);
            node->children.push_back(child);
        }
        node = child;
    }
    return *node;
}

RegistryTree::Node* RegistryTree::opened(Key key) const {
    const auto found = open_.find(key);
    return found == open_.end() ? nullptr : found->second;
}

void RegistryTree::addKey(const std::string& path) {
    make(path);
}

void RegistryTree::setValue(const std::string& path, RegistryValue value) {
    Node& node = make(path);
    const auto [place, isNew] = node.valueByName.try_emplace(upperCase(value.name), node.values.size());
    if (isNew) {
        node.values.push_back(std::move(value));
    } else {
        node.values[place->second] = std::move(value);
    }
}

void RegistryTree::refuse(const std::string& path, RegistryCode code) {
    make(path).openCode = code;
}

RegistryCode RegistryTree::open(const std::string& path, Key& key) {
    return open(find(root_, path), key);
}

RegistryCode RegistryTree::open(Key above, const std::string& path, Key& key) {
    Node* const node = opened(above);
    return node == nullptr ? RegistryCode::Refused : open(find(node, path), key);
}

RegistryCode RegistryTree::open(Node* node, Key& key) {
    if (node == nullptr) {
        return RegistryCode::NotFound;
    }
    if (node->openCode != RegistryCode::Ok) {
        return node->openCode;
    }
    key = nextKey_++;
    open_[key] = node;
    return RegistryCode::Ok;
}

RegistryCode RegistryTree::queryInfo(Key key, int& subKeys, int& values) {
    const Node* node = opened(key);
    if (node == nullptr) {
        return RegistryCode::Refused;
    }
    subKeys = static_cast<int>(node->children.size());
    values = static_cast<int>(node->values.size());
    return RegistryCode::Ok;
}

RegistryCode RegistryTree::enumerateKey(Key key, int index, std::string& name) {
    const Node* node = opened(key);
    if (node == nullptr) {
        return RegistryCode::Refused;
    }
    if (index < 0 || index >= static_cast<int>(node->children.size())) {
        return RegistryCode::NoMoreItems;
    }
    const std::string& found = node->children[static_cast<std::size_t>(index)]->name;
    if (found.size() > registryBufferSize) {
        return RegistryCode::MoreData;
    }
    name = found;
    return RegistryCode::Ok;
}

RegistryCode RegistryTree::enumerateValue(Key key, int index, RegistryValue& value) {
    const Node* node = opened(key);
    if (node == nullptr) {
        return RegistryCode::Refused;
    }
    if (index < 0 || index >= static_cast<int>(node->values.size())) {
        return RegistryCode::NoMoreItems;
    }
    const RegistryValue& found = node->values[static_cast<std::size_t>(index)];
    if (found.name.size() > registryBufferSize || found.data.size() > registryBufferSize) {
        return RegistryCode::MoreData;
    }
    value = found;
    return RegistryCode::Ok;
}

RegistryCode RegistryTree::readValue(Key key, const std::string& name, RegistryValue& value) {
    const Node* node = opened(key);
    if (node == nullptr) {
        return RegistryCode::Refused;
    }
    const auto found = node->valueByName.find(upperCase(name));
    if (found == node->valueByName.end()) {
        return RegistryCode::NotFound;
    }
    value = node->values[found->second];
    return RegistryCode::Ok;
}

void RegistryTree::close(Key key) {
    open_.erase(key);
}

} // namespace wb::platform::headless
