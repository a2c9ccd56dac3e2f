#pragma once

#include <span>
#include <string_view>

/// What is fuzzed: each target takes any bytes and tells by the assertions of GoogleTest where what must hold does not.
namespace wb::fuzz {

struct Target {
    std::string_view name; ///< that of its folder of seeds too
    void (*attempt)(std::string_view input);
};

std::span<const Target> targets();

/// An image in the cells, its report and its data file.
void rawImage(std::string_view input);
/// A data file as Open reads it.
void dataFile(std::string_view input);
/// Every form in which people have images, and what is written in each.
void recogniser(std::string_view input);
/// A registry export.
void registryExport(std::string_view input);
/// A session without a display. Lines that name a place outside the folder in which it runs are left out.
void script(std::string_view input);
/// Eight bytes of a double, then a pattern, which is read as a number too.
void numbers(std::string_view input);
/// The plain reading of an image.
void inspect(std::string_view input);

} // namespace wb::fuzz
