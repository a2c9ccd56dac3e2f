#pragma once

#include <string>

namespace wb {

class Control;
class Screen;

/// A file that a command has written to its end.
struct WrittenFile {
    enum class Kind { DataFile, HexadecimalFile };

    std::string name;
    Kind kind = Kind::DataFile;
    int blocks = 0; ///< of the image, 1 or 2
};

/// What a view learns of the model. All calls come from inside the statement that causes them; none may call back into
/// the model.
class View {
public:
    virtual ~View() = default;
    virtual void controlChanged(Control& control) = 0;
    /// Its caption, or whether it is shown.
    virtual void screenChanged(Screen& screen) = 0;
    /// After its load step.
    virtual void screenLoaded(Screen& screen) = 0;
    /// Its controls go when the outermost call into the model has returned.
    virtual void screenUnloaded(Screen& screen) = 0;
    /// The order of the child windows, the modal screens, the end of the program.
    virtual void windowsChanged() = 0;
    virtual void focusChanged() = 0;
    virtual void fileWritten(const WrittenFile& file) = 0;
};

} // namespace wb
