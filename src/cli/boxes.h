#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wb::cli {

/// A box that a program without a display showed.
struct Box {
    std::string text;
    std::string step;      ///< what the program was doing, in words; empty where that is not known
    std::size_t times = 1; ///< how often it came up in that step
};

/// The boxes that came up, in the order in which they did so first.
class Boxes {
public:
    void add(std::string_view text, std::string_view step);

    const std::vector<Box>& distinct() const { return distinct_; }
    bool empty() const { return distinct_.empty(); }
    /// How many came up, the repeated ones too.
    std::size_t count() const { return count_; }
    /// The text of the one that came up last; there must be one.
    const std::string& last() const { return distinct_[last_].text; }
    void clear() { *this = Boxes(); }

private:
    std::vector<Box> distinct_;
    std::size_t count_ = 0;
    std::size_t last_ = 0;
};

/// A box in one line, with how often it came up and in which step: "Overflow (14 times, decoding block 0)".
std::string boxText(const Box& box);

/// Tells the boxes that came up while a file (empty: none) was worked on.
void complainOfBoxes(std::string_view file, const Boxes& boxes);

} // namespace wb::cli
