#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The operations that the logic asks of an operating system. Each is a small interface with a headless implementation,
/// which scripts and tests control, and a real one. Texts are strings of 8-bit characters (Windows code page 1252).
namespace wb::platform {

enum class Buttons { Ok, YesNo };
enum class Answer { Ok, Yes, No, Cancel };
enum class Icon { None, Question, Information };

struct MessageBox {
    std::string text;
    std::string title{}; ///< empty: a box without a title of its own
    Buttons buttons = Buttons::Ok;
    Icon icon = Icon::None;
};

class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;
    /// Shows the box modally; the answer is one of those its buttons offer.
    virtual Answer show(const MessageBox& box) = 0;
};

/// What a common file dialog shows and takes. The filter has the form "words|pattern".
struct FileDialogRequest {
    std::string title;
    std::string folder;
    std::string filter;
    std::string name; ///< offered file name
};

class Dialogs {
public:
    virtual ~Dialogs() = default;
    /// Each file dialog gives the chosen path, or an empty text after a cancel.
    virtual std::string openFile(const FileDialogRequest& request) = 0;
    virtual std::string saveFile(const FileDialogRequest& request) = 0;
    /// True when the user confirmed. `flags` is a sum of the printer flags below.
    virtual bool print(const std::string& title, int flags) = 0;
    virtual bool pageSetup(const std::string& title) = 0;
};

inline constexpr int printSelection = 1;
inline constexpr int printNoPageNumbers = 8;
inline constexpr int printReturnDeviceContext = 256;

class Printer {
public:
    virtual ~Printer() = default;
    /// Prints the text in a fixed-pitch face to the printer that the last print dialog chose.
    virtual void print(const std::string& text) = 0;
};

/// Per-user settings of the section "Settings".
class Settings {
public:
    virtual ~Settings() = default;
    virtual std::optional<std::string> read(const std::string& name) const = 0;
    virtual void write(const std::string& name, const std::string& value) = 0;
};

/// Result codes of registry operations.
enum class RegistryCode { Ok = 0, NotFound = 2, Refused = 5, MoreData = 234, NoMoreItems = 259 };

enum class RegistryType { None, Text, ExpandableText, Binary, Number32, Other };

struct RegistryValue {
    std::string name;
    RegistryType type = RegistryType::None;
    std::string data; ///< raw bytes; a Number32 has four, least significant first
};

/// What an enumeration gives at most, in characters of a name and in bytes of a value's data.
inline constexpr std::size_t registryBufferSize = 1024;

/// The registry tree below HKEY_LOCAL_MACHINE. Keys and values keep their order and are found in any letter case.
class Registry {
public:
    using Key = std::uint64_t;

    virtual ~Registry() = default;
    /// Opens the key at `path` (separators are backslashes; an empty path is the root).
    virtual RegistryCode open(const std::string& path, Key& key) = 0;
    /// The same for a path that begins at an open key: what it costs does not grow with the depth of that key.
    virtual RegistryCode open(Key above, const std::string& path, Key& key) = 0;
    virtual RegistryCode queryInfo(Key key, int& subKeys, int& values) = 0;
    /// Name of the sub-key of that index; NoMoreItems past the last, MoreData above the buffer size.
    virtual RegistryCode enumerateKey(Key key, int index, std::string& name) = 0;
    /// Value of that index; NoMoreItems past the last, MoreData where name or data pass the buffer size.
    virtual RegistryCode enumerateValue(Key key, int index, RegistryValue& value) = 0;
    virtual RegistryCode readValue(Key key, const std::string& name, RegistryValue& value) = 0;
    virtual void close(Key key) = 0;
};

/// The major version of the systems whose registry tree holds the stored EDIDs.
inline constexpr int registryMajorVersion = 5;

class OperatingSystem {
public:
    virtual ~OperatingSystem() = default;
    virtual int majorVersion() const = 0;
};

/// Reads the EDID straight from a monitor, on systems of any other major version.
class DirectEdidReader {
public:
    virtual ~DirectEdidReader() = default;
    /// Takes a text of 256 blanks and gives the EDID, one character a byte.
    virtual std::string read(const std::string& blanks) = 0;
};

/// The device console tool, which has the system look for its devices anew.
inline constexpr const char* deviceToolName = "devcon.exe";

struct ShellCommand {
    std::string verb;
    std::string program;
    std::string arguments;
    std::string folder;
    bool hidden = true;
};

class Shell {
public:
    virtual ~Shell() = default;
    /// Starts the program without waiting; false when it cannot be started.
    virtual bool start(const ShellCommand& command) = 0;
};

struct DateTime {
    int year = 2000, month = 1, day = 1; ///< month 1 to 12, day 1 to 31
    int hour = 0, minute = 0, second = 0;
};

class Clock {
public:
    virtual ~Clock() = default;
    virtual DateTime now() const = 0; ///< local date and time
    virtual double secondsSinceMidnight() const = 0;
    /// Blocks for that long (seconds) without letting events run.
    virtual void wait(double seconds) = 0;
    virtual std::string dayName(const DateTime& date) const = 0;   ///< abbreviated, in the system's language
    virtual std::string monthName(const DateTime& date) const = 0; ///< abbreviated, in the system's language
};

enum class Pointer { Normal, Hourglass };

class EventLoop {
public:
    virtual ~EventLoop() = default;
    /// Lets pending events run; timers that are due fire here.
    virtual void processPending() = 0;
    virtual void setPointer(Pointer pointer) = 0;
    /// Calls `fire` once after that many milliseconds, from processPending or the program's own loop.
    virtual void startTimer(int milliseconds, std::function<void()> fire) = 0;
};

enum class Arrangement { Cascade = 0, TileHorizontal = 1, TileVertical = 2, ArrangeIcons = 3 };

class WindowArranger {
public:
    virtual ~WindowArranger() = default;
    virtual void arrange(Arrangement mode) = 0;
};

/// All services of one platform. The object that owns the implementations outlives every program that uses them.
struct Services {
    MessageBoxes& messageBoxes;
    Dialogs& dialogs;
    Printer& printer;
    Settings& settings;
    Registry& registry;
    OperatingSystem& operatingSystem;
    DirectEdidReader& edidReader;
    Shell& shell;
    Clock& clock;
    EventLoop& eventLoop;
    WindowArranger& arranger;
    std::string programFolder; ///< start folder of the file dialogs
};

} // namespace wb::platform
