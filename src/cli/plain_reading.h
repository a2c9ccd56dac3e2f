#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/file_list.h"
#include "cli/image_input.h"
#include "cli/syntax.h"
#include "fields/reading.h"

/// What the commands share that tell the plain reading of images.
namespace wb::cli {

enum class OutputFormat { Text, Json, Tsv };

std::vector<std::string> textAndJson();
std::vector<std::string> textJsonAndTsv();
/// The option --format, which takes one of the names.
void addFormatOption(Syntax& syntax, std::string& format, Option::Names names);

/// The format of that name: "text", "json" or "tsv".
OutputFormat outputFormatOf(const std::string& name);

/// Gives the plain reading of each image of a file, of which it keeps one at a time. A file that holds no image is a
/// CliError.
void forEachReading(const std::string& name, const ImageOptions& options,
                    const std::function<void(const fields::Reading& reading)>& take);

/// The value of a field as one text: numbers in full, "true" or "false", lists with commas, empty where there is none.
std::string valueText(const fields::Value& value);

/// The columns with tabs between them and a line end; control characters and backslashes are escaped as \t, \n, \xHH
/// and \\.
std::string tsvLine(const std::vector<std::string_view>& columns);

/// Runs `work` on each file in turn; what stops it is told, and the next one follows. False where any was stopped, and
/// where a folder could not be read.
bool forEachFile(const FileOptions& options, const std::function<void(const std::string& name)>& work);

/// Whether texts for people go out in colour: standard output is a terminal, and the environment variable NO_COLOR is
/// not set or empty.
bool usesColour();

} // namespace wb::cli
