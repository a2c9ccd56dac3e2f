#include "forms/recogniser.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <functional>

#include "core/base/image.h"
#include "core/base/image_layout.h"
#include "core/base/text.h"
#include "files/file_content.h"
#include "forms/writers.h"
#include "support/temporary_folder.h"

namespace wb::forms {
namespace {

std::string sample(const std::string& name) {
    return test::TemporaryFolder::read(WORKBENCH_SOURCE_DIR "/samples/" + name);
}

/// The bytes in rows of `perRow`: `row(offset, bytes)` gives the text of one.
std::string inRows(const std::string& bytes, std::size_t perRow,
                   const std::function<std::string(std::size_t, const std::string&)>& row) {
    std::string text;
    for (std::size_t place = 0; place < bytes.size(); place += perRow) {
        text += row(place, bytes.substr(place, perRow));
    }
    return text;
}

template <class Number>
std::string formatted(const char* format, Number value) {
    std::array<char, 32> buffer{};
    std::snprintf(buffer.data(), buffer.size(), format, value);
    return buffer.data();
}

/// Each byte by the format, and what stands between them.
std::string each(const std::string& bytes, const char* format, const std::string& between = {}) {
    std::string text;
    for (const char c : bytes) {
        text += (text.empty() ? "" : between) + formatted(format, static_cast<unsigned char>(c));
    }
    return text;
}

/// Words of so many bytes, the least significant first, as machines of today print them.
std::string words(const std::string& bytes, const char* format, std::size_t size = 2) {
    std::string text;
    for (std::size_t i = 0; i + size <= bytes.size(); i += size) {
        unsigned long long value = 0;
        for (std::size_t k = size; k > 0; --k) {
            value = 256 * value + static_cast<unsigned char>(bytes[i + k - 1]);
        }
        text += formatted(format, value);
    }
    return text;
}

/// The text column of a dump.
std::string shown(const std::string& bytes) {
    std::string text;
    for (const char c : bytes) {
        text += c >= ' ' && c <= '~' ? c : '.';
    }
    return text;
}

struct Form {
    std::string name; ///< of the test
    std::string form; ///< that is recognised
    std::string (*write)(const std::string& bytes);
    std::string output{}; ///< that is named
};

std::string plainRows(const std::string& bytes, const std::string& before, const std::string& between,
                      const std::string& after, const char* format = "%02x", std::size_t perRow = 16) {
    return inRows(bytes, perRow, [&](std::size_t, const std::string& row) {
        return before + each(row, format, between) + after + '\n';
    });
}

std::string hexWith(const std::string& bytes, const char* offset, const std::string& behind, bool column) {
    return inRows(bytes, 16, [&](std::size_t place, const std::string& row) {
        return formatted(offset, static_cast<unsigned>(place)) + behind + each(row, "%02x", " ") +
               (column ? "  |" + shown(row) + "|" : "") + '\n';
    });
}

/// The columns of "od -c", four characters a byte.
std::string characters(const std::string& bytes) {
    constexpr std::string_view escapes = "0??????abtnvfr"; // of the codes from 0 on
    std::string text;
    for (const char c : bytes) {
        const auto code = static_cast<unsigned char>(c);
        const bool escaped = code < escapes.size() && escapes[code] != '?';
        const bool plain = c >= ' ' && c <= '~';
        text += escaped ? std::string("  \\") + escapes[code]
                : plain ? std::string("   ") + c
                        : formatted(" %03o", code);
    }
    return text;
}

std::string utf16(const std::string& text) {
    std::string wide;
    for (const char c : text) {
        wide += {c, '\0'};
    }
    return wide;
}

std::string base64(const std::string& bytes, std::size_t perRow) {
    constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        unsigned group = 0;
        for (std::size_t k = 0; k < 3; ++k) {
            group = group * 256 + (i + k < bytes.size() ? static_cast<unsigned char>(bytes[i + k]) : 0U);
        }
        for (std::size_t k = 0; k < 4; ++k) {
            text += i + k <= bytes.size() ? digits[group >> 18U] : '=';
            group = group << 6U & 0xFFFFFFU;
        }
    }
    std::string rows;
    for (std::size_t i = 0; i < text.size(); i += perRow) {
        rows += text.substr(i, perRow) + '\n';
    }
    return rows;
}

const std::vector<Form>& forms() {
    using S = std::string;
    static const std::vector<Form> all = {
        {"Binary", "bin", [](const S& b) { return b; }},
        {"DataFile", "dat",
         [](const S& b) { return "128 BYTES OF EDID CODE:\r\n\r\n\r\n" + plainRows(b, "0 | ", " ", "\r", "%02X"); }},
        {"PairsInOneLine", "hex", [](const S& b) { return each(b, "%02X", " "); }},
        {"PairsInRows", "hex", [](const S& b) { return plainRows(b, "", " ", ""); }},
        {"DigitsInOneLine", "hex", [](const S& b) { return each(b, "%02x"); }},
        {"DigitsInRows", "hex", [](const S& b) { return plainRows(b, "", "", ""); }},
        {"OneByteALine", "hex", [](const S& b) { return plainRows(b, "", "", "", "%02x", 1); }},
        {"Prefixes", "hex", [](const S& b) { return plainRows(b, "", ", ", ",", "0x%02x"); }},
        {"Colons", "hex", [](const S& b) { return plainRows(b, "", ":", ""); }},
        {"Semicolons", "hex", [](const S& b) { return plainRows(b, "", ";", ";"); }},
        {"EscapesWithoutQuotes", "hex", [](const S& b) { return plainRows(b, "", "", "", "\\x%02x"); }},
        {"DoubledEscapes", "hex", [](const S& b) { return "printf " + each(b, "\\\\x%02x") + '\n'; }},
        {"Quotes", "hex", [](const S& b) { return plainRows(b, "\"", " ", "\""); }},
        {"CArray", "hex",
         [](const S& b) {
             return "/* 256 bytes */\nstatic const unsigned char edid[256] = {\n" +
                    plainRows(b, "\t", ", ", ", // row", "0x%02x") + "};\n";
         }},
        {"CArrayInOneLine", "hex",
         [](const S& b) { return "unsigned char edid[256] = {" + each(b, "0x%X", ",") + "};"; }},
        {"ShellComments", "hex", [](const S& b) { return "# made by hand\n" + plainRows(b, "", " ", " # ff"); }},
        {"CString", "string",
         [](const S& b) { return "const char edid[] =\n" + plainRows(b, "  \"", "", "\"", "\\x%02x"); }},
        {"OctalString", "string", [](const S& b) { return "'" + each(b, "\\%03o") + "'"; }},
        {"PythonBytes", "string", [](const S& b) { return "edid = b'" + each(b, "\\x%02x") + "'\n"; }},
        {"JsonList", "decimal", [](const S& b) { return "{\"size\": 256, \"edid\": [" + each(b, "%u", ", ") + "]}"; }},
        {"PythonDecimalList", "decimal", [](const S& b) { return "edid = bytes([" + each(b, "%u", ", ") + "])\n"; }},
        {"PythonHexList", "hex", [](const S& b) { return "edid = [" + each(b, "0x%02x", ", ") + "]"; }},
        {"Inf", "hex",
         [](const S& b) {
             return "[EDID_Override]\nHKR,EDID_OVERRIDE,\"0\",0x01," + each(b.substr(0, 128), "0x%02X", ",") + "\n";
         }},
        {"Reg", "hex",
         [](const S& b) {
             return "Windows Registry Editor Version 5.00\r\n\r\n[HKEY_LOCAL_MACHINE\\SYSTEM\\Device Parameters]\r\n"
                    "\"EDID\"=hex:" +
                    each(b.substr(0, 20), "%02x", ",") + ",\\\r\n" + [&] {
                        S rows;
                        for (std::size_t i = 20; i < b.size(); i += 25) {
                            rows +=
                                "  " + each(b.substr(i, 25), "%02x", ",") + (i + 25 < b.size() ? ",\\\r\n" : "\r\n");
                        }
                        return rows;
                    }();
         }},
        {"RegUtf16", "hex",
         [](const S& b) { return "\xFF\xFE" + utf16("\"EDID\"=hex:" + each(b, "%02x", ",") + "\r\n"); }},
        {"Utf16WithoutMark", "hex", [](const S& b) { return utf16(plainRows(b, "", " ", "")); }},
        {"Utf8WithMark", "hex", [](const S& b) { return "\xEF\xBB\xBF" + plainRows(b, "", " ", ""); }},
        {"HexdumpCanonical", "dump",
         [](const S& b) {
             return hexWith(b, "%08x", "  ", true) + formatted("%08x", static_cast<unsigned>(b.size())) + '\n';
         }},
        {"Xxd", "dump",
         [](const S& b) {
             return inRows(b, 16, [](std::size_t place, const S& row) {
                 S pairs;
                 for (std::size_t i = 0; i < row.size(); i += 2) {
                     pairs += ' ' + each(row.substr(i, 2), "%02x");
                 }
                 return formatted("%08x:", static_cast<unsigned>(place)) + pairs + "  " + shown(row) + '\n';
             });
         }},
        {"HexdumpWords", "dump",
         [](const S& b) {
             return inRows(b, 16, [](std::size_t place, const S& row) {
                 return formatted("%07x", static_cast<unsigned>(place)) + words(row, " %04x") + '\n';
             });
         }},
        {"OdWords", "dump",
         [](const S& b) {
             return inRows(b, 16,
                           [](std::size_t place, const S& row) {
                               return formatted("%07o", static_cast<unsigned>(place)) + words(row, " %06o") + '\n';
                           }) +
                    formatted("%07o", static_cast<unsigned>(b.size())) + '\n';
         }},
        {"OdBytes", "dump",
         [](const S& b) {
             return inRows(b, 16, [](std::size_t place, const S& row) {
                 return formatted("%07o ", static_cast<unsigned>(place)) + each(row, "%02x", " ") + '\n';
             });
         }},
        {"OdOctalBytes", "dump",
         [](const S& b) {
             return inRows(b, 16, [](std::size_t place, const S& row) {
                 return formatted("%07o ", static_cast<unsigned>(place)) + each(row, "%03o", " ") + '\n';
             });
         }},
        {"OdHexOffsets", "dump", [](const S& b) { return hexWith(b, "%06x", " ", false); }},
        {"OdDecimalOffsets", "dump",
         [](const S& b) {
             return inRows(b, 16, [](std::size_t place, const S& row) {
                 return formatted("%07u ", static_cast<unsigned>(place)) + each(row, "%02x", " ") + "  >" + shown(row) +
                        "<\n";
             });
         }},
        {"OdCharacters", "dump",
         [](const S& b) {
             return inRows(b, 16, [](std::size_t place, const S& row) {
                 const S cells = characters(row);
                 return formatted("%07o", static_cast<unsigned>(place)) + cells + '\n';
             });
         }},
        {"I2cdump", "dump",
         [](const S& b) {
             return "     0  1  2  3  4  5  6  7  8  9  a  b  c  d  e  f    0123456789abcdef\n" +
                    inRows(b, 16, [](std::size_t place, const S& row) {
                        return formatted("%02x: ", static_cast<unsigned>(place)) + each(row, "%02x", " ") + "    " +
                               shown(row) + '\n';
                    });
         }},
        {"Base64", "base64", [](const S& b) { return base64(b, 76); }},
        {"Base64InJson", "base64", [](const S& b) { return "{\"data\": \"" + base64(b, 1000).substr(0, 344) + "\"}"; }},
        {"Xrandr", "hex",
         [](const S& b) {
             return "Screen 0: minimum 8 x 8, current 1920 x 1080\n"
                    "DP-1 disconnected (normal left inverted right)\n"
                    "HDMI-1 connected primary 1920x1080+0+0 (0x45) normal 509mm x 286mm\n\tEDID: \n" +
                    plainRows(b, "\t\t", "", "") + "\tBroadcast RGB: Automatic \n  1920x1080 (0x45) 148.500MHz\n";
         },
         "HDMI-1"},
        {"XrandrProperties", "hex",
         [](const S& b) {
             return "eDP-1 connected (normal left inverted right x axis y axis)\n\tEDID: \n" +
                    plainRows(b, "\t\t", "", "") +
                    "\tscaling mode: Full aspect \n\t\tsupported: Full, Center, Full aspect\n";
         },
         "eDP-1"},
        {"Decoder", "hex",
         [](const S& b) {
             return "edid-decode (hex):\n\n" + plainRows(b.substr(0, 128), "", " ", "") + '\n' +
                    plainRows(b.substr(128), "", " ", "") + "\n----------------\n\nBlock 0, Base EDID:\n";
         }},
        {"KernelLog", "hex",
         [](const S& b) {
             return "[    2.101] [drm] [CONNECTOR:95:HDMI-A-1] EDID:\n" + plainRows(b, "[    2.123456] \t", " ", "");
         },
         "HDMI-A-1"},
        {"KernelHexDump", "dump",
         [](const S& b) {
             return inRows(b, 16, [](std::size_t place, const S& row) {
                 return "[    3.141592] EDID: " + formatted("%08x: ", static_cast<unsigned>(place)) +
                        each(row, "%02x", " ") + "  " + shown(row) + '\n';
             });
         }},
        {"ServerLog", "hex",
         [](const S& b) {
             return "[    27.1] (II) modeset(0): EDID for output DP-2\n[    27.1] (II) modeset(0): EDID (in hex):\n" +
                    plainRows(b, "[    27.103] (II) modeset(0): \t", "", "") +
                    "[    27.103] (II) modeset(0): Printing probed modes\n";
         },
         "DP-2"},
        {"Ioreg", "hex", [](const S& b) { return "    |   \"IODisplayEDID\" = <" + each(b, "%02x") + ">\n"; }},
        {"Ddcutil", "dump",
         [](const S& b) {
             return "   DRM connector:           card0-DP-3\n   EDID hex dump:\n" +
                    ("              +0          +4          +8          +c            0   4   8   c   \n" +
                     inRows(b, 16, [](std::size_t place, const S& row) {
                         return "      " + formatted("+%04x   ", static_cast<unsigned>(place)) +
                                each(row, "%02x", " ") + "   " + shown(row) + '\n';
                     }));
         },
         "DP-3"},
        {"Modetest", "hex",
         [](const S& b) {
             return "94\t93\tconnected\tHDMI-A-2\t600x340\t3\t93\n\t1 EDID:\n\t\tflags: immutable blob\n\t\tblobs:\n\n"
                    "\t\tvalue:\n" +
                    plainRows(b, "\t\t\t", "", "") + "\t2 DPMS:\n";
         },
         "HDMI-A-2"},
        {"QuotedMail", "hex", [](const S& b) { return "On Monday you wrote:\n" + plainRows(b, "> ", " ", ""); }},
    };
    return all;
}

class EveryForm : public testing::TestWithParam<Form> {};

TEST_P(EveryForm, GivesTheBytesOfSeveralImages) {
    for (const char* name : {"zarqo-z40.bin", "halvorine-hv19.bin", "tessaramond-tp8.bin"}) {
        SCOPED_TRACE(name);
        const std::string bytes = sample(name);
        const bool firstBlockOnly = GetParam().name == "Inf";
        const std::string text = GetParam().write(bytes);
        const Recognition result = recognise(text);
        ASSERT_EQ(result.images.size(), 1U) << result.refusal << '\n' << text.substr(0, 400);
        EXPECT_EQ(result.images[0].content(), firstBlockOnly ? bytes.substr(0, 128) : bytes);
        EXPECT_EQ(result.images[0].origin().form, GetParam().form);
        EXPECT_EQ(result.images[0].origin().output, GetParam().output);
        EXPECT_EQ(result.images[0].leftOver(), 0U);
    }
}

INSTANTIATE_TEST_SUITE_P(Recogniser, EveryForm, testing::ValuesIn(forms()),
                         [](const auto& row) { return row.param.name; });

TEST(Recogniser, ReadsEveryUnitOfDumpsBehindOffsetsOfEveryBase) {
    using Units = std::string (*)(const std::string& row);
    const std::vector<std::pair<const char*, Units>> units = {
        {"x1", [](const std::string& row) { return words(row, " %02x", 1); }},
        {"x2", [](const std::string& row) { return words(row, " %04x", 2); }},
        {"x4", [](const std::string& row) { return words(row, " %08x", 4); }},
        {"x8", [](const std::string& row) { return words(row, " %016llx", 8); }},
        {"o1", [](const std::string& row) { return words(row, " %03llo", 1); }},
        {"o2", [](const std::string& row) { return words(row, " %06llo", 2); }},
        {"u1", [](const std::string& row) { return words(row, " %3llu", 1); }},
        {"u1 with zeros", [](const std::string& row) { return words(row, "   %03llu", 1); }},
        {"u2", [](const std::string& row) { return words(row, " %5llu", 2); }},
        {"u2 with zeros", [](const std::string& row) { return words(row, "   %05llu", 2); }},
        {"c", &characters},
    };
    const std::string bytes = sample("zarqo-z40.bin");
    for (const auto& [name, write] : units) {
        for (const char* offset : {"%06x", "%07o", "%07u", "0x%04x", "0X%04X", "+%04x"}) {
            SCOPED_TRACE(std::string(name) + " behind " + offset);
            const auto row = [&, &unit = write](std::size_t place, const std::string& part) {
                return formatted(offset, static_cast<unsigned>(place)) + unit(part) + '\n';
            };
            const std::string end = formatted(offset, static_cast<unsigned>(bytes.size())) + '\n';
            const Recognition result = recognise(inRows(bytes, 16, row) + end);
            ASSERT_EQ(result.images.size(), 1U) << result.refusal;
            EXPECT_EQ(result.images[0].content(), bytes);
        }
    }
}

TEST(Recogniser, ReadsEveryCharacterOfDumps) {
    for (const int first : {0, 128}) {
        std::string bytes = sample("zarqo-z40.bin").substr(0, 128); // announces one extension
        for (int code = first; code < first + 128; ++code) {
            bytes += static_cast<char>(code);
        }
        const Recognition result = recognise(inRows(bytes, 16, [](std::size_t place, const std::string& row) {
            return formatted("%07o", static_cast<unsigned>(place)) + characters(row) + '\n';
        }));
        ASSERT_EQ(result.images.size(), 1U) << result.refusal;
        EXPECT_EQ(result.images[0].content(), bytes);
    }
}

TEST(Recogniser, ReadsListsOfAnyRowsBehindWords) {
    const std::string bytes = sample("zarqo-z40.bin");
    for (const char* format : {"%02x", "0x%02x"}) {
        for (const std::size_t perRow : {2U, 3U, 4U, 8U, 16U, 32U, 64U, 128U}) {
            SCOPED_TRACE(std::string(format) + ", " + std::to_string(perRow) + " in a row");
            const Recognition result = recognise(plainRows(bytes, "row: ", ", ", ",", format, perRow));
            ASSERT_EQ(result.images.size(), 1U) << result.refusal;
            EXPECT_EQ(result.images[0].content(), bytes);
        }
    }
}

TEST(Recogniser, GivesAllImagesOfATextWithTheirOutputs) {
    const std::string first = sample("zarqo-z40.bin");
    const std::string second = sample("halvorine-hv19.bin");
    const Recognition result =
        recognise("DP-1 connected 1920x1080+0+0\n\tEDID:\n" + plainRows(first, "\t\t", "", "") +
                  "HDMI-2 disconnected\nHDMI-3 connected\n\tEDID:\n" + plainRows(second, "\t\t", "", ""));
    ASSERT_EQ(result.images.size(), 2U) << result.refusal;
    EXPECT_EQ(result.images[0].content(), first);
    EXPECT_EQ(result.images[0].origin().output, "DP-1");
    EXPECT_EQ(result.images[1].content(), second);
    EXPECT_EQ(result.images[1].origin().output, "HDMI-3");
}

TEST(Recogniser, KeepsTheOutputUntilAnotherOneIsNamed) {
    const std::string image = base64(sample("halvorine-hv19.bin"), 1000);
    const Recognition result =
        recognise(image + "\nDP-1\n" + image + "\nmore\n" + image + "\n\nVGA-2 " + image + "\n" + image + " HDMI-3");
    std::vector<std::string> outputs;
    for (const Image& each : result.images) {
        outputs.push_back(each.origin().output);
    }
    EXPECT_EQ(outputs, (std::vector<std::string>{"", "DP-1", "DP-1", "VGA-2", "VGA-2"}));
}

/// Each line with what stands around it in a source or another text.
std::string linesWith(const std::string& before, const std::string& text, const std::string& after) {
    std::string result;
    for (std::size_t place = 0; place < text.size();) {
        const std::size_t end = text.find('\n', place);
        result += before + text.substr(place, end - place) + after;
        place = end + 1;
    }
    return result;
}

TEST(Recogniser, CountsNoEscapedLineEndAsADigitOfBase64) {
    const std::string bytes = sample("zarqo-z40.bin");
    for (const char* end : {"\\n", "\\r\\n", "\\r", "\\t", "\\n\\t", "\\\\n", "\\n\"\n\"", "\\n\" \\\n  \"",
                            "\" +\n    \"", "\"+\"", "\\n\"\r\n+ \""}) {
        for (const std::size_t perRow : {60U, 64U, 75U, 76U}) {
            SCOPED_TRACE(std::to_string(perRow) + " and " + end);
            const Recognition result =
                recognise("{\"edid\": \"" + linesWith("", base64(bytes, perRow), end) + "\", \"size\": 256}");
            ASSERT_EQ(result.images.size(), 1U) << result.refusal;
            EXPECT_EQ(result.images[0].content(), bytes);
            EXPECT_EQ(result.images[0].leftOver(), 0U);
        }
    }
}

TEST(Recogniser, EndsBase64AtAnEscapeOfAnotherCharacter) {
    const std::string bytes = sample("halvorine-hv19.bin");
    const std::string digits = base64(bytes, 1000).substr(0, 171); // without the padding
    for (const char* end : {"\\u003d", "\\u003D\"", "\\x3d", "\\75"}) {
        SCOPED_TRACE(end);
        const Recognition result = recognise("\"" + digits + end);
        ASSERT_EQ(result.images.size(), 1U) << result.refusal;
        EXPECT_EQ(result.images[0].content(), bytes);
        EXPECT_EQ(result.images[0].leftOver(), 0U);
    }
    std::string escaped = digits.substr(0, 10);
    for (const char c : digits.substr(10)) {
        escaped += c == '/' ? "\\/" : std::string(1, c);
    }
    const Recognition result = recognise(escaped);
    ASSERT_EQ(result.images.size(), 1U) << result.refusal;
    EXPECT_EQ(result.images[0].content(), bytes);
}

/// An image of so many blocks, which its byte 126 announces, whose bytes differ from place to place.
std::string imageOf(std::size_t blocks) {
    std::string bytes(imageHeader);
    while (bytes.size() < blocks * 128) {
        bytes += static_cast<char>(bytes.size() * 37 + bytes.size() / 128 + blocks);
    }
    bytes[126] = static_cast<char>(blocks - 1);
    return bytes;
}

std::vector<std::string> contentsIn(const std::string& text) {
    std::vector<std::string> contents;
    for (const Image& image : recognise(text).images) {
        EXPECT_EQ(image.leftOver(), 0U);
        contents.push_back(image.content());
    }
    return contents;
}

struct Row {
    std::string name; ///< of the form
    std::string (*write)(const std::string& bytes);
};

/// Forms whose rows show no end of an image, each a row of its own with its line end.
std::vector<Row> rowsWithoutEnd() {
    using S = std::string;
    return {{"base64", [](const S& b) { return base64(b, 4000); }},
            {"base64 without padding",
             [](const S& b) {
                 const S line = base64(b, 4000);
                 return line.substr(0, line.find_first_of("=\n")) + '\n';
             }},
            {"base64 in literals", [](const S& b) { return linesWith("\"", base64(b, 4000), "\"\n"); }},
            {"base64 in literals with line ends",
             [](const S& b) { return linesWith("  \"", base64(b, 4000), "\\n\" +\n"); }},
            {"decimal", [](const S& b) { return each(b, "%u", " ") + '\n'; }},
            {"decimal with commas", [](const S& b) { return each(b, "%u", ", ") + ",\r\n"; }},
            {"string", [](const S& b) { return '"' + each(b, "\\x%02x") + "\"\n"; }},
            {"byte string", [](const S& b) { return "b'" + each(b, "\\x%02x") + "' \\\n"; }},
            {"hex", [](const S& b) { return each(b, "%02x") + '\n'; }}};
}

TEST(Recogniser, TellsImagesApartThatFollowEachOther) {
    const std::vector<std::string> images = {imageOf(3), imageOf(3), imageOf(1), imageOf(2), imageOf(1), imageOf(1)};
    for (const Row& row : rowsWithoutEnd()) {
        SCOPED_TRACE(row.name);
        std::string text;
        for (const std::string& image : images) {
            text += row.write(image);
        }
        EXPECT_EQ(contentsIn(text), images);
    }
}

TEST(Recogniser, JoinsTheBlocksOfAnImageThatBeginWithTheHeader) {
    std::string image = imageOf(3);
    image.replace(128, imageHeader.size(), imageHeader);
    image.replace(256, imageHeader.size(), imageHeader);
    const std::string more = imageOf(2).substr(128); // a block that no byte announces
    for (const Row& row : rowsWithoutEnd()) {
        if (row.name.starts_with("base64")) {
            continue; // no block ends where a row of it may
        }
        SCOPED_TRACE(row.name);
        const auto blocks = [&row](const std::string& bytes) {
            std::string text;
            for (std::size_t place = 0; place < bytes.size(); place += 128) {
                text += row.write(bytes.substr(place, 128));
            }
            return text;
        };
        EXPECT_EQ(contentsIn(blocks(image)), std::vector{image});
        EXPECT_EQ(contentsIn(blocks(image + more)), std::vector{image + more});
        EXPECT_EQ(contentsIn(blocks(image + more + image)), (std::vector{image + more, image}));
    }
    EXPECT_EQ(contentsIn(base64(imageOf(3) + imageOf(3), 512)), (std::vector{imageOf(3), imageOf(3)}));
    const std::string announced = imageOf(6).replace(384, imageHeader.size(), imageHeader);
    EXPECT_EQ(contentsIn(base64(announced, 512)), std::vector{announced});
}

TEST(Recogniser, KeepsTogetherWhatNoLineOrLiteralParts) {
    const std::string bytes = imageOf(1) + imageOf(1);
    const std::vector<std::string> together = {bytes};
    EXPECT_EQ(contentsIn(bytes), together);
    EXPECT_EQ(contentsIn(each(bytes, "%02x", " ")), together);
    EXPECT_EQ(contentsIn(each(bytes, "%u", " ")), together);
    EXPECT_EQ(contentsIn('"' + each(bytes, "\\x%02x") + '"'), together);
    EXPECT_EQ(contentsIn(base64(bytes, 1000)), together);
    EXPECT_EQ(contentsIn(hexWith(bytes, "%08x", "  ", true)), together);
}

TEST(Recogniser, TellsTheBytesOfAnImageThatDoesNotEndAsLeftOver) {
    const std::string bytes = imageOf(1);
    for (const Row& row : rowsWithoutEnd()) {
        if (row.name != "decimal" && row.name != "string") {
            continue;
        }
        const Recognition result = recognise(row.write(bytes) + row.write(bytes.substr(0, 100)));
        ASSERT_EQ(result.images.size(), 1U) << row.name;
        EXPECT_EQ(result.images[0].content(), bytes) << row.name;
        EXPECT_EQ(result.images[0].leftOver(), 100U) << row.name;
    }
}

TEST(Recogniser, NamesTheOutputsOfImagesThatFollowEachOther) {
    const std::string image = base64(imageOf(3), 4000);
    const Recognition result = recognise("DP-1\n" + image + image + "VGA1\n" + image + "HDMI-2 connected\n" + image);
    std::vector<std::string> outputs;
    for (const Image& each : result.images) {
        EXPECT_EQ(each.content(), imageOf(3));
        outputs.push_back(each.origin().output);
    }
    EXPECT_EQ(outputs, (std::vector<std::string>{"DP-1", "DP-1", "VGA1", "HDMI-2"}));
}

TEST(Recogniser, TakesNoWordsBehindBase64AsItsDigits) {
    const std::vector<std::string> image = {imageOf(3)};
    for (const char* words : {"HDMI2 connected", "HDMI-2", "HDMI-2 connected", "VGA_2", "edid.bin", "Name: Desk",
                              "edid = 2", "edid=2", "edid2=\"\"", "Sum (of all)", "sum / all", "https://a"}) {
        SCOPED_TRACE(words);
        EXPECT_EQ(contentsIn(base64(image[0], 76) + words + '\n'), image);
        EXPECT_EQ(contentsIn(base64(image[0], 512) + "\n> " + words), image);
        EXPECT_EQ(contentsIn("\"" + linesWith("", base64(image[0], 76), "\\n") + words + "\""), image);
    }
}

TEST(Recogniser, TakesTheLastRowOfBase64WhateverEndsIt) {
    const std::vector<std::string> images = {imageOf(3), imageOf(4), imageOf(1)};
    for (const std::string& image : images) {
        std::string rows = base64(image, 76);
        rows.pop_back();
        for (const char* end : {"", "\n", " ", "  \r\n", "\"", "\";", "\",", "')", "</data>", "%", "|", "`", "\" }",
                                " \\\n", "\\n\" +", " +\n", "\n\nHDMI-2 connected\n", "\n-----END-----\n"}) {
            SCOPED_TRACE(end);
            EXPECT_EQ(contentsIn(rows + end), std::vector{image});
        }
    }
}

TEST(Recogniser, PassesOverCommentsAndHeadsBetweenTheRows) {
    const std::string bytes = sample("zarqo-z40.bin"); // announces its one extension
    const std::string first = plainRows(bytes.substr(0, 128), "\t", ", ", ",", "0x%02x");
    const std::string second = plainRows(bytes.substr(128), "\t", ", ", ",", "0x%02x");
    for (const char* words :
         {"\t/* block 1 */\n", "/* block 1,\n   00 11 22\n * made by hand\n */\n", "  // the extension\n",
          "# block 1\n", "; block 1\n", "HKR,EDID_OVERRIDE,\"1\",0x01,\\\n", "HKR, EDID_OVERRIDE, \"1\", 1, \\\n"}) {
        SCOPED_TRACE(words);
        Recognition result = recognise(words + first + words + second);
        ASSERT_EQ(result.images.size(), 1U) << result.refusal;
        EXPECT_EQ(result.images[0].content(), bytes);
        // A header behind the words begins another image, even where the first one lacks its extension.
        result = recognise(words + first + words + first);
        ASSERT_EQ(result.images.size(), 2U);
        EXPECT_EQ(result.images[1].content(), bytes.substr(0, 128));
        // Behind a whole image they end it.
        result = recognise(first + second + words + second);
        ASSERT_EQ(result.images.size(), 1U);
        EXPECT_EQ(result.images[0].content(), bytes);
    }
}

TEST(Recogniser, RefusesOffsetsThatDoNotCountTheBytes) {
    const std::string bytes = sample("zarqo-z40.bin");
    const std::string text = inRows(bytes, 16, [](std::size_t place, const std::string& row) {
        return formatted("%06x ", static_cast<unsigned>(place + place / 64)) + each(row, "%02x", " ") + '\n';
    });
    EXPECT_TRUE(recognise(text).images.empty());
}

TEST(Recogniser, FillsWhatADumpLeavesOut) {
    std::string bytes = sample("zarqo-z40.bin");
    std::fill(bytes.begin() + 208, bytes.end() - 16, '\0');
    const std::string whole = hexWith(bytes, "%08x", "  ", true);
    const std::size_t row = whole.find("000000d0");
    const std::size_t last = whole.find("000000f0");
    const Recognition result = recognise(whole.substr(0, whole.find('\n', row) + 1) + "*\n" + whole.substr(last));
    ASSERT_EQ(result.images.size(), 1U) << result.refusal;
    EXPECT_EQ(result.images[0].content(), bytes);
}

TEST(Recogniser, RefusesRowsLeftOutWithoutOffsets) {
    const std::string rows = plainRows(sample("halvorine-hv19.bin"), "", " ", "");
    const Recognition result = recognise(rows + " 00 00 00 00\n*\n");
    EXPECT_TRUE(result.images.empty());
    EXPECT_EQ(result.refusal, "line 10: '*' is no hexadecimal pair");
}

TEST(Recogniser, RefusesWhatHasNoHeader) {
    std::string bytes = sample("zarqo-z40.bin");
    bytes[1] = '\x7E';
    for (const std::string& content : {bytes, plainRows(bytes, "", " ", "")}) {
        EXPECT_TRUE(recognise(content).images.empty());
        const Recognition any = recognise(content, {.anyHeader = true, .form = {}, .inflate = {}});
        ASSERT_EQ(any.images.size(), 1U) << any.refusal;
        EXPECT_EQ(any.images[0].content(), bytes);
    }
}

TEST(Recogniser, TakesDigitsAloneWhereAnyHeaderWillDo) {
    std::string bytes = sample("zarqo-z40.bin");
    bytes[1] = '\x7E';
    const RecognitionOptions options = {.anyHeader = true, .form = {}, .inflate = {}};
    for (const char* format : {"%02x", "%02X", "0x%02x", "0X%02X"}) {
        for (const char* between : {" ", ",", ", ", "\t", "\n", "\r\n"}) {
            SCOPED_TRACE(std::string(format) + " and '" + between + "'");
            const Recognition result = recognise(each(bytes, format, between), options);
            ASSERT_EQ(result.images.size(), 1U) << result.refusal;
            EXPECT_EQ(result.images[0].content(), bytes);
        }
    }
    for (const std::string wrong : {"x", "00x", "00x0", "0y", "1x", "0", "."}) {
        EXPECT_TRUE(recognise(wrong + ' ' + each(bytes, "%02x", " "), options).images.empty()) << wrong;
    }
}

TEST(Recogniser, TakesBytesOfAnyHeaderUnlessAllAreText) {
    const RecognitionOptions options = {.anyHeader = true, .form = {}, .inflate = {}};
    const std::string text = "\t\n\v\f\r !~";
    for (const char c : text) {
        EXPECT_TRUE(recognise(std::string(128, c), options).images.empty()) << static_cast<int>(c);
    }
    for (const char c : {'\x08', '\x0E', '\x1F', '\x7F', '\x80', '\xFF'}) {
        const Recognition result = recognise(text + std::string(127 - text.size(), 'g') + c, options);
        EXPECT_EQ(result.images.size(), 1U) << static_cast<int>(c);
    }
}

TEST(Recogniser, ReadsAShortRowBehindWordsAtTheEndOfABlockAlone) {
    const std::string bytes = sample("zarqo-z40.bin");
    for (const std::string head : {"row: ", "12. ", "[    2.123456] "}) {
        for (const std::size_t perRow : {3U, 7U, 20U, 50U, 100U}) {
            SCOPED_TRACE(head + std::to_string(perRow));
            const std::string first = plainRows(bytes.substr(0, 128), head, " ", "", "%02x", perRow);
            const std::string second = plainRows(bytes.substr(128), head, " ", "", "%02x", perRow);
            const Recognition whole = recognise(first + second);
            ASSERT_EQ(whole.images.size(), 1U) << whole.refusal;
            EXPECT_EQ(whole.images[0].content(), bytes);
            const Recognition ended = recognise(first + head + "11 22\n" + second);
            ASSERT_EQ(ended.images.size(), 1U) << ended.refusal;
            EXPECT_EQ(ended.images[0].content(), bytes.substr(0, 128));
        }
    }
}

TEST(Recogniser, RefusesSumsOfFiles) {
    std::string sums;
    for (int i = 0; i < 4; ++i) {
        sums += "9f86d081884c7d659a2feaa0c55ad015a3bf4f1b2b0b822cd15d6c15b0f00a0" + std::to_string(i) + "  file\n";
    }
    EXPECT_EQ(recognise(sums).refusal, "line 1: 'file' is no hexadecimal pair");
}

TEST(Recogniser, SaysWhatItSawInstead) {
    const auto refusal = [](const std::string& content) { return recognise(content).refusal; };
    EXPECT_EQ(refusal(""), "is empty");
    EXPECT_EQ(refusal("00 ff ff\n\n  EDID: 12"), "line 3: 'EDID:' is no hexadecimal pair");
    EXPECT_EQ(refusal("HDMI-1 connected 1x1\n\tEDID: \n"),
              "line 1: 'HDMI-1' is no hexadecimal pair; looks like xrandr output without data");
    EXPECT_EQ(refusal("00 ff"), "fewer than the 256 hexadecimal digits of a block");
    EXPECT_EQ(refusal(std::string(256, '1')),
              "the hexadecimal bytes do not begin with the header 00 FF FF FF FF FF FF 00");
    EXPECT_EQ(refusal(std::string(5, '\0')), "5 bytes, and an image has 128 or more");
    EXPECT_EQ(refusal(std::string(128, '\x01')),
              "begins with 01 01 01 01 01 01 01 01, not with the header 00 FF FF FF FF FF FF 00");
    EXPECT_EQ(refusal('\x7F' + std::string(200, '\0') + " disconnected"),
              "begins with 7F 00 00 00 00 00 00 00, not with the header 00 FF FF FF FF FF FF 00");
    EXPECT_EQ(recognise(sample("zarqo-z40.bin"), {.anyHeader = false, .form = "hex", .inflate = {}}).refusal,
              "is binary, which is not the form that was asked for");
    EXPECT_EQ(refusal("\x1F\x8B\x08"), "is gzip data that cannot be uncompressed");
}

TEST(Recogniser, TellsWhyCompressedContentIsRefused) {
    const auto refusalOf = [](const Inflate& inflate) {
        return recognise("\x1F\x8B...", {.anyHeader = false, .form = {}, .inflate = inflate}).refusal;
    };
    EXPECT_EQ(refusalOf([](std::string_view) -> std::optional<std::string> {
                  files::failAbove();
                  return std::nullopt;
              }),
              "is gzip data that has more than 33554432 bytes, which is the most that is read");
    EXPECT_EQ(refusalOf([](std::string_view content) { return std::optional(std::string(content)); }),
              "is gzip data that is compressed twice");
}

TEST(Recogniser, ReadsWhatIsCompressedWithoutItsWrapping) {
    const std::string bytes = sample("zarqo-z40.bin");
    const auto unwrap = [&](std::string_view content) -> std::optional<std::string> {
        return content == "\x1F\x8B..." ? std::optional(bytes) : std::nullopt;
    };
    const Recognition result = recognise("\x1F\x8B...", {.anyHeader = false, .form = "gzip", .inflate = unwrap});
    ASSERT_EQ(result.images.size(), 1U) << result.refusal;
    EXPECT_EQ(result.images[0].content(), bytes);
}

TEST(Recogniser, TakesTheFormThatIsAskedForAlone) {
    const std::string text = plainRows(sample("zarqo-z40.bin"), "", " ", "");
    EXPECT_EQ(recognise(text, {.anyHeader = false, .form = "hex", .inflate = {}}).images.size(), 1U);
    for (const char* form : {"bin", "dat", "base64", "dump", "string", "decimal"}) {
        EXPECT_TRUE(recognise(text, {.anyHeader = false, .form = form, .inflate = {}}).images.empty()) << form;
    }
}

TEST(Recogniser, ReadsDataFilesAndSaysWhichCellIsNone) {
    const std::string head = "128 bytes of edid code:\n\n\n";
    const std::string bytes = sample("halvorine-hv19.bin");
    const std::string rows = plainRows(bytes, "00 | ", " ", "", "%02X");
    const Recognition result = recognise(head + rows);
    ASSERT_EQ(result.images.size(), 1U) << result.refusal;
    EXPECT_EQ(result.images[0].content(), bytes);
    EXPECT_EQ(result.images[0].origin().form, "dat");
    EXPECT_EQ(recognise(head + "| 00 FF ZZ\n" + rows).refusal, "cell 2 is no byte: \"ZZ\"");
    EXPECT_EQ(recognise(head + "| 00 FF\n").refusal, "has 2 bytes; an image has 128 or more");
}

/// At the beginning of a row such bytes look like another text.
TEST(Recogniser, TheBytesOfAHeaderMayStandInsideAnImage) {
    const std::string header("\x00\xFF\xFF\xFF\xFF\xFF\xFF\x00", 8);
    const std::string original = sample("zarqo-z40.bin");
    for (std::size_t place = header.size(); place + header.size() < extensionCountCell; ++place) {
        const Image image = *Image::fromBytes(std::string(original).replace(place, header.size(), header));
        for (const WrittenForm& form : writtenForms()) {
            const Recognition back = recognise(form.write(image));
            ASSERT_EQ(back.images.size(), 1U) << form.name << ' ' << place << ' ' << back.refusal;
            EXPECT_EQ(back.images[0].content(), image.content()) << form.name << ' ' << place;
        }
    }
}

/// A few rows must not become any number of bytes.
TEST(Recogniser, TheRepeatsOfADumpEndWithTheLargestImage) {
    std::string dump = "00000000: 00 ff ff ff ff ff ff 00\n";
    for (const char* const offset : {"00008000", "00010000", "00018000"}) {
        dump += std::string("*\n") + offset + ": 00 00 00 00 00 00 00 00\n";
    }
    const Recognition result = recognise(dump, {.anyHeader = false, .form = "dump", .inflate = {}});
    ASSERT_EQ(result.images.size(), 1U);
    EXPECT_EQ(result.images[0].content().size(), 0x8000U);
    EXPECT_EQ(result.images[0].leftOver(), 8U);
}

/// Lines that hold nothing take no room.
TEST(Recogniser, EmptyLinesBehindAnImageAreNoEdgesOfTheirOwn) {
    std::string numbers = "0, 255, 255, 255, 255, 255, 255, 0";
    for (int i = 8; i < 128; ++i) {
        numbers += ", 0";
    }
    const Recognition result = recognise(numbers + std::string(100'000, '\n') + numbers);
    ASSERT_EQ(result.images.size(), 2U);
    EXPECT_EQ(result.images[0].content(), result.images[1].content());
}

} // namespace
} // namespace wb::forms
