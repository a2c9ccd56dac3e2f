#include <algorithm>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

#include "cli/attempt.h"
#include "cli/boxes.h"
#include "cli/clock_option.h"
#include "cli/commands.h"
#include "cli/file_list.h"
#include "cli/ordered_jobs.h"
#include "cli/output.h"
#include "cli/plain_reading.h"
#include "cli/program.h"
#include "cli/progress.h"
#include "cli/report_places.h"
#include "cli/sync_option.h"
#include "cli/syntax.h"
#include "core/base/digits.h"
#include "core/base/file_names.h"
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
    bool sync = true;

    bool json() const { return outputFormatOf(format) == OutputFormat::Json; }
    std::string extension() const { return json() ? ".json" : ".txt"; }
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

/// What became of a file.
struct Translations {
    std::vector<Translation> images;
    std::optional<CliError> stop; ///< what kept the others from being translated
};

/// Translates the files of a batch, on several threads.
class Translator {
public:
    explicit Translator(const Options& options) : options_(options), programs_(clockOf(options.date)) {}

    Translations translateFile(const std::string& name) {
        Translations file;
        try {
            withinMemory([&] { translateImages(contentsOf(readInput(name), options_.images), file.images); });
        } catch (const CliError& error) {
            file.stop = error;
        }
        return file;
    }

private:
    void translateImages(const Contents& contents, std::vector<Translation>& results) {
        if (contents.isDataFile && !options_.json()) {
            results.push_back(translate(contents, nullptr)); // whatever its cells are
            return;
        }
        for (const Image& image : imagesOf(contents)) {
            results.push_back(translate(contents, &image));
        }
    }

    Translation translate(const Contents& contents, const Image* image) {
        Translation result;
        if (options_.json()) {
            result.report = fields::summaryToJson(fields::read(*image)) + '\n';
        } else {
            result = reportOf(contents, contents.isDataFile ? nullptr : image);
        }
        result.title = image == nullptr ? contents.input.name : titleOf(*image);
        result.output = contents.images.size() > 1 ? image->origin().output : "";
        return result;
    }

    /// A program that lacked memory in the middle of its work is not given back.
    Translation reportOf(const Contents& contents, const Image* image) {
        Translation result;
        std::unique_ptr<Program> program = programs_.take();
        try {
            if (image == nullptr) {
                program->loadDataFile(contents.input);
            } else {
                program->load(*image);
                result.omissions = omissionsOf(*image);
            }
            result.report = program->report();
        } catch (const CliError& error) {
            result.error = error.what();
        }
        result.boxes = program->boxes();
        programs_.giveBack(std::move(program));
        return result;
    }

    const Options& options_;
    Programs programs_;
};

/// The files of a batch, and where their reports go.
struct Batch {
    explicit Batch(const FileOptions& options) : list(options) {}

    std::optional<BatchFile> next() { return kept ? kept->next() : list.next(); }
    bool several() { return kept ? kept->count() > 1 : list.several(); }

    FileList list;
    std::optional<KeptFiles> kept; ///< there where the reports are written to a folder, for which names must be known
};

/// Takes the results one after the other, in the order of the input.
class Collector {
public:
    Collector(const Options& options, Batch& batch)
        : options_(options),
          headed_(!options.json() && (options.heading == "always" || (options.heading == "auto" && batch.several()))) {
        if (options.outputFolder) {
            places_.emplace(*batch.kept, ReportPlaces::Options{.folder = pathOf(*options.outputFolder),
                                                               .extension = options.extension(),
                                                               .keepTree = options.keepTree});
            progress_.emplace(batch.kept->count());
        }
    }

    void take(const BatchFile& file, const Translations& translations) {
        const std::vector<Translation>& images = translations.images;
        const bool severalOutputs = images.size() > 1 && options_.heading == "auto" && !options_.json();
        for (const Translation& translation : images) {
            count(attempt(file.name, [&] { take(file, translation, headed_ || severalOutputs); }));
        }
        if (translations.stop) {
            clearProgress();
            fail(file.name, translations.stop->what());
        }
        if (progress_) {
            progress_->step();
        }
    }

    bool failed() const { return failed_; }

private:
    void take(const BatchFile& file, const Translation& translation, bool headed) {
        const std::string& name = file.name;
        const bool hasMessages = !translation.boxes.empty() || !translation.omissions.empty() || translation.error;
        if (hasMessages) {
            clearProgress();
        }
        complainOfBoxes(name, translation.boxes);
        for (const std::string& omission : translation.omissions) {
            complain(name, omission);
        }
        failed_ = failed_ || (options_.strict && !translation.boxes.empty());
        if (translation.error) {
            fail(name, *translation.error);
        } else if (places_) {
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

    void count(bool good) { failed_ = failed_ || !good; }

    void clearProgress() {
        if (progress_) {
            progress_->clear();
        }
    }

    void writeReport(const BatchFile& file, const Translation& translation) {
        std::string place;
        count(attempt(file.name, [&] { place = places_->take(file, translation.output); }) &&
              attempt(place, [&] { writeReportTo(place, translation.report); }));
    }

    void writeReportTo(const std::string& place, const std::string& report) {
        makeFolderOf(place);
        writeFile(place, report, {.existing = Existing::Replace, .sync = options_.sync});
    }

    /// What is missing after a failure is told by the writing.
    void makeFolderOf(const std::string& place) {
        fs::path folder = pathOf(place).parent_path();
        if (folder != lastFolder_) {
            std::error_code ignored;
            fs::create_directories(folder, ignored);
            lastFolder_ = std::move(folder);
        }
    }

    const Options& options_;
    fs::path lastFolder_;                ///< of the report before
    bool headed_;                        ///< every report has the name of its file above it
    bool first_ = true;                  ///< nothing was printed yet
    std::optional<ReportPlaces> places_; ///< there where reports are written to a folder, as is the next
    std::optional<Progress> progress_;
    bool failed_ = false;
};

std::vector<std::string> headings() {
    return {"auto", "always", "never"};
}

std::size_t jobsOf(const Options& options) {
    const auto jobs = wholeNumber<std::size_t>(options.jobs);
    if (!jobs) {
        throw UsageError("the number of jobs is a whole number, or 0 for all cores, not '" + options.jobs + "'");
    }
    return *jobs == 0 ? std::max(std::thread::hardware_concurrency(), 1U) : *jobs;
}

/// Reads the names to their end, which may take a while for a large folder.
void keepNames(Batch& batch) {
    batch.kept.emplace();
    Progress progress(std::nullopt);
    while (const std::optional<BatchFile> file = batch.list.next()) {
        batch.kept->add(*file);
        progress.step();
    }
}

int run(const Options& options) {
    const std::size_t jobs = jobsOf(options);
    Translator translator(options);
    Batch batch(options.files);
    if (options.outputFolder) {
        keepNames(batch);
        std::error_code error;
        fs::create_directories(pathOf(*options.outputFolder), error);
        if (error) {
            complain(*options.outputFolder, reasonOf(error));
            return somethingFailed;
        }
    }
    Collector collector(options, batch);
    OrderedJobs<BatchFile, Translations>::run(
        [&] { return batch.next(); }, jobs, [&](const BatchFile& file) { return translator.translateFile(file.name); },
        [&](const BatchFile& file, const Translations& translations) { collector.take(file, translations); });
    return collector.failed() || !batch.list.complete() ? somethingFailed : success;
}

} // namespace

Run addTranslate(Syntax& syntax) {
    const auto options = std::make_shared<Options>();
    addFileOptions(syntax, options->files);
    syntax
        .option("-o,--output-dir", "DIR", "Write each report to DIR/NAME.txt (or .json) instead",
                &options->outputFolder)
        .refuseEmpty();
    syntax.flag("--keep-tree", "Write DIR/PATH.txt, with the path below a folder of -r", options->keepTree);
    addSyncOption(syntax, options->sync);
    syntax.option("-j,--jobs", "N", "Work on up to N files at a time; 0: as many as there are cores", &options->jobs);
    addClockOption(syntax, options->date);
    addFormatOption(syntax, options->format, &textAndJson);
    syntax
        .option("--heading", "WHEN",
                "Put the name of its file above each report: auto (where there are several), always, never",
                &options->heading)
        .oneOf(&headings);
    syntax.flag("--strict", "Count the boxes that the program shows as failures", options->strict);
    addImageOptions(syntax, options->images);
    syntax.footer(
        "The report is that of the desktop program, of the first two blocks; what it leaves out is told.\n\n"
        "  edidwb translate monitor.bin\n"
        "  edidwb translate -r -j 0 --keep-tree -o reports images\n\n"
        "Exit status: 0 all went well, 1 a file could not be read or written or is no image, 2 wrong usage.");
    return [options] { return run(*options); };
}

} // namespace wb::cli
