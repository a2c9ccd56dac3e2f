#pragma once

#include <QString>
#include <string>

#include "fields/reading.h"

namespace wb::desktop {

/// "Byte 54 (36h)" in block 0, "Byte 5 (05h) of block 1" in another one: counted as the cells of its screen are.
QString bytePlace(std::size_t byte);
/// One sentence that tells why the focus did not get to the cell of a byte.
QString outOfReach(std::size_t byte);

/// What a byte of the image is, in words: the same for the status bar, tool tips and screen readers.
struct ByteWords {
    QString place;  ///< as bytePlace gives it
    QString number; ///< "02h, 2, 0000 0010"; of a cell that holds no byte, its text
    QString labels; ///< of the fields that it is part of; more than two are only counted
    QString values; ///< of these, as far as they are short
    QString fields; ///< both: "Horizontal active: 1920 px; Horizontal blanking: 280 px"

    /// All of it in one line.
    QString line() const;
    /// What its place in the grid and the labels leave open.
    QString description() const;
};

/// The byte must be one of the image; `cell` is the text of its cell.
ByteWords byteWords(const fields::Reading& reading, std::size_t byte, const std::string& cell);

} // namespace wb::desktop
