#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/input.h"
#include "cli/recognition.h"
#include "core/workbench.h"
#include "platform/headless/headless_platform.h"

namespace wb::cli {

/// A program that runs without a display, as it stands after start-up. It notes the boxes that it shows.
class Program {
public:
    /// `now` sets the clock that the heading of a report shows.
    explicit Program(const std::optional<platform::DateTime>& now = std::nullopt);
    /// The program looks for stored EDIDs in that registry, which must outlive it.
    explicit Program(platform::Registry& registry);

    Workbench& workbench() { return workbench_; }
    const std::vector<std::string>& boxes() const { return boxes_; }

    /// Loads a file: a data file as Open does, any other image as the stored EDID of a monitor. A file that is no image
    /// or cannot be read is a CliError.
    void load(const Input& input);

    /// Loads the EDID that the system stored for the first monitor in use. False where there is none, which a box
    /// tells; one that is shorter than a block is a CliError.
    bool loadStoredEdid();

    /// The bytes that a data file holds, without loading it. A cell that is no byte is a CliError.
    std::string dataFileBytes(const Input& input);

    /// The report of the loaded image with the line ends of the platform.
    std::string report();
    /// What Save would write.
    std::string dataFile();
    /// What the hexadecimal export would write.
    std::string hexExport();
    /// The bytes of the cells, with the extension block where the export has it. A cell that is no byte is a CliError.
    std::string binaryImage();

private:
    Program(const std::optional<platform::DateTime>& now, platform::Registry* registry);

    [[noreturn]] void failToLoad() const;
    /// What a command has written to that file; a box that came up meanwhile told of a failure and is a CliError.
    std::string contentWithoutBox(const std::string& path, std::size_t boxesBefore) const;

    platform::headless::HeadlessPlatform platform_;
    platform::Services services_;
    Workbench workbench_;
    std::vector<std::string> boxes_;
};

/// What a file holds; an empty one, or one that holds no image, is a CliError.
Content imageIn(const Input& input);

} // namespace wb::cli
