#include "script/driver.h"

#include <algorithm>
#include <array>
#include <streambuf>
#include <utility>

#include "core/base/text.h"
#include "files/file_content.h"

namespace wb::script {

namespace {

constexpr std::size_t anyNumber = static_cast<std::size_t>(-1);
constexpr std::string_view helpCommand = "help";

/// Starting is the driver's, as it happens before any other command and once, and so is what needs all rows.
void doneByDriver(Session&, const Arguments&) {}

constexpr auto rows = std::to_array<CommandRow>({
    {"start", "", 0, 0, &doneByDriver, "starts the program, which any other first command does too"},
    {"menu", "NAME", 1, 1, &commands::menu, "picks a menu entry"},
    {"toolbar", "KEY", 1, 1, &commands::toolbar, "presses a tool bar button"},
    {"click", "S.C(i)", 1, 1, &commands::click, "clicks"},
    {"dblclick", "S.C(i)", 1, 1, &commands::dblclick, "double clicks"},
    {"focus", "S.C(i)", 1, 1, &commands::focus, "moves the focus"},
    {"type", "\"TEXT\"", 1, 1, &commands::type, "types into the control that has the focus"},
    {"enter", "", 0, 0, &commands::enter, "presses Enter"},
    {"keyup", "CODE", 1, 1, &commands::keyup, "gives a bare key code to the active screen"},
    {"pick", "S.C ROW", 2, 2, &commands::pick, "picks a row of a combo box, counted from 0"},
    {"modify", "on|off", 1, 1, &commands::modify, "switches editing as its button does"},
    {"close", "S", 1, 1, &commands::close, "presses the window's own close button"},
    {"drop", "\"PATH\"", 1, 1, &commands::drop, "drops a file on the frame"},
    {"goto", "BYTE", 1, 1, &commands::goToByte, "picks a byte of the image, counted from 0"},
    {"timing", "BYTE \"MODELINE\"", 2, 2, &commands::timing, "enters a timing at the block that begins at a byte"},
    {"undo", "", 0, 0, &commands::undo, "takes the last change of the image back"},
    {"redo", "", 0, 0, &commands::redo, "makes the change that was taken back last again"},
    {"paste", "\"HEX\"", 1, 1, &commands::paste, "pastes pairs of digits from the cell in focus on"},
    {"find", "\"TEXT\" [back]", 1, 2, &commands::find, "goes to the next place of bytes or a text"},
    {"poke", "S.C(i) \"TEXT\"", 2, 2, &commands::poke, "sets a text without any event"},
    {"get", "S.C(i).PROP", 1, 1, &commands::get, "prints a property"},
    {"expect", "S.C(i).PROP \"TEXT\"", 2, 2, &commands::expect, "fails where a property is another"},
    {"var", "NAME", 1, 1, &commands::var, "prints a variable"},
    {"let", "NAME VALUE", 2, 2, &commands::let, "sets a variable"},
    {"cells", "S", 1, 1, &commands::cells, "prints the 128 cells of a block screen"},
    {"focused", "", 0, 0, &commands::focused, "prints who has the focus"},
    {"windows", "", 0, 0, &commands::windows, "prints the child windows, the active one first"},
    {"report", "", 0, 0, &commands::report, "prints the text of the report window"},
    {"history", "", 0, 0, &commands::history, "prints what undo and redo would do"},
    {"call", "NAME ARGS...", 1, anyNumber, &commands::call, "calls a helper"},
    {"run", "NAME", 1, 1, &commands::run, "runs a procedure"},
    {"answer", "A...", 1, anyNumber, &commands::answer, "queues answers for the next boxes: OK, Yes, No, Cancel"},
    {"dialog", "\"PATH\"", 1, 1, &commands::dialog, "queues the name for the next file dialog, or cancel"},
    {"printer", "ok|cancel", 1, 1, &commands::printer, "queues the outcome of the next print dialog"},
    {"printed", "", 0, 0, &commands::printed, "prints what was printed so far"},
    {"clock", "\"YYYY-MM-DD HH:MM:SS\"", 1, 1, &commands::clock, "sets the clock"},
    {"osversion", "N", 1, 1, &commands::osversion, "sets the major version of the system"},
    {"reader", "\"HEX\"", 1, 1, &commands::reader, "sets what the direct reader of a monitor gives"},
    {"registry", "FILE", 1, 1, &commands::registry, "sets the registry, from a registry export"},
    {"settings", "", 0, 0, &commands::settings, "prints the stored settings"},
    {helpCommand, "", 0, 0, &doneByDriver, "lists the commands"},
});

/// Reads a line without its end; false where there is none. What the standard library has for it takes want of memory
/// for the end of the script.
bool readLine(std::istream& script, int number, std::string& line) {
    constexpr int end = std::istream::traits_type::eof();
    std::streambuf& characters = *script.rdbuf();
    line.clear();
    int c = characters.sbumpc();
    const bool isThere = c != end;
    for (; c != end && c != '\n'; c = characters.sbumpc()) {
        if (line.size() == files::largestInput) {
            throw ScriptError("the line is longer than " + std::to_string(files::largestInput) + " bytes").at(number);
        }
        line += static_cast<char>(c);
    }
    return isThere;
}

std::string synopsis(const CommandRow& row) {
    return std::string(row.name) + (row.usage.empty() ? "" : " ") + std::string(row.usage);
}

const CommandRow* find(std::span<const CommandRow> among, std::string_view name) {
    const auto row =
        std::find_if(among.begin(), among.end(), [&](const CommandRow& each) { return each.name == name; });
    return row == among.end() ? nullptr : &*row;
}

} // namespace

Driver::Driver(Session session, std::span<const CommandRow> further) : session_(std::move(session)), further_(further) {
    session_.platform.onLine = session_.print;
    if (session_.strict) {
        session_.platform.onUnansweredBox = [this](const std::string& text) {
            unansweredBox_ = unansweredBox_.value_or(text);
        };
    }
}

Driver::~Driver() {
    session_.platform.onLine = nullptr;
    session_.platform.onUnansweredBox = nullptr;
}

const CommandRow& Driver::rowOf(const Command& command) const {
    const CommandRow* row = find(rows, command.name);
    row = row != nullptr ? row : find(further_, command.name);
    if (row == nullptr) {
        throw ScriptError("unknown command '" + command.name + "'");
    }
    const std::size_t count = command.arguments.size();
    if (count < row->least || count > row->most) {
        throw ScriptError("wrong arguments, should be: " + synopsis(*row));
    }
    return *row;
}

void Driver::printHelp() const {
    std::vector<CommandRow> all(rows.begin(), rows.end());
    all.insert(all.end(), further_.begin(), further_.end());
    std::size_t width = 0;
    for (const CommandRow& row : all) {
        width = std::max(width, synopsis(row).size());
    }
    for (const CommandRow& row : all) {
        session_.print(PadRight(synopsis(row), static_cast<int>(width)) + "  " + std::string(row.words));
    }
}

void Driver::run(std::istream& script, const std::function<void(const ScriptError& error)>& tell) {
    std::string line;
    for (int number = 1; readLine(script, number, line); ++number) {
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        try {
            runLine(line);
        } catch (const ScriptError& error) {
            if (!tell) {
                throw error.at(number);
            }
            tell(error.at(number));
        }
    }
}

void Driver::runLine(std::string_view line) {
    if (const std::optional<Command> command = parseLine(line, session_.substitutions)) {
        execute(*command);
    }
}

void Driver::execute(const Command& command) {
    const CommandRow& row = rowOf(command);
    unansweredBox_.reset();
    if (!std::exchange(started_, true)) {
        session_.frontEnd.start();
    }
    session_.workbench.runAction([&] { row.run(session_, command.arguments); });
    if (row.name == helpCommand) {
        printHelp();
    }
    if (unansweredBox_) {
        throw ScriptError("a box without an answer: " + quoted(*unansweredBox_), ScriptError::Kind::Failure);
    }
}

} // namespace wb::script
