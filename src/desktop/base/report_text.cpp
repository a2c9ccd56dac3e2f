#include "desktop/base/report_text.h"

#include <QFileInfo>

#include "core/base/text.h"
#include "desktop/base/text_codec.h"

namespace wb::desktop {

namespace {

constexpr char16_t firstControlPicture = 0x2400;
constexpr char16_t deletePicture = 0x2421;

bool isLineEnd(std::string_view text, std::size_t place) {
    return text.substr(place, crLf.size()) == crLf;
}

QChar drawn(QChar character) {
    const char16_t code = character.unicode();
    if (code < u' ') {
        return QChar(static_cast<char16_t>(firstControlPicture + code));
    }
    return code == u'\x7F' ? QChar(deletePicture) : character;
}

} // namespace

QString reportLines(std::string_view text) {
    const QString characters = toUnicode(text);
    QString result;
    result.reserve(characters.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (isLineEnd(text, i)) {
            result.append(QLatin1Char('\n'));
            i += crLf.size() - 1;
        } else {
            result.append(drawn(characters[static_cast<qsizetype>(i)]));
        }
    }
    return result;
}

QString reportTitle(const std::string& fileName) {
    const QString name = QFileInfo(fromFileNameBytes(fileName)).fileName();
    return name.isEmpty() ? QString("EDID report") : "EDID report of " + name;
}

int placeInText(std::string_view text, int drawn) {
    std::size_t place = 0;
    for (int i = 0; i < drawn && place < text.size(); ++i) {
        place += isLineEnd(text, place) ? crLf.size() : 1;
    }
    return static_cast<int>(place);
}

} // namespace wb::desktop
