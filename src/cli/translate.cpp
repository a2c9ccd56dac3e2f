#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <thread>

#include "cli/boxes.h"
#include "cli/cli_error.h"
#include "cli/clock_option.h"
#include "cli/commands.h"
#include "cli/file_list.h"
#include "cli/ordered_jobs.h"
#include "cli/output.h"
#include "cli/plain_reading.h"
#include "cli/program.h"
#include "cli/progress.h"
#include "cli/report_names.h"
#include "core/base/digits.h"
#include "core/base/text.h"
#include "fields/json.h"

namespace wb::cli {

namespace {

namespace fs = std::filesystem;

struct Options {
    FileOptions files;
    std::optional<std::string> outputFolder;
    std::string jobs = "1";
    std::string date;
    std::string format = "text";
    std::string heading = "auto";
    ImageOptions images;
    bool strict = false;
    bool keepTree = false;

    bool json() const { return outputFormatOf(format) == OutputFormat::Json; }
};

/// What became of one image.
struct Translation {
    std::string title;  ///< of the image, for its heading
    std::string output; ///< named only where the file holds several images
    std::string report;
    Boxes boxes;
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
    Collector(const Options& options, const std::vector<BatchFile>& files)
        : options_(options),
          files_(files),
          names_(namesOf(files), extensionOf(options)),
          progress_(files.size()),
          headed_(!options.json() && (options.heading == "always" || (options.heading == "auto" && files.size() > 1))) {
        for (const BatchFile& file : files) {
            if (options.outputFolder && file.name != standardStream) {
                inputs_.emplace(placeKey(file.name), file.name);
            }
        }
    }

    void take(const std::vector<Translation>& translations) {
        const BatchFile& file = files_[next_++];
        const bool severalOutputs = translations.size() > 1 && options_.heading == "auto" && !options_.json();
        for (const Translation& translation : translations) {
            take(file, translation, headed_ || severalOutputs);
        }
        if (options_.outputFolder) {
            progress_.step();
        }
    }

    bool failed() const { return failed_; }

private:
    static std::string extensionOf(const Options& options) { return options.json() ? ".json" : ".txt"; }

    static std::vector<std::string> namesOf(const std::vector<BatchFile>& files) {
        std::vector<std::string> names;
        names.reserve(files.size());
        for (const BatchFile& file : files) {
            names.push_back(file.name);
        }
        return names;
    }

    void take(const BatchFile& file, const Translation& translation, bool headed) {
        const std::string& name = file.name;
        if (!translation.boxes.empty() || !translation.omissions.empty() || translation.error) {
            progress_.clear();
        }
        complainOfBoxes(name, translation.boxes);
        for (const std::string& omission : translation.omissions) {
            complain(name, omission);
        }
        failed_ = failed_ || (options_.strict && !translation.boxes.empty());
        if (translation.error) {
            fail(name, *translation.error);
        } else if (options_.outputFolder) {
            writeReport(file, translation);
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

    /// Below the folder of the results, the same folders as those of the input where they are to be kept.
    std::string targetOf(const BatchFile& file, const Translation& translation) const {
        const fs::path folder = *options_.outputFolder;
        if (!options_.keepTree) {
            return (folder / names_.nameOf(file.name, translation.output)).string();
        }
        const std::string output = translation.output.empty() ? "" : '-' + translation.output;
        return (folder / (file.below + output + extensionOf(options_))).string();
    }

    void writeReport(const BatchFile& file, const Translation& translation) {
        const std::string& name = file.name;
        const std::string target = targetOf(file, translation);
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
            std::error_code ignored; // what is missing then is told by the writing
            fs::create_directories(fs::path(target).parent_path(), ignored);
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
    const std::vector<BatchFile>& files_;
    ReportNames names_;
    Progress progress_;
    bool headed_;       ///< every report has the name of its file above it
    bool first_ = true; ///< nothing was printed yet
    std::size_t next_ = 0;
    std::multimap<std::string, std::string> inputs_; ///< by placeKey, as there may be many
    std::map<std::string, std::string> writtenBy_;
    bool failed_ = false;
};

std::size_t jobsOf(const Options& options) {
    const auto jobs = wholeNumber<std::size_t>(options.jobs);
    if (!jobs) {
        throw UsageError("the number of jobs is a whole number, or 0 for all cores, not '" + options.jobs + "'");
    }
    return *jobs == 0 ? std::max(std::thread::hardware_concurrency(), 1U) : *jobs;
}

int run(const Options& options) {
    const std::size_t jobs = jobsOf(options);
    const std::optional<platform::DateTime> now = clockOf(options.date);
    bool complete = true;
    const std::vector<BatchFile> files = filesOf(options.files, complete);
    if (options.outputFolder) {
        std::error_code error;
        fs::create_directories(*options.outputFolder, error);
        if (error) {
            complain(*options.outputFolder, error.message());
            return somethingFailed;
        }
    }
    Collector collector(options, files);
    OrderedJobs<std::vector<Translation>>::run(
        files.size(), jobs, [&](std::size_t i) { return translateFile(files[i].name, options, now); },
        [&](const std::vector<Translation>& translations) { collector.take(translations); });
    return collector.failed() || !complete ? somethingFailed : success;
}

} // namespace

Run addTranslate(CLI::App& command) {
    const auto options = std::make_shared<Options>();
    addFileOptions(command, options->files);
    command
        .add_option("-o,--output-dir", options->outputFolder, "Write each report to DIR/NAME.txt (or .json) instead")
        ->type_name("DIR")
        ->check(refuseEmpty)
        ->take_last();
    command.add_flag("--keep-tree", options->keepTree, "Write DIR/PATH.txt, with the path below a folder of -r")
        ->disable_flag_override();
    command.add_option("-j,--jobs", options->jobs, "Work on up to N files at a time; 0: as many as there are cores")
        ->type_name("N")
        ->take_last();
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
