#include "cli/report_names.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "cli/input.h"
#include "core/base/file_names.h"

namespace wb::cli {

namespace {

namespace fs = std::filesystem;

std::string stemOf(const std::string& file) {
    return file == standardStream ? "stdin" : nameOf(pathOf(file).stem());
}

/// The folders of a file from the innermost outwards.
std::vector<std::string> foldersOf(const std::string& file) {
    std::error_code error;
    const fs::path place = fs::absolute(pathOf(file), error).lexically_normal().parent_path();
    std::vector<std::string> folders;
    for (const fs::path& part : place.relative_path()) {
        folders.push_back(nameOf(part));
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

std::string fileNameOf(const std::string& file) {
    return nameOf(pathOf(file).filename());
}

using Pair = std::pair<NameKey, NameKey>;

/// Each pair once, in order.
std::vector<Pair> inOrder(std::vector<Pair> pairs) {
    std::sort(pairs.begin(), pairs.end());
    pairs.erase(std::unique(pairs.begin(), pairs.end()), pairs.end());
    return pairs;
}

/// Calls `take` with each first key and how many second ones it has.
void countSeconds(const std::vector<Pair>& pairs, const std::function<void(NameKey first, std::size_t count)>& take) {
    for (auto begin = pairs.begin(); begin != pairs.end();) {
        const auto end = std::find_if(begin, pairs.end(), [&](const Pair& pair) { return pair.first != begin->first; });
        take(begin->first, static_cast<std::size_t>(end - begin));
        begin = end;
    }
}

} // namespace

ReportNames::ReportNames(const Walk& walk, std::string extension) : extension_(std::move(extension)) {
    findSharedStems(walk);
    findGroups(walk);
    tellApart(walk);
}

ReportNames::ReportNames(const std::vector<std::string>& files, std::string extension)
    : ReportNames([&](const auto& take) { std::for_each(files.begin(), files.end(), take); }, std::move(extension)) {}

std::string ReportNames::nameOf(const std::string& file, const std::string& output) const {
    std::string name = commonName(file);
    const std::size_t group = groupOf(name);
    if (group < groups_.size() && file != standardStream) {
        name = withFolders(name, foldersOf(file), groups_[group].folders);
    }
    return name + (output.empty() ? "" : '-' + output) + extension_;
}

/// The name without folders, which other files may have too.
std::string ReportNames::commonName(const std::string& file) const {
    const std::string stem = stemOf(file);
    const bool shared = std::binary_search(sharedStems_.begin(), sharedStems_.end(), nameKey(stem));
    return shared && file != standardStream ? fileNameOf(file) : stem;
}

/// The place of a name among the groups; behind their end where no two files share it.
std::size_t ReportNames::groupOf(const std::string& name) const {
    const NameKey key = nameKey(name);
    const auto group = std::lower_bound(groups_.begin(), groups_.end(), key,
                                        [](const Group& a, NameKey sought) { return a.name < sought; });
    const bool found = group != groups_.end() && group->name == key;
    return found ? static_cast<std::size_t>(group - groups_.begin()) : groups_.size();
}

void ReportNames::findSharedStems(const Walk& walk) {
    std::vector<Pair> pairs;
    walk([&](const std::string& file) { pairs.emplace_back(nameKey(stemOf(file)), nameKey(fileNameOf(file))); });
    countSeconds(inOrder(std::move(pairs)), [&](NameKey stem, std::size_t names) {
        if (names > 1) {
            sharedStems_.push_back(stem);
        }
    });
}

void ReportNames::findGroups(const Walk& walk) {
    std::vector<Pair> pairs;
    walk([&](const std::string& file) { pairs.emplace_back(nameKey(commonName(file)), nameKey(file)); });
    countSeconds(inOrder(std::move(pairs)), [&](NameKey name, std::size_t files) {
        if (files > 1) {
            groups_.push_back({.name = name, .files = files});
        }
    });
}

/// As many folders as tell all files of a group apart; the most there are where nothing does.
void ReportNames::tellApart(const Walk& walk) {
    if (groups_.empty()) {
        return;
    }
    walk([&](const std::string& file) {
        const std::size_t group = groupOf(commonName(file));
        if (group < groups_.size()) {
            groups_[group].most = std::max(groups_[group].most, foldersOf(file).size());
        }
    });
    const auto isSettled = [](const Group& group) { return group.settled; };
    for (std::size_t folders = 1; !std::all_of(groups_.begin(), groups_.end(), isSettled); ++folders) {
        settle(walk, folders);
    }
}

void ReportNames::settle(const Walk& walk, std::size_t folders) {
    for (Group& group : groups_) {
        if (!group.settled) {
            group.folders = std::min(folders, group.most);
            group.settled = folders >= group.most;
        }
    }
    std::vector<Pair> pairs;
    walk([&](const std::string& file) {
        const std::size_t group = groupOf(commonName(file));
        if (group < groups_.size() && !groups_[group].settled) {
            pairs.emplace_back(groups_[group].name, nameKey(withFolders("", foldersOf(file), folders)));
        }
    });
    auto group = groups_.begin();
    countSeconds(inOrder(std::move(pairs)), [&](NameKey name, std::size_t names) {
        group = std::find_if(group, groups_.end(), [&](const Group& other) { return other.name == name; });
        group->settled = names == group->files;
    });
}

} // namespace wb::cli
