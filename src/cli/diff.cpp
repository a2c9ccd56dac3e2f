#include <CLI/CLI.hpp>
#include <map>
#include <memory>
#include <optional>

#include "cli/cli_error.h"
#include "cli/commands.h"
#include "cli/output.h"
#include "cli/plain_reading.h"
#include "core/base/json_writer.h"
#include "fields/json.h"

namespace wb::cli {

namespace {

using fields::Field;
using fields::Reading;

/// Exit statuses, as those of other programs that compare files.
constexpr int same = 0;
constexpr int different = 1;
constexpr int trouble = 2;

struct Options {
    std::string first;
    std::string second;
    std::string format = "text";
    ImageOptions images;
};

struct Side {
    const Reading* reading;
    const Field* field; ///< null where the image has no such field
};

struct Difference {
    Side first;
    Side second;

    const Field& any() const { return first.field != nullptr ? *first.field : *second.field; }
};

bool differ(const Side& a, const Side& b) {
    return rawText(a.reading->image, *a.field) != rawText(b.reading->image, *b.field);
}

/// In the order of the first image, then what only the second has.
std::vector<Difference> differences(const Reading& first, const Reading& second) {
    std::map<std::string_view, const Field*> others;
    for (const Field& field : second.fields) {
        others.emplace(field.path, &field);
    }
    std::vector<Difference> found;
    for (const Field& field : first.fields) {
        const auto other = others.find(field.path);
        const Difference pair = {{&first, &field}, {&second, other == others.end() ? nullptr : other->second}};
        if (pair.second.field == nullptr || differ(pair.first, pair.second)) {
            found.push_back(pair);
        }
        if (other != others.end()) {
            others.erase(other);
        }
    }
    for (const Field& field : second.fields) {
        if (others.count(field.path) != 0) {
            found.push_back({{&first, nullptr}, {&second, &field}});
        }
    }
    return found;
}

std::string wordsOf(const Side& side) {
    if (side.field == nullptr) {
        return "(none)";
    }
    const std::string& text = side.field->text;
    return text.empty() ? "\"\"" : inOneLine(text);
}

/// Both texts, with the raw bits behind them where the words alone would look the same.
std::string lineOf(const Difference& difference) {
    std::string before = wordsOf(difference.first);
    std::string after = wordsOf(difference.second);
    if (before == after) {
        before += " (" + rawText(difference.first.reading->image, *difference.first.field) + ')';
        after += " (" + rawText(difference.second.reading->image, *difference.second.field) + ')';
    }
    return difference.any().path + ": " + before + " -> " + after + '\n';
}

void writeSide(JsonWriter& json, std::string_view key, const Side& side) {
    json.key(key);
    if (side.field == nullptr) {
        json.null();
        return;
    }
    json.beginObject().member("raw", rawText(side.reading->image, *side.field)).key("value");
    fields::writeValue(json, side.field->value);
    json.member("text", side.field->text).endObject();
}

std::string toJson(const Options& options, const std::vector<Difference>& found) {
    JsonWriter json;
    json.beginObject().member("schema", fields::jsonSchema);
    json.member("a", options.first).member("b", options.second).key("differences").beginArray();
    for (const Difference& difference : found) {
        json.beginObject().member("path", difference.any().path).member("label", difference.any().label);
        writeSide(json, "a", difference.first);
        writeSide(json, "b", difference.second);
        json.endObject();
    }
    json.endArray().endObject();
    return json.text() + '\n';
}

std::optional<Reading> readOrComplain(const std::string& name, const ImageOptions& options) {
    try {
        const Contents contents = contentsOf(readInput(name), options);
        return fields::read(onlyImageOf(contents));
    } catch (const CliError& error) {
        complain(name, error.what());
        return std::nullopt;
    }
}

int run(const Options& options) {
    requireOneStandardInput({options.first, options.second});
    const std::optional<Reading> first = readOrComplain(options.first, options.images);
    const std::optional<Reading> second = readOrComplain(options.second, options.images);
    if (!first || !second) {
        return trouble;
    }
    const std::vector<Difference> found = differences(*first, *second);
    if (outputFormatOf(options.format) == OutputFormat::Json) {
        print(toJson(options, found));
    } else {
        for (const Difference& difference : found) {
            print(lineOf(difference));
        }
    }
    return found.empty() ? same : different;
}

} // namespace

Run addDiff(CLI::App& command) {
    const auto options = std::make_shared<Options>();
    command.add_option("A", options->first, "File in any format; - is standard input")->type_name("")->required();
    command.add_option("B", options->second, "The file to compare it with")->type_name("")->required();
    addFormatOption(command, options->format, {"text", "json"});
    addImageOptions(command, options->images);
    command.footer(
        "  edidwb diff before.bin after.bin\n"
        "  edidwb diff --format json before.bin after.bin\n\n"
        "Exit status: 0 the images are the same, 1 they differ, 2 trouble.");
    return [options] { return run(*options); };
}

} // namespace wb::cli
