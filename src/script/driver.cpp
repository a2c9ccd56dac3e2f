#include "script/driver.h"

#include <array>
#include <utility>

#include "script/script_error.h"

namespace wb::script {

namespace {

struct Row {
    std::string_view name;
    std::string_view usage; ///< of the arguments
    std::size_t least;      ///< how many arguments
    std::size_t most;
    void (*run)(Session& session, const Arguments& arguments);
};

constexpr std::size_t anyNumber = static_cast<std::size_t>(-1);
constexpr std::string_view startCommand = "start";

/// Starting is the driver's: it happens before any other command and once.
void alreadyStarted(Session&, const Arguments&) {}

constexpr auto rows = std::to_array<Row>({
    {startCommand, "", 0, 0, &alreadyStarted},
    {"menu", "NAME", 1, 1, &commands::menu},
    {"toolbar", "KEY", 1, 1, &commands::toolbar},
    {"click", "S.C(i)", 1, 1, &commands::click},
    {"dblclick", "S.C(i)", 1, 1, &commands::dblclick},
    {"focus", "S.C(i)", 1, 1, &commands::focus},
    {"type", "\"TEXT\"", 1, 1, &commands::type},
    {"enter", "", 0, 0, &commands::enter},
    {"keyup", "CODE", 1, 1, &commands::keyup},
    {"pick", "S.C ROW", 2, 2, &commands::pick},
    {"close", "S", 1, 1, &commands::close},
    {"drop", "\"PATH\"", 1, 1, &commands::drop},
    {"poke", "S.C(i) \"TEXT\"", 2, 2, &commands::poke},
    {"get", "S.C(i).PROP", 1, 1, &commands::get},
    {"var", "NAME", 1, 1, &commands::var},
    {"let", "NAME VALUE", 2, 2, &commands::let},
    {"cells", "S", 1, 1, &commands::cells},
    {"focused", "", 0, 0, &commands::focused},
    {"windows", "", 0, 0, &commands::windows},
    {"report", "", 0, 0, &commands::report},
    {"call", "NAME ARGS...", 1, anyNumber, &commands::call},
    {"run", "NAME", 1, 1, &commands::run},
    {"answer", "A...", 1, anyNumber, &commands::answer},
    {"dialog", "\"PATH\"", 1, 1, &commands::dialog},
    {"printer", "ok|cancel", 1, 1, &commands::printer},
    {"printed", "", 0, 0, &commands::printed},
    {"clock", "\"YYYY-MM-DD HH:MM:SS\"", 1, 1, &commands::clock},
    {"osversion", "N", 1, 1, &commands::osversion},
    {"reader", "\"HEX\"", 1, 1, &commands::reader},
    {"registry", "FILE", 1, 1, &commands::registry},
    {"settings", "", 0, 0, &commands::settings},
});

const Row& rowOf(const Command& command) {
    for (const Row& row : rows) {
        if (row.name == command.name) {
            const std::size_t count = command.arguments.size();
            if (count < row.least || count > row.most) {
                const std::string blank = row.usage.empty() ? "" : " ";
                throw ScriptError("wrong arguments, should be: " + command.name + blank + std::string(row.usage));
            }
            return row;
        }
    }
    throw ScriptError("unknown command '" + command.name + "'");
}

} // namespace

Driver::Driver(Session session) : session_(std::move(session)) {
    session_.platform.onLine = session_.print;
}

Driver::~Driver() {
    session_.platform.onLine = nullptr;
}

void Driver::run(std::istream& script) {
    std::string line;
    for (int number = 1; std::getline(script, line); ++number) {
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        try {
            runLine(line);
        } catch (const ScriptError& error) {
            throw ScriptError(error.what(), number);
        }
    }
}

void Driver::runLine(std::string_view line) {
    if (const std::optional<Command> command = parseLine(line)) {
        execute(*command);
    }
}

void Driver::execute(const Command& command) {
    const Row& row = rowOf(command);
    if (!std::exchange(started_, true)) {
        session_.frontEnd.start();
    }
    session_.workbench.runAction([&] { row.run(session_, command.arguments); });
}

} // namespace wb::script
