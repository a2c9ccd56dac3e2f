#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/settings.h"

/// The options of the command "set" as they are typed.
namespace wb::cli {

struct SetTexts {
    std::optional<std::string> maker{};
    std::optional<std::string> product{};
    std::optional<std::string> serial{};
    std::optional<std::string> week{};
    std::optional<std::string> year{};
    std::optional<std::string> name{};
    std::vector<std::string> timings{}; ///< "N=MODELINE"
    std::vector<std::string> cvts{};    ///< "N=WIDTHxHEIGHT@RATE" with or without "R"
};

/// The settings that the texts spell. What is no number, no timing or has no room in any image is a UsageError; what
/// only the panels refuse passes.
ImageSettings settingsOf(const SetTexts& texts);

} // namespace wb::cli
