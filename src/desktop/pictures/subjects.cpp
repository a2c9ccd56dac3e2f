#include "desktop/pictures/subjects.h"

#include <algorithm>
#include <array>

namespace wb::desktop {

namespace {

constexpr Painter chromaticity = {&drawChromaticity, 1.5, 8};

/// How the path of a field tells what there is to draw: what it begins with and, after a number in brackets, goes on
/// with.
struct Rule {
    std::string_view begin;
    std::string_view rest;
    const Painter* painter;
    std::string_view scope; ///< where it is not all of that; with the number of the field if it ends in a bracket
};

constexpr std::array rules = {
    Rule{"base.chromaticity.", "", &chromaticity, "base."},
};

/// The scope of the fields of that path by the rule, or nothing where it is another's.
std::optional<std::string> scopeBy(const Rule& rule, std::string_view path) {
    if (!path.starts_with(rule.begin)) {
        return {};
    }
    const std::size_t number = rule.begin.ends_with('[') ? path.find(']', rule.begin.size()) + 1 : rule.begin.size();
    if (!path.substr(number).starts_with(rule.rest)) {
        return {};
    }
    return std::string(rule.scope.empty() ? path.substr(0, number + rule.rest.size()) : rule.scope);
}

} // namespace

std::optional<Subject> subjectAt(const fields::Reading& reading, std::size_t byte) {
    const fields::Field* field = fields::fieldAt(reading, byte, 0);
    if (field == nullptr) {
        return {};
    }
    for (const Rule& rule : rules) {
        if (const auto scope = scopeBy(rule, field->path)) {
            return Subject{rule.painter, *scope};
        }
    }
    return {};
}

Picture draw(const Subject& subject, const fields::Reading& reading, const Canvas& canvas) {
    return subject.painter->draw(Values(reading, subject.scope), canvas);
}

} // namespace wb::desktop
