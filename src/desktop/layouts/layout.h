#pragma once

#include <span>
#include <string_view>

#include "core/control.h"
#include "core/screen.h"

/// Where the controls of a screen stand. Positions are rows and columns of grids, sizes are counted in characters, so
/// that a screen scales with its font.
namespace wb::desktop {

enum class Look : std::uint8_t {
    Plain,   ///< as its kind asks
    Heading, ///< a label in the middle of its place
    RowName, ///< a label close to what stands to its right
    Cell,    ///< a two-digit cell of a grid, in a fixed-pitch face
    Prose,   ///< a label of several words, broken into lines
    Value,   ///< a text that shows a result, in a fixed-pitch face
    Group,   ///< no control: room for the places of the area of that name
    Filler,  ///< no control: a black field of the size of a cell
    Picture, ///< a label that shows the picture of the program
    Key,     ///< a button that may be as narrow as its caption
    Words,   ///< no control: the words of `spoken`, beside what they name
};

/// The place of a control, or of consecutive members of an array, in the area it is listed in. The members of an array
/// follow each other in rows of `across`.
struct Place {
    std::string_view name;
    int first = Control::noIndex;
    int last = Control::noIndex;
    int row = 0;
    int column = 0;
    int rowSpan = 1;
    int columnSpan = 1;
    int across = 1;
    bool together = false;  ///< all members stand in one place, where one of them shows at a time
    bool keepsRoom = false; ///< nothing moves up while it is hidden
    bool atRight = false;   ///< no wider than need be, at the right end of its place
    Look look = Look::Plain;
    int characters = 0;             ///< width in characters; 0: as the content asks
    std::string_view longest = {};  ///< of a button: a caption that it may get, for which it keeps the room
    bool capitals = false;          ///< they may all be as wide as a capital
    std::string_view spoken = {};   ///< accessible name; "%1" stands for the index
    std::string_view shortcut = {}; ///< key that does what a click does, on a frame what a double click does

    constexpr Place at(int newRow, int newColumn, int rows = 1, int columns = 1) const {
        Place place = *this;
        place.row = newRow;
        place.column = newColumn;
        place.rowSpan = rows;
        place.columnSpan = columns;
        return place;
    }
    constexpr Place rowsOf(int count) const {
        Place place = *this;
        place.across = count;
        return place;
    }
    constexpr Place inOnePlace() const {
        Place place = *this;
        place.together = true;
        place.keepsRoom = true;
        return place;
    }
    constexpr Place keepingRoom() const {
        Place place = *this;
        place.keepsRoom = true;
        return place;
    }
    constexpr Place toTheRight() const {
        Place place = *this;
        place.atRight = true;
        return place;
    }
    constexpr Place as(Look newLook) const {
        Place place = *this;
        place.look = newLook;
        return place;
    }
    constexpr Place wide(int count) const {
        Place place = *this;
        place.characters = count;
        return place;
    }
    constexpr Place roomFor(std::string_view caption) const {
        Place place = *this;
        place.longest = caption;
        return place;
    }
    constexpr Place wideInCapitals(int count) const {
        Place place = wide(count);
        place.capitals = true;
        return place;
    }
    constexpr Place called(std::string_view name_) const {
        Place place = *this;
        place.spoken = name_;
        return place;
    }
    constexpr Place onKey(std::string_view key) const {
        Place place = *this;
        place.shortcut = key;
        return place;
    }
};

/// A control that is in no array.
constexpr Place one(std::string_view name) {
    return {.name = name};
}
/// A member of an array.
constexpr Place member(std::string_view name, int index) {
    return {.name = name, .first = index, .last = index};
}
/// Members of an array, one below the other.
constexpr Place members(std::string_view name, int first, int last) {
    return {.name = name, .first = first, .last = last};
}
constexpr Place group(std::string_view name) {
    return {.name = name, .look = Look::Group};
}

/// A text that names what stands beside it.
constexpr Place words(std::string_view text) {
    return {.name = {}, .look = Look::Words, .spoken = text};
}

enum class Spacing : std::uint8_t {
    Normal,
    None,       ///< of a grid of cells
    Paragraphs, ///< of a box that is read like a page
};

/// The inside of a frame or group, or of the whole screen, whose name is empty.
struct Area {
    std::string_view name;
    int index;
    std::span<const Place> places;
    Spacing spacing = Spacing::Normal;
};

/// The areas of a screen; the screens of the two blocks share some.
struct ScreenLayout {
    std::span<const Area> own;
    std::span<const Area> shared = {};

    const Area* find(std::string_view name, int index = Control::noIndex) const;
    /// The area of a group. One that is missing is a mistake in the table: a std::logic_error that names it.
    const Area& at(std::string_view name) const;
};

/// The layout of a screen; the splash, which has no controls, has one without areas.
const ScreenLayout& layoutOf(ScreenId id);

} // namespace wb::desktop
