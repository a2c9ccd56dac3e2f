#include "files/export_hex.h"

#include <optional>

#include "core/edid_image.h"
#include "core/statements.h"
#include "core/view.h"
#include "files/common_dialog.h"
#include "files/save.h"
#include "files/text_file.h"

namespace wb::files {

namespace {

constexpr const char* hexFilter = "Hexadecimal Files (*.hex)|*.hex";

/// A name from the last export stays offered, that of a data file does not.
std::string askExportName(Workbench& workbench) {
    FrmMain& frame = workbench.frmMain();
    if (frame.dialogFilter != hexFilter) {
        frame.dialogFileName.clear();
    }
    return askSaveName(workbench, "Save As", hexFilter);
}

std::string cellText(BlockScreen& screen, int cell) {
    return screen.txtEdit(cell).text() + ' ';
}

/// How many cells could be written.
int writeCells(const Statements& statement, BlockScreen& screen, std::optional<Writer>& file) {
    int written = 0;
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        statement([&] {
            if (!file) {
                throw Failure(FailureKind::PathFileAccess);
            }
            file->write(cellText(screen, i));
            ++written;
        });
    }
    return written;
}

void writeImage(Workbench& workbench, const std::string& name) {
    const Statements statement(workbench, Statements::OnFailure::NextStatement);
    std::optional<Writer> file;
    // Without a buffer, so that a full device is told for each cell.
    statement([&] { file.emplace(name, Writer::Buffering::EachWrite); });
    int blocks = 1;
    int written = writeCells(statement, workbench.frmEDID(), file);
    if (hasExtensionByDecimalText(workbench)) {
        blocks = 2;
        written += writeCells(statement, workbench.frmCEA_EXT(), file);
    }
    if (!file) {
        return;
    }
    statement([&] {
        file->close();
        if (workbench.view != nullptr && written == blocks * BlockScreen::cellCount) {
            workbench.view->fileWritten({.name = name, .kind = WrittenFile::Kind::HexadecimalFile, .blocks = blocks});
        }
    });
}

} // namespace

void ExportHex_Click(Workbench& workbench) {
    if (workbench.EDIDLoaded == flagFalse) {
        return;
    }
    const std::string name = askExportName(workbench);
    if (name.empty()) {
        return;
    }
    workbench.CurrentFileName = name;
    if (fileExists(name)) {
        if (!askReplace(workbench, name)) {
            workbench.CurrentFileName.clear();
            return;
        }
        silently([&] { deleteFile(name); });
    }
    writeImage(workbench, name);
}

std::string hexFileContent(Workbench& workbench) {
    std::string content;
    const auto append = [&](BlockScreen& screen) {
        for (int i = 0; i < BlockScreen::cellCount; ++i) {
            content += cellText(screen, i);
        }
    };
    append(workbench.frmEDID());
    if (hasExtensionByDecimalText(workbench)) {
        append(workbench.frmCEA_EXT());
    }
    return content;
}

} // namespace wb::files
