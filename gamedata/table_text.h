// What the loaders of the game's tables share: the rules of the text tables, and the walk over the
// table file. Private to this folder.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <initializer_list>
#include <vector>

class QTextCodec;

namespace table_text {

// The text up to the first zero byte, in the game's encoding.
QString decoded(const char *bytes, int size, const QTextCodec *codec);

// The pieces between the line ends, empty ones included.
QStringList allLines(const QString &text);

// Nothing but tabs and spaces: such a line of a text table is skipped and takes no row number.
bool isBlank(const QString &line);

// Removes that many lines, or what there is. The piece behind a final line end is a line, too.
void dropFirst(QStringList &lines, int count);
void dropLast(QStringList &lines, int count);

// The columns of a line, empty ones included; at least one.
QStringList columns(const QString &line);

// Calls back with the running row number, counted from 0, of each line that isn't blank.
void forEachRow(const QStringList &lines,
                const std::function<void(int row, const QString &)> &take);

// The same, with column 0 of the lines that have at least `columnCount` columns; others take no
// row number.
void forEachName(const QStringList &lines, int columnCount,
                 const std::function<void(int row, const QString &name)> &take);

// One entry of the table file.
class Entry
{
public:
    explicit Entry(int index) : m_index(index) {}

    bool is(const char *kind) const; // compares the name without its number
    int id() const;                  // the number behind the name; -1 if it has none

    // True if the number can be a key of a table. Entries with another number are passed over by
    // the tables that use it, so that no number sizes a bit array beyond all reason.
    bool hasTableId() const;

    // The bytes of a string; empty if the entry has no such string. Owned by the table file.
    const char *bytes(int string) const;
    QString text(int string, const QTextCodec *codec) const;
    // A text split at its line ends, without the empty pieces.
    QStringList lines(int string, const QTextCodec *codec) const;

private:
    int m_index;
};

// The entries whose name without the number is one of these, in the file's order. Without a table
// file there are none.
std::vector<Entry> entriesOf(std::initializer_list<const char *> kinds);

} // namespace table_text
