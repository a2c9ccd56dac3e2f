#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// Files of lines of 8-bit text. All failures are those of the run-time: a missing file is FileNotFound, a folder as
/// name or a missing folder PathFileAccess, a refused one PermissionDenied, a full device DiskFull. A file that goes
/// out of scope is closed.
namespace wb::files {

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
/// An open file, which is closed when it goes out of scope.
using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

/// Whether an ordinary file of that name exists.
bool fileExists(const std::string& name);
/// Deletes the file.
void deleteFile(const std::string& name);

class LineReader {
public:
    /// A file above largestInput is an InputError, here or as soon as that much was read.
    explicit LineReader(const std::string& name);
    /// The lines of a text in memory, which must outlive the reader.
    static LineReader ofText(std::string_view text);

    bool atEnd();
    /// The next line without its end, which is LF with a CR before it or not. Past the end it is an InputPastEnd
    /// failure.
    std::string readLine();

private:
    LineReader() = default;

    bool fill();

    FileHandle file_; ///< null where all there is to read is in `rest_`
    std::vector<char> buffer_;
    std::size_t taken_ = 0; ///< bytes of the file
    std::string_view rest_; ///< what was taken from the file and is in no line yet
};

class Writer {
public:
    enum class Buffering { Whole, EachWrite };

    /// Creates the file or empties the one that exists.
    explicit Writer(const std::string& name, Buffering buffering = Buffering::Whole);
    void write(std::string_view text);
    /// Closes the file and tells what the system kept back until then.
    void close();

private:
    FileHandle file_;
};

} // namespace wb::files
