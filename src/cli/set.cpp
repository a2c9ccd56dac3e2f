#include <array>
#include <memory>

#include "cli/cli_error.h"
#include "cli/clock_option.h"
#include "cli/commands.h"
#include "cli/output.h"
#include "cli/set_options.h"
#include "cli/syntax.h"
#include "core/base/text.h"

namespace wb::cli {

namespace {

struct SetOptions {
    RewriteOptions rewrite;
    SetTexts texts;
    std::optional<std::string> newFile;
};

void checkNewFile(const SetOptions& options, const ImageSettings& settings) {
    if (options.rewrite.files.any()) {
        throw UsageError("--new takes no FILE besides");
    }
    if (options.rewrite.inPlace || options.rewrite.backup) {
        throw UsageError("--new and --in-place exclude each other");
    }
    if (*options.newFile == standardStream) {
        throw UsageError("--new needs the name of a file");
    }
    if (upperCase(*options.newFile).ends_with(".DAT")) {
        throw UsageError("--new writes no data file; convert --to dat makes one of a binary file");
    }
    if (!settings.maker || settings.timings.empty() || settings.timings.front().slot != 1) {
        throw UsageError("a new image needs --maker, and --timing or --cvt for place 1");
    }
}

void checkFiles(const SetOptions& options) {
    if (!options.rewrite.files.any()) {
        throw UsageError("FILE or --new is required");
    }
    checkRewriteOptions(options.rewrite);
    const SetTexts& texts = options.texts;
    if (!texts.maker && !texts.product && !texts.serial && !texts.week && !texts.year && !texts.name &&
        texts.timings.empty() && texts.cvts.empty()) {
        throw UsageError("nothing is to be set");
    }
}

int run(const SetOptions& options) {
    const ImageSettings settings = settingsOf(options.texts);
    if (options.newFile) {
        checkNewFile(options, settings);
        return writeNewImage(options.rewrite, *options.newFile, [&] { return newImage(settings); });
    }
    checkFiles(options);
    return rewriteFiles(options.rewrite, [&](const Image& image) { return withSettings(image, settings); });
}

/// An option for one text.
struct TextOption {
    const char* name;
    std::optional<std::string> SetTexts::*text;
    const char* type;
    const char* description;
};

constexpr auto textOptions = std::to_array<TextOption>({
    {"--maker", &SetTexts::maker, "ABC", "Three letters of the maker"},
    {"--product", &SetTexts::product, "NUMBER", "Product code, such as 4660 or 0x1234"},
    {"--serial", &SetTexts::serial, "NUMBER", "Serial number; 0 is none"},
    {"--week", &SetTexts::week, "NUMBER", "Week of manufacture, 1 to 52; 0 is none"},
    {"--year", &SetTexts::year, "NUMBER", "Year of manufacture from 1990"},
    {"--name", &SetTexts::name, "TEXT", "Name of the monitor, up to 13 characters"},
});

} // namespace

Run addSet(Syntax& syntax) {
    const auto options = std::make_shared<SetOptions>();
    addRewriteOptions(syntax, options->rewrite);
    for (const TextOption& option : textOptions) {
        syntax.option(option.name, option.type, option.description, &(options->texts.*option.text)).refuseEmpty();
    }
    syntax.option("--timing", "N=MODELINE",
                  "Put a timing into place N, 1 to 4; MODELINE is what cvt or xrandr --verbose print of it",
                  &options->texts.timings);
    syntax.option("--cvt", "N=WxH@RATE[R]",
                  "Compute the timing for place N by the CVT standard, with R at the end with reduced blanking",
                  &options->texts.cvts);
    syntax
        .option("--new", "NAME", "Make the image NAME instead of changing files: EDID 1.4, digital, sRGB, of this year",
                &options->newFile)
        .refuseEmpty();
    syntax.footer(
        "Everything is typed into the panels and cells of the program: what these refuse with a box is an error of "
        "the\n"
        "file, of which nothing is written then. The name goes into its descriptor, or into the first free one. A "
        "timing\n"
        "keeps the size of the picture of the one before it. The check sum of block 0 is put right.\n"
        "A new image has the form that the ending of its name tells, such as .hex, and is binary otherwise.\n\n"
        "  edidwb set --maker ABC --serial 0 --name \"Desk 3\" -o out *.bin\n"
        "  edidwb set --new desk.bin --maker ABC --product 1234 --name \"Desk 3\" --cvt 1=2560x1440@60R\n\n"
        "Exit status: 0 all went well, 1 a file was refused or could not be written, 2 wrong usage.");
    return [options] { return run(*options); };
}

} // namespace wb::cli
