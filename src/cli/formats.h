#pragma once

#include <string>
#include <vector>

#include "cli/image_input.h"

namespace wb::cli {

class Program;

/// The names of the formats in which an image can be written: those of the program, "dat" and "report", and the forms
/// of bytes.
std::vector<std::string> formatNames();
/// What the option that takes one of them says.
std::string formatHelp();

/// Whether a format holds the bytes of an image as they are, all blocks of it. The others hold what the program would
/// save or report after decoding, of two blocks.
bool isFormOfBytes(const std::string& format);

/// The extension of a file in that format, with its point.
std::string extensionOf(const std::string& format);

/// An image in a form of bytes.
std::string contentAs(const std::string& format, const Image& image);
/// What is loaded, as a data file or a report. What cannot be written so is a CliError.
std::string contentAs(const std::string& format, Program& program);

} // namespace wb::cli
