#include "desktop/views/keys.h"

#include <gtest/gtest.h>

namespace wb::desktop {
namespace {

QKeyEvent pressed(int key, const QString& text = {}, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    return {QEvent::KeyPress, key, modifiers, text};
}

TEST(Keys, TellEnterFromOthers) {
    EXPECT_TRUE(isEnter(pressed(Qt::Key_Return, "\r")));
    EXPECT_TRUE(isEnter(pressed(Qt::Key_Enter, "\r", Qt::KeypadModifier)));
    EXPECT_FALSE(isEnter(pressed(Qt::Key_Space, " ")));
}

TEST(Keys, TypeUnlessTheyCommand) {
    EXPECT_TRUE(types(pressed(Qt::Key_A, "a")));
    EXPECT_TRUE(types(pressed(Qt::Key_A, "A", Qt::ShiftModifier)));
    EXPECT_TRUE(types(pressed(Qt::Key_At, "@", Qt::ControlModifier | Qt::AltModifier))) << "AltGr";
    EXPECT_FALSE(types(pressed(Qt::Key_A, "a", Qt::AltModifier)));
    EXPECT_FALSE(types(pressed(Qt::Key_A, "a", Qt::MetaModifier)));
    EXPECT_FALSE(types(pressed(Qt::Key_A, "\x01", Qt::ControlModifier)));
    EXPECT_FALSE(types(pressed(Qt::Key_Escape, "\x1B")));
    EXPECT_FALSE(types(pressed(Qt::Key_Left)));
}

TEST(Keys, TypeTheCharactersThatTheProgramHas) {
    EXPECT_EQ(typedCharacter(pressed(Qt::Key_A, "a")), 'a');
    EXPECT_EQ(typedCharacter(pressed(0, QString(QChar(0x20AC)))), '\x80') << "the euro sign";
    const QKeyEvent foreign = pressed(0, QString(QChar(0x142))); // a barred l
    EXPECT_TRUE(types(foreign));
    EXPECT_EQ(typedCharacter(foreign), std::nullopt);
    const QKeyEvent emoji = pressed(0, QString::fromUtf8("\xF0\x9F\x98\x80"));
    EXPECT_TRUE(types(emoji));
    EXPECT_EQ(typedCharacter(emoji), std::nullopt) << "two units, and no character of the program";
}

struct TypedKey {
    char character;
    Qt::KeyboardModifier modifier;
    int code;
};

TEST(Keys, HaveTheCodeOfTheirCapitalOrTheirPlaceOnTheNumberPad) {
    constexpr TypedKey keys[] = {
        {'a', Qt::NoModifier, 65},      {'A', Qt::ShiftModifier, 65},   {'7', Qt::NoModifier, 55},
        {'0', Qt::KeypadModifier, 96},  {'9', Qt::KeypadModifier, 105}, {'*', Qt::KeypadModifier, 106},
        {'+', Qt::KeypadModifier, 107}, {'-', Qt::KeypadModifier, 109}, {'.', Qt::KeypadModifier, 110},
        {',', Qt::KeypadModifier, 110}, {'/', Qt::KeypadModifier, 111}, {'+', Qt::NoModifier, 43}};
    for (const TypedKey& key : keys) {
        const QKeyEvent event = pressed(0, QString(QLatin1Char(key.character)), key.modifier);
        EXPECT_EQ(typedKeyCode(event, key.character), key.code) << key.character;
    }
}

TEST(Keys, ThatCommandHaveCodesToo) {
    EXPECT_EQ(commandKeyCode(pressed(Qt::Key_Backspace)), 8);
    EXPECT_EQ(commandKeyCode(pressed(Qt::Key_PageUp)), 33);
    EXPECT_EQ(commandKeyCode(pressed(Qt::Key_PageDown)), 34);
    EXPECT_EQ(commandKeyCode(pressed(Qt::Key_End)), 35);
    EXPECT_EQ(commandKeyCode(pressed(Qt::Key_Home)), 36);
    EXPECT_EQ(commandKeyCode(pressed(Qt::Key_Left)), 37);
    EXPECT_EQ(commandKeyCode(pressed(Qt::Key_Up)), 38);
    EXPECT_EQ(commandKeyCode(pressed(Qt::Key_Right)), 39);
    EXPECT_EQ(commandKeyCode(pressed(Qt::Key_Down)), 40);
    EXPECT_EQ(commandKeyCode(pressed(Qt::Key_Delete)), 46);
    EXPECT_EQ(commandKeyCode(pressed(Qt::Key_V, "\x16", Qt::ControlModifier)), 86);
    EXPECT_EQ(commandKeyCode(pressed(Qt::Key_5, {}, Qt::ControlModifier)), 53);
    EXPECT_EQ(commandKeyCode(pressed(Qt::Key_F6)), 0);
}

} // namespace
} // namespace wb::desktop
