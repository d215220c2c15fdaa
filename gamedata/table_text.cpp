#include "gamedata/table_text.h"

#include "gamedata/limits.h"
#include "gamedata/runtime/dat_file.h"

#include <QTextCodec>

#include <algorithm>
#include <cstring>

namespace table_text {

namespace {

// Lines end this way and no other: a text with bare line feeds is one line.
const QString lineEnd = QStringLiteral("\r\n");

} // namespace

QString decoded(const char *bytes, int size, const QTextCodec *codec)
{
    const int length = int(qstrnlen(bytes, uint(size)));
    return codec ? codec->toUnicode(bytes, length) : QString::fromLatin1(bytes, length);
}

QStringList allLines(const QString &text)
{
    return text.split(lineEnd, Qt::KeepEmptyParts);
}

bool isBlank(const QString &line)
{
    return std::all_of(line.begin(), line.end(), [](QChar letter) {
        return letter == QLatin1Char('\t') || letter == QLatin1Char(' ');
    });
}

void dropFirst(QStringList &lines, int count)
{
    lines.erase(lines.begin(), lines.begin() + std::min(count, lines.size()));
}

void dropLast(QStringList &lines, int count)
{
    lines.erase(lines.end() - std::min(count, lines.size()), lines.end());
}

QStringList columns(const QString &line)
{
    return line.split(QLatin1Char('\t'), Qt::KeepEmptyParts);
}

void forEachRow(const QStringList &lines, const std::function<void(int, const QString &)> &take)
{
    int row = 0;
    for (const QString &line : lines) {
        if (!isBlank(line))
            take(row++, line);
    }
}

void forEachName(const QStringList &lines, int columnCount,
                 const std::function<void(int, const QString &)> &take)
{
    int row = 0;
    for (const QString &line : lines) {
        if (!isBlank(line) && line.count(QLatin1Char('\t')) + 1 >= columnCount)
            take(row++, line.left(line.indexOf(QLatin1Char('\t')))); // the whole without one
    }
}

bool Entry::is(const char *kind) const
{
    return std::strcmp(RADF->entries[m_index].baseName.c_str(), kind) == 0;
}

int Entry::id() const
{
    return RADF->entries[m_index].id;
}

bool Entry::hasTableId() const
{
    return id() >= 0 && id() <= limits::tableId;
}

const char *Entry::bytes(int string) const
{
    return RADF->GetStrVal(m_index, string, "");
}

QString Entry::text(int string, const QTextCodec *codec) const
{
    const char *const found = bytes(string);
    return decoded(found, int(qstrlen(found)), codec);
}

QStringList Entry::lines(int string, const QTextCodec *codec) const
{
    return text(string, codec).split(lineEnd, Qt::SkipEmptyParts);
}

std::vector<Entry> entriesOf(std::initializer_list<const char *> kinds)
{
    std::vector<Entry> found;
    for (int i = 0; RADF && i < RADF->entries.length; ++i) {
        const Entry entry(i);
        if (std::any_of(kinds.begin(), kinds.end(),
                        [&entry](const char *kind) { return entry.is(kind); }))
            found.push_back(entry);
    }
    return found;
}

} // namespace table_text
