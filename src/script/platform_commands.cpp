#include <array>
#include <utility>

#include "core/base/digits.h"
#include "core/base/text.h"
#include "files/file_content.h"
#include "platform/date_time.h"
#include "platform/headless/registry_export.h"
#include "script/commands.h"
#include "script/script_error.h"

namespace wb::script::commands {

namespace {

platform::Answer answerNamed(const std::string& name) {
    static constexpr auto answers =
        std::to_array<std::pair<std::string_view, platform::Answer>>({{"OK", platform::Answer::Ok},
                                                                      {"Yes", platform::Answer::Yes},
                                                                      {"No", platform::Answer::No},
                                                                      {"Cancel", platform::Answer::Cancel}});
    for (const auto& [known, answer] : answers) {
        if (known == name) {
            return answer;
        }
    }
    throw ScriptError("unknown answer '" + name + "'");
}

std::string contentOf(const std::string& path) {
    try {
        return files::readFile(path);
    } catch (const files::InputError& error) {
        throw ScriptError(path + ": " + error.what(), ScriptError::Kind::Failure);
    }
}

} // namespace

void answer(Session& session, const Arguments& arguments) {
    for (const Argument& argument : arguments) {
        session.platform.queueAnswer(answerNamed(argument.text));
    }
}

void dialog(Session& session, const Arguments& arguments) {
    const bool cancel = !arguments[0].quoted && arguments[0].text == "cancel";
    session.platform.queueFileName(cancel ? std::nullopt : std::optional(arguments[0].text));
}

void printer(Session& session, const Arguments& arguments) {
    const std::string& outcome = arguments[0].text;
    if (outcome != "ok" && outcome != "cancel") {
        throw ScriptError("a printer is 'ok' or 'cancel', not '" + outcome + "'");
    }
    session.platform.queuePrinter(outcome == "ok");
}

void printed(Session& session, const Arguments&) {
    for (const std::string& text : session.platform.printedTexts()) {
        printBlock(session, "printed", text);
    }
}

void clock(Session& session, const Arguments& arguments) {
    const auto dateTime = platform::parseDateTime(arguments[0].text);
    if (!dateTime) {
        throw ScriptError("'" + arguments[0].text + "' is no date and time like \"2000-01-31 23:59:59\"");
    }
    session.platform.setClock(*dateTime);
}

void osversion(Session& session, const Arguments& arguments) {
    const auto version = wholeNumber<int>(arguments[0].text);
    if (!version) {
        throw ScriptError("'" + arguments[0].text + "' is no version number");
    }
    session.platform.setMajorVersion(*version);
}

void reader(Session& session, const Arguments& arguments) {
    std::string data;
    int high = -1;
    for (const char c : arguments[0].text) {
        const int digit = hexDigit(c);
        if (digit < 0 && c != ' ') {
            throw ScriptError("'" + arguments[0].text + "' is not hexadecimal");
        }
        if (digit >= 0 && high < 0) {
            high = digit;
        } else if (digit >= 0) {
            data += static_cast<char>(high * 16 + digit);
            high = -1;
        }
    }
    if (high >= 0) {
        throw ScriptError("an odd number of hexadecimal digits");
    }
    session.platform.setReaderData(data);
}

void registry(Session& session, const Arguments& arguments) {
    const std::string& path = arguments[0].text;
    try {
        const auto keys = platform::headless::parseRegistryExport(contentOf(path));
        session.platform.registry.clear();
        for (const platform::headless::RegistryKey& key : keys) {
            session.platform.registry.addKey(key.path);
            for (const platform::RegistryValue& value : key.values) {
                session.platform.registry.setValue(key.path, value);
            }
        }
    } catch (const platform::headless::RegistryExportError& error) {
        throw ScriptError(path + ':' + std::to_string(error.line()) + ": " + error.what());
    }
}

void settings(Session& session, const Arguments&) {
    for (const auto& [name, value] : session.platform.settings) {
        printValue(session, name, quoted(value));
    }
}

} // namespace wb::script::commands
