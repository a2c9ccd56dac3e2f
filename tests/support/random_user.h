#pragma once

#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "core/workbench.h"

namespace wb::test {

/// A user who does anything that can be reached, in any order, and some things that cannot. What is done next depends
/// on the program as it stands, but is told in lines of a script, so that any front end can do the same again.
class RandomUser {
public:
    using Lines = std::vector<std::string>;

    /// Writes the images that are opened into the working folder, which must be a ScenarioFolder.
    RandomUser(Workbench& workbench, unsigned seed);

    /// The lines to begin with.
    static Lines preparations();
    /// The lines of one action, answers to what it may ask first.
    Lines next();

private:
    int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    bool oneIn(int count) { return below(count) == 0; }
    template <class List>
    typename List::value_type oneOf(const List& list) {
        return list[static_cast<std::size_t>(below(static_cast<int>(std::size(list))))];
    }

    void writeImage(const std::string& name);
    std::string header(int length);

    bool focusIsCalledBack() const;
    Lines onModal(Screen& screen);
    Lines onFrame();
    Lines onChild(Screen& screen);
    Lines onBlock(BlockScreen& screen);
    Lines onCalculator(Screen& screen);
    Lines command();
    void queueAnswers(Lines& lines);

    Lines clickAnything(Screen& screen);
    Lines enterAnywhere(Screen& screen);
    Lines pickAnything(Screen& screen);
    Control* reachable(Screen& screen, bool (*wanted)(const Control&));
    std::string wordOf(std::string_view list);
    std::string text();
    std::string cellText();

    Workbench& workbench_;
    std::mt19937 random_;
};

} // namespace wb::test
