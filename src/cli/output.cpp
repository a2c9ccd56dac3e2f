#include "cli/output.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>

#include <fcntl.h>
#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

#include "cli/cli_error.h"
#include "cli/commands.h"
#include "cli/input.h"
#include "cli/temporary.h"
#include "core/base/file_names.h"
#include "core/base/text.h"

namespace wb::cli {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void failOutput() {
    throw OutputError(std::string("standard output: ") + std::strerror(errno), errno == EPIPE);
}

void writeDirectly(const fs::path& path, std::string_view content) {
    std::FILE* const file = openStream(path, "wb");
    if (file == nullptr) {
        throw CliError(std::strerror(errno));
    }
    writeAndClose(file, content);
}

/// Whether there is no file of a name, or a link that leads nowhere.
bool leadsNowhere(const std::error_code& error) {
    return error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory ||
           error == std::errc::too_many_symbolic_link_levels;
}

/// The status of a file as the function of the library tells it. Where it cannot be told, nothing is done to the file
/// that might suit another kind of file: that is a CliError.
fs::file_status statusBy(fs::file_status (*tell)(const fs::path&, std::error_code&), const fs::path& path) {
    std::error_code error;
    const fs::file_status status = tell(path, error);
    if (error && leadsNowhere(error)) {
        return fs::file_status(fs::file_type::not_found);
    }
    if (status.type() == fs::file_type::none) {
        throw CliError(reasonOf(error));
    }
    return status;
}

/// The place of an existing file behind its links, so that a link stays one; of a new file, and of a link that leads
/// nowhere, the name as it stands.
fs::path finalPlace(const fs::path& path) {
    if (!fs::is_symlink(statusBy(&fs::symlink_status, path))) {
        return path;
    }
    std::error_code error;
    fs::path place = fs::canonical(path, error);
    if (error && !leadsNowhere(error)) {
        throw CliError(reasonOf(error));
    }
    return error ? path : place;
}

/// Control characters but line ends and tabs as a terminal can show them.
std::string withoutControls(std::string_view text) {
    std::string shown;
    for (const char c : text) {
        const bool layout = c == '\n' || c == '\r' || c == '\t';
        shown += isControl(c) && !layout ? controlEscape(c) : std::string(1, c);
    }
    return shown;
}

} // namespace

void endByBrokenPipe() {
#ifdef __unix__
    std::signal(SIGPIPE, SIG_DFL);
    raise(SIGPIPE);
#endif
    std::_Exit(somethingFailed);
}

bool isTerminal(std::FILE* stream) {
#ifdef _WIN32
    return _isatty(_fileno(stream)) != 0;
#else
    return isatty(fileno(stream)) != 0;
#endif
}

void prepareStreams() {
#ifdef _WIN32
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
#else
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    for (int stream = 0; stream <= 2; ++stream) {
        if (fcntl(stream, F_GETFD) == -1) {
            open("/dev/null", stream == 0 ? O_WRONLY : O_RDONLY);
        }
    }
#endif
}

void print(std::string_view text) {
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size()) {
        failOutput();
    }
}

void printText(std::string_view text) {
    isTerminal(stdout) ? print(withoutControls(text)) : print(text);
}

void flushOutput() {
    if (std::fflush(stdout) != 0) {
        failOutput();
    }
}

void complain(std::string_view message) {
    flushOutput();
    const std::string line = "edidwb: " + (isTerminal(stderr) ? withoutControls(message) : std::string(message)) + '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
}

void complain(std::string_view file, std::string_view message) {
    complain(std::string(file) + ": " + std::string(message));
}

bool isControl(char c) {
    return static_cast<unsigned char>(c) < ' ' || c == '\x7F';
}

std::string controlEscape(char c) {
    return "\\x" + ByteToHex2(static_cast<unsigned char>(c));
}

std::string inOneLine(std::string_view text) {
    std::string line;
    bool atLineEnd = false;
    for (const char c : text) {
        if (c == '\r' || c == '\n') {
            atLineEnd = true;
            continue;
        }
        if (atLineEnd && !line.empty() && line.back() != ' ') {
            line += ' ';
        }
        atLineEnd = false;
        if (isControl(c)) {
            line += controlEscape(c);
        } else {
            line += c;
        }
    }
    return line;
}

void writeFile(const std::string& name, std::string_view content, const WriteOptions& options) {
    if (name == standardStream) {
        printText(content);
        return;
    }
    const fs::path path = pathOf(name);
    if (namesDevice(path)) {
        writeDirectly(path, content);
        return;
    }
    const fs::file_status status = statusBy(&fs::status, path);
    if (fs::is_directory(status)) {
        throw CliError(std::strerror(EISDIR));
    }
    if (options.existing == Existing::Refuse &&
        fs::exists(statusBy(&fs::symlink_status, path))) { // a link that leads nowhere too
        throw CliError("exists already (--force replaces it)");
    }
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        writeDirectly(path, content);
        return;
    }
    const fs::path place = finalPlace(path);
    const fs::path model = options.accessOf.empty() ? place : pathOf(options.accessOf);
    const bool hasModel = fs::exists(options.accessOf.empty() ? status : statusBy(&fs::status, model));
    TemporaryFile temporary(place.parent_path(), hasModel ? Readers::Owner : Readers::Usual);
    temporary.write(content);
    temporary.takeAccessOf(model);
    if (options.sync) {
        temporary.sync();
    }
    options.existing == Existing::Refuse ? temporary.moveToNew(place) : temporary.moveTo(place);
    if (options.sync) {
        syncFolder(place.parent_path());
    }
}

void writeFile(const std::string& name, std::string_view content, Existing existing) {
    writeFile(name, content, WriteOptions{.existing = existing});
}

} // namespace wb::cli
