#include "cli/plain_reading.h"

#include <cstdlib>

#include "cli/attempt.h"
#include "cli/output.h"
#include "cli/syntax.h"
#include "core/base/json_writer.h"
#include "core/base/text.h"

namespace wb::cli {

namespace {

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

std::string escaped(std::string_view column) {
    std::string text;
    for (const char c : column) {
        switch (c) {
            case '\\':
                text += "\\\\";
                break;
            case '\t':
                text += "\\t";
                break;
            case '\n':
                text += "\\n";
                break;
            default:
                text += c;
                break;
        }
    }
    return withoutControls(text);
}

} // namespace

std::vector<std::string> textAndJson() {
    return {"text", "json"};
}

std::vector<std::string> textJsonAndTsv() {
    return {"text", "json", "tsv"};
}

void addFormatOption(Syntax& syntax, std::string& format, Option::Names names) {
    syntax.option("--format", "FORMAT", "", &format).oneOf(names);
}

OutputFormat outputFormatOf(const std::string& name) {
    return name == "json" ? OutputFormat::Json : name == "tsv" ? OutputFormat::Tsv : OutputFormat::Text;
}

void forEachReading(const std::string& name, const ImageOptions& options,
                    const std::function<void(const fields::Reading& reading)>& take) {
    const Contents contents = contentsOf(readInput(name), options);
    for (const Image& image : imagesOf(contents)) {
        take(fields::read(image));
    }
}

std::string valueText(const fields::Value& value) {
    return std::visit(ValueWords{}, value);
}

std::string tsvLine(const std::vector<std::string_view>& columns) {
    std::string line;
    for (const std::string_view column : columns) {
        line += escaped(column) + '\t';
    }
    line.back() = '\n';
    return line;
}

bool forEachFile(const FileOptions& options, const std::function<void(const std::string& name)>& work) {
    bool good = true;
    FileList files(options);
    while (const std::optional<BatchFile> file = files.next()) {
        good = attempt(file->name, [&] { work(file->name); }) && good;
    }
    return good && files.complete();
}

bool usesColour() {
    const char* refused = std::getenv("NO_COLOR");
    return isTerminal(stdout) && (refused == nullptr || *refused == '\0');
}

} // namespace wb::cli
