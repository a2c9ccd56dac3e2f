#pragma once

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace wb::test {

/// Makes odd inputs out of good ones, the same ones in each run.
class Mutator {
public:
    /// `words` are pieces that mean something to the reader under test.
    explicit Mutator(std::uint32_t seed, std::vector<std::string> words = {})
        : random_(seed), words_(std::move(words)) {}

    /// The text after one to eight small accidents.
    std::string mutate(std::string text) {
        for (std::size_t i = 1 + below(8); i > 0; --i) {
            accident(text);
        }
        return text;
    }

    /// A number from 0 to `end` - 1, 0 where `end` is 0.
    std::size_t below(std::size_t end) { return end == 0 ? 0 : random_() % end; }

private:
    void accident(std::string& text) {
        const std::size_t place = below(text.size() + 1);
        const std::size_t length = below(std::min<std::size_t>(text.size() - place, 40) + 1);
        switch (below(6)) {
            case 0: // a bit turns over
                if (place < text.size()) {
                    text[place] = static_cast<char>(static_cast<unsigned char>(text[place]) ^ (1U << below(8)));
                }
                break;
            case 1: // any character stands between
                text.insert(place, 1, static_cast<char>(below(256)));
                break;
            case 2:
                text.erase(place, length);
                break;
            case 3:
                text.insert(below(text.size() + 1), text.substr(place, length));
                break;
            case 4: // the rest is missing, though not often
                if (below(8) == 0) {
                    text.resize(place);
                }
                break;
            default:
                if (!words_.empty()) {
                    text.insert(place, words_[below(words_.size())]);
                }
                break;
        }
    }

    std::mt19937 random_;
    std::vector<std::string> words_;
};

} // namespace wb::test
