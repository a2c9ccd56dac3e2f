#pragma once

#include <cstdint>
#include <string>

namespace wb {

class Control;

/// What kind of action of the user it is, where that tells how a change is kept.
enum class Deed : std::uint8_t { Key, DoubleClick, Paste, Other };

/// The memory of the changes that the user makes to the image. The program tells it what happens; a program without
/// one, such as a batch job, remembers nothing. `shell/history.h` makes it.
class ChangeHistory {
public:
    ChangeHistory() = default;
    ChangeHistory(const ChangeHistory&) = delete;
    ChangeHistory& operator=(const ChangeHistory&) = delete;
    virtual ~ChangeHistory() = default;

    /// An action of the user begins, on that control or on none; one inside another is not told.
    virtual void actionBegins(Deed deed, const Control* control) = 0;
    virtual void actionEnded() = 0;
    /// The control has got the focus, be it in passing.
    virtual void focusEntered(const Control& control) = 0;
    /// The cells hold another image.
    virtual void imageLoaded() = 0;
    /// A data file holds what the cells hold.
    virtual void imageSaved() = 0;

    /// Takes the last change back, or makes the one taken back last again. False, and nothing is done, where there is
    /// none or the frame is out of the user's reach.
    virtual bool undo() = 0;
    virtual bool redo() = 0;
    /// What these would do, in words for a user such as "Width of the screen"; empty where there is nothing.
    virtual std::string undoName() const = 0;
    virtual std::string redoName() const = 0;
    virtual bool canUndo() const = 0;
    virtual bool canRedo() const = 0;
};

} // namespace wb
