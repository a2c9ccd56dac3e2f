#include <algorithm>
#include <filesystem>
#include <memory>

#include "cli/attempt.h"
#include "cli/bus_read.h"
#include "cli/clock_option.h"
#include "cli/commands.h"
#include "cli/formats.h"
#include "cli/monitor_list.h"
#include "cli/output.h"
#include "cli/program.h"
#include "cli/report_names.h"
#include "cli/stored_edid.h"
#include "cli/sync_option.h"
#include "cli/syntax.h"
#include "cli/system.h"
#include "core/base/file_names.h"

namespace wb::cli {

namespace {

namespace fs = std::filesystem;

struct Options {
    std::string connector;
    std::optional<std::string> format;
    std::string date;
    std::optional<std::string> outputFolder;
    std::optional<std::string> bus;
    SystemOptions system;
    bool all = false;
    bool force = false;
    bool sync = true;

    std::string formatOr(const std::string& other) const { return format.value_or(other); }
};

/// The content of an image in a format. What the program shows meanwhile, and what the format leaves out, is told;
/// `name` is that of its monitor where there are several.
std::string contentOf(const Image& image, const std::string& format, Program& program, const std::string& name) {
    const bool takesAll = isFormOfBytes(format);
    std::string content;
    if (takesAll) {
        content = contentAs(format, image);
    } else {
        program.load(image);
        content = contentAs(format, program);
    }
    complainOfBoxes(name, program.boxes());
    for (const std::string& omission : omissionsOf(image, takesAll ? image.blockCount() : Image::editedBlocks)) {
        name.empty() ? complain(omission) : complain(name, omission);
    }
    return content;
}

void printImage(const Image& image, Program& program, const Options& options) {
    printText(contentOf(image, options.formatOr("report"), program, {}));
}

/// Tells why no image comes from the monitors up to `end`; of the virtual ones nobody expects any.
void tellPassedOver(const std::vector<Monitor>& monitors, const Monitor* end) {
    for (const Monitor& monitor : monitors) {
        if (&monitor == end) {
            return;
        }
        try {
            storedImageOf(monitor);
        } catch (const CliError& error) {
            if (!monitor.isVirtual) {
                complain(monitor.name, std::string("passed over: ") + error.what());
            }
        }
    }
}

/// Where the program's own search finds no image: the first monitor that has one all the same.
int readAnother(const Options& options, const Boxes& boxes) {
    const std::vector<Monitor> monitors = attachedMonitors(options.system);
    if (const Monitor* const taken = takenByRead(monitors)) {
        tellPassedOver(monitors, taken);
        Program program(clockOf(options.date));
        printImage(storedImageOf(*taken), program, options);
        return success;
    }
    complainOfBoxes({}, boxes);
    if (const std::string help = helpWithoutEdid(options.system, !monitors.empty()); !help.empty()) {
        complain(help);
    }
    tellPassedOver(monitors, nullptr);
    return somethingFailed;
}

int readFirst(const Options& options) {
    const std::unique_ptr<platform::Registry> registry = systemRegistry(options.system);
    Program program(*registry, clockOf(options.date));
    try {
        if (const std::optional<Image> image = program.storedImage()) {
            printImage(*image, program, options);
            return success;
        }
    } catch (const CliError&) {
        if (takenByRead(attachedMonitors(options.system)) == nullptr) {
            throw;
        }
    }
    return readAnother(options, program.boxes());
}

int readNamed(const Options& options) {
    const bool read = attempt(options.connector, [&] {
        const std::vector<Monitor> places = monitorPlaces(options.system);
        Program program(clockOf(options.date));
        printImage(storedImageOf(monitorNamed(places, options.connector)), program, options);
    });
    if (!read) {
        complainOfObstacles(options.system);
    }
    return read ? success : somethingFailed;
}

int readBus(const Options& options) {
    const std::string device = busDevice(*options.bus);
    const bool read = attempt(device, [&] {
        try {
            const Image image = imageFromBus(*openBus(device), device);
            Program program(clockOf(options.date));
            printImage(image, program, options);
        } catch (const std::system_error& error) {
            throw CliError(busTrouble(error.code()));
        }
    });
    return read ? success : somethingFailed;
}

/// A name of a connector as that of a file.
std::string fileNameOf(const Monitor& monitor) {
    std::string name = monitor.name;
    std::replace(name.begin(), name.end(), '\\', '_');
    return name;
}

/// Writes a file for each monitor.
class Collection {
public:
    Collection(const Options& options, const std::vector<Monitor>& monitors)
        : options_(options), format_(options.formatOr("bin")), names_(namesOf(monitors), extensionOf(format_)) {}

    void take(const Monitor& monitor) {
        if (!monitor.error && monitor.edid.empty()) {
            complain(monitor.name, "no EDID is stored");
            return;
        }
        const bool taken = attempt(monitor.name, [&] {
            Program program(clockOf(options_.date));
            write(names_.nameOf(fileNameOf(monitor), ""),
                  contentOf(storedImageOf(monitor), format_, program, monitor.name));
        });
        failed_ = failed_ || !taken;
    }

    /// Whether nothing went wrong and something was written.
    bool good() const { return !failed_ && written_ > 0; }

private:
    static std::vector<std::string> namesOf(const std::vector<Monitor>& monitors) {
        std::vector<std::string> names;
        names.reserve(monitors.size());
        for (const Monitor& monitor : monitors) {
            names.push_back(fileNameOf(monitor));
        }
        return names;
    }

    void write(const std::string& name, const std::string& content) {
        const std::string place = nameOf(pathOf(*options_.outputFolder) / pathOf(name));
        try {
            writeFile(place, content,
                      {.existing = options_.force ? Existing::Replace : Existing::Refuse, .sync = options_.sync});
        } catch (const CliError& error) {
            throw CliError(place + ": " + error.what());
        }
        ++written_;
    }

    const Options& options_;
    std::string format_;
    ReportNames names_;
    std::size_t written_ = 0;
    bool failed_ = false;
};

int readAll(const Options& options) {
    const std::vector<Monitor> monitors = attachedMonitors(options.system);
    std::error_code error;
    fs::create_directories(pathOf(*options.outputFolder), error);
    if (error) {
        complain(*options.outputFolder, reasonOf(error));
        return somethingFailed;
    }
    const bool allIsKnown = complainOfObstacles(options.system);
    if (monitors.empty() && allIsKnown) {
        complain("no monitor is attached");
    }
    Collection collection(options, monitors);
    for (const Monitor& monitor : monitors) {
        collection.take(monitor);
    }
    return collection.good() && allIsKnown ? success : somethingFailed;
}

void checkOptions(const Options& options) {
    if (options.all && !options.connector.empty()) {
        throw UsageError("--all and a connector exclude each other");
    }
    if (options.bus && (options.all || !options.connector.empty())) {
        throw UsageError("--i2c excludes --all and a connector");
    }
    if (options.all != options.outputFolder.has_value()) {
        throw UsageError("--all and --output-dir belong together");
    }
    if (options.force && !options.all) {
        throw UsageError("--force belongs to --all");
    }
    if (!options.sync && !options.all) {
        throw UsageError("--no-sync belongs to --all");
    }
}

int run(const Options& options) {
    checkOptions(options);
    if (options.bus) {
        return readBus(options);
    }
    try {
        return options.all ? readAll(options) : options.connector.empty() ? readFirst(options) : readNamed(options);
    } catch (const CliError& error) {
        complain(error.what());
        return somethingFailed;
    }
}

std::string formatHelpOfRead() {
    return formatHelp() + "; report is the default, with --all bin";
}

} // namespace

Run addRead(Syntax& syntax) {
    const auto options = std::make_shared<Options>();
    syntax
        .operand("CONNECTOR",
                 "The monitor to read, as \"monitors\" names it, with or without \"card0-\", in any letter case; "
                 "without it the first that has an EDID",
                 &options->connector)
        .refuseEmpty();
    syntax.option("--to", "FORMAT", &formatHelpOfRead, &options->format).oneOf(&formatNames);
    syntax.flag("--all", "Write a file for each attached monitor, called after its connector", options->all);
    syntax.option("-o,--output-dir", "DIR", "With --all, the folder of these files", &options->outputFolder)
        .refuseEmpty();
    syntax.flag("-f,--force", "With --all, replace files that exist already", options->force);
    addSyncOption(syntax, options->sync);
    syntax
        .option("--i2c", "N",
                "Ask the monitor itself, on the bus /dev/i2c-N of Linux: reads at address 50h, up to two blocks",
                &options->bus)
        .refuseEmpty();
    addClockOption(syntax, options->date);
    addSystemOptions(syntax, options->system);
    syntax.footer(
        "What is read is what the system stored when the monitor was attached, and only with --i2c the monitor "
        "itself.\n\n"
        "  edidwb read --to bin HDMI-A-1 >tv.bin\n"
        "  edidwb read --all -o monitors --to dat\n\n"
        "Exit status: 0 all went well (with --all a monitor without an EDID is only told), 1 there is no EDID, or it\n"
        "cannot be read or written, 2 wrong usage.");
    return [options] { return run(*options); };
}

} // namespace wb::cli
