#include "cli/read_back.h"

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

std::optional<std::string> lossOnReadingBack(Program& writer, const std::string& dataFile) {
    Program reader;
    reader.loadDataFile({.name = {}, .content = dataFile});
    std::optional<std::string> loss = firstLoss(writer.workbench().frmEDID(), reader.workbench(), 0);
    const bool opensExtension = reader.workbench().loaded(ScreenId::CeaExt) != nullptr;
    if (!loss && opensExtension) {
        loss = firstLoss(writer.workbench().frmCEA_EXT(), reader.workbench(), BlockScreen::cellCount);
    }
    return loss;
}

} // namespace wb::cli
