#include "cli/folder_walk.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "cli/output.h"
#include "core/base/file_names.h"

namespace wb::cli {

namespace fs = std::filesystem;

FolderWalk::FolderWalk(const fs::path& folder, std::size_t part) : folder_(folder), part_(part) {
    levels_.emplace_back();
}

std::optional<fs::path> FolderWalk::next() {
    while (!levels_.empty()) {
        Level& level = levels_.back();
        if (level.entries.empty() && level.more) {
            readPart(level);
        }
        if (level.entries.empty()) {
            levels_.pop_back();
            continue;
        }
        const Entry entry = std::move(level.entries.back());
        level.entries.pop_back();
        const fs::path below = level.below / pathOf(entry.name);
        if (!entry.isFolder) {
            return below;
        }
        levels_.emplace_back().below = below;
    }
    return std::nullopt;
}

/// The first names behind the last one, as many as are kept at a time.
void FolderWalk::readPart(Level& level) {
    std::error_code error;
    const bool isFirst = level.last.empty();
    const fs::path folder = level.below.empty() ? folder_ : folder_ / level.below;
    level.more = false;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        std::error_code ignored;
        Entry found{nameOf(entry->path().filename()), false};
        const bool isPast = !isFirst && found.name <= level.last;
        const bool isFar = level.entries.size() == part_ && !(found < level.entries.front());
        level.more = level.more || (isFar && !isPast);
        if (isPast || isFar) {
            continue;
        }
        found.isFolder = !entry->is_symlink(ignored) && entry->is_directory(ignored);
        if (!found.isFolder && !entry->is_regular_file(ignored)) {
            continue;
        }
        if (level.entries.size() == part_) { // the farthest one gives way
            std::pop_heap(level.entries.begin(), level.entries.end());
            level.entries.pop_back();
            level.more = true;
        }
        level.entries.push_back(std::move(found));
        std::push_heap(level.entries.begin(), level.entries.end());
    }
    if (error) {
        complain(nameOf(folder), reasonOf(error));
        complete_ = false;
    }
    std::sort(level.entries.rbegin(), level.entries.rend());
    if (!level.entries.empty()) {
        level.last = level.entries.front().name;
    }
}

} // namespace wb::cli
