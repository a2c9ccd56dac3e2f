#pragma once

#include <QString>
#include <optional>
#include <string>
#include <string_view>

#include "fields/reading.h"

namespace wb::desktop {

/// The fields of a reading whose paths have the same beginning, such as "base.detailed[2].".
class Values {
public:
    /// The reading must outlive its values.
    Values(const fields::Reading& reading, std::string_view scope) : reading_(reading), scope_(scope) {}

    const fields::Reading& reading() const { return reading_; }
    /// Fields by the rest of their path. Null or empty where there is no such field, or its bits stand for "not told".
    const fields::Field* field(std::string_view name) const;
    std::optional<double> number(std::string_view name) const;
    double numberOr0(std::string_view name) const { return number(name).value_or(0); }
    bool flag(std::string_view name) const;
    QString text(std::string_view name) const;
    /// Those of a part of them, such as "white_point[1].".
    Values inner(std::string_view part) const;

private:
    const fields::Reading& reading_;
    std::string scope_;
};

/// The number with as many decimals at most.
QString shortNumber(double number, int decimals);

} // namespace wb::desktop
