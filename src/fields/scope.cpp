#include "fields/scope.h"

#include <algorithm>
#include <cmath>

#include "core/base/code_page.h"

namespace wb::fields {

namespace {

constexpr unsigned lineFeed = 0x0A;

double plainNumber(const Row& row, std::uint64_t raw, int bits) {
    const auto modulus = std::ldexp(1.0, bits);
    const auto number = static_cast<double>(raw);
    return row.kind == Kind::Signed && number >= modulus / 2 ? number - modulus : number;
}

void readNumber(const Row& row, std::uint64_t raw, Field& field) {
    if (const std::string_view words = choiceText(row.choices, raw); !words.empty()) {
        field.text = words;
        return;
    }
    field.scale = row.scale;
    field.bias = row.bias;
    const double number = plainNumber(row, raw, field.where.bits()) * row.scale + row.bias;
    if (row.decimals == 0) {
        field.value = static_cast<std::int64_t>(std::llround(number));
    } else {
        field.value = number;
    }
    field.text = withUnit(decimalText(number, row.decimals), row.unit);
    field.unit = row.unit;
}

void readChoice(const Row& row, std::uint64_t raw, Field& field) {
    const std::string_view words = choiceText(row.choices, raw);
    field.text = words.empty() ? "reserved (" + std::to_string(raw) + ")" : std::string(words);
    field.value = field.text;
}

/// A descriptor's text ends at a line feed; blanks fill what follows it. One without the end mark may lose its padding.
std::string charactersOf(std::span<const std::uint8_t> bytes) {
    const auto end = std::find(bytes.begin(), bytes.end(), lineFeed);
    std::string text(bytes.begin(), end);
    text.erase(text.find_last_not_of(std::string_view(" \0", 2)) + 1);
    return text;
}

/// Where the rows that stand before `end` stop: no row has bytes on both sides. In the order of their first bytes, a
/// row that is left out moves the cut for those before it alone.
std::size_t cutOf(std::span<const Row> rows, std::size_t end) {
    std::size_t cut = 0;
    for (const Row& row : rows) {
        cut = std::max(cut, endOf(row));
    }
    cut = std::min(cut, end);
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        if (endOf(*row) > cut) {
            cut = std::min(cut, firstByteOf(*row));
        }
    }
    return cut;
}

const Choice* choiceOf(std::span<const Choice> choices, std::uint64_t raw) {
    const auto found =
        std::find_if(choices.begin(), choices.end(), [&](const Choice& choice) { return choice.raw == raw; });
    return found == choices.end() ? nullptr : &*found;
}

bool isReservedValue(const Row& row, std::uint64_t raw) {
    const Choice* choice = choiceOf(row.choices, raw);
    return choice == nullptr ? row.kind == Kind::Choice : choice->isReserved;
}

void readText(const std::string& characters, Field& field) {
    field.value = codePageToUtf8(characters);
    field.text = printable(characters);
}

} // namespace

Scope Scope::inner(std::size_t offset, std::string_view name, std::string_view clause) const {
    return {*reading_, start_ + offset, pathOf(name), clause.empty() ? clause_ : clause};
}

std::string Scope::pathOf(std::string_view name) const {
    std::string path;
    path.reserve(path_.size() + 1 + name.size());
    path += path_;
    if (!name.starts_with('[')) {
        path += '.';
    }
    path += name;
    return path;
}

Where Scope::whereOf(const Parts& parts, std::size_t length) const {
    Where where;
    for (const Part& part : parts) {
        where.add({place(part.offset), part.high, part.low, length});
    }
    return where;
}

std::uint64_t Scope::raw(const Parts& parts) const {
    return whereOf(parts, 1).value(reading_->image.bytes());
}

void Scope::add(std::span<const Row> rows, std::size_t end) const {
    for (const Row& row : rows) {
        const bool inside = std::all_of(row.parts.begin(), row.parts.end(),
                                        [&](const Part& part) { return part.offset + row.length <= end; });
        if (inside) {
            add(row);
        }
    }
}

void Scope::fill(WholeRows table, std::size_t end) const {
    const std::size_t cut = cutOf(table.rows(), end);
    add(table.rows(), cut);
    addBytes(cut, end, "rest", "Further bytes");
}

Field& Scope::add(const Row& row) const {
    Field field;
    field.path = pathOf(row.name);
    field.label = row.label;
    field.clause = row.clause.empty() ? clause_ : row.clause;
    field.where = whereOf(row.parts, row.length);
    field.identifies = row.identifies;
    const std::size_t offset = row.parts.begin()->offset;
    const std::uint64_t bits = row.length == 1 ? field.where.value(reading_->image.bytes()) : 0;
    switch (row.kind) {
        case Kind::Number:
        case Kind::Signed:
            readNumber(row, bits, field);
            break;
        case Kind::Flag:
            field.value = bits != 0;
            field.text = bits != 0 ? "yes" : "no";
            break;
        case Kind::Choice:
            readChoice(row, bits, field);
            break;
        case Kind::Text:
            readText(charactersOf(bytes(offset, row.length)), field);
            break;
        case Kind::Bytes:
        case Kind::Reserved:
            field.text = row.length > 1 ? hexText(bytes(offset, row.length)) : hexNumber(bits, field.where.bits());
            break;
    }
    if (row.read != nullptr) {
        row.read(*this, bits, field);
    }
    if (row.kind == Kind::Reserved) {
        checkReserved(row);
    } else if (isReservedValue(row, bits)) {
        tellReservedValue(row);
    }
    reading_->fields.push_back(std::move(field));
    return reading_->fields.back();
}

void Scope::addBytes(std::size_t offset, std::size_t end, std::string_view name, std::string_view label,
                     Kind kind) const {
    if (offset < end) {
        add(Row{.name = name, .label = label, .parts = {{offset}}, .kind = kind, .length = end - offset});
    }
}

void Scope::tell(Severity severity, std::string_view code, std::size_t offset, std::string_view name, std::string text,
                 std::string_view clause) const {
    reading_->findings.push_back({severity, code, block(), place(offset), name.empty() ? std::string() : pathOf(name),
                                  std::move(text), clause.empty() ? clause_ : clause});
}

void Scope::tellReservedValue(const Row& row) const {
    tell(Severity::Warning, "field.reserved_value", row.parts.begin()->offset, row.name,
         "The value " + std::to_string(raw(row.parts)) + " of \"" + std::string(row.label) +
             "\" has no meaning in any standard, so that software guesses or passes over it; choose one that has.",
         row.clause);
}

void Scope::checkReserved(const Row& row) const {
    const std::size_t offset = row.parts.begin()->offset;
    const bool isSet = row.length == 1 ? raw(row.parts) != 0 : !allZero(bytes(offset, row.length));
    if (isSet) {
        tell(Severity::Warning, "field.reserved_bits", offset, row.name,
             "Bits are set that are reserved, to which later standards may give a meaning that is not meant here; set "
             "them to 0.",
             row.clause);
    }
}

std::string_view choiceText(std::span<const Choice> choices, std::uint64_t raw) {
    const Choice* choice = choiceOf(choices, raw);
    return choice == nullptr ? std::string_view() : choice->text;
}

bool allZero(std::span<const std::uint8_t> bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte == 0; });
}

} // namespace wb::fields
