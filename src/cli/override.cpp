#include <algorithm>
#include <filesystem>
#include <memory>

#include "cli/attempt.h"
#include "cli/clock_option.h"
#include "cli/commands.h"
#include "cli/image_check.h"
#include "cli/image_input.h"
#include "cli/monitor_list.h"
#include "cli/output.h"
#include "cli/override_steps.h"
#include "cli/stored_edid.h"
#include "cli/syntax.h"
#include "cli/system.h"
#include "core/base/file_names.h"
#include "fields/announced_extensions.h"

namespace wb::cli {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr std::string_view digits = "0123456789";
constexpr const char* extension = ".bin";

struct Options {
    std::string connector;
    std::string file;
    std::string name;
    std::optional<std::string> root;
    ImageOptions images;
    SystemOptions system;
    bool install = false;
    bool force = false;
};

/// What a step gives; a CliError, want of memory too, names what the step is about.
template <class Step>
auto about(const std::string& subject, const Step& step) {
    try {
        return withinMemory(step);
    } catch (const CliError& error) {
        throw CliError(subject + ": " + error.what());
    }
}

bool consistsOf(std::string_view text, std::string_view more) {
    return text.find_first_not_of(std::string(letters).append(digits).append(more)) == std::string_view::npos;
}

/// Whether the kernel may have such a connector: letters, digits and "-", with a number at the end.
bool mayBeConnector(std::string_view name) {
    return !name.empty() && letters.find(name.front()) != std::string_view::npos &&
           digits.find(name.back()) != std::string_view::npos && consistsOf(name, "-");
}

/// The connector as the system names it, where it has one of that name; else as the user does, which is told.
std::string systemNameOf(const Options& options) {
    std::string name = options.connector;
    std::vector<Monitor> places;
    try {
        places = monitorPlaces(options.system);
    } catch (const CliError&) {
        places.clear(); // the image may be meant for another system
    }
    const Monitor* const place = findMonitor(places, name);
    if (place != nullptr) {
        name = place->name;
    }
    if (!mayBeConnector(withoutAdapter(name))) {
        throw CliError("is no name of a connector of Linux, such as HDMI-A-1");
    }
    if (place == nullptr) {
        complain(name, "this system has no such connector; the name is taken as it stands");
    }
    return name;
}

/// The number in front of a connector, "0" of "card0-DP-1"; empty where there is none.
std::string adapterOf(std::string_view name) {
    const std::string_view adapter = name.substr(0, name.size() - withoutAdapter(name).size());
    const std::size_t begin = adapter.find_first_of(digits);
    return begin == std::string_view::npos ? "" : std::string(adapter.substr(begin, adapter.size() - begin - 1));
}

std::string fileNameOf(const Options& options, const std::string& connector) {
    std::string name = options.name.empty() ? connector : options.name;
    if (!consistsOf(name, "._-") || name.front() == '.' || name.front() == '-') {
        throw UsageError("the name of a firmware file has letters, digits, '.', '_' and '-', not '" + name + "'");
    }
    return name.ends_with(extension) ? name : name + extension;
}

/// How many blocks the kernel may want: it goes by byte 126, or, where it knows of it, by the override data block.
std::size_t blocksWanted(const Image& image) {
    const std::size_t byByte126 = image.announcedExtensions() + 1;
    return image.blockCount() == byByte126 ? byByte126 : fields::announcedExtensions(image) + 1;
}

/// What a command is given to find the image in the file.
std::string inputOf(const Options& options) {
    std::string words;
    if (!options.images.form.empty()) {
        words += "--from " + options.images.form + ' ';
    }
    if (!options.images.output.empty()) {
        words += "--output-name " + shellWord(options.images.output) + ' ';
    }
    return words + shellWord(inOneLine(options.file));
}

/// The commands that do by hand what --install does. An image that only a part of the kernels takes for whole is not
/// for "convert".
std::string copyingOf(const Options& options, const Contents& contents, const Image& image, const OverridePlan& plan) {
    const std::string folder = std::string("/") + edidFirmwareFolder;
    const std::string place = folder + '/' + plan.fileName;
    if (contents.input.content == image.content() && options.file != standardStream) {
        return "install -D -m 644 " + shellWord(inOneLine(options.file)) + ' ' + place;
    }
    if (image.blockCount() <= fields::announcedExtensions(image)) {
        return "edidwb override --install --name " + plan.fileName + ' ' + plan.connector + ' ' + inputOf(options);
    }
    return "mkdir -p " + folder + "\nedidwb convert --to bin " + inputOf(options) + ' ' + place;
}

/// What the kernel would refuse is told; whether there is anything.
bool hasErrors(const Options& options, const Image& image) {
    bool found = false;
    for (const CheckResult& result : checkImage(image, blocksWanted(image))) {
        if (!result.good) {
            complain(options.file, result.text);
            found = true;
        }
    }
    if (found) {
        complain(options.file,
                 "the kernel takes no such image; 'edidwb check' tells more, 'edidwb repair' puts check "
                 "sums right");
    }
    return found;
}

/// Where the file comes to stand, which must not be outside of the root by way of links.
fs::path placeBelow(const fs::path& root, const std::string& fileName) {
    std::error_code error;
    if (!fs::is_directory(root, error)) {
        throw CliError(nameOf(root) + ": no such directory");
    }
    fs::path place = root / edidFirmwareFolder / fileName;
    const fs::path top = fs::canonical(root, error);
    const fs::path resolved = error ? fs::path() : fs::weakly_canonical(place, error);
    if (error) {
        throw CliError(nameOf(place) + ": " + reasonOf(error));
    }
    if (std::mismatch(top.begin(), top.end(), resolved.begin(), resolved.end()).first != top.end()) {
        throw CliError(nameOf(place) + ": a link leads out of " + nameOf(root));
    }
    return place;
}

void install(const Options& options, const Image& image, const std::string& fileName) {
    const fs::path place = placeBelow(pathOf(options.root.value_or("/")), fileName);
    const std::string name = nameOf(place);
    std::error_code error;
    fs::create_directories(place.parent_path(), error);
    if (error) {
        throw CliError(nameOf(place.parent_path()) + ": " + reasonOf(error));
    }
    about(name, [&] { writeFile(name, image.content(), options.force ? Existing::Replace : Existing::Refuse); });
    printText(inOneLine("Written: " + name + ", " + std::to_string(image.bytes().size()) + " bytes") + '\n');
}

int explain(const Options& options) {
    const std::string name = about(options.connector, [&] { return systemNameOf(options); });
    OverridePlan plan;
    plan.connector = withoutAdapter(name);
    plan.adapter = adapterOf(name);
    plan.fileName = fileNameOf(options, plan.connector);
    plan.installed = options.install;
    const Contents contents = about(options.file, [&] { return contentsOf(readInput(options.file), options.images); });
    const Image image = about(options.file, [&] { return onlyImageOf(contents); });
    if (hasErrors(options, image)) {
        return somethingFailed;
    }
    if (options.install) {
        install(options, image, plan.fileName);
    } else {
        plan.copying = copyingOf(options, contents, image, plan);
    }
    printText(inOneLine("For " + plan.connector + " the kernel takes " + options.file + " (" +
                        std::to_string(image.bytes().size()) + " bytes, " + edidWords(image.content()) +
                        ") after these steps, done as root:") +
              "\n\n" + overrideSteps(plan));
    return success;
}

int run(const Options& options) {
    if (options.root && !options.install) {
        throw UsageError("--root belongs to --install");
    }
    if (options.force && !options.install) {
        throw UsageError("--force belongs to --install");
    }
    try {
        return explain(options);
    } catch (const CliError& error) {
        complain(error.what());
        return somethingFailed;
    }
}

} // namespace

Run addOverride(Syntax& syntax) {
    const auto options = std::make_shared<Options>();
    syntax.operand("CONNECTOR", "Connector of the monitor, as \"monitors\" names it", &options->connector)
        .refuseEmpty()
        .require();
    syntax.operand("FILE", "Image in any form, recognised by its content; - is standard input", &options->file)
        .require();
    syntax.option("--name", "NAME", "Call the firmware file NAME.bin instead of after the connector", &options->name)
        .refuseEmpty();
    syntax.flag("--install", "Write the firmware file, and tell the steps that remain", options->install);
    syntax.option("--root", "DIR", "With --install, write below DIR instead of /", &options->root).refuseEmpty();
    syntax.flag("-f,--force", "With --install, replace a file that exists already", options->force);
    addImageOptions(syntax, options->images);
    addSystemOptions(syntax, options->system);
    syntax.footer(
        "Checks the image and tells the steps after which Linux takes it for that of the monitor at a connector. "
        "Nothing\n"
        "but the firmware file is ever written, and that only with --install.\n\n"
        "  edidwb override HDMI-A-1 monitor.bin\n"
        "  edidwb override --install --root /mnt/image DP-1 monitor.DAT\n\n"
        "Exit status: 0 all went well, 1 the image has errors, or a file cannot be read or written, 2 wrong usage.");
    return [options] { return run(*options); };
}

} // namespace wb::cli
