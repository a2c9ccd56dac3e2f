#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/workbench.h"
#include "forms/recogniser.h"

/// Images in every form that is recognised, on their way into the cells and out of them.
namespace wb::shell {

/// What a higher floor knows to do.
struct ImportWays {
    forms::Inflate inflate; ///< without it compressed content is refused
    /// Asks which of several images, by the outputs that the text names; nothing is a cancel.
    std::function<std::optional<std::size_t>(const std::vector<std::string>& outputs)> choose;
};

/// Offers to save a modified image, asks for the name of a file and loads what it holds. Gives the name, or an empty
/// text where nothing was loaded.
std::string importImage(Workbench& workbench, const ImportWays& ways);

/// The same with a file of that name. A data file is loaded as Open does it; any other image as that of a monitor, with
/// the name of the file as title and none to save under. What cannot be read or is no image is told in a box. Gives
/// whether an image was loaded.
bool importFile(Workbench& workbench, const std::string& name, const ImportWays& ways);

/// What importImage does with a file of that name that the user has picked; one that has gone is told.
bool reopenFile(Workbench& workbench, const std::string& name, const ImportWays& ways);

/// The same with a text, such as that of the clipboard.
bool importText(Workbench& workbench, std::string_view text, const ImportWays& ways);

} // namespace wb::shell
