#include "script/parser.h"

#include "core/base/digits.h"
#include "script/script_error.h"

namespace wb::script {

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

/// Walks over one line and takes its words.
class LineReader {
public:
    explicit LineReader(std::string_view line) : line_(line) {}

    bool atEnd() {
        while (place_ < line_.size() && isBlank(line_[place_])) {
            ++place_;
        }
        return place_ == line_.size();
    }
    char peek() const { return line_[place_]; }

    Argument word() { return peek() == '"' ? quotedWord() : Argument{bareWord()}; }

private:
    std::string bareWord() {
        const std::size_t start = place_;
        while (place_ < line_.size() && !isBlank(line_[place_])) {
            if (line_[place_] == '"') {
                throw ScriptError("a quote inside an argument that does not begin with one");
            }
            ++place_;
        }
        return std::string(line_.substr(start, place_ - start));
    }

    Argument quotedWord() {
        Argument argument{{}, true};
        for (++place_; next() != '"'; ++place_) {
            argument.text += line_[place_] == '\\' ? escaped() : line_[place_];
        }
        ++place_;
        if (place_ < line_.size() && !isBlank(line_[place_])) {
            throw ScriptError("no blank after a quoted argument");
        }
        return argument;
    }

    /// The character of the escape that begins here; stops at its last character.
    char escaped() {
        ++place_;
        switch (next()) {
            case '"':
            case '\\':
                return line_[place_];
            case 'n':
                return '\n';
            case 'r':
                return '\r';
            case 't':
                return '\t';
            case 'x':
                return escapedCode();
            default:
                throw ScriptError(std::string("unknown escape '\\") + line_[place_] + "'");
        }
    }

    char escapedCode() {
        int code = 0;
        for (int digit = 0; digit < 2; ++digit) {
            ++place_;
            const int value = hexDigit(next());
            if (value < 0) {
                throw ScriptError("'\\x' needs two hexadecimal digits");
            }
            code = code * 16 + value;
        }
        return static_cast<char>(code);
    }

    char next() const {
        if (place_ >= line_.size()) {
            throw ScriptError("a quoted argument without its closing quote");
        }
        return line_[place_];
    }

    std::string_view line_;
    std::size_t place_ = 0;
};

} // namespace

std::optional<Command> parseLine(std::string_view line) {
    LineReader reader(line);
    if (reader.atEnd() || reader.peek() == '#') {
        return std::nullopt;
    }
    Command command;
    const Argument name = reader.word();
    if (name.quoted) {
        throw ScriptError("a quoted text where a command should stand");
    }
    command.name = name.text;
    while (!reader.atEnd()) {
        command.arguments.push_back(reader.word());
    }
    return command;
}

} // namespace wb::script
