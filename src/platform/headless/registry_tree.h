#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/services.h"

namespace wb::platform::headless {

/// A registry tree in memory. Keys and values keep the order in which they were added and are found in any letter case.
class RegistryTree : public Registry {
public:
    RegistryTree();
    ~RegistryTree() override;

    /// Adds the key with all that lead to it; those that are there stay as they are.
    void addKey(const std::string& path);
    /// Adds or replaces a value of a key that is added if need be.
    void setValue(const std::string& path, RegistryValue value);
    /// Opening that key gives `code` from now on.
    void refuse(const std::string& path, RegistryCode code = RegistryCode::Refused);
    void clear();

    RegistryCode open(const std::string& path, Key& key) override;
    RegistryCode open(Key above, const std::string& path, Key& key) override;
    RegistryCode queryInfo(Key key, int& subKeys, int& values) override;
    RegistryCode enumerateKey(Key key, int index, std::string& name) override;
    RegistryCode enumerateValue(Key key, int index, RegistryValue& value) override;
    RegistryCode readValue(Key key, const std::string& name, RegistryValue& value) override;
    void close(Key key) override;

private:
    struct Node;

    static Node* find(Node* node, const std::string& path);
    RegistryCode open(Node* node, Key& key);
    Node& make(const std::string& path);
    Node* opened(Key key) const;

    std::vector<std::unique_ptr<Node>>
        nodes_; ///< owned in one flat list, so that a deep tree goes without deep recursion
    Node* root_;
    std::map<Key, Node*> open_;
    Key nextKey_ = 1;
};

} // namespace wb::platform::headless
