#include "cli/usage_sentences.h"

#include <algorithm>

namespace wb::cli {

namespace {

std::string withSuggestion(std::string sentence, const std::string& nearest) {
    if (!nearest.empty()) {
        sentence += "; did you mean '";
        sentence += nearest;
        sentence += "'?";
    }
    return sentence;
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

std::string unknownCommand(std::string_view name, const std::vector<std::string>& known) {
    return withSuggestion("there is no command '" + std::string(name) + '\'', nearestName(name, known));
}

std::string unknownOption(std::string_view name, const std::vector<std::string>& known) {
    return withSuggestion("there is no option '" + std::string(name) + '\'', nearestName(name, known));
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
