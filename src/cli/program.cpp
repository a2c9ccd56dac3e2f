#include "cli/program.h"

#include "acquire/get_edid.h"
#include "cli/cli_error.h"
#include "cli/output.h"
#include "cli/temporary.h"
#include "core/base/digits.h"
#include "core/base/text.h"
#include "core/edid_image.h"
#include "core/input.h"
#include "files/data_file.h"
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
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.substr(i, crLf.size()) != crLf) {
            result += text[i];
        }
    }
    return result;
#endif
}

void appendByte(const std::string& cell, std::string& bytes) {
    const auto byte = wholeNumber<unsigned char>(cell, 16);
    if (!byte || cell.size() != 2) {
        throw CliError("cell " + std::to_string(bytes.size()) + " is no byte: " + wb::quoted(cell));
    }
    bytes += static_cast<char>(*byte);
}

void appendBytes(BlockScreen& screen, std::string& bytes) {
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        appendByte(screen.txtEdit(i).text(), bytes);
    }
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

Program::Program(platform::Registry& registry) : Program(std::nullopt, &registry) {}

Program::Program(const std::optional<platform::DateTime>& now, platform::Registry* registry)
    : services_(withRegistry(platform_.services(), registry)), workbench_(services_, shell::wiring()) {
    platform_.onBox = [this](const std::string& text) { boxes_.push_back(text); };
    if (now) {
        platform_.setClock(*now);
    }
    workbench_.runAction([&] { shell::Main(workbench_); });
}

void Program::load(const Input& input) {
    const Content content = imageIn(input);
    if (content.kind != ContentKind::DataFile) {
        workbench_.runAction([&] { acquire::LoadStoredEdid(workbench_, content.image); });
        return;
    }
    bool loaded = false;
    workbench_.runAction([&] { loaded = shell::openDataFile(workbench_, input.name, input.content); });
    if (!loaded) {
        failToLoad();
    }
}

bool Program::loadStoredEdid() {
    std::optional<std::string> data;
    workbench_.runAction([&] { data = acquire::readStoredEdid(workbench_); });
    if (!data) {
        return false;
    }
    if (data->size() < BlockScreen::cellCount) {
        throw CliError("the stored EDID is no image: it has " + std::to_string(data->size()) + " bytes");
    }
    workbench_.runAction([&] { acquire::LoadStoredEdid(workbench_, *data); });
    return true;
}

void Program::failToLoad() const {
    throw CliError("cannot be loaded" + (boxes_.empty() ? "" : ": " + inOneLine(boxes_.back())));
}

std::string Program::dataFileBytes(const Input& input) {
    if (!files::readDataFile(workbench_, input.content)) {
        failToLoad();
    }
    std::string bytes;
    for (int i = 0; i < workbench_.EDIDCells.size() && !workbench_.EDIDCells(i).empty(); ++i) {
        appendByte(workbench_.EDIDCells(i), bytes);
    }
    return bytes;
}

std::string Program::report() {
    workbench_.runAction([&] { report::ShowReport(workbench_, false); });
    return withPlatformLineEnds(workbench_.frmDocument().rtftext.text());
}

std::string Program::dataFile() {
    const TemporaryFolder folder;
    const std::string path = folder.file("image.DAT");
    workbench_.CurrentFileName = path;
    const std::size_t boxesBefore = boxes_.size();
    workbench_.runAction([&] { files::FileSave(workbench_); });
    return contentWithoutBox(path, boxesBefore);
}

std::string Program::hexExport() {
    const TemporaryFolder folder;
    const std::string path = folder.file("image.hex");
    platform_.queueFileName(path);
    const std::size_t boxesBefore = boxes_.size();
    input::choose(workbench_.frmMain().ExportHex);
    return contentWithoutBox(path, boxesBefore);
}

std::string Program::contentWithoutBox(const std::string& path, std::size_t boxesBefore) const {
    if (boxes_.size() != boxesBefore) {
        throw CliError("cannot be written: " + inOneLine(boxes_.back()));
    }
    return readInput(path).content;
}

std::string Program::binaryImage() {
    std::string bytes;
    appendBytes(workbench_.frmEDID(), bytes);
    if (hasExtensionByDecimalText(workbench_)) {
        appendBytes(workbench_.frmCEA_EXT(), bytes);
    }
    return bytes;
}

Content imageIn(const Input& input) {
    if (input.content.empty()) {
        throw CliError("is empty");
    }
    Content content = recognise(input.content);
    if (content.kind == ContentKind::Nothing) {
        throw CliError("is no EDID image: neither a data file, nor hexadecimal text, nor a binary image");
    }
    return content;
}

} // namespace wb::cli
