#include "cli/read_back.h"

#include <utility>

#include "cli/program.h"
#include "core/base/text.h"

namespace wb::cli {

namespace {

std::optional<std::string> firstLoss(BlockScreen& written, Workbench& reader, int firstCell) {
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        // What was read, before the decoders touch it: writing the image ran them already.
        const std::string& read = reader.EDIDCells(firstCell + i);
        const std::string text = written.txtEdit(i).text();
        if (read != text) {
            return joined(
                {"cell ", std::to_string(firstCell + i), " is \"", text, "\" and comes back as \"", read, "\""});
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<std::string> lossOnReadingBack(Programs& programs, Program& writer, const std::string& dataFile) {
    std::unique_ptr<Program> program = programs.take();
    program->loadDataFile({.name = {}, .content = dataFile});
    Workbench& reader = program->workbench();
    std::optional<std::string> loss = firstLoss(writer.workbench().frmEDID(), reader, 0);
    const bool opensExtension = reader.loaded(ScreenId::CeaExt) != nullptr;
    if (!loss && opensExtension) {
        loss = firstLoss(writer.workbench().frmCEA_EXT(), reader, BlockScreen::cellCount);
    }
    programs.giveBack(std::move(program));
    return loss;
}

} // namespace wb::cli
