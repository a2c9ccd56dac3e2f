#include "cli/usage_sentences.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <regex>

#include "core/base/text.h"

namespace wb::cli {

namespace {

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

std::string withSuggestion(std::string sentence, const std::string& nearest) {
    if (!nearest.empty()) {
        sentence += "; did you mean '";
        sentence += nearest;
        sentence += "'?";
    }
    return sentence;
}

std::string extraSentence(const std::vector<std::string>& extra, const CLI::App& app) {
    const std::string& first = extra.front();
    if (first.size() < 2 || !first.starts_with('-')) {
        return "not expected: " + CLI::detail::join(extra, " ");
    }
    const std::string name = first.substr(0, first.find('='));
    return withSuggestion("there is no option '" + name + '\'', nearestName(name, optionNamesOf(app)));
}

/// How many letters are wrong, missing or too many, two that are swapped counting once: the optimal string alignment.
std::size_t distance(std::string_view a, std::string_view b) {
    std::vector<std::vector<std::size_t>> steps(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
    for (std::size_t i = 0; i <= a.size(); ++i) {
        for (std::size_t j = 0; j <= b.size(); ++j) {
            if (i == 0 || j == 0) {
                steps[i][j] = i + j;
                continue;
            }
            const std::size_t change = a[i - 1] == b[j - 1] ? 0 : 1;
            steps[i][j] = std::min({steps[i - 1][j] + 1, steps[i][j - 1] + 1, steps[i - 1][j - 1] + change});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
                steps[i][j] = std::min(steps[i][j], steps[i - 2][j - 2] + 1);
            }
        }
    }
    return steps[a.size()][b.size()];
}

std::string_view withoutDashes(std::string_view name) {
    return name.substr(std::min(name.find_first_not_of('-'), name.size()));
}

} // namespace

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

std::string unknownCommand(std::string_view name, const std::vector<std::string>& known) {
    return withSuggestion("there is no command '" + std::string(name) + '\'', nearestName(name, known));
}

std::string nearestName(std::string_view name, const std::vector<std::string>& known) {
    constexpr std::size_t lettersForOneMistake = 3;
    constexpr std::size_t longestName = 40; // what is longer is no typing mistake
    const std::string_view typed = withoutDashes(name);
    if (typed.size() < 2 || typed.size() > longestName) {
        return {};
    }
    std::string nearest;
    std::size_t least = std::max<std::size_t>(typed.size() / lettersForOneMistake, 1) + 1;
    for (const std::string& other : known) {
        const std::string_view letters = withoutDashes(other);
        const bool endMissing = typed.size() >= lettersForOneMistake && letters.starts_with(typed);
        const std::size_t mistakes = endMissing ? 1 : distance(typed, letters);
        if (mistakes < least) {
            least = mistakes;
            nearest = other;
        }
    }
    return nearest;
}

} // namespace wb::cli
