// Names and texts as strangers may put them into a campaign, a map or a folder, to be taken for
// something else than a name or a text.
#pragma once

#include <QFile>
#include <QString>
#include <QVector>

namespace hostile {

// A map's name in a campaign.
struct MapName
{
    const char *title;
    QString name;
    QString file; // in the campaign's folder; none if empty
    bool canBeFile = true;
};

// A byte that is no UTF-8, as names have it.
inline QString strayByte()
{
    return QString(QChar(0xDCFF));
}

// Where a name leads out of the folder it leads to a place in which nothing can be made: a program
// that followed it fails its test and harms no machine.
inline QVector<MapName> mapNames()
{
    const QString zero = QChar(QChar::Null);
    const QString tooLong(300, 'w');
    const QString turned = QString::fromUtf8("x\u202Em3e\u202C\u200B.e3m");
    return {
        {"a folder above", "../x", "x"},
        {"a folder above, of other slashes", "..\\x", "x"},
        {"many folders above", "../../../../../../../../proc/x", "x"},
        {"a folder below", "in/x", "x"},
        {"a drive", "C:\\x", "x"},
        {"from the root", "/proc/x", "x"},
        {"a device", "/dev/fd/null", "null"},
        {"a device by its name alone", "CON", "CON"},
        {"line ends", "a\nb\r\nc", "a\nb\r\nc"},
        {"tabulators", "a\tb", "a\tb"},
        {"empty", "", ""},
        {"the folder", ".", ""},
        {"the folder above", "..", ""},
        {"the folder above, behind another", "x/..", ""},
        {"a dash", "-", "-"},
        {"an option", "--help", "--help"},
        {"a home", "~", "~"},
        {"places of arguments", "%1 %2 %s %n %", "%1 %2 %s %n %"},
        {"letters to underline", "&a&&b", "&a&&b"},
        {"markup", "<b>x", "<b>x"},
        {"patterns", "*?[x]{y}", "*?[x]{y}"},
        {"quotes", "\"x\"'y'`z`$(w)", "\"x\"'y'`z`$(w)"},
        {"a variable", "$HOME;x|y", "$HOME;x|y"},
        {"a variable alone", "$CMPED_STRANGER", "$CMPED_STRANGER"},
        {"letters from the right", turned, turned},
        {"a byte that is no UTF-8", "x" + strayByte() + ".e3m", "x" + strayByte() + ".e3m"},
        {"a zero", "x" + zero + "y", "x" + zero + "y", false},
        {"a zero first", zero + "x", zero + "x", false},
        {"300 bytes", tooLong, tooLong, false},
    };
}

// Stands in each of the texts.
constexpr char mark[] = "<b>Mark</b>";

struct Text
{
    const char *title;
    QString text;
};

// The last is of a megabyte.
inline QVector<Text> texts()
{
    const QString start = QString::fromLatin1(mark);
    return {
        {"bold", start},
        {"a picture", start + "<img src=\"file:///etc/hostname\" width=9000 height=9000>"},
        {"entities", start + "&amp;&lt;&#65;"},
        {"end of the document", start + "</html></qt><!--"},
        {"headings and tables", start + "<h1>x</h1><table width=9000><tr><td>y</td></tr></table>"},
        {"thousands of lines", start + QString("line\n").repeated(3000)},
        {"all kinds of line ends", start + QString("\r\n\v\f\r") + QChar(0x2028) + QChar(0x2029)},
        {"letters from the right",
         start + QString::fromUtf8("\u202E\u2066\u200B\u200D\u200F\uFEFF\u0301\u0301")},
        {"a zero", start + QChar(QChar::Null) + "behind"},
        {"places of arguments", start + "%1 %2 %n % & [*]"},
        {"a byte that is no UTF-8", start + strayByte()},
        {"a word of a megabyte", start + QString(1000000, 'w')},
    };
}

// What may stand in the names of files and folders: all but zeros and slashes.
struct FileName
{
    const char *title;
    QString name;
};

inline QVector<FileName> fileNames()
{
    return {
        {"%1", "%1"},
        {"%2", "%2"},
        {"%3 %1 %2 %n %L1", "%3 %1 %2 %n %L1"},
        {"a single %", "100%"},
        {"&", "Ash & Ember &x"},
        {"a line end", "a\nb"},
        {"a tabulator", "a\tb"},
        {"[*]", "a[*]b[*]"},
        {"markup", "<b>x"},
        {"a byte that is no UTF-8", "x" + strayByte() + "y"},
    };
}

} // namespace hostile
