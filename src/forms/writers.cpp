#include "forms/writers.h"

#include <algorithm>
#include <cstdint>

#include "core/base/text.h"

namespace wb::forms {

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t rowLength = 16;

char hexLetter(unsigned digit, bool upper) {
    return (upper ? "0123456789ABCDEF" : "0123456789abcdef")[digit & 15U];
}

void appendPair(std::string& text, unsigned byte, bool upper) {
    text += hexLetter(byte >> 4U, upper);
    text += hexLetter(byte, upper);
}

/// Each byte as a lower-case pair behind `prefix`, and `between` them.
std::string pairs(Bytes bytes, std::string_view prefix, std::string_view between) {
    std::string text;
    for (const unsigned byte : bytes) {
        text += text.empty() ? "" : between;
        text += prefix;
        appendPair(text, byte, false);
    }
    return text;
}

/// The rows of an image one after the other: `write(row, offset, whether it is the last)`.
template <class Write>
std::string inRows(Bytes bytes, std::size_t length, const Write& write) {
    std::string text;
    for (std::size_t offset = 0; offset < bytes.size(); offset += length) {
        const std::size_t count = std::min(length, bytes.size() - offset);
        text += write(bytes.subspan(offset, count), offset, offset + count == bytes.size());
    }
    return text;
}

std::string binary(const Image& image) {
    return image.content();
}

std::string hexText(const Image& image) {
    std::string text;
    text.reserve(image.bytes().size() * 3);
    for (const unsigned byte : image.bytes()) {
        appendPair(text, byte, true);
        text += ' ';
    }
    return text;
}

std::string cArray(const Image& image) {
    return "static const unsigned char edid[" + std::to_string(image.bytes().size()) + "] = {\n" +
           inRows(image.bytes(), rowLength,
                  [](Bytes row, std::size_t, bool) { return "    " + pairs(row, "0x", ", ") + ",\n"; }) +
           "};\n";
}

std::string base64(const Image& image) {
    constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    constexpr std::size_t bytesOfRow = 57; // 76 characters, as mails want (RFC 2045, section 6.8)
    return inRows(image.bytes(), bytesOfRow, [&](Bytes row, std::size_t, bool) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); i += 3) {
            const auto byteAt = [&](std::size_t place) -> unsigned { return place < row.size() ? row[place] : 0U; };
            const unsigned group = byteAt(i) << 16U | byteAt(i + 1) << 8U | byteAt(i + 2);
            for (std::size_t k = 0; k < 4; ++k) {
                line += i + k <= row.size() ? digits[group >> (18 - 6 * k) & 63U] : '=';
            }
        }
        return line + '\n';
    });
}

/// The name by which a system knows the kind of monitor: the maker's letters and the product code (VESA E-EDID
/// Standard, Release A, section 3.4). A letter out of range is "_".
std::string monitorId(const Image& image) {
    const unsigned maker = image.byte(8) * 256U + image.byte(9);
    std::string id;
    for (const unsigned shift : {10U, 5U, 0U}) {
        const unsigned letter = maker >> shift & 31U;
        id += letter >= 1 && letter <= 26 ? static_cast<char>('A' + letter - 1) : '_';
    }
    appendPair(id, image.byte(11), true);
    appendPair(id, image.byte(10), true);
    return id;
}

/// The rows of a block, each but the last continued by a backslash: the lists of registry exports and INF files.
std::string continuedRows(Bytes block, std::string_view prefix) {
    return inRows(block, rowLength, [&](Bytes row, std::size_t offset, bool last) {
        return (offset == 0 ? "" : "  ") + pairs(row, prefix, ",") + (last ? "\r\n" : ",\\\r\n");
    });
}

std::string registryExport(const Image& image) {
    std::string text =
        "Windows Registry Editor Version 5.00\r\n\r\n"
        "; The instance is that of the monitor in Enum\\DISPLAY\\" +
        monitorId(image) +
        " on the machine.\r\n"
        "[HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Enum\\DISPLAY\\" +
        monitorId(image) + "\\INSTANCE\\Device Parameters\\EDID_OVERRIDE]\r\n";
    for (std::size_t block = 0; block < image.blockCount(); ++block) {
        text += '"' + std::to_string(block) + "\"=hex:" + continuedRows(image.block(block), "");
    }
    return text;
}

std::string infLines(const Image& image) {
    std::string text = "[" + monitorId(image) + ".AddReg]\r\n";
    for (std::size_t block = 0; block < image.blockCount(); ++block) {
        text += "HKR,EDID_OVERRIDE,\"" + std::to_string(block) + "\",0x01," + continuedRows(image.block(block), "0x");
    }
    return text;
}

std::string dump(const Image& image) {
    return inRows(image.bytes(), rowLength, [](Bytes row, std::size_t offset, bool) {
        std::string line;
        for (unsigned shift = 32; shift > 0; shift -= 4) {
            line += hexLetter(static_cast<unsigned>(offset >> (shift - 4)), false);
        }
        line += ':';
        std::string column;
        for (std::size_t i = 0; i < row.size(); ++i) {
            line += i % 2 == 0 ? " " : "";
            appendPair(line, row[i], false);
            column += row[i] >= ' ' && row[i] <= '~' ? static_cast<char>(row[i]) : '.';
        }
        return line + "  " + column + '\n';
    });
}

} // namespace

const std::vector<WrittenForm>& writtenForms() {
    static const std::vector<WrittenForm> forms = {{"bin", "binary", &binary},
                                                   {"hex", "hexadecimal export", &hexText},
                                                   {"c", "C array", &cArray},
                                                   {"base64", "base64", &base64},
                                                   {"reg", "registry export", &registryExport},
                                                   {"inf", "lines of a driver's INF file", &infLines},
                                                   {"xxd", "dump with offsets and text", &dump}};
    return forms;
}

const WrittenForm* writtenForm(std::string_view name) {
    const auto& forms = writtenForms();
    const auto found =
        std::find_if(forms.begin(), forms.end(), [&](const WrittenForm& form) { return form.name == name; });
    return found == forms.end() ? nullptr : &*found;
}

} // namespace wb::forms
