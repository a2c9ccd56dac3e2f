#include "cli/report_names.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <utility>

#include "cli/input.h"

namespace wb::cli {

namespace {

namespace fs = std::filesystem;

/// Groups of files, by what would be their name.
using Groups = std::map<std::string, std::set<std::string>>;

std::string stemOf(const std::string& file) {
    return file == standardStream ? "stdin" : fs::path(file).stem().string();
}

/// The folders of a file from the innermost outwards.
std::vector<std::string> foldersOf(const std::string& file) {
    std::error_code error;
    const fs::path place = fs::absolute(file, error).lexically_normal().parent_path();
    std::vector<std::string> folders;
    for (const fs::path& part : place.relative_path()) {
        folders.push_back(part.string());
    }
    std::reverse(folders.begin(), folders.end());
    return folders;
}

std::string withFolders(const std::string& name, const std::vector<std::string>& folders, std::size_t count) {
    std::string result;
    for (std::size_t i = std::min(count, folders.size()); i > 0; --i) {
        result += folders[i - 1];
        result += '_';
    }
    return result + name;
}

/// As many folders as tell all files of the group apart; the most there are where nothing does.
std::size_t foldersNeeded(const std::string& name, const std::set<std::string>& files) {
    std::size_t most = 0;
    for (const std::string& file : files) {
        most = std::max(most, foldersOf(file).size());
    }
    for (std::size_t count = 0; count < most; ++count) {
        std::set<std::string> names;
        for (const std::string& file : files) {
            names.insert(withFolders(name, foldersOf(file), count));
        }
        if (names.size() == files.size()) {
            return count;
        }
    }
    return most;
}

} // namespace

ReportNames::ReportNames(const std::vector<std::string>& files, std::string extension)
    : extension_(std::move(extension)) {
    Groups fileNamesOfStem;
    for (const std::string& file : files) {
        fileNamesOfStem[stemOf(file)].insert(fs::path(file).filename().string());
    }
    Groups filesOfName;
    for (const std::string& file : files) {
        const bool shared = file != standardStream && fileNamesOfStem.at(stemOf(file)).size() > 1;
        filesOfName[shared ? fs::path(file).filename().string() : stemOf(file)].insert(file);
    }
    for (const auto& [name, sharing] : filesOfName) {
        const std::size_t folders = foldersNeeded(name, sharing);
        for (const std::string& file : sharing) {
            stems_[file] = file == standardStream ? name : withFolders(name, foldersOf(file), folders);
        }
    }
}

std::string ReportNames::nameOf(const std::string& file, const std::string& output) const {
    return stems_.at(file) + (output.empty() ? "" : '-' + output) + extension_;
}

} // namespace wb::cli
