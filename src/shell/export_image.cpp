#include "shell/export_image.h"

#include <optional>
#include <set>

#include "core/base/text.h"
#include "core/view.h"
#include "fields/reading.h"
#include "files/common_dialog.h"
#include "files/save.h"
#include "files/text_file.h"
#include "shell/edited_image.h"
#include "shell/go_to_byte.h"
#include "shell/image_state.h"

namespace wb::shell {

namespace {

/// The open image; nothing where the cells are none, which is told.
std::optional<Image> openImage(Workbench& workbench) {
    try {
        return editedImage(workbench);
    } catch (const NoImage& reason) {
        workbench.showMessage("The image cannot be written: " + std::string(reason.what()));
        return std::nullopt;
    }
}

/// "C array (*.c)|*.c"
std::string filterOf(const forms::WrittenForm& form) {
    const std::string pattern = "*." + std::string(form.name);
    std::string words(form.words);
    words.front() = upperCase(words.front());
    return words + " (" + pattern + ")|" + pattern;
}

void write(Workbench& workbench, const std::string& name, const Image& image, const forms::WrittenForm& form) {
    if (files::fileExists(name) && !files::askReplace(workbench, name)) {
        return;
    }
    files::Writer file(name);
    file.write(form.write(image));
    file.close();
    if (workbench.view != nullptr) {
        workbench.view->fileWritten(
            {.name = name, .kind = WrittenFile::Kind::HexadecimalFile, .blocks = static_cast<int>(image.blockCount())});
    }
}

} // namespace

void exportImage(Workbench& workbench, const forms::WrittenForm& form) {
    trapped(workbench, [&] {
        if (const std::optional<Image> image = openImage(workbench)) {
            const std::string name = files::askSaveName(workbench, "Export Image", filterOf(form));
            if (!name.empty()) {
                write(workbench, name, *image, form);
            }
        }
    });
}

std::string imageText(Workbench& workbench, const forms::WrittenForm& form) {
    const std::optional<Image> image = openImage(workbench);
    return image ? form.write(*image) : std::string();
}

std::string fieldText(const Workbench& workbench) {
    const std::optional<int> byte = focusedByte(workbench);
    if (!byte) {
        return {};
    }
    constexpr int highestBit = 7;
    const fields::Reading reading = fields::read(ImageState::of(workbench).bytes());
    std::string text;
    std::set<const fields::Field*> told;
    for (int bit = highestBit; bit >= 0; --bit) {
        const fields::Field* field = fields::fieldAt(reading, static_cast<std::size_t>(*byte), bit);
        if (field != nullptr && told.insert(field).second) {
            text += text.empty() ? "" : "\n";
            text += field->label;
            text += ": ";
            text += field->text;
        }
    }
    return text;
}

} // namespace wb::shell
