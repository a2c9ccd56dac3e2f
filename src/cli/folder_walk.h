#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace wb::cli {

/// The ordinary files below a folder in the order of their paths. Links to folders are not followed, so that the walk
/// ends. It keeps a part of the names of a large folder at a time, for which it reads the folder several times.
class FolderWalk {
public:
    /// How many names are kept of a folder.
    static constexpr std::size_t usualPart = 8192;

    explicit FolderWalk(const std::filesystem::path& folder, std::size_t part = usualPart);

    /// The path of the next file below the folder; nothing after the last.
    std::optional<std::filesystem::path> next();

    /// False where a folder could not be read, which is told.
    bool complete() const { return complete_; }

private:
    struct Entry {
        std::string name;
        bool isFolder;

        bool operator<(const Entry& other) const { return name < other.name; }
    };

    /// A folder on the way down.
    struct Level {
        std::filesystem::path below; ///< empty: the first one
        std::vector<Entry> entries;  ///< those of a part, the next one last
        std::string last;            ///< the last name of the parts so far
        bool more = true;            ///< there may be a further part
    };

    void readPart(Level& level);

    std::filesystem::path folder_;
    std::size_t part_;
    std::vector<Level> levels_;
    bool complete_ = true;
};

} // namespace wb::cli
