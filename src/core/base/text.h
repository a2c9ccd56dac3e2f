#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

/// Text helpers that cannot fail: padding, layout, and the hexadecimal and binary forms of numbers. All numbers of the
/// program pass through text, so the treatment of odd input is part of the behaviour.
namespace wb {

/// The line end of reports and data files.
inline constexpr std::string_view crLf = "\r\n";

/// Upper case of the letters a to z only.
char upperCase(char c);
std::string upperCase(std::string_view text);

using Texts = std::initializer_list<std::string_view>;

/// The texts one behind the other.
std::string joined(Texts texts);
/// Puts the texts one behind the other into `target`, which lends its room; none of them may be a part of it.
void join(std::string& target, Texts texts);
/// Adds the texts, one behind the other, to `target`, of which none may be a part.
void append(std::string& target, std::span<const std::string_view> texts);
inline void append(std::string& target, Texts texts) {
    append(target, std::span(texts.begin(), texts.size()));
}
/// `count` blanks, at most 128; none for a count below 1.
std::string_view blanks(int count);
/// The blanks that `text` lacks to be `width` wide.
std::string_view padding(std::string_view text, int width);

/// `text` followed by blanks up to `width` characters; a text that is not shorter stays whole.
std::string PadRight(std::string_view text, int width);
/// Blanks up to `width`, then `text`; a text that is not shorter stays whole.
std::string PadLeft(std::string_view text, int width);
/// `text` `count` times; empty for a count below 1.
std::string RepeatText(std::string_view text, int count);
/// `count` blanks, none for a count below 1, then `text`.
std::string IndentText(std::string_view text, int count);
/// `text` centred in `width` columns. A CR LF anywhere means that the last two characters do not count for the width. A
/// text that is empty or not shorter than the width is lost: the result is empty.
std::string CenterText(std::string_view text, int width);
/// `text` without one final CR LF.
std::string StripTrailingCrLf(std::string_view text);

/// "A" to "F" in either case (the whole text is compared) give 10 to 15; any other text the code of its first character
/// minus 48; an empty text 0.
int HexDigitValue(std::string_view text);
/// Upper-case hexadecimal form of a 16-bit number with at least two digits; neither padded further nor cut, so that 256
/// gives three digits and a negative number four. A number that does not fit 16 bits is an Overflow of the caller.
std::string ByteToHex2(long long value);
/// The form of a byte, 0 to 255, that ByteToHex2 gives.
std::string_view byteText(int byte);
/// Four binary digits for each of "0" to "9" and "A" to "F"; every other character, lower-case digits too, gives
/// nothing.
std::string HexToBinaryText(std::string_view text);
/// The same of one character.
std::string_view binaryDigitsOf(char c);

/// Parts of a text by count of characters, as far as it has them; positions are 1-based.
std::string leftPart(std::string_view text, std::size_t count);
std::string rightPart(std::string_view text, std::size_t count);
std::string middlePart(std::string_view text, std::size_t position, std::size_t count);

/// What a message cites, in single quotation marks as it is.
std::string inQuotes(std::string_view text);
/// A quoted text as scripts read and print it: characters outside blank to '~' escaped as \r, \n, \t or \xHH.
std::string quoted(std::string_view text);

} // namespace wb
