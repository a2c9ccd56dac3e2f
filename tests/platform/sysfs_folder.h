#pragma once

#include <filesystem>
#include <fstream>
#include <string>

#include "support/temporary_folder.h"

namespace wb::test {

/// A made-up root of sysfs with an empty folder of connectors.
class SysfsFolder {
public:
    SysfsFolder() { std::filesystem::create_directories(drm()); }

    std::filesystem::path root() const { return folder_.file("sys"); }
    std::filesystem::path drm() const { return root() / "class" / "drm"; }

    /// A file of a connector, with the folder that holds it.
    void write(const std::string& connector, const std::string& file, const std::string& content) const {
        std::filesystem::create_directories(drm() / connector);
        std::ofstream(drm() / connector / file, std::ios::binary) << content;
    }
    std::string read(const std::string& connector, const std::string& file) const {
        return TemporaryFolder::read((drm() / connector / file).string());
    }
    void addConnector(const std::string& name, const std::string& status, const std::string& edid) const {
        write(name, "status", status + '\n');
        write(name, "edid", edid);
    }

private:
    TemporaryFolder folder_;
};

} // namespace wb::test
