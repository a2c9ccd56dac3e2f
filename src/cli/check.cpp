#include <algorithm>
#include <array>
#include <functional>
#include <iterator>
#include <memory>

#include "cli/commands.h"
#include "cli/file_list.h"
#include "cli/image_check.h"
#include "cli/output.h"
#include "cli/plain_reading.h"
#include "cli/program.h"
#include "cli/syntax.h"
#include "core/base/text.h"
#include "fields/announced_extensions.h"
#include "fields/json.h"

namespace wb::cli {

namespace {

using fields::Finding;
using fields::Reading;
using fields::Severity;

struct Options {
    FileOptions files;
    std::string format = "text";
    std::string level{fields::severityName(Severity::Warning)};
    std::string failOn{fields::severityName(Severity::Error)};
    bool quiet = false;
    ImageOptions images;
};

/// What is known of one image.
struct Checked {
    std::vector<CheckResult> results;
    Reading reading;

    bool good() const {
        return std::all_of(results.begin(), results.end(), [](const CheckResult& result) { return result.good; });
    }
};

constexpr std::array severities = {Severity::Error, Severity::Warning, Severity::Note};

std::vector<std::string> levels() {
    std::vector<std::string> names;
    names.reserve(severities.size());
    for (const Severity severity : severities) {
        names.emplace_back(fields::severityName(severity));
    }
    return names;
}

/// Of one of levels().
Severity severityOf(std::string_view level) {
    return *std::find_if(severities.begin(), severities.end(),
                         [&](Severity severity) { return fields::severityName(severity) == level; });
}

CheckResult resultOf(const Box& box) {
    std::string text = boxText(box);
    return {.good = false,
            .text = text,
            .finding = Finding{.severity = Severity::Error,
                               .code = "check.box",
                               .block = 0,
                               .byte = 0,
                               .text = "The program shows a box: " + text,
                               .clause = ""}};
}

/// The boxes that come up while the program reads a data file.
std::vector<CheckResult> boxesOf(const Input& input) {
    Program program;
    program.readDataFile(input);
    std::vector<CheckResult> results;
    for (const Box& box : program.boxes().distinct()) {
        results.push_back(resultOf(box));
    }
    return results;
}

/// Gives what is known of each image of a file, of which it keeps one at a time; a data file holds one.
void checkFile(const std::string& name, const ImageOptions& options,
               const std::function<void(const Checked& checked)>& take) {
    const Contents contents = contentsOf(readInput(name), options);
    for (const Image& image : imagesOf(contents)) {
        const std::size_t most = contents.isDataFile ? Image::editedBlocks : Image::mostBlocks;
        const std::size_t blocks = std::min(fields::announcedExtensions(image) + 1, most);
        Checked checked{checkImage(image, blocks), fields::read(image)};
        if (contents.isDataFile) {
            const std::vector<CheckResult> boxes = boxesOf(contents.input);
            checked.results.insert(checked.results.end(), boxes.begin(), boxes.end());
        }
        take(checked);
    }
}

std::vector<Finding> findingsFrom(const Checked& checked, Severity level) {
    std::vector<Finding> findings;
    std::copy_if(checked.reading.findings.begin(), checked.reading.findings.end(), std::back_inserter(findings),
                 [&](const Finding& finding) { return finding.severity >= level; });
    return findings;
}

/// Those that it must tell of in any case, as they fail the image, and of which the plain reading has none.
void addFailures(const Checked& checked, std::vector<Finding>& findings) {
    for (const CheckResult& result : checked.results) {
        if (result.finding) {
            findings.push_back(*result.finding);
        }
    }
}

std::string resultLine(const std::string& name, const std::vector<CheckResult>& results) {
    std::string line = inOneLine(name);
    for (const CheckResult& result : results) {
        line += (&result == &results.front() ? ": " : ", ") + result.text;
    }
    return line + '\n';
}

std::string findingLine(const Finding& finding) {
    std::string line = "  " + std::string(fields::severityName(finding.severity)) + ", byte " +
                       std::to_string(finding.byte) + " (" + ByteToHex2(static_cast<long long>(finding.byte)) + "h)";
    if (!finding.path.empty()) {
        line += ", " + finding.path;
    }
    return line + ": " + inOneLine(finding.text) + " [" + std::string(finding.code) + "; " +
           std::string(finding.clause) + "]\n";
}

std::string findingRow(const std::string& name, const Finding& finding) {
    return tsvLine({name, fields::severityName(finding.severity), finding.code, std::to_string(finding.block),
                    std::to_string(finding.byte), finding.path, finding.text, finding.clause});
}

/// The text has each result in its first line; the other formats have findings alone.
void tell(const Checked& checked, std::vector<Finding> findings, OutputFormat format) {
    const std::string name = titleOf(checked.reading.image);
    if (format == OutputFormat::Text) {
        print(resultLine(name, checked.results));
    } else {
        addFailures(checked, findings);
    }
    if (format == OutputFormat::Json) {
        print(fields::findingsToJson(checked.reading, findings) + '\n');
        return;
    }
    for (const Finding& finding : findings) {
        print(format == OutputFormat::Text ? findingLine(finding) : findingRow(name, finding));
    }
}

int run(const Options& options) {
    const OutputFormat format = outputFormatOf(options.format);
    const Severity level = severityOf(options.level);
    const Severity failOn = severityOf(options.failOn);
    bool good = true;
    if (format == OutputFormat::Tsv) {
        print(tsvLine({"file", "severity", "code", "block", "byte", "path", "text", "clause"}));
    }
    const bool read = forEachFile(options.files, [&](const std::string& name) {
        checkFile(name, options.images, [&](const Checked& checked) {
            const std::vector<Finding> findings = findingsFrom(checked, level);
            good = good && checked.good() && findingsFrom(checked, failOn).empty();
            if (!options.quiet || !findings.empty() || !checked.good()) {
                tell(checked, findings, format);
            }
        });
    });
    return good && read ? success : somethingFailed;
}

} // namespace

Run addCheck(Syntax& syntax) {
    const auto options = std::make_shared<Options>();
    addFileOptions(syntax, options->files);
    syntax
        .option("--level", "LEVEL", "Tell findings of this severity and above: error, warning (the default), note",
                &options->level)
        .oneOf(&levels);
    syntax
        .option("--fail-on", "LEVEL", "Fail for findings of this severity and above; error is the default",
                &options->failOn)
        .oneOf(&levels);
    syntax.flag("-q,--quiet", "Tell only of files with findings", options->quiet);
    addFormatOption(syntax, options->format, &textJsonAndTsv);
    addImageOptions(syntax, options->images);
    syntax.footer(
        "  edidwb check monitor.bin\n"
        "  edidwb check -r --quiet --fail-on warning images\n\n"
        "Exit status: 0 nothing that counts was found, 1 something was found or a file could not be\n"
        "read, 2 wrong usage. Header, length and check sums always count.");
    return [options] { return run(*options); };
}

} // namespace wb::cli
