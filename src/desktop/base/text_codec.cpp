#include "desktop/base/text_codec.h"

#include <QFile>
#include <QStringDecoder>

#include "core/base/code_page.h"

namespace wb::desktop {

QString toUnicode(std::string_view text) {
    QString result;
    result.reserve(static_cast<qsizetype>(text.size()));
    for (const char character : text) {
        result.append(QChar(codePageToUnicode(character)));
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
    return unicodeToCodePage(character.unicode());
}

QString fromUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
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
