#include "fields/difference.h"

#include <map>

namespace wb::fields {

std::string Side::text() const {
    if (field == nullptr) {
        return "(none)";
    }
    return field->text.empty() ? "\"\"" : field->text;
}

bool FieldPair::differ() const {
    return first.field == nullptr || second.field == nullptr || first.raw() != second.raw();
}

std::pair<std::string, std::string> FieldPair::texts(std::string (*shown)(std::string_view)) const {
    std::pair<std::string, std::string> both = {first.text(), second.text()};
    if (shown != nullptr) {
        both = {shown(both.first), shown(both.second)};
    }
    if (both.first == both.second && differ()) {
        both.first += " (" + first.raw() + ')';
        both.second += " (" + second.raw() + ')';
    }
    return both;
}

std::vector<FieldPair> pairsOf(const Reading& first, const Reading& second) {
    std::map<std::string_view, const Field*> others;
    for (const Field& field : second.fields) {
        others.emplace(field.path, &field);
    }
    std::vector<FieldPair> pairs;
    for (const Field& field : first.fields) {
        const auto other = others.find(field.path);
        pairs.push_back({{&first, &field}, {&second, other == others.end() ? nullptr : other->second}});
        if (other != others.end()) {
            others.erase(other);
        }
    }
    for (const Field& field : second.fields) {
        if (others.count(field.path) != 0) {
            pairs.push_back({{&first, nullptr}, {&second, &field}});
        }
    }
    return pairs;
}

std::vector<FieldPair> differencesOf(const Reading& first, const Reading& second) {
    std::vector<FieldPair> pairs = pairsOf(first, second);
    std::erase_if(pairs, [](const FieldPair& pair) { return !pair.differ(); });
    return pairs;
}

} // namespace wb::fields
