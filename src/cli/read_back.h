#pragma once

#include <optional>
#include <string>

namespace wb::cli {

class Program;
class Programs;

/// What opening a data file, with one of the programs, does not bring back of the cells of the program that wrote it:
/// the first such cell, as `cell 128 is "02" and comes back as "BC"`. A line of decoded text with a bar counts as a row
/// of the dump, and moves all that follows. Nothing where everything comes back.
std::optional<std::string> lossOnReadingBack(Programs& programs, Program& writer, const std::string& dataFile);

} // namespace wb::cli
