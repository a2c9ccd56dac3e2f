#pragma once

#include <optional>
#include <string>

#include "cli/boxes.h"
#include "cli/image_input.h"
#include "cli/input.h"
#include "core/workbench.h"
#include "platform/headless/headless_platform.h"

namespace wb::cli {

/// A program that runs without a display, as it stands after start-up. It notes the boxes that it shows.
class Program {
public:
    /// `now` sets the clock that the heading of a report shows.
    explicit Program(const std::optional<platform::DateTime>& now = std::nullopt);
    /// The program looks for stored EDIDs in that registry, which must outlive it.
    explicit Program(platform::Registry& registry, const std::optional<platform::DateTime>& now = std::nullopt);

    Workbench& workbench() { return workbench_; }
    const Boxes& boxes() const { return boxes_; }
    /// Forgets the boxes that came up so far.
    void clearBoxes() { boxes_.clear(); }

    /// Loads a data file as Open does. One that cannot be read is a CliError.
    void loadDataFile(const Input& input);
    /// Loads an image as the stored EDID of a monitor is, which takes its first two blocks.
    void load(const Image& image);
    /// Whichever of both a file holds; one of several images is a CliError.
    void load(const Contents& contents);

    /// The EDID that the system stored for the first monitor in use, without loading it. Nothing where there is none,
    /// which a box tells; one that is shorter than a block is a CliError.
    std::optional<Image> storedImage();

    /// The report of the loaded image with the line ends of the platform.
    std::string report();
    /// What Save would write.
    std::string dataFile();
    /// What the hexadecimal export would write.
    std::string hexExport();

private:
    Program(const std::optional<platform::DateTime>& now, platform::Registry* registry);

    [[noreturn]] void failToLoad() const;
    /// What a command has written to that file; a box that came up meanwhile told of a failure and is a CliError.
    std::string contentWithoutBox(const std::string& path, std::size_t boxesBefore) const;

    platform::headless::HeadlessPlatform platform_;
    platform::Services services_;
    Workbench workbench_;
    Boxes boxes_;
};

} // namespace wb::cli
