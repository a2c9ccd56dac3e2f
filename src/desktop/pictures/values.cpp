#include "desktop/pictures/values.h"

#include <algorithm>

namespace wb::desktop {

const fields::Field* Values::field(std::string_view name) const {
    const auto found =
        std::find_if(reading_.fields.begin(), reading_.fields.end(), [&](const fields::Field& candidate) {
            const std::string_view path = candidate.path;
            return path.size() == scope_.size() + name.size() && path.starts_with(scope_) && path.ends_with(name);
        });
    return found == reading_.fields.end() ? nullptr : &*found;
}

std::optional<double> Values::number(std::string_view name) const {
    const fields::Field* found = field(name);
    if (found == nullptr) {
        return {};
    }
    if (const auto* whole = std::get_if<std::int64_t>(&found->value)) {
        return static_cast<double>(*whole);
    }
    const auto* broken = std::get_if<double>(&found->value);
    return broken != nullptr ? std::optional(*broken) : std::nullopt;
}

bool Values::flag(std::string_view name) const {
    const fields::Field* found = field(name);
    const bool* isSet = found != nullptr ? std::get_if<bool>(&found->value) : nullptr;
    return isSet != nullptr && *isSet;
}

QString Values::text(std::string_view name) const {
    const fields::Field* found = field(name);
    const auto* text = found != nullptr ? std::get_if<std::string>(&found->value) : nullptr;
    return text != nullptr ? QString::fromStdString(*text) : QString();
}

Values Values::inner(std::string_view part) const {
    return {reading_, std::string(scope_).append(part)};
}

QString shortNumber(double number, int decimals) {
    QString text = QString::number(number, 'f', decimals);
    while (decimals > 0 && text.endsWith('0')) {
        text.chop(1);
        --decimals;
    }
    if (text.endsWith('.')) {
        text.chop(1);
    }
    return text;
}

} // namespace wb::desktop
