#include "shell/import_image.h"

#include "acquire/get_edid.h"
#include "core/edid_image.h"
#include "files/common_dialog.h"
#include "files/file_content.h"
#include "files/save.h"
#include "files/text_file.h"
#include "shell/lifecycle.h"

namespace wb::shell {

namespace {

/// How boxes and titles call what was not in a file.
constexpr const char* clipboard = "Clipboard";

std::vector<std::string> outputsOf(const std::vector<Image>& images) {
    std::vector<std::string> outputs;
    for (const Image& image : images) {
        const std::string& output = image.origin().output;
        outputs.push_back(output.empty() ? "Image " + std::to_string(outputs.size() + 1) : output);
    }
    return outputs;
}

void load(Workbench& workbench, const Image& image, const std::string& title) {
    acquire::LoadStoredEdid(workbench, image.content());
    // Where an announced block is missing, which a box has told, the rest of the image is there all the same.
    workbench.CurrentFileName.clear();
    noteLoaded(workbench);
    workbench.EDIDModified = flagFalse;
    workbench.frmEDID().setCaption(title);
}

/// Loads one of the images, if there is one and the user chooses one.
bool loadOneOf(Workbench& workbench, const std::vector<Image>& images, const std::string& title,
               const ImportWays& ways) {
    const auto chosen = images.size() == 1 ? std::optional<std::size_t>(0) : ways.choose(outputsOf(images));
    if (!chosen) {
        return false;
    }
    load(workbench, images[*chosen], title);
    return true;
}

bool loadContent(Workbench& workbench, std::string_view content, const std::string& name, bool isFile,
                 const ImportWays& ways) {
    const forms::Recognition found =
        forms::recognise(content, {.anyHeader = false, .form = {}, .inflate = ways.inflate});
    if (found.isDataFile && isFile && !found.uncompressed) {
        return openDataFile(workbench, name, content);
    }
    if (found.images.empty()) {
        workbench.showMessage(name + (content.empty() ? " is empty." : " is no EDID image: " + found.refusal));
        return false;
    }
    return loadOneOf(workbench, found.images, name, ways);
}

} // namespace

std::string importImage(Workbench& workbench, const ImportWays& ways) {
    std::string imported;
    trapped(workbench, [&] {
        if (!files::offerSave(workbench)) {
            return;
        }
        const std::string name = files::askOpenName(workbench, "Import", "Images in any form (*.*)|*.*");
        if (!name.empty() && importFile(workbench, name, ways)) {
            imported = name;
        }
    });
    return imported;
}

bool importFile(Workbench& workbench, const std::string& name, const ImportWays& ways) {
    return trappedOr(workbench, false, [&] {
        std::string content;
        try {
            content = files::readFile(name);
        } catch (const files::InputError& error) {
            workbench.showMessage(name + "\r\n\r\n" + error.what());
            return false;
        }
        return loadContent(workbench, content, name, true, ways);
    });
}

bool reopenFile(Workbench& workbench, const std::string& name, const ImportWays& ways) {
    return trappedOr(workbench, false, [&] {
        if (!files::fileExists(name)) {
            workbench.showMessage(name + "\r\n\r\nThis file is not there any more.");
            return false;
        }
        return files::offerSave(workbench) && importFile(workbench, name, ways);
    });
}

bool importText(Workbench& workbench, std::string_view text, const ImportWays& ways) {
    return trappedOr(workbench, false, [&] {
        return files::offerSave(workbench) && loadContent(workbench, text, clipboard, false, ways);
    });
}

} // namespace wb::shell
