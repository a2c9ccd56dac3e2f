#pragma once

#include <cstdio>
#include <stdexcept>
#include <string>
#include <string_view>

namespace wb::cli {

/// Standard output cannot be written; ends the program.
class OutputError : public std::runtime_error {
public:
    OutputError(const std::string& message, bool readerGone) : std::runtime_error(message), readerGone_(readerGone) {}

    /// Whether it was a pipe that nobody reads any more, which is no mistake.
    bool readerGone() const { return readerGone_; }

private:
    bool readerGone_;
};

/// Ends the program as the system ends one that writes into a pipe without a reader, without a word.
[[noreturn]] void endByBrokenPipe();

/// To be called first of all. The standard streams carry any bytes, also on systems where they would change line ends.
/// A reader that has gone and a file that grows too large are errors like any other, and a standard stream that is
/// closed stays unusable: no file that is opened later takes its place.
void prepareStreams();

/// Whether a standard stream is a terminal.
bool isTerminal(std::FILE* stream);

/// Writes to standard output; a failure is an OutputError.
void print(std::string_view text);
/// The same for what an image may hold: on a terminal control characters are shown as "\\x1B", elsewhere they go out.
void printText(std::string_view text);
/// Hands everything printed so far to the system; a failure is an OutputError.
void flushOutput();

/// Tells a message on standard error as "edidwb: MESSAGE", after everything printed so far; on a terminal without
/// control characters.
void complain(std::string_view message);
/// The same about a file: "edidwb: FILE: MESSAGE". In the name all control characters are escaped, so that it forges no
/// line.
void complain(std::string_view file, std::string_view message);

/// The same without a look at standard output, which may be out of order: for who ends the program.
void complainAtTheEnd(std::string_view message);

/// Control characters as "\\x1B", byte by byte, all but those of `kept`. Beside those of ASCII they are U+0080 to
/// U+009F in UTF-8, which terminals obey too.
std::string withoutControls(std::string_view text, std::string_view kept = {});

/// A text of the program in one line: line ends become one blank, other control characters are escaped.
std::string inOneLine(std::string_view text);

enum class Existing {
    Refuse,
    Replace, ///< or begin a new one
    Require, ///< replace it, and begin no new one where it has gone
};

struct WriteOptions {
    Existing existing = Existing::Refuse;
    /// Waits until the file is on the disk, before it takes the place of another one and after that.
    bool sync = true;
    /// The file whose owner, group and permissions the new one gets; empty: the one that is replaced.
    std::string accessOf{};
};

/// Writes a file through a temporary one beside it, so that it is whole or as it was before, also after a power cut
/// where it is synchronised. It keeps owner, group and permissions of the file that it replaces as takeAccess() does,
/// and until it has them only its owner can read it. What is no ordinary file (a device, a pipe) is written directly.
/// "-" is standard output, of which a terminal gets no control characters. A failure is a CliError.
void writeFile(const std::string& name, std::string_view content, const WriteOptions& options);
void writeFile(const std::string& name, std::string_view content, Existing existing);

} // namespace wb::cli
