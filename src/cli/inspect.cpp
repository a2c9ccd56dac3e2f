#include <algorithm>
#include <memory>
#include <utility>

#include "cli/commands.h"
#include "cli/file_list.h"
#include "cli/output.h"
#include "cli/plain_reading.h"
#include "cli/syntax.h"
#include "fields/json.h"
#include "fields/place_text.h"

namespace wb::cli {

namespace {

using fields::Field;
using fields::Reading;

struct Options {
    FileOptions files;
    std::string format = "text";
    ImageOptions images;
};

constexpr std::string_view bold = "\x1B[1m";
constexpr std::string_view plain = "\x1B[0m";
constexpr std::size_t placeColumn = 15;
constexpr std::size_t labelColumn = 42;

std::string emphasised(const std::string& text, bool colour) {
    return colour ? std::string(bold) + text + std::string(plain) : text;
}

std::string padded(std::string text, std::size_t width) {
    text.resize(std::max(width, text.size()), ' ');
    return text;
}

std::string_view sumWords(fields::Sum sum) {
    switch (sum) {
        case fields::Sum::Ok:
            return "check sum ok";
        case fields::Sum::Wrong:
            return "check sum wrong";
        case fields::Sum::Missing:
            break;
    }
    return "not there";
}

/// All of a path but its last name.
std::string_view structureOf(const Field& field) {
    return std::string_view(field.path).substr(0, field.path.rfind('.'));
}

/// A label too long for its column pushes the text to the right.
std::string fieldLine(const Field& field) {
    return "    " + padded(placeText(field.where), placeColumn) + ' ' + padded(std::string(field.label), labelColumn) +
           ' ' + inOneLine(field.text) + '\n';
}

void printTable(const Reading& reading, bool colour) {
    print(emphasised(inOneLine(titleOf(reading.image)), colour) + ": " + std::to_string(reading.image.bytes().size()) +
          " bytes\n");
    auto field = reading.fields.begin();
    for (const fields::BlockInfo& block : reading.blocks) {
        const std::string title = "Block " + std::to_string(block.index) + ": " + std::string(block.name) + ", " +
                                  std::string(sumWords(block.sum));
        print('\n' + emphasised(title, colour) + '\n');
        std::string_view structure;
        const std::size_t end = (block.index + 1) * Image::blockSize;
        for (; field != reading.fields.end() && field->where.front().byte < end; ++field) {
            if (structureOf(*field) != structure) {
                structure = structureOf(*field);
                print("  " + std::string(structure) + '\n');
            }
            print(fieldLine(*field));
        }
    }
}

void printRows(const Reading& reading) {
    for (const Field& field : reading.fields) {
        print(
            tsvLine({titleOf(reading.image), field.path, placeText(field.where), fields::rawText(reading.image, field),
                     valueText(field.value), field.unit, field.text, field.clause}));
    }
}

int run(const Options& options) {
    const OutputFormat format = outputFormatOf(options.format);
    const bool colour = usesColour();
    bool first = true;
    if (format == OutputFormat::Tsv) {
        print(tsvLine({"file", "path", "where", "raw", "value", "unit", "text", "clause"}));
    }
    const bool good = forEachFile(options.files, [&](const std::string& name) {
        forEachReading(name, options.images, [&](const Reading& reading) {
            if (format == OutputFormat::Json) {
                print(fields::toJson(reading));
                print("\n");
            } else if (format == OutputFormat::Tsv) {
                printRows(reading);
            } else {
                print(std::exchange(first, false) ? "" : "\n");
                printTable(reading, colour);
            }
        });
    });
    return good ? success : somethingFailed;
}

} // namespace

Run addInspect(Syntax& syntax) {
    const auto options = std::make_shared<Options>();
    addFileOptions(syntax, options->files);
    addFormatOption(syntax, options->format, &textJsonAndTsv);
    addImageOptions(syntax, options->images);
    syntax.footer(
        "Tells every field of every block by the standards: where it stands (bytes in hexadecimal,\n"
        "bits in brackets), what it is called and what it means.\n\n"
        "  edidwb inspect monitor.bin\n"
        "  edidwb inspect --format json *.bin | jq .fields\n\n"
        "Exit status: 0 all went well, 1 a file could not be read or is no image, 2 wrong usage.");
    return [options] { return run(*options); };
}

} // namespace wb::cli
