#include "script/parser.h"

#include <algorithm>

#include "core/base/digits.h"
#include "script/script_error.h"

namespace wb::script {

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

bool isLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
}

bool isNameCharacter(char c) {
    return isLetter(c) || (c >= '0' && c <= '9');
}

/// Walks over one line and takes its words.
class LineReader {
public:
    LineReader(std::string_view line, const Substitutions& substitutions)
        : line_(line), substitutions_(substitutions) {}

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
        std::string text;
        for (; place_ < line_.size() && !isBlank(line_[place_]); ++place_) {
            if (line_[place_] == '"') {
                throw ScriptError("a quote inside an argument that does not begin with one");
            }
            text += plain();
        }
        return text;
    }

    Argument quotedWord() {
        Argument argument{{}, true};
        for (++place_; next() != '"'; ++place_) {
            argument.text += line_[place_] == '\\' ? std::string(1, escaped()) : plain();
        }
        ++place_;
        if (place_ < line_.size() && !isBlank(line_[place_])) {
            throw ScriptError("no blank after a quoted argument");
        }
        return argument;
    }

    /// The character that stands here, or the text that it calls for; stops at the last character of its name.
    std::string plain() {
        if (line_[place_] == '$') {
            const auto* const start = line_.begin() + static_cast<std::ptrdiff_t>(place_) + 1;
            const auto* const end = std::find_if_not(start, line_.end(), isNameCharacter);
            const auto found = substitutions_.find(std::string_view(start, static_cast<std::size_t>(end - start)));
            if (found != substitutions_.end()) {
                place_ += found->first.size();
                return found->second;
            }
        }
        return std::string(1, line_[place_]);
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
    const Substitutions& substitutions_;
    std::size_t place_ = 0;
};

} // namespace

bool isSubstitutionName(std::string_view text) {
    return !text.empty() && isLetter(text.front()) && std::all_of(text.begin(), text.end(), isNameCharacter);
}

std::optional<Command> parseLine(std::string_view line, const Substitutions& substitutions) {
    LineReader reader(line, substitutions);
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
