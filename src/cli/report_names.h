#pragma once

#include <map>
#include <string>
#include <vector>

namespace wb::cli {

/// The names under which the results of a batch are written into one folder.
class ReportNames {
public:
    /// The files of the batch as the user gave them; `extension` with its point.
    ReportNames(const std::vector<std::string>& files, std::string extension);

    /// The name for one of the files, and for one of its outputs where it holds several images: the name of the file
    /// without its extension, which only stays where it tells files apart; files of the same name in several folders
    /// have as many of their folders in front as tell them apart, "card0-DP-1_edid.txt".
    std::string nameOf(const std::string& file, const std::string& output) const;

private:
    std::map<std::string, std::string> stems_; ///< of each file
    std::string extension_;
};

} // namespace wb::cli
