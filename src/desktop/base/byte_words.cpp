#include "desktop/base/byte_words.h"

#include <QStringList>
#include <algorithm>
#include <vector>

#include "core/base/digits.h"
#include "desktop/base/text_codec.h"

namespace wb::desktop {

namespace {

using FieldList = std::vector<const fields::Field*>;

/// As many as are told one by one: nobody wants to hear the flags of a whole byte on the way over the grid.
constexpr std::size_t toldFields = 2;

/// The fields that have bits in a byte of the image, from the highest bit down.
FieldList fieldsIn(const fields::Reading& reading, std::size_t byte) {
    constexpr int highestBit = 7;
    FieldList found;
    for (int bit = highestBit; bit >= 0; --bit) {
        const fields::Field* field = fields::fieldAt(reading, byte, bit);
        if (field != nullptr && std::find(found.begin(), found.end(), field) == found.end()) {
            found.push_back(field);
        }
    }
    return found;
}

/// A long run of bytes without a meaning is heard cell by cell anyway.
bool isShort(const fields::Field& field) {
    constexpr std::size_t longest = 60;
    return field.text.size() <= longest;
}

QString both(const fields::Field& field) {
    return isShort(field) ? fromUtf8(field.label) + ": " + QString::fromStdString(field.text) : fromUtf8(field.label);
}

QString numberOf(const std::string& cell) {
    constexpr int binary = 2;
    constexpr int bits = 8;
    const int number = hexPair(cell);
    if (number < 0) {
        return '"' + toUnicode(cell) + "\", which is no byte";
    }
    QString bitText = QString("%1").arg(number, bits, binary, QChar('0'));
    bitText.insert(bits / 2, ' ');
    return QString("%1h, %2, ").arg(QString::fromStdString(cell).toUpper()).arg(number) + bitText;
}

} // namespace

QString bytePlace(std::size_t byte) {
    constexpr int hexadecimal = 16;
    const std::size_t block = byte / Image::blockSize;
    const std::size_t cell = byte % Image::blockSize;
    const QString place =
        QString("Byte %1 (%2h)").arg(cell).arg(QString("%1").arg(cell, 2, hexadecimal, QChar('0')).toUpper());
    return block == 0 ? place : place + QString(" of block %1").arg(block);
}

QString outOfReach(std::size_t byte) {
    const std::size_t block = byte / Image::blockSize;
    return block < Image::editedBlocks ? bytePlace(byte) + " is out of reach now."
                                       : QString("Block %1 has no screen: its bytes can only be read.").arg(block);
}

ByteWords byteWords(const fields::Reading& reading, std::size_t byte, const std::string& cell) {
    const FieldList found = fieldsIn(reading, byte);
    QStringList labels;
    QStringList values;
    QStringList fields;
    for (std::size_t i = 0; i < found.size() && i < toldFields; ++i) {
        labels += fromUtf8(found[i]->label);
        fields += both(*found[i]);
        if (isShort(*found[i])) {
            values += QString::fromStdString(found[i]->text);
        }
    }
    const QString more = found.size() > toldFields ? QString(" and %1 more").arg(found.size() - toldFields) : QString();
    return {.place = bytePlace(byte),
            .number = numberOf(cell),
            .labels = labels.join(", ") + more,
            .values = values.join(", "),
            .fields = fields.join("; ") + more};
}

QString ByteWords::description() const {
    return values.isEmpty() ? number : values + "; " + number;
}

QString ByteWords::line() const {
    return place + ": " + number + (fields.isEmpty() ? QString() : " \u2014 " + fields);
}

} // namespace wb::desktop
