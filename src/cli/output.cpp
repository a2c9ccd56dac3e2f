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

/// How many bytes the control character takes that the text begins with: 1 of ASCII, 2 of those that UTF-8 has beside
/// them (U+0080 to U+009F, which terminals obey too); 0 where it begins with something else.
std::size_t controlLength(std::string_view text) {
    const auto byteAt = [text](std::size_t place) {
        return place < text.size() ? static_cast<unsigned char>(text[place]) : 0xFFU;
    };
    const bool isAscii = byteAt(0) < 0x20 || byteAt(0) == 0x7F;
    const bool isLatin = byteAt(0) == 0xC2 && byteAt(1) >= 0x80 && byteAt(1) <= 0x9F;
    return isAscii ? 1 : isLatin ? 2 : 0;
}

/// The place of the first control character from `place` on; npos where there is none.
std::size_t controlBehind(std::string_view text, std::size_t place) {
    for (; place < text.size(); ++place) {
        const auto c = static_cast<unsigned char>(text[place]);
        const bool mayBe = c < 0x20 || c == 0x7F || c == 0xC2;
        if (mayBe && controlLength(text.substr(place)) > 0) {
            return place;
        }
    }
    return std::string_view::npos;
}

/// What lays a text out on a terminal stays.
std::string forTerminal(std::string_view text) {
    return withoutControls(text, "\r\n\t");
}

void writeComplaint(std::string_view message) {
    const std::string line = "edidwb: " + (isTerminal(stderr) ? forTerminal(message) : std::string(message)) + '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
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
    isTerminal(stdout) ? print(forTerminal(text)) : print(text);
}

void flushOutput() {
    if (std::fflush(stdout) != 0) {
        failOutput();
    }
}

void complain(std::string_view message) {
    flushOutput();
    writeComplaint(message);
}

void complain(std::string_view file, std::string_view message) {
    complain(withoutControls(file) + ": " + std::string(message));
}

void complainAtTheEnd(std::string_view message) {
    writeComplaint(message);
}

std::string withoutControls(std::string_view text, std::string_view kept) {
    std::string shown;
    for (std::size_t place = 0; place < text.size();) {
        const std::size_t control = std::min(controlBehind(text, place), text.size());
        shown += text.substr(place, control - place);
        const std::size_t end = control + controlLength(text.substr(control));
        for (place = control; place < end; ++place) {
            const bool stays = kept.find(text[place]) != std::string_view::npos;
            shown += stays ? std::string(1, text[place]) : "\\x" + ByteToHex2(static_cast<unsigned char>(text[place]));
        }
    }
    return shown;
}

std::string inOneLine(std::string_view text) {
    if (controlBehind(text, 0) == std::string_view::npos) {
        return std::string(text); // nearly all
    }
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
        line += c;
    }
    return withoutControls(line);
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
    if (options.existing == Existing::Require && !fs::exists(status)) {
        throw CliError(std::strerror(ENOENT));
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
