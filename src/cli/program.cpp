#include "cli/program.h"

#include <utility>

#include "acquire/get_edid.h"
#include "cli/cli_error.h"
#include "cli/output.h"
#include "core/base/digits.h"
#include "core/base/text.h"
#include "core/edid_image.h"
#include "core/step.h"
#include "files/data_file.h"
#include "files/export_hex.h"
#include "files/save.h"
#include "report/show_report.h"
#include "shell/lifecycle.h"
#include "shell/startup.h"
#include "shell/wiring.h"

namespace wb::cli {

namespace {

/// Each CR LF as the line end of the platform.
std::string withPlatformLineEnds(std::string_view text) {
#ifdef _WIN32
    return std::string(text);
#else
    std::string result;
    result.reserve(text.size());
    std::size_t start = 0; // of what is not copied yet
    for (std::size_t end = text.find('\r'); end != std::string_view::npos; end = text.find('\r', end + 1)) {
        if (end + 1 < text.size() && text[end + 1] == '\n') {
            result.append(text, start, end - start);
            start = end + 1;
        }
    }
    return result.append(text, start);
#endif
}

/// The services with another registry, where there is one.
platform::Services withRegistry(const platform::Services& services, platform::Registry* registry) {
    return {.messageBoxes = services.messageBoxes,
            .dialogs = services.dialogs,
            .printer = services.printer,
            .settings = services.settings,
            .registry = registry != nullptr ? *registry : services.registry,
            .operatingSystem = services.operatingSystem,
            .edidReader = services.edidReader,
            .shell = services.shell,
            .clock = services.clock,
            .eventLoop = services.eventLoop,
            .arranger = services.arranger,
            .programFolder = services.programFolder};
}

} // namespace

Program::Program(const std::optional<platform::DateTime>& now) : Program(now, nullptr) {}

Program::Program(platform::Registry& registry, const std::optional<platform::DateTime>& now)
    : Program(now, &registry) {}

Program::Program(const std::optional<platform::DateTime>& now, platform::Registry* registry)
    : services_(withRegistry(platform_->services(), registry)), workbench_(services_, shell::wiring()) {
    start(now);
}

void Program::startOver(const std::optional<platform::DateTime>& now) {
    workbench_.startOver();
    platform_.emplace();
    boxes_.clear();
    start(now);
}

void Program::start(const std::optional<platform::DateTime>& now) {
    platform_->onBox = [this](const std::string& text) { boxes_.add(text, workbench_.step); };
    if (now) {
        platform_->setClock(*now);
    }
    const Step step(workbench_, "starting");
    workbench_.runAction([&] { shell::Main(workbench_); });
}

void Program::readDataFile(const Input& input) {
    const Step step(workbench_, "opening the data file");
    workbench_.runAction([&] { files::readDataFile(workbench_, input.content); });
}

void Program::loadDataFile(const Input& input) {
    const Step step(workbench_, "opening the data file");
    bool loaded = false;
    workbench_.runAction([&] { loaded = shell::openDataFile(workbench_, input.name, input.content); });
    if (!loaded) {
        failToLoad();
    }
}

void Program::load(const Image& image) {
    const Step step(workbench_, "loading the image");
    workbench_.runAction([&] { acquire::LoadStoredEdid(workbench_, image.content()); });
}

void Program::load(const Contents& contents) {
    if (contents.isDataFile) {
        loadDataFile(contents.input);
    } else {
        load(onlyImageOf(contents));
    }
}

std::optional<Image> Program::storedImage() {
    std::optional<std::string> data;
    workbench_.runAction([&] { data = acquire::readStoredEdid(workbench_); });
    if (!data) {
        return std::nullopt;
    }
    std::optional<Image> image = Image::fromBytes(*data);
    if (!image) {
        throw CliError("the stored EDID is no image: it has " + std::to_string(data->size()) + " bytes");
    }
    return image;
}

void Program::failToLoad() const {
    throw CliError("cannot be loaded" + (boxes_.empty() ? "" : ": " + inOneLine(boxes_.last())));
}

std::string Program::report() {
    workbench_.runAction([&] { report::ShowReport(workbench_, false); });
    return withPlatformLineEnds(workbench_.frmDocument().rtftext.text());
}

std::string Program::dataFile() {
    const Step step(workbench_, "writing the data file");
    return contentWithoutBox([this] { return files::dataFileContent(workbench_); });
}

std::string Program::hexExport() {
    const Step step(workbench_, "writing the hexadecimal export");
    return contentWithoutBox([this] { return files::hexFileContent(workbench_); });
}

std::string Program::contentWithoutBox(const std::function<std::string()>& build) {
    const std::size_t boxesBefore = boxes_.count();
    std::string content;
    workbench_.runAction([&] { trapped(workbench_, [&] { content = build(); }); });
    if (boxes_.count() != boxesBefore) {
        throw CliError("cannot be written: " + inOneLine(boxes_.last()));
    }
    return content;
}

Programs::Programs(const std::optional<platform::DateTime>& now)
    : leftBehind_([]() -> Idle& {
          static Idle& programs = *new Idle;
          return programs;
      }()),
      now_(now) {
    leftBehind_.clear();
}

Programs::~Programs() {
    leftBehind_.swap(idle_);
}

std::unique_ptr<Program> Programs::take() {
    std::unique_ptr<Program> program;
    {
        const std::lock_guard lock(mutex_);
        if (!idle_.empty()) {
            program = std::move(idle_.back());
            idle_.pop_back();
        }
    }
    if (program == nullptr) {
        return std::make_unique<Program>(now_);
    }
    program->startOver(now_);
    return program;
}

void Programs::giveBack(std::unique_ptr<Program> program) {
    const std::lock_guard lock(mutex_);
    idle_.push_back(std::move(program));
}

} // namespace wb::cli
