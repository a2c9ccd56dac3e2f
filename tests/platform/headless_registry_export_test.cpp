#include "platform/headless/registry_export.h"

#include <gtest/gtest.h>

namespace wb::platform::headless {
namespace {

const std::string head = "Windows Registry Editor Version 5.00\r\n\r\n";
const std::string key = "[HKEY_LOCAL_MACHINE\\SYSTEM\\A]\r\n";

platform::RegistryValue onlyValue(const std::string& line) {
    const auto keys = parseRegistryExport(head + key + line);
    EXPECT_EQ(keys.size(), 1U);
    EXPECT_EQ(keys.at(0).values.size(), 1U) << line;
    return keys.at(0).values.at(0);
}

/// "LINE: MESSAGE"
std::string errorOf(const std::string& bytes) {
    try {
        parseRegistryExport(bytes);
    } catch (const RegistryExportError& error) {
        return std::to_string(error.line()) + ": " + error.what();
    }
    return {};
}

TEST(RegFile, ReadsKeysInTheirOrder) {
    const auto keys = parseRegistryExport(head +
                                          "[HKEY_LOCAL_MACHINE\\SYSTEM\\B]\r\n"
                                          "; a comment\r\n"
                                          "[HKEY_LOCAL_MACHINE\\SYSTEM\\A [1]]  ; one more\r\n"
                                          "\"x\"=\"1\"\r\n"
                                          "[hkey_local_machine]\r\n"
                                          "@=\"root\"\r\n");
    ASSERT_EQ(keys.size(), 3U);
    EXPECT_EQ(keys[0].path, "SYSTEM\\B");
    EXPECT_TRUE(keys[0].values.empty());
    EXPECT_EQ(keys[1].path, "SYSTEM\\A [1]");
    ASSERT_EQ(keys[1].values.size(), 1U);
    EXPECT_EQ(keys[2].path, "");
    ASSERT_EQ(keys[2].values.size(), 1U);
    EXPECT_EQ(keys[2].values[0].name, "");
    EXPECT_EQ(keys[2].values[0].data, std::string("root\0", 5));
}

TEST(RegFile, LeavesOutDeletedAndForeignKeysAndDeletedValues) {
    const auto keys = parseRegistryExport(head +
                                          "[-HKEY_LOCAL_MACHINE\\SYSTEM\\Gone]\r\n"
                                          "[HKEY_CURRENT_USER\\Software]\r\n"
                                          "\"x\"=\"1\"\r\n" +
                                          key + "\"gone\"=-\r\n\"here\"=dword:1\r\n");
    ASSERT_EQ(keys.size(), 1U);
    EXPECT_EQ(keys[0].path, "SYSTEM\\A");
    ASSERT_EQ(keys[0].values.size(), 1U);
    EXPECT_EQ(keys[0].values[0].name, "here");
}

TEST(RegFile, ReadsTexts) {
    const auto value = onlyValue(R"("a\"b\\c" = "C:\\x \"y\";z" ; comment)");
    EXPECT_EQ(value.name, R"(a"b\c)");
    EXPECT_EQ(value.type, RegistryType::Text);
    EXPECT_EQ(value.data, std::string("C:\\x \"y\";z") + '\0');
}

TEST(RegFile, ATextMayHoldLineEnds) {
    const auto keys = parseRegistryExport(head + key + "\"A\"=\"one \r\n two\nthree\"\r\n\"B\"=dword:1\r\n");
    ASSERT_EQ(keys.size(), 1U);
    ASSERT_EQ(keys[0].values.size(), 2U);
    EXPECT_EQ(keys[0].values[0].data, std::string("one \r\n two\nthree") + '\0');
    EXPECT_EQ(keys[0].values[1].name, "B");
    EXPECT_EQ(errorOf(head + key + "\"A\"=\"one\r\ntwo\"\r\nx"), "6: neither a key nor a value");
    EXPECT_EQ(errorOf(head + key + "\"A\"=\"one\r\ntwo\r\n"), "4: a text without its closing quote");
}

TEST(RegFile, ACommentAfterAKeyMayHoldBrackets) {
    const auto keys = parseRegistryExport(head + "[HKEY_LOCAL_MACHINE\\X] ; a ] b\r\n[HKEY_LOCAL_MACHINE\\Y]];]\r\n");
    ASSERT_EQ(keys.size(), 2U);
    EXPECT_EQ(keys[0].path, "X");
    EXPECT_EQ(keys[1].path, "Y]");
}

TEST(RegFile, ReadsNumbersLeastSignificantByteFirst) {
    const auto value = onlyValue("\"n\"=dword:0001a2Ff");
    EXPECT_EQ(value.type, RegistryType::Number32);
    EXPECT_EQ(value.data, std::string("\xFF\xA2\x01\x00", 4));
}

TEST(RegFile, ReadsBytesOverSeveralLines) {
    const auto value = onlyValue("\"EDID\"=hex:00,FF,\\\r\n  ff , a,\\ \r\n  7f\r\n");
    EXPECT_EQ(value.type, RegistryType::Binary);
    EXPECT_EQ(value.data, std::string("\x00\xFF\xFF\x0A\x7F", 5));
    EXPECT_EQ(onlyValue("\"e\"=hex:").data, "");
}

TEST(RegFile, ReadsTypedBytes) {
    struct Case {
        const char* line;
        RegistryType type;
        std::string data;
    };
    for (const Case& c : {Case{"@=hex(0):01", RegistryType::None, "\x01"},
                          Case{"@=hex(1):41,00,00,00", RegistryType::Text, std::string("A\0", 2)},
                          Case{"@=hex(2):25,00,ac,20,00,00", RegistryType::ExpandableText, std::string("%\x80\0", 3)},
                          Case{"@=hex(3):41,00", RegistryType::Binary, std::string("A\0", 2)},
                          Case{"@=hex(4):01,00,00,00", RegistryType::Number32, std::string("\x01\0\0\0", 4)},
                          Case{"@=hex(7):41,00,00,00,00,00", RegistryType::Other, std::string("A\0\0", 3)},
                          Case{"@=hex(b):01,02", RegistryType::Other, "\x01\x02"}}) {
        const auto value = onlyValue(c.line);
        EXPECT_EQ(value.type, c.type) << c.line;
        EXPECT_EQ(value.data, c.data) << c.line;
    }
}

TEST(RegFile, TextsOfTheOldVersionAre8Bit) {
    const auto keys = parseRegistryExport("REGEDIT4\n\n[HKEY_LOCAL_MACHINE\\A]\n\"x\"=hex(2):41,42,00\n");
    ASSERT_EQ(keys.size(), 1U);
    EXPECT_EQ(keys[0].values.at(0).data, std::string("AB\0", 3));
}

TEST(RegFile, ReadsUtf16) {
    std::string wide = "\xFF\xFE";
    for (const char c : head + key + "\"EDID\"=hex:00,ff\r\n") {
        wide += c;
        wide += '\0';
    }
    const auto keys = parseRegistryExport(wide);
    ASSERT_EQ(keys.size(), 1U);
    EXPECT_EQ(keys[0].path, "SYSTEM\\A");
    EXPECT_EQ(keys[0].values.at(0).data, std::string("\x00\xFF", 2));
}

TEST(RegFile, TellsTheLineOfAnError) {
    struct Case {
        std::string text;
        const char* error;
    };
    for (const Case& c : {Case{"", "1: this is no registry export"},
                          Case{"\r\n\r\n[A]", "3: this is no registry export"},
                          Case{head + "\"x\"=\"1\"", "3: a value before the first key"},
                          Case{head + "[HKEY_LOCAL_MACHINE\\A", "3: a key without its closing bracket"},
                          Case{head + "[HKEY_LOCAL_MACHINE\\A] b", "3: text after a key"},
                          Case{head + key + "x=1", "4: neither a key nor a value"},
                          Case{head + key + "\"x\" 1", "4: no '=' after the name of a value"},
                          Case{head + key + "\"x", "4: a text without its closing quote"},
                          Case{head + key + "\"x\"=\"1\\", "4: a text without its closing quote"},
                          Case{head + key + "\"x\"=\"\\n\"", "4: unknown escape in a text"},
                          Case{head + key + "\"x\"=\"1\" 2", "4: text after the data of a value"},
                          Case{head + key + "\"x\"=", "4: unknown kind of data"},
                          Case{head + key + "\"x\"=- 1", "4: text after the data of a value"},
                          Case{head + key + "\"x\"=qword:1", "4: unknown kind of data"},
                          Case{head + key + "\"x\"=hex(:1", "4: unknown kind of data"},
                          Case{head + key + "\"x\"=hex(g):1", "4: unknown kind of data"},
                          Case{head + key + "\"x\"=hex", "4: no ':' after the kind of data"},
                          Case{head + key + "\"x\"=dword:", "4: a dword is one to eight hexadecimal digits"},
                          Case{head + key + "\"x\"=dword:123456789", "4: a dword is one to eight hexadecimal digits"},
                          Case{head + key + "\"x\"=hex:1,\\\r\n 2,100", "5: a byte is one or two hexadecimal digits"},
                          Case{head + key + "\"x\"=hex:1,0a0", "4: a byte is one or two hexadecimal digits"},
                          Case{head + key + "\"x\"=hex:1,,2", "4: a byte is one or two hexadecimal digits"},
                          Case{head + key + "\"x\"=hex:1,2,", "4: a byte is missing after a comma"},
                          Case{head + key + "\"x\"=hex:1,\\\r\n,2", "5: a byte is one or two hexadecimal digits"},
                          Case{head + key + "\"x\"=hex:1\\\r\n2", "5: no comma between two bytes"},
                          Case{head + key + "\"x\"=hex:1,2,\\", "4: the data of a value breaks off"}}) {
        EXPECT_EQ(errorOf(c.text), c.error) << c.text;
    }
}

} // namespace
} // namespace wb::platform::headless
