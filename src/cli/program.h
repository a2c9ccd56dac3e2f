#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

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

    /// Puts the program back to how it stands after start-up, with that clock: what it costs to make one anew is mostly
    /// its screens. A registry of its own stays.
    void startOver(const std::optional<platform::DateTime>& now);

    Workbench& workbench() { return workbench_; }
    const Boxes& boxes() const { return boxes_; }
    /// Forgets the boxes that came up so far.
    void clearBoxes() { boxes_.clear(); }

    /// Reads the cells of a data file without opening it; what is wrong with it comes up as boxes.
    void readDataFile(const Input& input);
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

    void start(const std::optional<platform::DateTime>& now);
    [[noreturn]] void failToLoad() const;
    /// What is built; a box that comes up meanwhile tells of a failure and is a CliError.
    std::string contentWithoutBox(const std::function<std::string()>& build);

    std::optional<platform::headless::HeadlessPlatform> platform_{std::in_place}; ///< always there, made anew in place
    platform::Services services_;
    Workbench workbench_;
    Boxes boxes_;
};

/// Programs for the images of a run, each of which finds one as it stands after start-up. For several threads.
class Programs {
public:
    explicit Programs(const std::optional<platform::DateTime>& now);
    Programs(const Programs&) = delete;
    Programs& operator=(const Programs&) = delete;
    /// Those that were given back stay until the next run, which is mostly that of another process: to take them apart
    /// costs as much as to read an image.
    ~Programs();

    std::unique_ptr<Program> take();
    /// A program that has done its work, for the next image.
    void giveBack(std::unique_ptr<Program> program);

private:
    using Idle = std::vector<std::unique_ptr<Program>>;

    Idle& leftBehind_;                            ///< of the run before; that of the last run is never taken apart
    const std::optional<platform::DateTime> now_; ///< the clock of each
    std::mutex mutex_;
    Idle idle_;
};

} // namespace wb::cli
