#include "cli/report_places.h"

#include <algorithm>
#include <system_error>

#include "cli/cli_error.h"
#include "cli/file_access.h"
#include "cli/input.h"
#include "core/base/file_names.h"
#include "core/base/text.h"

namespace wb::cli {

namespace {

namespace fs = std::filesystem;

/// The name of the file behind all symbolic links, in one letter case: the same for whatever leads to that name.
/// Empty where there is none. A hard link has a name of its own, and to replace it does the file no harm.
std::string lastNameOf(const std::string& name) {
    return upperCase(nameOf(behindLinks(pathOf(name)).filename()));
}

} // namespace

ReportPlaces::ReportPlaces(KeptFiles& files, Options options)
    : files_(files),
      options_(std::move(options)),
      names_([&](const auto& take) { files.forEach([&](const BatchFile& file) { take(file.name); }); },
             options_.extension) {
    inputs_.reserve(files.count());
    files.forEach([&](const BatchFile& file) {
        if (file.name != standardStream) {
            inputs_.emplace_back(nameKey(lastNameOf(file.name)), file.place);
        }
    });
    std::sort(inputs_.begin(), inputs_.end());
}

std::string ReportPlaces::take(const BatchFile& file, const std::string& output, const std::string& ending) {
    std::string name = nameFor(file, output);
    if (!name.ends_with(ending)) {
        name += ending;
    }
    std::string place = nameOf(options_.folder / pathOf(name));
    const auto [other, isNew] = takenBy_.try_emplace(nameKey(place), file.place);
    if (!isNew) {
        throw CliError("its " + options_.result + " '" + place + "' is already that of '" +
                       files_.at(other->second).name + "'");
    }
    if (isInput(place)) {
        throw CliError("its " + options_.result + " '" + place + "' would replace a file that is to be read");
    }
    return place;
}

std::string ReportPlaces::nameFor(const BatchFile& file, const std::string& output) const {
    if (!options_.keepTree) {
        return names_.nameOf(file.name, output);
    }
    const std::string ending = output.empty() ? "" : '-' + output;
    return file.below + ending + options_.extension;
}

bool ReportPlaces::isInput(const std::string& place) {
    const std::string last = lastNameOf(place);
    const NameKey key = nameKey(last);
    for (auto input = std::lower_bound(inputs_.begin(), inputs_.end(), std::pair(key, std::uint64_t{0}));
         !last.empty() && input != inputs_.end() && input->first == key; ++input) {
        std::error_code error;
        if (fs::equivalent(pathOf(files_.at(input->second).name), pathOf(place), error) && !error) {
            return true;
        }
    }
    return false;
}

} // namespace wb::cli
