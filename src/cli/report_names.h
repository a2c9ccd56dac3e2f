#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "cli/name_key.h"

namespace wb::cli {

/// The names under which the results of a batch are written into one folder. What it holds of the files grows with
/// those only that share a name; while it is made it needs some 16 bytes of each.
class ReportNames {
public:
    /// Gives each file of the batch, as the user gave it, to `take`.
    using Walk = std::function<void(const std::function<void(const std::string& file)>& take)>;

    /// Walks over the files several times; `extension` with its point.
    ReportNames(const Walk& walk, std::string extension);
    ReportNames(const std::vector<std::string>& files, std::string extension);

    /// The name for one of the files, and for one of its outputs where it holds several images: the name of the file
    /// without its extension, which only stays where it tells files apart; files of the same name in several folders
    /// have as many of their folders in front as tell them apart, "card0-DP-1_edid.txt".
    std::string nameOf(const std::string& file, const std::string& output) const;

private:
    /// Several files of one name.
    struct Group {
        NameKey name;
        std::size_t files = 0;
        std::size_t folders = 0; ///< how many go in front
        std::size_t most = 0;    ///< how many the deepest file has
        bool settled = false;
    };

    std::string commonName(const std::string& file) const;
    std::size_t groupOf(const std::string& name) const;
    void findSharedStems(const Walk& walk);
    void findGroups(const Walk& walk);
    void tellApart(const Walk& walk);
    void settle(const Walk& walk, std::size_t folders);

    std::vector<NameKey> sharedStems_; ///< of files that differ in their extensions, in order
    std::vector<Group> groups_;        ///< in the order of their names' keys
    std::string extension_;
};

} // namespace wb::cli
