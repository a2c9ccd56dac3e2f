#include "cli/plain_reading.h"

#include <CLI/CLI.hpp>
#include <cstdlib>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

#include "cli/cli_error.h"
#include "cli/output.h"
#include "cli/program.h"
#include "core/base/json_writer.h"
#include "core/base/text.h"

namespace wb::cli {

namespace {

std::string byteNumber(std::size_t number) {
    return ByteToHex2(static_cast<long long>(number));
}

struct ValueWords {
    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(bool truth) const { return truth ? "true" : "false"; }
    std::string operator()(std::int64_t number) const { return std::to_string(number); }
    std::string operator()(double number) const { return JsonWriter().value(number).text(); }
    std::string operator()(const std::string& text) const { return text; }
    std::string operator()(const std::vector<fields::Scalar>& list) const {
        std::string words;
        for (const fields::Scalar& scalar : list) {
            words += words.empty() ? "" : ",";
            words += std::visit(*this, scalar);
        }
        return words;
    }
};

void appendEscaped(std::string& line, char c) {
    switch (c) {
        case '\\':
            line += "\\\\";
            break;
        case '\t':
            line += "\\t";
            break;
        case '\n':
            line += "\\n";
            break;
        default:
            line += isControl(c) ? controlEscape(c) : std::string(1, c);
            break;
    }
}

bool outputIsTerminal() {
#ifdef _WIN32
    return _isatty(_fileno(stdout)) != 0;
#else
    return isatty(STDOUT_FILENO) != 0;
#endif
}

} // namespace

void addFormatOption(CLI::App& command, std::string& format, const std::vector<std::string>& names) {
    std::string help;
    for (const std::string& name : names) {
        help += (help.empty() ? "" : ", ") + name + (help.empty() ? " (the default)" : "");
    }
    command.add_option("--format", format, help)->type_name("FORMAT")->check(CLI::IsMember(names))->take_last();
}

OutputFormat outputFormatOf(const std::string& name) {
    return name == "json" ? OutputFormat::Json : name == "tsv" ? OutputFormat::Tsv : OutputFormat::Text;
}

fields::Reading readingOf(const Input& input) {
    const Content content = imageIn(input);
    const std::string bytes = content.kind == ContentKind::DataFile ? Program().dataFileBytes(input) : content.image;
    const std::optional<Image> image = Image::fromBytes(bytes, {.file = input.name, .form = {}, .output = {}});
    if (!image) {
        throw CliError("has " + std::to_string(bytes.size()) + " bytes; an image has 128 or more");
    }
    return fields::read(*image);
}

std::string placeText(const fields::Where& where) {
    std::string text;
    for (const fields::BitRange& range : where) {
        text += text.empty() ? "" : "+";
        text += byteNumber(range.byte);
        if (range.count > 1) {
            text += '-' + byteNumber(range.byte + range.count - 1);
        } else if (range.high == range.low) {
            text += '[' + std::to_string(range.high) + ']';
        } else if (range.high != 7 || range.low != 0) {
            text += '[' + std::to_string(range.high) + ':' + std::to_string(range.low) + ']';
        }
    }
    return text;
}

std::string valueText(const fields::Value& value) {
    return std::visit(ValueWords{}, value);
}

std::string tsvLine(const std::vector<std::string_view>& columns) {
    std::string line;
    for (const std::string_view column : columns) {
        for (const char c : column) {
            appendEscaped(line, c);
        }
        line += '\t';
    }
    line.back() = '\n';
    return line;
}

bool forEachFile(const std::vector<std::string>& names, const std::function<void(const std::string& name)>& work) {
    bool good = true;
    for (const std::string& name : names) {
        try {
            work(name);
        } catch (const CliError& error) {
            complain(name, error.what());
            good = false;
        }
    }
    return good;
}

bool usesColour() {
    return outputIsTerminal() && std::getenv("NO_COLOR") == nullptr;
}

} // namespace wb::cli
