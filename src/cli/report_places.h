#pragma once

#include <filesystem>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "cli/kept_files.h"
#include "cli/report_names.h"

namespace wb::cli {

/// Where the results of a batch are written, reports or new images, and that none takes the place of another or of a
/// file to be read. It holds some 70 bytes of each file.
class ReportPlaces {
public:
    struct Options {
        std::filesystem::path folder;
        std::string extension;         ///< with its point; empty: there is none that all have
        bool keepTree = false;         ///< the same folders as those of the input
        std::string result = "report"; ///< what is written, as messages name it
    };

    /// The files are to outlive it.
    ReportPlaces(KeptFiles& files, Options options);

    /// The place for the result of a file, and of one of its outputs where it holds several images; `ending` goes
    /// behind a name that does not end with it. One that is taken already, and one of a file that is to be read, are a
    /// CliError.
    std::string take(const BatchFile& file, const std::string& output, const std::string& ending = "");

private:
    std::string nameFor(const BatchFile& file, const std::string& output) const;
    bool isInput(const std::string& place);

    KeptFiles& files_;
    Options options_;
    ReportNames names_;
    std::vector<std::pair<NameKey, std::uint64_t>> inputs_; ///< the last names of the files, and the files, in order
    std::unordered_map<NameKey, std::uint64_t> takenBy_;
};

} // namespace wb::cli
