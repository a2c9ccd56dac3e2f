#include "platform/headless/registry_export.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <utility>

#include "core/base/code_page.h"
#include "core/base/digits.h"
#include "core/base/text.h"

namespace wb::platform::headless {

namespace {

constexpr std::string_view blanks = " \t";

/// Numbers of the value types in "hex(N):".
constexpr std::uint32_t multipleTexts = 7;
constexpr auto typeNumbers = std::to_array<std::pair<std::uint32_t, RegistryType>>({{0, RegistryType::None},
                                                                                    {1, RegistryType::Text},
                                                                                    {2, RegistryType::ExpandableText},
                                                                                    {3, RegistryType::Binary},
                                                                                    {4, RegistryType::Number32}});

RegistryType typeOfNumber(std::uint32_t number) {
    for (const auto& [known, type] : typeNumbers) {
        if (known == number) {
            return type;
        }
    }
    return RegistryType::Other;
}

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

class ExportParser {
public:
    explicit ExportParser(const std::string& text) : rest_(text) {}

    std::vector<RegistryKey> parse() {
        parseHeader();
        while (nextLine()) {
            if (line_.empty() || line_.front() == ';') {
                continue;
            }
            if (line_.front() == '[') {
                parseKey();
            } else {
                parseValue();
            }
        }
        return std::move(keys_);
    }

private:
    [[noreturn]] void fail(const std::string& message) const {
        throw RegistryExportError(message, std::max(lineNumber_, 1));
    }

    bool nextLine() {
        if (rest_.empty()) {
            return false;
        }
        takeLine();
        ++lineNumber_;
        return true;
    }

    void takeLine() {
        const std::size_t end = rest_.find('\n');
        std::string_view line = rest_.substr(0, end);
        rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        line_ = trimmed(line);
    }

    void parseHeader() {
        while (nextLine() && line_.empty()) {
        }
        unicodeTexts_ = line_ == "Windows Registry Editor Version 5.00";
        if (!unicodeTexts_ && line_ != "REGEDIT4") {
            fail("this is no registry export");
        }
    }

    void parseKey() {
        const std::size_t end = closingBracket();
        std::string_view path = line_.substr(1, end - 1);
        inKey_ = true;
        const std::size_t rootEnd = path.find('\\');
        const std::string_view root = path.substr(0, rootEnd);
        kept_ = upperCase(root) == "HKEY_LOCAL_MACHINE"; // a deleted key has a minus in front and is not kept either
        if (kept_) {
            path.remove_prefix(rootEnd == std::string_view::npos ? path.size() : rootEnd + 1);
            keys_.push_back({std::string(path), {}});
        }
    }

    /// The first bracket that nothing but a comment follows: a key may have brackets in its name, a comment too.
    std::size_t closingBracket() const {
        std::size_t end = line_.find(']');
        if (end == std::string_view::npos) {
            fail("a key without its closing bracket");
        }
        for (; end != std::string_view::npos; end = line_.find(']', end + 1)) {
            const std::size_t tail = line_.find_first_not_of(blanks, end + 1);
            if (tail == std::string_view::npos || line_[tail] == ';') {
                return end;
            }
        }
        fail("text after a key");
    }

    void parseValue() {
        if (!inKey_) {
            fail("a value before the first key");
        }
        RegistryValue value;
        if (line_.front() == '@') {
            line_.remove_prefix(1);
        } else if (line_.front() == '"') {
            value.name = takeText();
        } else {
            fail("neither a key nor a value");
        }
        line_ = trimmed(line_);
        if (!line_.starts_with('=')) {
            fail("no '=' after the name of a value");
        }
        line_ = trimmed(line_.substr(1));
        if (parseData(value) && kept_) {
            keys_.back().values.push_back(std::move(value));
        }
    }

    /// False for a deleted value.
    bool parseData(RegistryValue& value) {
        if (line_.starts_with('"')) {
            value.type = RegistryType::Text;
            value.data = takeText() + '\0';
            endLine(line_);
            return true;
        }
        if (line_.starts_with("dword:")) {
            value.type = RegistryType::Number32;
            value.data = parseNumber(withoutComment(line_.substr(6)));
            return true;
        }
        if (line_.starts_with("hex")) {
            parseHex(value);
            return true;
        }
        if (!line_.starts_with('-')) {
            fail("unknown kind of data");
        }
        endLine(line_.substr(1));
        return false;
    }

    void endLine(std::string_view tail) const {
        if (!withoutComment(tail).empty()) {
            fail("text after the data of a value");
        }
    }

    static std::string_view withoutComment(std::string_view text) { return trimmed(text.substr(0, text.find(';'))); }

    /// Takes the quoted text at the front of the line. Line ends inside it belong to it.
    std::string takeText() {
        const std::string_view all(line_.data(), rest_.size() + static_cast<std::size_t>(rest_.data() - line_.data()));
        std::string text;
        std::size_t place = 1;
        for (;; ++place) {
            if (place < all.size() && all[place] == '"') {
                break;
            }
            if (place < all.size() && all[place] == '\\') {
                ++place;
                if (place < all.size() && all[place] != '"' && all[place] != '\\') {
                    fail("unknown escape in a text");
                }
            }
            if (place >= all.size()) {
                fail("a text without its closing quote");
            }
            text += all[place];
        }
        lineNumber_ += static_cast<int>(std::count(text.begin(), text.end(), '\n'));
        rest_ = all.substr(place + 1);
        takeLine();
        return text;
    }

    /// The four bytes of a number, least significant first.
    std::string parseNumber(std::string_view digits) const {
        const auto number = wholeNumber<std::uint32_t>(digits, 16);
        if (!number || digits.size() > 8) {
            fail("a dword is one to eight hexadecimal digits");
        }
        std::string bytes;
        for (unsigned shift = 0; shift < 32; shift += 8) {
            bytes += static_cast<char>((*number >> shift) & 0xFFU);
        }
        return bytes;
    }

    void parseHex(RegistryValue& value) {
        const std::size_t colon = line_.find(':');
        if (colon == std::string_view::npos) {
            fail("no ':' after the kind of data");
        }
        const std::uint32_t type = parseType(line_.substr(3, colon - 3));
        line_.remove_prefix(colon + 1);
        value.type = typeOfNumber(type);
        value.data = parseBytes();
        const bool holdsText =
            value.type == RegistryType::Text || value.type == RegistryType::ExpandableText || type == multipleTexts;
        if (holdsText && unicodeTexts_) {
            value.data = fromUtf16(value.data);
        }
    }

    /// The type number of "hex" (none) or "hex(N)".
    std::uint32_t parseType(std::string_view text) const {
        constexpr std::uint32_t binary = 3;
        if (text.empty()) {
            return binary;
        }
        const bool bracketed = text.size() > 2 && text.front() == '(' && text.back() == ')';
        const auto number = bracketed ? wholeNumber<std::uint32_t>(text.substr(1, text.size() - 2), 16) : std::nullopt;
        if (!number) {
            fail("unknown kind of data");
        }
        return *number;
    }

    /// The bytes of this line and of those that continue it.
    std::string parseBytes() {
        std::string bytes;
        std::string_view part = withoutComment(line_);
        bool owed = false; // a comma promises one more byte
        for (;;) {
            const bool continued = part.ends_with('\\');
            if (continued) {
                part = trimmed(part.substr(0, part.size() - 1));
            }
            parseByteList(part, bytes, owed);
            if (!continued) {
                break;
            }
            if (!nextLine()) {
                fail("the data of a value breaks off");
            }
            part = withoutComment(line_);
        }
        if (owed) {
            fail("a byte is missing after a comma");
        }
        return bytes;
    }

    void parseByteList(std::string_view list, std::string& bytes, bool& owed) const {
        while (!list.empty()) {
            if (!bytes.empty() && !owed) {
                fail("no comma between two bytes");
            }
            const std::size_t comma = list.find(',');
            const std::string_view digits = trimmed(list.substr(0, comma));
            const auto byte = wholeNumber<std::uint8_t>(digits, 16);
            if (!byte || digits.size() > 2) {
                fail("a byte is one or two hexadecimal digits");
            }
            bytes += static_cast<char>(*byte);
            owed = comma != std::string_view::npos;
            list = owed ? trimmed(list.substr(comma + 1)) : std::string_view();
        }
    }

    std::string_view rest_;
    std::string_view line_;
    int lineNumber_ = 0;
    bool unicodeTexts_ = false;
    bool inKey_ = false; ///< a key has begun
    bool kept_ = false;  ///< the values of the current key count
    std::vector<RegistryKey> keys_;
};

} // namespace

std::vector<RegistryKey> parseRegistryExport(std::string_view bytes) {
    const std::string text = decodeTextFile(bytes);
    return ExportParser(text).parse();
}

} // namespace wb::platform::headless
