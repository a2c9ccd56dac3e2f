#pragma once

#include <QString>
#include <optional>
#include <string>
#include <string_view>

/// Between the program's texts of 8-bit characters and Unicode. The mapping is that of Windows code page 1252, and one
/// to one over 0 to 255: NUL and the five codes that the page leaves open (81, 8D, 8F, 90, 9D) stand for themselves, so
/// that no text changes by being shown.
namespace wb::desktop {

QString toUnicode(std::string_view text);
/// Characters that the code page does not have become question marks.
std::string fromUnicode(const QString& text);
/// The 8-bit character, or nothing where the code page does not have it.
std::optional<char> toCharacter(QChar character);

/// For texts that are UTF-8 from the start, such as the names of fields.
QString fromUtf8(std::string_view text);

/// File names travel through the program as the bytes that the system uses for them.
std::string fileNameBytes(const QString& name);
QString fromFileNameBytes(std::string_view bytes);
/// For titles and boxes, whose texts are either plain ASCII or hold a file name.
QString titleText(std::string_view text);

} // namespace wb::desktop
