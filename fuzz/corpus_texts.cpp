// Seeds of texts: tables of the game's texts, lists of items, and files for translators.
#include "fuzz/corpus.h"

#include <QString>

namespace corpus {

namespace {

// By the first byte of what is imported.
enum Encoding : char
{
    Utf8,
    Windows1251,
    Windows1252,
    Gb18030,
    EucKr,
    Big5,
    ShiftJis,
    Tscii
};

// What stands between a map's name and its region's: a dash, in the encoding at hand.
constexpr char utf8Dash[] = " \xe2\x80\x94 ";
constexpr char windowsDash[] = " \x97 ";
constexpr char gbDash[] = " \xa1\xaa ";

QByteArray value(const QByteArray &caption, const QByteArray &text)
{
    return caption + ":\r\n" + text + "\r\n\r\n";
}

// The file of the campaign that the target has made, with this text everywhere.
QByteArray texts(const QByteArray &dash, const QByteArray &text)
{
    return value("Name", text) + value("Description", text) + "\r\nAsh" + dash + "\r\n\r\n" +
           value("Right-click text", text) + value("Prologue", text) + value("Epilogue", text) +
           "\r\nFen" + dash + "\r\n\r\n" + value("Right-click text", text) +
           value("Prologue", text) + value("Epilogue", text);
}

QByteArray utf16(const QByteArray &utf8)
{
    const QString text = QString::fromUtf8(utf8);
    QByteArray bytes("\xff\xfe", 2);
    for (const QChar unit : text)
        bytes.append(char(unit.cell())).append(char(unit.row()));
    return bytes;
}

QByteArray rows(const QByteArray &row, int count)
{
    return (row + "\r\n").repeated(count);
}

} // namespace

std::vector<File> textImports()
{
    return {
        {"utf8", char(Utf8) + texts(utf8Dash, "Long ago\tand far")},
        {"utf8_mark", char(Windows1252) + QByteArray("\xef\xbb\xbf") + texts(utf8Dash, "Long ago")},
        {"utf16_mark", char(Utf8) + utf16(texts(utf8Dash, "Long \xf0\x9f\x8f\xb0 ago"))},
        {"utf8_damaged", char(Utf8) + texts(utf8Dash, "\xc3\x28 \xe2\x82 \xf0\x9f\x8f\xb0 \xff")},
        {"utf8_mark_inside", char(Utf8) + texts(utf8Dash, "\xef\xbb\xbfLong ago")},
        {"utf8_zero_byte", char(Utf8) + texts(utf8Dash, QByteArray("a\0b", 3))},
        {"windows_1251", char(Windows1251) + texts(windowsDash, "\xc4\xe0\xe2\xed\xee \x98")},
        {"windows_1252", char(Windows1252) + texts(windowsDash, "Caf\xe9 \x81")},
        {"gb18030", char(Gb18030) + texts(gbDash, "\xb0\xa1 \x81\x30\x81\x30 \x81")},
        {"euc_kr", char(EucKr) + texts(gbDash, "\xb0\xa1 \xff")},
        {"big5", char(Big5) + texts("\xa1X", "\xa4\x40 \xff")},
        {"shift_jis", char(ShiftJis) + texts("\x81\\", "\x82\xa0 \xb1 \xff")},
        {"control_characters", char(ShiftJis) + texts("\x81\\", "\x1a\x1c\x7f \x82 \xff")},
        {"tscii", char(Tscii) + texts(windowsDash, "\x81\x84 \xb8\xa4 \xff")},
        {"escape", char(Big5) + texts("\xa1X", "\x1b$B$\"\x1b(B \x1b$B\xff")},
        {"other_description", char(Utf8) + texts(utf8Dash, "a").replace("Description:", "About:")},
        {"other_region_text", char(Utf8) + texts(utf8Dash, "a").replace("Right-click", "Left")},
        {"other_prologue", char(Utf8) + texts(utf8Dash, "a").replace("Prologue:", "Before:")},
        {"other_epilogue", char(Utf8) + texts(utf8Dash, "a").replace("Epilogue:", "After:")},
        {"without_line_ends", char(Utf8) + texts(utf8Dash, "a").replace("\r\n", "\n")},
        {"other_name", char(Utf8) + texts(" - ", "a")},
        {"too_few_lines", char(Utf8) + value("Name", "a") + value("Description", "b")},
    };
}

// A byte that chooses the table, and its text.
std::vector<File> textTables()
{
    const QByteArray wide = "Name\tx" + QByteArray(11, '\t');
    const QByteArray mixed = rows(wide, 6) + rows(" \t", 2) + rows("Name\tCost", 20);
    return {
        {"creatures", char(0) + mixed},
        {"artifacts", char(1) + mixed},
        {"heroes", char(2) + mixed},
        {"resources", char(3) + mixed},
        {"primary_skills", char(4) + mixed},
        {"jktext", char(5) + mixed},
        {"skills", char(6) + mixed},
        {"spells", char(7) + rows("Spell", 5) + rows("Combat Spells", 1) + rows("Spell", 70)},
        {"spells_with_blanks", char(7) + rows("Spell", 5) + rows(" \t", 2) + rows("Spell", 2)},
        {"buildings", char(8) + rows("Name\tCost", 90)},
        {"buildings_one_column", char(8) + rows("Name", 20)},
        {"bare_line_feeds", char(2) + QByteArray("Name\n").repeated(20)},
        {"zero_byte", char(6) + rows("Name", 5) + '\0' + rows("Name", 5)},
        {"empty", QByteArray(1, '\0')},
        {"nothing", {}},
    };
}

std::vector<File> stringLists()
{
    return {
        {"lines", "One\r\nTwo\nThree\r\r"},
        {"comments", "# note\r\nOne # note\r\n\"Two # text\""},
        {"quotes", "\"One\r\nstill\" \"\" \"\"\"Two\"\" a\"\"b \"open"},
        {"numbers", "12 -5\t99999999999\r\n0x1F # 7\n8"},
        {"path", "C:\\Maps/a:b|c?.e3m"},
        {"words", QByteArray(64, '\xa5')},
    };
}

} // namespace corpus
