#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>

#include "cli/cli_error.h"
#include "cli/clock_option.h"
#include "cli/commands.h"
#include "cli/ordered_jobs.h"
#include "cli/output.h"
#include "cli/plain_reading.h"
#include "cli/program.h"
#include "cli/report_names.h"
#include "core/base/digits.h"
#include "core/base/text.h"
#include "fields/json.h"

namespace wb::cli {

namespace {

namespace fs = std::filesystem;

struct Options {
    std::vector<std::string> files;
    std::optional<std::string> outputFolder;
    std::string jobs = "1";
    std::string date;
    std::string format = "text";
    std::string heading = "auto";
    ImageOptions images;
    bool strict = false;

    bool json() const { return outputFormatOf(format) == OutputFormat::Json; }
};

/// What became of one image.
struct Translation {
    std::string title;  ///< of the image, for its heading
    std::string output; ///< named only where the file holds several images
    std::string report;
    std::vector<std::string> boxes;
    std::vector<std::string> omissions;
    std::optional<std::string> error;
};

Translation reportOf(const Contents& contents, const Image* image, const std::optional<platform::DateTime>& now) {
    Translation result;
    Program program(now);
    try {
        if (image == nullptr) {
            program.loadDataFile(contents.input);
        } else {
            program.load(*image);
            result.omissions = omissionsOf(*image);
        }
        result.report = program.report();
    } catch (const CliError& error) {
        result.error = error.what();
    }
    result.boxes = program.boxes();
    return result;
}

Translation translate(const Contents& contents, const Image* image, const Options& options,
                      const std::optional<platform::DateTime>& now) {
    Translation result;
    if (options.json()) {
        result.report = fields::summaryToJson(fields::read(*image)) + '\n';
    } else {
        result = reportOf(contents, contents.isDataFile ? nullptr : image, now);
    }
    result.title = image == nullptr ? contents.input.name : titleOf(*image);
    result.output = contents.images.size() > 1 ? image->origin().output : "";
    return result;
}

/// One translation for each image of a file.
std::vector<Translation> translateFile(const std::string& name, const Options& options,
                                       const std::optional<platform::DateTime>& now) {
    std::vector<Translation> results;
    try {
        const Contents contents = contentsOf(readInput(name), options.images);
        if (contents.isDataFile && !options.json()) {
            results.push_back(translate(contents, nullptr, options, now)); // whatever its cells are
            return results;
        }
        for (const Image& image : imagesOf(contents)) {
            results.push_back(translate(contents, &image, options, now));
        }
    } catch (const CliError& error) {
        Translation failed;
        failed.error = error.what();
        results.push_back(failed);
    }
    return results;
}

/// Takes the results one after the other, in the order of the input.
class Collector {
public:
    explicit Collector(const Options& options)
        : options_(options),
          names_(options.files, options.json() ? ".json" : ".txt"),
          headed_(!options.json() &&
                  (options.heading == "always" || (options.heading == "auto" && options.files.size() > 1))) {
        for (const std::string& name : options.files) {
            if (options.outputFolder && name != standardStream) {
                inputs_.emplace(placeKey(name), name);
            }
        }
    }

    void take(const std::vector<Translation>& translations) {
        const std::string& name = options_.files[next_++];
        const bool severalOutputs = translations.size() > 1 && options_.heading == "auto" && !options_.json();
        for (const Translation& translation : translations) {
            take(name, translation, headed_ || severalOutputs);
        }
    }

    bool failed() const { return failed_; }

private:
    void take(const std::string& name, const Translation& translation, bool headed) {
        complainOfBoxes(name, translation.boxes);
        for (const std::string& omission : translation.omissions) {
            complain(name, omission);
        }
        failed_ = failed_ || (options_.strict && !translation.boxes.empty());
        if (translation.error) {
            fail(name, *translation.error);
        } else if (options_.outputFolder) {
            writeReport(name, translation);
        } else {
            printReport(translation, headed);
        }
    }

    void printReport(const Translation& translation, bool headed) {
        if (headed) {
            print(std::string(first_ ? "" : "\n") + "==> " + inOneLine(translation.title) + " <==\n");
        }
        first_ = false;
        printText(translation.report);
    }

    void fail(const std::string& name, const std::string& message) {
        complain(name, message);
        failed_ = true;
    }

    void writeReport(const std::string& name, const Translation& translation) {
        const std::string target =
            (fs::path(*options_.outputFolder) / names_.nameOf(name, translation.output)).string();
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
            writeFile(target, translation.report, Existing::Replace);
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
    ReportNames names_;
    bool headed_;       ///< every report has the name of its file above it
    bool first_ = true; ///< nothing was printed yet
    std::size_t next_ = 0;
    std::multimap<std::string, std::string> inputs_; ///< by placeKey, as there may be many
    std::map<std::string, std::string> writtenBy_;
    bool failed_ = false;
};

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
    const std::optional<platform::DateTime> now = clockOf(options.date);
    if (options.outputFolder) {
        std::error_code error;
        fs::create_directories(*options.outputFolder, error);
        if (error) {
            complain(*options.outputFolder, error.message());
            return somethingFailed;
        }
    }
    Collector collector(options);
    OrderedJobs<std::vector<Translation>>::run(
        options.files.size(), jobs, [&](std::size_t i) { return translateFile(options.files[i], options, now); },
        [&](const std::vector<Translation>& translations) { collector.take(translations); });
    return collector.failed() ? somethingFailed : success;
}

} // namespace

Run addTranslate(CLI::App& command) {
    const auto options = std::make_shared<Options>();
    command.add_option("FILE", options->files, "File in any form, recognised by its content; - is standard input")
        ->type_name("")
        ->required();
    command
        .add_option("-o,--output-dir", options->outputFolder, "Write each report to DIR/NAME.txt (or .json) instead")
        ->type_name("DIR")
        ->check(refuseEmpty)
        ->take_last();
    command.add_option("-j,--jobs", options->jobs, "Work on up to N files at a time")->type_name("N")->take_last();
    addClockOption(command, options->date);
    addFormatOption(command, options->format, {"text", "json"});
    command
        .add_option("--heading", options->heading,
                    "Put the name of its file above each report: auto (where there are several), always, never")
        ->type_name("WHEN")
        ->check(CLI::IsMember({"auto", "always", "never"}))
        ->take_last();
    command.add_flag("--strict", options->strict, "Count the boxes that the program shows as failures")
        ->disable_flag_override();
    addImageOptions(command, options->images);
    return [options] { return run(*options); };
}

} // namespace wb::cli
