#include "cli/syntax.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <regex>
#include <utility>

#include "cli/cli_error.h"
#include "cli/usage_sentences.h"

namespace wb::cli {

namespace {

/// Stands at the end of an argument that the option library would take for something else than it is: it reads "[...]"
/// and "{}" as lists, and behind "--NAME=" takes the next argument for the value. No argument of a process holds it.
constexpr char mark = '\0';

std::string unmarked(std::string argument) {
    if (argument.ends_with(mark)) {
        argument.pop_back();
    }
    return argument;
}

/// What the option library says, and what is told instead.
struct Rewording {
    const char* words; ///< a regular expression for all of it
    const char* sentence;
};

constexpr auto rewordings = std::to_array<Rewording>({
    {R"((-\S+): 1 required [^]* missing)", "$1 needs a value"},
    {R"((-\S+): (\d+) required [^]* missing)", "$1 needs $2 values"},
    {R"((\S\S+) was given a disallowed flag override)", "--$1 takes no value"},
    {R"((\S) was given a disallowed flag override)", "-$1 takes no value"},
    {R"(A subcommand is required)", "no command is given; 'edidwb help' lists them"},
    {R"((\S+) requires (\S+))", "$1 needs $2 besides"},
    {R"((\S+) excludes (\S+))", "$1 and $2 exclude each other"},
});

/// What the values of an option are, by the word that stands for them in the help.
struct Noun {
    std::string_view word;
    std::string_view noun;
};

constexpr auto nouns = std::to_array<Noun>({{"FORMAT", "format"}, {"FORM", "form"}, {"LEVEL", "level"}});

std::string nounOf(const std::string& option, const CLI::App& app) {
    const CLI::Option* const found = app.get_option_no_throw(option);
    const std::string type = found == nullptr ? "" : found->get_type_name();
    for (const auto& [word, noun] : nouns) {
        if (type.substr(0, type.find(':')) == word) {
            return std::string(noun);
        }
    }
    return "value of " + option;
}

/// "--to: pdf not in {bin,hex}" becomes "'pdf' is no format: bin, hex".
std::string valueSentence(const std::smatch& match, const CLI::App& app) {
    std::string names;
    for (const char c : match[3].str()) {
        names += c == ',' ? ", " : std::string(1, c);
    }
    return '\'' + match[2].str() + "' is no " + nounOf(match[1], app) + ": " + names;
}

std::vector<std::string> optionNamesOf(const CLI::App& app) {
    std::vector<std::string> names;
    for (const CLI::Option* const option : app.get_options()) {
        for (const std::string& name : option->get_lnames()) {
            names.push_back("--" + name);
        }
    }
    return names;
}

std::string extraSentence(std::vector<std::string> extra, const CLI::App& app) {
    std::transform(extra.begin(), extra.end(), extra.begin(), &unmarked);
    const std::string& first = extra.front();
    if (first.size() < 2 || !first.starts_with('-')) {
        return "not expected: " + CLI::detail::join(extra, " ");
    }
    return unknownOption(first.substr(0, first.find('=')), optionNamesOf(app));
}

/// What the option library found wrong with the arguments.
std::string sentenceOf(const CLI::ParseError& error, const CLI::App& app) {
    if (app.remaining_size() > 0) {
        return extraSentence(app.remaining(), app);
    }
    std::string words = error.what();
    static const std::regex notAmong(R"((-\S+): ([^]*) not in \{([^]*)\})");
    std::smatch match;
    if (std::regex_match(words, match, notAmong)) {
        return valueSentence(match, app);
    }
    for (const auto& [pattern, sentence] : rewordings) {
        if (std::regex_match(words, match, std::regex(pattern))) {
            return match.format(sentence);
        }
    }
    return words;
}

/// It would take an empty value of an optional for absent.
std::string objectionToEmpty(const std::string& value) {
    return value.empty() ? "the value is empty" : "";
}

/// Marks what needs it; whether anything does.
bool markIn(std::vector<std::string>& arguments) {
    bool any = false;
    for (std::string& argument : arguments) {
        if (argument.ends_with(']') || argument.ends_with('}') || argument.ends_with('=')) {
            argument += mark;
            any = true;
        }
    }
    return any;
}

/// A value as it was given, which is nothing but the mark behind "--NAME=".
std::string valueAsGiven(const std::string& value, const CLI::Option& option) {
    if (value == std::string(1, mark)) {
        throw UsageError("no value in '" + option.get_name() + "='");
    }
    return unmarked(value);
}

void parse(CLI::App& app, std::vector<std::string> arguments) {
    app.allow_windows_style_options(false);
    if (markIn(arguments)) {
        for (CLI::Option* const option : app.get_options()) {
            option->transform([option](const std::string& value) { return valueAsGiven(value, *option); });
        }
    }
    std::reverse(arguments.begin(), arguments.end()); // the order in which the option library takes them
    app.parse(arguments);
}

} // namespace

Option& Option::oneOf(Names choices) {
    choices_ = choices;
    return *this;
}

Option& Option::refuseEmpty() {
    notEmpty_ = true;
    return *this;
}

Option& Option::require() {
    required_ = true;
    return *this;
}

Option& Option::sets(bool value) {
    sets_ = value;
    return *this;
}

bool Option::mayBeAmong(const std::vector<std::string>& arguments) const {
    const std::size_t comma = names_.find(',');
    const std::string_view name = comma == std::string_view::npos ? names_ : names_.substr(comma + 1);
    const std::string_view letter = comma == std::string_view::npos ? "" : names_.substr(1, comma - 1);
    return isOperand() || required_ ||
           std::any_of(arguments.begin(), arguments.end(), [&](const std::string& argument) {
               return argument.starts_with("--")
                          ? std::string_view(argument).substr(0, argument.find('=')) == name
                          : argument.starts_with('-') && !letter.empty() && argument.find(letter) != std::string::npos;
           });
}

std::string Option::words() const {
    std::string words = description_.text();
    if (words.empty() && choices_ != nullptr) {
        for (const std::string& choice : choices_()) {
            words += words.empty() ? choice + " (the default)" : ", " + choice;
        }
    }
    return words;
}

void Option::addTo(CLI::App& app, const std::string& words) const {
    const std::string names(names_);
    if (const auto* const flag = std::get_if<bool*>(&target_)) {
        app.add_flag_callback(
               names, [target = *flag, value = sets_] { *target = value; }, words)
            ->disable_flag_override();
        return;
    }
    const auto add = [&](auto* target) -> CLI::Option* { return app.add_option(names, *target, words); };
    CLI::Option* option = nullptr;
    if (const auto* const list = std::get_if<std::vector<std::string>*>(&target_)) {
        option = add(*list)->allow_extra_args(isOperand());
    } else if (const auto* const optional = std::get_if<std::optional<std::string>*>(&target_)) {
        option = add(*optional);
    } else {
        option = add(std::get<std::string*>(target_));
    }
    option->type_name(std::string(value_))->required(required_);
    if (!std::holds_alternative<std::vector<std::string>*>(target_)) {
        option->take_last();
    }
    if (notEmpty_) {
        option->check(objectionToEmpty);
    }
    if (choices_ != nullptr) {
        option->check(CLI::IsMember(choices_()));
    }
}

std::optional<std::string> Syntax::read(const std::vector<std::string>& arguments) const {
    return readsWithNamed(arguments) ? std::nullopt : readWithAll(arguments);
}

/// False where that was not enough: the help is asked for, or something is wrong, which takes all options to be told.
bool Syntax::readsWithNamed(const std::vector<std::string>& arguments) const {
    if (!subcommands_.empty()) {
        return false;
    }
    CLI::App app;
    for (const Option& option : options_) {
        if (option.mayBeAmong(arguments)) {
            option.addTo(app, {});
        }
    }
    try {
        parse(app, arguments);
        return true;
    } catch (const CLI::ParseError&) {
        return false;
    }
}

std::optional<std::string> Syntax::readWithAll(const std::vector<std::string>& arguments) const {
    CLI::App app{std::string(description_), program_};
    if (!version_.empty()) {
        app.set_version_flag("--version", version_);
    }
    for (const Option& option : options_) {
        option.addTo(app, option.words());
    }
    for (const Subcommand& command : subcommands_) {
        app.add_subcommand(std::string(command.name), std::string(command.description));
    }
    app.require_subcommand(subcommands_.empty() ? 0 : 1);
    app.footer(std::string(footer_));
    try {
        parse(app, arguments);
    } catch (const CLI::CallForHelp&) {
        return app.help();
    } catch (const CLI::CallForVersion& version) {
        return version.what() + std::string("\n");
    } catch (const CLI::ParseError& error) {
        throw UsageError(sentenceOf(error, app));
    }
    return std::nullopt;
}

} // namespace wb::cli
