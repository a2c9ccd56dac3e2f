#include "cli/script_files.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include "acquire/get_edid.h"
#include "cli/cli_error.h"
#include "cli/formats.h"
#include "cli/image_input.h"
#include "cli/output.h"
#include "core/base/file_names.h"
#include "core/base/text.h"
#include "core/edid_image.h"
#include "files/save.h"
#include "shell/edited_image.h"
#include "shell/lifecycle.h"

namespace wb::cli {

namespace {

using script::Arguments;
using script::ScriptError;
using script::Session;

constexpr const char* dataFile = "dat";

/// The forms that a script can save in: all that can be loaded again.
std::vector<std::string> savedForms() {
    std::vector<std::string> names = formatNames();
    std::erase_if(names, [](const std::string& name) { return name != dataFile && !isFormOfBytes(name); });
    return names;
}

/// The form whose name is the ending of the file's, in any letter case; that ending where there is none.
std::string formOfEnding(const std::string& name) {
    const std::string ending = nameOf(pathOf(name).extension());
    const std::string text = ending.substr(std::min<std::size_t>(ending.size(), 1));
    const std::vector<std::string> forms = savedForms();
    const auto form = std::find_if(forms.begin(), forms.end(),
                                   [&](const std::string& each) { return upperCase(each) == upperCase(text); });
    return form == forms.end() ? text : *form;
}

std::string formFor(const Arguments& arguments) {
    std::string form = arguments.size() > 1 ? arguments[1].text : formOfEnding(arguments[0].text);
    const std::vector<std::string> forms = savedForms();
    if (std::find(forms.begin(), forms.end(), form) != forms.end()) {
        return form;
    }
    std::string names;
    for (const std::string& name : forms) {
        names += (names.empty() ? "" : ", ") + name;
    }
    throw ScriptError(form.empty() ? "in which form? One of " + names
                                   : "unknown form '" + form + "', not one of " + names);
}

/// Runs the work on a file; what stops it is a failure of the script.
template <class Work>
void onFile(const std::string& name, const Work& work) {
    try {
        work();
    } catch (const CliError& error) {
        throw ScriptError(name + ": " + error.what(), ScriptError::Kind::Failure);
    } catch (const shell::NoImage& error) {
        throw ScriptError(name + ": " + error.what(), ScriptError::Kind::Failure);
    }
}

void open(Session& session, const Arguments& arguments) {
    const std::string& name = arguments[0].text;
    onFile(name, [&] {
        ImageOptions options;
        options.output = arguments.size() > 1 ? arguments[1].text : "";
        const Contents contents = contentsOf(readInput(name), options);
        if (!contents.isDataFile) {
            const Image& image = onlyImageOf(contents);
            for (const std::string& omission : omissionsOf(image)) {
                complain(name, omission);
            }
            acquire::LoadStoredEdid(session.workbench, image.content());
        } else if (!shell::openDataFile(session.workbench, name, contents.input.content)) {
            throw CliError("cannot be loaded");
        }
    });
}

/// Tells the blocks that were loaded and that byte 126 does not announce any more.
void tellOmitted(const Workbench& workbench, const std::string& name, const Image& saved) {
    const auto loaded = Image::fromBytes(workbench.LoadedBytes);
    if (loaded && loaded->blockCount() > saved.blockCount()) {
        complain(name, blocksText(saved.blockCount(), loaded->blockCount() - 1) + " left out");
    }
}

void save(Session& session, const Arguments& arguments) {
    const std::string& name = arguments[0].text;
    const std::string form = formFor(arguments);
    Workbench& workbench = session.workbench;
    onFile(name, [&] {
        if (form != dataFile) {
            const Image image = shell::editedImage(workbench);
            writeFile(name, contentAs(form, image), Existing::Replace);
            tellOmitted(workbench, name, image);
            return;
        }
        if (workbench.EDIDLoaded == flagFalse) {
            throw CliError("no image is open");
        }
        if (const std::size_t further = shell::furtherBlocks(workbench); further != 0) {
            throw CliError(tooManyBlocks(Image::editedBlocks + further));
        }
        writeFile(name, files::dataFileContent(workbench), Existing::Replace);
        workbench.CurrentFileName = name;
        noteSaved(workbench);
    });
}

constexpr auto rows = std::to_array<script::CommandRow>({
    {"open", "\"FILE\" [OUTPUT]", 1, 2, &open, "loads an image file of any form"},
    {"save", "\"FILE\" [FORM]", 1, 2, &save, "writes the image; without a form in that of the name"},
});

} // namespace

std::span<const script::CommandRow> fileCommands() {
    return rows;
}

} // namespace wb::cli
