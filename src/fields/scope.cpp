#include "fields/scope.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "core/base/code_page.h"

namespace wb::fields {

namespace {

constexpr unsigned lineFeed = 0x0A;

std::uint64_t maskOf(int bits) {
    return (std::uint64_t{1} << static_cast<unsigned>(bits)) - 1;
}

int bitsOf(const Row& row) {
    int bits = 0;
    for (const Part& part : row.parts) {
        bits += part.high - part.low + 1;
    }
    return bits;
}

double plainNumber(const Row& row, std::uint64_t raw) {
    const auto modulus = static_cast<double>(maskOf(bitsOf(row))) + 1;
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
    const double number = plainNumber(row, raw) * row.scale + row.bias;
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

/// Of the characters of Latin-1 and ASCII, those that are no signs.
bool isControl(char16_t character) {
    return character < u' ' || (character >= u'\x7F' && character < u'\xA0');
}

constexpr std::string_view hexDigits = "0123456789ABCDEF";

void appendHex(std::string& text, unsigned byte) {
    text += hexDigits[byte >> 4U];
    text += hexDigits[byte & 15U];
}

/// A text of 8-bit characters in UTF-8 without control characters, which stand as "\x0D".
std::string printable(std::string_view characters) {
    std::string text;
    for (const char character : characters) {
        if (isControl(codePageToUnicode(character))) {
            text += "\\x";
            appendHex(text, static_cast<unsigned char>(character));
        } else {
            text += codePageToUtf8({&character, 1});
        }
    }
    return text;
}

/// Where the rows that stand before `end` stop: no row has bytes on both sides.
std::size_t cutOf(std::span<const Row> rows, std::size_t end) {
    std::size_t cut = 0;
    for (const Row& row : rows) {
        for (const Part& part : row.parts) {
            cut = std::max(cut, part.offset + row.length);
        }
    }
    cut = std::min(cut, end);
    for (bool moved = true; moved;) {
        moved = false;
        for (const Row& row : rows) {
            const auto beyond = [&](const Part& part) { return part.offset + row.length > cut; };
            if (std::any_of(row.parts.begin(), row.parts.end(), beyond)) {
                for (const Part& part : row.parts) {
                    moved = moved || part.offset < cut;
                    cut = std::min(cut, part.offset);
                }
            }
        }
    }
    return cut;
}

bool isRun(const Field& field) {
    return field.where.front().count > 1;
}

void readText(const std::string& characters, Field& field) {
    field.value = codePageToUtf8(characters);
    field.text = printable(characters);
}

/// The value of the bits of a field, and how many they are.
std::pair<std::uint64_t, int> bitsOf(std::span<const std::uint8_t> image, const Where& where) {
    std::uint64_t value = 0;
    int count = 0;
    for (const BitRange& range : where) {
        const int bits = range.high - range.low + 1;
        value = value << static_cast<unsigned>(bits) | (image[range.byte] >> range.low & maskOf(bits));
        count += bits;
    }
    return {value, count};
}

} // namespace

Scope Scope::inner(std::size_t offset, std::string_view name, std::string_view clause) const {
    std::string path = path_;
    if (!name.starts_with('[')) {
        path += '.';
    }
    path += name;
    return {*reading_, start_ + offset, std::move(path), clause.empty() ? clause_ : clause};
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

std::uint64_t Scope::raw(const Parts& parts) const {
    std::uint64_t value = 0;
    for (const Part& part : parts) {
        const int bits = part.high - part.low + 1;
        value = value << static_cast<unsigned>(bits) | (byte(part.offset) >> part.low & maskOf(bits));
    }
    return value;
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

void Scope::fill(std::span<const Row> rows, std::size_t end) const {
    const std::size_t cut = cutOf(rows, end);
    add(rows, cut);
    addBytes(cut, end, "rest", "Further bytes");
}

Field& Scope::add(const Row& row) const {
    Field field;
    field.path = pathOf(row.name);
    field.label = row.label;
    field.clause = row.clause.empty() ? clause_ : row.clause;
    for (const Part& part : row.parts) {
        field.where.add({place(part.offset), part.high, part.low, row.length});
    }
    const std::size_t offset = row.parts.begin()->offset;
    const std::uint64_t bits = row.length == 1 ? raw(row.parts) : 0;
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
            field.text = isRun(field) ? hexText(bytes(offset, row.length)) : rawText(reading_->image, field);
            break;
    }
    if (row.read != nullptr) {
        row.read(*this, bits, field);
    }
    if (row.kind == Kind::Reserved) {
        checkReserved(row);
    } else if (row.kind == Kind::Choice && choiceText(row.choices, bits).empty()) {
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
    const auto found =
        std::find_if(choices.begin(), choices.end(), [&](const Choice& choice) { return choice.raw == raw; });
    return found == choices.end() ? std::string_view() : found->text;
}

std::string rawText(const Image& image, const Field& field) {
    if (isRun(field)) {
        const BitRange& run = field.where.front();
        std::string text;
        for (const unsigned byte : image.bytes().subspan(run.byte, run.count)) {
            appendHex(text, byte);
        }
        return text;
    }
    const auto [value, bits] = bitsOf(image.bytes(), field.where);
    return hexNumber(value, bits);
}

std::string hexNumber(std::uint64_t number, int bits) {
    std::string text;
    for (int digit = (bits + 3) / 4 - 1; digit >= 0; --digit) {
        text += hexDigits[number >> static_cast<unsigned>(4 * digit) & 15U];
    }
    return text;
}

std::string decimalText(double value, int decimals) {
    std::array<char, 64> buffer{};
    const auto [end, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, decimals);
    return error == std::errc() ? std::string(buffer.data(), end) : std::string();
}

std::string withUnit(std::string number, std::string_view unit) {
    if (!unit.empty()) {
        number += ' ';
        number += unit;
    }
    return number;
}

std::string numbered(std::string_view name, std::size_t number) {
    std::string text(name);
    text += '[';
    text += std::to_string(number);
    text += ']';
    return text;
}

std::string hexText(std::span<const std::uint8_t> bytes) {
    std::string text;
    text.reserve(bytes.size() * 3);
    for (const unsigned byte : bytes) {
        if (!text.empty()) {
            text += ' ';
        }
        appendHex(text, byte);
    }
    return text;
}

bool allZero(std::span<const std::uint8_t> bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte == 0; });
}

std::string_view severityName(Severity severity) {
    switch (severity) {
        case Severity::Note:
            return "note";
        case Severity::Warning:
            return "warning";
        case Severity::Error:
            break;
    }
    return "error";
}

} // namespace wb::fields
