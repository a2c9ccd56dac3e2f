#include "desktop/base/text_codec.h"

#include <QFile>
#include <QStringDecoder>
#include <algorithm>
#include <array>

namespace wb::desktop {

namespace {

/// What the codes 80 to 9F stand for (Windows code page 1252); all others stand for the character of the same number.
constexpr int firstSpecial = 0x80;
constexpr std::array<char16_t, 32> specials = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                               0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                               0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                               0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t unicodeOf(char character) {
    const int code = static_cast<unsigned char>(character);
    const int special = code - firstSpecial;
    return special >= 0 && special < static_cast<int>(specials.size()) ? specials[static_cast<std::size_t>(special)]
                                                                       : static_cast<char16_t>(code);
}

} // namespace

QString toUnicode(std::string_view text) {
    QString result;
    result.reserve(static_cast<qsizetype>(text.size()));
    for (const char character : text) {
        result.append(QChar(unicodeOf(character)));
    }
    return result;
}

std::string fromUnicode(const QString& text) {
    std::string result;
    result.reserve(static_cast<std::size_t>(text.size()));
    for (const QChar character : text) {
        result += toCharacter(character).value_or('?');
    }
    return result;
}

std::optional<char> toCharacter(QChar character) {
    const char16_t code = character.unicode();
    const auto special = std::find(specials.begin(), specials.end(), code);
    if (special != specials.end()) {
        return static_cast<char>(firstSpecial + (special - specials.begin()));
    }
    constexpr char16_t firstOutside = 0x100;
    if (code >= firstOutside || (code >= firstSpecial && code < firstSpecial + specials.size())) {
        return std::nullopt;
    }
    return static_cast<char>(code);
}

std::string fileNameBytes(const QString& name) {
    return QFile::encodeName(name).toStdString();
}

QString fromFileNameBytes(std::string_view bytes) {
    return QFile::decodeName(QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())));
}

QString titleText(std::string_view text) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString decoded = decoder(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    return decoder.hasError() ? toUnicode(text) : decoded;
}

} // namespace wb::desktop
