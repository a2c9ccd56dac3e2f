#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

namespace wb::test {

/// A folder of its own that goes with the object.
class TemporaryFolder {
public:
    TemporaryFolder()
        : path_(std::filesystem::temp_directory_path() / ("edidwb-test-" + std::to_string(std::random_device()()))) {
        std::filesystem::create_directories(path_);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    std::string file(const std::string& name) const { return (path_ / name).string(); }
    std::string write(const std::string& name, std::string_view content) const {
        std::ofstream(file(name), std::ios::binary) << content;
        return file(name);
    }
    static std::string read(const std::string& name) {
        std::ifstream in(name, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

private:
    std::filesystem::path path_;
};

} // namespace wb::test
