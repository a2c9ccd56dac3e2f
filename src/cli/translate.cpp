#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <set>

#include "cli/cli_error.h"
#include "cli/commands.h"
#include "cli/ordered_jobs.h"
#include "cli/output.h"
#include "cli/plain_reading.h"
#include "cli/program.h"
#include "core/base/digits.h"
#include "core/base/text.h"
#include "fields/json.h"
#include "platform/date_time.h"

namespace wb::cli {

namespace {

namespace fs = std::filesystem;

struct Options {
    std::vector<std::string> files;
    std::optional<std::string> outputFolder;
    std::string jobs = "1";
    std::optional<std::string> date;
    std::string format = "text";
    bool strict = false;
};

/// What became of one file.
struct Translation {
    std::string report;
    std::vector<std::string> boxes;
    std::optional<std::string> error;
};

Translation summarise(const std::string& name) {
    Translation result;
    try {
        result.report = fields::summaryToJson(readingOf(readInput(name))) + '\n';
    } catch (const CliError& error) {
        result.error = error.what();
    }
    return result;
}

Translation translate(const std::string& name, const std::optional<platform::DateTime>& now) {
    Translation result;
    try {
        Program program(now);
        const Input input = readInput(name);
        try {
            program.load(input);
            result.report = program.report();
        } catch (const CliError& error) {
            result.error = error.what();
        }
        result.boxes = program.boxes();
    } catch (const CliError& error) {
        result.error = error.what();
    }
    return result;
}

/// Takes the results one after the other, in the order of the input.
class Collector {
public:
    explicit Collector(const Options& options) : options_(options) {
        for (const std::string& name : options.files) {
            namesOfStem_[stemOf(name)].insert(fs::path(name).filename().string());
            if (options.outputFolder && name != standardStream) {
                inputs_.emplace(placeKey(name), name);
            }
        }
    }

    void take(const Translation& translation) {
        const std::string& name = options_.files[next_++];
        for (const std::string& box : translation.boxes) {
            complain(name, inOneLine(box));
            failed_ = failed_ || options_.strict;
        }
        if (translation.error) {
            fail(name, *translation.error);
        } else if (!options_.outputFolder) {
            print(translation.report);
        } else {
            writeReport(name, translation.report);
        }
    }

    bool failed() const { return failed_; }

private:
    void fail(const std::string& name, const std::string& message) {
        complain(name, message);
        failed_ = true;
    }

    static std::string stemOf(const std::string& name) {
        return name == standardStream ? "stdin" : fs::path(name).stem().string();
    }

    /// The name of the file without its extension, which only stays where it tells several files apart.
    std::string reportNameOf(const std::string& name) const {
        const std::string stem = stemOf(name);
        const bool shared = name != standardStream && namesOfStem_.at(stem).size() > 1;
        return (shared ? fs::path(name).filename().string() : stem) +
               (outputFormatOf(options_.format) == OutputFormat::Json ? ".json" : ".txt");
    }

    void writeReport(const std::string& name, const std::string& report) {
        const std::string target = (fs::path(*options_.outputFolder) / reportNameOf(name)).string();
        const auto [other, isNew] = writtenBy_.try_emplace(target, name);
        if (!isNew) {
            fail(name, "its report '" + target + "' is already that of '" + other->second + "'");
            return;
        }
        if (isInput(target)) {
            fail(name, "its report '" + target + "' would replace a file that is to be read");
            return;
        }
        try {
            writeFile(target, report, Existing::Replace);
        } catch (const CliError& error) {
            fail(target, error.what());
        }
    }

    /// The name of the file behind all symbolic links, in one letter case: the same for whatever leads to that name.
    /// Empty where there is none. A hard link has a name of its own, and to replace it does the file no harm.
    static std::string placeKey(const std::string& name) {
        std::error_code ignored;
        return upperCase(fs::canonical(name, ignored).filename().string());
    }

    bool isInput(const std::string& target) const {
        const std::string key = placeKey(target);
        const auto [begin, end] = inputs_.equal_range(key);
        return !key.empty() && std::any_of(begin, end, [&](const auto& input) {
            std::error_code error;
            return fs::equivalent(input.second, target, error) && !error;
        });
    }

    const Options& options_;
    std::size_t next_ = 0;
    std::map<std::string, std::set<std::string>> namesOfStem_;
    std::multimap<std::string, std::string> inputs_; ///< by placeKey, as there may be many
    std::map<std::string, std::string> writtenBy_;
    bool failed_ = false;
};

std::optional<platform::DateTime> dateOf(const Options& options) {
    if (!options.date) {
        return std::nullopt;
    }
    const auto date = platform::parseDateTime(*options.date);
    if (!date) {
        throw UsageError("'" + *options.date + "' is no date and time like \"2000-01-31 23:59:59\"");
    }
    return date;
}

/// The option library would take an empty text for none at all.
std::string refuseEmpty(const std::string& value) {
    return value.empty() ? "the value is empty" : "";
}

std::size_t jobsOf(const Options& options) {
    const auto jobs = wholeNumber<std::size_t>(options.jobs);
    if (!jobs || *jobs == 0) {
        throw UsageError("the number of jobs is 1 or more, not '" + options.jobs + "'");
    }
    return *jobs;
}

int run(const Options& options) {
    const std::size_t jobs = jobsOf(options);
    requireOneStandardInput(options.files);
    const std::optional<platform::DateTime> now = dateOf(options);
    if (options.outputFolder) {
        std::error_code error;
        fs::create_directories(*options.outputFolder, error);
        if (error) {
            complain(*options.outputFolder, error.message());
            return somethingFailed;
        }
    }
    const bool json = outputFormatOf(options.format) == OutputFormat::Json;
    Collector collector(options);
    OrderedJobs<Translation>::run(
        options.files.size(), jobs,
        [&](std::size_t i) { return json ? summarise(options.files[i]) : translate(options.files[i], now); },
        [&](const Translation& translation) { collector.take(translation); });
    return collector.failed() ? somethingFailed : success;
}

} // namespace

Run addTranslate(CLI::App& command) {
    const auto options = std::make_shared<Options>();
    command
        .add_option("FILE", options->files,
                    "Data file, binary image or hexadecimal text, recognised by content; - is standard input")
        ->type_name("")
        ->required();
    command
        .add_option("-o,--output-dir", options->outputFolder, "Write each report to DIR/NAME.txt (or .json) instead")
        ->type_name("DIR")
        ->check(refuseEmpty)
        ->take_last();
    command.add_option("-j,--jobs", options->jobs, "Work on up to N files at a time")->type_name("N")->take_last();
    command.add_option("--date", options->date, "Set the clock that the heading shows")
        ->type_name("\"YYYY-MM-DD HH:MM:SS\"")
        ->check(refuseEmpty)
        ->take_last();
    addFormatOption(command, options->format, {"text", "json"});
    command.add_flag("--strict", options->strict, "Count the boxes that the program shows as failures")
        ->disable_flag_override();
    return [options] { return run(*options); };
}

} // namespace wb::cli
