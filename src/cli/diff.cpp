#include <memory>
#include <optional>

#include "cli/attempt.h"
#include "cli/commands.h"
#include "cli/output.h"
#include "cli/plain_reading.h"
#include "cli/syntax.h"
#include "core/base/json_writer.h"
#include "fields/difference.h"
#include "fields/json.h"

namespace wb::cli {

namespace {

using fields::FieldPair;
using fields::Reading;
using fields::Side;

/// Exit statuses, as those of other programs that compare files; a failure is imagesNotCompared.
constexpr int same = 0;
constexpr int different = 1;

struct Options {
    std::string first;
    std::string second;
    std::string format = "text";
    ImageOptions images;
};

std::string lineOf(const FieldPair& difference) {
    const auto [before, after] = difference.texts(&inOneLine);
    return difference.any().path + ": " + before + " -> " + after + '\n';
}

void writeSide(JsonWriter& json, std::string_view key, const Side& side) {
    json.key(key);
    if (side.field == nullptr) {
        json.null();
        return;
    }
    json.beginObject().member("raw", side.raw()).key("value");
    fields::writeValue(json, side.field->value);
    json.member("text", side.field->text).endObject();
}

std::string toJson(const Options& options, const std::vector<FieldPair>& found) {
    JsonWriter json;
    json.beginObject().member("schema", fields::jsonSchema);
    json.member("a", options.first).member("b", options.second).key("differences").beginArray();
    for (const FieldPair& difference : found) {
        json.beginObject().member("path", difference.any().path).member("label", difference.any().label);
        writeSide(json, "a", difference.first);
        writeSide(json, "b", difference.second);
        json.endObject();
    }
    json.endArray().endObject();
    return json.text() + '\n';
}

std::optional<Reading> readOrComplain(const std::string& name, const ImageOptions& options) {
    std::optional<Reading> reading;
    attempt(name, [&] {
        const Contents contents = contentsOf(readInput(name), options);
        reading = fields::read(onlyImageOf(contents));
    });
    return reading;
}

int compare(const Reading& first, const Reading& second, const Options& options) {
    const std::vector<FieldPair> found = fields::differencesOf(first, second);
    if (outputFormatOf(options.format) == OutputFormat::Json) {
        print(toJson(options, found));
    } else {
        for (const FieldPair& difference : found) {
            print(lineOf(difference));
        }
    }
    return found.empty() ? same : different;
}

int run(const Options& options) {
    requireOneStandardInput({options.first, options.second});
    const std::optional<Reading> first = readOrComplain(options.first, options.images);
    const std::optional<Reading> second = readOrComplain(options.second, options.images);
    if (!first || !second) {
        return imagesNotCompared;
    }
    int status = imagesNotCompared;
    attempt(options.second, [&] { status = compare(*first, *second, options); });
    return status;
}

} // namespace

Run addDiff(Syntax& syntax) {
    const auto options = std::make_shared<Options>();
    syntax.operand("A", "File in any form, told by its content; - is standard input", &options->first).require();
    syntax.operand("B", "The file to compare it with", &options->second).require();
    addFormatOption(syntax, options->format, &textAndJson);
    addImageOptions(syntax, options->images);
    syntax.footer(
        "  edidwb diff before.bin after.bin\n"
        "  edidwb diff --format json before.bin after.bin\n\n"
        "Exit status: 0 the images are the same, 1 they differ, 2 trouble.");
    return [options] { return run(*options); };
}

} // namespace wb::cli
