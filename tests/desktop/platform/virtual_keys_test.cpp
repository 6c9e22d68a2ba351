#include "desktop/platform/virtual_keys.h"

#include <QFile>
#include <QKeyEvent>
#include <QMetaEnum>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// The key at a place as the kernel numbers it; 0: unknown.
int numberOf(int key, Qt::KeyboardModifiers held = Qt::NoModifier, quint32 place = 0)
{
    const quint32 native = place == 0 ? 0 : place + 8;
    return virtualKeyOf(QKeyEvent(QEvent::KeyPress, key, held, native, 0, 0));
}

TEST(VirtualKeyOf, KeysHaveTheNumbersOfWindows)
{
    const std::pair<int, int> keys[] = {
        {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},      {Qt::Key_Backtab, 9},  {Qt::Key_Return, 13},
        {Qt::Key_Shift, 16},    {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},     {Qt::Key_Pause, 19},
        {Qt::Key_CapsLock, 20}, {Qt::Key_Escape, 27},  {Qt::Key_Space, 32},   {Qt::Key_PageUp, 33},
        {Qt::Key_Down, 40},     {Qt::Key_Print, 42},   {Qt::Key_Insert, 45},  {Qt::Key_Delete, 46},
        {Qt::Key_F1, 112},      {Qt::Key_F10, 121},    {Qt::Key_F16, 127},    {Qt::Key_A, 65},
        {Qt::Key_Z, 90},        {Qt::Key_7, 55},       {Qt::Key_NumLock, 144}};
    for (const auto& [key, number] : keys) EXPECT_EQ(numberOf(key), number) << key;
}

TEST(VirtualKeyOf, TheNumericPadHasItsOwnNumbers)
{
    EXPECT_EQ(numberOf(Qt::Key_0, Qt::KeypadModifier), 96);
    EXPECT_EQ(numberOf(Qt::Key_9, Qt::KeypadModifier), 105);
    EXPECT_EQ(numberOf(Qt::Key_Asterisk, Qt::KeypadModifier), 106);
    EXPECT_EQ(numberOf(Qt::Key_Plus, Qt::KeypadModifier), 107);
    EXPECT_EQ(numberOf(Qt::Key_Enter, Qt::KeypadModifier), 108);
    EXPECT_EQ(numberOf(Qt::Key_Minus, Qt::KeypadModifier), 109);
    EXPECT_EQ(numberOf(Qt::Key_Period, Qt::KeypadModifier), 110);
    EXPECT_EQ(numberOf(Qt::Key_Slash, Qt::KeypadModifier), 111);
    EXPECT_EQ(numberOf(Qt::Key_Clear, Qt::KeypadModifier), 12);
    EXPECT_EQ(numberOf(Qt::Key_Home, Qt::KeypadModifier), 36) << "Num Lock is off";
}

TEST(VirtualKeyOf, SignsHaveTheNumbersOfAUkKeyboardWithAndWithoutShift)
{
    EXPECT_EQ(numberOf(Qt::Key_Apostrophe, Qt::NoModifier, 40), 192);
    EXPECT_EQ(numberOf(Qt::Key_At, Qt::ShiftModifier, 40), 192) << "UK";
    EXPECT_EQ(numberOf(Qt::Key_QuoteDbl, Qt::ShiftModifier, 40), 192) << "US";
    EXPECT_EQ(numberOf(Qt::Key_NumberSign, Qt::NoModifier, 43), 222);
    EXPECT_EQ(numberOf(Qt::Key_AsciiTilde, Qt::ShiftModifier, 43), 222);
    EXPECT_EQ(numberOf(Qt::Key_QuoteLeft, Qt::NoModifier, 41), 223);
    EXPECT_EQ(numberOf(Qt::Key_notsign, Qt::ShiftModifier, 41), 223);
    EXPECT_EQ(numberOf(Qt::Key_Backslash, Qt::NoModifier, 86), 220);
    EXPECT_EQ(numberOf(Qt::Key_Backslash, Qt::NoModifier, 43), 220) << "US";
    EXPECT_EQ(numberOf(Qt::Key_BraceLeft, Qt::ShiftModifier, 26), 219);
}

TEST(VirtualKeyOf, ADigitWithShiftIsThatDigit)
{
    EXPECT_EQ(numberOf(Qt::Key_Exclam, Qt::ShiftModifier, 2), '1');
    EXPECT_EQ(numberOf(Qt::Key_ParenRight, Qt::ShiftModifier, 11), '0');
    EXPECT_EQ(numberOf(Qt::Key_NumberSign, Qt::ShiftModifier, 4), '3') << "US";
    EXPECT_EQ(numberOf(Qt::Key_QuoteDbl, Qt::ShiftModifier, 3), '2') << "UK";
}

TEST(VirtualKeyOf, AKeyWithoutANumberIsZero) { EXPECT_EQ(numberOf(Qt::Key_VolumeUp, Qt::NoModifier, 115), 0); }

TEST(HeldWith, AModifierCountsWhenItGoesDownAndNotWhenItComesUp)
{
    EXPECT_EQ(heldWith(QKeyEvent(QEvent::KeyPress, Qt::Key_Shift, Qt::NoModifier)), 1);
    EXPECT_EQ(heldWith(QKeyEvent(QEvent::KeyPress, Qt::Key_Alt, Qt::ShiftModifier)), 5);
    EXPECT_EQ(heldWith(QKeyEvent(QEvent::KeyRelease, Qt::Key_Control, Qt::ControlModifier | Qt::ShiftModifier)), 1);
    EXPECT_EQ(heldWith(QKeyEvent(QEvent::KeyRelease, Qt::Key_A, Qt::ControlModifier)), 2);
}

TEST(CharacterOf, IsThatOfTheCodePage)
{
    const auto of = [](const QString& text) {
        return characterOf(QKeyEvent(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, text));
    };
    EXPECT_EQ(of("a"), 'a');
    EXPECT_EQ(of(QString::fromUtf8("\xE2\x82\xAC")), 0x80);
    EXPECT_EQ(of(QString::fromUtf8("\xE4\xB8\xAD")), '?');
    EXPECT_EQ(of(""), 0);
}

// ---- all keys -------------------------------------------------------------------------------------------------------

/// A line for each key that has a number: by its name, with the numeric pad's as "Keypad", and by its place alone.
QByteArray allNumbers()
{
    QByteArray lines;
    const auto add = [&lines](const QByteArray& name, int number) {
        if (number != 0) lines += name + ' ' + QByteArray::number(number) + '\n';
    };
    const QMetaEnum keys = QMetaEnum::fromType<Qt::Key>();
    for (int i = 0; i < keys.keyCount(); ++i) add(keys.key(i), numberOf(keys.value(i)));
    for (int i = 0; i < keys.keyCount(); ++i) {
        const int number = numberOf(keys.value(i), Qt::KeypadModifier);
        if (number != numberOf(keys.value(i))) add(QByteArray("Keypad ") + keys.key(i), number);
    }
    for (quint32 place = 1; place < 128; ++place)
        add("Place " + QByteArray::number(place), numberOf(Qt::Key_unknown, {}, place));
    return lines;
}

/// With TARVEX_UPDATE_TEXTS set the list is written instead; read the difference before committing it.
TEST(VirtualKeyOf, AllKeysHaveTheNumbersOfTheList)
{
    QFile list(QStringLiteral(TARVEX_SOURCE_DIRECTORY "/tests/data/virtual_keys.txt"));
    if (qEnvironmentVariableIsSet("TARVEX_UPDATE_TEXTS")) {
        ASSERT_TRUE(list.open(QIODevice::WriteOnly));
        list.write(allNumbers());
        list.close();
    }
    ASSERT_TRUE(list.open(QIODevice::ReadOnly));
    EXPECT_EQ(allNumbers().toStdString(), list.readAll().toStdString());
}

} // namespace
} // namespace tarvex
